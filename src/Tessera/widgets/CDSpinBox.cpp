// SPDX-License-Identifier: MIT
#include "CDSpinBox.h"

#include <QApplication>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QStyle>
#include <QStyleOptionSpinBox>
#include <QValidator>

#include <algorithm>
#include <cmath>

namespace nsUI {
namespace {

//! The smallest size that the application wants for a control: 0 unless a host sets one, and always in Qt 6.
QSize globalStrut()
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    return QApplication::globalStrut();
    QT_WARNING_POP
#else
    return QSize(0, 0);
#endif
}

QString formats()
{
    return QStringLiteral("eEfgG");
}

QString numberText(double val, QChar cFmt, int nDecimals)
{
    return QString::number(val, cFmt.toLatin1(), nDecimals);
}

} // namespace

/*!
    What the line edit asks: Qt's own validator of the box, but for two texts. One that is no finite number is refused.
    And what the box itself shows is never refused, since a line edit rolls a refused key back only from a text that
    was not refused before.
*/
class CDSpinBox::Validator : public QValidator
{
public:
    Validator(const CDSpinBox& box, const QValidator& inner, QObject* pParent)
        : QValidator(pParent)
        , m_box(box)
        , m_inner(inner)
    {
    }

    State validate(QString& input, int& pos) const override
    {
        const QString sGiven = input;
        const int nGiven = pos;
        const State state = m_inner.validate(input, pos);
        if (state != Invalid && !isInfinite(sGiven))
            return state;
        if (sGiven != m_box.ownText(m_box.m_cFmt))
            return Invalid;
        input = sGiven;
        pos = nGiven;
        return state == Invalid ? Intermediate : state;
    }

    void fixup(QString& input) const override
    {
        if (input != m_box.ownText(m_box.m_cFmt))
            m_inner.fixup(input);
    }

private:
    //! True for "inf" and "nan" in all their forms; no other number has an "n".
    static bool isInfinite(const QString& sText)
    {
        return sText.contains(QLatin1Char('n'), Qt::CaseInsensitive) && !std::isfinite(sText.toDouble());
    }

    const CDSpinBox& m_box;
    const QValidator& m_inner;
};

CDSpinBox::CDSpinBox(QWidget* parent)
    : QDoubleSpinBox(parent)
{
    setValidator();
}

QChar CDSpinBox::fmtChar() const
{
    return m_cFmt;
}

void CDSpinBox::setFmtChar(const QChar& ch)
{
    if (!formats().contains(ch) || ch == m_cFmt)
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
    return style()->sizeFromContents(QStyle::CT_SpinBox, &option, tContents, this).expandedTo(globalStrut());
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
    const QPointer<CDSpinBox> pBox(this); // a slot may delete it
    for (int i = steps; i != 0 && !pBox.isNull(); i += up ? -1 : 1) {
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
    return numberText(val, m_cFmt, decimals());
}

void CDSpinBox::setLineEdit(QLineEdit* pEdit)
{
    if (pEdit == nullptr || pEdit == lineEdit())
        return;
    const bool bringsValidator = pEdit->validator() != nullptr;
    QDoubleSpinBox::setLineEdit(pEdit);
    if (!bringsValidator)
        setValidator();
}

//! Puts this class's validator before Qt's own.
void CDSpinBox::setValidator()
{
    lineEdit()->setValidator(new Validator(*this, *lineEdit()->validator(), lineEdit()));
}

//! What the box writes when it writes its value in this format.
QString CDSpinBox::ownText(QChar cFmt) const
{
    QString sSpecial = specialValueText();
    if (value() == minimum() && !sSpecial.isEmpty())
        return sSpecial;
    return prefix() + (cFmt == m_cFmt ? textFromValue(value()) : numberText(value(), cFmt, decimals())) + suffix();
}

//! True while the text on show is as the box wrote it, in this format or in an earlier one, and no edit of it waits to be
//! read.
bool CDSpinBox::isUntouched() const
{
    const QLineEdit* const pEdit = lineEdit();
    const bool isWaiting = !keyboardTracking() && (pEdit->isUndoAvailable() || pEdit->isRedoAvailable());
    const QString sFormats = formats();
    return !isWaiting &&
           std::any_of(sFormats.cbegin(), sFormats.cend(), [this](QChar cFmt) { return text() == ownText(cFmt); });
}

//! True when the text on show reads as the value that it shows.
bool CDSpinBox::readsBack() const
{
    QString sText = text();
    int nPos = lineEdit()->cursorPosition();
    return validate(sText, nPos) == QValidator::Acceptable && valueFromText(sText) == value();
}

void CDSpinBox::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Enter || event->key() == Qt::Key_Return;
    if (!isEnter || readsBack() || !isUntouched()) {
        QDoubleSpinBox::keyPressEvent(event);
        return;
    }
    event->ignore();
    enterUntouched();
}

//! What Qt does on Enter, but for reading the text.
void CDSpinBox::enterUntouched()
{
    const QPointer<CDSpinBox> pBox(this);
    setSingleStep(singleStep()); // nothing but a new writing of the text
    if (keyboardTracking())
        tellValue();
    if (!pBox.isNull())
        selectAll();
    if (!pBox.isNull())
        Q_EMIT editingFinished();
    if (!pBox.isNull())
        Q_EMIT lineEdit()->returnPressed();
}

//! All signals of the value, in Qt's order.
void CDSpinBox::tellValue()
{
    const QPointer<CDSpinBox> pBox(this);
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    Q_EMIT valueChanged(text());
    QT_WARNING_POP
#endif
    if (!pBox.isNull())
        Q_EMIT textChanged(text());
    if (!pBox.isNull())
        Q_EMIT valueChanged(value());
}

} // namespace nsUI
