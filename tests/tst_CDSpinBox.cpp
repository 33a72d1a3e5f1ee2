// SPDX-License-Identifier: MIT
#include "support/GlobalState.h"
#include "support/TestMain.h"

#include <Tessera/widgets/CDSpinBox.h>

#include <QApplication>
#include <QClipboard>
#include <QFocusEvent>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <QMetaEnum>
#include <QMetaMethod>
#include <QPointer>
#include <QRegularExpression>
#include <QRegularExpressionValidator>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QStyle>
#include <QStyleFactory>
#include <QStyleOptionSpinBox>
#include <QtTest>

#include <algorithm>
#include <cstring>
#include <limits>
#include <type_traits>

using nsUI::CDSpinBox;

Q_DECLARE_METATYPE(QValidator::State)
Q_DECLARE_METATYPE(nsUI::CDSpinBox::StepType)

//! A way for the user to leave a box.
using Leave = void (*)(QWidget&);
Q_DECLARE_METATYPE(Leave)

namespace {

//! Shows what a subclass may see, and counts how often the text of the current value is asked for.
class Probe : public CDSpinBox
{
public:
    using CDSpinBox::CDSpinBox;
    using CDSpinBox::setLineEdit;
    using QAbstractSpinBox::initStyleOption;
    using QAbstractSpinBox::lineEdit;

    QSize baseSizeHint() const { return QAbstractSpinBox::sizeHint(); }
    QSize baseMinimumSizeHint() const { return QAbstractSpinBox::minimumSizeHint(); }

    QString textFromValue(double val) const override
    {
        QString sText = CDSpinBox::textFromValue(val);
        if (qFuzzyCompare(val, value())) {
            ++m_nAsked;
            if (m_nAsked == m_nLongAnswer) {
                sText += QStringLiteral("00000000");
            }
        }
        return sText;
    }

    mutable int m_nAsked = 0;
    int m_nLongAnswer = 0; //!< which answer, counted from 1, is a longer text
};

QString decorated(const CDSpinBox& box)
{
    return box.prefix() + box.suffix() + QLatin1Char(' ') + box.textFromValue(box.value());
}

//! What Qt 5 calls the smallest size of a control; Qt 6 has none.
QSize globalStrut()
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return QApplication::globalStrut();
#else
    return QSize(0, 0);
#endif
}

//! What the style makes of a content of the given width in a spin box.
QSize styled(const Probe& box, int nWidth, int nHeight)
{
    QStyleOptionSpinBox option;
    box.initStyleOption(&option);
    return box.style()
        ->sizeFromContents(QStyle::CT_SpinBox, &option, QSize(nWidth, nHeight), &box)
        .expandedTo(globalStrut());
}

//! Replaces everything that the line edit shows in a single change.
void pasteOver(QLineEdit& edit, const QString& sText)
{
    QApplication::clipboard()->setText(sText);
    edit.selectAll();
    QTest::keySequence(&edit, QKeySequence::Paste);
}

struct Leaving
{
    const char* name;
    Leave leave;
};

const QVector<Leaving>& waysToLeave()
{
    static const QVector<Leaving> ways = {
        {"Return", [](QWidget& box) { QTest::keyClick(&box, Qt::Key_Return); }},
        {"Enter", [](QWidget& box) { QTest::keyClick(&box, Qt::Key_Enter, Qt::KeypadModifier); }},
        {"loss of focus",
         [](QWidget& box) {
             QFocusEvent event(QEvent::FocusOut);
             QApplication::sendEvent(&box, &event);
         }},
        {"another window",
         [](QWidget& box) {
             QEvent event(QEvent::ActivationChange);
             QApplication::sendEvent(&box, &event);
         }},
        {"hiding", [](QWidget& box) { box.hide(); }},
        {"closing", [](QWidget& box) { box.close(); }},
        {"a refused key and loss of focus", [](QWidget& box) {
             QTest::keyClick(&box, Qt::Key_X);
             QFocusEvent event(QEvent::FocusOut);
             QApplication::sendEvent(&box, &event);
         }}};
    return ways;
}

//! Equal in every bit, the sign of zero included.
bool isSame(double a, double b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}

QList<double> firstArguments(const QSignalSpy& spy)
{
    QList<double> values;
    for (const QList<QVariant>& arguments : spy) {
        values << arguments.at(0).toDouble();
    }
    return values;
}

} // namespace

class tst_CDSpinBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isAQDoubleSpinBoxWithNothingOfItsOwnInTheMetaObject();
    void ownsTheParentsCare();
    void startsWithTheFormatFAndTheDefaultsOfQDoubleSpinBox();
    void showsTwoFixedDecimalsAtFirst();

    void takesTheFiveFormatCharactersAndNoOther_data();
    void takesTheFiveFormatCharactersAndNoOther();
    void showsANewFormatFromTheNextChangeOfTheValue();
    void repaintsWhenTheFormatChangesAndOnlyThen();

    void writesNumbersInItsFormatWithItsDecimals_data();
    void writesNumbersInItsFormatWithItsDecimals();
    void writesInTheCLocaleWithoutGroupSeparators();
    void readsNumbersInTheCLocale_data();
    void readsNumbersInTheCLocale();

    void validatesTheWholeTextAgainstTheRange_data();
    void validatesTheWholeTextAgainstTheRange();
    void validatesWithoutTouchingTheTextOrTheCursor();
    void refusesToBeCleared();
    void takesDigitsThatKeepItInTheRange();
    void refusesEveryEditWithAPrefixOrASuffix();
    void leavesTextCursorAndSelectionAloneWhenItRefusesAKey_data();
    void leavesTextCursorAndSelectionAloneWhenItRefusesAKey();
    void refusesWhatIsNoFiniteNumber_data();
    void refusesWhatIsNoFiniteNumber();
    void showsAnInfiniteValueOfItsRange();

    void keepsAValueThatIsNotTouched_data();
    void keepsAValueThatIsNotTouched();
    void keepsAValueThatWasTypedWithMorePlacesThanItShows();
    void keepsAValueWhoseTextItRefusesItself_data();
    void keepsAValueWhoseTextItRefusesItself();
    void keepsTheValueAndShowsTheNewFormatOnEnter_data();
    void keepsTheValueAndShowsTheNewFormatOnEnter();
    void tellsAnUntouchedValueOnEnterAsQtDoes_data();
    void tellsAnUntouchedValueOnEnterAsQtDoes();
    void stepsFromTheValueAndNotFromItsText();
    void readsAnEditedTextOnEnter_data();
    void readsAnEditedTextOnEnter();

    void numbersItsStepTypesLikeQt();
    void keepsTheStepTypeInTheBaseClass_data();
    void keepsTheStepTypeInTheBaseClass();
    void stepsAsQtDoesInTheFirstTwoStepTypes_data();
    void stepsAsQtDoesInTheFirstTwoStepTypes();
    void stepsByTheRatio_data();
    void stepsByTheRatio();
    void signalsEveryRatioStepThatChangesTheValue();
    void selectsNothingAfterARatioStep();
    void stepsByTheRatioOnTheArrowAndPageKeys();

    void survivesASlotThatDeletesIt_data();
    void survivesASlotThatDeletesIt();
    void letsASubclassReplaceTheLineEdit();
    void leavesALineEditTheValidatorThatItBrings();

    void hintsAtTheWidthOfTheCurrentValue_data();
    void hintsAtTheWidthOfTheCurrentValue();
    void hintsAtTheExactWidthOfTheWrittenExample();
    void hintFollowsTheValueAndNotTheRange();
    void hintLeavesRoomForTheSpecialValueText();
    void hintIsNotCutToALength();
    void hintIsComputedAfreshOnEveryCall();
    void hintMeasuresTheCurrentValueTwice();
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0) // Qt 6 has no strut
    void hintIsNeverSmallerThanTheGlobalStrut();
