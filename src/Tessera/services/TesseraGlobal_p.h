// SPDX-License-Identifier: MIT
#pragma once

#include <Tessera/Tessera.h>

#include <QColor>
#include <QHash>
#include <QMetaObject>
#include <QObject>
#include <QVector>

namespace nsUI {

//! What the one TesseraGlobal holds. A QObject, so that no tracked object calls back after it is gone.
class Q_DECL_HIDDEN TesseraGlobal::PrivateData : public QObject
{
public:
    PrivateData();

    void initColorInfo();

    QHash<e_ColorType, QHash<e_ColorLightness, QColor>> tColorTable;
    QVector<QColor> tRandColors;
    QHash<QObject*, QMetaObject::Connection> tToolTipConnections;
};

} // namespace nsUI
