// SPDX-License-Identifier: MIT
#pragma once

#include <Tessera/widgets/CMessageDlg.h>

namespace registers {

struct ImportResult;

/// Names every register of a file that has no place in the device, and asks whether to set the others.
class UnplacedDialog : public nsUI::CMessageDlg
{
    Q_OBJECT

public:
    UnplacedDialog(const QString& fileName, const ImportResult& result, QWidget* parent = nullptr);

    /// Runs the dialog. True when there are others, and they shall be set.
    bool ask();

private:
    bool m_agreed = false;
};

} // namespace registers
