// SPDX-License-Identifier: MIT
#pragma once

#include <Tessera/widgets/CProgressDlg.h>

namespace registers {

/// How far the reading of a file has come. Its button and the Escape key ask to end it.
class LoadDialog : public nsUI::CProgressDlg
{
    Q_OBJECT

public:
    explicit LoadDialog(QWidget* parent = nullptr);

    void start(const QString& fileName);
    void setProgress(qint64 done, qint64 total);

Q_SIGNALS:
    void cancelled();

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace registers
