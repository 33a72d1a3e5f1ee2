// SPDX-License-Identifier: MIT
#include "support/TestMain.h"
#include "svd/SvdNumber.h"
#include "text/Numbers.h"

#include <QTest>

#include <limits>
#include <optional>

using namespace registers;

namespace {
constexpr quint64 kAllOnes = std::numeric_limits<quint64>::max();
}

class tst_SvdNumber : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNumberIsRead_data();
    void aNumberIsRead();
    void whatIsNoNumberIsRefused_data();
    void whatIsNoNumberIsRefused();
    void anEnumeratedValueMayLeaveBitsOpen_data();
    void anEnumeratedValueMayLeaveBitsOpen();
    void whatIsNoEnumeratedValueIsRefused_data();
    void whatIsNoEnumeratedValueIsRefused();
    void aTruthValueIsRead_data();
    void aTruthValueIsRead();
    void aTypedNumberIsRead_data();
    void aTypedNumberIsRead();
    void whatIsNoTypedNumberIsRefused_data();
    void whatIsNoTypedNumberIsRefused();
};

void tst_SvdNumber::aNumberIsRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<quint64>("expected");

    const auto row = [](const char* name, const char* text, quint64 expected) {
        QTest::newRow(name) << QString::fromLatin1(text) << expected;
    };
    row("zero", "0", 0);
    row("decimal", "1234", 1234);
    row("decimal with leading zeros is not octal", "0010", 10);
    row("hexadecimal in lower case", "0xdeadbeef", 0xdeadbeef);
    row("hexadecimal in upper case", "0XDEADBEEF", 0xdeadbeef);
    row("hexadecimal of mixed case", "0xDeAdBeEf", 0xdeadbeef);
    row("binary with a hash sign", "#1010", 10);
    row("binary with 0b", "0b1010", 10);
    row("binary with 0B", "0B1010", 10);
    row("a plus sign in front", "+7", 7);
    row("a plus sign in front of hexadecimal", "+0x7", 7);
    row("white space around", " \t\r\n 0x10 \n", 16);
    row("k is 1024", "4k", 4096);
    row("K is 1024", "4K", 4096);
    row("m is 1024 k", "2m", 2097152);
    row("M is 1024 k", "2M", 2097152);
    row("g is 1024 m", "1g", quint64(1) << 30);
    row("G is 1024 m", "1G", quint64(1) << 30);
    row("t is 1024 g", "1t", quint64(1) << 40);
    row("T is 1024 g", "1T", quint64(1) << 40);
    row("a scaled hexadecimal number", "0x10k", 16384);
    row("a scaled binary number", "#11k", 3072);
    row("the largest decimal number", "18446744073709551615", kAllOnes);
    row("the largest hexadecimal number", "0xFFFFFFFFFFFFFFFF", kAllOnes);
    row("the largest binary number", "#1111111111111111111111111111111111111111111111111111111111111111", kAllOnes);
    row("leading zeros do not count", "0x000000000000000000000001", 1);
    row("the largest scaled number", "16777215t", quint64(16777215) << 40);
}

void tst_SvdNumber::aNumberIsRead()
{
    QFETCH(QString, text);
    QFETCH(quint64, expected);
    const std::optional<quint64> number = parseSvdNumber(text);
    QVERIFY(number.has_value());
    QCOMPARE(*number, expected);
}

void tst_SvdNumber::whatIsNoNumberIsRefused_data()
{
    QTest::addColumn<QString>("text");

    const auto row = [](const char* name, const char* text) { QTest::newRow(name) << QString::fromLatin1(text); };
    row("nothing", "");
    row("white space only", " \n ");
    row("a sign only", "+");
    row("two signs", "++1");
    row("a negative number", "-1");
    row("a word", "seven");
    row("a prefix only", "0x");
    row("a hash sign only", "#");
    row("a scale only", "k");
    row("a prefix and a scale only", "0xk");
    row("two scales", "1kk");
    row("a hexadecimal digit in a decimal number", "12a");
    row("a digit 2 in a binary number", "#12");
    row("a letter g in a hexadecimal number", "0xg1");
    row("an open bit where none is allowed", "#1x");
    row("white space within", "1 2");
    row("white space after the sign", "+ 1");
    row("a fraction", "1.5");
    row("a separated number", "0x4000_0000");
    row("one more than the largest decimal number", "18446744073709551616");
    row("17 hexadecimal digits", "0x10000000000000000");
    row("65 binary digits", "#10000000000000000000000000000000000000000000000000000000000000000");
    row("a number that is too large only when it is scaled", "16777216t");
}

void tst_SvdNumber::whatIsNoNumberIsRefused()
{
    QFETCH(QString, text);
    QVERIFY(!parseSvdNumber(text).has_value());
}

