// SPDX-License-Identifier: MIT
#pragma once

#include "IntegerStep_p.h"
#include "IntegerText_p.h"
#include "SpinBoxValidator_p.h"

#include <QAbstractSpinBox>
#include <QLineEdit>
#include <QPointer>
#include <QString>
#include <QStringBuilder>
#include <QStringView>
#include <QValidator>

#include <type_traits>

namespace nsUI {

/*!
    What the eight integer spin boxes have in common, once. Each box befriends this class and hands its work over
    with itself as the first argument; value types are those of the box's own members.

    Every change of the value goes the same way: store, refresh the line edit, emit valueChanged(). A slot of either
    signal may delete the box: whoever goes on with it after a signal looks first whether it is still there.
*/
class SpinBoxCore
{
public:
    template <class Box>
    static void init(Box& box)
    {
        box.setInputMethodHints(Qt::ImhDigitsOnly);
        setValidator(box, *box.lineEdit());
        attach(box, *box.lineEdit());
    }

    template <class Box>
    static void setLineEdit(Box& box, QLineEdit* pEdit)
    {
        if (pEdit == nullptr || pEdit == box.lineEdit())
            return;
        const bool bringsValidator = pEdit->validator() != nullptr;
        box.QAbstractSpinBox::setLineEdit(pEdit);
        if (!bringsValidator)
            setValidator(box, *pEdit);
        attach(box, *pEdit);
    }

    template <class Box, class T>
    static void setValue(Box& box, T nVal)
    {
        const T nBounded = bounded(box, nVal);
        if (nBounded == box.m_nValue)
            return;
        box.m_nValue = nBounded;
        box.update(); // its buttons, also where the text is right already
        const QPointer<Box> pBox(&box);
        box.updateEdit();
        if (pBox.isNull())
            return;
        const T nStored = box.m_nValue; // not a reference to the member: a slot may change that
        Q_EMIT box.valueChanged(nStored);
    }

    template <class Box, class T>
    static void setMinimum(Box& box, T nVal)
    {
        if (nVal == box.m_nMinimum)
            return;
        box.m_nMinimum = nVal;
        if (nVal > box.m_nMaximum)
            box.m_nMaximum = nVal;
        followRange(box);
    }

    template <class Box, class T>
    static void setMaximum(Box& box, T nVal)
    {
        if (nVal == box.m_nMaximum)
            return;
        box.m_nMaximum = nVal;
        if (box.m_nMinimum > nVal)
            box.m_nMinimum = nVal;
        followRange(box);
    }

    template <class Box, class T>
    static void setRange(Box& box, T nMin, T nMax)
    {
        if (nMin > nMax || (nMin == box.m_nMinimum && nMax == box.m_nMaximum))
            return;
        box.m_nMaximum = nMax;
        box.m_nMinimum = nMin;
        followRange(box);
    }

    template <class Box, class T>
    static void setSingleStep(Box& box, T nVal)
    {
        if (nVal == box.m_nSingleStep || isNegative(nVal))
            return;
        box.m_nSingleStep = nVal;
        box.updateEdit();
    }

    template <class Box>
    static void setPrefix(Box& box, const QString& sPrefix)
    {
        setAffix(box, box.m_sPrefix, sPrefix);
    }

    template <class Box>
    static void setSuffix(Box& box, const QString& sSuffix)
    {
        setAffix(box, box.m_sSuffix, sSuffix);
    }

    static bool isValidBase(int nBase) { return nBase >= 2 && nBase <= 36; }

    template <class Box>
    static void setDisplayIntegerBase(Box& box, int nBase)
    {
        if (nBase == box.m_nDisplayIntegerBase)
            return;
        box.m_nDisplayIntegerBase = nBase;
        box.updateEdit();
    }

    template <class Box>
    static bool specialValue(const Box& box)
    {
        return box.m_nValue == box.m_nMinimum && !box.specialValueText().isEmpty();
    }

    //! Shows the value. Tells of the new text while the line edit itself is silent, so no slot of it comes
    //! first.
    template <class Box>
    static void updateEdit(Box& box)
    {
        QLineEdit* const pEdit = box.lineEdit();
        const QString sNew =
            box.specialValue() ? box.specialValueText() : decorated(box, box.textFromValue(box.m_nValue));
        if (box.m_bCleared || sNew == pEdit->displayText())
            return;

        const bool wasEmpty = pEdit->text().isEmpty();
        const int nCursor = pEdit->cursorPosition();
        const int nSelected = pEdit->selectionLength();
        const bool wasBlocked = pEdit->blockSignals(true);
        pEdit->setText(sNew);
        const QPointer<Box> pBox(&box);
        const QPointer<QLineEdit> pBlocked(pEdit); // the slot may put another one in its place
        Q_EMIT box.textChanged(sNew);
        if (pBox.isNull())
            return;
        if (!box.specialValue())
            placeCursor(box, wasEmpty, nCursor, nSelected);
        box.update();
        if (!pBlocked.isNull())
            pBlocked->blockSignals(wasBlocked);
    }

