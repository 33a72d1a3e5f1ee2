// SPDX-License-Identifier: MIT
#include "host/ChangeWatcher.h"
#include "host/Host.h"
#include "samples/Samples.h"

#include <Tessera/widgets/CAutoCursor.h>

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QPushButton>
#include <QThread>

namespace gallery {

namespace {

constexpr unsigned long kWork = 1000; // ms

//! [cursor]
void work()
{
    const nsUI::CAutoCursor cursor(Qt::WaitCursor);
    QThread::msleep(kWork);
}
//! [cursor]

} // namespace

QWidget* makeWaitCursor()
{
    auto* sample = new QWidget;
    auto* button = new QPushButton;
    retranslate(button, [button] {
        button->setText(Words::tr("&Work for a second"));
    });
    QObject::connect(button, &QPushButton::clicked, button, &work);
    auto* layout = new QHBoxLayout(sample);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(button);
    layout->addStretch(1);
    return sample;
}

} // namespace gallery
