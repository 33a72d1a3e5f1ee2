// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace nsUI {

/*!
    What a text means that is pasted into a field of hexadecimal or binary digits. Plain functions, no widgets.

    Between the digits blanks, line ends and '_' may stand, and a text may carry the mark of its base: 0x before it or h
    behind it, 0b before it. Digits are ASCII characters.
*/
namespace DigitsText {

//! A field of digits, and the place in it that a text goes to.
struct Field
{
    int nBase;   //!< 2 or 16
    int nDigits; //!< of the whole value
    int nFrom;   //!< digits before the place; from 0 to nDigits
};

enum class Verdict {
    Fits,
    NotADigit, //!< something in it is no digit of the base and nothing that may stand between digits
    NoDigit,   //!< no digit is in it
    OtherBase, //!< it carries the mark of the other base
    TooLong,   //!< more digits than the field has from the place on, and not as many as the whole value
};

struct Reading
{
    Verdict verdict = Verdict::Fits;
    QString sDigits; //!< in upper case; only where the text fits
    int nFrom = 0;   //!< digits before those; 0 for a whole value, whatever the place
    int nAt = 0;     //!< where in the text that stands which does not fit, ...
    int nLength = 0; //!< ... and how long it is
    int nCount = 0;  //!< digits in the text; its length where that alone is too long
    int nRoom = 0;   //!< digits that would fit
};

//! Whether \a sText is what can be typed: digits of \a nBase and blanks.
bool isTyped(const QString& sText, int nBase);

//! The time that it takes is bounded by the field's size, not by the text's.
Reading read(const QString& sText, const Field& field);

/*!
    Why \a sText was refused, and the part of it that is to blame, as rich text. It is made of what was pasted and of
    signs, without a word: there is nothing in it to translate.
*/
QString refusal(const QString& sText, const Field& field, const Reading& reading);

} // namespace DigitsText
} // namespace nsUI
