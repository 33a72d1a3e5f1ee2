// SPDX-License-Identifier: MIT
#include "gui/LoadBar.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace registers {

namespace {

constexpr int kSteps = 1000;
constexpr int kBarWidth = 260;

} // namespace

LoadBar::LoadBar(QWidget* parent)
    : QWidget(parent)
    , m_label(new QLabel(this))
    , m_bar(new QProgressBar(this))
{
    auto* cancel = new QPushButton(tr("Cancel"), this);
    cancel->setObjectName(QStringLiteral("cancelLoading"));
    m_bar->setMinimumWidth(kBarWidth);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_label);
    layout->addWidget(m_bar, 1);
    layout->addWidget(cancel);
    connect(cancel, &QPushButton::clicked, this, &LoadBar::cancelClicked);
}

void LoadBar::start(const QString& fileName)
{
    m_label->setText(tr("Reading %1").arg(QFileInfo(fileName).fileName()));
    m_bar->setRange(0, 0);
}

void LoadBar::setProgress(qint64 done, qint64 total)
{
    if (total > 0) {
        m_bar->setRange(0, kSteps);
        m_bar->setValue(static_cast<int>(qMin(done, total) * kSteps / total));
    }
}

} // namespace registers
