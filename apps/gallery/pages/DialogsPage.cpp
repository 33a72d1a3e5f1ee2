// SPDX-License-Identifier: MIT
#include "pages/DialogSample.h"
#include "pages/Page.h"
#include "pages/Pages.h"
#include "samples/Samples.h"

#include <QCoreApplication>

namespace gallery {

namespace {

QWidget* dialogSample(const char* name)
{
    return new DialogSample(QString::fromLatin1(name));
}

void addChoosingCards(Page* page)
{
    page->addCard(
        {QStringLiteral("CPenDialog"),
         QT_TRANSLATE_NOOP("gallery", "Colour, width and line style of a pen. CPenDialog::getPen() does it in "
                                      "one call."),
         {QStringLiteral("PenDialog.cpp"), QStringLiteral("pen")},
         QT_TRANSLATE_NOOP("gallery", "The flat button shows the colour by its palette: keep a style sheet's "
                                      "rules for buttons away from flat ones.")},
        dialogSample("pen"));
    page->addCard({QStringLiteral("FontSettingDlg"),
                   QT_TRANSLATE_NOOP("gallery", "The application's font: families in order of preference, size, bold "
                                                "and italic, with an example."),
                   {QStringLiteral("FontDialog.cpp"), QStringLiteral("font")},
                   QT_TRANSLATE_NOOP("gallery", "The icons are the host's: text.svg, plus.svg and minus.svg in "
                                                ":/svg/primary. The gallery's style sheet draws the check boxes as "
                                                "switches, by their property qssIconName.")},
                  dialogSample("font"), Card::CodeBelow);
    page->addCard({QStringLiteral("CustomInputDlg"),
                   QT_TRANSLATE_NOOP("gallery", "An empty form with a button box, which the host fills and connects."),
                   {QStringLiteral("InputDialog.cpp"), QStringLiteral("input")}},
                  dialogSample("input"));
}

void addReportingCards(Page* page)
{
    page->addCard({QStringLiteral("CProgressDlg"),
                   QT_TRANSLATE_NOOP("gallery", "A line of text, a bar and Cancel, driven by the host's own work."),
                   {QStringLiteral("ProgressDialog.cpp"), QStringLiteral("progress")},
                   QT_TRANSLATE_NOOP("gallery", "The dialog leaves keys to its subclass and calls itself for every key "
                                                "but Escape, so a host gives it one, as here.")},
                  dialogSample("progress"));
    page->addCard({QStringLiteral("CMessageDlg"),
                   QT_TRANSLATE_NOOP("gallery", "A log in colours that stays until it is dismissed."),
                   {QStringLiteral("MessageDialog.cpp"), QStringLiteral("message")},
                   QT_TRANSLATE_NOOP("gallery", "Choose the colours by the ground: dark steps of the palette for a "
                                                "light window, light ones for a dark.")},
                  dialogSample("message"));
    page->addCard({QStringLiteral("CustomTextBrowser"),
                   QT_TRANSLATE_NOOP("gallery", "A log in colours as a widget. Its context menu can have Clear at the "
                                                "end, as here; markup in a text counts."),
                   {QStringLiteral("MessageDialog.cpp"), QStringLiteral("browser")}},
                  makeTextBrowser());
}

void addHelperCards(Page* page)
{
    page->addCard({QStringLiteral("CScrollWdg"),
                   QT_TRANSLATE_NOOP("gallery", "A scroll area whose content is as wide as what is seen of it. This "
                                                "page is one, too."),
                   {QStringLiteral("ScrollWidget.cpp"), QStringLiteral("scroll")}},
                  makeScrollWidget());
    page->addCard({QStringLiteral("CAutoCursor"),
                   QT_TRANSLATE_NOOP("gallery", "A cursor for as long as the object lives."),
                   {QStringLiteral("WaitCursor.cpp"), QStringLiteral("cursor")}},
                  makeWaitCursor());
}

} // namespace

Page* makeDialogsPage()
{
    auto* page = new Page;
    addChoosingCards(page);
    addReportingCards(page);
    addHelperCards(page);
    return page;
}

} // namespace gallery
