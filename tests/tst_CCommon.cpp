// SPDX-License-Identifier: MIT
#include "support/TestMain.h"
#include "TestSupport.h"

#include <CCommon.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSet>
#include <QtTest>

#include <optional>
#include <thread>
#include <type_traits>
#include <vector>

using TestSupport::contentOf;
using TestSupport::GlobalState;

namespace {

QSharedPointer<QSettings> store(const QString& sName = QString())
{
    return CCommon::instance().getSettings(sName);
}

QByteArray everyByte()
{
    QByteArray bytes;
    for (int n = 0; n < 256; ++n) {
        bytes.append(char(n));
    }
    return bytes;
}

} // namespace

class tst_CCommon : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void thereIsOneObject();

    void writesBytesInHexadecimal_data();
    void writesBytesInHexadecimal();
    void writesBytesInBinary_data();
    void writesBytesInBinary();
    void writesEveryByte();

    void readsBytesFromBinary_data();
    void readsBytesFromBinary();
    void readsBackEveryByteWithAnySeparator_data();
    void readsBackEveryByteWithAnySeparator();

    void givesAStoreForEveryName_data();
    void givesAStoreForEveryName();
    void defaultStoreIsTheApplications();
    void defaultStoreFollowsNamesAndFormatSetLate();
    void storesWithoutAnOrganizationToo_data();
    void storesWithoutAnOrganizationToo();
    void isOnDiskWhenTheLastOwnerLetsGo();
    void isOnDiskAfterTheEventLoopTurnedWhileHeld();
    void ownersOfOneStoreSeeEachOther();
    void namedStoresLieBesideTheDefaultOne_data();
    void namedStoresLieBesideTheDefaultOne();
    void namedStoresAreSeparate();
    void everyCallOpensTheStoreAnew();

private:
    std::optional<GlobalState> m_global;
};

void tst_CCommon::init()
{
    m_global.emplace();
}

void tst_CCommon::cleanup()
{
    m_global.reset();
}

void tst_CCommon::thereIsOneObject()
{
    std::vector<CCommon*> found(4, nullptr);
    std::vector<std::thread> threads;
    for (CCommon*& pFound : found) {
        threads.emplace_back([&pFound] { pFound = &CCommon::instance(); });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    for (const CCommon* pFound : found) {
        QCOMPARE(pFound, &CCommon::instance());
    }
    QVERIFY(!std::is_default_constructible<CCommon>::value);
    QVERIFY(!std::is_copy_constructible<CCommon>::value);
}

void tst_CCommon::writesBytesInHexadecimal_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QChar>("separator");
    QTest::addColumn<QString>("text");

    const QChar none;
    const QChar space = QLatin1Char(' ');
    QTest::newRow("empty") << QByteArray() << space << QStringLiteral("");
    QTest::newRow("one byte") << QByteArray("\x0A") << space << QStringLiteral("0A");
    QTest::newRow("in upper case") << QByteArray("\xAB\xCD\xEF") << none << QStringLiteral("ABCDEF");
    QTest::newRow("separated") << QByteArray("\x01\x7F\x80\xFF") << space << QStringLiteral("01 7F 80 FF");
    QTest::newRow("no separator") << QByteArray("\x01\x7F\x80\xFF") << none << QStringLiteral("017F80FF");
    QTest::newRow("any separator") << QByteArray("\x12\x34") << QChar(0x2192) << QStringLiteral("12→34");
    QTest::newRow("a digit as separator")
        << QByteArray("\x12\x34") << QChar(QLatin1Char('0')) << QStringLiteral("12034");
    QTest::newRow("null bytes") << QByteArray(3, '\0') << QChar(QLatin1Char('-')) << QStringLiteral("00-00-00");
}

void tst_CCommon::writesBytesInHexadecimal()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QChar, separator);
    QFETCH(const QString, text);
    QCOMPARE(CCommon::byteAttryToHex(bytes, separator), text);
}

