// SPDX-License-Identifier: MIT
#include "pages/DialogSample.h"

#include "cards/TextLabel.h"
#include "host/ChangeWatcher.h"
#include "host/Host.h"
#include "pages/DialogCatalog.h"
#include "pages/DialogLauncher.h"
#include "pages/DialogPicture.h"

#include <QHBoxLayout>
#include <QPushButton>

namespace gallery {

DialogSample::DialogSample(const QString& name, QWidget* parent)
    : QWidget(parent)
    , m_name(name)
    , m_button(new QPushButton)
    , m_outcome(new TextLabel(QString()))
{
    m_button->setObjectName(QStringLiteral("open_") + name);
    retranslate(m_button, [this] { m_button->setText(text(dialogNamed(m_name).openingText)); });
    connect(m_button, &QPushButton::clicked, this, &DialogSample::open);

    auto* row = new QHBoxLayout;
    row->addWidget(m_button);
    row->addWidget(m_outcome, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new DialogPicture(name));
    layout->addLayout(row);
}

void DialogSample::open()
{
    const QString outcome = openDialog(m_name, window());
    if (!outcome.isEmpty()) {
        m_outcome->setFixedText(outcome);
    }
}

} // namespace gallery