void tst_SvdNumber::anEnumeratedValueMayLeaveBitsOpen_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<quint64>("value");
    QTest::addColumn<quint64>("open");

    const auto row = [](const char* name, const char* text, quint64 value, quint64 open) {
        QTest::newRow(name) << QString::fromLatin1(text) << value << open;
    };
    row("decimal numbers have no open bits", "5", 5, 0);
    row("hexadecimal numbers have no open bits", "0x1F", 31, 0);
    row("binary numbers may have none", "#101", 5, 0);
    row("the lowest bit is open", "#1x", 2, 1);
    row("a bit in the middle is open", "#1x0", 4, 2);
    row("the highest bit is open", "#x01", 1, 4);
    row("both cases of the letter, with 0b", "0b1xX0", 8, 6);
    row("all bits are open", "#xx", 0, 3);
    row("white space and a sign", " +#1x ", 2, 1);
    row("64 open bits", "#xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx", 0, kAllOnes);
}

void tst_SvdNumber::anEnumeratedValueMayLeaveBitsOpen()
{
    QFETCH(QString, text);
    QFETCH(quint64, value);
    QFETCH(quint64, open);
    const std::optional<MaskedNumber> number = parseSvdMaskedNumber(text);
    QVERIFY(number.has_value());
    QCOMPARE(number->value, value);
    QCOMPARE(number->mask, ~open);
}

void tst_SvdNumber::whatIsNoEnumeratedValueIsRefused_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("nothing") << QString();
    QTest::newRow("a hash sign only") << QStringLiteral("#");
    QTest::newRow("open digits in a decimal number") << QStringLiteral("1x");
    QTest::newRow("open digits in a hexadecimal number") << QStringLiteral("0x1x");
    QTest::newRow("a digit 2 beside an open one") << QStringLiteral("#2x");
    QTest::newRow("a scale behind an open digit") << QStringLiteral("#1xk");
    QTest::newRow("65 digits with an open one") << QLatin1String("#1") + QString(64, QLatin1Char('x'));
}

void tst_SvdNumber::whatIsNoEnumeratedValueIsRefused()
{
    QFETCH(QString, text);
    QVERIFY(!parseSvdMaskedNumber(text).has_value());
}

void tst_SvdNumber::aTruthValueIsRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("expected"); // -1: refused

    QTest::newRow("true") << QStringLiteral("true") << 1;
    QTest::newRow("TRUE") << QStringLiteral("TRUE") << 1;
    QTest::newRow("True among white space") << QStringLiteral(" True\n") << 1;
    QTest::newRow("1") << QStringLiteral("1") << 1;
    QTest::newRow("false") << QStringLiteral("false") << 0;
    QTest::newRow("False") << QStringLiteral("False") << 0;
    QTest::newRow("0") << QStringLiteral("0") << 0;
    QTest::newRow("another word is refused") << QStringLiteral("yes") << -1;
    QTest::newRow("another number is refused") << QStringLiteral("2") << -1;
    QTest::newRow("nothing is refused") << QString() << -1;
}

void tst_SvdNumber::aTruthValueIsRead()
{
    QFETCH(QString, text);
    QFETCH(int, expected);
    const std::optional<bool> value = parseSvdBool(text);
    QCOMPARE(value ? int(*value) : -1, expected);
}

void tst_SvdNumber::aTypedNumberIsRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<quint64>("expected");

    QTest::newRow("decimal") << QStringLiteral("42") << quint64(42);
    QTest::newRow("hexadecimal") << QStringLiteral("0x2a") << quint64(42);
    QTest::newRow("hexadecimal in upper case") << QStringLiteral("0X2A") << quint64(42);
    QTest::newRow("binary") << QStringLiteral("0b101010") << quint64(42);
    QTest::newRow("the largest") << QStringLiteral("18446744073709551615") << kAllOnes;
}

void tst_SvdNumber::aTypedNumberIsRead()
{
    QFETCH(QString, text);
    QFETCH(quint64, expected);
    QCOMPARE(parsePlainNumber(text), std::optional<quint64>(expected));
}

void tst_SvdNumber::whatIsNoTypedNumberIsRefused_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("nothing") << QString();
    QTest::newRow("a prefix only") << QStringLiteral("0x");
    QTest::newRow("a negative number") << QStringLiteral("-1");
    QTest::newRow("a sign") << QStringLiteral("+1");
    QTest::newRow("a scale") << QStringLiteral("1k");
    QTest::newRow("a hash sign") << QStringLiteral("#1");
    QTest::newRow("white space") << QStringLiteral(" 1");
    QTest::newRow("a word") << QStringLiteral("on");
    QTest::newRow("too many bits") << QStringLiteral("0x10000000000000000");
}

void tst_SvdNumber::whatIsNoTypedNumberIsRefused()
{
    QFETCH(QString, text);
    QVERIFY(!parsePlainNumber(text).has_value());
}

TESSERA_TEST_GUILESS_MAIN(tst_SvdNumber)
#include "tst_svdnumber.moc"
