// SPDX-License-Identifier: MIT
#include "pages/Page.h"
#include "pages/Pages.h"
#include "samples/Samples.h"

#include <QCoreApplication>

namespace gallery {

namespace {

void addColorCards(Page* page)
{
    page->addCard({QStringLiteral("TesseraGlobal::getColor(), getAdaptiveTextColor()"),
                   QT_TRANSLATE_NOOP("gallery", "A palette of five families in nine steps, and black or white for text "
                                                "on any colour."),
                   {QStringLiteral("Colors.cpp"), QStringLiteral("palette")}},
                  makePaletteChart(), Card::CodeBelow);
    page->addCard({QStringLiteral("TesseraGlobal::getRandColor()"),
                   QT_TRANSLATE_NOOP("gallery", "The next of 510 colours in an order that is shuffled once, for the "
                                                "curves of a plot, say."),
                   {QStringLiteral("Colors.cpp"), QStringLiteral("random")}},
                  makeRandomColors());
}

void addLookCards(Page* page)
{
    page->addCard(
        {QStringLiteral("TesseraGlobal::loadStyleSheet()"),
         QT_TRANSLATE_NOOP("gallery", "Replaces the application's style sheet: the rule of its font first, "
                                      "then the sheets of :/qss that are asked for, the library's own and "
                                      "the host's. Choose others above."),
         {QStringLiteral("Host.cpp"), QStringLiteral("sheets")},
         QT_TRANSLATE_NOOP("gallery", "The sheets follow one another as the folder lists them. Where a host's "
                                      "rule shall win over one of the library's, give it a more specific "
                                      "selector.")},
        makeStyledWidgets(), Card::CodeBelow);
    page->addCard({QStringLiteral("TesseraGlobal::getCurrentAppFont()"),
                   QT_TRANSLATE_NOOP("gallery", "The font that the last style sheet was headed by. The user chooses it "
                                                "in FontSettingDlg."),
                   {QStringLiteral("Helpers.cpp"), QStringLiteral("font")},
                   QT_TRANSLATE_NOOP("gallery", "The host's fonts are registered at the start, all of :/ttf.")},
                  makeFontInfo());
}

void addWidgetCards(Page* page)
{
    page->addCard({QStringLiteral("TesseraGlobal::ISP_create()"),
                   QT_TRANSLATE_NOOP("gallery", "Integer spin boxes by type code. The settings are those of a table's "
                                                "cell."),
                   {QStringLiteral("SpinBoxFactory.cpp"), QStringLiteral("factory")}},
                  makeSpinBoxFactory());
    page->addCard({QStringLiteral("TesseraGlobal::autoSetToolTips()"),
                   QT_TRANSLATE_NOOP("gallery", "A tool tip that is the widget's own text, and follows it: type "
                                                "something."),
                   {QStringLiteral("Helpers.cpp"), QStringLiteral("tips")}},
                  makeToolTips());
    page->addCard({QStringLiteral("TesseraGlobal::resize()"),
                   QT_TRANSLATE_NOOP("gallery", "Sizes a window by fractions of the screen, and centres it."),
                   {QStringLiteral("Helpers.cpp"), QStringLiteral("resize")}},
                  makeResizing());
    page->addCard({QStringLiteral("TesseraGlobal::setCbxCurrentData(), appendTextBrowserColor()"),
                   QT_TRANSLATE_NOOP("gallery", "What CDataComboBox and CustomTextBrowser do, for Qt's own widgets."),
                   {QStringLiteral("Helpers.cpp"), QStringLiteral("helpers")}},
                  makeSmallHelpers());
    page->addCard({QStringLiteral("CWheelGuard"),
                   QT_TRANSLATE_NOOP("gallery", "The wheel scrolls the page and leaves the boxes under the pointer as "
                                                "they are. Click one, and the wheel is for it."),
                   {QStringLiteral("Helpers.cpp"), QStringLiteral("guard")}},
                  makeGuardedBoxes());
}

} // namespace

Page* makeServicesPage()
{
    auto* page = new Page;
    addColorCards(page);
    addLookCards(page);
    addWidgetCards(page);
    return page;
}

} // namespace gallery
