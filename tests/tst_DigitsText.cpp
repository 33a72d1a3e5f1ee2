// SPDX-License-Identifier: MIT
#include "support/TestMain.h"

#include <Tessera/views/DigitsText_p.h>

#include <QElapsedTimer>
#include <QTest>

namespace DigitsText = nsUI::DigitsText;
using DigitsText::Field;
using DigitsText::Reading;
using DigitsText::Verdict;

namespace {

//! A field of so many digits, and the place before its first one.
Field hex(int digits, int from = 0)
{
    return {16, digits, from};
}

Field bin(int digits, int from = 0)
{
    return {2, digits, from};
}

QString text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

//! What the rich text of a refusal shows, in its two lines.
QStringList lines(QString refusal)
{
    refusal.remove(text("<p style='white-space:pre'>")).remove(text("</p>"));
    return refusal.split(text("<br>"));
}

} // namespace

Q_DECLARE_METATYPE(Field)
Q_DECLARE_METATYPE(Verdict)

class tst_DigitsText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void digitsAreReadFromWhatIsAroundThem_data();
    void digitsAreReadFromWhatIsAroundThem();
    void aWholeValueGoesToTheStart_data();
    void aWholeValueGoesToTheStart();
    void whatDoesNotFitIsToldWithItsPlace_data();
    void whatDoesNotFitIsToldWithItsPlace();
    void tooManyDigitsAreCounted_data();
    void tooManyDigitsAreCounted();
    void everyCharacterIsADigitOrIsNot_data();
    void everyCharacterIsADigitOrIsNot();
    void digitsAndBlanksCanBeTyped();
    void aHugeTextIsRefusedAtOnce();
    void aRefusalShowsWhatIsToBlame_data();
    void aRefusalShowsWhatIsToBlame();
    void aRefusalIsShort();
};

void tst_DigitsText::digitsAreReadFromWhatIsAroundThem_data()
{
    QTest::addColumn<Field>("field");
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QString>("digits");
    const auto row = [](const char* name, const Field& field, const char* pasted, const char* digits) {
        QTest::newRow(name) << field << text(pasted) << text(digits);
    };
    row("digits", hex(8), "DEADBEEF", "DEADBEEF");
    row("lower case", hex(8), "deadbeef", "DEADBEEF");
    row("one digit", hex(8), "7", "7");
    row("0x", hex(8), "0xDEADBEEF", "DEADBEEF");
    row("0X", hex(8), "0XDEADBEEF", "DEADBEEF");
    row("h", hex(8), "DEADBEEFh", "DEADBEEF");
    row("H", hex(8), "1H", "1");
    row("h after a blank", hex(8), "12 h", "12");
    row("bytes", hex(8), "DE AD BE EF", "DEADBEEF");
    row("0x and bytes", hex(8), "0x DE AD BE EF", "DEADBEEF");
    row("underscores", hex(8), "0xDEAD_BEEF", "DEADBEEF");
    row("blanks around it", hex(8), "  \t DEAD \t", "DEAD");
    row("a line end behind it", hex(8), "DEAD\n", "DEAD");
    row("a line end of two characters", hex(8), "0xDEAD\r\n", "DEAD");
    row("lines", hex(8), "DE\nAD\r\nBE\rEF", "DEADBEEF");
    row("blanks that do not break", hex(4),
        "DE\xC2\xA0"
        "AD",
        "DEAD");
    row("underscores alone around it", hex(8), "_12_", "12");

    row("a byte that looks like 0b", hex(2), "0b", "0B");
    row("a byte 0B with a blank behind it", hex(4), "0B 10", "0B10");
    row("a number that begins with 0b", hex(4), "0bad", "0BAD");
    row("a number that begins with 0b, marked", hex(6), "0x0b1010", "0B1010");
    row("a number that begins with 0b, marked with h", hex(4), "0b10h", "0B10");
    row("digits of base 2", hex(8), "1010", "1010");

    row("binary", bin(8), "10100101", "10100101");
    row("0b", bin(8), "0b10100101", "10100101");
    row("0B", bin(8), "0B1", "1");
    row("0b and nibbles", bin(8), "0b1010_0101", "10100101");
    row("0b and a blank", bin(8), "0b 1010 0101\n", "10100101");
}

void tst_DigitsText::digitsAreReadFromWhatIsAroundThem()
{
    QFETCH(Field, field);
    QFETCH(QString, pasted);
    const Reading reading = DigitsText::read(pasted, field);
    QCOMPARE(reading.verdict, Verdict::Fits);
    QTEST(reading.sDigits, "digits");
    QCOMPARE(reading.nFrom, 0);
}