#endif
};

void tst_CDSpinBox::isAQDoubleSpinBoxWithNothingOfItsOwnInTheMetaObject()
{
    const QMetaObject& meta = CDSpinBox::staticMetaObject;
    QCOMPARE(meta.className(), "nsUI::CDSpinBox");
    QCOMPARE(meta.superClass(), &QDoubleSpinBox::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.enumeratorCount(), meta.enumeratorOffset());
}

void tst_CDSpinBox::ownsTheParentsCare()
{
    QWidget parent;
    const CDSpinBox* const pBox = new CDSpinBox(&parent);
    QCOMPARE(pBox->parentWidget(), &parent);
    const CDSpinBox orphan;
    QVERIFY(!orphan.parentWidget());
}

void tst_CDSpinBox::startsWithTheFormatFAndTheDefaultsOfQDoubleSpinBox()
{
    const CDSpinBox box;
    const QDoubleSpinBox base;
    QCOMPARE(box.fmtChar(), QLatin1Char('f'));
    QCOMPARE(box.stepType(), CDSpinBox::DefaultStepType);
    QCOMPARE(box.value(), base.value());
    QCOMPARE(box.minimum(), base.minimum());
    QCOMPARE(box.maximum(), base.maximum());
    QCOMPARE(box.singleStep(), base.singleStep());
    QCOMPARE(box.decimals(), 2);
    QCOMPARE(box.prefix(), QString());
    QCOMPARE(box.suffix(), QString());
}

void tst_CDSpinBox::showsTwoFixedDecimalsAtFirst()
{
    CDSpinBox box;
    box.setValue(1.5);
    QCOMPARE(box.text(), QStringLiteral("1.50"));
}

void tst_CDSpinBox::takesTheFiveFormatCharactersAndNoOther_data()
{
    QTest::addColumn<QChar>("ch");
    QTest::addColumn<QChar>("kept"); // by a box that had 'g', or 'f' before the row "g"

    for (const char c : {'e', 'E', 'f', 'g', 'G'}) {
        QTest::addRow("%c is taken", c) << QChar::fromLatin1(c) << QChar::fromLatin1(c);
    }
    for (const char c : {'x', 'F', 'd', '1', ' ', '%'}) {
        QTest::addRow("%c is ignored", c) << QChar::fromLatin1(c) << QChar(QLatin1Char('g'));
    }
    QTest::newRow("the null character is ignored") << QChar() << QChar(QLatin1Char('g'));
    QTest::newRow("a full-width e is ignored") << QChar(0xFF45) << QChar(QLatin1Char('g'));
    QTest::newRow("a character whose low byte is e is ignored") << QChar(0x0165) << QChar(QLatin1Char('g'));
}

void tst_CDSpinBox::takesTheFiveFormatCharactersAndNoOther()
{
    QFETCH(const QChar, ch);
    QFETCH(const QChar, kept);
    CDSpinBox box;
    if (ch != QLatin1Char('g')) {
        box.setFmtChar(QLatin1Char('g'));
        QCOMPARE(box.fmtChar(), QLatin1Char('g'));
    }
    box.setFmtChar(ch);
    QCOMPARE(box.fmtChar(), kept);
}

void tst_CDSpinBox::showsANewFormatFromTheNextChangeOfTheValue()
{
    CDSpinBox box;
    box.setMaximum(1000);
    box.setValue(1.5);
    QSignalSpy spy(&box, qOverload<double>(&CDSpinBox::valueChanged));
    QVERIFY(spy.isValid());

    box.setFmtChar(QLatin1Char('e'));
    QCOMPARE(box.text(), QStringLiteral("1.50"));
    QCOMPARE(spy.count(), 0);

    box.setValue(250);
    QCOMPARE(box.text(), QStringLiteral("2.50e+02"));
    QCOMPARE(firstArguments(spy), QList<double>{250});
}

void tst_CDSpinBox::repaintsWhenTheFormatChangesAndOnlyThen()
{
    class PaintCounter : public CDSpinBox
    {
    public:
        int m_nPaints = 0;

    protected:
        void paintEvent(QPaintEvent* pEvent) override
        {
            ++m_nPaints;
            CDSpinBox::paintEvent(pEvent);
        }
    };
    const TestSupport::GlobalState global;
    QApplication::setCursorFlashTime(0); // a blinking cursor paints too
    PaintCounter box;
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    QTRY_VERIFY(box.m_nPaints > 0);
    QCoreApplication::processEvents();

    box.m_nPaints = 0;
    box.setFmtChar(QLatin1Char('f'));
    box.setFmtChar(QLatin1Char('x'));
    QCoreApplication::processEvents();
    const int nUnchanged = box.m_nPaints;
    box.setFmtChar(QLatin1Char('E'));
    QCoreApplication::processEvents();
    const int nChanged = box.m_nPaints;
    QCOMPARE(nUnchanged, 0);
    QCOMPARE(nChanged, 1);
}

void tst_CDSpinBox::writesNumbersInItsFormatWithItsDecimals_data()
{
    QTest::addColumn<char>("format");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");

    QTest::newRow("f pads") << 'f' << 2 << 1.5 << QStringLiteral("1.50");
    QTest::newRow("f rounds") << 'f' << 2 << 12345.678 << QStringLiteral("12345.68");
    QTest::newRow("f without decimals") << 'f' << 0 << 2.75 << QStringLiteral("3");
    QTest::newRow("f negative") << 'f' << 3 << -0.0624 << QStringLiteral("-0.062");
    QTest::newRow("f large") << 'f' << 1 << 1e15 << QStringLiteral("1000000000000000.0");
    QTest::newRow("e") << 'e' << 2 << 12345.678 << QStringLiteral("1.23e+04");
    QTest::newRow("e small") << 'e' << 4 << 0.00012 << QStringLiteral("1.2000e-04");
    QTest::newRow("E") << 'E' << 2 << 12345.678 << QStringLiteral("1.23E+04");
    QTest::newRow("g short enough") << 'g' << 6 << 12.5 << QStringLiteral("12.5");
    QTest::newRow("g counts significant digits") << 'g' << 2 << 12345.678 << QStringLiteral("1.2e+04");
    QTest::newRow("G counts significant digits") << 'G' << 2 << 12345.678 << QStringLiteral("1.2E+04");
    QTest::newRow("zero") << 'e' << 1 << 0.0 << QStringLiteral("0.0e+00");
}

void tst_CDSpinBox::writesNumbersInItsFormatWithItsDecimals()
{
    QFETCH(const char, format);
    QFETCH(const int, decimals);
    QFETCH(const double, value);
    QFETCH(const QString, text);
    CDSpinBox box;
    box.setDecimals(decimals);
    box.setFmtChar(QLatin1Char(format));
    QCOMPARE(box.textFromValue(value), text);
}