void tst_CCommon::writesBytesInBinary_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QChar>("separator");
    QTest::addColumn<QString>("text");

    const QChar none;
    const QChar space = QLatin1Char(' ');
    QTest::newRow("empty") << QByteArray() << space << QStringLiteral("");
    QTest::newRow("leading zeros") << QByteArray("\x05") << space << QStringLiteral("00000101");
    QTest::newRow("the most significant bit first") << QByteArray("\x80") << space << QStringLiteral("10000000");
    QTest::newRow("bytes in order") << QByteArray("\x01\x80") << none << QStringLiteral("0000000110000000");
    QTest::newRow("separated") << QByteArray("\xF0\x00\x0F", 3) << QChar(QLatin1Char('_'))
                               << QStringLiteral("11110000_00000000_00001111");
}

void tst_CCommon::writesBytesInBinary()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QChar, separator);
    QFETCH(const QString, text);
    QCOMPARE(CCommon::byteAttryToBin(bytes, separator), text);
}

void tst_CCommon::writesEveryByte()
{
    for (int n = 0; n < 256; ++n) {
        const QByteArray byte(1, char(n));
        QCOMPARE(CCommon::byteAttryToHex(byte, QLatin1Char(' ')), QString::asprintf("%02X", uint(n)));
        QCOMPARE(CCommon::byteAttryToBin(byte, QLatin1Char(' ')), QStringLiteral("%1").arg(n, 8, 2, QLatin1Char('0')));
    }
}

void tst_CCommon::readsBytesFromBinary_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("bytes"); // a null array where the text cannot be read

    const QByteArray unreadable;
    const QByteArray empty("");
    QTest::newRow("one byte") << QStringLiteral("10000001") << QByteArray("\x81");
    QTest::newRow("two bytes") << QStringLiteral("0000000110000000") << QByteArray("\x01\x80");
    QTest::newRow("null bytes") << QStringLiteral("0000000000000000") << QByteArray(2, '\0');
    QTest::newRow("separated by spaces") << QStringLiteral("00000001 10000000") << QByteArray("\x01\x80");
    QTest::newRow("separated by anything") << QStringLiteral("0000,0001;\t-1000→0000\n") << QByteArray("\x01\x80");
    QTest::newRow("separators at both ends") << QStringLiteral(" _11111111_ ") << QByteArray("\xFF");
    QTest::newRow("one digit") << QStringLiteral("1") << QByteArray("\x01");
    QTest::newRow("seven digits") << QStringLiteral("1111111") << QByteArray("\x7F");
    QTest::newRow("nine digits") << QStringLiteral("100000001") << QByteArray("\x01\x01");
    QTest::newRow("a short first group") << QStringLiteral("1 00000001") << QByteArray("\x01\x01");
    QTest::newRow("a short last group is not filled up by itself")
        << QStringLiteral("00000001 1") << QByteArray("\x00\x03", 2);
    QTest::newRow("a single zero") << QStringLiteral("0") << QByteArray(1, '\0');
    QTest::newRow("empty") << QString() << empty;
    QTest::newRow("separators only") << QStringLiteral(" - ") << empty;
    QTest::newRow("another digit") << QStringLiteral("00000002") << unreadable;
    QTest::newRow("a letter") << QStringLiteral("0000000a") << unreadable;
    QTest::newRow("a letter among separators") << QStringLiteral("x 00000001") << unreadable;
    QTest::newRow("a prefix") << QStringLiteral("0b00000001") << unreadable;
    QTest::newRow("a letter alone") << QStringLiteral("o") << unreadable;
    QTest::newRow("a letter of another script") << QStringLiteral("0000000ß1") << unreadable;
    QTest::newRow("a letter of two code units") << QStringLiteral("0000000𐐀1") << unreadable;
    QTest::newRow("a digit of another script") << QStringLiteral("0000000١") << unreadable;
}

void tst_CCommon::readsBytesFromBinary()
{
    QFETCH(const QString, text);
    QFETCH(const QByteArray, bytes);
    const QByteArray read = CCommon::byteAttryFromBin(text);
    QCOMPARE(read, bytes);
    QCOMPARE(read.isNull(), bytes.isNull());
}

