// SPDX-License-Identifier: MIT
#include "GlobalState.h"
#include "TestMain.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <functional>

using TestSupport::GlobalState;

namespace {

using Change = std::function<void()>;
using Look = std::function<QVariant()>;

QVariant overrideCursorShape()
{
    const QCursor* const cursor = QApplication::overrideCursor();
    return cursor ? int(cursor->shape()) : -1;
}

} // namespace

Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(Look)

class tst_GlobalState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void putsBackWhatATestHasChanged_data();
    void putsBackWhatATestHasChanged();
    void putsBackEverythingAtOnce();
    void givesAnEmptyStore();
    void leavesTheUsersStoreAlone();
    void takesItsCataloguesAway();
    void tellsOfACatalogueThatIsNotThere();
    void keepsTheFontsOfClassesWhereNothingHasChanged();
    void nests();
};

void tst_GlobalState::putsBackWhatATestHasChanged_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<Look>("look");
    const auto row = [](const char* name, const Change& change, const Look& look) {
        QTest::newRow(name) << change << look;
    };
    row(
        "style sheet", [] { qApp->setStyleSheet(QStringLiteral("QLabel { color: red }")); },
        [] { return qApp->styleSheet(); });
    row(
        "palette", [] { QApplication::setPalette(QPalette(Qt::darkGreen)); },
        [] { return QVariant(QApplication::palette()); });
    row(
        "font", [] { QApplication::setFont(QFont(QStringLiteral("Some Family"), 31)); },
        [] { return QVariant(QApplication::font()); });
    row(
        "layout direction", [] { QApplication::setLayoutDirection(Qt::RightToLeft); },
        [] { return int(QApplication::layoutDirection()); });
    row(
        "cursor flash time", [] { QApplication::setCursorFlashTime(17); },
        [] { return QApplication::cursorFlashTime(); });
    row(
        "override cursor", [] { QApplication::setOverrideCursor(Qt::WaitCursor); }, overrideCursorShape);
    row(
        "locale", [] { QLocale::setDefault(QLocale(QLocale::Hindi)); }, [] { return QLocale().name(); });
    row(
        "current folder", [] { QDir::setCurrent(QDir::rootPath()); }, [] { return QDir::currentPath(); });
    row(
        "organization", [] { QCoreApplication::setOrganizationName(QStringLiteral("Other")); },
        [] { return QCoreApplication::organizationName(); });
    row(
        "domain", [] { QCoreApplication::setOrganizationDomain(QStringLiteral("example.org")); },
        [] { return QCoreApplication::organizationDomain(); });
    row(
        "application", [] { QCoreApplication::setApplicationName(QStringLiteral("other")); },
        [] { return QCoreApplication::applicationName(); });
    row(
        "version", [] { QCoreApplication::setApplicationVersion(QStringLiteral("47.11")); },
        [] { return QCoreApplication::applicationVersion(); });
    row(
        "format of settings", [] { QSettings::setDefaultFormat(QSettings::NativeFormat); },
        [] { return int(QSettings::defaultFormat()); });
}

void tst_GlobalState::putsBackWhatATestHasChanged()
{
    QFETCH(Change, change);
    QFETCH(Look, look);
    const QVariant before = look();
    {
        const GlobalState global;
        const QVariant within = look(); // names and format of the settings are the object's own
        change();
        QVERIFY(look() != within);
    }
    QCOMPARE(look(), before);
}

void tst_GlobalState::putsBackEverythingAtOnce()
{
    const QPalette palette = QApplication::palette();
    const QFont font = QApplication::font();
    {
        const GlobalState global;
        QApplication::setPalette(QPalette(Qt::darkGreen));
        qApp->setStyleSheet(QStringLiteral("* { font-size: 30pt; color: red }"));
        QApplication::setFont(QFont(QStringLiteral("Some Family"), 31));
        QApplication::setLayoutDirection(Qt::RightToLeft);
    }
    QCOMPARE(qApp->styleSheet(), QString());
    QCOMPARE(QApplication::palette(), palette);
    QCOMPARE(QApplication::font(), font);
    QCOMPARE(QApplication::layoutDirection(), Qt::LeftToRight);
}

void tst_GlobalState::givesAnEmptyStore()
{
    for (int i = 0; i < 2; ++i) {
        const GlobalState global;
        QCOMPARE(QSettings().allKeys(), QStringList());
        QSettings().setValue(QStringLiteral("key"), 5);
        QCOMPARE(QSettings().value(QStringLiteral("key")).toInt(), 5);
        QVERIFY2(QSettings().fileName().startsWith(global.settingsFolder()), qPrintable(QSettings().fileName()));
    }
}

void tst_GlobalState::leavesTheUsersStoreAlone()
{
    const GlobalState outer; // the test's own user
    QSettings().setValue(QStringLiteral("key"), 1);
    const QString file = QSettings().fileName();
    {
        const GlobalState global;
        QSettings().setValue(QStringLiteral("key"), 2);
        QVERIFY(QSettings().fileName() != file);
    }
    QCOMPARE(QFileInfo(QSettings().fileName()).canonicalFilePath(), QFileInfo(file).canonicalFilePath());
    QCOMPARE(QSettings().value(QStringLiteral("key")).toInt(), 1);
}

void tst_GlobalState::takesItsCataloguesAway()
{
    const QString source = QStringLiteral("True");
    const auto translated = [&source] { return QCoreApplication::translate("Translator", qPrintable(source)); };
    const QString catalogue = QStringLiteral(CATALOGUE);
    {
        GlobalState global;
        QVERIFY(global.install(catalogue));
        QCOMPARE(translated(), QStringLiteral("是"));
        global.removeCatalogues();
        QCOMPARE(translated(), source);
        QVERIFY(global.install(catalogue));
        QVERIFY(translated() != source);
    }
    QCOMPARE(translated(), source);
}

void tst_GlobalState::tellsOfACatalogueThatIsNotThere()
{
    GlobalState global;
    QVERIFY(!global.install(QStringLiteral(":/there/is/none.qm")));
}

void tst_GlobalState::keepsTheFontsOfClassesWhereNothingHasChanged()
{
    const QFont before = QApplication::font("QLabel");
    const QFont large(QStringLiteral("Some Family"), 40);
    QApplication::setFont(large, "QLabel");
    {
        const GlobalState global;
    }
    QCOMPARE(QApplication::font("QLabel").pointSize(), 40);
    QApplication::setFont(before, "QLabel");
}

void tst_GlobalState::nests()
{
    const GlobalState outer;
    QApplication::setLayoutDirection(Qt::RightToLeft);
    QApplication::setOverrideCursor(Qt::WaitCursor);
    {
        const GlobalState inner;
        QApplication::setLayoutDirection(Qt::LeftToRight);
        QApplication::restoreOverrideCursor();
    }
    QCOMPARE(QApplication::layoutDirection(), Qt::RightToLeft);
    QCOMPARE(overrideCursorShape().toInt(), int(Qt::WaitCursor));
}

TESSERA_TEST_MAIN(tst_GlobalState)
#include "tst_GlobalState.moc"
