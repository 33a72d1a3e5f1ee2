// SPDX-License-Identifier: MIT
#include "pages/DialogLauncher.h"

#include "pages/DialogCatalog.h"

#include <QDialog>

#include <memory>

namespace gallery {

QString openDialog(const QString& name, QWidget* parent)
{
    const DialogEntry& entry = dialogNamed(name);
    const std::unique_ptr<QDialog> dialog(entry.make(parent));
    if (entry.start) {
        entry.start(dialog.get());
    }
    const bool isAccepted = dialog->exec() == QDialog::Accepted;
    return isAccepted && entry.outcome ? entry.outcome(dialog.get()) : QString();
}

} // namespace gallery
