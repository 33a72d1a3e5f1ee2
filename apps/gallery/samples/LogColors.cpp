// SPDX-License-Identifier: MIT
#include "samples/LogColors.h"

#include "cards/Theme.h"
#include "common/Theme.h"

#include <Tessera/Tessera.h>

#include <QGuiApplication>

namespace gallery {

namespace {

//! [tone]
QColor readable(nsUI::e_ColorType family)
{
    const bool dark = apps::isDark(QGuiApplication::palette());
    return nsUI::TesseraGlobal::instance().getColor(
        family, dark ? nsUI::e_L300 : nsUI::e_L700);
}
//! [tone]

} // namespace

QColor successColor()
{
    return readable(nsUI::e_Success);
}

QColor warningColor()
{
    return readable(nsUI::e_Warning);
}

QColor dangerColor()
{
    return readable(nsUI::e_Danger);
}

} // namespace gallery
