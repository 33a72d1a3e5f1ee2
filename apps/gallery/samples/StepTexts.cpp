// SPDX-License-Identifier: MIT
#include "samples/StepTexts.h"

#include "host/ChangeWatcher.h"
#include "host/Host.h"

#include <Tessera/widgets/CStepBar.h>

#include <QCheckBox>
#include <QCoreApplication>

namespace gallery {

namespace {

/// A bar has no operation that changes a step's text; its steps are check boxes, and children in their order.
void updateTexts(nsUI::CStepBar* bar)
{
    const QStringList texts = stepTexts();
    const QList<QCheckBox*> boxes = bar->findChildren<QCheckBox*>();
    for (int i = 0; i < boxes.size() && i < texts.size(); ++i) {
        boxes.at(i)->setText(texts.at(i));
    }
}

} // namespace

QStringList stepTexts()
{
    return {Words::tr("Connect"), Words::tr("Read"), Words::tr("Edit"),
            Words::tr("Write")};
}

void followLanguage(nsUI::CStepBar* bar)
{
    retranslate(bar, [bar] { updateTexts(bar); });
}

} // namespace gallery
