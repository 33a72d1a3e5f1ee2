// SPDX-License-Identifier: MIT
#include "samples/Samples.h"

#include <Tessera/CISpinBox/CU16SpinBox.h>
#include <Tessera/widgets/CScrollWdg.h>

#include <QFormLayout>

namespace gallery {

QWidget* makeScrollWidget()
{
    constexpr int kRows = 8;
    //! [scroll]
    auto* form = new QWidget;
    auto* rows = new QFormLayout(form);
    for (int i = 0; i < kRows; ++i) {
        auto* box = new nsUI::CU16SpinBox;
        rows->addRow(QStringLiteral("CH%1").arg(i), box);
    }

    auto* area = new nsUI::CScrollWdg;
    area->setWidget(form);
    area->setWidthAdaptiveType(nsUI::CScrollWdg::AdaptiveViewport);
    //! [scroll]
    area->setFixedHeight(140);
    return area;
}

} // namespace gallery
