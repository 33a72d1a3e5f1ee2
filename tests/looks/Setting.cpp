// SPDX-License-Identifier: MIT
#include "Setting.h"

#include <QApplication>
#include <QFont>
#include <QFontDatabase>
#include <QStringList>
#include <QStyleFactory>

namespace looks {

namespace {

constexpr int kPointSize = 10;

QStringList fontFamilies()
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return QFontDatabase().families();
#else
    return QFontDatabase::families();
#endif
}

} // namespace

QString Setting::name() const
{
    return QStringLiteral("%1-%2-%3-%4x")
        .arg(language(), isDark ? QStringLiteral("dark") : QStringLiteral("light"),
             direction == Qt::RightToLeft ? QStringLiteral("rtl") : QStringLiteral("ltr"))
        .arg(scale);
}

QString Setting::language() const
{
    return isChinese ? QStringLiteral("zh_CN") : QStringLiteral("en");
}

bool Setting::hasPictures() const
{
    const bool isMirrored = direction == Qt::RightToLeft;
    return isChinese == isMirrored && isDark == ((scale == 1) == isChinese);
}

QVector<Setting> settingsOfProcess()
{
    QVector<Setting> settings;
    for (const bool isChinese : {false, true}) {
        for (const bool isDark : {false, true}) {
            for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
                settings.append({isChinese, isDark, direction, qRound(qApp->devicePixelRatio())});
            }
        }
    }
    return settings;
}

void prepareApplication()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("FONTCONFIG_FILE", LOOKS_FONTS);
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0) // Qt 6 always does both
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
}

QString pinLooks()
{
    QApplication::setAttribute(Qt::AA_Use96Dpi, false); // which a test has; an application has the screen's
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), kPointSize));
    const QStringList families = fontFamilies();
    QStringList missing;
    for (const QString& family :
         {QStringLiteral("DejaVu Sans"), QStringLiteral("JetBrains Mono"), QStringLiteral("WenQuanYi Micro Hei")}) {
        if (!families.contains(family)) {
            missing.append(family);
        }
    }
    return missing.isEmpty()
               ? QString()
               : QStringLiteral("Install these fonts, see scripts/setup: ") + missing.join(QLatin1String(", "));
}

} // namespace looks
