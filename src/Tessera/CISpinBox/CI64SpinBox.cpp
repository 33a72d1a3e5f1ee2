// SPDX-License-Identifier: MIT
#include "CI64SpinBox.h"

#include "SpinBoxCore_p.h"

namespace nsUI {

CI64SpinBox::CI64SpinBox(QWidget* parent)
    : QAbstractSpinBox(parent)
{
    SpinBoxCore::init(*this);
}

CI64SpinBox::~CI64SpinBox() = default;

long long CI64SpinBox::value() const
{
    return m_nValue;
}

long long CI64SpinBox::minimum() const
{
    return m_nMinimum;
}

long long CI64SpinBox::maximum() const
{
    return m_nMaximum;
}

long long CI64SpinBox::singleStep() const
{
    return m_nSingleStep;
}

QAbstractSpinBox::StepType CI64SpinBox::stepType() const
{
    return m_stepType;
}

QString CI64SpinBox::prefix() const
{
    return m_sPrefix;
}

QString CI64SpinBox::suffix() const
{
    return m_sSuffix;
}

int CI64SpinBox::displayIntegerBase() const
{
    return m_nDisplayIntegerBase;
}

QString CI64SpinBox::cleanText() const
{
    return stripped(lineEdit()->displayText(), nullptr);
}

void CI64SpinBox::setValue(const long long& nVal)
{
    SpinBoxCore::setValue(*this, nVal);
}

void CI64SpinBox::setMinimum(const long long& nVal)
{
    SpinBoxCore::setMinimum(*this, nVal);
}

void CI64SpinBox::setMaximum(const long long& nVal)
{
    SpinBoxCore::setMaximum(*this, nVal);
}

void CI64SpinBox::setRange(const long long& nMin, const long long& nMax)
{
    SpinBoxCore::setRange(*this, nMin, nMax);
}

void CI64SpinBox::setSingleStep(const long long& nVal)
{
    SpinBoxCore::setSingleStep(*this, nVal);
}

void CI64SpinBox::setStepType(QAbstractSpinBox::StepType stepType)
{
    m_stepType = stepType;
}

void CI64SpinBox::setPrefix(const QString& sPrefix)
{
    SpinBoxCore::setPrefix(*this, sPrefix);
}

void CI64SpinBox::setSuffix(const QString& sSuffix)
{
    SpinBoxCore::setSuffix(*this, sSuffix);
}

void CI64SpinBox::setDisplayIntegerBase(int nBase)
{
    int nValid = nBase;
    if (!SpinBoxCore::isValidBase(nBase)) {
        qWarning("CI64SpinBox::setDisplayIntegerBase: Invalid base (%d)", nBase);
        nValid = 10;
    }
    SpinBoxCore::setDisplayIntegerBase(*this, nValid);
}

QValidator::State CI64SpinBox::validate(QString& sInput, int& nPos) const
{
    QValidator::State state = QValidator::Acceptable;
    validateAndInterpret(sInput, nPos, state);
    return state;
}

void CI64SpinBox::fixup(QString&) const {}

void CI64SpinBox::stepBy(int nSteps)
{
    SpinBoxCore::stepBy(*this, nSteps);
}

long long CI64SpinBox::valueFromText(const QString& sText) const
{
    return SpinBoxCore::valueFromText(*this, sText);
}

QString CI64SpinBox::textFromValue(const long long& nVal) const
{
    return IntegerText::fromValue(nVal, m_nDisplayIntegerBase);
}

QAbstractSpinBox::StepEnabled CI64SpinBox::stepEnabled() const
{
    return SpinBoxCore::stepEnabled(*this);
}

void CI64SpinBox::selectAll()
{
    SpinBoxCore::selectAll(*this);
}

void CI64SpinBox::setLineEdit(QLineEdit* pEdit)
{
    SpinBoxCore::setLineEdit(*this, pEdit);
}

void CI64SpinBox::editorTextChanged(const QString& sText)
{
    SpinBoxCore::editorTextChanged(*this, sText);
}

void CI64SpinBox::updateEdit()
{
    SpinBoxCore::updateEdit(*this);
}

bool CI64SpinBox::specialValue() const
{
    return SpinBoxCore::specialValue(*this);
}

QString CI64SpinBox::stripped(const QString& sText, int* pPos) const
{
    return SpinBoxCore::stripped(*this, sText, pPos).toString();
}

long long CI64SpinBox::validateAndInterpret(QString& sInput, int& nPos, QValidator::State& state) const
{
    return SpinBoxCore::validateAndInterpret(*this, sInput, nPos, state);
}

bool CI64SpinBox::isSigned()
{
    return true;
}

} // namespace nsUI
