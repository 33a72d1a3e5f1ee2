// SPDX-License-Identifier: MIT
#include "window/LoadDialog.h"

#include <QFileInfo>
#include <QKeyEvent>
#include <QPushButton>

namespace registers {

namespace {

constexpr int kSteps = 1000;
constexpr QSize kSize(380, 120);

} // namespace

LoadDialog::LoadDialog(QWidget* parent)
    : nsUI::CProgressDlg(parent)
{
    QPushButton* cancel = button(QDialogButtonBox::Cancel);
    cancel->setObjectName(QStringLiteral("cancelLoading"));
    connect(cancel, &QPushButton::clicked, this, &LoadDialog::cancelled);
    resize(kSize);
}

void LoadDialog::start(const QString& fileName)
{
    const QString name = QFileInfo(fileName).fileName();
    setWindowTitle(tr("Opening %1").arg(name));
    setText(tr("Reading %1").arg(name));
    setMinimum(0);
    setMaximum(0);
    show();
}

void LoadDialog::setProgress(qint64 done, qint64 total)
{
    if (total > 0) {
        setMaximum(kSteps);
        setValue(static_cast<int>(qMin(done, total) * kSteps / total));
    }
}

void LoadDialog::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Cancel)) {
        Q_EMIT cancelled();
    } else {
        QDialog::keyPressEvent(event); // the base class would hand the key back to this function
    }
}

} // namespace registers
