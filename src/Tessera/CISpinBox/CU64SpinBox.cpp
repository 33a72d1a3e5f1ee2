// SPDX-License-Identifier: MIT
#include "CU64SpinBox.h"

#include "SpinBoxCore_p.h"

namespace nsUI {

CU64SpinBox::CU64SpinBox(QWidget* parent)
    : QAbstractSpinBox(parent)
{
    SpinBoxCore::init(*this);
}

CU64SpinBox::~CU64SpinBox() = default;

unsigned long long CU64SpinBox::value() const
{
    return m_nValue;
}

unsigned long long CU64SpinBox::minimum() const
{
    return m_nMinimum;
}

unsigned long long CU64SpinBox::maximum() const
{
    return m_nMaximum;
}

unsigned long long CU64SpinBox::singleStep() const
{
    return m_nSingleStep;
}

QAbstractSpinBox::StepType CU64SpinBox::stepType() const
{
    return m_stepType;
}

QString CU64SpinBox::prefix() const
{
    return m_sPrefix;
}

QString CU64SpinBox::suffix() const
{
    return m_sSuffix;
}

int CU64SpinBox::displayIntegerBase() const
{
    return m_nDisplayIntegerBase;
}

QString CU64SpinBox::cleanText() const
{
    return stripped(lineEdit()->displayText(), nullptr);
}

void CU64SpinBox::setValue(const unsigned long long& nVal)
{
    SpinBoxCore::setValue(*this, nVal);
}

void CU64SpinBox::setMinimum(const unsigned long long& nVal)
{
    SpinBoxCore::setMinimum(*this, nVal);
}

void CU64SpinBox::setMaximum(const unsigned long long& nVal)
{
    SpinBoxCore::setMaximum(*this, nVal);
}

void CU64SpinBox::setRange(const unsigned long long& nMin, const unsigned long long& nMax)
{
    SpinBoxCore::setRange(*this, nMin, nMax);
}

void CU64SpinBox::setSingleStep(const unsigned long long& nVal)
{
    SpinBoxCore::setSingleStep(*this, nVal);
}

void CU64SpinBox::setStepType(QAbstractSpinBox::StepType stepType)
{
    m_stepType = stepType;
}

void CU64SpinBox::setPrefix(const QString& sPrefix)
{
    SpinBoxCore::setPrefix(*this, sPrefix);
}

void CU64SpinBox::setSuffix(const QString& sSuffix)
{
    SpinBoxCore::setSuffix(*this, sSuffix);
}

void CU64SpinBox::setDisplayIntegerBase(int nBase)
{
    int nValid = nBase;
    if (!SpinBoxCore::isValidBase(nBase)) {
        qWarning("CU64SpinBox::setDisplayIntegerBase: Invalid base (%d)", nBase);
        nValid = 10;
    }
    SpinBoxCore::setDisplayIntegerBase(*this, nValid);
}

QValidator::State CU64SpinBox::validate(QString& sInput, int& nPos) const
{
    QValidator::State state = QValidator::Acceptable;
    validateAndInterpret(sInput, nPos, state);
    return state;
}

void CU64SpinBox::fixup(QString&) const {}

void CU64SpinBox::stepBy(int nSteps)
{
    SpinBoxCore::stepBy(*this, nSteps);
}

unsigned long long CU64SpinBox::valueFromText(const QString& sText) const
{
    return SpinBoxCore::valueFromText(*this, sText);
}

QString CU64SpinBox::textFromValue(const unsigned long long& nVal) const
{
    return IntegerText::fromValue(nVal, m_nDisplayIntegerBase);
}

QAbstractSpinBox::StepEnabled CU64SpinBox::stepEnabled() const
{
    return SpinBoxCore::stepEnabled(*this);
}

void CU64SpinBox::selectAll()
{
    SpinBoxCore::selectAll(*this);
}

void CU64SpinBox::setLineEdit(QLineEdit* pEdit)
{
    SpinBoxCore::setLineEdit(*this, pEdit);
}

void CU64SpinBox::editorTextChanged(const QString& sText)
{
    SpinBoxCore::editorTextChanged(*this, sText);
}

void CU64SpinBox::updateEdit()
{
    SpinBoxCore::updateEdit(*this);
}

bool CU64SpinBox::specialValue() const
{
    return SpinBoxCore::specialValue(*this);
}

QString CU64SpinBox::stripped(const QString& sText, int* pPos) const
{
    return SpinBoxCore::stripped(*this, sText, pPos).toString();
}

unsigned long long CU64SpinBox::validateAndInterpret(QString& sInput, int& nPos, QValidator::State& state) const
{
    return SpinBoxCore::validateAndInterpret(*this, sInput, nPos, state);
}

bool CU64SpinBox::isSigned()
{
    return false;
}

} // namespace nsUI
