// SPDX-License-Identifier: MIT
#include "CU8SpinBox.h"

#include "SpinBoxCore_p.h"

namespace nsUI {

CU8SpinBox::CU8SpinBox(QWidget* parent)
    : QAbstractSpinBox(parent)
{
    SpinBoxCore::init(*this);
}

CU8SpinBox::~CU8SpinBox() = default;

unsigned char CU8SpinBox::value() const
{
    return m_nValue;
}

unsigned char CU8SpinBox::minimum() const
{
    return m_nMinimum;
}

unsigned char CU8SpinBox::maximum() const
{
    return m_nMaximum;
}

unsigned char CU8SpinBox::singleStep() const
{
    return m_nSingleStep;
}

QAbstractSpinBox::StepType CU8SpinBox::stepType() const
{
    return m_stepType;
}

QString CU8SpinBox::prefix() const
{
    return m_sPrefix;
}

QString CU8SpinBox::suffix() const
{
    return m_sSuffix;
}

int CU8SpinBox::displayIntegerBase() const
{
    return m_nDisplayIntegerBase;
}

QString CU8SpinBox::cleanText() const
{
    return stripped(lineEdit()->displayText(), nullptr);
}

void CU8SpinBox::setValue(const unsigned char& nVal)
{
    SpinBoxCore::setValue(*this, nVal);
}

void CU8SpinBox::setMinimum(const unsigned char& nVal)
{
    SpinBoxCore::setMinimum(*this, nVal);
}

void CU8SpinBox::setMaximum(const unsigned char& nVal)
{
    SpinBoxCore::setMaximum(*this, nVal);
}

void CU8SpinBox::setRange(const unsigned char& nMin, const unsigned char& nMax)
{
    SpinBoxCore::setRange(*this, nMin, nMax);
}

void CU8SpinBox::setSingleStep(const unsigned char& nVal)
{
    SpinBoxCore::setSingleStep(*this, nVal);
}

void CU8SpinBox::setStepType(QAbstractSpinBox::StepType stepType)
{
    m_stepType = stepType;
}

void CU8SpinBox::setPrefix(const QString& sPrefix)
{
    SpinBoxCore::setPrefix(*this, sPrefix);
}

void CU8SpinBox::setSuffix(const QString& sSuffix)
{
    SpinBoxCore::setSuffix(*this, sSuffix);
}

void CU8SpinBox::setDisplayIntegerBase(int nBase)
{
    int nValid = nBase;
    if (!SpinBoxCore::isValidBase(nBase)) {
        qWarning("CU8SpinBox::setDisplayIntegerBase: Invalid base (%d)", nBase);
        nValid = 10;
    }
    SpinBoxCore::setDisplayIntegerBase(*this, nValid);
}

QValidator::State CU8SpinBox::validate(QString& sInput, int& nPos) const
{
    QValidator::State state = QValidator::Acceptable;
    validateAndInterpret(sInput, nPos, state);
    return state;
}

void CU8SpinBox::fixup(QString&) const {}

void CU8SpinBox::stepBy(int nSteps)
{
    SpinBoxCore::stepBy(*this, nSteps);
}

unsigned char CU8SpinBox::valueFromText(const QString& sText) const
{
    return SpinBoxCore::valueFromText(*this, sText);
}

QString CU8SpinBox::textFromValue(const unsigned char& nVal) const
{
    return IntegerText::fromValue(nVal, m_nDisplayIntegerBase);
}

QAbstractSpinBox::StepEnabled CU8SpinBox::stepEnabled() const
{
    return SpinBoxCore::stepEnabled(*this);
}

void CU8SpinBox::selectAll()
{
    SpinBoxCore::selectAll(*this);
}

void CU8SpinBox::setLineEdit(QLineEdit* pEdit)
{
    SpinBoxCore::setLineEdit(*this, pEdit);
}

void CU8SpinBox::editorTextChanged(const QString& sText)
{
    SpinBoxCore::editorTextChanged(*this, sText);
}

void CU8SpinBox::updateEdit()
{
    SpinBoxCore::updateEdit(*this);
}

bool CU8SpinBox::specialValue() const
{
    return SpinBoxCore::specialValue(*this);
}

QString CU8SpinBox::stripped(const QString& sText, int* pPos) const
{
    return SpinBoxCore::stripped(*this, sText, pPos).toString();
}

unsigned char CU8SpinBox::validateAndInterpret(QString& sInput, int& nPos, QValidator::State& state) const
{
    return SpinBoxCore::validateAndInterpret(*this, sInput, nPos, state);
}

bool CU8SpinBox::isSigned()
{
    return false;
}

} // namespace nsUI