    /*!
        \a sText without its prefix and the white space around it. The prefix is taken off either end; the
       suffix is never taken off. \a pPos moves by the number of characters that were trimmed.
    */
    template <class Box>
    static QStringView stripped(const Box& box, const QString& sText, int* pPos)
    {
        QStringView sRest = view(sText);
        if (!box.m_sPrefix.isEmpty() && !isSpecialText(box, sText))
            sRest = withoutPrefix(sText, box.m_sPrefix);
        const QStringView sTrimmed = sRest.trimmed();
        if (pPos != nullptr)
            *pPos -= static_cast<int>(sRest.size() - sTrimmed.size());
        return sTrimmed;
    }

    //! Examines \a sInput, completes it with prefix and suffix, and remembers what was found for the next
    //! call.
    template <class Box>
    static auto validateAndInterpret(const Box& box, QString& sInput, int& nPos, QValidator::State& state)
    {
        if (sInput == box.m_sCachedText && !sInput.isEmpty()) {
            state = box.m_cachedState;
            return box.m_nCachedValue;
        }

        const QStringView sCopy = stripped(box, sInput, &nPos);
        auto nVal = box.m_nValue;
        state = examined(box, sCopy, &nVal);
        if (state != QValidator::Acceptable)
            nVal = box.m_nMaximum > 0 ? box.m_nMinimum : box.m_nMaximum;
        if (!isDecorated(box, sInput, sCopy))
            sInput = decorated(box, sCopy.toString());

        box.m_sCachedText = sInput;
        box.m_cachedState = state;
        box.m_nCachedValue = nVal;
        return nVal;
    }

    template <class Box>
    static auto valueFromText(const Box& box, const QString& sText)
    {
        QString sCopy = sText;
        int nPos = box.lineEdit()->cursorPosition();
        QValidator::State state = QValidator::Acceptable;
        return box.validateAndInterpret(sCopy, nPos, state);
    }

    template <class Box>
    static void editorTextChanged(Box& box, const QString& sText)
    {
        if (!box.keyboardTracking())
            return;
        QString sCopy = sText;
        int nPos = box.lineEdit()->cursorPosition();
        if (box.validate(sCopy, nPos) == QValidator::Acceptable)
            setValue(box, box.valueFromText(sCopy));
    }

    template <class Box>
    static void stepBy(Box& box, int nSteps)
    {
        const auto nStep = box.m_stepType == QAbstractSpinBox::AdaptiveDecimalStepType
                               ? IntegerStep::adaptive(box.m_nValue, nSteps)
                               : box.m_nSingleStep;
        const QPointer<Box> pBox(&box);
        setValue(box, IntegerStep::moved(box.m_nValue, nStep, nSteps, box.m_nMinimum, box.m_nMaximum, box.wrapping()));
        if (!pBox.isNull())
            box.selectAll();
    }

    template <class Box>
    static QAbstractSpinBox::StepEnabled stepEnabled(const Box& box)
    {
        QAbstractSpinBox::StepEnabled enabled = QAbstractSpinBox::StepNone;
        if (box.wrapping() || box.m_nValue < box.m_nMaximum)
            enabled |= QAbstractSpinBox::StepUpEnabled;
        if (box.wrapping() || box.m_nValue > box.m_nMinimum)
            enabled |= QAbstractSpinBox::StepDownEnabled;
        return enabled;
    }

    //! Selects the number, from its end backwards, so that the cursor stands before its first digit.
    template <class Box>
    static void selectAll(Box& box)
    {
        QLineEdit* const pEdit = box.lineEdit();
        if (box.specialValue()) {
            pEdit->selectAll();
            return;
        }
        const int nEnd = static_cast<int>(pEdit->displayText().size() - box.m_sSuffix.size());
        pEdit->setSelection(nEnd, static_cast<int>(box.m_sPrefix.size()) - nEnd);
    }

private:
    template <class Box>
    static void setValidator(const Box& box, QLineEdit& edit)
    {
        edit.setValidator(new SpinBoxValidator<Box>(box, &edit));
    }

    //! From here on the line edit shows the value, and what is typed into it is read.
    template <class Box>
    static void attach(Box& box, QLineEdit& edit)
    {
        QObject::connect(&edit, &QLineEdit::textChanged, &box, &Box::editorTextChanged);
        box.updateEdit();
    }

    template <class T>
    static bool isNegative(T nVal)
    {
        if constexpr (std::is_signed_v<T>)
            return nVal < 0;
        else
            return false;
    }

