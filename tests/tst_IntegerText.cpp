// SPDX-License-Identifier: MIT
#include "support/TestMain.h"

#include <Tessera/CISpinBox/IntegerText_p.h>

#include <CCommon.h>

#include <QRandomGenerator>
#include <QTest>

#include <cstddef>
#include <limits>
#include <type_traits>

namespace IntegerText = nsUI::IntegerText;

namespace {

QString operator""_s(const char* text, std::size_t size)
{
    return QString::fromUtf8(text, static_cast<int>(size));
}

//! What Qt's own reading of \a text says, and whether the number fits T.
template <class T>
bool readByQt(const QString& text, int base, T* pValue)
{
    bool ok = false;
    if constexpr (std::is_signed_v<T>) {
        const qlonglong n = text.toLongLong(&ok, base);
        *pValue = static_cast<T>(n);
        return ok && n == *pValue;
    } else {
        // A text that begins with a minus is refused before it is read.
        const qulonglong n = text.toULongLong(&ok, base);
        *pValue = static_cast<T>(n);
        return ok && n == *pValue;
    }
}

template <class T>
void compareReading(const QString& text, int base)
{
    if (!std::is_signed_v<T> && text.startsWith(QLatin1Char('-')))
        return;
    T expected = 0;
    const bool isExpected = readByQt(text, base, &expected);
    T actual = 0;
    const bool isRead = IntegerText::toValue(text, base, &actual);
    if (isRead != isExpected || (isRead && actual != expected)) {
        qInfo("'%s' in base %d for %d bytes", qPrintable(text), base, int(sizeof(T)));
        QCOMPARE(isRead, isExpected);
        QCOMPARE(actual, expected);
    }
}

void compareReadings(const QString& text, int base)
{
    compareReading<signed char>(text, base);
    compareReading<short>(text, base);
    compareReading<int>(text, base);
    compareReading<long long>(text, base);
    compareReading<unsigned char>(text, base);
    compareReading<unsigned short>(text, base);
    compareReading<unsigned int>(text, base);
    compareReading<unsigned long long>(text, base);
}

//! The limits of all eight types and their neighbours, as patterns of 64 bits.
QVector<quint64> limits()
{
    QVector<quint64> numbers;
    for (const int bits : {7, 8, 15, 16, 31, 32, 63}) {
        for (const quint64 near : {quint64(0), quint64(1), quint64(2)})
            numbers << (quint64(1) << bits) - 1 + near;
    }
    return numbers << 0 << 1 << 9 << 10 << 99 << 100 << std::numeric_limits<quint64>::max() - 1
                   << std::numeric_limits<quint64>::max();
}

template <class T>
void compareWriting(T value)
{
    using Bits = std::make_unsigned_t<T>;
    const auto bits = static_cast<Bits>(value);
    QString number;
    if constexpr (std::is_signed_v<T>)
        number = QString::number(static_cast<qlonglong>(value));
    else
        number = QString::number(static_cast<qulonglong>(value));
    for (int base = 2; base <= 36; ++base) {
        const QString expected = base == 2 || base == 16 ? QString::number(qulonglong(bits), base) : number;
        QCOMPARE(IntegerText::fromValue(value, base).toLower(), expected);
    }
}

template <class T>
void compareWritingOfLimits()
{
    const QVector<quint64> numbers = limits();
    for (const quint64 n : numbers) {
        compareWriting(static_cast<T>(n));
        compareWriting(static_cast<T>(quint64(0) - n));
    }
}

template <class T>
void compareWritingOfAllValues()
{
    for (int n = std::numeric_limits<T>::min(); n <= std::numeric_limits<T>::max(); ++n)
        compareWriting(static_cast<T>(n));
}

} // namespace

//! A number and its text, without any box.
class tst_IntegerText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theBytesOfANumberComeMostSignificantFirst();
    void leadingZerosAndSeparatorsAreDroppedButForTheLastCharacter_data();
    void leadingZerosAndSeparatorsAreDroppedButForTheLastCharacter();
    void theDigitsAreThoseOfTheHost();
    void everyNarrowNumberIsWrittenInEveryBase();
    void everyLimitIsWrittenInEveryBase();
    void everyCharacterIsADigitALetterOrNeither();
    void aTextIsReadAsQtReadsIt_data();
    void aTextIsReadAsQtReadsIt();
    void everyLimitIsReadAsQtReadsIt();
    void aMarkOfBaseTwoIsReadWhereQtReadsIt();
    void anyTextIsReadAsQtReadsIt();
    void everyNumberIsReadBack();
    void partOfALongerTextCanBeRead();
};