void tst_CDSpinBox::writesInTheCLocaleWithoutGroupSeparators()
{
    CDSpinBox box;
    box.setLocale(QLocale(QLocale::German, QLocale::Germany));
    box.setGroupSeparatorShown(true);
    box.setRange(0, 1e9);
    box.setValue(1234567.25);
    QCOMPARE(box.text(), QStringLiteral("1234567.25"));
    QCOMPARE(box.textFromValue(1234567.25), QStringLiteral("1234567.25"));
}

void tst_CDSpinBox::readsNumbersInTheCLocale_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");

    QTest::newRow("fixed") << QStringLiteral("12.75") << 12.75;
    QTest::newRow("negative") << QStringLiteral("-3.5") << -3.5;
    QTest::newRow("explicit plus") << QStringLiteral("+3.5") << 3.5;
    QTest::newRow("exponent") << QStringLiteral("1.5e3") << 1500.0;
    QTest::newRow("not rounded to the decimals") << QStringLiteral("0.123456") << 0.123456;
    QTest::newRow("outside the range") << QStringLiteral("1e6") << 1e6;
    QTest::newRow("empty") << QString() << 0.0;
    QTest::newRow("words") << QStringLiteral("abc") << 0.0;
    QTest::newRow("number and words") << QStringLiteral("12 V") << 0.0;
    QTest::newRow("decimal comma") << QStringLiteral("1,5") << 0.0;
    QTest::newRow("two points") << QStringLiteral("1.2.3") << 0.0;
}

void tst_CDSpinBox::readsNumbersInTheCLocale()
{
    QFETCH(const QString, text);
    QFETCH(const double, value);
    CDSpinBox box;
    box.setLocale(QLocale(QLocale::German, QLocale::Germany));
    QCOMPARE(box.valueFromText(text), value);
}

void tst_CDSpinBox::validatesTheWholeTextAgainstTheRange_data()
{
    QTest::addColumn<QString>("prefix");
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QValidator::State>("state"); // in the range -10 to 100

    const QString none;
    const QString sVolt = QStringLiteral(" V");
    const QString sSign = QStringLiteral("U=");
    const auto accept = QValidator::Acceptable;
    const auto refuse = QValidator::Invalid;

    QTest::newRow("a number") << none << none << QStringLiteral("12.5") << accept;
    QTest::newRow("zero") << none << none << QStringLiteral("0") << accept;
    QTest::newRow("a negative number") << none << none << QStringLiteral("-9.99") << accept;
    QTest::newRow("an exponent") << none << none << QStringLiteral("1e2") << accept;
    QTest::newRow("more places than decimals") << none << none << QStringLiteral("0.123456") << accept;
    QTest::newRow("the maximum") << none << none << QStringLiteral("100") << accept;
    QTest::newRow("just above the maximum") << none << none << QStringLiteral("100.01") << refuse;
    QTest::newRow("the minimum") << none << none << QStringLiteral("-10") << accept;
    QTest::newRow("just below the minimum") << none << none << QStringLiteral("-10.01") << refuse;
    QTest::newRow("infinity") << none << none << QStringLiteral("inf") << refuse;
    QTest::newRow("negative infinity") << none << none << QStringLiteral("-inf") << refuse;
    QTest::newRow("empty") << none << none << none << refuse;
    QTest::newRow("a lone minus") << none << none << QStringLiteral("-") << refuse;
    QTest::newRow("a lone plus") << none << none << QStringLiteral("+") << refuse;
    QTest::newRow("a lone point") << none << none << QStringLiteral(".") << refuse;
    QTest::newRow("an exponent begun") << none << none << QStringLiteral("1e") << refuse;
    QTest::newRow("a word") << none << none << QStringLiteral("abc") << refuse;
    QTest::newRow("a decimal comma") << none << none << QStringLiteral("1,5") << refuse;
    QTest::newRow("its own text with a suffix") << none << sVolt << QStringLiteral("12.50 V") << refuse;
    QTest::newRow("its own text with a prefix") << sSign << none << QStringLiteral("U=12.50") << refuse;
    QTest::newRow("a bare number in spite of a suffix") << none << sVolt << QStringLiteral("12.50") << accept;
}

void tst_CDSpinBox::validatesTheWholeTextAgainstTheRange()
{
    QFETCH(const QString, prefix);
    QFETCH(const QString, suffix);
    QFETCH(QString, text);
    QFETCH(const QValidator::State, state);
    CDSpinBox box;
    box.setRange(-10, 100);
    box.setPrefix(prefix);
    box.setSuffix(suffix);
    int nPos = static_cast<int>(text.size());
    QCOMPARE(box.validate(text, nPos), state);

    // Towards a positive minimum, or a negative maximum, nothing is Intermediate either.
    box.setRange(1000, 2000);
    QCOMPARE(box.validate(text, nPos), QValidator::Invalid);
}

void tst_CDSpinBox::validatesWithoutTouchingTheTextOrTheCursor()
{
    CDSpinBox box;
    box.setSuffix(QStringLiteral(" V"));
    for (const QString& sText : {QStringLiteral(" 1.5 "), QStringLiteral("1.5 V"), QString()}) {
        QString sInput = sText;
        int nPos = 1;
        box.validate(sInput, nPos);
        QCOMPARE(sInput, sText);
        QCOMPARE(nPos, 1);
    }
}

void tst_CDSpinBox::refusesToBeCleared()
{
    Probe box;
    box.setValue(5);
    box.lineEdit()->selectAll();
    QTest::keyClick(&box, Qt::Key_Delete);
    QCOMPARE(box.text(), QStringLiteral("5.00"));
    QCOMPARE(box.value(), 5.0);
}

void tst_CDSpinBox::takesDigitsThatKeepItInTheRange()
{
    Probe box;
    box.setValue(5);
    QSignalSpy spy(&box, qOverload<double>(&CDSpinBox::valueChanged));
    QVERIFY(spy.isValid());
    box.lineEdit()->setCursorPosition(0);
    QTest::keyClicks(&box, QStringLiteral("2"));
    QCOMPARE(box.text(), QStringLiteral("25.00"));
    QTest::keyClicks(&box, QStringLiteral("9")); // 295.00 would be above the maximum, 99.99
    QCOMPARE(box.text(), QStringLiteral("25.00"));
    QCOMPARE(firstArguments(spy), QList<double>{25});
}

void tst_CDSpinBox::refusesEveryEditWithAPrefixOrASuffix()
{
    for (const bool bPrefix : {true, false}) {
        Probe box;
        box.setValue(5);
        if (bPrefix) {
            box.setPrefix(QStringLiteral("="));
        } else {
            box.setSuffix(QStringLiteral("V"));
        }
        const QString sBefore = box.text();
        QSignalSpy spy(&box, qOverload<double>(&CDSpinBox::valueChanged));
        QVERIFY(spy.isValid());
        box.lineEdit()->setCursorPosition(bPrefix ? 1 : 0);
        for (const int nKey : {Qt::Key_1, Qt::Key_2, Qt::Key_Delete, Qt::Key_Backspace}) {
            QTest::keyClick(&box, Qt::Key(nKey));
            QVERIFY(!box.hasAcceptableInput());
            QCOMPARE(box.value(), 5.0);
        }
        QCOMPARE(spy.count(), 0);
        QTest::keyClick(&box, Qt::Key_Return);
        QCOMPARE(box.text(), sBefore);
        QCOMPARE(box.value(), 5.0);
    }
}

