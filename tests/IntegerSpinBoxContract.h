// SPDX-License-Identifier: MIT
#pragma once

#include "TestSupport.h"

#include <QApplication>
#include <QClipboard>
#include <QEvent>
#include <QFocusEvent>
#include <QLineEdit>
#include <QLocale>
#include <QPaintEvent>
#include <QPointer>
#include <QRegion>
#include <QRegularExpression>
#include <QRegularExpressionValidator>
#include <QStringList>
#include <QStyleOptionSpinBox>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>
#include <cstddef>
#include <limits>
#include <optional>
#include <type_traits>
#include <vector>

/*!
    What all eight integer spin boxes promise, one sentence a test.

    IntegerSpinBoxTest below says how each promise is checked, for any of the eight classes. A test of one class
    derives from that and adds the numbers that only its own width has.
*/
class IntegerSpinBoxContract : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // A new box
    virtual void aNewBoxShowsZeroInTheRangeZeroToNinetyNine() = 0;
    virtual void aNewBoxBelongsToItsParent() = 0;
    virtual void aNewBoxAsksTheInputMethodForDigits() = 0;

    // The value
    virtual void aValueIsStoredThenShownThenTold() = 0;
    virtual void theSameValueAgainDoesNothing() = 0;
    virtual void aValueIsBroughtIntoTheRange_data() = 0;
    virtual void aValueIsBroughtIntoTheRange() = 0;
    virtual void aValueThatIsClampedToTheOldOneSaysNothing() = 0;
    virtual void everyValueOfTheTypeCanBeHeld() = 0;

    // The range
    virtual void aMaximumBelowTheMinimumTakesTheMinimumAlong_data() = 0;
    virtual void aMaximumBelowTheMinimumTakesTheMinimumAlong() = 0;
    virtual void aMinimumAboveTheMaximumTakesTheMaximumAlong_data() = 0;
    virtual void aMinimumAboveTheMaximumTakesTheMaximumAlong() = 0;
    virtual void aMaximumBelowTheValueTakesTheValueAlong() = 0;
    virtual void aMinimumAboveTheValueTakesTheValueAlong() = 0;
    virtual void aRangeTakesTheValueAlong_data() = 0;
    virtual void aRangeTakesTheValueAlong() = 0;
    virtual void anInvertedRangeIsIgnoredSilently_data() = 0;
    virtual void anInvertedRangeIsIgnoredSilently() = 0;
    virtual void theSameBoundsAgainDoNothing() = 0;
    virtual void boundsThatLeaveTheValueRefreshNothing() = 0;
    virtual void aSettingMayBeMadeOfAnotherOne() = 0;
    virtual void aSlotMayMakeARangeOfTheValueItIsTold() = 0;
    virtual void aSlotMayDeleteTheBox_data() = 0;
    virtual void aSlotMayDeleteTheBox() = 0;

    // Single step and step type
    virtual void aSingleStepIsTakenUnlessItIsNegative_data() = 0;
    virtual void aSingleStepIsTakenUnlessItIsNegative() = 0;
    virtual void aNewSingleStepRefreshesTheText() = 0;
    virtual void aSingleStepThatIsNotTakenRefreshesNothing() = 0;
    virtual void aStepTypeIsTakenWithoutARefresh() = 0;

    // Prefix, suffix and special value text
    virtual void prefixAndSuffixAreShownAroundTheNumber() = 0;
    virtual void theSamePrefixAndSuffixAgainDoNothing() = 0;
    virtual void theLayoutLearnsOfPrefixAndSuffixAfterTheyAreShown() = 0;
    virtual void theSpecialValueTextStandsForTheMinimum() = 0;
    virtual void aSpecialValueTextShowsWithTheNextRefresh() = 0;

    // The display base
    virtual void everyBaseFromTwoToThirtySixIsTakenSilently() = 0;
    virtual void anotherBaseIsShownAtOnce() = 0;
    virtual void theSameBaseAgainRefreshesNothing() = 0;
    virtual void aBaseOutOfRangeIsLoggedAndTenIsTakenInItsPlace_data() = 0;
    virtual void aBaseOutOfRangeIsLoggedAndTenIsTakenInItsPlace() = 0;
    virtual void aBaseOutOfRangeRefreshesNothingWhereTenIsSetAlready() = 0;

    // The text of a number
    virtual void aNumberIsWrittenInItsBase_data() = 0;
    virtual void aNumberIsWrittenInItsBase() = 0;
    virtual void everyNumberIsWrittenInEveryBase() = 0;
    virtual void theTextOfAValueHasNeitherPrefixNorSuffix() = 0;
    virtual void theLocaleOfTheUserDoesNotMatter() = 0;

    // The refresh of the line edit
    virtual void theTextIsToldOnlyWhenItChanges() = 0;
    virtual void theLineEditIsSilentWhileTheTextIsTold() = 0;
    virtual void aLineEditThatWasSilencedBeforeStaysSo() = 0;
    virtual void aRefreshRepaintsTheButtonsAsWell() = 0;
    virtual void theButtonsFollowWhatOpensOrClosesTheirWay_data() = 0;
    virtual void theButtonsFollowWhatOpensOrClosesTheirWay() = 0;
    virtual void aRefreshKeepsTheCursorWithinTheNumber_data() = 0;
    virtual void aRefreshKeepsTheCursorWithinTheNumber() = 0;
    virtual void aRefreshOfAnEmptyTextPutsTheCursorBeforeTheNumber() = 0;
    virtual void aRefreshKeepsTheLengthOfTheSelection_data() = 0;
    virtual void aRefreshKeepsTheLengthOfTheSelection() = 0;
    virtual void theTextIsToldBeforeTheCursorIsPlaced() = 0;
    virtual void theCursorStandsBehindTheSpecialValueText() = 0;

    // The clean text
    virtual void theCleanTextLacksThePrefixButNotTheSuffix_data() = 0;
    virtual void theCleanTextLacksThePrefixButNotTheSuffix() = 0;

    // Validation
    virtual void aTextHasAState_data() = 0;
    virtual void aTextHasAState() = 0;
    virtual void aValidatedTextIsCompletedAndItsPositionFollows_data() = 0;
    virtual void aValidatedTextIsCompletedAndItsPositionFollows() = 0;
    virtual void aTextHasAValueAcceptableOrNot_data() = 0;
    virtual void aTextHasAValueAcceptableOrNot() = 0;
    virtual void whatIsShownOfAValueThatIsNotNegativeCanBeReadBack() = 0;
    virtual void theBitPatternOfANegativeValueIsRefusedWhenItIsReadBack() = 0;
    virtual void validatingLooksAndChangesNothing() = 0;
    virtual void aTextIsNeverFixedUp() = 0;
    virtual void aTextThatWasJustExaminedKeepsItsAnswer() = 0;
    virtual void aTextIsRememberedAsItWasCompleted() = 0;
    virtual void anEmptyTextIsExaminedEveryTime() = 0;

    // Typing
    virtual void everyAcceptableKeystrokeIsTold() = 0;
    virtual void typingTheShownNumberAgainSaysNothing() = 0;
    virtual void aTypedNumberIsRewrittenAsTheBoxWritesIt() = 0;
    virtual void aDigitThatLeadsBeyondTheRangeIsRefused() = 0;
    virtual void aNumberCanBeTypedTowardsTheRange() = 0;
    virtual void anEmptiedBoxKeepsItsValue() = 0;
    virtual void aSignCanBeTypedBeforeItsNumber() = 0;
    virtual void typedTextIsReadInTheDisplayBase_data() = 0;
    virtual void typedTextIsReadInTheDisplayBase() = 0;
    virtual void aPrefixIsKeptWhileTyping() = 0;
    virtual void aPastedPrefixIsTakenOffAtBothEnds() = 0;
    virtual void aPrefixThatIsTypedOverComesBackBeforeTheCursor_data() = 0;
    virtual void aPrefixThatIsTypedOverComesBackBeforeTheCursor() = 0;
    virtual void aPrefixThatIsDeletedComesBackBeforeTheCursor() = 0;
    virtual void aPrefixThatIsNotPutThereMovesNoCursor() = 0;
    virtual void aDigitTypedBesideASuffixIsRefused() = 0;
    virtual void aRefusedKeyLeavesTextCursorAndSelectionAlone_data() = 0;
    virtual void aRefusedKeyLeavesTextCursorAndSelectionAlone() = 0;
    virtual void whatTheBoxShowsIsAcceptableInput_data() = 0;
    virtual void whatTheBoxShowsIsAcceptableInput() = 0;
    virtual void aTypedSpecialValueTextDoesNotReachTheValue() = 0;
    virtual void aPastedTextWithAnOldAnswerIsClamped() = 0;
    virtual void withoutKeyboardTrackingTypingChangesNothing() = 0;
    virtual void anUnacceptableTextStaysAsTypedWhenTheFocusLeaves() = 0;

    // Subclasses
    virtual void aSubclassDecidesWhichTextsAreAcceptable() = 0;
    virtual void aSubclassDecidesWhatATextMeans() = 0;
    virtual void aMeaningBeyondTheRangeIsClamped() = 0;
    virtual void aSubclassFixesUpWhatStandsThereWhenTheFocusLeaves() = 0;
    virtual void aSubclassDecidesHowAValueIsWritten() = 0;
    virtual void aSubclassDecidesWhichStepsAreEnabled() = 0;
    virtual void aSubclassMayReplaceTheLineEdit_data() = 0;
    virtual void aSubclassMayReplaceTheLineEdit() = 0;
    virtual void aLineEditKeepsTheValidatorThatItBrings() = 0;
    virtual void theSameLineEditOrNoneReplacesNothing() = 0;
    virtual void theLineEditMayBeReplacedWhileItsTextIsTold() = 0;

    // Stepping
    virtual void keysWheelAndButtonsStep() = 0;
    virtual void aKeyDoesNotStepBeyondABound() = 0;
    virtual void aStepMovesTheValueBySteps_data() = 0;
    virtual void aStepMovesTheValueBySteps() = 0;
    virtual void aStepIsStoredThenShownThenTold() = 0;
    virtual void aStepThatLeavesTheValueSaysNothingButSelects() = 0;
    virtual void everyStepSelectsTheNumber() = 0;
    virtual void overTheWholeTypeAStepWrapsInTheType_data() = 0;
    virtual void overTheWholeTypeAStepWrapsInTheType() = 0;
    virtual void anAdaptiveStepIsATenthOfTheMagnitude_data() = 0;
    virtual void anAdaptiveStepIsATenthOfTheMagnitude() = 0;
    virtual void theSingleStepCountsAgainAfterAdaptiveSteps() = 0;
    virtual void everyStepAgreesWithPlainArithmetic_data() = 0;
    virtual void everyStepAgreesWithPlainArithmetic() = 0;
    virtual void everyAdaptiveStepAgreesWithPlainArithmetic() = 0;
    virtual void stepsAreEnabledTowardsTheRestOfTheRange_data() = 0;
    virtual void stepsAreEnabledTowardsTheRestOfTheRange() = 0;

    // Selecting
    virtual void selectingAllSelectsTheNumberBackwards_data() = 0;
    virtual void selectingAllSelectsTheNumberBackwards() = 0;
    virtual void selectingAllIsASlot() = 0;
};

//! Words that the tests of the integer spin boxes are written in.
namespace SpinBoxWords {

inline QString operator""_s(const char* text, std::size_t size)
{
    return QString::fromUtf8(text, static_cast<int>(size));
}

inline QLineEdit& lineEditOf(const QAbstractSpinBox& box)
{
    return *box.findChild<QLineEdit*>();
}

//! Replaces everything that the line edit shows by typed keys.
inline void typeOver(QLineEdit& edit, const QString& keys)
{
    QTest::keySequence(&edit, QKeySequence::SelectAll);
    QTest::keyClicks(&edit, keys);
}

//! Replaces everything that the line edit shows in a single change.
inline void pasteOver(QLineEdit& edit, const QString& text)
{
    QApplication::clipboard()->setText(text);
    QTest::keySequence(&edit, QKeySequence::SelectAll);
    QTest::keySequence(&edit, QKeySequence::Paste);
}

//! A key of a keyboard: what it types, or which one it is.
struct Key
{
    QString text;
    std::optional<Qt::Key> code;

    void press(QWidget& widget) const
    {
        if (code)
            QTest::keyClick(&widget, *code);
        else
            QTest::keyClicks(&widget, text);
    }
};

//! What a box shows: a value, and what stands around it.
struct Dressed
{
    int base = 10;
    const char* prefix = "";
    const char* suffix = "";
    const char* special = "";
    qint64 value = 0; //!< cut to the width of the box

    template <class T>
    T valueAs() const
    {
        return static_cast<T>(value);
    }
};

inline void turnWheel(QWidget& widget, int notches)
{
    const QPointF middle = widget.rect().center();
    QWheelEvent event(middle, widget.mapToGlobal(middle.toPoint()), QPoint(), QPoint(0, 120 * notches), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
}

//! The digits of \a n in \a base, lower case: the host library chooses the case, no test depends on it.
inline QString digits(quint64 n, int base)
{
    return QString::number(n, base);
}

//! A row of a test's data: its name and a value for each column.
template <class... Values>
void row(const char* name, const Values&... values)
{
    (QTest::newRow(name) << ... << values);
}

} // namespace SpinBoxWords

Q_DECLARE_METATYPE(SpinBoxWords::Key)
Q_DECLARE_METATYPE(SpinBoxWords::Dressed)

using namespace SpinBoxWords;

//! The promises of IntegerSpinBoxContract, checked for one class and its value type.
template <class Box, class T>
class IntegerSpinBoxTest : public IntegerSpinBoxContract
{
protected:
    using Limits = std::numeric_limits<T>;
    static constexpr bool isSigned = std::is_signed_v<T>;
    static constexpr int bits = 8 * static_cast<int>(sizeof(T));

    static_assert(std::is_base_of_v<QAbstractSpinBox, Box>);
    static_assert(std::is_default_constructible_v<Box> && std::is_constructible_v<Box, QWidget*>);
    static_assert(std::has_virtual_destructor_v<Box>);

    template <class Expected, class Given>
    static constexpr void isOfType(Given)
    {
        static_assert(std::is_same_v<Expected, Given>);
    }

