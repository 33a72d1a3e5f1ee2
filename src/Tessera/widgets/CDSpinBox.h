// SPDX-License-Identifier: MIT
#pragma once

#include <Tessera/TesseraExport.h>

#include <QChar>
#include <QDoubleSpinBox>
#include <QSize>
#include <QString>

QT_BEGIN_NAMESPACE
class QKeyEvent;
class QLineEdit;
QT_END_NAMESPACE

namespace nsUI {

/*!
    A QDoubleSpinBox with a choice of number format, with proportional stepping, and in the C locale: the decimal
    point is a point and there are no group separators.

    Range, decimals, prefix, suffix and signals are those of QDoubleSpinBox. Validation is plain: the whole text,
    prefix and suffix included, must be a number within the range, and there is no Intermediate state. An emptied
    field, a lone "-" and a number that is still being typed towards the range are refused, so give the box a range
    in which its numbers can be typed digit by digit, and neither prefix nor suffix where they are to be typed at all.
    "nan" and "inf" cannot be typed, and a key that is refused leaves text, cursor and selection as they were.

    A text may say less than the value: one of format 'e' or 'g', and one whose value was typed with more places than
    decimals(). Enter tells the value again and reads only a text that was edited, so the value is not rounded by it.
    (interpretText() is QDoubleSpinBox's own, and reads whatever is shown.)

    A slot of valueChanged(double) may delete the box, or its parent, where the program's own call of setValue() or of
    stepBy() with RatioStepType sends it. Everywhere else QDoubleSpinBox goes on with the box after its signals: there,
    call deleteLater().
*/
class TESSERA_EXPORT CDSpinBox : public QDoubleSpinBox
{
    Q_OBJECT

public:
    //! How stepBy() moves the value. The first two are those of QAbstractSpinBox.
    enum StepType {
        DefaultStepType = 0,         //!< add the single step
        AdaptiveDecimalStepType = 1, //!< add a tenth of the value's decimal magnitude
        RatioStepType = 2            //!< multiply or divide by 1 + single step
    };

    explicit CDSpinBox(QWidget* parent = nullptr);

    QChar fmtChar() const; //!< 'f' in a new box

    /*!
        The format of QString::number(), one of 'e', 'E', 'f', 'g' and 'G'; anything else is ignored. decimals() is
        its precision. The shown text is not rebuilt: the format shows with the next change of the value.
    */
    void setFmtChar(const QChar& ch);

    StepType stepType() const;
    void setStepType(StepType stepType);

    //! Wide enough for the current value with prefix and suffix (not, as in Qt's boxes, for the range's ends).
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    //! Acceptable when all of \a input is a number within the range, else Invalid ("nan" lies outside no range, but
    //! the line edit refuses it). \a input is not changed.
    QValidator::State validate(QString& input, int& pos) const override;

    /*!
        With RatioStepType every step multiplies the value by 1 + singleStep(), or divides it when \a steps is
        negative; a single step of 0 counts as the smallest the decimals can show. From 0 a step in either
        direction goes to the smallest positive value that the decimals can show. Each step that changes the value
        is signalled, and the text is not selected. The other step types step as Qt's box does.
    */
    void stepBy(int steps) override;

    //! The number that \a text is in the C locale; 0 when it is none.
    double valueFromText(const QString& text) const override;
    QString textFromValue(double val) const override;

protected:
    //! Takes \a pEdit in the place of the line edit as QAbstractSpinBox does, with this class's own validation unless
    //! it brings a validator of its own.
    void setLineEdit(QLineEdit* pEdit);

    void keyPressEvent(QKeyEvent* event) override;

private:
    class Validator;

    QSize fittingSize(const QSize& tBase) const;
    void setValidator();
    QString ownText(QChar cFmt) const;
    bool isUntouched() const;
    bool readsBack() const;
    void enterUntouched();
    void tellValue();

    QChar m_cFmt = QLatin1Char('f');
};

} // namespace nsUI
