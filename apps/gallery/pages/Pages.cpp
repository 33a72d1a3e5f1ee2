// SPDX-License-Identifier: MIT
#include "pages/Pages.h"

#include <QCoreApplication>

namespace gallery {

namespace {

struct PageEntry
{
    const char* name;
    const char* title;
    Page* (*make)();
};

constexpr PageEntry kPages[] = {
    {"numbers", QT_TRANSLATE_NOOP("gallery", "Numbers"), makeNumbersPage},
    {"services", QT_TRANSLATE_NOOP("gallery", "Services"), makeServicesPage},
    {"items", QT_TRANSLATE_NOOP("gallery", "Items and bits"), makeItemsPage},
    {"dialogs", QT_TRANSLATE_NOOP("gallery", "Dialogs"), makeDialogsPage},
    {"steps", QT_TRANSLATE_NOOP("gallery", "Steps"), makeStepsPage},
};

const PageEntry& entryOf(const QString& name)
{
    for (const PageEntry& entry : kPages) {
        if (name == QLatin1String(entry.name)) {
            return entry;
        }
    }
    return kPages[0];
}

} // namespace

Page* makePage(const QString& name)
{
    return entryOf(name).make();
}

const char* titleOfPage(const QString& name)
{
    return entryOf(name).title;
}

} // namespace gallery