    //! Compiles for no other interface.
    static constexpr bool hasTheAgreedInterface()
    {
        isOfType<T (Box::*)() const>(&Box::value);
        isOfType<T (Box::*)() const>(&Box::minimum);
        isOfType<T (Box::*)() const>(&Box::maximum);
        isOfType<T (Box::*)() const>(&Box::singleStep);
        isOfType<QAbstractSpinBox::StepType (Box::*)() const>(&Box::stepType);
        isOfType<QString (Box::*)() const>(&Box::prefix);
        isOfType<QString (Box::*)() const>(&Box::suffix);
        isOfType<QString (Box::*)() const>(&Box::cleanText);
        isOfType<int (Box::*)() const>(&Box::displayIntegerBase);
        isOfType<void (Box::*)(const T&)>(&Box::setValue);
        isOfType<void (Box::*)(const T&)>(&Box::setMinimum);
        isOfType<void (Box::*)(const T&)>(&Box::setMaximum);
        isOfType<void (Box::*)(const T&, const T&)>(&Box::setRange);
        isOfType<void (Box::*)(const T&)>(&Box::setSingleStep);
        isOfType<void (Box::*)(QAbstractSpinBox::StepType)>(&Box::setStepType);
        isOfType<void (Box::*)(const QString&)>(&Box::setPrefix);
        isOfType<void (Box::*)(const QString&)>(&Box::setSuffix);
        isOfType<void (Box::*)(int)>(&Box::setDisplayIntegerBase);
        isOfType<QValidator::State (Box::*)(QString&, int&) const>(&Box::validate);
        isOfType<void (Box::*)(QString&) const>(&Box::fixup);
        isOfType<void (Box::*)(int)>(&Box::stepBy);
        isOfType<QAbstractSpinBox::StepEnabled (Box::*)() const>(&Box::stepEnabled);
        isOfType<T (Box::*)(const QString&) const>(&Box::valueFromText);
        isOfType<QString (Box::*)(const T&) const>(&Box::textFromValue);
        isOfType<void (Box::*)()>(&Box::selectAll);
        isOfType<void (Box::*)(const T&)>(&Box::valueChanged);
        isOfType<void (Box::*)(const QString&)>(&Box::textChanged);
        return true;
    }

    static QString decimal(T n)
    {
        if constexpr (isSigned)
            return QString::number(static_cast<qlonglong>(n));
        else
            return QString::number(static_cast<qulonglong>(n));
    }

    static bool isNegative(T n) { return n < T(1) && n != T(0); }

    //! The two's complement pattern of \a n in the width of the type.
    static quint64 pattern(T n) { return static_cast<std::make_unsigned_t<T>>(n); }

    static QString oneAboveTheHighest()
    {
        if constexpr (!isSigned && bits == 64)
            return QStringLiteral("18446744073709551616");
        else
            return QString::number(static_cast<quint64>(Limits::max()) + 1);
    }

    static QString oneBelowTheLowest()
    {
        if constexpr (isSigned && bits == 64)
            return QStringLiteral("-9223372036854775809");
        else
            return QString::number(static_cast<qint64>(Limits::min()) - 1);
    }

    static QString textChanged(const QString& text) { return QStringLiteral("textChanged ") + text; }
    static QString textChanged(const char* text) { return textChanged(QString::fromUtf8(text)); }
    static QString valueChanged(T n) { return QStringLiteral("valueChanged ") + decimal(n); }

    //! Both signals of a box as one list, in the order of their coming.
    class Heard
    {
    public:
        explicit Heard(Box& box)
        {
            const bool connected = QObject::connect(&box, &Box::textChanged, &m_receiver,
                                                    [this](const QString& text) { m_signals << textChanged(text); }) &&
                                   QObject::connect(&box, &Box::valueChanged, &m_receiver,
                                                    [this](const T& n) { m_signals << valueChanged(n); });
            if (!connected)
                qFatal("The box has not the signals that the test listens to.");
        }

        //! The signals since the last call.
        QStringList take()
        {
            QStringList taken;
            taken.swap(m_signals);
            return taken;
        }

    private:
        QObject m_receiver;
        QStringList m_signals;
    };

    //! The name of the class without its namespace.
    static QString className() { return QString::fromLatin1(Box::staticMetaObject.className()).section("::"_s, -1); }

    static QValidator::State stateOf(const Box& box, QString text)
    {
        int position = static_cast<int>(text.size());
        return box.validate(text, position);
    }

    //! Displaces the text that was examined last, which the box would answer for from memory.
    static void forgetLastText(const Box& box) { stateOf(box, QStringLiteral("~")); }

    static void dress(Box& box, const Dressed& dressed)
    {
        box.setRange(Limits::min(), Limits::max());
        box.setDisplayIntegerBase(dressed.base);
        box.setPrefix(QString::fromLatin1(dressed.prefix));
        box.setSuffix(QString::fromLatin1(dressed.suffix));
        box.setSpecialValueText(QString::fromLatin1(dressed.special));
        box.setValue(dressed.valueAs<T>() == T(1) ? T(2) : T(1));
        box.setValue(dressed.valueAs<T>());
    }

    //! All values of an 8-bit type; of the others those where carries, digits and signs change.
    static std::vector<T> tellingValues()
    {
        std::vector<T> values;
        if constexpr (bits == 8) {
            for (int n = Limits::min(); n <= Limits::max(); ++n)
                values.push_back(static_cast<T>(n));
        } else {
            const auto addAround = [&values](quint64 n) {
                for (const quint64 near : {n - 1, n, n + 1}) {
                    values.push_back(static_cast<T>(near));
                    values.push_back(static_cast<T>(quint64(0) - near));
                }
            };
            for (int shift = 0; shift < bits; ++shift)
                addAround(quint64(1) << shift);
            for (quint64 power = 1; power <= static_cast<quint64>(Limits::max()) / 10; power *= 10)
                addAround(power * 10);
            addAround(static_cast<quint64>(Limits::max()) / 3);
        }
        return values;
    }

private:
    // ----------------------------------------------------------------------------------------------- A new box

    void aNewBoxShowsZeroInTheRangeZeroToNinetyNine() override
    {
        static_assert(hasTheAgreedInterface());
        const Box box;
        QCOMPARE(box.value(), T(0));
        QCOMPARE(box.minimum(), T(0));
        QCOMPARE(box.maximum(), T(99));
        QCOMPARE(box.singleStep(), T(1));
        QCOMPARE(box.stepType(), QAbstractSpinBox::DefaultStepType);
        QCOMPARE(box.prefix(), QString());
        QCOMPARE(box.suffix(), QString());
        QCOMPARE(box.displayIntegerBase(), 10);
        QCOMPARE(box.cleanText(), QStringLiteral("0"));
        QCOMPARE(box.text(), QStringLiteral("0"));
        QCOMPARE(lineEditOf(box).cursorPosition(), 0);
    }

    void aNewBoxBelongsToItsParent() override
    {
        QWidget parent;
        const auto* const child = new Box(&parent);
        QCOMPARE(child->parentWidget(), &parent);
        const Box orphan;
        QVERIFY(!orphan.parentWidget());
    }

    void aNewBoxAsksTheInputMethodForDigits() override
    {
        const Box box;
        QCOMPARE(box.inputMethodHints(), Qt::InputMethodHints(Qt::ImhDigitsOnly));
    }

    // ------------------------------------------------------------------------------------------------ The value

    void aValueIsStoredThenShownThenTold() override
    {
        Box box;
        QStringList seen;
        const auto see = [&](const QString& signal) {
            seen << signal + ": value "_s + decimal(box.value()) + ", text "_s + lineEditOf(box).text();
        };
        connect(&box, &Box::valueChanged, &box, [&](const T& n) { see(valueChanged(n)); });
        connect(&box, &Box::textChanged, &box, [&](const QString& text) { see(textChanged(text)); });
        box.setValue(42);
        QCOMPARE(seen, QStringList({"textChanged 42: value 42, text 42"_s, "valueChanged 42: value 42, text 42"_s}));
    }

    void theSameValueAgainDoesNothing() override
    {
        Box box;
        box.setValue(42);
        lineEditOf(box).clear();
        Heard heard(box);
        box.setValue(42);
        QCOMPARE(box.value(), T(42));
        QCOMPARE(box.text(), QString());
        QCOMPARE(heard.take(), QStringList());
    }

    void aValueIsBroughtIntoTheRange_data() override
    {
        QTest::addColumn<T>("value");
        QTest::addColumn<T>("expected");
        row("the type's lowest", Limits::min(), T(10));
        row("one below the minimum", T(9), T(10));
        row("the minimum", T(10), T(10));
        row("between the bounds", T(17), T(17));
        row("the maximum", T(20), T(20));
        row("one above the maximum", T(21), T(20));
        row("the type's highest", Limits::max(), T(20));
    }

    void aValueIsBroughtIntoTheRange() override
    {
        QFETCH(T, value);
        QFETCH(T, expected);
        Box box;
        box.setRange(10, 20);
        box.setValue(15);
        Heard heard(box);
        box.setValue(value);
        QCOMPARE(box.value(), expected);
        QCOMPARE(box.text(), decimal(expected));
        QCOMPARE(heard.take(), QStringList({textChanged(decimal(expected)), valueChanged(expected)}));
    }

    void aValueThatIsClampedToTheOldOneSaysNothing() override
    {
        Box box;
        box.setValue(99);
        Heard heard(box);
        box.setValue(100);
        QCOMPARE(box.value(), T(99));
        QCOMPARE(heard.take(), QStringList());
    }

    void everyValueOfTheTypeCanBeHeld() override
    {
        Box box;
        box.setRange(Limits::min(), Limits::max());
        QCOMPARE(box.minimum(), Limits::min());
        QCOMPARE(box.maximum(), Limits::max());
        for (const T n : tellingValues()) {
            box.setValue(n);
            QCOMPARE(box.value(), n);
            QCOMPARE(box.text(), decimal(n));
        }
    }

    // ------------------------------------------------------------------------------------------------ The range

    void aMaximumBelowTheMinimumTakesTheMinimumAlong_data() override
    {
        QTest::addColumn<T>("minimum");
        QTest::addColumn<T>("maximum");
        QTest::addColumn<T>("newMaximum");
        row("below the minimum", T(10), T(20), T(9));
        row("the type's lowest", T(10), T(20), Limits::min());
        if constexpr (isSigned) {
            row("below zero on a new box", T(0), T(99), T(-5));
            row("below a negative minimum", T(-20), T(-10), T(-30));
        }
    }

    void aMaximumBelowTheMinimumTakesTheMinimumAlong() override
    {
        QFETCH(T, minimum);
        QFETCH(T, maximum);
        QFETCH(T, newMaximum);
        Box box;
        box.setRange(minimum, maximum);
        Heard heard(box);
        box.setMaximum(newMaximum);
        QCOMPARE(box.minimum(), newMaximum);
        QCOMPARE(box.maximum(), newMaximum);
        QCOMPARE(box.value(), newMaximum);
        QCOMPARE(heard.take(), QStringList({textChanged(decimal(newMaximum)), valueChanged(newMaximum)}));
    }

    void aMinimumAboveTheMaximumTakesTheMaximumAlong_data() override
    {
        QTest::addColumn<T>("minimum");
        QTest::addColumn<T>("maximum");
        QTest::addColumn<T>("newMinimum");
        row("above the maximum of a new box", T(0), T(99), T(100));
        row("above the maximum", T(10), T(20), T(21));
        row("the type's highest", T(10), T(20), Limits::max());
        if constexpr (isSigned)
            row("above a negative maximum", T(-20), T(-10), T(-5));
    }

    void aMinimumAboveTheMaximumTakesTheMaximumAlong() override
    {
        QFETCH(T, minimum);
        QFETCH(T, maximum);
        QFETCH(T, newMinimum);
        Box box;
        box.setRange(minimum, maximum);
        Heard heard(box);
        box.setMinimum(newMinimum);
        QCOMPARE(box.minimum(), newMinimum);
        QCOMPARE(box.maximum(), newMinimum);
        QCOMPARE(box.value(), newMinimum);
        QCOMPARE(heard.take(), QStringList({textChanged(decimal(newMinimum)), valueChanged(newMinimum)}));
    }

    void aMaximumBelowTheValueTakesTheValueAlong() override
    {
        Box box;
        box.setValue(50);
        Heard heard(box);
        box.setMaximum(30);
        QCOMPARE(box.minimum(), T(0));
        QCOMPARE(box.maximum(), T(30));
        QCOMPARE(box.value(), T(30));
        QCOMPARE(heard.take(), QStringList({textChanged("30"), valueChanged(30)}));
    }

    void aMinimumAboveTheValueTakesTheValueAlong() override
    {
        Box box;
        box.setValue(50);
        Heard heard(box);
        box.setMinimum(70);
        QCOMPARE(box.minimum(), T(70));
        QCOMPARE(box.maximum(), T(99));
        QCOMPARE(box.value(), T(70));
        QCOMPARE(heard.take(), QStringList({textChanged("70"), valueChanged(70)}));
    }

    void aRangeTakesTheValueAlong_data() override
    {
        QTest::addColumn<T>("minimum");
        QTest::addColumn<T>("maximum");
        QTest::addColumn<T>("expected");
        row("above the value", T(60), T(70), T(60));
        row("below the value", T(20), T(30), T(30));
        row("one value only", T(7), T(7), T(7));
        row("beyond the old range", T(100), T(120), T(100));
        if constexpr (isSigned)
            row("below zero", T(-20), T(-10), T(-10));
    }

    void aRangeTakesTheValueAlong() override
    {
        QFETCH(T, minimum);
        QFETCH(T, maximum);
        QFETCH(T, expected);
        TestSupport::MessageRecorder messages;
        Box box;
        box.setValue(50);
        Heard heard(box);
        box.setRange(minimum, maximum);
        QCOMPARE(box.minimum(), minimum);
        QCOMPARE(box.maximum(), maximum);
        QCOMPARE(box.value(), expected);
        QCOMPARE(heard.take(), QStringList({textChanged(decimal(expected)), valueChanged(expected)}));
    }

    void anInvertedRangeIsIgnoredSilently_data() override
    {
        QTest::addColumn<T>("minimum");
        QTest::addColumn<T>("maximum");
        row("within the range", T(5), T(1));
        row("by one", T(20), T(19));
        row("the whole type", Limits::max(), Limits::min());
    }

    void anInvertedRangeIsIgnoredSilently() override
    {
        QFETCH(T, minimum);
        QFETCH(T, maximum);
        TestSupport::MessageRecorder messages;
        Box box;
        box.setValue(50);
        Heard heard(box);
        box.setRange(minimum, maximum);
        QCOMPARE(box.minimum(), T(0));
        QCOMPARE(box.maximum(), T(99));
        QCOMPARE(box.value(), T(50));
        QCOMPARE(heard.take(), QStringList());
        QCOMPARE(messages.take(), QStringList());
    }

    void theSameBoundsAgainDoNothing() override
    {
        Box box;
        box.setRange(10, 20);
        lineEditOf(box).clear();
        Heard heard(box);
        box.setMinimum(10);
        box.setMaximum(20);
        box.setRange(10, 20);
        QCOMPARE(box.minimum(), T(10));
        QCOMPARE(box.maximum(), T(20));
        QCOMPARE(box.text(), QString());
        QCOMPARE(heard.take(), QStringList());
    }

    void boundsThatLeaveTheValueRefreshNothing() override
    {
        Box box;
        box.setValue(50);
        box.setSpecialValueText("least"_s);
        Heard heard(box);
        box.setMaximum(90);
        QCOMPARE(box.maximum(), T(90));
        box.setMinimum(50); // from here on a refresh would show the special value text
        QCOMPARE(box.minimum(), T(50));
        box.setRange(50, 60);
        QCOMPARE(box.maximum(), T(60));
        QCOMPARE(box.value(), T(50));
        QCOMPARE(box.text(), "50"_s);
        QCOMPARE(heard.take(), QStringList());
    }

