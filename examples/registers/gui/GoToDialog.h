// SPDX-License-Identifier: MIT
#pragma once

#include <Tessera/widgets/CustomInputDlg.h>

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

private:
    NumberBox* m_address;
};

} // namespace registers
