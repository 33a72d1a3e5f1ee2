// SPDX-License-Identifier: MIT
#pragma once

#include "text/NumberText.h"

#include <QByteArray>
#include <QFont>
#include <QSharedPointer>

#include <optional>

QT_BEGIN_NAMESPACE
class QSettings;
class QWidget;
QT_END_NAMESPACE

namespace registers {

/// What the window keeps from one run to the next.
class Settings
{
public:
    Settings();

    QByteArray windowGeometry() const;
    void setWindowGeometry(const QByteArray& geometry);

    QByteArray splitterState() const;
    void setSplitterState(const QByteArray& state);

    /// The font that the user has chosen; nothing when none was.
    std::optional<QFont> chosenFont() const;

    /// Hexadecimal when nothing, or nothing useful, is stored.
    NumberBase fieldBase() const;
    void setFieldBase(NumberBase base);

private:
    QSharedPointer<QSettings> m_store;
};

/// Gives the application the font that the user has chosen, if one was.
void useChosenFont();

/// Asks for a font, and gives it to the application.
void chooseFont(QWidget* parent);

} // namespace registers
