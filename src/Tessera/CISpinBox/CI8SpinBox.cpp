// SPDX-License-Identifier: MIT
#include "CI8SpinBox.h"

#include "SpinBoxCore_p.h"

namespace nsUI {

CI8SpinBox::CI8SpinBox(QWidget* parent)
    : QAbstractSpinBox(parent)
{
    SpinBoxCore::init(*this);
}

CI8SpinBox::~CI8SpinBox() = default;

signed char CI8SpinBox::value() const
{
    return m_nValue;
}

signed char CI8SpinBox::minimum() const
{
    return m_nMinimum;
}

signed char CI8SpinBox::maximum() const
{
    return m_nMaximum;
}

signed char CI8SpinBox::singleStep() const
{
    return m_nSingleStep;
}

QAbstractSpinBox::StepType CI8SpinBox::stepType() const
{
    return m_stepType;
}

QString CI8SpinBox::prefix() const
{
    return m_sPrefix;
}

QString CI8SpinBox::suffix() const
{
    return m_sSuffix;
}

int CI8SpinBox::displayIntegerBase() const
{
    return m_nDisplayIntegerBase;
}

QString CI8SpinBox::cleanText() const
{
    return stripped(lineEdit()->displayText(), nullptr);
}

void CI8SpinBox::setValue(const signed char& nVal)
{
    SpinBoxCore::setValue(*this, nVal);
}

void CI8SpinBox::setMinimum(const signed char& nVal)
{
    SpinBoxCore::setMinimum(*this, nVal);
}

void CI8SpinBox::setMaximum(const signed char& nVal)
{
    SpinBoxCore::setMaximum(*this, nVal);
}

void CI8SpinBox::setRange(const signed char& nMin, const signed char& nMax)
{
    SpinBoxCore::setRange(*this, nMin, nMax);
}

void CI8SpinBox::setSingleStep(const signed char& nVal)
{
    SpinBoxCore::setSingleStep(*this, nVal);
}

void CI8SpinBox::setStepType(QAbstractSpinBox::StepType stepType)
{
    m_stepType = stepType;
}

void CI8SpinBox::setPrefix(const QString& sPrefix)
{
    SpinBoxCore::setPrefix(*this, sPrefix);
}

void CI8SpinBox::setSuffix(const QString& sSuffix)
{
    SpinBoxCore::setSuffix(*this, sSuffix);
}

void CI8SpinBox::setDisplayIntegerBase(int nBase)
{
    int nValid = nBase;
    if (!SpinBoxCore::isValidBase(nBase)) {
        qWarning("CI8SpinBox::setDisplayIntegerBase: Invalid base (%d)", nBase);
        nValid = 10;
    }
    SpinBoxCore::setDisplayIntegerBase(*this, nValid);
}

QValidator::State CI8SpinBox::validate(QString& sInput, int& nPos) const
{
    QValidator::State state = QValidator::Acceptable;
    validateAndInterpret(sInput, nPos, state);
    return state;
}

void CI8SpinBox::fixup(QString&) const {}

void CI8SpinBox::stepBy(int nSteps)
{
    SpinBoxCore::stepBy(*this, nSteps);
}

signed char CI8SpinBox::valueFromText(const QString& sText) const
{
    return SpinBoxCore::valueFromText(*this, sText);
}

QString CI8SpinBox::textFromValue(const signed char& nVal) const
{
    return IntegerText::fromValue(nVal, m_nDisplayIntegerBase);
}

QAbstractSpinBox::StepEnabled CI8SpinBox::stepEnabled() const
{
    return SpinBoxCore::stepEnabled(*this);
}

void CI8SpinBox::selectAll()
{
    SpinBoxCore::selectAll(*this);
}

void CI8SpinBox::setLineEdit(QLineEdit* pEdit)
{
    SpinBoxCore::setLineEdit(*this, pEdit);
}

void CI8SpinBox::editorTextChanged(const QString& sText)
{
    SpinBoxCore::editorTextChanged(*this, sText);
}

void CI8SpinBox::updateEdit()
{
    SpinBoxCore::updateEdit(*this);
}

bool CI8SpinBox::specialValue() const
{
    return SpinBoxCore::specialValue(*this);
}

QString CI8SpinBox::stripped(const QString& sText, int* pPos) const
{
    return SpinBoxCore::stripped(*this, sText, pPos).toString();
}

signed char CI8SpinBox::validateAndInterpret(QString& sInput, int& nPos, QValidator::State& state) const
{
    return SpinBoxCore::validateAndInterpret(*this, sInput, nPos, state);
}

bool CI8SpinBox::isSigned()
{
    return true;
}

} // namespace nsUI