    void aSettingMayBeMadeOfAnotherOne() override
    {
        Box box;
        box.setRange(10, 20);
        box.setRange(box.maximum(), 30);
        QCOMPARE(box.minimum(), T(20));
        QCOMPARE(box.maximum(), T(30));
        box.setRange(5, box.minimum());
        QCOMPARE(box.minimum(), T(5));
        QCOMPARE(box.maximum(), T(20));
        box.setValue(box.maximum());
        QCOMPARE(box.value(), T(20));
        box.setMaximum(box.minimum());
        QCOMPARE(box.maximum(), T(5));
        QCOMPARE(box.value(), T(5));
        box.setSingleStep(box.value());
        QCOMPARE(box.singleStep(), T(5));
        box.setPrefix("<"_s);
        box.setSuffix(box.prefix());
        QCOMPARE(box.suffix(), "<"_s);
        QCOMPARE(box.text(), "<5<"_s);
    }

    void aSlotMayMakeARangeOfTheValueItIsTold() override
    {
        Box box;
        connect(&box, &Box::valueChanged, &box, [&](const T& n) { box.setRange(n, n); });
        Heard heard(box);
        box.setValue(42);
        QCOMPARE(box.minimum(), T(42));
        QCOMPARE(box.maximum(), T(42));
        QCOMPARE(box.value(), T(42));
        QCOMPARE(heard.take(), QStringList({textChanged("42"), valueChanged(42)}));
    }

    //! Something that a program does with a box from 5 to 50 that shows 42 in hexadecimal.
    struct Call
    {
        const char* name;
        bool changesTheValue;
        void (*make)(Box& box);
    };

    static const std::vector<Call>& callsThatSignal()
    {
        static const std::vector<Call> calls = {
            {"setValue", true, [](Box& box) { box.setValue(43); }},
            {"setMinimum", true, [](Box& box) { box.setMinimum(43); }},
            {"setMaximum", true, [](Box& box) { box.setMaximum(41); }},
            {"setRange", true, [](Box& box) { box.setRange(43, 44); }},
            {"stepBy", true, [](Box& box) { box.stepBy(1); }},
            {"stepUp", true, [](Box& box) { box.stepUp(); }},
            {"setPrefix", false, [](Box& box) { box.setPrefix("0x"_s); }},
            {"setSuffix", false, [](Box& box) { box.setSuffix(" V"_s); }},
            {"setDisplayIntegerBase", false, [](Box& box) { box.setDisplayIntegerBase(10); }},
            {"setSingleStep, which shows an emptied number again", false, [](Box& box) {
                 lineEditOf(box).clear();
                 box.setSingleStep(2);
             }}};
        return calls;
    }

    void aSlotMayDeleteTheBox_data() override
    {
        QTest::addColumn<int>("call");
        QTest::addColumn<bool>("withItsParent");
        QTest::addColumn<bool>("byValueChanged");
        for (std::size_t i = 0; i < callsThatSignal().size(); ++i) {
            const Call& call = callsThatSignal().at(i);
            for (const bool withItsParent : {false, true}) {
                const char* const victim = withItsParent ? "the parent" : "the sender";
                QTest::addRow("%s, textChanged deletes %s", call.name, victim)
                    << static_cast<int>(i) << withItsParent << false;
                if (call.changesTheValue)
                    QTest::addRow("%s, valueChanged deletes %s", call.name, victim)
                        << static_cast<int>(i) << withItsParent << true;
            }
        }
    }

    void aSlotMayDeleteTheBox() override
    {
        QFETCH(int, call);
        QFETCH(bool, withItsParent);
        QFETCH(bool, byValueChanged);
        QWidget window;
        auto* const parent = new QWidget(&window);
        const QPointer<Box> box = new Box(parent);
        box->setRange(5, 50);
        box->setValue(42);
        box->setDisplayIntegerBase(16);
        QStringList told;
        const auto tell = [&](const QString& signal, bool isTheLast) {
            told << signal;
            if (isTheLast && withItsParent)
                delete parent;
            else if (isTheLast)
                delete box.data();
        };
        connect(box, &Box::textChanged, &window, [&] { tell("text"_s, !byValueChanged); });
        connect(box, &Box::valueChanged, &window, [&] { tell("value"_s, byValueChanged); });
        callsThatSignal().at(static_cast<std::size_t>(call)).make(*box);
        QVERIFY(box.isNull());
        QCOMPARE(told, byValueChanged ? QStringList({"text"_s, "value"_s}) : QStringList({"text"_s}));
    }

    // ---------------------------------------------------------------------------------------------- Single step

    void aSingleStepIsTakenUnlessItIsNegative_data() override
    {
        QTest::addColumn<T>("step");
        QTest::addColumn<T>("expected");
        row("another one", T(7), T(7));
        row("none at all", T(0), T(0));
        row("beyond the range", T(120), T(120));
        row("the type's highest", Limits::max(), Limits::max());
        if constexpr (isSigned) {
            row("a negative one", T(-1), T(5));
            row("the type's lowest", Limits::min(), T(5));
        }
    }

    void aSingleStepIsTakenUnlessItIsNegative() override
    {
        QFETCH(T, step);
        QFETCH(T, expected);
        Box box;
        box.setSingleStep(5);
        Heard heard(box);
        box.setSingleStep(step);
        QCOMPARE(box.singleStep(), expected);
        QCOMPARE(heard.take(), QStringList());
    }

    void aNewSingleStepRefreshesTheText() override
    {
        Box box;
        lineEditOf(box).clear();
        Heard heard(box);
        box.setSingleStep(2);
        QCOMPARE(box.text(), "0"_s);
        QCOMPARE(heard.take(), QStringList({textChanged("0")}));
    }

    void aSingleStepThatIsNotTakenRefreshesNothing() override
    {
        Box box;
        lineEditOf(box).clear();
        Heard heard(box);
        box.setSingleStep(1);
        if constexpr (isSigned)
            box.setSingleStep(-2);
        QCOMPARE(box.text(), QString());
        QCOMPARE(heard.take(), QStringList());
    }

    void aStepTypeIsTakenWithoutARefresh() override
    {
        Box box;
        lineEditOf(box).clear();
        Heard heard(box);
        box.setStepType(QAbstractSpinBox::AdaptiveDecimalStepType);
        QCOMPARE(box.stepType(), QAbstractSpinBox::AdaptiveDecimalStepType);
        box.setStepType(QAbstractSpinBox::DefaultStepType);
        QCOMPARE(box.stepType(), QAbstractSpinBox::DefaultStepType);
        QCOMPARE(box.text(), QString());
        QCOMPARE(heard.take(), QStringList());
    }

    // --------------------------------------------------------------- Prefix, suffix and special value text

    void prefixAndSuffixAreShownAroundTheNumber() override
    {
        Box box;
        box.setValue(42);
        Heard heard(box);
        box.setPrefix("about "_s);
        QCOMPARE(box.prefix(), "about "_s);
        box.setSuffix(" V"_s);
        QCOMPARE(box.suffix(), " V"_s);
        QCOMPARE(box.text(), "about 42 V"_s);
        box.setPrefix(QString());
        box.setSuffix(QString());
        QCOMPARE(box.value(), T(42));
        QCOMPARE(heard.take(), QStringList({textChanged("about 42"), textChanged("about 42 V"), textChanged("42 V"),
                                            textChanged("42")}));
    }

    void theSamePrefixAndSuffixAgainDoNothing() override
    {
        Box box;
        box.setPrefix("$"_s);
        box.setSuffix("!"_s);
        box.setSpecialValueText("least"_s); // what a refresh would show
        Heard heard(box);
        box.setPrefix("$"_s);
        box.setSuffix("!"_s);
        QCOMPARE(box.text(), "$0!"_s);
        QCOMPARE(heard.take(), QStringList());
    }

    void theLayoutLearnsOfPrefixAndSuffixAfterTheyAreShown() override
    {
        struct ListeningLayout : QVBoxLayout
        {
            void invalidate() override
            {
                events << "geometry"_s;
                QVBoxLayout::invalidate();
            }
            QStringList events;
        };
        QWidget window;
        auto* const layout = new ListeningLayout;
        window.setLayout(layout);
        auto* const box = new Box;
        layout->addWidget(box);
        window.show();
        connect(box, &Box::textChanged, box, [&](const QString& text) { layout->events << text; });

        layout->events.clear();
        box->setPrefix("$"_s);
        QCOMPARE(layout->events, QStringList({"$0"_s, "geometry"_s}));

        layout->events.clear();
        box->setSuffix("!"_s);
        QCOMPARE(layout->events, QStringList({"$0!"_s, "geometry"_s}));

        layout->events.clear();
        box->setPrefix("$"_s);
        box->setSuffix("!"_s);
        QCOMPARE(layout->events, QStringList());
    }

    void theSpecialValueTextStandsForTheMinimum() override
    {
        Box box;
        box.setPrefix("$"_s);
        box.setSuffix("!"_s);
        box.setRange(10, 20);
        box.setSpecialValueText("least"_s);
        Heard heard(box);
        box.setValue(20);
        box.setValue(10);
        QCOMPARE(box.text(), "least"_s);
        QCOMPARE(box.value(), T(10));
        box.setValue(11);
        QCOMPARE(heard.take(), QStringList({textChanged("$20!"), valueChanged(20), textChanged("least"),
                                            valueChanged(10), textChanged("$11!"), valueChanged(11)}));
    }

    void aSpecialValueTextShowsWithTheNextRefresh() override
    {
        Box box;
        Heard heard(box);
        box.setSpecialValueText("least"_s);
        QCOMPARE(box.text(), "0"_s);
        box.setSingleStep(2);
        QCOMPARE(box.text(), "least"_s);
        box.setSpecialValueText(QString());
        QCOMPARE(box.text(), "least"_s);
        box.setSingleStep(1);
        QCOMPARE(box.text(), "0"_s);
        QCOMPARE(heard.take(), QStringList({textChanged("least"), textChanged("0")}));
    }

    // ----------------------------------------------------------------------------------------- The display base

    void everyBaseFromTwoToThirtySixIsTakenSilently() override
    {
        TestSupport::MessageRecorder messages;
        Box box;
        for (int base = 2; base <= 36; ++base) {
            box.setDisplayIntegerBase(base);
            QCOMPARE(box.displayIntegerBase(), base);
        }
        QCOMPARE(messages.take(), QStringList());
    }

    void anotherBaseIsShownAtOnce() override
    {
        Box box;
        box.setValue(99);
        Heard heard(box);
        box.setDisplayIntegerBase(16);
        QCOMPARE(heard.take(), QStringList({textChanged("63")}));
        box.setDisplayIntegerBase(2);
        QCOMPARE(heard.take(), QStringList({textChanged("1100011")}));
        box.setDisplayIntegerBase(8);
        QCOMPARE(heard.take(), QStringList({textChanged("99")}));
        box.setDisplayIntegerBase(10);
        QCOMPARE(heard.take(), QStringList());
        QCOMPARE(box.text(), "99"_s);
        QCOMPARE(box.value(), T(99));
    }

    void theSameBaseAgainRefreshesNothing() override
    {
        Box box;
        box.setDisplayIntegerBase(16);
        lineEditOf(box).clear();
        Heard heard(box);
        box.setDisplayIntegerBase(16);
        QCOMPARE(box.text(), QString());
        QCOMPARE(heard.take(), QStringList());
    }

    void aBaseOutOfRangeIsLoggedAndTenIsTakenInItsPlace_data() override
    {
        QTest::addColumn<int>("base");
        for (const int base :
             {std::numeric_limits<int>::min(), -10, -1, 0, 1, 37, 64, 256, std::numeric_limits<int>::max()})
            QTest::addRow("%d", base) << base;
    }

    void aBaseOutOfRangeIsLoggedAndTenIsTakenInItsPlace() override
    {
        QFETCH(int, base);
        Box box;
        box.setValue(99);
        box.setDisplayIntegerBase(16);
        Heard heard(box);
        TestSupport::MessageRecorder messages;
        box.setDisplayIntegerBase(base);
        QCOMPARE(box.displayIntegerBase(), 10);
        QCOMPARE(box.text(), "99"_s);
        QCOMPARE(heard.take(), QStringList({textChanged("99")}));

        const QVector<TestSupport::LogLine> lines = messages.takeLines();
        QCOMPARE(lines.size(), 1);
        QCOMPARE(lines.first().level, QtWarningMsg);
        QCOMPARE(lines.first().text, "%1::setDisplayIntegerBase: Invalid base (%2)"_s.arg(className()).arg(base));
        QCOMPARE(lines.first().file, "CISpinBox/%1.cpp"_s.arg(className()));
        QCOMPARE(lines.first().function, "void nsUI::%1::setDisplayIntegerBase(int)"_s.arg(className()));
    }

    void aBaseOutOfRangeRefreshesNothingWhereTenIsSetAlready() override
    {
        Box box;
        lineEditOf(box).clear();
        Heard heard(box);
        TestSupport::MessageRecorder messages;
        box.setDisplayIntegerBase(1);
        QCOMPARE(box.displayIntegerBase(), 10);
        QCOMPARE(box.text(), QString());
        QCOMPARE(heard.take(), QStringList());
        QCOMPARE(messages.take(),
                 QStringList({"warning: %1::setDisplayIntegerBase: Invalid base (1)"_s.arg(className())}));
    }

    // ---------------------------------------------------------------------------------- The text of a number

    void aNumberIsWrittenInItsBase_data() override
    {
        QTest::addColumn<T>("value");
        QTest::addColumn<int>("base");
        QTest::addColumn<QString>("text");
        row("zero, decimal", T(0), 10, "0");
        row("zero, binary", T(0), 2, "0");
        row("zero, hexadecimal", T(0), 16, "0");
        row("five, binary", T(5), 2, "101");
        row("sixteen, hexadecimal", T(16), 16, "10");
        row("127, hexadecimal", T(127), 16, "7f");
        row("base 3 writes decimal", T(99), 3, "99");
        row("base 8 writes decimal", T(99), 8, "99");
        row("base 36 writes decimal", T(99), 36, "99");
        const auto times = [](int n, char c) { return QString(n, QLatin1Char(c)); };
        if constexpr (isSigned) {
            row("minus one, decimal", T(-1), 10, "-1");
            row("minus one, octal", T(-1), 8, "-1");
            row("minus one, binary", T(-1), 2, times(bits, '1'));
            row("minus one, hexadecimal", T(-1), 16, times(bits / 4, 'f'));
            row("minus two, binary", T(-2), 2, times(bits - 1, '1') + "0"_s);
            row("lowest, binary", Limits::min(), 2, "1"_s + times(bits - 1, '0'));
            row("lowest, hexadecimal", Limits::min(), 16, "8"_s + times(bits / 4 - 1, '0'));
            row("highest, binary", Limits::max(), 2, times(bits - 1, '1'));
            row("highest, hexadecimal", Limits::max(), 16, "7"_s + times(bits / 4 - 1, 'f'));
        } else {
            row("255, hexadecimal", T(255), 16, "ff");
            row("highest, binary", Limits::max(), 2, times(bits, '1'));
            row("highest, hexadecimal", Limits::max(), 16, times(bits / 4, 'f'));
        }
    }