void tst_DigitsText::aWholeValueGoesToTheStart_data()
{
    QTest::addColumn<Field>("field");
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<int>("from");
    QTest::newRow("whole, from the start") << hex(4) << text("1234") << 0;
    QTest::newRow("whole, from the middle") << hex(4, 3) << text("12 34") << 0;
    QTest::newRow("whole, from the end") << hex(4, 4) << text("0x1234") << 0;
    QTest::newRow("part, from the start") << hex(4) << text("123") << 0;
    QTest::newRow("part, from the middle") << hex(4, 2) << text("12") << 2;
    QTest::newRow("part, the last digit") << hex(4, 3) << text("1") << 3;
    QTest::newRow("binary, whole") << bin(8, 5) << text("0b10100101") << 0;
    QTest::newRow("binary, part") << bin(8, 5) << text("0b101") << 5;
}

void tst_DigitsText::aWholeValueGoesToTheStart()
{
    QFETCH(Field, field);
    QFETCH(QString, pasted);
    const Reading reading = DigitsText::read(pasted, field);
    QCOMPARE(reading.verdict, Verdict::Fits);
    QTEST(reading.nFrom, "from");
}

void tst_DigitsText::whatDoesNotFitIsToldWithItsPlace_data()
{
    QTest::addColumn<Field>("field");
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<Verdict>("verdict");
    QTest::addColumn<int>("at");
    QTest::addColumn<int>("length");
    const auto row = [](const char* name, const Field& field, const char* pasted, Verdict verdict, int at, int length) {
        QTest::newRow(name) << field << text(pasted) << verdict << at << length;
    };
    row("a letter", hex(8), "12G4", Verdict::NotADigit, 2, 1);
    row("the letter behind f", hex(8), "efg", Verdict::NotADigit, 2, 1);
    row("a sign", hex(8), "-12", Verdict::NotADigit, 0, 1);
    row("a point", hex(8), "1.5", Verdict::NotADigit, 1, 1);
    row("words", hex(8), " hello", Verdict::NotADigit, 1, 1);
    row("a comma between bytes", hex(8), "12,34", Verdict::NotADigit, 2, 1);
    row("0x twice", hex(8), "0x12 0x34", Verdict::NotADigit, 6, 1);
    row("0x and h", hex(8), "0x12h", Verdict::NotADigit, 4, 1);
    row("h alone", hex(8), "h", Verdict::NotADigit, 0, 1);
    row("h in the middle", hex(8), "12h34", Verdict::NotADigit, 2, 1);
    row("x alone", hex(8), "x12", Verdict::NotADigit, 0, 1);
    row("0 and x apart", hex(8), "0_x12", Verdict::NotADigit, 2, 1);
    row("another script's digit", hex(8), "1\xD9\xA1", Verdict::NotADigit, 1, 1);
    row("a digit of full width", hex(8), "\xEF\xBC\x91", Verdict::NotADigit, 0, 1);
    row("a letter of full width", hex(8), "\xEF\xBC\xA1", Verdict::NotADigit, 0, 1);
    row("a digit beyond the first plane", hex(8), "1\xF0\x9D\x9F\x8E", Verdict::NotADigit, 1, 2);
    row("a mark of the byte order", hex(8), "1\xEF\xBB\xBF", Verdict::NotADigit, 1, 1);
    row("a digit of another base", bin(8), "1012", Verdict::NotADigit, 3, 1);
    row("a letter in binary", bin(8), "10b", Verdict::NotADigit, 2, 1);

    row("binary for hexadecimal", hex(8), "0b1010", Verdict::OtherBase, 0, 2);
    row("BINARY for hexadecimal", hex(8), "0B1", Verdict::OtherBase, 0, 2);
    row("binary of the value's length", hex(6), "0b1010", Verdict::OtherBase, 0, 2);
    row("binary in nibbles", hex(8), "\n0b1010_1010 1111", Verdict::OtherBase, 1, 2);
    row("hexadecimal for binary", bin(8), "0x10", Verdict::OtherBase, 0, 2);
    row("HEXADECIMAL for binary", bin(8), " 0XFF", Verdict::OtherBase, 1, 2);
    row("hexadecimal with h for binary", bin(8), "10h", Verdict::OtherBase, 2, 1);
    row("hexadecimal letters with h for binary", bin(8), "F1H", Verdict::OtherBase, 2, 1);

    row("blanks", hex(8), " \n_", Verdict::NoDigit, 3, 0);
    row("nothing", hex(8), "", Verdict::NoDigit, 0, 0);
    row("a mark alone", hex(8), "0x", Verdict::NoDigit, 0, 2);
    row("a mark and blanks", bin(8), "0b  ", Verdict::NoDigit, 0, 2);

    row("a digit too many", hex(4), "12345", Verdict::TooLong, 4, 1);
    row("two bytes too many", hex(4), "0x1234 56 78", Verdict::TooLong, 7, 5);
    row("a leading zero too many", hex(2), "0FFh", Verdict::TooLong, 2, 1);
    row("beyond the end", hex(4, 2), "123", Verdict::TooLong, 2, 1);
    row("at the end", hex(4, 4), "1", Verdict::TooLong, 0, 1);
    row("a bit too many", bin(8), "0b101001011", Verdict::TooLong, 10, 1);
}

