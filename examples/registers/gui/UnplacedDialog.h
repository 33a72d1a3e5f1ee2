// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

namespace registers {

struct ImportResult;

/// Names every register of a file that has no place in the device, and asks whether to set the others.
class UnplacedDialog : public QDialog
{
    Q_OBJECT

public:
    UnplacedDialog(const QString& fileName, const ImportResult& result, QWidget* parent = nullptr);

    /// Runs the dialog. True when the others shall be set; false at once when there are none.
    bool ask();

private:
    bool m_hasOthers;
};

} // namespace registers
