// SPDX-License-Identifier: MIT
#include "pages/DialogCatalog.h"

#include "samples/DialogSamples.h"

#include <QCoreApplication>

namespace gallery {

namespace {

constexpr DialogEntry kDialogs[] = {
    {"pen", QT_TRANSLATE_NOOP("gallery", "Open the &pen dialog…"), makePenDialog, nullptr, penOutcome},
    {"font", QT_TRANSLATE_NOOP("gallery", "Open the f&ont dialog…"), makeFontDialog, nullptr, fontOutcome},
    {"progress", QT_TRANSLATE_NOOP("gallery", "Open the pro&gress dialog…"), makeProgressDialog, startProgress,
     nullptr},
    {"message", QT_TRANSLATE_NOOP("gallery", "Open the &message dialog…"), makeMessageDialog, nullptr, nullptr},
    {"input", QT_TRANSLATE_NOOP("gallery", "Open the &input dialog…"), makeInputDialog, nullptr, inputOutcome},
    {"bit", QT_TRANSLATE_NOOP("gallery", "Open the &bit dialog…"), makeBitDialog, nullptr, bitOutcome},
};

} // namespace

const DialogEntry& dialogNamed(const QString& name)
{
    for (const DialogEntry& entry : kDialogs) {
        if (name == QLatin1String(entry.name)) {
            return entry;
        }
    }
    return kDialogs[0];
}

} // namespace gallery
