// SPDX-License-Identifier: MIT
#pragma once

#include "text/NumberText.h"

#include <QWidget>

namespace registers {

/// An editor for an unsigned number of 1 to 64 bits. What is set is shown and told to nobody; what the user does
/// is told by valueEdited().
class ValueEditor : public QWidget
{
    Q_OBJECT

public:
    explicit ValueEditor(QWidget* parent = nullptr);

    virtual quint64 value() const = 0;
    /// Shows @p value. A text that is being typed stays, unless the value differs from the one shown before.
    virtual void setValue(quint64 value) = 0;
    virtual void setBase(NumberBase base) = 0;

    /// For the content and what is in it: undo and redo are the window's, over all values, not those of one text.
    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The user has set another value.
    void valueEdited(quint64 value);

protected:
    /// Lays @p editor out as the only content and gives it the focus that this widget gets.
    void setContent(QWidget* editor);
};

} // namespace registers