void tst_CDSpinBox::leavesTextCursorAndSelectionAloneWhenItRefusesAKey_data()
{
    QTest::addColumn<QString>("prefix");
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<char>("format");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("key");

    const QString none;
    const QString sVolt = QStringLiteral(" V");
    const QString sSign = QStringLiteral("U=");
    // The value is 5 in the range 0 to 99.95; in the format 'e' it is 99.95, and the text 1.0e+02 is beyond that.
    QTest::newRow("a letter") << none << none << 'f' << 1 << 0 << int(Qt::Key_X);
    QTest::newRow("a letter over all") << none << none << 'f' << 0 << 3 << int(Qt::Key_X);
    QTest::newRow("a second point") << none << none << 'f' << 3 << 0 << int(Qt::Key_Period);
    QTest::newRow("everything erased") << none << none << 'f' << 3 << -3 << int(Qt::Key_Delete);
    QTest::newRow("a digit before a suffix") << none << sVolt << 'f' << 3 << 0 << int(Qt::Key_2);
    QTest::newRow("a digit over number and suffix") << none << sVolt << 'f' << 0 << 5 << int(Qt::Key_2);
    QTest::newRow("part of a suffix erased") << none << sVolt << 'f' << 4 << 1 << int(Qt::Key_Backspace);
    QTest::newRow("a digit behind a prefix") << sSign << none << 'f' << 2 << 0 << int(Qt::Key_2);
    QTest::newRow("a digit over prefix and number") << sSign << none << 'f' << 0 << 5 << int(Qt::Key_2);
    QTest::newRow("a digit between both") << sSign << sVolt << 'f' << 3 << 0 << int(Qt::Key_2);
    QTest::newRow("a digit beside a text beyond the maximum") << none << none << 'e' << 7 << 0 << int(Qt::Key_2);
    QTest::newRow("a letter over a text beyond the maximum") << none << none << 'e' << 0 << 7 << int(Qt::Key_X);
}

void tst_CDSpinBox::leavesTextCursorAndSelectionAloneWhenItRefusesAKey()
{
    QFETCH(const QString, prefix);
    QFETCH(const QString, suffix);
    QFETCH(const char, format);
    QFETCH(const int, start);
    QFETCH(const int, length);
    QFETCH(const int, key);
    Probe box;
    box.setMaximum(99.95);
    box.setValue(format == 'e' ? 99.95 : 5);
    box.setDecimals(2);
    const double value = box.value();
    box.setPrefix(prefix);
    box.setSuffix(suffix);
    box.setFmtChar(QLatin1Char(format));
    box.setDecimals(format == 'e' ? 2 : 1);
    const QString sText = box.text();
    QSignalSpy spy(&box, qOverload<double>(&CDSpinBox::valueChanged));
    QVERIFY(spy.isValid());
    QLineEdit& edit = *box.lineEdit();
    for (int nTimes = 0; nTimes < 3; ++nTimes) {
        edit.setSelection(start, length);
        const int nCursor = edit.cursorPosition();
        const QString sSelected = edit.selectedText();
        QTest::keyClick(&edit, Qt::Key(key));
        QCOMPARE(edit.text(), sText);
        QCOMPARE(edit.cursorPosition(), nCursor);
        QCOMPARE(edit.selectedText(), sSelected);
    }
    QCOMPARE(box.value(), value);
    QCOMPARE(spy.count(), 0);
}

void tst_CDSpinBox::refusesWhatIsNoFiniteNumber_data()
{
    QTest::addColumn<QString>("text");
    for (const char* const text : {"nan", "NaN", "NAN", "inf", "Inf", "+inf", "-inf", "infinity"}) {
        QTest::newRow(text) << QString::fromLatin1(text);
    }
}

void tst_CDSpinBox::refusesWhatIsNoFiniteNumber()
{
    QFETCH(const QString, text);
    const double infinite = std::numeric_limits<double>::infinity();
    for (const double bound : {99.0, infinite}) {
        Probe box;
        box.setRange(-bound, bound);
        box.setValue(5);
        QSignalSpy spy(&box, qOverload<double>(&CDSpinBox::valueChanged));
        QVERIFY(spy.isValid());
        QLineEdit& edit = *box.lineEdit();
        pasteOver(edit, text);
        QCOMPARE(edit.text(), QStringLiteral("5.00"));
        QCOMPARE(edit.selectedText(), QStringLiteral("5.00"));
        QCOMPARE(edit.cursorPosition(), 4);
        QTest::keyClick(&edit, Qt::Key_Return);
        QCOMPARE(box.value(), 5.0);
        for (const QList<QVariant>& arguments : qAsConst(spy)) {
            QCOMPARE(arguments.at(0).toDouble(), 5.0); // Enter tells the value again
        }
    }
}

void tst_CDSpinBox::showsAnInfiniteValueOfItsRange()
{
    const double infinite = std::numeric_limits<double>::infinity();
    Probe box;
    box.setMaximum(infinite);
    box.setValue(infinite);
    QCOMPARE(box.text(), QStringLiteral("inf"));
    QTest::keyClicks(&box, QStringLiteral("x"));
    QCOMPARE(box.text(), QStringLiteral("inf"));
    QTest::keyClick(&box, Qt::Key_Return);
    QCOMPARE(box.value(), infinite);
    box.lineEdit()->selectAll();
    QTest::keyClicks(&box, QStringLiteral("7"));
    QCOMPARE(box.value(), 7.0);

    // A word for a value of its own is no number either.
    box.setMinimum(0);
    box.setSpecialValueText(QStringLiteral("inf"));
    box.setValue(0);
    QCOMPARE(box.text(), QStringLiteral("inf"));
    QVERIFY(box.hasAcceptableInput());
}

void tst_CDSpinBox::keepsAValueThatIsNotTouched_data()
{
    QTest::addColumn<char>("format");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<double>("value");
    QTest::addColumn<bool>("tracking");
    QTest::addColumn<Leave>("leave");

    for (const Leaving& leaving : waysToLeave()) {
        for (const bool bTracking : {true, false}) {
            const char* const tracking = bTracking ? "" : ", without keyboard tracking";
            for (const char c : {'e', 'E', 'g', 'G', 'f'}) {
                QTest::addRow("%c, %s%s", c, leaving.name, tracking)
                    << c << 2 << 12345.68 << bTracking << leaving.leave;
            }
            QTest::addRow("one digit, %s%s", leaving.name, tracking)
                << 'g' << 0 << 98765.0 << bTracking << leaving.leave;
            QTest::addRow("negative, %s%s", leaving.name, tracking) << 'e' << 3 << -0.062 << bTracking << leaving.leave;
        }
    }
}

