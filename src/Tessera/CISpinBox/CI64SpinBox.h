// SPDX-License-Identifier: MIT
#pragma once

#include <Tessera/TesseraExport.h>

#include <QAbstractSpinBox>
#include <QString>
#include <QValidator>

QT_BEGIN_NAMESPACE
class QLineEdit;
QT_END_NAMESPACE

namespace nsUI {

class SpinBoxCore;

/*!
    A spin box for a signed 64-bit integer (long long), shown in decimal, hexadecimal or binary.

    The value is held in its exact type; a value of any other of the eight fixed widths has a box of its own. A new
    box shows 0 and has the range 0 to 99, single step 1, base 10 and neither prefix nor suffix.

    Setters do nothing when nothing changes. A changed value is stored, shown, and then told by valueChanged(), in
    that order; a changed text is told by textChanged() before that. Bad arguments are ignored silently, but for a
    display base out of range, which is logged.

    Typed text reaches the value at every keystroke that makes it acceptable, as long as keyboardTracking() is on.
    With it off typing never reaches the value: there is no commit on Enter or when the focus leaves.

    What to know before using it in a form:
    - The size hint does not know the range. Give the box a minimum width, or let its layout do so.
    - Like every spin box of Qt it steps on a mouse wheel without having the focus.
    - setSpecialValueText() refreshes nothing: the text shows with the next change.
    - A slot may delete the box, or its parent, where the program's own call is what sends the signal. While the user
      types, steps or presses Enter, Qt goes on with the box after the signal: there, call deleteLater().
    - A prefix or suffix that is typed over comes back around what is typed. A key that is refused leaves text, cursor
      and selection as they were. What the box itself shows is always acceptable input, even where validate() refuses
      it: with a suffix, and a negative value in base 2 or 16.
    - There is no user property, and assistive technology finds a text but no value: connect valueChanged().
*/
class TESSERA_EXPORT CI64SpinBox : public QAbstractSpinBox
{
    Q_OBJECT

public:
    explicit CI64SpinBox(QWidget* parent = nullptr);
    ~CI64SpinBox() override;

    long long value() const; //!< always within minimum() and maximum()
    long long minimum() const;
    long long maximum() const;
    long long singleStep() const;
    QAbstractSpinBox::StepType stepType() const;
    QString prefix() const;
    QString suffix() const;
    int displayIntegerBase() const;

    //! The shown text without its prefix and the white space around it. The suffix stays on.
    QString cleanText() const;

    //! A minimum above the maximum takes the maximum along. The value follows into the range.
    void setMinimum(const long long& nVal);

    //! A maximum below the minimum takes the minimum along. The value follows into the range.
    void setMaximum(const long long& nVal);

    //! Sets both bounds; ignored when \a nMin is above \a nMax.
    void setRange(const long long& nMin, const long long& nMax);

    //! The step of DefaultStepType. A negative step is ignored.
    void setSingleStep(const long long& nVal);

    //! AdaptiveDecimalStepType steps by a tenth of the value's decimal magnitude, at least by 1.
    void setStepType(QAbstractSpinBox::StepType stepType);

    //! Shown before the number, and taken off either end of a typed text before it is read.
    void setPrefix(const QString& sPrefix);

    //! Shown after the number. It is part of what is parsed: with a suffix, text typed in front of it is refused.
    void setSuffix(const QString& sSuffix);

    /*!
        2 to 36. Base 16 shows the digits as the host library writes them and base 2 shows bits, both as the two's
        complement pattern of 64 bits without leading zeros. Every other base shows decimal text; typed text is read
        in the base all the same, so a box of base 8 takes a typed 10 as eight. A negative value's pattern in base 2
        or 16 is above the type's maximum when it is read back, and so is refused as typed text.

        A base out of range is logged as a warning and 10 is taken in its place.
    */
    void setDisplayIntegerBase(int nBase);

    /*!
        The state of \a sInput, of which \a nPos is the cursor position. \a sInput is completed with prefix and suffix.

        A number within the range is Acceptable; one outside it is Intermediate while it lies between zero and the
        bound on its own side, so that it can be typed towards the range, else Invalid. An empty text, a "-" where
        the minimum is negative and a "+" where the maximum is not are Intermediate, unless the range is one value.
        In a range of one value every other number is Invalid.

        The answer for the last text is kept, and returned again for the same text even if the range or the base has
        changed since.
    */
    QValidator::State validate(QString& sInput, int& nPos) const override;

    //! Does nothing: a text that is not acceptable stays as typed.
    void fixup(QString& sInput) const override;

    /*!
        Moves the value by \a nSteps steps and selects the number.

        The sum wraps in the type's own 64 bits before it is brought into the range: a step beyond the type's limit
        comes in from the other side. With wrapping() the value wraps within the range; over a range as wide as the
        type it wraps in the type. The remainder is taken in the type's own arithmetic: in 32 and 64 bits, a signed
        range wider than half the type and a step below an unsigned range do not simply count round, and over all of
        the type's values but one a step goes to the minimum.
    */
    void stepBy(int nSteps) override;

    //! The value of \a sText, for a text that validate() calls Acceptable; else one of the bounds.
    virtual long long valueFromText(const QString& sText) const;

    //! The number of \a nVal in the display base, without prefix and suffix.
    virtual QString textFromValue(const long long& nVal) const;

Q_SIGNALS:
    //! The value has changed, by whatever means. Sent after textChanged().
    void valueChanged(const long long& nVal);

    //! The shown text was refreshed. Sent while the signals of the line edit are blocked; for typed text only where
    //! the number is written otherwise than it was typed.
    void textChanged(const QString& sText);

public Q_SLOTS:
    //! Sets the value, brought into the range.
    void setValue(const long long& nVal);

    //! Up below the maximum and down above the minimum; both with wrapping().
    StepEnabled stepEnabled() const override;

    //! Selects the number without prefix and suffix; the special value text whole.
    void selectAll();

protected:
    /*!
        Takes \a pEdit in the place of the line edit, which is deleted. The new one belongs to the box and shows the
        value at once; what is typed into it reaches the value, and the box validates it unless it brings a validator
        of its own. Nothing happens when \a pEdit is null or the line edit already.

        QAbstractSpinBox::setLineEdit() knows nothing of the value: a line edit that is set there is cut off from it.
    */
    void setLineEdit(QLineEdit* pEdit);

private:
    friend class SpinBoxCore;

    void editorTextChanged(const QString& sText);
    void updateEdit();
    bool specialValue() const;
    QString stripped(const QString& sText, int* pPos) const;
    long long validateAndInterpret(QString& sInput, int& nPos, QValidator::State& state) const;
    static bool isSigned();

    long long m_nValue = 0;
    long long m_nMinimum = 0;
    long long m_nMaximum = 99;
    long long m_nSingleStep = 1;
    QAbstractSpinBox::StepType m_stepType = QAbstractSpinBox::DefaultStepType;
    int m_nDisplayIntegerBase = 10;
    QString m_sPrefix;
    QString m_sSuffix;
    mutable QString m_sCachedText;
    mutable QValidator::State m_cachedState = QValidator::Invalid;
    mutable long long m_nCachedValue = 0;
    bool m_bCleared = false;
};

} // namespace nsUI
