// SPDX-License-Identifier: MIT
#include "window/WorkSteps.h"

#include "look/Theme.h"

#include <QEvent>
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
/// and colours that can be read on a light desktop and on a dark one, which the library's cannot.
QString barRules(const QPalette& palette)
{
    QFile library(QStringLiteral(":/qss/Tessera.qss"));
    const QByteArray rules = library.open(QIODevice::ReadOnly) ? library.readAll() : QByteArray();
    return QString::fromUtf8(rules) +
           QStringLiteral("nsUI--CStepBar QCheckBox::indicator{border:none;background:none;}"
                          "nsUI--CStepBar QCheckBox:checked{color:%1;}"
                          "nsUI--CStepBar QCheckBox:unchecked{color:palette(window-text);}"
                          "nsUI--CStepBar QCheckBox:hover{color:%2;}"
                          "nsUI--CStepBar QCheckBox:disabled{color:palette(mid);}"
                          "nsUI--CStepBar QCheckBox{padding:0px 4px;}")
               .arg(accentColor(palette, Accent::Current).name(), accentColor(palette, Accent::Changed).name());
}

} // namespace

WorkSteps::WorkSteps(QWidget* parent)
    : nsUI::CStepBar(parent)
{
    initializeIcons();
    layout()->setContentsMargins(0, 0, kEndMargin, 0);
    updateRules();
    addStep(QStringList{tr("Open"), tr("Edit"), tr("Review"), tr("Save")});
    setStepEnabled(true);
}

void WorkSteps::changeEvent(QEvent* event)
{
    nsUI::CStepBar::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        updateRules();
    }
}

void WorkSteps::updateRules()
{
    const QString rules = barRules(palette());
    if (rules != styleSheet()) {
        setStyleSheet(rules);
    }
}

} // namespace registers
