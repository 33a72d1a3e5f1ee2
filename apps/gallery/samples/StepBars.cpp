// SPDX-License-Identifier: MIT
#include "samples/Samples.h"
#include "samples/StepTexts.h"

#include <Tessera/widgets/CStepBar.h>

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace gallery {

namespace {

constexpr int kColumnHeight = 150;

} // namespace

QWidget* makeSteps()
{
    //! [steps]
    auto* bar = new nsUI::CStepBar;
    bar->addStep(stepTexts()); // Connect, Read, Edit, Write
    bar->slotSetCurrentStep(1);
    //! [steps]
    followLanguage(bar);
    return bar;
}

QWidget* makeClickableSteps()
{
    //! [clicks]
    auto* bar = new nsUI::CStepBar;
    bar->addStep(stepTexts());
    bar->setStepEnabled(true);
    bar->setStepEnabled(3, false); // not yet
    bar->slotSetCurrentStep(0);
    QObject::connect(bar, &nsUI::CStepBar::sigStepClicked, bar,
                     &nsUI::CStepBar::slotSetCurrentStep);
    //! [clicks]
    followLanguage(bar);
    return bar;
}

QWidget* makeAlignedSteps()
{
    auto* sample = new QWidget;
    auto* layout = new QVBoxLayout(sample);
    layout->setContentsMargins(0, 0, 0, 0);
    for (const auto alignment :
         {nsUI::CStepBar::AlignStart, nsUI::CStepBar::AlignCenter,
          nsUI::CStepBar::AlignEnd}) {
        //! [alignment]
        auto* bar = new nsUI::CStepBar;
        bar->addStep(stepTexts());
        bar->setAlignment(alignment); // once, behind the last step
        bar->slotSetCurrentStep(2);
        //! [alignment]
        followLanguage(bar);
        layout->addWidget(bar);
    }
    return sample;
}

QWidget* makeVerticalSteps()
{
    auto* sample = new QWidget;
    auto* layout = new QHBoxLayout(sample);
    layout->setContentsMargins(0, 0, 0, 0);
    for (const auto direction :
         {QBoxLayout::TopToBottom, QBoxLayout::BottomToTop}) {
        //! [vertical]
        auto* bar = new nsUI::CStepBar;
        bar->setDirection(direction);
        bar->addStep(stepTexts());
        bar->setStepEnabled(true);
        bar->slotSetCurrentStep(1);
        //! [vertical]
        QObject::connect(bar, &nsUI::CStepBar::sigStepClicked, bar,
                         &nsUI::CStepBar::slotSetCurrentStep);
        followLanguage(bar);
        layout->addWidget(bar);
    }
    sample->setMinimumHeight(kColumnHeight);
    return sample;
}

QWidget* makeUnmirroredSteps()
{
    //! [unmirrored]
    auto* bar = new nsUI::CStepBar;
    bar->addStep(stepTexts());
    bar->setLayoutDirection(Qt::LeftToRight); // whatever the window's is
    //! [unmirrored]
    followLanguage(bar);
    bar->slotSetCurrentStep(1);
    return bar;
}

} // namespace gallery
