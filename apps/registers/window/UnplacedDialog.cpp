// SPDX-License-Identifier: MIT
#include "window/UnplacedDialog.h"

#include "device/DeviceImport.h"
#include "look/Theme.h"

#include <Tessera/widgets/CustomTextBrowser.h>

#include <QPushButton>

namespace registers {

namespace {

constexpr QSize kSize(640, 360);

} // namespace

UnplacedDialog::UnplacedDialog(const QString& fileName, const ImportResult& result, const QString& otherDevice,
                               QWidget* parent)
    : nsUI::CMessageDlg(parent)
{
    setWindowTitle(tr("Load Values"));
    resize(kSize);
    if (!otherDevice.isEmpty()) {
        appendPlain(tr("%1 was made for the device %2.").arg(fileName, otherDevice), QColor());
    }
    if (!result.unplaced.isEmpty()) {
        appendPlain(tr("Registers of %1 that cannot be set in this device: %2")
                        .arg(fileName, QString::number(result.unplaced.size())),
                    QColor());
    }
    for (const Unplaced& one : result.unplaced) {
        appendPlain(unplacedText({one}), accentColor(palette(), Accent::Caution));
    }
    textBrowser()->moveCursor(QTextCursor::Start);

    QPushButton* dismiss = button(QDialogButtonBox::Ok);
    dismiss->setText(tr("&Set Nothing"));
    dismiss->setDefault(true);
    if (!result.values.isEmpty()) {
        auto* others = new QPushButton(
            (result.unplaced.isEmpty() ? tr("Set &All %1") : tr("Set the &Other %1")).arg(result.values.size()));
        others->setObjectName(QStringLiteral("setOthers"));
        buttonBox()->addButton(others, QDialogButtonBox::YesRole);
        // The dialog closes with one answer whatever is clicked.
        connect(others, &QPushButton::clicked, this, [this] {
            m_agreed = true;
            close();
        });
    }
}

void UnplacedDialog::appendPlain(const QString& text, const QColor& color)
{
    appendColorText(text.toHtmlEscaped(), color);
}

bool UnplacedDialog::ask()
{
    m_agreed = false;
    exec();
    return m_agreed;
}

} // namespace registers
