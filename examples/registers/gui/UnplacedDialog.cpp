// SPDX-License-Identifier: MIT
#include "gui/UnplacedDialog.h"

#include "device/DeviceImport.h"
#include "gui/Theme.h"

#include <Tessera/widgets/CustomTextBrowser.h>

#include <QPushButton>

namespace registers {

namespace {

constexpr QSize kSize(640, 360);

} // namespace

UnplacedDialog::UnplacedDialog(const QString& fileName, const ImportResult& result, QWidget* parent)
    : nsUI::CMessageDlg(parent)
{
    setWindowTitle(tr("Load Values"));
    resize(kSize);
    const QString count = tr("Registers of %1 that cannot be set in this device: %2");
    appendColorText(count.arg(fileName).arg(result.unplaced.size()).toHtmlEscaped(), QColor());
    for (const Unplaced& one : result.unplaced) {
        appendColorText(unplacedText({one}).toHtmlEscaped(), accentColor(palette(), Accent::Caution));
    }
    textBrowser()->moveCursor(QTextCursor::Start);

    QPushButton* dismiss = button(QDialogButtonBox::Ok);
    dismiss->setText(tr("&Set Nothing"));
    dismiss->setDefault(true);
    if (!result.values.isEmpty()) {
        auto* others = new QPushButton(tr("Set the &Other %1").arg(result.values.size()));
        others->setObjectName(QStringLiteral("setOthers"));
        buttonBox()->addButton(others, QDialogButtonBox::YesRole);
        // The dialog closes with one answer whatever is clicked.
        connect(others, &QPushButton::clicked, this, [this] {
            m_agreed = true;
            close();
        });
    }
}

bool UnplacedDialog::ask()
{
    m_agreed = false;
    exec();
    return m_agreed;
}

} // namespace registers
