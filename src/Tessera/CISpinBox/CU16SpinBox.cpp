// SPDX-License-Identifier: MIT
#include "CU16SpinBox.h"

#include "SpinBoxCore_p.h"

namespace nsUI {

CU16SpinBox::CU16SpinBox(QWidget* parent)
    : QAbstractSpinBox(parent)
{
    SpinBoxCore::init(*this);
}

CU16SpinBox::~CU16SpinBox() = default;

unsigned short CU16SpinBox::value() const
{
    return m_nValue;
}

unsigned short CU16SpinBox::minimum() const
{
    return m_nMinimum;
}

unsigned short CU16SpinBox::maximum() const
{
    return m_nMaximum;
}

unsigned short CU16SpinBox::singleStep() const
{
    return m_nSingleStep;
}

QAbstractSpinBox::StepType CU16SpinBox::stepType() const
{
    return m_stepType;
}

QString CU16SpinBox::prefix() const
{
    return m_sPrefix;
}

QString CU16SpinBox::suffix() const
{
    return m_sSuffix;
}

int CU16SpinBox::displayIntegerBase() const
{
    return m_nDisplayIntegerBase;
}

QString CU16SpinBox::cleanText() const
{
    return stripped(lineEdit()->displayText(), nullptr);
}

void CU16SpinBox::setValue(const unsigned short& nVal)
{
    SpinBoxCore::setValue(*this, nVal);
}

void CU16SpinBox::setMinimum(const unsigned short& nVal)
{
    SpinBoxCore::setMinimum(*this, nVal);
}

void CU16SpinBox::setMaximum(const unsigned short& nVal)
{
    SpinBoxCore::setMaximum(*this, nVal);
}

void CU16SpinBox::setRange(const unsigned short& nMin, const unsigned short& nMax)
{
    SpinBoxCore::setRange(*this, nMin, nMax);
}

void CU16SpinBox::setSingleStep(const unsigned short& nVal)
{
    SpinBoxCore::setSingleStep(*this, nVal);
}

void CU16SpinBox::setStepType(QAbstractSpinBox::StepType stepType)
{
    m_stepType = stepType;
}

void CU16SpinBox::setPrefix(const QString& sPrefix)
{
    SpinBoxCore::setPrefix(*this, sPrefix);
}

void CU16SpinBox::setSuffix(const QString& sSuffix)
{
    SpinBoxCore::setSuffix(*this, sSuffix);
}

void CU16SpinBox::setDisplayIntegerBase(int nBase)
{
    int nValid = nBase;
    if (!SpinBoxCore::isValidBase(nBase)) {
        qWarning("CU16SpinBox::setDisplayIntegerBase: Invalid base (%d)", nBase);
        nValid = 10;
    }
    SpinBoxCore::setDisplayIntegerBase(*this, nValid);
}

QValidator::State CU16SpinBox::validate(QString& sInput, int& nPos) const
{
    QValidator::State state = QValidator::Acceptable;
    validateAndInterpret(sInput, nPos, state);
    return state;
}

void CU16SpinBox::fixup(QString&) const {}

void CU16SpinBox::stepBy(int nSteps)
{
    SpinBoxCore::stepBy(*this, nSteps);
}

unsigned short CU16SpinBox::valueFromText(const QString& sText) const
{
    return SpinBoxCore::valueFromText(*this, sText);
}

QString CU16SpinBox::textFromValue(const unsigned short& nVal) const
{
    return IntegerText::fromValue(nVal, m_nDisplayIntegerBase);
}

QAbstractSpinBox::StepEnabled CU16SpinBox::stepEnabled() const
{
    return SpinBoxCore::stepEnabled(*this);
}

void CU16SpinBox::selectAll()
{
    SpinBoxCore::selectAll(*this);
}

void CU16SpinBox::setLineEdit(QLineEdit* pEdit)
{
    SpinBoxCore::setLineEdit(*this, pEdit);
}

void CU16SpinBox::editorTextChanged(const QString& sText)
{
    SpinBoxCore::editorTextChanged(*this, sText);
}

void CU16SpinBox::updateEdit()
{
    SpinBoxCore::updateEdit(*this);
}

bool CU16SpinBox::specialValue() const
{
    return SpinBoxCore::specialValue(*this);
}

QString CU16SpinBox::stripped(const QString& sText, int* pPos) const
{
    return SpinBoxCore::stripped(*this, sText, pPos).toString();
}

unsigned short CU16SpinBox::validateAndInterpret(QString& sInput, int& nPos, QValidator::State& state) const
{
    return SpinBoxCore::validateAndInterpret(*this, sInput, nPos, state);
}

bool CU16SpinBox::isSigned()
{
    return false;
}

} // namespace nsUI