void tst_CDSpinBox::keepsAValueThatIsNotTouched()
{
    QFETCH(const char, format);
    QFETCH(const int, decimals);
    QFETCH(const double, value);
    QFETCH(const bool, tracking);
    QFETCH(const Leave, leave);
    Probe box;
    box.setKeyboardTracking(tracking);
    box.setFmtChar(QLatin1Char(format));
    box.setDecimals(decimals);
    box.setRange(-1e6, 1e6);
    box.setValue(1);
    box.setValue(value);
    box.show();
    const QString sText = box.text();
    QCOMPARE(sText, QString::number(value, format, decimals));
    QSignalSpy spy(&box, qOverload<double>(&CDSpinBox::valueChanged));
    QVERIFY(spy.isValid());
    for (int nTimes = 0; nTimes < 2; ++nTimes) {
        leave(box);
        QVERIFY(isSame(box.value(), value));
        QCOMPARE(box.text(), sText);
        for (const QList<QVariant>& arguments : qAsConst(spy)) {
            QVERIFY(isSame(arguments.at(0).toDouble(), value));
        }
        box.show();
    }
}

void tst_CDSpinBox::keepsAValueThatWasTypedWithMorePlacesThanItShows()
{
    Probe box;
    box.setValue(5);
    box.lineEdit()->selectAll();
    QTest::keyClicks(&box, QStringLiteral("0.126"));
    QCOMPARE(box.value(), 0.126);
    for (int nTimes = 0; nTimes < 3; ++nTimes) {
        QTest::keyClick(&box, Qt::Key_Return);
        QCOMPARE(box.text(), QStringLiteral("0.13"));
        QCOMPARE(box.value(), 0.126);
    }
}

void tst_CDSpinBox::keepsAValueWhoseTextItRefusesItself_data()
{
    QTest::addColumn<QString>("prefix");
    QTest::addColumn<QString>("special");
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("value");

    const QString none;
    QTest::newRow("with a prefix") << QStringLiteral("U=") << none << -1e9 << 12345.68;
    QTest::newRow("special value text") << none << QStringLiteral("least") << 12.0 << 12.0;
    // German has a point between the thousands, which a fixed up text is rid of: 123e+04 would be in the range.
    QTest::newRow("a text below the minimum") << none << none << 12345.68 << 12345.68;
}

void tst_CDSpinBox::keepsAValueWhoseTextItRefusesItself()
{
    QFETCH(const QString, prefix);
    QFETCH(const QString, special);
    QFETCH(const double, minimum);
    QFETCH(const double, value);
    for (const auto mode : {QAbstractSpinBox::CorrectToPreviousValue, QAbstractSpinBox::CorrectToNearestValue}) {
        Probe box;
        box.setLocale(QLocale(QLocale::German, QLocale::Germany));
        box.setCorrectionMode(mode);
        box.setFmtChar(QLatin1Char('e'));
        box.setRange(minimum, 1e9);
        box.setPrefix(prefix);
        box.setSpecialValueText(special);
        box.setValue(1e9);
        box.setValue(value);
        const QString sText = box.text();
        QTest::keyClick(&box, Qt::Key_Return);
        QVERIFY(isSame(box.value(), value));
        QCOMPARE(box.text(), sText);

        // A refused key on the way changes nothing about that.
        QTest::keyClicks(&box, QStringLiteral("x"));
        QFocusEvent leaving(QEvent::FocusOut);
        QApplication::sendEvent(&box, &leaving);
        QVERIFY(isSame(box.value(), value));
        QCOMPARE(box.text(), sText);
    }
}

void tst_CDSpinBox::keepsTheValueAndShowsTheNewFormatOnEnter_data()
{
    QTest::addColumn<QString>("formats"); // set one after another, the text not being rebuilt
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");

    QTest::newRow("e to f") << QStringLiteral("ef") << QStringLiteral("1.23e+04") << QStringLiteral("12345.68");
    QTest::newRow("f to e") << QStringLiteral("fe") << QStringLiteral("12345.68") << QStringLiteral("1.23e+04");
    QTest::newRow("e to E to g") << QStringLiteral("eEg") << QStringLiteral("1.23e+04") << QStringLiteral("1.2e+04");
    QTest::newRow("g to f to g to e") << QStringLiteral("gfge") << QStringLiteral("1.2e+04")
                                      << QStringLiteral("1.23e+04");
}

void tst_CDSpinBox::keepsTheValueAndShowsTheNewFormatOnEnter()
{
    QFETCH(const QString, formats);
    QFETCH(const QString, before);
    QFETCH(const QString, after);
    for (const bool bTracking : {true, false}) {
        Probe box;
        box.setKeyboardTracking(bTracking);
        box.setRange(0, 1e6);
        box.setFmtChar(formats.at(0));
        box.setValue(12345.68);
        for (const QChar c : formats) {
            box.setFmtChar(c);
        }
        QCOMPARE(box.text(), before);
        QTest::keyClick(&box, Qt::Key_Return);
        QVERIFY(isSame(box.value(), 12345.68));
        QCOMPARE(box.text(), after);

        // What looks like a text of long ago is a number once it is typed.
        box.setFmtChar(QLatin1Char('f'));
        QTest::keyClick(&box, Qt::Key_Return);
        pasteOver(*box.lineEdit(), QStringLiteral("1.23e+04"));
        QTest::keyClick(&box, Qt::Key_Return);
        QCOMPARE(box.value(), 12300.0);
    }
}

void tst_CDSpinBox::tellsAnUntouchedValueOnEnterAsQtDoes_data()
{
    QTest::addColumn<bool>("tracking");
    QTest::newRow("with keyboard tracking") << true;
    QTest::newRow("without keyboard tracking") << false;
}

void tst_CDSpinBox::tellsAnUntouchedValueOnEnterAsQtDoes()
{
    QFETCH(const bool, tracking);
    const auto enter = [tracking](QDoubleSpinBox& box) {
        QStringList heard;
        QLineEdit* const pEdit = box.findChild<QLineEdit*>();
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
        QT_WARNING_PUSH
        QT_WARNING_DISABLE_DEPRECATED
        connect(&box, qOverload<const QString&>(&QDoubleSpinBox::valueChanged), &box,
                [&] { heard << QStringLiteral("valueChanged, a text"); });
        QT_WARNING_POP
#endif
        connect(&box, &QDoubleSpinBox::textChanged, &box, [&](const QString& sText) {
            heard << QStringLiteral("textChanged, shown: %1").arg(sText == box.text());
        });
        connect(&box, qOverload<double>(&QDoubleSpinBox::valueChanged), &box, [&](double value) {
            heard << QStringLiteral("valueChanged, the value: %1").arg(isSame(value, 12345.68));
        });
        connect(&box, &QDoubleSpinBox::editingFinished, &box, [&] { heard << QStringLiteral("editingFinished"); });
        connect(pEdit, &QLineEdit::returnPressed, &box, [&] {
            heard << QStringLiteral("returnPressed, all selected: %1").arg(pEdit->selectedText() == box.text());
        });
        box.setKeyboardTracking(tracking);
        QKeyEvent event(QEvent::KeyPress, Qt::Key_Enter, Qt::KeypadModifier, QStringLiteral("\r"));
        QApplication::sendEvent(&box, &event);
        return heard << QStringLiteral("event taken: %1").arg(event.isAccepted());
    };
    QDoubleSpinBox qtBox;
    qtBox.setLocale(QLocale::c());
    qtBox.setRange(0, 1e6);
    qtBox.setValue(12345.68);
    Probe box;
    box.setFmtChar(QLatin1Char('e'));
    box.setRange(0, 1e6);
    box.setValue(12345.68);
    QCOMPARE(enter(box), enter(qtBox));
}

