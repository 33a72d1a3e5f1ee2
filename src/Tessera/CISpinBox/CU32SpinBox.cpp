// SPDX-License-Identifier: MIT
#include "CU32SpinBox.h"

#include "SpinBoxCore_p.h"

namespace nsUI {

CU32SpinBox::CU32SpinBox(QWidget* parent)
    : QAbstractSpinBox(parent)
{
    SpinBoxCore::init(*this);
}

CU32SpinBox::~CU32SpinBox() = default;

unsigned int CU32SpinBox::value() const
{
    return m_nValue;
}

unsigned int CU32SpinBox::minimum() const
{
    return m_nMinimum;
}

unsigned int CU32SpinBox::maximum() const
{
    return m_nMaximum;
}

unsigned int CU32SpinBox::singleStep() const
{
    return m_nSingleStep;
}

QAbstractSpinBox::StepType CU32SpinBox::stepType() const
{
    return m_stepType;
}

QString CU32SpinBox::prefix() const
{
    return m_sPrefix;
}

QString CU32SpinBox::suffix() const
{
    return m_sSuffix;
}

int CU32SpinBox::displayIntegerBase() const
{
    return m_nDisplayIntegerBase;
}

QString CU32SpinBox::cleanText() const
{
    return stripped(lineEdit()->displayText(), nullptr);
}

void CU32SpinBox::setValue(const unsigned int& nVal)
{
    SpinBoxCore::setValue(*this, nVal);
}

void CU32SpinBox::setMinimum(const unsigned int& nVal)
{
    SpinBoxCore::setMinimum(*this, nVal);
}

void CU32SpinBox::setMaximum(const unsigned int& nVal)
{
    SpinBoxCore::setMaximum(*this, nVal);
}

void CU32SpinBox::setRange(const unsigned int& nMin, const unsigned int& nMax)
{
    SpinBoxCore::setRange(*this, nMin, nMax);
}

void CU32SpinBox::setSingleStep(const unsigned int& nVal)
{
    SpinBoxCore::setSingleStep(*this, nVal);
}

void CU32SpinBox::setStepType(QAbstractSpinBox::StepType stepType)
{
    m_stepType = stepType;
}

void CU32SpinBox::setPrefix(const QString& sPrefix)
{
    SpinBoxCore::setPrefix(*this, sPrefix);
}

void CU32SpinBox::setSuffix(const QString& sSuffix)
{
    SpinBoxCore::setSuffix(*this, sSuffix);
}

void CU32SpinBox::setDisplayIntegerBase(int nBase)
{
    int nValid = nBase;
    if (!SpinBoxCore::isValidBase(nBase)) {
        qWarning("CU32SpinBox::setDisplayIntegerBase: Invalid base (%d)", nBase);
        nValid = 10;
    }
    SpinBoxCore::setDisplayIntegerBase(*this, nValid);
}

QValidator::State CU32SpinBox::validate(QString& sInput, int& nPos) const
{
    QValidator::State state = QValidator::Acceptable;
    validateAndInterpret(sInput, nPos, state);
    return state;
}

void CU32SpinBox::fixup(QString&) const {}

void CU32SpinBox::stepBy(int nSteps)
{
    SpinBoxCore::stepBy(*this, nSteps);
}

unsigned int CU32SpinBox::valueFromText(const QString& sText) const
{
    return SpinBoxCore::valueFromText(*this, sText);
}

QString CU32SpinBox::textFromValue(const unsigned int& nVal) const
{
    return IntegerText::fromValue(nVal, m_nDisplayIntegerBase);
}

QAbstractSpinBox::StepEnabled CU32SpinBox::stepEnabled() const
{
    return SpinBoxCore::stepEnabled(*this);
}

void CU32SpinBox::selectAll()
{
    SpinBoxCore::selectAll(*this);
}

void CU32SpinBox::setLineEdit(QLineEdit* pEdit)
{
    SpinBoxCore::setLineEdit(*this, pEdit);
}

void CU32SpinBox::editorTextChanged(const QString& sText)
{
    SpinBoxCore::editorTextChanged(*this, sText);
}

void CU32SpinBox::updateEdit()
{
    SpinBoxCore::updateEdit(*this);
}

bool CU32SpinBox::specialValue() const
{
    return SpinBoxCore::specialValue(*this);
}

QString CU32SpinBox::stripped(const QString& sText, int* pPos) const
{
    return SpinBoxCore::stripped(*this, sText, pPos).toString();
}

unsigned int CU32SpinBox::validateAndInterpret(QString& sInput, int& nPos, QValidator::State& state) const
{
    return SpinBoxCore::validateAndInterpret(*this, sInput, nPos, state);
}

bool CU32SpinBox::isSigned()
{
    return false;
}

} // namespace nsUI
