// SPDX-License-Identifier: MIT
#include "pages/DialogSample.h"
#include "pages/Page.h"
#include "pages/Pages.h"
#include "samples/Samples.h"

#include <QCoreApplication>

namespace gallery {

Page* makeItemsPage()
{
    auto* page = new Page;
    page->addCard({QStringLiteral("TbView, StyledItemDelegate"),
                   QT_TRANSLATE_NOOP("gallery", "A table whose cells tell their own kind and get the right editor or "
                                                "dialog. Here is a cell of every kind."),
                   {QStringLiteral("ItemViews.cpp"), QStringLiteral("table")}},
                  makeItemTable(), Card::CodeBelow);
    page->addCard(
        {QStringLiteral("TbModel"),
         QT_TRANSLATE_NOOP("gallery", "The model behind it. A subclass answers value and kind; texts, colours, "
                                      "check marks and flags follow from them."),
         {QStringLiteral("CellTable.cpp"), QStringLiteral("model")},
         QT_TRANSLATE_NOOP("gallery", "What a cell shows is asked for anew whenever the language changes: "
                                      "report all cells as changed then.")},
        nullptr, Card::CodeBelow);
    page->addCard({QStringLiteral("e_ItemType, e_ItemRole"),
                   QT_TRANSLATE_NOOP("gallery", "What three of the cells answer: an integer, a real number and a text "
                                                "with a pattern."),
                   {QStringLiteral("ItemCells.cpp"), QStringLiteral("cells")}},
                  nullptr, Card::CodeBelow);
    page->addCard({QStringLiteral("TrView, TrModel"),
                   QT_TRANSLATE_NOOP("gallery", "The same cells in a tree."),
                   {QStringLiteral("ItemViews.cpp"), QStringLiteral("view")}},
                  makeItemTree());
    page->addCard({QStringLiteral("CBitDialog"),
                   QT_TRANSLATE_NOOP("gallery", "Bytes as hexadecimal text, as binary text and bit by bit, with a "
                                                "description where a bit has one. The table above opens it for its "
                                                "bytes."),
                   {QStringLiteral("BitDialog.cpp"), QStringLiteral("bit")}},
                  new DialogSample(QStringLiteral("bit")), Card::CodeBelow);
    return page;
}

} // namespace gallery