    void aNumberIsWrittenInItsBase() override
    {
        QFETCH(T, value);
        QFETCH(int, base);
        QFETCH(QString, text);
        Box box;
        box.setDisplayIntegerBase(base);
        QCOMPARE(box.textFromValue(value).toLower(), text);
        box.setRange(Limits::min(), Limits::max());
        box.setValue(value);
        QCOMPARE(box.text().toLower(), text);
    }

    void everyNumberIsWrittenInEveryBase() override
    {
        Box box;
        for (int base = 2; base <= 36; ++base) {
            box.setDisplayIntegerBase(base);
            for (const T n : tellingValues()) {
                const QString expected = base == 2 || base == 16 ? digits(pattern(n), base) : decimal(n);
                QCOMPARE(box.textFromValue(n).toLower(), expected);
            }
        }
    }

    void theTextOfAValueHasNeitherPrefixNorSuffix() override
    {
        Box box;
        box.setPrefix("$"_s);
        box.setSuffix("!"_s);
        box.setSpecialValueText("least"_s);
        QCOMPARE(box.textFromValue(0), "0"_s);
        QCOMPARE(box.textFromValue(120), "120"_s);
        QCOMPARE(box.value(), T(0));
    }

    void theLocaleOfTheUserDoesNotMatter() override
    {
        const TestSupport::GlobalState global;
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        QVERIFY(QLocale().toString(1234).contains(QLatin1Char('.')));
        Box box;
        box.setRange(0, Limits::max());
        box.setValue(Limits::max());
        QCOMPARE(box.text(), decimal(Limits::max()));
        QCOMPARE(stateOf(box, "1.2"_s), QValidator::Invalid);
        QCOMPARE(stateOf(box, "1.000"_s), QValidator::Invalid);
    }

    // ------------------------------------------------------------------------------ The refresh of the line edit

    void theTextIsToldOnlyWhenItChanges() override
    {
        Box box;
        box.setValue(7);
        Heard heard(box);
        box.setDisplayIntegerBase(16);
        box.setSingleStep(3);
        QCOMPARE(heard.take(), QStringList());
        box.setDisplayIntegerBase(2);
        QCOMPARE(heard.take(), QStringList({textChanged("111")}));
    }

    void theLineEditIsSilentWhileTheTextIsTold() override
    {
        Box box;
        QLineEdit& edit = lineEditOf(box);
        QStringList told;
        connect(&box, &Box::textChanged, &box,
                [&](const QString& text) { told << text + (edit.signalsBlocked() ? " silent"_s : " loud"_s); });
        connect(&box, &Box::valueChanged, &box,
                [&](const T& n) { told << decimal(n) + (edit.signalsBlocked() ? " silent"_s : " loud"_s); });
        connect(&edit, &QLineEdit::textChanged, &box, [&] { told << "line edit"_s; });
        box.setValue(42);
        QCOMPARE(told, QStringList({"42 silent"_s, "42 loud"_s}));
        QVERIFY(!edit.signalsBlocked());
    }

    void aLineEditThatWasSilencedBeforeStaysSo() override
    {
        Box box;
        QLineEdit& edit = lineEditOf(box);
        edit.blockSignals(true);
        Heard heard(box);
        box.setValue(42);
        QVERIFY(edit.signalsBlocked());
        QCOMPARE(heard.take(), QStringList({textChanged("42"), valueChanged(42)}));
    }

    //! Remembers what was painted of it.
    struct Painted : Box
    {
        void paintEvent(QPaintEvent* event) override
        {
            region += event->region();
            Box::paintEvent(event);
        }

        QPoint middleOf(QStyle::SubControl button) const
        {
            QStyleOptionSpinBox option;
            this->initStyleOption(&option);
            return this->style()->subControlRect(QStyle::CC_SpinBox, &option, button, this).center();
        }

        QRegion region;
    };

    void theButtonsFollowWhatOpensOrClosesTheirWay_data() override
    {
        QTest::addColumn<T>("value");
        QTest::addColumn<QString>("keys");
        QTest::addColumn<T>("minimum");
        QTest::addColumn<T>("maximum");
        // The range is 10 to 99 before.
        row("the maximum is typed", T(42), "99", T(10), T(99));
        row("the minimum is typed", T(42), "10", T(10), T(99));
        row("the maximum is left by typing", T(99), "98", T(10), T(99));
        row("the maximum is raised", T(99), "", T(10), T(120));
        row("the maximum comes down to the value", T(42), "", T(10), T(42));
        row("the minimum is lowered", T(10), "", T(5), T(99));
        row("the minimum comes up to the value", T(42), "", T(42), T(99));
        row("the range closes around the value", T(42), "", T(42), T(42));
    }

    void theButtonsFollowWhatOpensOrClosesTheirWay() override
    {
        QFETCH(T, value);
        QFETCH(QString, keys);
        QFETCH(T, minimum);
        QFETCH(T, maximum);
        Painted box;
        box.setWindowFlag(Qt::FramelessWindowHint);
        box.resize(120, 40);
        box.setRange(10, 99);
        box.setValue(value);
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        QCoreApplication::processEvents();
        box.region = QRegion();
        if (!keys.isEmpty())
            typeOver(lineEditOf(box), keys);
        else if (minimum != 10 && maximum != 99)
            box.setRange(minimum, maximum);
        else if (minimum != 10)
            box.setMinimum(minimum);
        else
            box.setMaximum(maximum);
        QTRY_VERIFY(box.region.contains(box.middleOf(QStyle::SC_SpinBoxUp)));
        QVERIFY(box.region.contains(box.middleOf(QStyle::SC_SpinBoxDown)));
    }

    void aRefreshRepaintsTheButtonsAsWell() override
    {
        Painted box;
        box.setWindowFlag(Qt::FramelessWindowHint);
        box.resize(120, 40);
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        QCoreApplication::processEvents();
        box.region = QRegion();
        box.setValue(99); // stepping up ends here: its button looks different now
        QTRY_COMPARE(box.region.boundingRect(), box.rect());
    }

    void aRefreshKeepsTheCursorWithinTheNumber_data() override
    {
        QTest::addColumn<QString>("prefix");
        QTest::addColumn<QString>("suffix");
        QTest::addColumn<int>("cursor");
        QTest::addColumn<T>("value");
        QTest::addColumn<int>("expected");
        // The box shows 123 before.
        row("before the number", "", "", 0, T(45), 0);
        row("within the number", "", "", 1, T(45), 1);
        row("at its end", "", "", 3, T(124), 3);
        row("beyond the end of a shorter number", "", "", 3, T(45), 2);
        row("before the prefix", "ab", "", 0, T(45), 2);
        row("within the prefix", "ab", "", 1, T(45), 2);
        row("behind the prefix", "ab", "", 2, T(45), 2);
        row("within the suffix", "", "cd", 4, T(124), 3);
        row("behind the suffix", "", "cd", 5, T(45), 2);
        row("within the number, both around it", "ab", "cd", 3, T(45), 3);
        row("behind everything", "ab", "cd", 7, T(6), 3);
    }

    void aRefreshKeepsTheCursorWithinTheNumber() override
    {
        QFETCH(QString, prefix);
        QFETCH(QString, suffix);
        QFETCH(int, cursor);
        QFETCH(T, value);
        QFETCH(int, expected);
        Box box;
        box.setRange(0, 127);
        box.setValue(123);
        box.setPrefix(prefix);
        box.setSuffix(suffix);
        QLineEdit& edit = lineEditOf(box);
        edit.setCursorPosition(cursor);
        box.setValue(value);
        QCOMPARE(edit.text(), prefix + decimal(value) + suffix);
        QCOMPARE(edit.cursorPosition(), expected);
        QVERIFY(!edit.hasSelectedText());
    }

    void aRefreshOfAnEmptyTextPutsTheCursorBeforeTheNumber() override
    {
        Box box;
        box.setRange(7, 7); // an empty text is invalid now, so that the prefix is not put back at once
        box.setPrefix("ab"_s);
        QLineEdit& edit = lineEditOf(box);
        edit.setText(QString());
        QCOMPARE(edit.text(), QString());
        box.setRange(42, 42);
        QCOMPARE(edit.text(), "ab42"_s);
        QCOMPARE(edit.cursorPosition(), 2);
    }

    void aRefreshKeepsTheLengthOfTheSelection_data() override
    {
        QTest::addColumn<QString>("prefix");
        QTest::addColumn<int>("start");
        QTest::addColumn<int>("length");
        QTest::addColumn<T>("value");
        QTest::addColumn<QString>("selected");
        QTest::addColumn<int>("cursor");
        // The box shows 123 before. The new selection starts where the cursor stood, at the end of a forward one.
        row("backwards over all", "", 3, -3, T(124), "124", 3);
        row("backwards over all of a longer one", "", 3, -3, T(45), "45", 2);
        row("backwards over the end", "", 3, -2, T(124), "24", 3);
        row("forwards over one digit", "", 0, 1, T(124), "2", 2);
        row("forwards up to the last digit", "", 0, 2, T(124), "4", 3);
        row("forwards over all", "", 0, 3, T(124), "", 3);
        row("over the prefix", "ab", 2, -2, T(124), "12", 4);
    }

    void aRefreshKeepsTheLengthOfTheSelection() override
    {
        QFETCH(QString, prefix);
        QFETCH(int, start);
        QFETCH(int, length);
        QFETCH(T, value);
        QFETCH(QString, selected);
        QFETCH(int, cursor);
        Box box;
        box.setRange(0, 127);
        box.setValue(123);
        box.setPrefix(prefix);
        QLineEdit& edit = lineEditOf(box);
        edit.setSelection(start, length);
        box.setValue(value);
        QCOMPARE(edit.text(), prefix + decimal(value));
        QCOMPARE(edit.selectedText(), selected);
        QCOMPARE(edit.cursorPosition(), cursor);
    }

    void theTextIsToldBeforeTheCursorIsPlaced() override
    {
        Box box;
        QLineEdit& edit = lineEditOf(box);
        edit.setCursorPosition(0);
        int cursorWhenTold = -1;
        connect(&box, &Box::textChanged, &box, [&] { cursorWhenTold = edit.cursorPosition(); });
        box.setValue(42);
        QCOMPARE(cursorWhenTold, 2); // where a new text leaves it
        QCOMPARE(edit.cursorPosition(), 0);
    }

    void theCursorStandsBehindTheSpecialValueText() override
    {
        Box box;
        box.setValue(42);
        box.setSpecialValueText("least"_s);
        QLineEdit& edit = lineEditOf(box);
        edit.setCursorPosition(1);
        box.setValue(0);
        QCOMPARE(edit.text(), "least"_s);
        QCOMPARE(edit.cursorPosition(), 5);
    }

    // ------------------------------------------------------------------------------------------ The clean text

    void theCleanTextLacksThePrefixButNotTheSuffix_data() override
    {
        QTest::addColumn<QString>("prefix");
        QTest::addColumn<QString>("suffix");
        QTest::addColumn<QString>("special");
        QTest::addColumn<T>("value");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("clean");
        row("the number alone", "", "", "", T(42), "42", "42");
        row("with a prefix", "$", "", "", T(42), "$42", "42");
        row("with a prefix that ends in space", "U = ", "", "", T(42), "U = 42", "42");
        row("with a suffix", "", " V", "", T(42), "42 V", "42 V");
        row("with a suffix that ends in space", "", " V ", "", T(42), "42 V ", "42 V");
        row("with both", "$", "!", "", T(42), "$42!", "42!");
        row("with a suffix like the prefix", "$", "$", "", T(42), "$42$", "42");
        // The line edit completes what it is given: there the last digit counts as the prefix and is taken off.
        row("with a prefix like the last digit", "1", "", "", T(21), "12", "2");
        row("with a prefix like the number", "5", "", "", T(5), "5", "");
        row("with a suffix like the prefix in other case", "m", "M", "", T(42), "m42M", "42M");
        row("special value text", "", "", "least", T(0), "least", "least");
        row("special value text with the prefix", "le", "", "least", T(0), "least", "least");
        row("special value text in space", "", "", " least ", T(0), " least ", "least");
        row("special value text not shown", "$", "", "least", T(1), "$1", "1");
    }

    void theCleanTextLacksThePrefixButNotTheSuffix() override
    {
        QFETCH(QString, prefix);
        QFETCH(QString, suffix);
        QFETCH(QString, special);
        QFETCH(T, value);
        QFETCH(QString, shown);
        QFETCH(QString, clean);
        Box box;
        box.setPrefix(prefix);
        box.setSuffix(suffix);
        box.setSpecialValueText(special);
        box.setValue(99);
        box.setValue(value);
        QCOMPARE(box.text(), shown);
        QCOMPARE(box.cleanText(), clean);
    }

    // ---------------------------------------------------------------------------------------------- Validation

