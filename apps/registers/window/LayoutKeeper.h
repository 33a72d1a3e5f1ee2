// SPDX-License-Identifier: MIT
#pragma once

#include "text/NumberText.h"

#include <QObject>

QT_BEGIN_NAMESPACE
class QSplitter;
QT_END_NAMESPACE

namespace registers {

/// Keeps a window's size, place and splitter, and the base of its values, from one run to the next, once it was asked to.
class LayoutKeeper : public QObject
{
    Q_OBJECT

public:
    /// @p window must live as long as this object, which it owns, and so must @p splitter until save() was called.
    LayoutKeeper(QWidget* window, QSplitter* splitter);

    /// Takes all but the base from the settings, and lets save() put it there.
    void restore();
    void save(NumberBase base) const;

    /// Gives the splitter's first part @p width, unless the user has placed the splitter.
    void suggestWidth(int width);

private:
    QWidget* m_window;
    QSplitter* m_splitter;
    bool m_isKept = false;
    bool m_splitterIsPlaced = false; ///< by the user; until then it suits the device
};

} // namespace registers
