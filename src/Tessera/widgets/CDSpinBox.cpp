// SPDX-License-Identifier: MIT
#include "CDSpinBox.h"

#include <QApplication>
#include <QFontMetrics>
#include <QStyle>
#include <QStyleOptionSpinBox>

#include <algorithm>
#include <cmath>

namespace nsUI {

CDSpinBox::CDSpinBox(QWidget* parent)
    : QDoubleSpinBox(parent)
{
}

QChar CDSpinBox::fmtChar() const
{
    return m_cFmt;
}

void CDSpinBox::setFmtChar(const QChar& ch)
{
    if (!QStringLiteral("eEfgG").contains(ch) || ch == m_cFmt)
        return;
    m_cFmt = ch;
    update();
}

CDSpinBox::StepType CDSpinBox::stepType() const
{
    return static_cast<StepType>(QDoubleSpinBox::stepType());
}

void CDSpinBox::setStepType(StepType stepType)
{
    QDoubleSpinBox::setStepType(static_cast<QAbstractSpinBox::StepType>(stepType));
}

QSize CDSpinBox::sizeHint() const
{
    return fittingSize(QAbstractSpinBox::sizeHint());
}

QSize CDSpinBox::minimumSizeHint() const
{
    return fittingSize(QAbstractSpinBox::minimumSizeHint());
}

//! The size for the current text, with the height of \a tBase.
QSize CDSpinBox::fittingSize(const QSize& tBase) const
{
    ensurePolished();
    const QFontMetrics metrics = fontMetrics();
    const QString sFixed = prefix() + suffix() + QLatin1Char(' ');
    // Where Qt's box measures the texts of both ends of the range, this one measures the current text for both.
    int nWidth = metrics.horizontalAdvance(sFixed + textFromValue(value()));
    nWidth = std::max(nWidth, metrics.horizontalAdvance(sFixed + textFromValue(value())));
    if (!specialValueText().isEmpty())
        nWidth = std::max(nWidth, metrics.horizontalAdvance(specialValueText()));

    QStyleOptionSpinBox option;
    initStyleOption(&option);
    const QSize tContents(nWidth + 2, tBase.height());
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED // the application's strut is 0 unless a host sets one
    return style()
        ->sizeFromContents(QStyle::CT_SpinBox, &option, tContents, this)
        .expandedTo(QApplication::globalStrut());
    QT_WARNING_POP
}

QValidator::State CDSpinBox::validate(QString& input, int&) const
{
    bool ok = false;
    const double val = input.toDouble(&ok);
    return !ok || val > maximum() || val < minimum() ? QValidator::Invalid : QValidator::Acceptable;
}

void CDSpinBox::stepBy(int steps)
{
    if (stepType() != RatioStepType) {
        QDoubleSpinBox::stepBy(steps);
        return;
    }
    const double smallest = std::pow(0.1, decimals());
    const double factor = 1.0 + (qIsNull(singleStep()) ? smallest : singleStep());
    const bool up = steps > 0;
    for (int i = steps; i != 0; i += up ? -1 : 1) {
        if (qIsNull(value()))
            setValue(smallest);
        else
            setValue(up ? value() * factor : value() / factor);
    }
}

double CDSpinBox::valueFromText(const QString& text) const
{
    return text.toDouble();
}

QString CDSpinBox::textFromValue(double val) const
{
    return QString::number(val, m_cFmt.toLatin1(), decimals());
}

} // namespace nsUI