    void aTextHasAState_data() override
    {
        QTest::addColumn<T>("minimum");
        QTest::addColumn<T>("maximum");
        QTest::addColumn<int>("base");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QValidator::State>("state");
        constexpr QValidator::State good = QValidator::Acceptable;
        constexpr QValidator::State open = QValidator::Intermediate;
        constexpr QValidator::State bad = QValidator::Invalid;
        const auto add = [](T minimum, T maximum, int base, const QString& text, QValidator::State state) {
            const QString name =
                "'%1' in %2..%3, base %4"_s.arg(text, decimal(minimum), decimal(maximum), QString::number(base));
            row(qPrintable(name), minimum, maximum, base, text, state);
        };
        const auto rows = [&](T minimum, T maximum, int base, QValidator::State state,
                              std::initializer_list<const char*> texts) {
            for (const char* const text : texts)
                add(minimum, maximum, base, QString::fromUtf8(text), state);
        };

        rows(0, 99, 10, good, {"0", "7", "99", "007", "+5", " 5", "5 "});
        rows(0, 99, 10, open, {"", " ", "+"});
        rows(0, 99, 10, bad,
             {"100", "150", "-", "-3", "-0", "- 3", "++5", "1 2", "1,0", "1.0", "1e1", "abc", "0x10", "5V"});

        // Below a positive minimum a number can still be typed towards the range.
        rows(10, 99, 10, good, {"10", "99"});
        rows(10, 99, 10, open, {"", "+", "0", "1", "5", "9", "+5", "005"});
        rows(10, 99, 10, bad, {"-", "-5", "100"});

        // A range of one value takes nothing but that value.
        rows(5, 5, 10, good, {"5", "+5"});
        rows(5, 5, 10, bad, {"", "+", "-", "0", "4", "6", "-5"});
        rows(0, 0, 10, good, {"0"});
        rows(0, 0, 10, bad, {"", "+", "-", "1"});

        // The base reads the text, also where it does not write it.
        rows(0, 99, 2, good, {"101", "1100011"});
        rows(0, 99, 2, bad, {"2", "1100100", "0b"});
        // A number reads as Qt reads it: Qt 5 knows no mark of base 2, Qt 6.4 does.
        rows(0, 99, 2, QT_VERSION < QT_VERSION_CHECK(6, 4, 0) ? bad : good, {"0b1", "0B101"});
        rows(0, 99, 8, good, {"10", "143"});
        rows(0, 99, 8, bad, {"8", "144", "99"});
        rows(0, 99, 16, good, {"63", "1f", "1F", "0x10", "0X1f"});
        rows(0, 99, 16, bad, {"64", "g", "0x", "x10"});
        rows(0, 99, 36, good, {"z", "2r", "2R"});
        rows(0, 99, 36, bad, {"2s", "zz"});
        rows(10, 99, 16, open, {"9", "+"});

        // The ends of the type.
        add(Limits::min(), Limits::max(), 10, decimal(Limits::max()), good);
        add(Limits::min(), Limits::max(), 10, decimal(Limits::min()), good);
        add(Limits::min(), Limits::max(), 10, oneAboveTheHighest(), bad);
        add(Limits::min(), Limits::max(), 10, oneBelowTheLowest(), bad);
        add(Limits::min(), Limits::max(), 10, "123456789012345678901234567890"_s, bad);
        add(Limits::min(), Limits::max(), 16, "1"_s + QString(bits / 4, QLatin1Char('0')), bad); // low bits: 0
        add(0, 99, 16, "1"_s + QString(bits / 4, QLatin1Char('0')), bad);
        add(0, Limits::max(), 16, digits(pattern(Limits::max()), 16), good);
        add(0, Limits::max(), 2, digits(pattern(Limits::max()), 2), good);

        if constexpr (isSigned) {
            rows(-10, 10, 10, good, {"-10", "-0", "0", "10", "-007"});
            rows(-10, 10, 10, open, {"", "-", "+"});
            rows(-10, 10, 10, bad, {"-11", "11", "--5", "-+5", "+-5", "- 5"});

            // Above a negative maximum a number can still be typed towards the range.
            rows(-99, -10, 10, good, {"-10", "-99"});
            rows(-99, -10, 10, open, {"", "-", "-1", "-5", "-9"});
            rows(-99, -10, 10, bad, {"-100", "0", "-0", "5", "+", "+5"});

            rows(-10, 0, 10, good, {"0", "-0"});
            rows(-10, 0, 10, open, {"", "-", "+"});
            rows(-10, 0, 10, bad, {"1", "-11"});
            rows(-10, -1, 10, open, {"", "-"});
            rows(-10, -1, 10, bad, {"+", "0"});

            rows(-5, -5, 10, good, {"-5"});
            rows(-5, -5, 10, bad, {"", "-", "+", "-4", "-6", "5"});

            rows(-31, 31, 16, good, {"-1f", "-1F", "1f", "-0x1f"});
            rows(-31, 31, 16, bad, {"-20", "20"});
            rows(-31, 31, 2, good, {"-11111"});
            rows(-31, 31, 2, bad, {"-100000"});
        }
    }

    void aTextHasAState() override
    {
        QFETCH(T, minimum);
        QFETCH(T, maximum);
        QFETCH(int, base);
        QFETCH(QString, text);
        QFETCH(QValidator::State, state);
        Box box;
        box.setRange(minimum, maximum);
        box.setDisplayIntegerBase(base);
        forgetLastText(box);
        QCOMPARE(stateOf(box, text), state);
    }

    void aValidatedTextIsCompletedAndItsPositionFollows_data() override
    {
        QTest::addColumn<QString>("prefix");
        QTest::addColumn<QString>("suffix");
        QTest::addColumn<QString>("special");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("position");
        QTest::addColumn<QValidator::State>("state");
        QTest::addColumn<QString>("completed");
        QTest::addColumn<int>("newPosition");
        constexpr QValidator::State good = QValidator::Acceptable;
        constexpr QValidator::State open = QValidator::Intermediate;
        constexpr QValidator::State bad = QValidator::Invalid;

        row("a number", "", "", "", "5", 1, good, "5", 1);
        row("space before it", "", "", "", "  5", 3, good, "5", 1);
        row("space behind it", "", "", "", "5 ", 2, good, "5", 1);
        row("space around it", "", "", "", " \t5\n", 4, good, "5", 1);
        row("space behind the cursor counts too", "", "", "", "42  ", 2, good, "42", 0);
        row("more space than cursor", "", "", "", "  5", 1, good, "5", -1);
        row("space alone", "", "", "", "   ", 3, open, "", 0);
        row("space in a wrong text", "", "", "", " x ", 3, bad, "x", 1);
        row("a number out of range", "", "", "", "100", 3, bad, "100", 3);

        row("prefix missing", "$", "", "", "5", 1, good, "$5", 1);
        row("prefix in place", "$", "", "", "$5", 2, good, "$5", 2);
        row("prefix at both ends", "$", "", "", "$5$", 3, good, "$5", 3);
        row("prefix at the end only", "$", "", "", "5$", 2, good, "$5", 2);
        row("prefix twice", "$", "", "", "$$5", 3, bad, "$$5", 3);
        row("prefix alone", "$", "", "", "$", 1, open, "$", 1);
        row("prefix and space", "$", "", "", "$ 5", 3, good, "$5", 2);
        row("space before the prefix", "$", "", "", " $5", 3, bad, "$$5", 2);
        row("prefix in other case", "u", "", "", "U5", 2, bad, "uU5", 2);
        row("prefix at the end in other case", "u", "", "", "5U", 2, bad, "u5U", 2);
        row("both ends of the prefix overlap", "00", "", "", "000", 3, good, "000", 3);
        row("empty with a prefix", "$", "", "", "", 0, open, "$", 0);

        row("suffix missing", "", "V", "", "5", 1, good, "5V", 1);
        row("suffix in place", "", "V", "", "5V", 2, bad, "5VV", 2);
        row("suffix of digits", "", "0", "", "12", 2, good, "120", 2);
        row("empty with a suffix", "", "V", "", "", 0, open, "V", 0);
        row("prefix and suffix missing", "$", "V", "", "5", 1, good, "$5V", 1);
        row("prefix and suffix in place", "$", "V", "", "$5V", 3, bad, "$5VV", 3);
        row("suffix like the prefix", "$", "$", "", "$5$", 3, good, "$5$", 3);

        row("special value text", "", "", "least", "least", 5, bad, "least", 5);
        row("special value text with the prefix", "A", "", "A5", "A5", 2, bad, "AA5", 2);
        row("prefixed, special value text differs", "A", "", "A6", "A5", 2, good, "A5", 2);
        row("prefixed, special value text in other case", "A", "", "a5", "A5", 2, good, "A5", 2);
        row("special value text of digits", "", "", "12", "12", 2, good, "12", 2);
    }

    void aValidatedTextIsCompletedAndItsPositionFollows() override
    {
        QFETCH(QString, prefix);
        QFETCH(QString, suffix);
        QFETCH(QString, special);
        QFETCH(QString, text);
        QFETCH(int, position);
        QFETCH(QValidator::State, state);
        QFETCH(QString, completed);
        QFETCH(int, newPosition);
        Box box;
        box.setPrefix(prefix);
        box.setSuffix(suffix);
        box.setSpecialValueText(special);
        forgetLastText(box);
        QCOMPARE(box.validate(text, position), state);
        QCOMPARE(text, completed);
        QCOMPARE(position, newPosition);
    }

    void aTextHasAValueAcceptableOrNot_data() override
    {
        QTest::addColumn<T>("minimum");
        QTest::addColumn<T>("maximum");
        QTest::addColumn<QString>("text");
        QTest::addColumn<T>("value");
        row("acceptable", T(5), T(50), "42", T(42));
        row("acceptable, the minimum", T(5), T(50), "5", T(5));
        row("acceptable, with space", T(5), T(50), " 42 ", T(42));
        row("no number: the minimum", T(5), T(50), "x", T(5));
        row("empty: the minimum", T(5), T(50), "", T(5));
        row("sign alone: the minimum", T(5), T(50), "+", T(5));
        row("below the range: the minimum", T(5), T(50), "4", T(5));
        row("above the range: the minimum", T(5), T(50), "51", T(5));
        row("range of zero alone", T(0), T(0), "x", T(0));
        if constexpr (isSigned) {
            row("acceptable, negative", T(-50), T(50), "-42", T(-42));
            row("maximum positive: the minimum", T(-50), T(50), "x", T(-50));
            row("maximum zero: the maximum", T(-50), T(0), "x", T(0));
            row("maximum zero, empty: the maximum", T(-50), T(0), "", T(0));
            row("maximum negative: the maximum", T(-50), T(-5), "x", T(-5));
            row("maximum negative, on the way: the maximum", T(-50), T(-5), "-2", T(-5));
        }
    }

    void aTextHasAValueAcceptableOrNot() override
    {
        QFETCH(T, minimum);
        QFETCH(T, maximum);
        QFETCH(QString, text);
        QFETCH(T, value);
        Box box;
        box.setRange(minimum, maximum);
        forgetLastText(box);
        const QString before = text;
        QCOMPARE(box.valueFromText(text), value);
        QCOMPARE(text, before);
    }

    void whatIsShownOfAValueThatIsNotNegativeCanBeReadBack() override
    {
        Box box;
        box.setRange(Limits::min(), Limits::max());
        for (const int base : {2, 10, 16}) {
            box.setDisplayIntegerBase(base);
            for (const T n : tellingValues()) {
                if (isNegative(n) && base != 10)
                    continue;
                forgetLastText(box);
                const QString text = box.textFromValue(n);
                QCOMPARE(stateOf(box, text), QValidator::Acceptable);
                QCOMPARE(box.valueFromText(text), n);
            }
        }
    }

    void theBitPatternOfANegativeValueIsRefusedWhenItIsReadBack() override
    {
        // No value of an unsigned type is negative: there every pattern is a value.
        Box box;
        box.setRange(Limits::min(), Limits::max());
        for (const int base : {2, 16}) {
            box.setDisplayIntegerBase(base);
            for (const T n : {T(-1), T(-2), static_cast<T>(quint64(1) << (bits - 1))}) {
                forgetLastText(box);
                QCOMPARE(stateOf(box, box.textFromValue(n)), isSigned ? QValidator::Invalid : QValidator::Acceptable);
            }
        }
    }

    void validatingLooksAndChangesNothing() override
    {
        Box box;
        box.setValue(42);
        lineEditOf(box).setCursorPosition(1);
        Heard heard(box);
        QCOMPARE(stateOf(box, "7"_s), QValidator::Acceptable);
        QCOMPARE(box.valueFromText("8"_s), T(8));
        QCOMPARE(stateOf(box, "x"_s), QValidator::Invalid);
        QCOMPARE(box.value(), T(42));
        QCOMPARE(box.text(), "42"_s);
        QCOMPARE(lineEditOf(box).cursorPosition(), 1);
        QCOMPARE(heard.take(), QStringList());
    }

    void aTextIsNeverFixedUp() override
    {
        Box box;
        box.setPrefix("$"_s);
        for (const QString& text : {QString(), "5"_s, " 500 "_s, "x"_s}) {
            QString fixed = text;
            box.fixup(fixed);
            QCOMPARE(fixed, text);
        }
        QCOMPARE(box.value(), T(0));
    }

    void aTextThatWasJustExaminedKeepsItsAnswer() override
    {
        Box box;
        QCOMPARE(stateOf(box, "50"_s), QValidator::Acceptable);
        box.setMaximum(10);
        box.setDisplayIntegerBase(8);
        QCOMPARE(stateOf(box, "50"_s), QValidator::Acceptable);
        QCOMPARE(box.valueFromText("50"_s), T(50));
        forgetLastText(box);
        QCOMPARE(stateOf(box, "50"_s), QValidator::Invalid);
        QCOMPARE(box.valueFromText("50"_s), T(0));

        // The old answer may be a refusal as well.
        box.setDisplayIntegerBase(10);
        box.setMaximum(99);
        QCOMPARE(stateOf(box, "50"_s), QValidator::Invalid);
        forgetLastText(box);
        QCOMPARE(stateOf(box, "50"_s), QValidator::Acceptable);
    }

    void aTextIsRememberedAsItWasCompleted() override
    {
        Box box;
        box.setPrefix("$"_s);
        QCOMPARE(stateOf(box, "50"_s), QValidator::Acceptable);
        box.setMaximum(10);
        QCOMPARE(stateOf(box, "$50"_s), QValidator::Acceptable);
        QCOMPARE(stateOf(box, "50"_s), QValidator::Invalid);
        QCOMPARE(stateOf(box, "$50"_s), QValidator::Invalid);

        // A remembered text is handed back as it is, and so is its position.
        QString text = "$50"_s;
        int position = 3;
        QCOMPARE(box.validate(text, position), QValidator::Invalid);
        QCOMPARE(text, "$50"_s);
        QCOMPARE(position, 3);
    }

    void anEmptyTextIsExaminedEveryTime() override
    {
        Box box;
        box.setRange(5, 50);
        QCOMPARE(stateOf(box, QString()), QValidator::Intermediate);
        box.setMaximum(5);
        QCOMPARE(stateOf(box, QString()), QValidator::Invalid);
    }

    // -------------------------------------------------------------------------------------------------- Typing

    void everyAcceptableKeystrokeIsTold() override
    {
        Box box;
        Heard heard(box);
        typeOver(lineEditOf(box), "42"_s);
        QCOMPARE(box.value(), T(42));
        QCOMPARE(box.text(), "42"_s);
        QCOMPARE(heard.take(), QStringList({valueChanged(4), valueChanged(42)}));
        QTest::keyClick(&lineEditOf(box), Qt::Key_Backspace);
        QCOMPARE(heard.take(), QStringList({valueChanged(4)}));
    }

    void typingTheShownNumberAgainSaysNothing() override
    {
        Box box;
        box.setValue(7);
        Heard heard(box);
        typeOver(lineEditOf(box), "7"_s);
        QCOMPARE(heard.take(), QStringList());
    }

    void aTypedNumberIsRewrittenAsTheBoxWritesIt() override
    {
        Box box;
        Heard heard(box);
        typeOver(lineEditOf(box), "0"_s);
        QTest::keyClicks(&lineEditOf(box), "7"_s);
        QCOMPARE(box.text(), "7"_s);
        QCOMPARE(lineEditOf(box).cursorPosition(), 1);
        QCOMPARE(heard.take(), QStringList({textChanged("7"), valueChanged(7)}));
        QTest::keyClick(&lineEditOf(box), Qt::Key_Home);
        QTest::keyClicks(&lineEditOf(box), "0"_s); // the value stays, and so does the text
        QCOMPARE(box.text(), "07"_s);
        QCOMPARE(heard.take(), QStringList());
    }