void tst_CDSpinBox::stepsFromTheValueAndNotFromItsText()
{
    Probe box;
    box.setFmtChar(QLatin1Char('e'));
    box.setRange(0, 1e6);
    box.setValue(12345.68);
    QTest::keyClick(&box, Qt::Key_Return);
    QTest::keyClick(&box, Qt::Key_Up);
    QCOMPARE(box.value(), 12346.68);
    QTest::keyClick(&box, Qt::Key_Return);
    box.setSingleStep(1);
    box.setStepType(CDSpinBox::RatioStepType);
    QTest::keyClick(&box, Qt::Key_Up);
    QCOMPARE(box.value(), 24693.36);
}

void tst_CDSpinBox::readsAnEditedTextOnEnter_data()
{
    QTest::addColumn<bool>("tracking");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("value");

    for (const bool bTracking : {true, false}) {
        const char* const tracking = bTracking ? "" : ", without keyboard tracking";
        QTest::addRow("another number%s", tracking) << bTracking << QStringLiteral("7.5") << 7.5;
        QTest::addRow("more places than are shown%s", tracking) << bTracking << QStringLiteral("1.2345e4") << 12345.0;
        QTest::addRow("the number as it is shown%s", tracking) << bTracking << QStringLiteral("1.23e+04") << 12300.0;
    }
}

void tst_CDSpinBox::readsAnEditedTextOnEnter()
{
    QFETCH(const bool, tracking);
    QFETCH(const QString, typed);
    QFETCH(const double, value);
    Probe box;
    box.setKeyboardTracking(tracking);
    box.setFmtChar(QLatin1Char('e'));
    box.setRange(0, 1e6);
    box.setValue(12345.68);
    pasteOver(*box.lineEdit(), typed);
    for (int nTimes = 0; nTimes < 2; ++nTimes) {
        QTest::keyClick(&box, Qt::Key_Return);
        QCOMPARE(box.value(), value);
        QCOMPARE(box.text(), QString::number(value, 'e', 2));
    }
}

void tst_CDSpinBox::numbersItsStepTypesLikeQt()
{
    QCOMPARE(int(CDSpinBox::DefaultStepType), 0);
    QCOMPARE(int(CDSpinBox::AdaptiveDecimalStepType), 1);
    QCOMPARE(int(CDSpinBox::RatioStepType), 2);
    QCOMPARE(int(CDSpinBox::DefaultStepType), int(QAbstractSpinBox::DefaultStepType));
    QCOMPARE(int(CDSpinBox::AdaptiveDecimalStepType), int(QAbstractSpinBox::AdaptiveDecimalStepType));
    QVERIFY((std::is_same<decltype(CDSpinBox().stepType()), CDSpinBox::StepType>::value));
}

void tst_CDSpinBox::keepsTheStepTypeInTheBaseClass_data()
{
    QTest::addColumn<CDSpinBox::StepType>("type");

    QTest::newRow("default") << CDSpinBox::DefaultStepType;
    QTest::newRow("adaptive") << CDSpinBox::AdaptiveDecimalStepType;
    QTest::newRow("ratio") << CDSpinBox::RatioStepType;
}

void tst_CDSpinBox::keepsTheStepTypeInTheBaseClass()
{
    QFETCH(const CDSpinBox::StepType, type);
    CDSpinBox box;
    box.setStepType(type == CDSpinBox::DefaultStepType ? CDSpinBox::RatioStepType : CDSpinBox::DefaultStepType);
    box.setStepType(type);
    QCOMPARE(box.stepType(), type);
    QCOMPARE(int(static_cast<const QDoubleSpinBox&>(box).stepType()), int(type));

    // The other way round: what the base class is given, this class answers.
    CDSpinBox other;
    static_cast<QDoubleSpinBox&>(other).setStepType(static_cast<QAbstractSpinBox::StepType>(type));
    QCOMPARE(other.stepType(), type);
}

void tst_CDSpinBox::stepsAsQtDoesInTheFirstTwoStepTypes_data()
{
    QTest::addColumn<CDSpinBox::StepType>("type");
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("steps");
    QTest::addColumn<double>("stepped"); // with single step 0.5

    QTest::newRow("default, up") << CDSpinBox::DefaultStepType << 100.0 << 3 << 101.5;
    QTest::newRow("default, down") << CDSpinBox::DefaultStepType << 100.0 << -2 << 99.0;
    QTest::newRow("default, from zero") << CDSpinBox::DefaultStepType << 0.0 << 1 << 0.5;
    QTest::newRow("default, held at the maximum") << CDSpinBox::DefaultStepType << 999.8 << 1 << 1000.0;
    QTest::newRow("adaptive, up") << CDSpinBox::AdaptiveDecimalStepType << 100.0 << 1 << 110.0;
    QTest::newRow("adaptive, down") << CDSpinBox::AdaptiveDecimalStepType << 100.0 << -1 << 99.0;
    QTest::newRow("adaptive, below one") << CDSpinBox::AdaptiveDecimalStepType << 0.5 << 1 << 0.51;
}

void tst_CDSpinBox::stepsAsQtDoesInTheFirstTwoStepTypes()
{
    QFETCH(const CDSpinBox::StepType, type);
    QFETCH(const double, value);
    QFETCH(const int, steps);
    QFETCH(const double, stepped);
    Probe box;
    box.setRange(-1000, 1000);
    box.setSingleStep(0.5);
    box.setValue(value);
    box.setStepType(type);
    box.stepBy(steps);
    QCOMPARE(box.value(), stepped);
    QCOMPARE(box.lineEdit()->selectedText(), box.text()); // as Qt's boxes do after a step
}

void tst_CDSpinBox::stepsByTheRatio_data()
{
    QTest::addColumn<int>("decimals");
    QTest::addColumn<double>("singleStep");
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("steps");
    QTest::addColumn<double>("stepped"); // in the range -1000 to 1000

    QTest::newRow("one step up multiplies") << 2 << 0.1 << 100.0 << 1 << 110.0;
    QTest::newRow("one step down divides") << 2 << 0.1 << 100.0 << -1 << 90.91;
    QTest::newRow("three steps up") << 2 << 0.1 << 100.0 << 3 << 133.1;
    QTest::newRow("two steps down, each rounded") << 2 << 0.1 << 100.0 << -2 << 82.65;
    QTest::newRow("no step") << 2 << 0.1 << 100.0 << 0 << 100.0;
    QTest::newRow("a step of one doubles") << 2 << 1.0 << 3.0 << 2 << 12.0;
    QTest::newRow("a step of one halves") << 2 << 1.0 << 3.0 << -1 << 1.5;
    QTest::newRow("a negative value grows away from zero") << 2 << 0.1 << -100.0 << 1 << -110.0;
    QTest::newRow("a negative value shrinks on the way down") << 2 << 0.1 << -100.0 << -1 << -90.91;
    QTest::newRow("up from zero") << 2 << 0.1 << 0.0 << 1 << 0.01;
    QTest::newRow("down from zero") << 2 << 0.1 << 0.0 << -1 << 0.01;
    QTest::newRow("up from zero with three decimals") << 3 << 0.1 << 0.0 << 1 << 0.001;
    QTest::newRow("down from zero without decimals") << 0 << 0.1 << 0.0 << -1 << 1.0;
    QTest::newRow("through zero on the way up") << 2 << 1.0 << 0.0 << 3 << 0.04;
    QTest::newRow("down to zero and out of it again") << 2 << 2.0 << 0.01 << -2 << 0.01;
    QTest::newRow("down to zero") << 2 << 2.0 << 0.01 << -1 << 0.0;
    QTest::newRow("single step zero, up") << 2 << 0.0 << 100.0 << 1 << 101.0;
    QTest::newRow("single step zero, down") << 2 << 0.0 << 100.0 << -1 << 99.01;
    QTest::newRow("single step zero, one decimal") << 1 << 0.0 << 100.0 << 2 << 121.0;
    QTest::newRow("single step zero, no decimals") << 0 << 0.0 << 3.0 << 2 << 12.0;
    QTest::newRow("held at the maximum") << 2 << 1.0 << 300.0 << 5 << 1000.0;
    QTest::newRow("held at the minimum") << 2 << 1.0 << -300.0 << 5 << -1000.0;
    QTest::newRow("too small a ratio for the decimals") << 2 << 0.1 << 0.01 << 1 << 0.01;
}