void tst_DigitsText::whatDoesNotFitIsToldWithItsPlace()
{
    QFETCH(Field, field);
    QFETCH(QString, pasted);
    const Reading reading = DigitsText::read(pasted, field);
    QTEST(reading.verdict, "verdict");
    QTEST(reading.nAt, "at");
    QTEST(reading.nLength, "length");
    QCOMPARE(reading.sDigits, QString());
}

void tst_DigitsText::tooManyDigitsAreCounted_data()
{
    QTest::addColumn<Field>("field");
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("room");
    QTest::newRow("more than the value") << hex(4) << text("0x1234_5") << 5 << 4;
    QTest::newRow("more than the value, from its middle") << hex(4, 2) << text("12345") << 5 << 4;
    QTest::newRow("more than is left") << hex(4, 2) << text("123") << 3 << 2;
    QTest::newRow("nothing is left") << hex(4, 4) << text("12") << 2 << 0;
}

void tst_DigitsText::tooManyDigitsAreCounted()
{
    QFETCH(Field, field);
    QFETCH(QString, pasted);
    const Reading reading = DigitsText::read(pasted, field);
    QCOMPARE(reading.verdict, Verdict::TooLong);
    QTEST(reading.nCount, "count");
    QTEST(reading.nRoom, "room");
}

void tst_DigitsText::everyCharacterIsADigitOrIsNot_data()
{
    QTest::addColumn<Field>("field");
    QTest::addColumn<QString>("digits");
    QTest::newRow("hexadecimal") << hex(2) << text("0123456789ABCDEFabcdef");
    QTest::newRow("binary") << bin(8) << text("01");
}

void tst_DigitsText::everyCharacterIsADigitOrIsNot()
{
    QFETCH(Field, field);
    QFETCH(QString, digits);
    for (uint n = 0; n <= 0xFFFF; ++n) {
        const QChar c(static_cast<ushort>(n));
        const Reading reading = DigitsText::read(QString(c), field);
        const Verdict expected = digits.contains(c)                     ? Verdict::Fits
                                 : c.isSpace() || c == QLatin1Char('_') ? Verdict::NoDigit
                                                                        : Verdict::NotADigit;
        if (reading.verdict != expected || (expected == Verdict::Fits && reading.sDigits != QString(c).toUpper()))
            QFAIL(qPrintable(text("U+%1").arg(n, 4, 16, QLatin1Char('0'))));
        QCOMPARE(DigitsText::isTyped(QString(c), field.nBase), digits.contains(c) || c == QLatin1Char(' '));
    }
}

void tst_DigitsText::digitsAndBlanksCanBeTyped()
{
    QVERIFY(DigitsText::isTyped(QString(), 16));
    QVERIFY(DigitsText::isTyped(text("1 aF"), 16));
    QVERIFY(DigitsText::isTyped(text("0 1"), 2));
    QVERIFY(!DigitsText::isTyped(text("1g"), 16));
    QVERIFY(!DigitsText::isTyped(text("12"), 2));
    QVERIFY(!DigitsText::isTyped(text("1_2"), 16));
}

void tst_DigitsText::aHugeTextIsRefusedAtOnce()
{
    const QString huge(50 * 1000 * 1000, QLatin1Char('0'));
    QElapsedTimer timer;
    timer.start();
    const Reading reading = DigitsText::read(huge, hex(16));
    const QString tip = DigitsText::refusal(huge, hex(16), reading);
    QVERIFY2(timer.elapsed() < 20, qPrintable(QString::number(timer.elapsed()))); // a look at each takes more
    QCOMPARE(reading.verdict, Verdict::TooLong);
    QCOMPARE(reading.nCount, 50 * 1000 * 1000);
    QCOMPARE(reading.nRoom, 16);
    QVERIFY(tip.size() < 200);

    // Room for a page of blanks is there all the same.
    QCOMPARE(DigitsText::read(QString(4000, QLatin1Char('\n')) + text("12"), hex(2)).verdict, Verdict::Fits);
    QCOMPARE(DigitsText::read(text("A\r\n").repeated(8192), hex(8192)).verdict, Verdict::Fits);
    QCOMPARE(DigitsText::read(QString(4200, QLatin1Char('\n')) + text("12"), hex(2)).verdict, Verdict::TooLong);
}

