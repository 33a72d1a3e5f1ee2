// SPDX-License-Identifier: MIT
#include "cards/TextLabel.h"
#include "host/ChangeWatcher.h"
#include "host/Host.h"
#include "samples/Samples.h"

#include <Tessera/Tessera.h>

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace gallery {

namespace {

constexpr int kPadding = 5;
constexpr int kRandomColors = 6;

//! [palette]
void paint(QLabel* field, const QColor& color)
{
    const QColor text = nsUI::TesseraGlobal::getAdaptiveTextColor(color);
    QPalette palette = field->palette();
    palette.setColor(QPalette::Window, color);
    palette.setColor(QPalette::WindowText, text);
    field->setPalette(palette);
    field->setText(color.name().toUpper());
}

void paint(QLabel* field, nsUI::e_ColorType family,
           nsUI::e_ColorLightness lightness)
{
    paint(field, nsUI::TesseraGlobal::instance().getColor(family, lightness));
}
//! [palette]

QLabel* newField()
{
    auto* field = new QLabel;
    field->setAutoFillBackground(true);
    field->setMargin(kPadding);
    field->setAlignment(Qt::AlignCenter);
    return field;
}

struct Family
{
    nsUI::e_ColorType type;
    const char* name;
};

constexpr Family kFamilies[] = {
    {nsUI::e_Primary, "e_Primary"}, {nsUI::e_Success, "e_Success"},
    {nsUI::e_Info, "e_Info"},       {nsUI::e_Warning, "e_Warning"},
    {nsUI::e_Danger, "e_Danger"},
};

void addFamily(QGridLayout* grid, const Family& family)
{
    const int row = grid->rowCount();
    grid->addWidget(new TextLabel(QString::fromLatin1(family.name)), row, 0);
    for (int step = nsUI::e_L100; step <= nsUI::e_L900; ++step) {
        auto* field = newField();
        paint(field, family.type, static_cast<nsUI::e_ColorLightness>(step));
        grid->addWidget(field, row, step + 1);
    }
}

void addLightnessRow(QGridLayout* grid)
{
    for (int step = nsUI::e_L100; step <= nsUI::e_L900; ++step) {
        auto* label =
            new QLabel(QStringLiteral("e_L%1").arg(100 * (step + 1)));
        label->setAlignment(Qt::AlignCenter);
        grid->addWidget(label, 0, step + 1);
    }
}

} // namespace

QWidget* makePaletteChart()
{
    auto* sample = new QWidget;
    auto* grid = new QGridLayout(sample);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(0);
    grid->setVerticalSpacing(0);
    grid->setColumnMinimumWidth(0, 100);
    addLightnessRow(grid);
    for (const Family& family : kFamilies) {
        addFamily(grid, family);
    }
    return sample;
}

QWidget* makeRandomColors()
{
    auto* sample = new QWidget;
    auto* grid = new QGridLayout(sample);
    grid->setContentsMargins(0, 0, 0, 0);
    QVector<QLabel*> fields;
    for (int i = 0; i < kRandomColors; ++i) {
        fields.append(newField());
        fields.last()->setObjectName(QStringLiteral("randomColor"));
        grid->addWidget(fields.last(), i / 3, i % 3);
    }
    //! [random]
    const auto shuffle = [fields] {
        for (QLabel* field : fields) {
            paint(field, nsUI::TesseraGlobal::instance().getRandColor());
        }
    };
    //! [random]
    shuffle();
    auto* button = new QPushButton;
    retranslate(button,
                [button] { button->setText(Words::tr("&Next colours")); });
    QObject::connect(button, &QPushButton::clicked, button, shuffle);
    grid->addWidget(button, 2, 0, 1, 3);
    return sample;
}

} // namespace gallery