    void aDigitThatLeadsBeyondTheRangeIsRefused() override
    {
        Box box;
        Heard heard(box);
        typeOver(lineEditOf(box), "150"_s);
        QCOMPARE(box.text(), "15"_s);
        QCOMPARE(box.value(), T(15));
        QCOMPARE(heard.take(), QStringList({valueChanged(1), valueChanged(15)}));
        typeOver(lineEditOf(box), "-"_s);
        QCOMPARE(box.text(), "15"_s);
        QTest::keyClicks(&lineEditOf(box), "x"_s);
        QCOMPARE(box.text(), "15"_s);
        QCOMPARE(heard.take(), QStringList());
    }

    void aNumberCanBeTypedTowardsTheRange() override
    {
        Box box;
        box.setRange(10, 99);
        box.setValue(20);
        Heard heard(box);
        typeOver(lineEditOf(box), "5"_s);
        QCOMPARE(box.text(), "5"_s);
        QCOMPARE(box.value(), T(20));
        QCOMPARE(heard.take(), QStringList());
        QTest::keyClicks(&lineEditOf(box), "6"_s);
        QCOMPARE(box.text(), "56"_s);
        QCOMPARE(heard.take(), QStringList({valueChanged(56)}));
    }

    void anEmptiedBoxKeepsItsValue() override
    {
        Box box;
        box.setValue(42);
        Heard heard(box);
        QTest::keySequence(&lineEditOf(box), QKeySequence::SelectAll);
        QTest::keyClick(&lineEditOf(box), Qt::Key_Delete);
        QCOMPARE(box.text(), QString());
        QCOMPARE(box.value(), T(42));
        QCOMPARE(heard.take(), QStringList());
    }

    void aSignCanBeTypedBeforeItsNumber() override
    {
        Box box;
        box.setValue(42);
        Heard heard(box);
        typeOver(lineEditOf(box), "+"_s);
        QCOMPARE(box.text(), "+"_s);
        QCOMPARE(heard.take(), QStringList());
        QTest::keyClicks(&lineEditOf(box), "7"_s);
        QCOMPARE(box.text(), "7"_s);
        QCOMPARE(heard.take(), QStringList({textChanged("7"), valueChanged(7)}));
        if constexpr (isSigned) {
            box.setMinimum(-50);
            typeOver(lineEditOf(box), "-"_s);
            QCOMPARE(box.text(), "-"_s);
            QCOMPARE(box.value(), T(7));
            QTest::keyClicks(&lineEditOf(box), "7"_s);
            QCOMPARE(box.text(), "-7"_s);
            QCOMPARE(heard.take(), QStringList({valueChanged(-7)}));
        }
    }

    void typedTextIsReadInTheDisplayBase_data() override
    {
        QTest::addColumn<int>("base");
        QTest::addColumn<QString>("keys");
        QTest::addColumn<T>("value");
        QTest::addColumn<QString>("text");
        row("binary", 2, "1011", T(11), "1011");
        row("binary, leading zero", 2, "01", T(1), "1");
        row("hexadecimal", 16, "5a", T(90), "5a");
        row("hexadecimal, capital", 16, "5A", T(90), "5a");
        row("decimal", 10, "90", T(90), "90");
        row("octal, written in decimal", 8, "10", T(8), "8");
        row("base 36, written in decimal", 36, "z", T(35), "35");
        row("decimal refuses letters", 10, "5a", T(5), "5");
        row("binary refuses other digits", 2, "12", T(1), "1");
    }

    void typedTextIsReadInTheDisplayBase() override
    {
        QFETCH(int, base);
        QFETCH(QString, keys);
        QFETCH(T, value);
        QFETCH(QString, text);
        Box box;
        box.setValue(99);
        box.setDisplayIntegerBase(base);
        typeOver(lineEditOf(box), keys);
        QCOMPARE(box.value(), value);
        QCOMPARE(box.text().toLower(), text);
    }

    void aPrefixIsKeptWhileTyping() override
    {
        Box box;
        box.setPrefix("$"_s);
        box.setValue(5);
        Heard heard(box);
        box.selectAll();
        QTest::keyClicks(&lineEditOf(box), "42"_s);
        QCOMPARE(box.text(), "$42"_s);
        QCOMPARE(heard.take(), QStringList({valueChanged(4), valueChanged(42)}));
        typeOver(lineEditOf(box), "7"_s); // over the prefix as well: it is put back
        QCOMPARE(box.text(), "$7"_s);
        QCOMPARE(heard.take(), QStringList({valueChanged(7)}));
    }

    void aPastedPrefixIsTakenOffAtBothEnds() override
    {
        Box box;
        box.setPrefix("$"_s);
        Heard heard(box);
        pasteOver(lineEditOf(box), "$42$"_s);
        QCOMPARE(box.text(), "$42"_s);
        QCOMPARE(heard.take(), QStringList({valueChanged(42)}));
    }

    //! How a user comes to have some or all of a box selected that shows 0x2a.
    struct Selecting
    {
        const char* name;
        void (*select)(Box& box, QLineEdit& edit, QWidget& before);
    };

    static const std::vector<Selecting>& waysToSelect()
    {
        static const std::vector<Selecting> ways = {
            {"Tab", [](Box&, QLineEdit&, QWidget& before) { QTest::keyClick(&before, Qt::Key_Tab); }},
            {"Ctrl+A", [](Box&, QLineEdit& edit, QWidget&) { QTest::keySequence(&edit, QKeySequence::SelectAll); }},
            {"a double click",
             [](Box&, QLineEdit& edit, QWidget&) {
                 const QPoint onTheText(8, edit.height() / 2);
                 QTest::mouseDClick(&edit, Qt::LeftButton, Qt::NoModifier, onTheText);
             }},
            {"selectAll()", [](Box& box, QLineEdit&, QWidget&) { box.selectAll(); }},
            {"a selection that ends within the prefix", [](Box& box, QLineEdit& edit, QWidget&) {
                 box.setValue(0);
                 QTest::keyClick(&edit, Qt::Key_End);
                 QTest::keyClick(&edit, Qt::Key_Backspace);
                 edit.setSelection(1, 1);
             }}};
        return ways;
    }

    void aPrefixThatIsTypedOverComesBackBeforeTheCursor_data() override
    {
        QTest::addColumn<int>("way");
        QTest::addColumn<QString>("keys");
        QTest::addColumn<T>("value");
        for (std::size_t i = 0; i < waysToSelect().size(); ++i) {
            const auto add = [i](const char* keys, int value) {
                QTest::addRow("%s after %s", keys, waysToSelect().at(i).name)
                    << static_cast<int>(i) << QString::fromLatin1(keys) << static_cast<T>(value);
            };
            add("7", 0x7);
            add("7b", 0x7b);
            if constexpr (bits > 8) {
                add("123", 0x123);
                add("ab7", 0xab7);
                add("1a2b", 0x1a2b);
            }
        }
    }

    void aPrefixThatIsTypedOverComesBackBeforeTheCursor() override
    {
        QFETCH(int, way);
        QFETCH(QString, keys);
        QFETCH(T, value);
        QWidget window;
        auto* const before = new QLineEdit(&window);
        auto* const box = new Box(&window);
        auto* const layout = new QVBoxLayout(&window);
        layout->addWidget(before);
        layout->addWidget(box);
        box->setRange(0, Limits::max());
        box->setDisplayIntegerBase(16);
        box->setPrefix("0x"_s);
        box->setValue(0x2a);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        before->setFocus();
        QLineEdit& edit = lineEditOf(*box);
        waysToSelect().at(static_cast<std::size_t>(way)).select(*box, edit, *before);
        QVERIFY(edit.hasSelectedText());
        QTest::keyClicks(&edit, keys);
        QCOMPARE(box->text().toLower(), "0x"_s + digits(static_cast<quint64>(value), 16));
        QCOMPARE(edit.cursorPosition(), static_cast<int>(box->text().size()));
        QCOMPARE(box->value(), value);
    }

    void aPrefixThatIsDeletedComesBackBeforeTheCursor() override
    {
        Box box;
        box.setPrefix("$"_s);
        box.setValue(42);
        QLineEdit& edit = lineEditOf(box);
        Heard heard(box);
        QTest::keySequence(&edit, QKeySequence::SelectAll);
        QTest::keyClick(&edit, Qt::Key_Backspace);
        QCOMPARE(box.text(), "$"_s);
        QCOMPARE(edit.cursorPosition(), 1);
        QTest::keyClicks(&edit, "13"_s);
        QCOMPARE(box.text(), "$13"_s);
        QCOMPARE(heard.take(), QStringList({valueChanged(1), valueChanged(13)}));
        edit.setCursorPosition(1);
        QTest::keyClick(&edit, Qt::Key_Backspace);
        QCOMPARE(box.text(), "$13"_s);
        QCOMPARE(edit.cursorPosition(), 1);
        QCOMPARE(heard.take(), QStringList());
    }

    //! Of a text that was judged before there was a prefix, the judgement stands.
    void aPrefixThatIsNotPutThereMovesNoCursor() override
    {
        Box box;
        box.setMinimum(0);
        box.setSpecialValueText("auto"_s);
        box.setPrefix("no. "_s);
        QLineEdit& edit = lineEditOf(box);
        QTest::keySequence(&edit, QKeySequence::SelectAll);
        QTest::keyClicks(&edit, "0"_s);
        QCOMPARE(edit.cursorPosition(), static_cast<int>(edit.text().size()));
        QVERIFY(!edit.text().contains("  "_s));
        QTest::keyClicks(&edit, "5"_s);
        QCOMPARE(edit.text(), "no. 5"_s);
        QCOMPARE(edit.cursorPosition(), 5);
        QCOMPARE(box.value(), T(5));
    }

    void aDigitTypedBesideASuffixIsRefused() override
    {
        Box box;
        box.setSuffix(" V"_s);
        box.setValue(5);
        Heard heard(box);
        QTest::keyClick(&lineEditOf(box), Qt::Key_Home);
        QTest::keyClicks(&lineEditOf(box), "7"_s);
        QCOMPARE(box.value(), T(5));
        QCOMPARE(heard.take(), QStringList());
        box.stepBy(1);
        QCOMPARE(box.text(), "6 V"_s);
        QCOMPARE(heard.take(), QStringList({textChanged("6 V"), valueChanged(6)}));
    }

    void aRefusedKeyLeavesTextCursorAndSelectionAlone_data() override
    {
        QTest::addColumn<Dressed>("dressed");
        QTest::addColumn<int>("start");
        QTest::addColumn<int>("length");
        QTest::addColumn<Key>("key");
        const auto type = [](const char* key) { return Key{QLatin1String(key), {}}; };
        const Key backspace{{}, Qt::Key_Backspace};
        const Key erase{{}, Qt::Key_Delete};

        const Dressed metric{10, "", " cm", "", 5};
        row("before a suffix", metric, 1, 0, type("7"));
        row("before the number of a suffix", metric, 0, 0, type("7"));
        row("behind a suffix", metric, 4, 0, type("7"));
        row("within a suffix", metric, 3, 0, type("7"));
        row("the number of a suffix typed over", metric, 1, -1, type("7"));
        row("behind a suffix that ends in a space", Dressed{10, "", " m ", "", 5}, 4, 0, type("7"));
        row("number and space of a suffix typed over", metric, 0, 2, type("7"));
        row("a suffix typed over up to its space", metric, 2, 2, type("7"));
        row("a wrong character over it all", metric, 0, 4, type("x"));
        row("a number with a suffix erased", metric, 1, 0, backspace);
        row("a suffix erased", metric, 4, 0, backspace);
        row("a suffix erased from its front", metric, 1, 0, erase);
        row("a selected number erased", metric, 1, -1, erase);
        row("part of a suffix erased", metric, 2, 1, backspace);

        const Dressed both{16, "0x", " h", "", 0x2a};
        row("between prefix and suffix", both, 4, 0, type("7"));
        row("the number between prefix and suffix", both, 4, -2, type("7"));
        row("a prefix with a suffix erased", both, 2, 0, backspace);

        const Dressed hexadecimal{16, "0x", "", "", 0x2a};
        row("a letter that is no digit", hexadecimal, 4, 0, type("g"));
        row("a letter that is no digit, over a digit", hexadecimal, 2, 1, type("g"));
        row("a letter that is no digit, over it all", hexadecimal, 0, 4, type("g"));
        row("a letter that is no digit, over it all backwards", hexadecimal, 4, -4, type("g"));

        const Dressed special{10, "", "", "least", static_cast<qint64>(Limits::min())};
        row("behind the special value text", special, 5, 0, type("7"));
        row("within the special value text", special, 1, 2, type("7"));
        row("the special value text erased", special, 5, 0, backspace);

        // The pattern of a negative value is above the type's maximum; no value of an unsigned type is negative.
        const auto rows = [&](const char* name, const Dressed& dressed) {
            const QString shown = QLatin1String(dressed.prefix) + digits(pattern(dressed.valueAs<T>()), dressed.base);
            const auto size = static_cast<int>(shown.size());
            row(qPrintable(QLatin1String(name) + ", at its end"_s), dressed, size, 0, type("1"));
            row(qPrintable(QLatin1String(name) + ", a wrong digit"_s), dressed, size, 0, type("z"));
            row(qPrintable(QLatin1String(name) + ", over it all"_s), dressed, 0, size, type("z"));
            row(qPrintable(QLatin1String(name) + ", over a digit"_s), dressed, size, -1, type("z"));
        };
        rows("-1 in base 16", {16, "", "", "", -1});
        rows("-2 in base 2", {2, "", "", "", -2});
        rows("-1 in base 16 with a prefix", {16, "0x", "", "", -1});
        rows("the lowest in base 2 with a prefix", {2, "0b", "", "", qint64(quint64(1) << (bits - 1))});
    }

    void aRefusedKeyLeavesTextCursorAndSelectionAlone() override
    {
        QFETCH(Dressed, dressed);
        QFETCH(int, start);
        QFETCH(int, length);
        QFETCH(Key, key);
        Box box;
        dress(box, dressed);
        QLineEdit& edit = lineEditOf(box);
        const QString text = edit.text();
        for (int times = 1; times <= 3; ++times) {
            edit.setSelection(start, length);
            const QString selected = edit.selectedText();
            const int cursor = edit.cursorPosition();
            const int selectionStart = edit.selectionStart();
            Heard heard(box);
            key.press(edit);
            QCOMPARE(edit.text(), text);
            QCOMPARE(edit.cursorPosition(), cursor);
            QCOMPARE(edit.selectedText(), selected);
            QCOMPARE(edit.selectionStart(), selectionStart);
            QCOMPARE(box.value(), dressed.valueAs<T>());
            QCOMPARE(heard.take(), QStringList());
        }
    }

    void whatTheBoxShowsIsAcceptableInput_data() override
    {
        QTest::addColumn<Dressed>("dressed");
        row("a number", Dressed{10, "", "", "", 42});
        row("with a prefix", Dressed{10, "$", "", "", 42});
        row("with a suffix", Dressed{10, "", " cm", "", 42});
        row("with both", Dressed{10, "$", " cm", "", 42});
        row("special value text", Dressed{10, "", " cm", "least", static_cast<qint64>(Limits::min())});
        row("-1 in base 16", Dressed{16, "0x", "", "", -1});
        row("-1 in base 2 with a suffix", Dressed{2, "0b", " bits", "", -1});
    }

