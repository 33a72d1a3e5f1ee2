// SPDX-License-Identifier: MIT
#include <CCommon.h>

#include <Tessera/Tessera.h>

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QtDebug>

namespace nsUI {
namespace {

QString keyFamilies()
{
    return QStringLiteral("Familys");
}
QString keyPointSize()
{
    return QStringLiteral("PointSize");
}
QString keyBold()
{
    return QStringLiteral("Bold");
}
QString keyItalic()
{
    return QStringLiteral("Italic");
}

} // namespace

tagAppFont::tagAppFont()
    : families{QStringLiteral("JetBrains Mono"), QStringLiteral("Arial")}
{
}

void tagAppFont::readSettings(QSharedPointer<QSettings> settings, const QString& group)
{
    settings->beginGroup(group);
    families = settings->value(keyFamilies(), families).toStringList();
    pointSize = settings->value(keyPointSize(), pointSize).toInt();
    bold = settings->value(keyBold(), bold).toBool();
    italic = settings->value(keyItalic(), italic).toBool();
    settings->endGroup();
}

void tagAppFont::writeSettings(QSharedPointer<QSettings> settings, const QString& group) const
{
    settings->beginGroup(group);
    settings->setValue(keyFamilies(), families);
    settings->setValue(keyPointSize(), pointSize);
    settings->setValue(keyBold(), bold);
    settings->setValue(keyItalic(), italic);
    settings->endGroup();
}

QFont tagAppFont::toFont() const
{
    QFont font = QApplication::font();
    if (!families.isEmpty())
        font.setFamily(families.first());
    font.setPointSize(pointSize);
    font.setWeight(bold ? QFont::Bold : QFont::Normal);
    font.setStyle(italic ? QFont::StyleItalic : QFont::StyleNormal);
    return font;
}

QString tagAppFont::toStyleSheet() const
{
    QString sRule = QStringLiteral("*{");
    if (!families.isEmpty())
        sRule += QStringLiteral("\n    font-family:\"%1\";").arg(families.join(QStringLiteral("\",\"")));
    sRule += QStringLiteral("\n    font-size:%1pt;").arg(pointSize);
    sRule += QStringLiteral("\n    font-weight:%1;").arg(bold ? QLatin1String("bold") : QLatin1String("normal"));
    sRule += QStringLiteral("\n    font-style:%1;").arg(italic ? QLatin1String("italic") : QLatin1String("normal"));
    return sRule + QStringLiteral("\n}\n");
}

void TesseraGlobal::initFont()
{
    const QFileInfoList files =
        QDir(QStringLiteral(":/ttf")).entryInfoList({QStringLiteral("*.ttf")}, QDir::Files, QDir::NoSort);
    qDebug() << files;
    if (!files.isEmpty() && qobject_cast<QGuiApplication*>(QCoreApplication::instance()) == nullptr) {
        qWarning("The fonts of :/ttf are not registered: there is no QGuiApplication yet. "
                 "Call TesseraGlobal::initFont() when there is one.");
        return;
    }
    for (const QFileInfo& info : files)
        QFontDatabase::applicationFontFamilies(QFontDatabase::addApplicationFont(info.filePath()));
}

QFont TesseraGlobal::getCurrentAppFont() const
{
    tagAppFont font;
    font.readSettings(CCommon::instance().getSettings(QString()), QStringLiteral("AppFont"));
    return font.toFont();
}

} // namespace nsUI
