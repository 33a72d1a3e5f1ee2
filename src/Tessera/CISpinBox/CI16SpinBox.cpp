// SPDX-License-Identifier: MIT
#include "CI16SpinBox.h"

#include "SpinBoxCore_p.h"

namespace nsUI {

CI16SpinBox::CI16SpinBox(QWidget* parent)
    : QAbstractSpinBox(parent)
{
    SpinBoxCore::init(*this);
}

CI16SpinBox::~CI16SpinBox() = default;

short CI16SpinBox::value() const
{
    return m_nValue;
}

short CI16SpinBox::minimum() const
{
    return m_nMinimum;
}

short CI16SpinBox::maximum() const
{
    return m_nMaximum;
}

short CI16SpinBox::singleStep() const
{
    return m_nSingleStep;
}

QAbstractSpinBox::StepType CI16SpinBox::stepType() const
{
    return m_stepType;
}

QString CI16SpinBox::prefix() const
{
    return m_sPrefix;
}

QString CI16SpinBox::suffix() const
{
    return m_sSuffix;
}

int CI16SpinBox::displayIntegerBase() const
{
    return m_nDisplayIntegerBase;
}

QString CI16SpinBox::cleanText() const
{
    return stripped(lineEdit()->displayText(), nullptr);
}

void CI16SpinBox::setValue(const short& nVal)
{
    SpinBoxCore::setValue(*this, nVal);
}

void CI16SpinBox::setMinimum(const short& nVal)
{
    SpinBoxCore::setMinimum(*this, nVal);
}

void CI16SpinBox::setMaximum(const short& nVal)
{
    SpinBoxCore::setMaximum(*this, nVal);
}

void CI16SpinBox::setRange(const short& nMin, const short& nMax)
{
    SpinBoxCore::setRange(*this, nMin, nMax);
}

void CI16SpinBox::setSingleStep(const short& nVal)
{
    SpinBoxCore::setSingleStep(*this, nVal);
}

void CI16SpinBox::setStepType(QAbstractSpinBox::StepType stepType)
{
    m_stepType = stepType;
}

void CI16SpinBox::setPrefix(const QString& sPrefix)
{
    SpinBoxCore::setPrefix(*this, sPrefix);
}

void CI16SpinBox::setSuffix(const QString& sSuffix)
{
    SpinBoxCore::setSuffix(*this, sSuffix);
}

void CI16SpinBox::setDisplayIntegerBase(int nBase)
{
    int nValid = nBase;
    if (!SpinBoxCore::isValidBase(nBase)) {
        qWarning("CI16SpinBox::setDisplayIntegerBase: Invalid base (%d)", nBase);
        nValid = 10;
    }
    SpinBoxCore::setDisplayIntegerBase(*this, nValid);
}

QValidator::State CI16SpinBox::validate(QString& sInput, int& nPos) const
{
    QValidator::State state = QValidator::Acceptable;
    validateAndInterpret(sInput, nPos, state);
    return state;
}

void CI16SpinBox::fixup(QString&) const {}

void CI16SpinBox::stepBy(int nSteps)
{
    SpinBoxCore::stepBy(*this, nSteps);
}

short CI16SpinBox::valueFromText(const QString& sText) const
{
    return SpinBoxCore::valueFromText(*this, sText);
}

QString CI16SpinBox::textFromValue(const short& nVal) const
{
    return IntegerText::fromValue(nVal, m_nDisplayIntegerBase);
}

QAbstractSpinBox::StepEnabled CI16SpinBox::stepEnabled() const
{
    return SpinBoxCore::stepEnabled(*this);
}

void CI16SpinBox::selectAll()
{
    SpinBoxCore::selectAll(*this);
}

void CI16SpinBox::setLineEdit(QLineEdit* pEdit)
{
    SpinBoxCore::setLineEdit(*this, pEdit);
}

void CI16SpinBox::editorTextChanged(const QString& sText)
{
    SpinBoxCore::editorTextChanged(*this, sText);
}

void CI16SpinBox::updateEdit()
{
    SpinBoxCore::updateEdit(*this);
}

bool CI16SpinBox::specialValue() const
{
    return SpinBoxCore::specialValue(*this);
}

QString CI16SpinBox::stripped(const QString& sText, int* pPos) const
{
    return SpinBoxCore::stripped(*this, sText, pPos).toString();
}

short CI16SpinBox::validateAndInterpret(QString& sInput, int& nPos, QValidator::State& state) const
{
    return SpinBoxCore::validateAndInterpret(*this, sInput, nPos, state);
}

bool CI16SpinBox::isSigned()
{
    return true;
}

} // namespace nsUI
