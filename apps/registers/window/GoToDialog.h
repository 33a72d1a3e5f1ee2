// SPDX-License-Identifier: MIT
#pragma once

#include <Tessera/widgets/CustomInputDlg.h>

#include <optional>

namespace registers {

class NumberBox;

/// Asks for an address.
class GoToDialog : public nsUI::CustomInputDlg
{
    Q_OBJECT

public:
    explicit GoToDialog(QWidget* parent = nullptr);

    quint64 address() const;
    void setAddress(quint64 address);

    /// The address that the user gives, who is offered @p present. Nothing when there is none.
    static std::optional<quint64> ask(quint64 present, QWidget* parent);

private:
    NumberBox* m_address;
};

} // namespace registers