void tst_CCommon::readsBackEveryByteWithAnySeparator_data()
{
    QTest::addColumn<QChar>("separator");

    QTest::newRow("none") << QChar();
    QTest::newRow("space") << QChar(QLatin1Char(' '));
    QTest::newRow("comma") << QChar(QLatin1Char(','));
    QTest::newRow("arrow") << QChar(0x2192);
}

void tst_CCommon::readsBackEveryByteWithAnySeparator()
{
    QFETCH(const QChar, separator);
    QCOMPARE(CCommon::byteAttryFromBin(CCommon::byteAttryToBin(everyByte(), separator)), everyByte());
}

void tst_CCommon::givesAStoreForEveryName_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("null") << QString();
    QTest::newRow("empty") << QStringLiteral("");
    QTest::newRow("a name") << QStringLiteral("Window");
    QTest::newRow("a name with a space") << QStringLiteral("Main Window");
    QTest::newRow("a name of another script") << QStringLiteral("设置");
}

void tst_CCommon::givesAStoreForEveryName()
{
    QFETCH(const QString, name);
    const QSharedPointer<QSettings> pSettings = store(name);
    QVERIFY(pSettings);
    QVERIFY(pSettings->isWritable());
    QCOMPARE(pSettings->status(), QSettings::NoError);
    pSettings->setValue(QStringLiteral("Key"), 42);
    pSettings->sync();
    QCOMPARE(pSettings->status(), QSettings::NoError);
    QCOMPARE(store(name)->value(QStringLiteral("Key")).toInt(), 42);
}

void tst_CCommon::defaultStoreIsTheApplications()
{
    store()->setValue(QStringLiteral("Group/Key"), QStringLiteral("value"));
    QSettings application;
    QCOMPARE(application.value(QStringLiteral("Group/Key")).toString(), QStringLiteral("value"));
    QCOMPARE(store()->fileName(), application.fileName());
    QCOMPARE(store()->format(), application.format());
    QCOMPARE(store()->scope(), application.scope());
    QCOMPARE(store(QStringLiteral(""))->fileName(), application.fileName());
}

void tst_CCommon::defaultStoreFollowsNamesAndFormatSetLate()
{
    QSet<QString> files{store()->fileName()};
    const auto checkLate = [&files] {
        const QString sFile = store()->fileName();
        QCOMPARE(sFile, QSettings().fileName());
        QVERIFY(!files.contains(sFile));
        files.insert(sFile);
        store()->setValue(QStringLiteral("Key"), files.size());
        QVERIFY(QFileInfo::exists(sFile));
    };
    QCoreApplication::setOrganizationName(QStringLiteral("LateOrganization"));
    checkLate();
    QCoreApplication::setApplicationName(QStringLiteral("LateApplication"));
    checkLate();
    QSettings::setDefaultFormat(QSettings::NativeFormat);
    checkLate();
    QCOMPARE(store()->format(), QSettings::NativeFormat);
    QCOMPARE(files.size(), 4);
}

void tst_CCommon::storesWithoutAnOrganizationToo_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("format");

    QTest::newRow("default store, INI") << QString() << int(QSettings::IniFormat);
    QTest::newRow("default store, native") << QString() << int(QSettings::NativeFormat);
    QTest::newRow("named store, INI") << QStringLiteral("Window") << int(QSettings::IniFormat);
    QTest::newRow("named store, native") << QStringLiteral("Window") << int(QSettings::NativeFormat);
}

void tst_CCommon::storesWithoutAnOrganizationToo()
{
    QFETCH(const QString, name);
    QFETCH(const int, format);
    QSettings::setDefaultFormat(QSettings::Format(format));
    QCoreApplication::setOrganizationName(QString());
    store(name)->setValue(QStringLiteral("Key"), 42);
    const QSharedPointer<QSettings> pSettings = store(name);
    QCOMPARE(pSettings->status(), QSettings::NoError);
    QCOMPARE(pSettings->value(QStringLiteral("Key")).toInt(), 42);
    QCOMPARE(QFileInfo(pSettings->fileName()).dir().dirName(), QStringLiteral("TestApplication"));
    QVERIFY(pSettings->fileName().startsWith(m_global->settingsFolder()));
    QVERIFY(contentOf(pSettings->fileName()).contains("Key=42"));
    QCOMPARE(QCoreApplication::organizationName(), QString()); // nobody's name was set for that
}

