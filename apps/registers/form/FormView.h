// SPDX-License-Identifier: MIT
#pragma once

#include "text/NumberText.h"

#include <Tessera/widgets/CScrollWdg.h>

namespace registers {

class DeviceEdits;
class RegisterForm;

/// Shows the form of one register, or the page of one peripheral or cluster, and scrolls it up and down. It is never
/// narrower than what it shows.
class FormView : public nsUI::CScrollWdg
{
    Q_OBJECT

public:
    explicit FormView(QWidget* parent = nullptr);

    /// Shows a node of the device; @p edits must live as long as it is shown.
    void showNode(DeviceEdits& edits, int node);
    /// Marks a field of the shown register and scrolls to it; -1 marks none.
    void markField(int fieldIndex);
    /// Marks a field as markField() does, and gives it the focus.
    void showField(int fieldIndex);
    /// Shows nothing.
    void clear();

    /// The form that is shown, or null.
    RegisterForm* form() const { return m_form; }

    NumberBase fieldBase() const { return m_fieldBase; }
    void setFieldBase(NumberBase base);

Q_SIGNALS:
    void fieldBaseChanged(NumberBase base);

private:
    void setContent(QWidget* content);

    RegisterForm* m_form = nullptr;
    NumberBase m_fieldBase = NumberBase::Hexadecimal;
};

} // namespace registers