void tst_IntegerText::theBytesOfANumberComeMostSignificantFirst()
{
    QCOMPARE(IntegerText::bigEndianBytes(static_cast<signed char>(-2)), QByteArray::fromHex("fe"));
    QCOMPARE(IntegerText::bigEndianBytes(static_cast<unsigned char>(0x12)), QByteArray::fromHex("12"));
    QCOMPARE(IntegerText::bigEndianBytes(short(-2)), QByteArray::fromHex("fffe"));
    QCOMPARE(IntegerText::bigEndianBytes(static_cast<unsigned short>(0x1234)), QByteArray::fromHex("1234"));
    QCOMPARE(IntegerText::bigEndianBytes(0x12345678), QByteArray::fromHex("12345678"));
    QCOMPARE(IntegerText::bigEndianBytes(0xfedcba98U), QByteArray::fromHex("fedcba98"));
    QCOMPARE(IntegerText::bigEndianBytes(0x123456789abcdef0LL), QByteArray::fromHex("123456789abcdef0"));
    QCOMPARE(IntegerText::bigEndianBytes(0xfedcba9876543210ULL), QByteArray::fromHex("fedcba9876543210"));
}

void tst_IntegerText::leadingZerosAndSeparatorsAreDroppedButForTheLastCharacter_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QChar>("separator");
    QTest::addColumn<QString>("expected");
    const QChar none;
    const QChar colon = QLatin1Char(':');
    QTest::newRow("nothing to drop") << "ff" << none << "ff";
    QTest::newRow("zeros") << "00ff" << none << "ff";
    QTest::newRow("zeros alone") << "0000" << none << "0";
    QTest::newRow("one zero") << "0" << none << "0";
    QTest::newRow("zeros within and behind") << "0a00" << none << "a00";
    QTest::newRow("zeros and separators") << "00:00:0f" << colon << "f";
    QTest::newRow("zeros and separators alone") << "00:00" << colon << "0";
    QTest::newRow("a separator of another text") << "00:0f" << none << ":0f";
    QTest::newRow("a separator within") << "0f:00" << colon << "f:00";
    QTest::newRow("empty") << QString() << none << QString();
}

void tst_IntegerText::leadingZerosAndSeparatorsAreDroppedButForTheLastCharacter()
{
    QFETCH(QString, text);
    QFETCH(QChar, separator);
    QFETCH(QString, expected);
    QCOMPARE(IntegerText::significantDigits(text, separator), expected);
}

void tst_IntegerText::theDigitsAreThoseOfTheHost()
{
    const QByteArray bytes = QByteArray::fromHex("abcdef");
    QCOMPARE(IntegerText::fromValue(0xabcdef, 16), CCommon::byteAttryToHex(bytes, QChar()));
    QCOMPARE(IntegerText::fromValue(0xabcdef, 2), CCommon::byteAttryToBin(bytes, QChar()));
}

void tst_IntegerText::everyNarrowNumberIsWrittenInEveryBase()
{
    compareWritingOfAllValues<signed char>();
    compareWritingOfAllValues<unsigned char>();
    compareWritingOfAllValues<short>();
    compareWritingOfAllValues<unsigned short>();
}

void tst_IntegerText::everyLimitIsWrittenInEveryBase()
{
    compareWritingOfLimits<int>();
    compareWritingOfLimits<unsigned int>();
    compareWritingOfLimits<long long>();
    compareWritingOfLimits<unsigned long long>();
}

void tst_IntegerText::everyCharacterIsADigitALetterOrNeither()
{
    const QString lower = "0123456789abcdefghijklmnopqrstuvwxyz"_s;
    const QString upper = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ"_s;
    for (int code = 0; code <= 0xffff; ++code) {
        const QChar c(static_cast<ushort>(code));
        const int expected = static_cast<int>(qMax(lower.indexOf(c), upper.indexOf(c))); // -1 where it is in neither
        if (IntegerText::digit(c) != expected)
            qInfo("U+%04x", static_cast<unsigned>(code));
        QCOMPARE(IntegerText::digit(c), expected);
    }
}

