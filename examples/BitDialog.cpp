// c++ -std=c++17 -fPIC BitDialog.cpp -o BitDialog $(pkg-config --cflags --libs Tessera)
// SPDX-License-Identifier: MIT
// A bit dialog: two bytes as hexadecimal, as binary and bit by bit, with what the bits mean.
#include <Tessera/views/CBitDialog.h>

#include <QApplication>
#include <QTextStream>
#include <QTimer>

#include <cstdio>

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    if (app.arguments().contains(QStringLiteral("--once"))) {
        QTimer::singleShot(0, &app, [] {
            if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                dialog->accept();
            }
        });
    }
    const QByteArray control = QByteArray::fromHex("80a5");
    const QMap<int, QString> meanings{{0, QStringLiteral("enable")}, {15, QStringLiteral("lock")}};
    const QByteArray edited =
        nsUI::CBitDialog::getByteArray(control, meanings, nullptr, QStringLiteral("The control register"));
    if (edited.isNull()) { // an empty array would be a result
        return 1;
    }
    QTextStream(stdout) << edited.toHex() << '\n';
    return 0;
}
