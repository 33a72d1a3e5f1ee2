// SPDX-License-Identifier: MIT
#include "host/Host.h"
#include "samples/DialogSamples.h"

#include <Tessera/Tessera.h>
#include <Tessera/widgets/FontSettingDlg.h>

#include <QLabel>

namespace gallery {

QDialog* makeFontDialog(QWidget* parent)
{
    //! [font]
    auto* dialog = new nsUI::FontSettingDlg(parent);
    auto* example = new QLabel(QStringLiteral("0x1A2B 0O 1lI\n寄存器 αβγ"));
    example->setAlignment(Qt::AlignCenter);
    dialog->setExampleWdg(example);
    //! [font]
    return dialog;
}

QString fontOutcome(QDialog*)
{
    //! [font]
    // ... and when it was accepted, which stored the font:
    Host::instance().reloadSheets(); // calls TesseraGlobal::loadStyleSheet()
    //! [font]
    const QFont font = nsUI::TesseraGlobal::instance().getCurrentAppFont();
    return QStringLiteral("%1, %2 pt")
        .arg(font.family())
        .arg(font.pointSize());
}

} // namespace gallery