void tst_DigitsText::aRefusalShowsWhatIsToBlame_data()
{
    QTest::addColumn<Field>("field");
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QString>("reason");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char* name, const Field& field, const char* pasted, const char* reason,
                        const char* shown) {
        QTest::newRow(name) << field << text(pasted) << text(reason) << text(shown);
    };
    row("a letter", hex(8), "12G4", "G ≠ [0-9A-F]", "12<b><u>G</u></b>4");
    row("a letter in binary", bin(8), "0b12", "2 ≠ [01]", "0b1<b><u>2</u></b>");
    row("another script's digit", hex(8), "1\xD9\xA1", "\xD9\xA1 U+0661 ≠ [0-9A-F]", "1<b><u>\xD9\xA1</u></b>");
    row("a digit beyond the first plane", hex(8), "\xF0\x9D\x9F\x8E", "\xF0\x9D\x9F\x8E U+1D7CE ≠ [0-9A-F]",
        "<b><u>\xF0\x9D\x9F\x8E</u></b>");
    row("a control character", hex(8),
        "1\x01"
        "2",
        "U+0001 ≠ [0-9A-F]", "1<b><u>\xEF\xBF\xBD</u></b>2");
    row("a direction override", hex(8),
        "1\xE2\x80\xAE"
        "2",
        "U+202E ≠ [0-9A-F]", "1<b><u>\xEF\xBF\xBD</u></b>2");
    row("markup", hex(8), "<b>12</b>", "&lt; ≠ [0-9A-F]", "<b><u>&lt;</u></b>b&gt;12&lt;/b&gt;");
    row("a mark of arguments", hex(8), "%1", "% ≠ [0-9A-F]", "<b><u>%</u></b>1");
    row("line ends", hex(8), "1\r\n2\tz", "z ≠ [0-9A-F]", "1  2 <b><u>z</u></b>");
    row("the other base", hex(8), "0b1010", "0b ≠ 0x", "<b><u>0b</u></b>1010");
    row("the other base of binary", bin(8), "0xFF", "0x ≠ 0b", "<b><u>0x</u></b>FF");
    row("the other base of binary, behind it", bin(8), "FFh", "h ≠ 0b", "FF<b><u>h</u></b>");
    row("no digit", hex(8), "0x", "0 × [0-9A-F]", "<b><u>0x</u></b>");
    row("too long", hex(4), "0x12345", "5 × [0-9A-F] &gt; 4", "0x1234<b><u>5</u></b>");
    row("beyond the end", bin(8, 6), "0b111", "3 × [01] &gt; 2", "0b11<b><u>1</u></b>");
    row("a long text", hex(8), "0000000000111111111122222222223333333333G4444444444555555555566", "G ≠ [0-9A-F]",
        "…2222223333333333<b><u>G</u></b>4444444444555555…");
    row("far too long", hex(2), "0x0000000000111111111122222222223333333333", "40 × [0-9A-F] &gt; 2",
        "0x00<b><u>0000000011111111</u></b>…");
}

void tst_DigitsText::aRefusalShowsWhatIsToBlame()
{
    QFETCH(Field, field);
    QFETCH(QString, pasted);
    QFETCH(QString, reason);
    QFETCH(QString, shown);
    const QString tip = DigitsText::refusal(pasted, field, DigitsText::read(pasted, field));
    QCOMPARE(lines(tip), (QStringList{reason, shown}));
}

void tst_DigitsText::aRefusalIsShort()
{
    for (const QString& pasted : {QString(4000, QLatin1Char('<')), QString(4000, QLatin1Char('1')),
                                  text("1").repeated(2000) + QLatin1Char('z') + text("1").repeated(2000)}) {
        const QString tip = DigitsText::refusal(pasted, hex(2), DigitsText::read(pasted, hex(2)));
        QVERIFY2(tip.size() < 300, qPrintable(tip));
    }
}

TESSERA_TEST_APPLESS_MAIN(tst_DigitsText)
#include "tst_DigitsText.moc"
