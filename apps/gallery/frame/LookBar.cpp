// SPDX-License-Identifier: MIT
#include "frame/LookBar.h"

#include "host/ChangeWatcher.h"
#include "host/Host.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>

namespace gallery {

namespace {

constexpr int kMargin = 6;
constexpr int kGap = 18;

} // namespace

LookBar::LookBar(QWidget* parent)
    : QToolBar(parent)
    , m_language(new QComboBox)
    , m_sheet(new QComboBox)
    , m_dark(new QCheckBox)
    , m_mirrored(new QCheckBox)
    , m_font(new QPushButton)
{
    initUI();
    updateTexts();
    showLook();
    initConnect();
}

void LookBar::initUI()
{
    setObjectName(QStringLiteral("lookBar"));
    setMovable(false);
    setContextMenuPolicy(Qt::PreventContextMenu);
    m_language->setObjectName(QStringLiteral("language"));
    m_language->addItems({QStringLiteral("English"), QStringLiteral("简体中文")});
    m_sheet->setObjectName(QStringLiteral("sheet"));
    m_sheet->addItems({QString(), QString(), QString()});
    m_dark->setObjectName(QStringLiteral("dark"));
    m_mirrored->setObjectName(QStringLiteral("mirrored"));
    m_font->setObjectName(QStringLiteral("font"));

    auto* content = new QWidget;
    auto* layout = new QHBoxLayout(content);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    addBox(layout, m_language, QT_TRANSLATE_NOOP("gallery", "&Language:"));
    addBox(layout, m_sheet, QT_TRANSLATE_NOOP("gallery", "&Style sheet:"));
    layout->addWidget(m_dark);
    layout->addSpacing(kGap);
    layout->addWidget(m_mirrored);
    layout->addSpacing(kGap);
    layout->addWidget(m_font);
    layout->addStretch(1);
    addWidget(content);
}

void LookBar::addBox(QHBoxLayout* layout, QComboBox* box, const char* caption)
{
    auto* label = new QLabel;
    label->setBuddy(box);
    retranslate(label, [label, caption] { label->setText(gallery::text(caption)); });
    box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    layout->addWidget(label);
    layout->addWidget(box);
    layout->addSpacing(kGap);
}

void LookBar::initConnect()
{
    connect(m_language, qOverload<int>(&QComboBox::activated), this,
            [](int place) { Host::instance().setLanguage(static_cast<Language>(place)); });
    connect(m_sheet, qOverload<int>(&QComboBox::activated), this,
            [](int place) { Host::instance().setSheet(static_cast<Sheet>(place)); });
    connect(m_dark, &QCheckBox::toggled, this,
            [](bool isOn) { Host::instance().setShade(isOn ? Shade::Dark : Shade::Light); });
    connect(m_mirrored, &QCheckBox::toggled, this,
            [](bool isOn) { Host::instance().setDirection(isOn ? Qt::RightToLeft : Qt::LeftToRight); });
    connect(m_font, &QPushButton::clicked, this, &LookBar::fontRequested);
    connect(&Host::instance(), &Host::lookChanged, this, &LookBar::showLook);
}

void LookBar::changeEvent(QEvent* event)
{
    QToolBar::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        updateTexts();
    }
}

void LookBar::updateTexts()
{
    setWindowTitle(tr("Look"));
    m_sheet->setItemText(static_cast<int>(Sheet::None), tr("None"));
    m_sheet->setItemText(static_cast<int>(Sheet::Tessera), QStringLiteral("Tessera"));
    m_sheet->setItemText(static_cast<int>(Sheet::Gallery), tr("Gallery"));
    m_dark->setText(tr("&Dark"));
    m_mirrored->setText(tr("&Right to left"));
    m_font->setText(tr("&Font…"));
}

void LookBar::showLook()
{
    const Look& look = Host::instance().look();
    const QSignalBlocker darkBlocker(m_dark);
    const QSignalBlocker mirroredBlocker(m_mirrored);
    m_language->setCurrentIndex(static_cast<int>(look.language));
    m_sheet->setCurrentIndex(static_cast<int>(look.sheet));
    m_dark->setChecked(look.shade == Shade::Dark);
    m_mirrored->setChecked(look.direction == Qt::RightToLeft);
}

} // namespace gallery