void tst_CDSpinBox::stepsByTheRatio()
{
    QFETCH(const int, decimals);
    QFETCH(const double, singleStep);
    QFETCH(const double, value);
    QFETCH(const int, steps);
    QFETCH(const double, stepped);
    CDSpinBox box;
    box.setDecimals(decimals);
    box.setRange(-1000, 1000);
    box.setSingleStep(singleStep);
    box.setValue(value);
    box.setStepType(CDSpinBox::RatioStepType);
    box.stepBy(steps);
    QCOMPARE(box.value(), stepped);
}

void tst_CDSpinBox::signalsEveryRatioStepThatChangesTheValue()
{
    CDSpinBox box;
    box.setRange(0, 130);
    box.setSingleStep(0.1);
    box.setValue(100);
    box.setStepType(CDSpinBox::RatioStepType);
    QSignalSpy spy(&box, qOverload<double>(&CDSpinBox::valueChanged));
    QVERIFY(spy.isValid());

    box.stepBy(5); // the fourth and fifth step find the maximum reached
    QCOMPARE(firstArguments(spy), (QList<double>{110, 121, 130}));

    spy.clear();
    box.setSingleStep(2);
    box.setValue(0.01);
    spy.clear();
    box.stepBy(-3);
    QCOMPARE(firstArguments(spy), (QList<double>{0, 0.01, 0}));
}

void tst_CDSpinBox::selectsNothingAfterARatioStep()
{
    Probe box;
    box.setSingleStep(0.1);
    box.setValue(10);
    box.setStepType(CDSpinBox::RatioStepType);
    box.stepBy(1);
    QCOMPARE(box.text(), QStringLiteral("11.00"));
    QVERIFY(!box.lineEdit()->hasSelectedText());
}

void tst_CDSpinBox::stepsByTheRatioOnTheArrowAndPageKeys()
{
    CDSpinBox box;
    box.setRange(0, 1e6);
    box.setSingleStep(1);
    box.setValue(1);
    box.setStepType(CDSpinBox::RatioStepType);
    QTest::keyClick(&box, Qt::Key_Up);
    QCOMPARE(box.value(), 2.0);
    QTest::keyClick(&box, Qt::Key_PageUp); // ten steps
    QCOMPARE(box.value(), 2048.0);
    QTest::keyClick(&box, Qt::Key_Down);
    QCOMPARE(box.value(), 1024.0);
}

void tst_CDSpinBox::survivesASlotThatDeletesIt_data()
{
    QTest::addColumn<int>("steps"); // 0: the value is set
    QTest::addColumn<bool>("withItsParent");

    for (const bool bParent : {false, true}) {
        const char* const victim = bParent ? "its parent" : "itself";
        QTest::addRow("set, %s", victim) << 0 << bParent;
        QTest::addRow("one step, %s", victim) << 1 << bParent;
        QTest::addRow("many steps up, %s", victim) << 5 << bParent;
        QTest::addRow("many steps down, %s", victim) << -5 << bParent;
    }
}

void tst_CDSpinBox::survivesASlotThatDeletesIt()
{
    QFETCH(const int, steps);
    QFETCH(const bool, withItsParent);
    const QPointer<QWidget> pParent = new QWidget;
    const QPointer<CDSpinBox> pBox = new CDSpinBox(pParent);
    pBox->setValue(10);
    pBox->setSingleStep(0.5);
    pBox->setStepType(CDSpinBox::RatioStepType);
    int nTold = 0;
    QObject receiver;
    connect(pBox, qOverload<double>(&CDSpinBox::valueChanged), &receiver, [&] {
        ++nTold;
        delete (withItsParent ? pParent.data() : pBox.data());
    });
    if (steps == 0)
        pBox->setValue(20);
    else
        pBox->stepBy(steps);
    QVERIFY(pBox.isNull());
    QCOMPARE(nTold, 1);
    delete pParent.data();
}

void tst_CDSpinBox::letsASubclassReplaceTheLineEdit()
{
    Probe box;
    box.setFmtChar(QLatin1Char('e'));
    box.setRange(0, 1e6);
    box.setValue(12345.68);
    box.setFmtChar(QLatin1Char('f'));
    auto* const pEdit = new QLineEdit;
    box.setLineEdit(pEdit);
    box.show();
    QCOMPARE(pEdit->text(), QStringLiteral("12345.68"));
    pasteOver(*pEdit, QStringLiteral("nan"));
    QCOMPARE(pEdit->text(), QStringLiteral("12345.68"));
    QTest::keyClicks(pEdit, QStringLiteral("7"));
    QCOMPARE(box.value(), 7.0);
    box.setFmtChar(QLatin1Char('e'));
    box.setValue(12345.68);
    QTest::keyClick(pEdit, Qt::Key_Return);
    QVERIFY(isSame(box.value(), 12345.68));
    box.setSuffix(QStringLiteral(" V"));
    QTest::keyClicks(pEdit, QStringLiteral("7"));
    QCOMPARE(pEdit->text(), QStringLiteral("1.23e+04 V"));
    box.setLineEdit(pEdit);
    box.setLineEdit(nullptr);
    QCOMPARE(box.lineEdit(), pEdit);
}

void tst_CDSpinBox::leavesALineEditTheValidatorThatItBrings()
{
    Probe box;
    auto* const pEdit = new QLineEdit;
    const QRegularExpressionValidator octal(QRegularExpression(QStringLiteral("[0-7.]*")));
    pEdit->setValidator(&octal);
    box.setLineEdit(pEdit);
    box.setValue(5);
    QCOMPARE(pEdit->validator(), &octal);
    pEdit->selectAll();
    QTest::keyClicks(pEdit, QStringLiteral("285"));
    QCOMPARE(box.value(), 25.0);
}