    template <class Box, class T>
    static T bounded(const Box& box, T nVal)
    {
        const T nBelow = box.m_nMaximum < nVal ? box.m_nMaximum : nVal;
        return box.m_nMinimum < nBelow ? nBelow : box.m_nMinimum;
    }

    //! A new range may open or close the way of a button without moving the value.
    template <class Box>
    static void followRange(Box& box)
    {
        box.update();
        setValue(box, box.m_nValue);
    }

    template <class Box>
    static void setAffix(Box& box, QString& sMember, const QString& sNew)
    {
        if (sNew == sMember)
            return;
        sMember = sNew;
        const QPointer<Box> pBox(&box);
        box.updateEdit();
        if (!pBox.isNull())
            box.updateGeometry();
    }

    template <class Box>
    static QString decorated(const Box& box, const QString& sNumber)
    {
        if (box.m_sPrefix.isEmpty() && box.m_sSuffix.isEmpty())
            return sNumber;
        return box.m_sPrefix % sNumber % box.m_sSuffix;
    }

    //! True when \a sInput already is the prefix, \a sCopy (a part of it) and the suffix.
    template <class Box>
    static bool isDecorated(const Box& box, const QString& sInput, QStringView sCopy)
    {
        const qsizetype nPosition = sCopy.data() - sInput.constData();
        return nPosition == box.m_sPrefix.size() && nPosition + sCopy.size() + box.m_sSuffix.size() == sInput.size() &&
               sInput.startsWith(box.m_sPrefix) && sInput.endsWith(box.m_sSuffix);
    }

    template <class Box>
    static bool isSpecialText(const Box& box, const QString& sText)
    {
        const QString sSpecial = box.specialValueText();
        return !sSpecial.isEmpty() && sText == sSpecial;
    }

    //! \a sText whole; unlike QStringView's own conversion it has a place in a null text, too.
    static QStringView view(const QString& sText) { return QStringView(sText.constData(), sText.size()); }

    // The end is compared with the prefix too: a text that is wrapped in it on both sides loses both.
    static QStringView withoutPrefix(const QString& sText, const QString& sPrefix)
    {
        qsizetype nFrom = 0;
        qsizetype nSize = sText.size();
        if (sText.startsWith(sPrefix)) {
            nFrom = sPrefix.size();
            nSize -= sPrefix.size();
        }
        if (sText.endsWith(sPrefix))
            nSize -= sPrefix.size();
        // A prefix that is counted twice leaves less than nothing: QString::mid() takes all the rest then.
        return nSize < 0 ? view(sText).mid(nFrom) : view(sText).mid(nFrom, nSize);
    }

    template <class Box>
    static void placeCursor(Box& box, bool wasEmpty, int nOldCursor, int nSelected)
    {
        QLineEdit* const pEdit = box.lineEdit();
        const int nFirst = static_cast<int>(box.m_sPrefix.size());
        const int nLast = static_cast<int>(pEdit->displayText().size() - box.m_sSuffix.size());
        const int nCursor = qBound(nFirst, nOldCursor, nLast);
        if (nSelected > 0)
            pEdit->setSelection(nCursor, nSelected);
        else
            pEdit->setCursorPosition(wasEmpty ? nFirst : nCursor);
    }

    //! The state of a text without its prefix, and its value where it is Acceptable.
    template <class Box, class T>
    static QValidator::State examined(const Box& box, QStringView sText, T* pVal)
    {
        const bool startsWithMinus = sText.startsWith(QLatin1Char('-'));
        if (box.m_nMaximum != box.m_nMinimum) {
            if (sText.isEmpty())
                return QValidator::Intermediate;
            if (sText.size() == 1 && startsWithMinus && isNegative(box.m_nMinimum))
                return QValidator::Intermediate;
            if (sText.size() == 1 && sText.at(0) == QLatin1Char('+') && !isNegative(box.m_nMaximum))
                return QValidator::Intermediate;
        }
        if (startsWithMinus && !isNegative(box.m_nMinimum))
            return QValidator::Invalid;
        if (!IntegerText::toValue(sText, box.m_nDisplayIntegerBase, pVal))
            return QValidator::Invalid;
        return stateOf(box, *pVal);
    }

    //! A number outside the range is Intermediate as long as more digits can bring it in, on its side of
    //! zero.
    template <class Box, class T>
    static QValidator::State stateOf(const Box& box, T nVal)
    {
        if (nVal >= box.m_nMinimum && nVal <= box.m_nMaximum)
            return QValidator::Acceptable;
        if (box.m_nMaximum == box.m_nMinimum)
            return QValidator::Invalid;
        const bool reachable = isNegative(nVal) ? nVal >= box.m_nMinimum : nVal <= box.m_nMaximum;
        return reachable ? QValidator::Intermediate : QValidator::Invalid;
    }
};

} // namespace nsUI
