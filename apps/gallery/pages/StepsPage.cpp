// SPDX-License-Identifier: MIT
#include "pages/Page.h"
#include "pages/Pages.h"
#include "samples/Samples.h"

#include <QCoreApplication>

namespace gallery {

Page* makeStepsPage()
{
    auto* page = new Page;
    page->addCard({QStringLiteral("CStepBar"),
                   QT_TRANSLATE_NOOP("gallery", "Named steps with arrows between them, for pages that are gone through "
                                                "in order. A new bar only shows where one is."),
                   {QStringLiteral("StepBars.cpp"), QStringLiteral("steps")},
                   QT_TRANSLATE_NOOP("gallery", "The arrows are the host's, :/svg/primary/arrow-forward.svg and its "
                                                "three sisters. The boxes in front of the steps are hidden by the "
                                                "library's style sheet: choose None above to see them. The library's "
                                                "colours suit a light window; the gallery's sheet has some for a dark "
                                                "one, too, and tells apart what can be clicked.")},
                  makeSteps());
    page->addCard(
        {QStringLiteral("CStepBar::sigStepClicked()"),
         QT_TRANSLATE_NOOP("gallery", "Steps can be clicked when they are enabled, all of them or one by one. "
                                      "The bar reports the click; whether to move is the host's decision."),
         {QStringLiteral("StepBars.cpp"), QStringLiteral("clicks")}},
        makeClickableSteps());
    page->addCard({QStringLiteral("CStepBar::setAlignment()"),
                   QT_TRANSLATE_NOOP("gallery", "The steps stand at the start, in the middle or at the end."),
                   {QStringLiteral("StepBars.cpp"), QStringLiteral("alignment")},
                   QT_TRANSLATE_NOOP("gallery", "Set the alignment once, when all steps are in: the bar goes on "
                                                "counting places as in a centred one.")},
                  makeAlignedSteps());
    page->addCard({QStringLiteral("CStepBar::setDirection()"),
                   QT_TRANSLATE_NOOP("gallery", "Downwards and upwards, with arrows that point there."),
                   {QStringLiteral("StepBars.cpp"), QStringLiteral("vertical")}},
                  makeVerticalSteps());
    page->addCard({QStringLiteral("CStepBar, QWidget::setLayoutDirection()"),
                   QT_TRANSLATE_NOOP("gallery", "A window that is read from right to left mirrors its bars, arrows and "
                                                "all: tick Right to left above. This one has a direction of its own."),
                   {QStringLiteral("StepBars.cpp"), QStringLiteral("unmirrored")}},
                  makeUnmirroredSteps());
    return page;
}

} // namespace gallery
