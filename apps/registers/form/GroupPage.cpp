// SPDX-License-Identifier: MIT
#include "form/GroupPage.h"

#include "device/DeviceState.h"
#include "form/FactsLine.h"
#include "form/Heading.h"
#include "text/Numbers.h"

#include <QVBoxLayout>

namespace registers {

namespace {

constexpr int kFormMargin = 16;

} // namespace

GroupPage::GroupPage(const DeviceState& state, int node, QWidget* parent)
    : QWidget(parent)
{
    const Node& shown = state.device().node(node);
    auto* heading = new Heading({state.device().nodePath(node), shown.name, shown.description, {}}, this);
    heading->facts()->addFact(tr("Address"), addressText(shown.address), FactsLine::Kind::Number);
    heading->facts()->addFact(tr("Kind"), shown.kind == NodeKind::Cluster ? tr("cluster") : tr("peripheral"),
                              FactsLine::Kind::Text);
    heading->facts()->addFact(tr("Registers"), QString::number(shown.registerCount), FactsLine::Kind::Text);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(kFormMargin, kFormMargin, kFormMargin, kFormMargin);
    layout->addWidget(heading);
    layout->addStretch();
}

} // namespace registers
