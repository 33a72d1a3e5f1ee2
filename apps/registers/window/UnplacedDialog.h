// SPDX-License-Identifier: MIT
#pragma once

#include <Tessera/widgets/CMessageDlg.h>

namespace registers {

struct ImportResult;

/// Names every register of a file that has no place in the device, and the device that the file was made for when that
/// is another one. Asks whether to set what has its place.
class UnplacedDialog : public nsUI::CMessageDlg
{
    Q_OBJECT

public:
    /// @p otherDevice is empty for a file that was made for the device that is open.
    UnplacedDialog(const QString& fileName, const ImportResult& result, const QString& otherDevice,
                   QWidget* parent = nullptr);

    /// Runs the dialog. True when there is something to set, and it shall be set.
    bool ask();

private:
    void appendPlain(const QString& text, const QColor& color);

    bool m_agreed = false;
};

} // namespace registers
