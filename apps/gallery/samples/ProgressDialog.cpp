// SPDX-License-Identifier: MIT
#include "host/Host.h"
#include "samples/DialogSamples.h"

#include <Tessera/widgets/CProgressDlg.h>

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QTimer>

namespace gallery {

namespace {

constexpr int kTick = 40; // ms
constexpr int kShown = 40;

//! [progress]
/// Keeps all keys but Escape from the library's dialog.
class ProgressDialog : public nsUI::CProgressDlg
{
public:
    using nsUI::CProgressDlg::CProgressDlg;

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->matches(QKeySequence::Cancel)) {
            nsUI::CProgressDlg::keyPressEvent(event);
        } else {
            QDialog::keyPressEvent(event);
        }
    }
};
//! [progress]

} // namespace

QDialog* makeProgressDialog(QWidget* parent)
{
    //! [progress]

    auto* dialog = new ProgressDialog(parent);
    dialog->setWindowTitle(Words::tr("Download"));
    dialog->setText(Words::tr("Writing registers…"));
    dialog->setValue(kShown);
    QObject::connect(dialog->buttonBox(), &QDialogButtonBox::rejected, dialog,
                     &QDialog::reject);
    //! [progress]
    dialog->resize(320, dialog->sizeHint().height());
    return dialog;
}

void startProgress(QDialog* dialog)
{
    auto* progress = static_cast<nsUI::CProgressDlg*>(dialog);
    progress->setValue(0);
    auto* timer = new QTimer(dialog);
    QObject::connect(timer, &QTimer::timeout, dialog, [progress] {
        progress->addValue(1);
        if (progress->value() == 100) {
            progress->accept();
        }
    });
    timer->start(kTick);
}

} // namespace gallery
