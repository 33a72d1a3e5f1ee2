// SPDX-License-Identifier: MIT
#pragma once

#include "IntegerStep_p.h"
#include "IntegerText_p.h"

#include <QAbstractSpinBox>
#include <QLineEdit>
#include <QString>
#include <QStringBuilder>
#include <QStringRef>
#include <QValidator>

#include <type_traits>

namespace nsUI {

/*!
    What the eight integer spin boxes have in common, once. Each box befriends this class and hands its work over
    with itself as the first argument; value types are those of the box's own members.

    Every change of the value goes the same way: store, refresh the line edit, emit valueChanged().
*/
class SpinBoxCore
{
public:
    template <class Box>
    static void init(Box& box)
    {
        box.setInputMethodHints(Qt::ImhDigitsOnly);
        box.updateEdit();
        QObject::connect(box.lineEdit(), &QLineEdit::textChanged, &box, &Box::editorTextChanged);
    }

    template <class Box, class T>
    static void setValue(Box& box, T nVal)
    {
        const T nBounded = bounded(box, nVal);
        if (nBounded == box.m_nValue)
            return;
        box.m_nValue = nBounded;
        box.updateEdit();
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
        setValue(box, box.m_nValue);
    }

    template <class Box, class T>
    static void setMaximum(Box& box, T nVal)
    {
        if (nVal == box.m_nMaximum)
            return;
        box.m_nMaximum = nVal;
        if (box.m_nMinimum > nVal)
            box.m_nMinimum = nVal;
        setValue(box, box.m_nValue);
    }

    template <class Box, class T>
    static void setRange(Box& box, T nMin, T nMax)
    {
        if (nMin > nMax || (nMin == box.m_nMinimum && nMax == box.m_nMaximum))
            return;
        box.m_nMaximum = nMax;
        box.m_nMinimum = nMin;
        setValue(box, box.m_nValue);
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
        Q_EMIT box.textChanged(sNew);
        if (!box.specialValue())
            placeCursor(box, wasEmpty, nCursor, nSelected);
        box.update();
        pEdit->blockSignals(wasBlocked);
    }

    /*!
        \a sText without its prefix and the white space around it. The prefix is taken off either end; the
       suffix is never taken off. \a pPos moves by the number of characters that were trimmed.
    */
    template <class Box>
    static QStringRef stripped(const Box& box, const QString& sText, int* pPos)
    {
        QStringRef sRest(&sText);
        if (!box.m_sPrefix.isEmpty() && !isSpecialText(box, sText))
            sRest = withoutPrefix(sText, box.m_sPrefix);
        const QStringRef sTrimmed = sRest.trimmed();
        if (pPos != nullptr)
            *pPos -= sRest.size() - sTrimmed.size();
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

        const QStringRef sCopy = stripped(box, sInput, &nPos);
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
        setValue(box, IntegerStep::moved(box.m_nValue, nStep, nSteps, box.m_nMinimum, box.m_nMaximum, box.wrapping()));
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
        const int nEnd = pEdit->displayText().size() - box.m_sSuffix.size();
        pEdit->setSelection(nEnd, box.m_sPrefix.size() - nEnd);
    }

private:
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

    template <class Box>
    static void setAffix(Box& box, QString& sMember, const QString& sNew)
    {
        if (sNew == sMember)
            return;
        sMember = sNew;
        box.updateEdit();
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
    static bool isDecorated(const Box& box, const QString& sInput, const QStringRef& sCopy)
    {
        return sCopy.position() == box.m_sPrefix.size() &&
               sCopy.position() + sCopy.size() + box.m_sSuffix.size() == sInput.size() &&
               sInput.startsWith(box.m_sPrefix) && sInput.endsWith(box.m_sSuffix);
    }

    template <class Box>
    static bool isSpecialText(const Box& box, const QString& sText)
    {
        const QString sSpecial = box.specialValueText();
        return !sSpecial.isEmpty() && sText == sSpecial;
    }

    // The end is compared with the prefix too: a text that is wrapped in it on both sides loses both.
    static QStringRef withoutPrefix(const QString& sText, const QString& sPrefix)
    {
        int nFrom = 0;
        int nSize = sText.size();
        if (sText.startsWith(sPrefix)) {
            nFrom = sPrefix.size();
            nSize -= sPrefix.size();
        }
        if (sText.endsWith(sPrefix))
            nSize -= sPrefix.size();
        return sText.midRef(nFrom, nSize);
    }

    template <class Box>
    static void placeCursor(Box& box, bool wasEmpty, int nOldCursor, int nSelected)
    {
        QLineEdit* const pEdit = box.lineEdit();
        const int nFirst = box.m_sPrefix.size();
        const int nCursor = qBound(nFirst, nOldCursor, pEdit->displayText().size() - box.m_sSuffix.size());
        if (nSelected > 0)
            pEdit->setSelection(nCursor, nSelected);
        else
            pEdit->setCursorPosition(wasEmpty ? nFirst : nCursor);
    }

    //! The state of a text without its prefix, and its value where it is Acceptable.
    template <class Box, class T>
    static QValidator::State examined(const Box& box, const QStringRef& sText, T* pVal)
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
