// SPDX-License-Identifier: MIT
#include "TesseraGlobal_p.h"

#include <QtDebug>

namespace nsUI {

TesseraGlobal::PrivateData::PrivateData()
{
    initColorInfo();
}

TesseraGlobal::TesseraGlobal()
    : m_pData(std::make_unique<PrivateData>())
{
    qDebug("Tessera Singleton Create Begin");
    initFont();
    qDebug("Tessera Singleton Create End");
}

TesseraGlobal::~TesseraGlobal() = default;

TesseraGlobal& TesseraGlobal::instance()
{
    static TesseraGlobal global;
    return global;
}

} // namespace nsUI
