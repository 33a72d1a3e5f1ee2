// SPDX-License-Identifier: MIT
#include "TesseraGlobal_p.h"

#include <QCsvDocument.h>

#include <QRandomGenerator64>
#include <QtDebug>

#include <array>
#include <cmath>
#include <utility>

namespace nsUI {
namespace {

//! A colour channel of sRGB (0.0 to 1.0) as light, by the definition of relative luminance in WCAG 2.0.
double linear(double channel)
{
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

//! Every opaque colour of eight levels a channel but black and white, red running slowest and blue fastest.
QVector<QColor> levelColors()
{
    constexpr std::array<int, 8> levels{0xFF, 0xDD, 0xBB, 0x88, 0x66, 0x44, 0x22, 0x00};
    QVector<QColor> colors;
    colors.reserve(int(levels.size() * levels.size() * levels.size()));
    for (const int nRed : levels) {
        for (const int nGreen : levels) {
            for (const int nBlue : levels) {
                const QColor color(nRed, nGreen, nBlue);
                if (color != Qt::black && color != Qt::white)
                    colors.append(color);
            }
        }
    }
    return colors;
}

void shuffle(QVector<QColor>& colors)
{
    for (int i = 1; i < colors.size(); ++i)
        std::swap(colors[i], colors[QRandomGenerator64::global()->bounded(i + 1)]);
}

} // namespace

void TesseraGlobal::PrivateData::initColorInfo()
{
    const QString sPath = QStringLiteral(":/csv/ColorInfo.csv");
    nsCsv::tagCsvConf conf;
    nsCsv::QCsvDocument document(conf);
    if (!document.loadFile(sPath, nullptr)) {
        qCritical("Failed to load %s!", qUtf8Printable(sPath));
        return;
    }
    // Row and column 0 are labels: a colour's place in the table tells its lightness and type.
    for (int nRow = 1; nRow < document.rowCount(); ++nRow) {
        for (int nColumn = 1; nColumn < document.columnCount(); ++nColumn) {
            QColor color;
            color.setNamedColor(document.cell(nRow, nColumn));
            tColorTable[static_cast<e_ColorType>(nColumn - 1)].insert(static_cast<e_ColorLightness>(nRow - 1), color);
        }
    }
}

QColor TesseraGlobal::getColor(e_ColorType type, e_ColorLightness lightness) const
{
    const auto itType = m_pData->tColorTable.constFind(type);
    return itType == m_pData->tColorTable.constEnd() ? QColor() : itType->value(lightness);
}

QColor TesseraGlobal::getAdaptiveTextColor(const QColor& background)
{
    const double luminance =
        0.2126 * linear(background.redF()) + 0.7152 * linear(background.greenF()) + 0.0722 * linear(background.blueF());
    return luminance > 0.179 ? Qt::black : Qt::white;
}

QColor TesseraGlobal::getRandColor() const
{
    static quintptr nNext = 0;
    QVector<QColor>& colors = m_pData->tRandColors;
    if (colors.isEmpty()) {
        colors = levelColors();
        shuffle(colors);
    }
    const quintptr nIndex = nNext < static_cast<quintptr>(colors.size()) ? nNext : 0;
    nNext = nIndex + 1;
    return colors.at(static_cast<int>(nIndex));
}

} // namespace nsUI