    void whatTheBoxShowsIsAcceptableInput() override
    {
        QFETCH(Dressed, dressed);
        Box box;
        dress(box, dressed);
        QVERIFY(box.hasAcceptableInput());
        lineEditOf(box).setText("no number"_s);
        QVERIFY(!box.hasAcceptableInput());
    }

    void aTypedSpecialValueTextDoesNotReachTheValue() override
    {
        Box box;
        box.setValue(42);
        box.setSpecialValueText("least"_s);
        Heard heard(box);
        pasteOver(lineEditOf(box), "least"_s);
        QCOMPARE(box.value(), T(42));
        QCOMPARE(heard.take(), QStringList());
    }

    void aPastedTextWithAnOldAnswerIsClamped() override
    {
        Box box;
        QCOMPARE(stateOf(box, "50"_s), QValidator::Acceptable);
        box.setMaximum(10);
        Heard heard(box);
        pasteOver(lineEditOf(box), "50"_s);
        QCOMPARE(box.value(), T(10));
        QCOMPARE(box.text(), "10"_s);
        QCOMPARE(heard.take(), QStringList({textChanged("10"), valueChanged(10)}));
    }

    void withoutKeyboardTrackingTypingChangesNothing() override
    {
        Box box;
        box.setKeyboardTracking(false);
        QLineEdit& edit = lineEditOf(box);
        Heard heard(box);
        typeOver(edit, "42"_s);
        QTest::keyClick(&edit, Qt::Key_Return);
        QFocusEvent leaving(QEvent::FocusOut);
        QApplication::sendEvent(&box, &leaving);
        QCOMPARE(box.value(), T(0));
        QCOMPARE(box.text(), "42"_s);
        QCOMPARE(heard.take(), QStringList());

        box.setKeyboardTracking(true);
        QCOMPARE(heard.take(), QStringList());
        QTest::keyClick(&edit, Qt::Key_End);
        QTest::keyClick(&edit, Qt::Key_Backspace);
        QCOMPARE(heard.take(), QStringList({valueChanged(4)}));
    }

    void anUnacceptableTextStaysAsTypedWhenTheFocusLeaves() override
    {
        Box box;
        box.setRange(10, 99);
        QLineEdit& edit = lineEditOf(box);
        Heard heard(box);
        typeOver(edit, "5"_s);
        QTest::keyClick(&edit, Qt::Key_Return);
        QFocusEvent leaving(QEvent::FocusOut);
        QApplication::sendEvent(&box, &leaving);
        QCOMPARE(box.text(), "5"_s);
        QCOMPARE(box.value(), T(10));
        QCOMPARE(heard.take(), QStringList());
    }

    // ---------------------------------------------------------------------------------------------- Subclasses

    void aSubclassDecidesWhichTextsAreAcceptable() override
    {
        struct NoSeven : Box
        {
            QValidator::State validate(QString& text, int& position) const override
            {
                const QValidator::State state = Box::validate(text, position);
                return text.endsWith(QLatin1Char('7')) ? QValidator::Intermediate : state;
            }
        } box;
        Heard heard(box);
        typeOver(lineEditOf(box), "7"_s);
        QCOMPARE(box.text(), "7"_s);
        QCOMPARE(box.value(), T(0));
        QTest::keyClicks(&lineEditOf(box), "5"_s);
        QCOMPARE(heard.take(), QStringList({valueChanged(75)}));
    }

    void aSubclassDecidesWhatATextMeans() override
    {
        struct Doubled : Box
        {
            T valueFromText(const QString& text) const override { return static_cast<T>(2 * Box::valueFromText(text)); }
        } box;
        Heard heard(box);
        typeOver(lineEditOf(box), "7"_s);
        QCOMPARE(box.value(), T(14));
        QCOMPARE(box.text(), "14"_s);
        QCOMPARE(heard.take(), QStringList({textChanged("14"), valueChanged(14)}));
    }

    void aMeaningBeyondTheRangeIsClamped() override
    {
        struct Extreme : Box
        {
            T valueFromText(const QString& text) const override
            {
                return text == "7"_s ? Limits::max() : Limits::min();
            }
        } box;
        box.setRange(10, 90);
        Heard heard(box);
        pasteOver(lineEditOf(box), "20"_s); // the lowest of the type: the value stays at the minimum
        QCOMPARE(box.value(), T(10));
        QCOMPARE(heard.take(), QStringList());
        box.setMinimum(0);
        pasteOver(lineEditOf(box), "7"_s);
        QCOMPARE(box.value(), T(90));
        QCOMPARE(heard.take(), QStringList({textChanged("90"), valueChanged(90)}));
    }

    void aSubclassFixesUpWhatStandsThereWhenTheFocusLeaves() override
    {
        struct Rounding : Box
        {
            void fixup(QString& text) const override { text = "10"_s; }
        } box;
        box.setRange(10, 90);
        box.setValue(42);
        Heard heard(box);
        typeOver(lineEditOf(box), "7"_s);
        QFocusEvent leaving(QEvent::FocusOut);
        QApplication::sendEvent(&box, &leaving);
        QCOMPARE(box.text(), "10"_s);
        QCOMPARE(heard.take(), QStringList({valueChanged(10)}));
    }

    void aSubclassDecidesHowAValueIsWritten() override
    {
        struct Bracketed : Box
        {
            QString textFromValue(const T& n) const override { return "<"_s + Box::textFromValue(n) + ">"_s; }
        } box;
        Heard heard(box);
        box.setValue(42);
        box.setPrefix("$"_s);
        box.stepBy(1);
        QCOMPARE(box.text(), "$<43>"_s);
        QCOMPARE(box.cleanText(), "<43>"_s);
        QCOMPARE(heard.take(), QStringList({textChanged("<42>"), valueChanged(42), textChanged("$<42>"),
                                            textChanged("$<43>"), valueChanged(43)}));
    }

    void aSubclassDecidesWhichStepsAreEnabled() override
    {
        struct OnlyUp : Box
        {
            QAbstractSpinBox::StepEnabled stepEnabled() const override { return QAbstractSpinBox::StepUpEnabled; }
        } box;
        box.setValue(50);
        Heard heard(box);
        QTest::keyClick(&lineEditOf(box), Qt::Key_Down);
        QCOMPARE(heard.take(), QStringList());
        QTest::keyClick(&lineEditOf(box), Qt::Key_Up);
        QCOMPARE(heard.take(), QStringList({textChanged("51"), valueChanged(51)}));
    }

    //! Can be given another line edit.
    struct Refitted : Box
    {
        explicit Refitted(QLineEdit* edit = nullptr)
        {
            if (edit != nullptr)
                Box::setLineEdit(edit);
        }
        using Box::setLineEdit;
    };

    void aSubclassMayReplaceTheLineEdit_data() override
    {
        QTest::addColumn<bool>("whileItIsMade");
        row("in its constructor", true);
        row("later on", false);
    }

    void aSubclassMayReplaceTheLineEdit() override
    {
        QFETCH(bool, whileItIsMade);
        const QPointer<QLineEdit> edit = new QLineEdit;
        Refitted box(whileItIsMade ? edit : nullptr);
        box.setRange(0, 100);
        box.setDisplayIntegerBase(16);
        box.setPrefix("0x"_s);
        box.setValue(0x2a);
        const QPointer<QLineEdit> old = &lineEditOf(box);
        if (!whileItIsMade) {
            box.setLineEdit(edit);
            QVERIFY(old.isNull());
        }
        QCOMPARE(edit->parentWidget(), &box);
        QCOMPARE(box.text().toLower(), "0x2a"_s);
        QCOMPARE(edit->text(), box.text());

        Heard heard(box);
        typeOver(*edit, "51"_s);
        QCOMPARE(heard.take(), QStringList({valueChanged(0x5), valueChanged(0x51)}));
        typeOver(*edit, "x"_s);
        QTest::keyClicks(edit, "7"_s);
        QCOMPARE(edit->text(), "0x7"_s);
        QCOMPARE(heard.take(), QStringList({valueChanged(0x7)}));
        box.stepBy(1);
        QCOMPARE(edit->selectedText(), "8"_s);
        QCOMPARE(heard.take(), QStringList({textChanged("0x8"), valueChanged(8)}));
        box.setDisplayIntegerBase(10);
        box.setSuffix(" V"_s);
        QTest::keyClicks(edit, "7"_s);
        QCOMPARE(edit->text(), "0x8 V"_s);
        QCOMPARE(edit->selectedText(), "8"_s);
    }

    void aLineEditKeepsTheValidatorThatItBrings() override
    {
        auto* const edit = new QLineEdit;
        const QRegularExpressionValidator octal(QRegularExpression("[0-7]*"_s));
        edit->setValidator(&octal);
        Refitted box;
        box.setValue(12);
        box.setLineEdit(edit);
        QCOMPARE(edit->validator(), &octal);
        QCOMPARE(edit->text(), "12"_s);
        Heard heard(box);
        typeOver(*edit, "285"_s);
        QCOMPARE(edit->text(), "25"_s);
        QCOMPARE(heard.take(), QStringList({valueChanged(2), valueChanged(25)}));
    }

    void theSameLineEditOrNoneReplacesNothing() override
    {
        Refitted box;
        QLineEdit& edit = lineEditOf(box);
        const QValidator* const validator = edit.validator();
        Heard heard(box);
        box.setLineEdit(&edit);
        box.setLineEdit(nullptr);
        QCOMPARE(&lineEditOf(box), &edit);
        QCOMPARE(edit.validator(), validator);
        typeOver(edit, "7"_s);
        QCOMPARE(heard.take(), QStringList({valueChanged(7)}));
    }

    void theLineEditMayBeReplacedWhileItsTextIsTold() override
    {
        Refitted box;
        auto* const edit = new QLineEdit;
        connect(&box, &Box::textChanged, &box, [&] {
            if (edit->parentWidget() == nullptr)
                box.setLineEdit(edit);
        });
        box.setValue(42);
        QCOMPARE(edit->text(), "42"_s);
        Heard heard(box);
        typeOver(*edit, "7"_s);
        QCOMPARE(heard.take(), QStringList({valueChanged(7)}));
    }

    // ------------------------------------------------------------------------------------------------ Stepping

    //! The type of exact results: 64-bit sums wrap as the unsigned box does, and the signed ones here do not wrap.
    using Wide = std::conditional_t<(bits < 64), qint64, T>;

    //! A sum, difference or product as the box computes it: in 32 bits at least.
    static Wide own(Wide n)
    {
        using Own = std::conditional_t<(bits < 32), qint32, T>;
        return static_cast<Wide>(static_cast<Own>(n));
    }

    //! What a step leads to, in plain arithmetic.
    static T stepped(T value, T step, int steps, T minimum, T maximum, bool wrapping)
    {
        const Wide least = minimum;
        Wide n = own(Wide(value) + own(Wide(step) * static_cast<Wide>(steps)));
        const Wide modulus = own(Wide(maximum) - least + 1);
        if (wrapping && modulus != 0) {
            Wide remainder = own(n - least) % modulus;
            if constexpr (std::is_signed_v<Wide>) {
                if (remainder < 0)
                    remainder += modulus;
            }
            n = own(least + remainder);
        }
        return std::min(std::max(static_cast<T>(n), minimum), maximum);
    }

    //! The adaptive step by counting digits; beyond 10^14 the box computes it in rounded numbers.
    static T adaptiveStep(T value, int steps)
    {
        Wide magnitude = value;
        if (isNegative(value))
            magnitude = value == Limits::min() ? 0 : static_cast<Wide>(0) - magnitude;
        if (magnitude < 100)
            return 1;
        if (isNegative(value) != (steps < 0))
            --magnitude;
        T step = 1;
        for (; magnitude >= 100; magnitude /= 10)
            step = static_cast<T>(step * 10);
        return step;
    }

    static constexpr int stepCounts[] = {
        1, -1, 3, -3, 10, -10, 1000, -1000, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()};

    //! A step as a failure shows it.
    static QString stepWords(T value, T step, int steps, T result)
    {
        return "%1 + %2 * %3 = %4"_s.arg(decimal(value), decimal(step), QString::number(steps), decimal(result));
    }

    //! All values of the narrow types, the telling ones of the others.
    static std::vector<T> valuesToStepFrom(T minimum, T maximum)
    {
        std::vector<T> values;
        const auto add = [&](T n) {
            if (n >= minimum && n <= maximum)
                values.push_back(n);
        };
        if constexpr (bits <= 16) {
            for (int n = Limits::min(); n <= Limits::max(); ++n)
                add(static_cast<T>(n));
        } else {
            for (const T n : tellingValues())
                add(n);
        }
        return values;
    }

    //! Shows the same text for every value: it steps without the cost of a refresh.
    struct Unrefreshed : Box
    {
        QString textFromValue(const T&) const override { return QStringLiteral("n"); }
    };

    void keysWheelAndButtonsStep() override
    {
        Painted box;
        box.resize(120, 40);
        box.setValue(50);
        Heard heard(box);
        QTest::keyClick(&lineEditOf(box), Qt::Key_Up);
        QCOMPARE(heard.take(), QStringList({textChanged("51"), valueChanged(51)}));
        QTest::keyClick(&lineEditOf(box), Qt::Key_Down);
        QCOMPARE(heard.take(), QStringList({textChanged("50"), valueChanged(50)}));
        QTest::keyClick(&lineEditOf(box), Qt::Key_PageUp);
        QCOMPARE(heard.take(), QStringList({textChanged("60"), valueChanged(60)}));
        QTest::keyClick(&lineEditOf(box), Qt::Key_PageDown);
        QCOMPARE(heard.take(), QStringList({textChanged("50"), valueChanged(50)}));
        turnWheel(box, 2);
        QCOMPARE(heard.take(), QStringList({textChanged("52"), valueChanged(52)}));
        turnWheel(box, -1);
        QCOMPARE(heard.take(), QStringList({textChanged("51"), valueChanged(51)}));
        QTest::mouseClick(&box, Qt::LeftButton, Qt::NoModifier, box.middleOf(QStyle::SC_SpinBoxUp));
        QCOMPARE(heard.take(), QStringList({textChanged("52"), valueChanged(52)}));
        QTest::mouseClick(&box, Qt::LeftButton, Qt::NoModifier, box.middleOf(QStyle::SC_SpinBoxDown));
        QCOMPARE(heard.take(), QStringList({textChanged("51"), valueChanged(51)}));
        box.stepUp();
        box.stepDown();
        QCOMPARE(heard.take(), QStringList({textChanged("52"), valueChanged(52), textChanged("51"), valueChanged(51)}));
    }

    void aKeyDoesNotStepBeyondABound() override
    {
        Box box;
        box.setRange(10, 20);
        Heard heard(box);
        QTest::keyClick(&lineEditOf(box), Qt::Key_Down);
        QVERIFY(!lineEditOf(box).hasSelectedText());
        box.setValue(20);
        heard.take();
        QTest::keyClick(&lineEditOf(box), Qt::Key_Up);
        turnWheel(box, 1);
        QVERIFY(!lineEditOf(box).hasSelectedText());
        QCOMPARE(box.value(), T(20));
        QCOMPARE(heard.take(), QStringList());
    }

