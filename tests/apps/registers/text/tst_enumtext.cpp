// SPDX-License-Identifier: MIT
#include "GuiTestSupport.h"
#include "support/TestMain.h"

#include "text/EnumText.h"

using namespace GuiTestSupport;

Q_DECLARE_METATYPE(registers::TextState)

namespace {

constexpr quint64 kLargest = 0xF;
constexpr quint64 kPresent = 9;

/// OFF is 0, ON is 1, WIDE is 4 to 7, and 2 is spelled like a number.
QSharedPointer<Enumeration> names()
{
    EnumValue wide = makeName(QStringLiteral("WIDE"), 4);
    wide.mask = ~quint64(3);
    return makeEnumeration({makeName(QStringLiteral("OFF"), 0), makeName(QStringLiteral("ON"), 1), wide,
                            makeName(QStringLiteral("3"), 2)});
}

QSharedPointer<Enumeration> namesWithDefault()
{
    QSharedPointer<Enumeration> enumeration = names();
    EnumValue others = makeName(QStringLiteral("OTHER"), 0);
    others.isDefault = true;
    others.hasValue = false;
    enumeration->values.append(others);
    return enumeration;
}

} // namespace

class tst_EnumText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aTypedTextHasAValueOrNone_data();
    void aTypedTextHasAValueOrNone();
    void everyValueReadsBackFromItsText();
    void everyBeginningOfATextCanBeTyped();
    void choosingAnEntryThatNamesTheValueKeepsIt();
    void anEntryForAllOthersStandsForTheLowestFreeValue();
    void entriesBeyondTheFieldCannotBeChosen();
};

void tst_EnumText::aTypedTextHasAValueOrNone_data()
{
    const quint64 none = ~quint64(0);
    QTest::addColumn<QString>("typed");
    QTest::addColumn<quint64>("value");
    QTest::addColumn<TextState>("state");
    QTest::newRow("a name") << QStringLiteral("ON") << quint64(1) << TextState::Acceptable;
    QTest::newRow("a name in another case") << QStringLiteral("on") << quint64(1) << TextState::Acceptable;
    QTest::newRow("a name with its number") << QStringLiteral("ON (0x1)") << quint64(1) << TextState::Acceptable;
    QTest::newRow("a name with another number") << QStringLiteral("ON (0x2)") << none << TextState::Invalid;
    QTest::newRow("a name of several values") << QStringLiteral("WIDE (6)") << quint64(6) << TextState::Acceptable;
    QTest::newRow("a name with open bits") << QStringLiteral("WIDE (0b01xx)") << quint64(4) << TextState::Acceptable;
    QTest::newRow("decimal") << QStringLiteral("13") << quint64(13) << TextState::Acceptable;
    QTest::newRow("hexadecimal") << QStringLiteral("0xd") << quint64(13) << TextState::Acceptable;
    QTest::newRow("binary") << QStringLiteral("0b1101") << quint64(13) << TextState::Acceptable;
    QTest::newRow("a number that is a name too") << QStringLiteral("3") << quint64(3) << TextState::Acceptable;
    QTest::newRow("that name with its number") << QStringLiteral("3 (2)") << quint64(2) << TextState::Acceptable;
    QTest::newRow("no name") << QStringLiteral("0x5 (not named)") << quint64(5) << TextState::Acceptable;
    QTest::newRow("the largest") << QStringLiteral("15") << quint64(15) << TextState::Acceptable;
    QTest::newRow("above the largest") << QStringLiteral("16") << none << TextState::Invalid;
    QTest::newRow("far above") << QStringLiteral("0x10000000000000001") << none << TextState::Invalid;
    QTest::newRow("negative") << QStringLiteral("-1") << none << TextState::Invalid;
    QTest::newRow("another word") << QStringLiteral("hello") << none << TextState::Invalid;
    QTest::newRow("nothing") << QString() << none << TextState::Intermediate;
    QTest::newRow("the beginning of a number") << QStringLiteral("0b") << none << TextState::Intermediate;
}

void tst_EnumText::aTypedTextHasAValueOrNone()
{
    QFETCH(QString, typed);
    QFETCH(quint64, value);
    QFETCH(TextState, state);
    const EnumText text(names(), kLargest);
    QCOMPARE(text.value(typed, kPresent).value_or(~quint64(0)), value);
    QCOMPARE(text.state(typed), state);
}

void tst_EnumText::everyValueReadsBackFromItsText()
{
    for (const auto& enumeration : {names(), namesWithDefault()}) {
        const EnumText text(enumeration, kLargest);
        for (const NumberBase base : {NumberBase::Decimal, NumberBase::Hexadecimal, NumberBase::Binary}) {
            for (quint64 value = 0; value <= kLargest; ++value) {
                QCOMPARE(text.value(text.text(value, base), kPresent).value_or(~quint64(0)), value);
            }
        }
    }
}

void tst_EnumText::everyBeginningOfATextCanBeTyped()
{
    const EnumText text(namesWithDefault(), kLargest);
    for (const NumberBase base : {NumberBase::Decimal, NumberBase::Hexadecimal, NumberBase::Binary}) {
        for (quint64 value = 0; value <= kLargest; ++value) {
            const QString whole = text.text(value, base);
            for (int length = 0; length <= whole.size(); ++length) {
                QVERIFY2(text.state(whole.left(length)) != TextState::Invalid, qPrintable(whole.left(length)));
            }
        }
    }
}

void tst_EnumText::choosingAnEntryThatNamesTheValueKeepsIt()
{
    const EnumText text(names(), kLargest);
    const EnumText::Choice& wide = text.choices().at(2);
    QCOMPARE(text.chosen(wide, 6), quint64(6));
    QCOMPARE(text.chosen(wide, 1), quint64(4));
    QCOMPARE(text.value(QStringLiteral("wide"), 7).value_or(0), quint64(7));
}

void tst_EnumText::anEntryForAllOthersStandsForTheLowestFreeValue()
{
    const EnumText text(namesWithDefault(), kLargest);
    const EnumText::Choice& others = text.choices().at(4);
    QCOMPARE(text.text(others, NumberBase::Decimal), QStringLiteral("OTHER (any other)"));
    QCOMPARE(text.chosen(others, 0), quint64(3));
    QCOMPARE(text.chosen(others, 12), quint64(12));
    QCOMPARE(text.text(12, NumberBase::Hexadecimal), QStringLiteral("OTHER (0xC)"));
}

void tst_EnumText::entriesBeyondTheFieldCannotBeChosen()
{
    const EnumText text(names(), 1);
    QCOMPARE(text.choices().size(), 2);
    QVERIFY(!text.value(QStringLiteral("WIDE"), 0));
}

TESSERA_TEST_MAIN(tst_EnumText)
#include "tst_enumtext.moc"