void tst_CDSpinBox::hintsAtTheWidthOfTheCurrentValue_data()
{
    QTest::addColumn<QString>("prefix");
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<double>("value");
    QTest::addColumn<char>("format");
    QTest::addColumn<bool>("buttons");

    QTest::newRow("bare") << QString() << QString() << 12345.678 << 'f' << true;
    QTest::newRow("prefix") << QStringLiteral("U = ") << QString() << 12345.678 << 'f' << true;
    QTest::newRow("suffix") << QString() << QStringLiteral(" mV") << 12345.678 << 'f' << true;
    QTest::newRow("both") << QStringLiteral("U = ") << QStringLiteral(" mV") << 7.0 << 'f' << true;
    QTest::newRow("exponent") << QString() << QStringLiteral(" mV") << 12345.678 << 'e' << true;
    QTest::newRow("no buttons") << QString() << QString() << 12345.678 << 'f' << false;
}

void tst_CDSpinBox::hintsAtTheWidthOfTheCurrentValue()
{
    QFETCH(const QString, prefix);
    QFETCH(const QString, suffix);
    QFETCH(const double, value);
    QFETCH(const char, format);
    QFETCH(const bool, buttons);
    for (const QString& sStyle : QStyleFactory::keys()) {
        const QScopedPointer<QStyle> pStyle(QStyleFactory::create(sStyle));
        Probe box;
        box.setStyle(pStyle.data());
        box.setRange(0, 1e6);
        box.setPrefix(prefix);
        box.setSuffix(suffix);
        box.setFmtChar(QLatin1Char(format));
        box.setValue(value);
        box.setButtonSymbols(buttons ? QAbstractSpinBox::UpDownArrows : QAbstractSpinBox::NoButtons);

        const int nWidth = box.fontMetrics().horizontalAdvance(decorated(box)) + 2;
        QCOMPARE(box.sizeHint(), styled(box, nWidth, box.baseSizeHint().height()));
        QCOMPARE(box.minimumSizeHint(), styled(box, nWidth, box.baseMinimumSizeHint().height()));
    }
}

void tst_CDSpinBox::hintsAtTheExactWidthOfTheWrittenExample()
{
    Probe box;
    box.setRange(0, 1000000);
    box.setPrefix(QStringLiteral("<"));
    box.setSuffix(QStringLiteral(">"));
    box.setValue(12345.678);
    const int nWidth = box.fontMetrics().horizontalAdvance(QStringLiteral("<> 12345.68")) + 2;
    QCOMPARE(box.sizeHint().width(), styled(box, nWidth, box.baseSizeHint().height()).width());
}

void tst_CDSpinBox::hintFollowsTheValueAndNotTheRange()
{
    CDSpinBox box;
    box.setRange(0, 10);
    box.setValue(1);
    const QSize small = box.sizeHint();
    const QSize smallMinimum = box.minimumSizeHint();
    box.setRange(-1e9, 1e9);
    QCOMPARE(box.sizeHint(), small);
    QCOMPARE(box.minimumSizeHint(), smallMinimum);
    box.setValue(1e9);
    QVERIFY(box.sizeHint().width() > small.width());
    QVERIFY(box.minimumSizeHint().width() > smallMinimum.width());
}

void tst_CDSpinBox::hintLeavesRoomForTheSpecialValueText()
{
    Probe box;
    const QString sSpecial = QStringLiteral("no voltage has been measured so far");
    box.setValue(5);
    box.setSpecialValueText(sSpecial); // counts whether or not it is shown
    const int nWidth = box.fontMetrics().horizontalAdvance(sSpecial) + 2;
    QCOMPARE(box.sizeHint(), styled(box, nWidth, box.baseSizeHint().height()));
    QCOMPARE(box.minimumSizeHint(), styled(box, nWidth, box.baseMinimumSizeHint().height()));

    box.setSpecialValueText(QStringLiteral("-"));
    const int nValue = box.fontMetrics().horizontalAdvance(QStringLiteral(" 5.00")) + 2;
    QCOMPARE(box.sizeHint(), styled(box, nValue, box.baseSizeHint().height()));
}

void tst_CDSpinBox::hintIsNotCutToALength()
{
    Probe box;
    box.setDecimals(30);
    box.setRange(0, 10);
    box.setValue(1);
    QVERIFY(box.textFromValue(box.value()).size() > 18);
    const int nWidth = box.fontMetrics().horizontalAdvance(decorated(box)) + 2;
    QCOMPARE(box.sizeHint(), styled(box, nWidth, box.baseSizeHint().height()));
}

void tst_CDSpinBox::hintIsComputedAfreshOnEveryCall()
{
    Probe box;
    box.setRange(0, 1e6);
    box.setValue(1);
    const auto expected = [&box] {
        const int nWidth = box.fontMetrics().horizontalAdvance(decorated(box)) + 2;
        return styled(box, nWidth, box.baseSizeHint().height());
    };
    QList<int> widths{box.sizeHint().width()};
    QCOMPARE(box.sizeHint(), expected());

    box.setValue(123456);
    widths << box.sizeHint().width();
    QCOMPARE(box.sizeHint(), expected());

    // The format changes the text that is measured, though not yet the text that is shown.
    box.setFmtChar(QLatin1Char('e'));
    box.setDecimals(12);
    widths << box.sizeHint().width();
    QCOMPARE(box.sizeHint(), expected());

    QFont font = box.font();
    font.setPointSize(font.pointSize() * 2);
    box.setFont(font);
    widths << box.sizeHint().width();
    QCOMPARE(box.sizeHint(), expected());

    box.setSuffix(QStringLiteral(" metres per second"));
    widths << box.sizeHint().width();
    QCOMPARE(box.sizeHint(), expected());

    QList<int> growing = widths;
    std::sort(growing.begin(), growing.end());
    QCOMPARE(widths, growing);
    QCOMPARE(int(std::unique(growing.begin(), growing.end()) - growing.begin()), 5);
}

void tst_CDSpinBox::hintMeasuresTheCurrentValueTwice()
{
    // Which of the two texts is the longer one is found out by a box that answers differently the second time.
    for (const int nLong : {1, 2}) {
        for (const bool bMinimum : {false, true}) {
            Probe box;
            box.setRange(0, 50);
            box.setValue(7);
            const QSize base = bMinimum ? box.baseMinimumSizeHint() : box.baseSizeHint(); // Qt keeps it from now on
            box.m_nAsked = 0;
            box.m_nLongAnswer = nLong;
            const QSize hint = bMinimum ? box.minimumSizeHint() : box.sizeHint();
            QCOMPARE(box.m_nAsked, 2);
            const int nWidth = box.fontMetrics().horizontalAdvance(QStringLiteral(" 7.0000000000")) + 2;
            QCOMPARE(hint, styled(box, nWidth, base.height()));
        }
    }
}

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
void tst_CDSpinBox::hintIsNeverSmallerThanTheGlobalStrut()
{
    Probe box;
    const QSize natural = box.sizeHint();
    const QSize naturalMinimum = box.minimumSizeHint();
    QApplication::setGlobalStrut(QSize(700, 300));
    const QSize strutted = box.sizeHint();
    const QSize struttedMinimum = box.minimumSizeHint();
    QApplication::setGlobalStrut(QSize());
    QCOMPARE(strutted, QSize(700, 300));
    QCOMPARE(struttedMinimum, QSize(700, 300));
    QCOMPARE(box.sizeHint(), natural);
    QCOMPARE(box.minimumSizeHint(), naturalMinimum);
}
#endif

TESSERA_TEST_MAIN(tst_CDSpinBox)
#include "tst_CDSpinBox.moc"
