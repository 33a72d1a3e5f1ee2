// c++ -std=c++17 -fPIC BoxInForm.cpp -o BoxInForm $(pkg-config --cflags --libs Tessera)
// SPDX-License-Identifier: MIT
// A box in a form: a 32-bit register in hexadecimal, which tells of each new value.
#include <Tessera/CISpinBox/CU32SpinBox.h>

#include <QApplication>
#include <QFormLayout>
#include <QLabel>
#include <QTimer>

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QWidget form;
    auto* layout = new QFormLayout(&form);
    auto* box = new nsUI::CU32SpinBox(&form);
    box->setRange(0, 0xFFFFFFFF);
    box->setDisplayIntegerBase(16);
    box->setPrefix(QStringLiteral("0x"));
    auto* label = new QLabel(&form);
    QObject::connect(box, &nsUI::CU32SpinBox::valueChanged, label,
                     [label](quint32 value) { label->setText(QString::number(value)); });
    box->setValue(0xC0FFEE);
    layout->addRow(QStringLiteral("&Control:"), box);
    layout->addRow(QStringLiteral("Decimal:"), label);
    form.show();
    if (app.arguments().contains(QStringLiteral("--once"))) {
        QTimer::singleShot(0, &app,
                           [label] { QCoreApplication::exit(label->text() == QLatin1String("12648430") ? 0 : 1); });
    }
    return QApplication::exec();
}
