// SPDX-License-Identifier: MIT
#include "window/WorkSteps.h"

#include <QFile>
#include <QLayout>

// Has to be called from the global namespace; a static library's resources are not there by themselves.
static void initializeIcons()
{
    Q_INIT_RESOURCE(registers_icons);
}

namespace registers {

namespace {

constexpr int kEndMargin = 8;

/// The library's rules for the bar; nothing at all for an indicator without a size, of which some styles leave a dot;
/// and the palette's colours for what is not the current step: they suit a dark desktop too.
QString barRules()
{
    QFile library(QStringLiteral(":/qss/Tessera.qss"));
    const QByteArray rules = library.open(QIODevice::ReadOnly) ? library.readAll() : QByteArray();
    return QString::fromUtf8(rules) + QStringLiteral("nsUI--CStepBar QCheckBox::indicator{border:none;background:none;}"
                                                     "nsUI--CStepBar QCheckBox:unchecked{color:palette(window-text);}"
                                                     "nsUI--CStepBar QCheckBox:disabled{color:palette(mid);}"
                                                     "nsUI--CStepBar QCheckBox{padding:0px 4px;}");
}

} // namespace

WorkSteps::WorkSteps(QWidget* parent)
    : nsUI::CStepBar(parent)
{
    initializeIcons();
    layout()->setContentsMargins(0, 0, kEndMargin, 0);
    setStyleSheet(barRules());
    addStep(QStringList{tr("Open"), tr("Edit"), tr("Review"), tr("Save")});
    setStepEnabled(true);
}

} // namespace registers
