// SPDX-License-Identifier: MIT
#include "pages/Page.h"
#include "pages/Pages.h"
#include "samples/Samples.h"

#include <QCoreApplication>

namespace gallery {

namespace {

void addIntegerCards(Page* page)
{
    page->addCard({QStringLiteral("CI8SpinBox … CU64SpinBox"),
                   QT_TRANSLATE_NOOP("gallery", "One box for each fixed integer width, signed and unsigned. It holds "
                                                "its value in exactly that type and shows it in base 2, 10 or 16. The "
                                                "three boxes of a row show one number."),
                   {QStringLiteral("IntegerBases.cpp"), QStringLiteral("bases")},
                   QT_TRANSLATE_NOOP("gallery", "The size hint does not know the range: give the box a minimum width. "
                                                "The boxes above have one that follows the font.")},
                  makeIntegerBases(), Card::CodeBelow);
    page->addCard({QStringLiteral("setRange(), setPrefix(), setSuffix()"),
                   QT_TRANSLATE_NOOP("gallery", "The value never leaves its range. What stands before and behind the "
                                                "number is not selected with it."),
                   {QStringLiteral("IntegerForms.cpp"), QStringLiteral("affixes")},
                   QT_TRANSLATE_NOOP("gallery", "A suffix is part of what is read, and text that is typed in front of "
                                                "it is refused. Where numbers are to be typed, put the unit into the "
                                                "caption, as below.")},
                  makeAffixes());
    page->addCard({QStringLiteral("setWrapping()"),
                   QT_TRANSLATE_NOOP("gallery", "Stepping beyond one end of the range comes in from the other."),
                   {QStringLiteral("IntegerForms.cpp"), QStringLiteral("wrapping")}},
                  makeWrapping());
    page->addCard({QStringLiteral("setSingleStep(), setStepType()"),
                   QT_TRANSLATE_NOOP("gallery", "A step is a fixed number, or a tenth of the value's decimal "
                                                "magnitude."),
                   {QStringLiteral("IntegerForms.cpp"), QStringLiteral("steps")}},
                  makeStepTypes());
    page->addCard({QStringLiteral("setReadOnly(), setEnabled(), setSpecialValueText()"),
                   QT_TRANSLATE_NOOP("gallery", "A read-only box can be selected and copied, a disabled one cannot. A "
                                                "special text stands for the minimum."),
                   {QStringLiteral("IntegerForms.cpp"), QStringLiteral("states")}},
                  makeStates());
}

void addOtherCards(Page* page)
{
    page->addCard({QStringLiteral("CDSpinBox::setFmtChar()"),
                   QT_TRANSLATE_NOOP("gallery", "A double spin box with the number formats of QString::number(), "
                                                "always with a decimal point."),
                   {QStringLiteral("DoubleForms.cpp"), QStringLiteral("formats")}},
                  makeDoubleFormats());
    page->addCard({QStringLiteral("CDSpinBox::RatioStepType"),
                   QT_TRANSLATE_NOOP("gallery", "Every step multiplies or divides by 1 + single step."),
                   {QStringLiteral("DoubleForms.cpp"), QStringLiteral("ratio")}},
                  makeRatioStep());
    page->addCard({QStringLiteral("CDataComboBox"),
                   QT_TRANSLATE_NOOP("gallery", "A combo box that is told what to show by an item's data. Codes that "
                                                "no item has change nothing: try 1, 2 and 8."),
                   {QStringLiteral("DataComboBox.cpp"), QStringLiteral("combo")}},
                  makeDataComboBox());
}

} // namespace

Page* makeNumbersPage()
{
    auto* page = new Page;
    addIntegerCards(page);
    addOtherCards(page);
    return page;
}

} // namespace gallery
