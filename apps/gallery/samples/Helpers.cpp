// SPDX-License-Identifier: MIT
#include "cards/Captioned.h"
#include "cards/TextLabel.h"
#include "host/ChangeWatcher.h"
#include "host/Host.h"
#include "samples/LogColors.h"
#include "samples/Samples.h"

#include <Tessera/services/CWheelGuard.h>
#include <Tessera/Tessera.h>

#include <QComboBox>
#include <QCoreApplication>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSlider>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace gallery {

namespace {

constexpr int kBrowserHeight = 64;

QWidget* besideSpace(QWidget* widget)
{
    auto* sample = new QWidget;
    auto* layout = new QHBoxLayout(sample);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(widget);
    layout->addStretch(1);
    return sample;
}

} // namespace

QWidget* makeToolTips()
{
    auto* sample = new Captioned;
    //! [tips]
    auto* edit = new QLineEdit(QStringLiteral("/dev/ttyUSB0"));
    nsUI::TesseraGlobal::instance().autoSetToolTips(edit, QString());
    //! [tips]
    auto* tip = new TextLabel(edit->toolTip());
    ChangeWatcher::watch(edit, {QEvent::ToolTipChange},
                         [edit, tip] { tip->setFixedText(edit->toolTip()); });
    sample->add(QT_TRANSLATE_NOOP("gallery", "Port"), edit);
    sample->add(QT_TRANSLATE_NOOP("gallery", "Its tool tip"), tip);
    return sample;
}

QWidget* makeStyledWidgets()
{
    auto* sample = new Captioned;
    auto* bar = new QProgressBar;
    bar->setValue(60);
    auto* names = new TextLabel(QString(), TextLabel::Wrapped);
    const auto update = [names] {
        const QStringList sheets = Host::instance().sheetFiles();
        names->setFixedText(sheets.isEmpty()
                                ? QStringLiteral("–")
                                : sheets.join(QStringLiteral(", ")));
    };
    update();
    QObject::connect(&Host::instance(), &Host::lookChanged, names, update);
    sample->add(QT_TRANSLATE_NOOP("gallery", "Loaded"), names);
    sample->add(QT_TRANSLATE_NOOP("gallery", "Progress"), bar);
    return sample;
}

QWidget* makeFontInfo()
{
    auto* sample = new Captioned;
    auto* label = new TextLabel(QString(), TextLabel::Wrapped);
    const auto update = [label] {
        //! [font]
        const auto& library = nsUI::TesseraGlobal::instance();
        const QFont font = library.getCurrentAppFont();
        //! [font]
        label->setFixedText(QStringLiteral("%1, %2 pt")
                                .arg(font.family())
                                .arg(font.pointSize()));
    };
    update();
    ChangeWatcher::watch(label, {QEvent::FontChange, QEvent::StyleChange},
                         update);
    sample->add(QT_TRANSLATE_NOOP("gallery", "In force"), label);
    return sample;
}

QWidget* makeResizing()
{
    auto* button = new QPushButton;
    retranslate(button, [button] {
        button->setText(Words::tr("F&our fifths of the screen"));
    });
    QObject::connect(button, &QPushButton::clicked, button, [button] {
        //! [resize]
        nsUI::TesseraGlobal::resize(button->window(), 0.8, 0.8);
        //! [resize]
    });
    return besideSpace(button);
}

QWidget* makeGuardedBoxes()
{
    auto* sample = new Captioned;
    //! [guard]
    auto* rate = new QComboBox;
    rate->addItems({QStringLiteral("9600"), QStringLiteral("115200")});
    auto* brightness = new QSlider(Qt::Horizontal);
    // All that is in the sample, or will be; or the whole qApp.
    new nsUI::CWheelGuard(sample);
    //! [guard]
    sample->add(QT_TRANSLATE_NOOP("gallery", "Rate"), rate);
    sample->add(QT_TRANSLATE_NOOP("gallery", "Brightness"), brightness);
    return sample;
}

QWidget* makeSmallHelpers()
{
    auto* sample = new QWidget;
    auto* layout = new QVBoxLayout(sample);
    layout->setContentsMargins(0, 0, 0, 0);
    //! [helpers]
    auto* parity = new QComboBox;
    parity->addItem(QStringLiteral("N"), 0);
    parity->addItem(QStringLiteral("E"), 2);
    nsUI::TesseraGlobal::setCbxCurrentData(parity, 2);

    auto* log = new QTextBrowser;
    nsUI::TesseraGlobal::appendTextBrowserColor(
        log, QStringLiteral("0x00 OK"), successColor());
    //! [helpers]
    QObject::connect(&Host::instance(), &Host::lookChanged, log, [log] {
        log->clear();
        nsUI::TesseraGlobal::appendTextBrowserColor(
            log, QStringLiteral("0x00 OK"), successColor());
    });
    log->setFixedHeight(kBrowserHeight);
    layout->addWidget(parity);
    layout->addWidget(log);
    return sample;
}

} // namespace gallery
