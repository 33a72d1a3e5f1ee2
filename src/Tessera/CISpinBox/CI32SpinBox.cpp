// SPDX-License-Identifier: MIT
#include "CI32SpinBox.h"

#include "SpinBoxCore_p.h"

namespace nsUI {

CI32SpinBox::CI32SpinBox(QWidget* parent)
    : QAbstractSpinBox(parent)
{
    SpinBoxCore::init(*this);
}

CI32SpinBox::~CI32SpinBox() = default;

int CI32SpinBox::value() const
{
    return m_nValue;
}

int CI32SpinBox::minimum() const
{
    return m_nMinimum;
}

int CI32SpinBox::maximum() const
{
    return m_nMaximum;
}

int CI32SpinBox::singleStep() const
{
    return m_nSingleStep;
}

QAbstractSpinBox::StepType CI32SpinBox::stepType() const
{
    return m_stepType;
}

QString CI32SpinBox::prefix() const
{
    return m_sPrefix;
}

QString CI32SpinBox::suffix() const
{
    return m_sSuffix;
}

int CI32SpinBox::displayIntegerBase() const
{
    return m_nDisplayIntegerBase;
}

QString CI32SpinBox::cleanText() const
{
    return stripped(lineEdit()->displayText(), nullptr);
}

void CI32SpinBox::setValue(const int& nVal)
{
    SpinBoxCore::setValue(*this, nVal);
}

void CI32SpinBox::setMinimum(const int& nVal)
{
    SpinBoxCore::setMinimum(*this, nVal);
}

void CI32SpinBox::setMaximum(const int& nVal)
{
    SpinBoxCore::setMaximum(*this, nVal);
}

void CI32SpinBox::setRange(const int& nMin, const int& nMax)
{
    SpinBoxCore::setRange(*this, nMin, nMax);
}

void CI32SpinBox::setSingleStep(const int& nVal)
{
    SpinBoxCore::setSingleStep(*this, nVal);
}

void CI32SpinBox::setStepType(QAbstractSpinBox::StepType stepType)
{
    m_stepType = stepType;
}

void CI32SpinBox::setPrefix(const QString& sPrefix)
{
    SpinBoxCore::setPrefix(*this, sPrefix);
}

void CI32SpinBox::setSuffix(const QString& sSuffix)
{
    SpinBoxCore::setSuffix(*this, sSuffix);
}

void CI32SpinBox::setDisplayIntegerBase(int nBase)
{
    int nValid = nBase;
    if (!SpinBoxCore::isValidBase(nBase)) {
        qWarning("CI32SpinBox::setDisplayIntegerBase: Invalid base (%d)", nBase);
        nValid = 10;
    }
    SpinBoxCore::setDisplayIntegerBase(*this, nValid);
}

QValidator::State CI32SpinBox::validate(QString& sInput, int& nPos) const
{
    QValidator::State state = QValidator::Acceptable;
    validateAndInterpret(sInput, nPos, state);
    return state;
}

void CI32SpinBox::fixup(QString&) const {}

void CI32SpinBox::stepBy(int nSteps)
{
    SpinBoxCore::stepBy(*this, nSteps);
}

int CI32SpinBox::valueFromText(const QString& sText) const
{
    return SpinBoxCore::valueFromText(*this, sText);
}

QString CI32SpinBox::textFromValue(const int& nVal) const
{
    return IntegerText::fromValue(nVal, m_nDisplayIntegerBase);
}

QAbstractSpinBox::StepEnabled CI32SpinBox::stepEnabled() const
{
    return SpinBoxCore::stepEnabled(*this);
}

void CI32SpinBox::selectAll()
{
    SpinBoxCore::selectAll(*this);
}

void CI32SpinBox::setLineEdit(QLineEdit* pEdit)
{
    SpinBoxCore::setLineEdit(*this, pEdit);
}

void CI32SpinBox::editorTextChanged(const QString& sText)
{
    SpinBoxCore::editorTextChanged(*this, sText);
}

void CI32SpinBox::updateEdit()
{
    SpinBoxCore::updateEdit(*this);
}

bool CI32SpinBox::specialValue() const
{
    return SpinBoxCore::specialValue(*this);
}

QString CI32SpinBox::stripped(const QString& sText, int* pPos) const
{
    return SpinBoxCore::stripped(*this, sText, pPos).toString();
}

int CI32SpinBox::validateAndInterpret(QString& sInput, int& nPos, QValidator::State& state) const
{
    return SpinBoxCore::validateAndInterpret(*this, sInput, nPos, state);
}

bool CI32SpinBox::isSigned()
{
    return true;
}

} // namespace nsUI