void tst_IntegerText::aTextIsReadAsQtReadsIt_data()
{
    QTest::addColumn<QString>("text");
    for (const char* const text :
         {"",
          "0",
          "-0",
          "+0",
          "00",
          "7",
          "-7",
          "+7",
          "007",
          "-007",
          "+-7",
          "-+7",
          "--7",
          "++7",
          "-",
          "+",
          " 7",
          "7 ",
          "- 7",
          "1 2",
          "1,000",
          "1.000",
          "1'000",
          "1_000",
          "1.5",
          "1e3",
          "0x10",
          "0X10",
          "-0x10",
          "+0x10",
          "0x",
          "x10",
          "0b1",
          "0o7",
          "010",
          "z",
          "Z",
          "zz",
          "a",
          "A",
          "f",
          "g",
          "1f",
          "1F",
          "@",
          "[",
          "`",
          "{",
          "/",
          ":",
          "\xC2\xB2",
          "\xD9\xA5",
          "\xEF\xBC\x95",
          "\xE2\x88\x92\x37",
          "\xC2\xA0\x37",
          "7\xC2\xA0",
          "\xC3\xA9",
          "00000000000000000000000000000000000000000000000000000000000000000000000000000000007",
          "1000000000000000000000000000000000000000000000000000000000000000000000000000000000",
          "in",
          "nan",
          "inf"})
        QTest::newRow(text) << text;
    QTest::newRow("a null character behind") << QString("7"_s + QChar());
    QTest::newRow("a null character within") << QString("7"_s + QChar() + "7"_s);
    QTest::newRow("a null character before") << QString(QChar() + "7"_s);
}

void tst_IntegerText::aTextIsReadAsQtReadsIt()
{
    QFETCH(QString, text);
    for (int base = 2; base <= 36; ++base)
        compareReadings(text, base);
}

void tst_IntegerText::everyLimitIsReadAsQtReadsIt()
{
    const QVector<quint64> numbers = limits();
    for (int base = 2; base <= 36; ++base) {
        for (const quint64 n : numbers) {
            const QString digits = QString::number(n, base);
            for (const QString& text : {digits, digits.toUpper(), "0"_s + digits, "-"_s + digits, "+"_s + digits,
                                        digits + "0"_s, "1"_s + digits, digits + "-"_s})
                compareReadings(text, base);
        }
    }
}

void tst_IntegerText::aMarkOfBaseTwoIsReadWhereQtReadsIt()
{
    int value = 0;
    const bool isRead = IntegerText::toValue(u"0b101", 2, &value);
#if QT_VERSION < QT_VERSION_CHECK(6, 4, 0) // the first Qt that takes the mark, as all take that of base 16
    QVERIFY(!isRead);
#else
    QVERIFY(isRead);
    QCOMPARE(value, 5);
#endif
    QVERIFY(IntegerText::toValue(u"0x101", 16, &value));
    QCOMPARE(value, 0x101);
}

void tst_IntegerText::anyTextIsReadAsQtReadsIt()
{
    QRandomGenerator random(20240607); // always the same texts
    const QString characters = "00112233445566778899abcdefxyzABFXZ+- ,.\xD9\xA5"_s;
    for (int i = 0; i < 100000; ++i) {
        const int base = random.bounded(2, 37);
        // Digits of the base mostly, so that about half of the texts are numbers.
        QString text;
        const int size = random.bounded(1, 24);
        for (int k = 0; k < size; ++k) {
            const bool isAnything = random.bounded(30) == 0;
            text += isAnything ? QString(characters.at(random.bounded(characters.size())))
                               : QString::number(random.bounded(base), base);
        }
        compareReadings(text, base);
        if (QTest::currentTestFailed())
            return;
    }
}

void tst_IntegerText::everyNumberIsReadBack()
{
    for (int n = -32768; n <= 32767; ++n) {
        short value = 0;
        const QString text = IntegerText::fromValue(short(n), 10);
        QVERIFY(IntegerText::toValue(text, 10, &value));
        QCOMPARE(int(value), n);
    }
    for (const int base : {2, 10, 16}) {
        for (int n = 0; n <= 65535; ++n) {
            unsigned short value = 0;
            const QString text = IntegerText::fromValue(static_cast<unsigned short>(n), base);
            QVERIFY(IntegerText::toValue(text, base, &value));
            QCOMPARE(int(value), n);
        }
    }
}

void tst_IntegerText::partOfALongerTextCanBeRead()
{
    const QString text = "U = 42 V"_s;
    int value = 0;
    QVERIFY(IntegerText::toValue(QStringView(text).mid(4, 2), 10, &value));
    QCOMPARE(value, 42);
    QVERIFY(!IntegerText::toValue(QStringView(text).mid(4), 10, &value));
    QVERIFY(!IntegerText::toValue(QStringView(text).mid(0, 4), 10, &value));
}

TESSERA_TEST_APPLESS_MAIN(tst_IntegerText)
#include "tst_IntegerText.moc"
