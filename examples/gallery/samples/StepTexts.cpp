// SPDX-License-Identifier: MIT
#include "samples/StepTexts.h"

#include "gui/ChangeWatcher.h"
#include "gui/Host.h"

#include <Tessera/widgets/CStepBar.h>

#include <QCheckBox>
#include <QCoreApplication>
#include <QLayout>

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

bool isHorizontal(const nsUI::CStepBar* bar)
{
    const auto direction =
        static_cast<QBoxLayout*>(bar->layout())->direction();
    return direction == QBoxLayout::LeftToRight ||
           direction == QBoxLayout::RightToLeft;
}

//! [mirror]
/// A mirrored window mirrors the places of the steps, but not their
/// arrows: the bar is kept from being mirrored, and laid out the other way
/// round instead.
void updateDirection(nsUI::CStepBar* bar, Qt::LayoutDirection reading)
{
    bar->setLayoutDirection(Qt::LeftToRight);
    bar->setDirection(reading == Qt::RightToLeft ? QBoxLayout::RightToLeft
                                                 : QBoxLayout::LeftToRight);
}
//! [mirror]

void watchDirection(nsUI::CStepBar* bar)
{
    const auto apply = [bar] {
        updateDirection(bar, Host::instance().look().direction);
    };
    apply();
    QObject::connect(&Host::instance(), &Host::lookChanged, bar, apply);
}

} // namespace

QStringList stepTexts()
{
    return {Words::tr("Connect"), Words::tr("Read"), Words::tr("Edit"),
            Words::tr("Write")};
}

void followWindow(nsUI::CStepBar* bar)
{
    retranslate(bar, [bar] { updateTexts(bar); });
    if (isHorizontal(bar)) {
        watchDirection(bar);
    }
}

} // namespace gallery