    void aStepMovesTheValueBySteps_data() override
    {
        QTest::addColumn<T>("value");
        QTest::addColumn<T>("step");
        QTest::addColumn<int>("steps");
        QTest::addColumn<bool>("wrapping");
        QTest::addColumn<T>("expected");
        // The range is 10 to 99.
        row("up", T(50), T(1), 1, false, T(51));
        row("down", T(50), T(1), -1, false, T(49));
        row("no steps", T(50), T(1), 0, false, T(50));
        row("a step of nothing", T(50), T(0), 10, false, T(50));
        row("three steps of seven", T(50), T(7), 3, false, T(71));
        row("three steps of seven down", T(50), T(7), -3, false, T(29));
        row("beyond the maximum", T(95), T(1), 10, false, T(99));
        row("below the minimum", T(15), T(1), -10, false, T(10));
        row("below zero", T(15), T(1), -20, false, (isSigned ? T(10) : T(99)));
        row("wrapping, within the range", T(50), T(7), 3, true, T(71));
        row("wrapping, beyond the maximum", T(99), T(1), 1, true, T(10));
        row("wrapping, further beyond it", T(95), T(1), 10, true, T(15));
        row("wrapping, no steps", T(50), T(1), 0, true, T(50));
        row("wrapping, once around", T(10), T(1), 90, true, T(10));
        // Below the minimum the narrow and the signed boxes come in at the maximum; the wide unsigned ones take
        // the remainder of a difference that has wrapped, 4294967295 or 18446744073709551615.
        constexpr T belowMinimum = isSigned || bits < 32 ? T(99) : bits == 32 ? T(10 + 75) : T(10 + 15);
        row("wrapping, below the minimum", T(10), T(1), -1, true, belowMinimum);
    }

    void aStepMovesTheValueBySteps() override
    {
        QFETCH(T, value);
        QFETCH(T, step);
        QFETCH(int, steps);
        QFETCH(bool, wrapping);
        QFETCH(T, expected);
        Box box;
        box.setRange(10, 99);
        box.setSingleStep(step);
        box.setValue(value);
        box.setWrapping(wrapping);
        Heard heard(box);
        box.stepBy(steps);
        QCOMPARE(box.value(), expected);
        QCOMPARE(heard.take(), expected == value
                                   ? QStringList()
                                   : QStringList({textChanged(decimal(expected)), valueChanged(expected)}));
    }

    void aStepIsStoredThenShownThenTold() override
    {
        Box box;
        QStringList seen;
        const auto see = [&] { seen << decimal(box.value()) + " shown as "_s + lineEditOf(box).text(); };
        connect(&box, &Box::valueChanged, &box, see);
        box.stepBy(1);
        QCOMPARE(seen, QStringList({"1 shown as 1"_s}));
    }

    void aStepThatLeavesTheValueSaysNothingButSelects() override
    {
        Box box;
        box.setValue(99);
        lineEditOf(box).deselect();
        Heard heard(box);
        box.stepBy(1);
        QCOMPARE(box.value(), T(99));
        QCOMPARE(lineEditOf(box).selectedText(), "99"_s);
        QCOMPARE(heard.take(), QStringList());
        lineEditOf(box).deselect();
        box.stepBy(0);
        QCOMPARE(lineEditOf(box).selectedText(), "99"_s);
        QCOMPARE(heard.take(), QStringList());
    }

    void everyStepSelectsTheNumber() override
    {
        Box box;
        box.setPrefix("ab"_s);
        box.setSuffix("cd"_s);
        box.setValue(9);
        QLineEdit& edit = lineEditOf(box);
        box.stepBy(1);
        QCOMPARE(edit.text(), "ab10cd"_s);
        QCOMPARE(edit.selectedText(), "10"_s);
        QCOMPARE(edit.cursorPosition(), 2);
        box.setSpecialValueText("least"_s);
        box.stepBy(-10);
        QCOMPARE(edit.text(), "least"_s);
        QCOMPARE(edit.selectedText(), "least"_s);
    }

    void overTheWholeTypeAStepWrapsInTheType_data() override
    {
        QTest::addColumn<T>("value");
        QTest::addColumn<T>("step");
        QTest::addColumn<int>("steps");
        constexpr T low = Limits::min();
        constexpr T high = Limits::max();
        for (const T value : {low, T(low + 1), T(5), T(high - 1), high}) {
            for (const T step : {T(0), T(1), T(7), T(high / 2), high}) {
                for (const int steps : stepCounts) {
                    const QString name = "%1 + %2 * %3"_s.arg(decimal(value), decimal(step), QString::number(steps));
                    row(qPrintable(name), value, step, steps);
                }
            }
        }
    }

    void overTheWholeTypeAStepWrapsInTheType() override
    {
        QFETCH(T, value);
        QFETCH(T, step);
        QFETCH(int, steps);
        const auto expected = static_cast<T>(pattern(value) + pattern(step) * static_cast<quint64>(steps));
        Box box;
        box.setRange(Limits::min(), Limits::max());
        box.setSingleStep(step);
        for (const bool wrapping : {false, true}) {
            box.setWrapping(wrapping);
            box.setValue(value);
            box.stepBy(steps);
            QCOMPARE(box.value(), expected);
        }
    }

    void anAdaptiveStepIsATenthOfTheMagnitude_data() override
    {
        QTest::addColumn<T>("value");
        QTest::addColumn<int>("steps");
        QTest::addColumn<T>("expected");
        row("zero up", T(0), 1, T(1));
        row("9 up", T(9), 1, T(10));
        row("99 up", T(99), 1, T(100));
        row("100 up", T(100), 1, T(110));
        row("100 down", T(100), -1, T(99));
        row("101 down", T(101), -1, T(91));
        row("99 down", T(99), -1, T(98));
        row("102 up twice", T(102), 2, T(122));
        row("123 down three times", T(123), -3, T(93));
        row("99 up ten times", T(99), 10, T(109));
        row("110, no steps", T(110), 0, T(110));
        if constexpr (isSigned) {
            row("-99 down", T(-99), -1, T(-100));
            row("-99 up", T(-99), 1, T(-98));
            row("-100 down", T(-100), -1, T(-110));
            row("-100 up", T(-100), 1, T(-99));
            row("-101 up", T(-101), 1, T(-91));
            row("the lowest up", Limits::min(), 1, T(Limits::min() + 1));
            row("the lowest up ten times", Limits::min(), 10, T(Limits::min() + 10));
            row("the lowest down", Limits::min(), -1, Limits::max());
        }
        if constexpr (bits > 8) {
            row("999 up", T(999), 1, T(1009));
            row("1000 up", T(1000), 1, T(1100));
            row("1000 down", T(1000), -1, T(990));
            row("1001 down", T(1001), -1, T(901));
            row("10000 up", T(10000), 1, T(11000));
            row("10000 down", T(10000), -1, T(9900));
            row("30000 down", T(30000), -2, T(28000));
        }
        if constexpr (bits > 8 && isSigned) {
            row("-1000 up", T(-1000), 1, T(-990));
            row("-1000 down", T(-1000), -1, T(-1100));
            row("-10000 up", T(-10000), 1, T(-9900));
            row("-10000 down", T(-10000), -1, T(-11000));
        }
        if constexpr (bits > 16) {
            row("one million up", T(1000000), 1, T(1100000));
            row("one million down", T(1000000), -1, T(990000));
            row("one billion up", T(1000000000), 1, T(1100000000));
            row("one billion down", T(1000000000), -1, T(990000000));
        }
    }

    void anAdaptiveStepIsATenthOfTheMagnitude() override
    {
        QFETCH(T, value);
        QFETCH(int, steps);
        QFETCH(T, expected);
        Box box;
        box.setRange(Limits::min(), Limits::max());
        box.setSingleStep(7);
        box.setStepType(QAbstractSpinBox::AdaptiveDecimalStepType);
        box.setValue(value);
        box.stepBy(steps);
        QCOMPARE(box.value(), expected);
    }

    void theSingleStepCountsAgainAfterAdaptiveSteps() override
    {
        Box box;
        box.setRange(0, 127);
        box.setSingleStep(3);
        box.setValue(100);
        box.setStepType(QAbstractSpinBox::AdaptiveDecimalStepType);
        box.stepBy(1);
        QCOMPARE(box.value(), T(110));
        QCOMPARE(box.singleStep(), T(3));
        box.setStepType(QAbstractSpinBox::DefaultStepType);
        box.stepBy(1);
        QCOMPARE(box.value(), T(113));
    }

    void everyStepAgreesWithPlainArithmetic_data() override
    {
        QTest::addColumn<T>("minimum");
        QTest::addColumn<T>("maximum");
        row("0 to 99", T(0), T(99));
        row("10 to 19", T(10), T(19));
        row("100 to 127", T(100), T(127));
        if constexpr (isSigned) {
            row("-50 to 50", T(-50), T(50));
            row("-99 to -10", T(-99), T(-10));
            row("-100 to 100", T(-100), T(100));
        }
        if constexpr (!isSigned || bits < 64) {
            row("the whole type", Limits::min(), Limits::max());
            row("the type but its highest", Limits::min(), T(Limits::max() - 1));
            row("the type but its lowest", T(Limits::min() + 1), Limits::max());
            row("zero to the highest", T(0), Limits::max());
            row("the lowest to ten", Limits::min(), T(10));
            row("most of the type", T(Limits::min() + 20), T(Limits::max() - 20));
        }
    }

    void everyStepAgreesWithPlainArithmetic() override
    {
        QFETCH(T, minimum);
        QFETCH(T, maximum);
        Unrefreshed box;
        box.setRange(minimum, maximum);
        const std::vector<T> values = valuesToStepFrom(minimum, maximum);
        for (const T step : {T(1), T(100)}) {
            box.setSingleStep(step);
            for (const bool wrapping : {false, true}) {
                box.setWrapping(wrapping);
                for (const T value : values) {
                    for (const int steps : stepCounts) {
                        box.setValue(value);
                        box.stepBy(steps);
                        const T expected = stepped(value, step, steps, minimum, maximum, wrapping);
                        if (box.value() != expected)
                            QCOMPARE(stepWords(value, step, steps, box.value()),
                                     stepWords(value, step, steps, expected));
                    }
                }
            }
        }
    }

    void everyAdaptiveStepAgreesWithPlainArithmetic() override
    {
        Unrefreshed box;
        box.setRange(Limits::min(), Limits::max());
        box.setStepType(QAbstractSpinBox::AdaptiveDecimalStepType);
        for (const T value : valuesToStepFrom(Limits::min(), Limits::max())) {
            const quint64 magnitude = isNegative(value) ? quint64(0) - pattern(value) : pattern(value);
            if (bits == 64 && magnitude > quint64(100000000000000))
                continue;
            for (const int steps : {1, -1, 3, -3, 10, -10}) {
                box.setValue(value);
                box.stepBy(steps);
                const T step = adaptiveStep(value, steps);
                const auto expected = static_cast<T>(pattern(value) + pattern(step) * static_cast<quint64>(steps));
                if (box.value() != expected)
                    QCOMPARE(stepWords(value, step, steps, box.value()), stepWords(value, step, steps, expected));
            }
        }
    }

    void stepsAreEnabledTowardsTheRestOfTheRange_data() override
    {
        QTest::addColumn<T>("minimum");
        QTest::addColumn<T>("maximum");
        QTest::addColumn<T>("value");
        QTest::addColumn<bool>("wrapping");
        QTest::addColumn<int>("enabled");
        constexpr int up = QAbstractSpinBox::StepUpEnabled;
        constexpr int down = QAbstractSpinBox::StepDownEnabled;
        row("at the minimum", T(10), T(20), T(10), false, up);
        row("between the bounds", T(10), T(20), T(11), false, up | down);
        row("at the maximum", T(10), T(20), T(20), false, down);
        row("a range of one value", T(10), T(10), T(10), false, 0);
        row("the type's lowest", Limits::min(), Limits::max(), Limits::min(), false, up);
        row("the type's highest", Limits::min(), Limits::max(), Limits::max(), false, down);
        row("wrapping, at the minimum", T(10), T(20), T(10), true, up | down);
        row("wrapping, between the bounds", T(10), T(20), T(11), true, up | down);
        row("wrapping, at the maximum", T(10), T(20), T(20), true, up | down);
        row("wrapping, a range of one value", T(10), T(10), T(10), true, up | down);
    }

    void stepsAreEnabledTowardsTheRestOfTheRange() override
    {
        QFETCH(T, minimum);
        QFETCH(T, maximum);
        QFETCH(T, value);
        QFETCH(bool, wrapping);
        QFETCH(int, enabled);
        Box box;
        box.setRange(minimum, maximum);
        box.setValue(value);
        box.setWrapping(wrapping);
        QCOMPARE(int(box.stepEnabled()), enabled);
        box.setReadOnly(true);
        QCOMPARE(int(box.stepEnabled()), enabled);
        box.setSpecialValueText("least"_s);
        QCOMPARE(int(box.stepEnabled()), enabled);
    }

    // ----------------------------------------------------------------------------------------------- Selecting

    void selectingAllSelectsTheNumberBackwards_data() override
    {
        QTest::addColumn<QString>("prefix");
        QTest::addColumn<QString>("suffix");
        QTest::addColumn<QString>("special");
        QTest::addColumn<T>("value");
        QTest::addColumn<QString>("selected");
        QTest::addColumn<int>("cursor");
        row("the number alone", "", "", "", T(42), "42", 0);
        row("with a prefix", "ab", "", "", T(42), "42", 2);
        row("with a suffix", "", "cd", "", T(42), "42", 0);
        row("with both", "ab", "cd", "", T(42), "42", 2);
        row("special value text not shown", "ab", "cd", "least", T(42), "42", 2);
        row("special value text", "ab", "cd", "least", Limits::min(), "least", 5);
        if constexpr (isSigned)
            row("with a sign", "ab", "cd", "", T(-42), "-42", 2);
    }

    void selectingAllSelectsTheNumberBackwards() override
    {
        QFETCH(QString, prefix);
        QFETCH(QString, suffix);
        QFETCH(QString, special);
        QFETCH(T, value);
        QFETCH(QString, selected);
        QFETCH(int, cursor);
        Box box;
        box.setRange(Limits::min(), Limits::max());
        box.setPrefix(prefix);
        box.setSuffix(suffix);
        box.setSpecialValueText(special);
        box.setValue(1);
        box.setValue(value);
        Heard heard(box);
        box.selectAll();
        QCOMPARE(lineEditOf(box).selectedText(), selected);
        QCOMPARE(lineEditOf(box).cursorPosition(), cursor);
        QCOMPARE(heard.take(), QStringList());
    }

    void selectingAllIsASlot() override
    {
        Box box;
        box.setSuffix("cd"_s);
        QVERIFY(QMetaObject::invokeMethod(&box, "selectAll"));
        QCOMPARE(lineEditOf(box).selectedText(), "0"_s);
    }
};