void tst_CCommon::isOnDiskWhenTheLastOwnerLetsGo()
{
    QSharedPointer<QSettings> pSettings = store();
    const QString sFile = pSettings->fileName();
    QSharedPointer<QSettings> pOther = pSettings;
    pSettings->setValue(QStringLiteral("Key"), 42);
    pSettings.reset();
    pOther->setValue(QStringLiteral("Other"), 43);
    QVERIFY(!contentOf(sFile).contains("Other"));
    pOther.reset();
    QVERIFY(contentOf(sFile).contains("Key=42"));
    QVERIFY(contentOf(sFile).contains("Other=43"));
}

void tst_CCommon::isOnDiskAfterTheEventLoopTurnedWhileHeld()
{
    const QSharedPointer<QSettings> pSettings = store();
    pSettings->setValue(QStringLiteral("Key"), 42);
    QCoreApplication::processEvents();
    QVERIFY(contentOf(pSettings->fileName()).contains("Key=42"));
}

void tst_CCommon::ownersOfOneStoreSeeEachOther()
{
    const QSharedPointer<QSettings> pFirst = store();
    const QSharedPointer<QSettings> pSecond = store();
    pFirst->setValue(QStringLiteral("Key"), 1);
    QCOMPARE(pSecond->value(QStringLiteral("Key")).toInt(), 1);
    pSecond->setValue(QStringLiteral("Key"), 2);
    QCOMPARE(pFirst->value(QStringLiteral("Key")).toInt(), 2);
}

void tst_CCommon::namedStoresLieBesideTheDefaultOne_data()
{
    QTest::addColumn<int>("format");

    QTest::newRow("INI") << int(QSettings::IniFormat);
    QTest::newRow("native") << int(QSettings::NativeFormat);
}

void tst_CCommon::namedStoresLieBesideTheDefaultOne()
{
    QFETCH(const int, format);
    QSettings::setDefaultFormat(QSettings::Format(format));
    const QFileInfo defaultFile(store()->fileName());
    const QFileInfo namedFile(store(QStringLiteral("Window"))->fileName());
    QCOMPARE(namedFile.path(), defaultFile.path());
    QCOMPARE(namedFile.suffix(), defaultFile.suffix());
    QCOMPARE(namedFile.completeBaseName(), QStringLiteral("Window"));
    QCOMPARE(defaultFile.completeBaseName(), QStringLiteral("TestApplication"));
}

void tst_CCommon::namedStoresAreSeparate()
{
    store()->setValue(QStringLiteral("Key"), 1);
    store(QStringLiteral("A"))->setValue(QStringLiteral("Key"), 2);
    store(QStringLiteral("B"))->setValue(QStringLiteral("Key"), 3);
    QCOMPARE(store()->value(QStringLiteral("Key")).toInt(), 1);
    QCOMPARE(store(QStringLiteral("A"))->value(QStringLiteral("Key")).toInt(), 2);
    QCOMPARE(store(QStringLiteral("B"))->value(QStringLiteral("Key")).toInt(), 3);
    store()->setValue(QStringLiteral("OnlyHere"), 4);
    QVERIFY(!store(QStringLiteral("A"))->contains(QStringLiteral("OnlyHere")));
}

void tst_CCommon::everyCallOpensTheStoreAnew()
{
    const QSharedPointer<QSettings> pFirst = store();
    pFirst->beginGroup(QStringLiteral("Group"));
    const QSharedPointer<QSettings> pSecond = store();
    QVERIFY(pFirst != pSecond);
    QCOMPARE(pSecond->group(), QString());
}

TESSERA_TEST_GUILESS_MAIN(tst_CCommon)
#include "tst_CCommon.moc"
