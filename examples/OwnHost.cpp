// c++ -std=c++17 -fPIC OwnHost.cpp -o OwnHost -I$(pkg-config --variable=includedir Tessera)/TesseraHost $(pkg-config --cflags --libs Tessera)
// SPDX-License-Identifier: MIT
// A host with a common library of its own: Tessera keeps its settings beside the program. What a program defines comes
// before what a library does. A host that brings all of such a library builds Tessera with TESSERA_HOST_TARGET.
#include <CCommon.h>

#include <Tessera/Tessera.h>
#include <Tessera/widgets/FontSettingDlg.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTimer>

namespace {

QString settingsFile()
{
    return QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("OwnHost.ini"));
}

QString spell(const QByteArray& bytes, const QChar& separator, int base, int digits)
{
    QStringList texts;
    for (const char byte : bytes)
        texts << QStringLiteral("%1").arg(uchar(byte), digits, base, QLatin1Char('0'));
    return texts.join(separator.isNull() ? QString() : QString(separator));
}

} // namespace

QSharedPointer<QSettings> CCommon::getSettings(const QString&) const
{
    return QSharedPointer<QSettings>::create(settingsFile(), QSettings::IniFormat);
}
QString CCommon::byteAttryToHex(const QByteArray& bytes, const QChar& separator)
{
    return spell(bytes, separator, 16, 2);
}
QString CCommon::byteAttryToBin(const QByteArray& bytes, const QChar& separator)
{
    return spell(bytes, separator, 2, 8);
}

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    nsUI::TesseraGlobal::loadStyleSheet({}, QString()); // puts the font into effect, and keeps it
    nsUI::FontSettingDlg dialog;
    dialog.show();
    if (app.arguments().contains(QStringLiteral("--once")))
        QTimer::singleShot(0, &app, [] { QCoreApplication::exit(QFile::remove(settingsFile()) ? 0 : 1); });
    return QApplication::exec();
}
