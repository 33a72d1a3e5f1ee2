// SPDX-License-Identifier: MIT
#include "samples/ItemCells.h"

#include "host/Host.h"

#include <Tessera/Tessera.h>
#include <Tessera/views/ItemRoles.h>

#include <QColor>
#include <QCoreApplication>
#include <QMap>
#include <QPen>

namespace gallery {

namespace {

constexpr const char* kByDoubleClick =
    QT_TRANSLATE_NOOP("gallery", "double click, or F2");
constexpr const char* kByClick = QT_TRANSLATE_NOOP("gallery", "click");
constexpr const char* kByDialog =
    QT_TRANSLATE_NOOP("gallery", "click, in a dialog");
constexpr const char* kByNothing =
    QT_TRANSLATE_NOOP("gallery", "nothing, it is disabled");

using Roles = QHash<int, QVariant>;

QStringList pictures(const QString& suffix)
{
    return {QStringLiteral(":/svg/primary/check%1.svg").arg(suffix),
            QStringLiteral(":/svg/primary/cross%1.svg").arg(suffix)};
}

Roles pictureRoles()
{
    return {{nsUI::e_Role_ItemType, nsUI::e_Item_BoolPicture},
            {nsUI::e_Role_Pictures, pictures(QString())},
            {nsUI::e_Role_DisabledPictures,
             pictures(QStringLiteral("-disabled"))}};
}

QVector<ItemCell> booleanCells()
{
    return {
        {"e_Item_CheckBox",
         kByClick,
         true,
         {{nsUI::e_Role_ItemType, nsUI::e_Item_CheckBox}}},
        {"e_Item_BoolText",
         kByClick,
         true,
         {{nsUI::e_Role_ItemType, nsUI::e_Item_BoolText}}},
        {"e_Item_BoolPicture", kByClick, true, pictureRoles()},
    };
}

/// The texts of choices are translated when they are asked for.
QVector<ItemCell> choiceCells()
{
    const QStringList speeds{
        QStringLiteral(QT_TRANSLATE_NOOP("gallery", "Slow")),
        QStringLiteral(QT_TRANSLATE_NOOP("gallery", "Medium")),
        QStringLiteral(QT_TRANSLATE_NOOP("gallery", "Fast"))};
    const QStringList pulls{
        QStringLiteral(QT_TRANSLATE_NOOP("gallery", "Pull-up")),
        QStringLiteral(QT_TRANSLATE_NOOP("gallery", "Pull-down"))};
    return {
        {"e_Item_ComboBox",
         kByDoubleClick,
         1,
         {{nsUI::e_Role_ItemType, nsUI::e_Item_ComboBox},
          {nsUI::e_Role_Texts, speeds}}},
        {"e_Item_DataComboBox",
         kByDoubleClick,
         0x20,
         {{nsUI::e_Role_ItemType, nsUI::e_Item_DataComboBox},
          {nsUI::e_Role_DataTexts, pulls},
          {nsUI::e_Role_Data, QVariantList{0x10, 0x20}}}},
    };
}

QVector<ItemCell> numberCells()
{
    //! [cells]
    const Roles integer{
        {nsUI::e_Role_ItemType, nsUI::e_Item_ISpinBox},
        {nsUI::e_Role_ISpxType, nsUI::e_ISpx_U16},
        {nsUI::e_Role_ISpxMaximum, 0xFFFF},
        {nsUI::e_Role_ISpxPrefix, QStringLiteral("0x")},
        {nsUI::e_Role_ISpxBase, 16},
    };
    const Roles real{
        {nsUI::e_Role_ItemType, nsUI::e_Item_DSpinBox},
        {nsUI::e_Role_DSpxMinimum, -5.0},
        {nsUI::e_Role_DSpxMaximum, 5.0},
        {nsUI::e_Role_DSpxDecimals, 3},
        {nsUI::e_Role_DSpxStep, 0.125},
    };
    const Roles pattern{
        {nsUI::e_Role_ItemType, nsUI::e_Item_LineEdit},
        {nsUI::e_Role_Pattern, QStringLiteral("[A-Z][A-Z0-9_]*")},
    };
    //! [cells]
    return {
        {"e_Item_ISpinBox", kByDoubleClick, 0x1D0F, integer},
        {"e_Item_DSpinBox", kByDoubleClick, 3.3, real},
        {"e_Item_LineEdit", kByDoubleClick, QStringLiteral("GPIO_A"),
         pattern},
    };
}

QVector<ItemCell> dialogCells()
{
    const QMap<int, QString> bits{{0, QStringLiteral("EN")},
                                  {4, QStringLiteral("IRQ")},
                                  {15, QStringLiteral("LOCK")}};
    return {
        {"e_Item_Color",
         kByDialog,
         QColor(0x72, 0xBA, 0x3C),
         {{nsUI::e_Role_ItemType, nsUI::e_Item_Color}}},
        {"e_Item_Font",
         kByDialog,
         QFont(QStringLiteral("DejaVu Sans"), 10),
         {{nsUI::e_Role_ItemType, nsUI::e_Item_Font}}},
        {"e_Item_Pen",
         kByDialog,
         QPen(QColor(0x13, 0x67, 0x96), 1.5, Qt::DashLine),
         {{nsUI::e_Role_ItemType, nsUI::e_Item_Pen}}},
        {"e_Item_ByteArray",
         kByDialog,
         QByteArray::fromHex("8011"),
         {{nsUI::e_Role_ItemType, nsUI::e_Item_ByteArray},
          {nsUI::e_Role_BitDescriptions, QVariant::fromValue(bits)}}},
    };
}

bool holdsTexts(int role)
{
    return role == nsUI::e_Role_Texts || role == nsUI::e_Role_DataTexts;
}

QStringList translated(QStringList texts)
{
    for (QString& one : texts) {
        one = text(one.toLatin1().constData());
    }
    return texts;
}

/// A font reads better as its name and size than as all that the value knows, and is shown in itself.
QVariant fontData(const QFont& font, int role)
{
    switch (role) {
    case Qt::DisplayRole:
        return QStringLiteral("%1, %2 pt")
            .arg(font.family())
            .arg(font.pointSize());
    case Qt::FontRole:
        return font;
    default:
        return QVariant();
    }
}

/// In its own base; the library's models show plain decimal text.
QVariant integerText(const ItemCell& cell)
{
    const int base = cell.roles.value(nsUI::e_Role_ISpxBase).toInt();
    return cell.roles.value(nsUI::e_Role_ISpxPrefix).toString() +
           QString::number(cell.value.toInt(), base).toUpper();
}

} // namespace

QVector<ItemCell> itemCells()
{
    QVector<ItemCell> cells{
        {"e_Item_Plain", kByDoubleClick, QStringLiteral("USART1"), {}}};
    cells += booleanCells() + choiceCells() + numberCells() + dialogCells();
    cells.append(
        {"e_Item_BoolPicture", kByNothing, false, pictureRoles(), false});
    return cells;
}

QVariant cellData(const ItemCell& cell, int role)
{
    if (role == Qt::EditRole) {
        return cell.value;
    }
    if (role == Qt::DisplayRole &&
        cell.roles.contains(nsUI::e_Role_ISpxBase)) {
        return integerText(cell);
    }
    if (cell.value.userType() == QMetaType::QFont) {
        QVariant answer = fontData(cell.value.value<QFont>(), role);
        if (answer.isValid()) {
            return answer;
        }
    }
    const QVariant answer = cell.roles.value(role);
    return holdsTexts(role) ? QVariant(translated(answer.toStringList()))
                            : answer;
}

} // namespace gallery
