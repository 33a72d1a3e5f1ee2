// SPDX-License-Identifier: MIT
#include "CBitModel.h"

#include <Tessera/Tessera.h>
#include <Tessera/views/ItemRoles.h>

#include <QColor>

namespace nsUI {
namespace {

constexpr int c_nBits = 8;
constexpr int c_nFields = 3;

enum Field { FieldPosition, FieldValue, FieldDescription };

} // namespace

//! Where a cell lies in the array.
struct CBitModel::Cell
{
    int nElement; //!< index into the array; negative beyond its end
    int nBit;     //!< within the byte
    int nPosition;
    int nField;

    bool isEmpty() const { return nElement < 0; }
};

CBitModel::CBitModel(QObject* parent)
    : TbModel(parent)
    , m_tHeaders{tr("Bit Position"), tr("Bit Value"), tr("Description")}
{
}

CBitModel::Cell CBitModel::cellAt(const QModelIndex& index) const
{
    if (!index.isValid())
        return {-1, 0, 0, 0};
    const int nByte = m_nBytesPerRow * (index.row() / c_nBits) + index.column() / c_nFields;
    const int nBit = index.row() % c_nBits;
    const int nLast = static_cast<int>(m_tByteArray.size()) - 1;
    return {nLast - nByte, nBit, c_nBits * nByte + nBit, index.column() % c_nFields};
}

int CBitModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_nByteRows * c_nBits;
}

int CBitModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_nBytesPerRow * c_nFields;
}

QVariant CBitModel::data(const QModelIndex& index, int role) const
{
    const Cell cell = cellAt(index);
    if (cell.isEmpty())
        return QVariant();
    if (role == Qt::BackgroundRole)
        return background(index, cell);

    const bool isText = role == Qt::DisplayRole || role == Qt::ToolTipRole;
    const auto bit = [this, &cell] { return ((m_tByteArray.at(cell.nElement) >> cell.nBit) & 1) != 0; };
    switch (cell.nField) {
    case FieldPosition:
        if (isText)
            return cell.nPosition;
        if (role == Qt::TextAlignmentRole)
            return int(Qt::AlignRight | Qt::AlignVCenter);
        break;
    case FieldValue:
        if (role == Qt::EditRole)
            return bit();
        if (isText)
            return int(bit());
        if (role == Qt::TextAlignmentRole)
            return int(Qt::AlignHCenter | Qt::AlignVCenter);
        if (role == e_Role_ItemType)
            return int(e_Item_BoolText);
        if (role == e_Role_BoolMark)
            return true;
        break;
    default:
        if (isText)
            return m_tBitDescMap.value(cell.nPosition);
        break;
    }
    return TbModel::data(index, role);
}

QColor CBitModel::background(const QModelIndex& index, const Cell& cell) const
{
    // Counted from the array's front: groups of an array of odd length do not simply alternate.
    const int nChequer = cell.nElement % m_nBytesPerRow + cell.nElement / m_nBytesPerRow;
    const bool isSet = cell.nField == FieldValue && data(index, Qt::EditRole).toBool();
    return TesseraGlobal::instance().getColor(isSet ? e_Success : e_Primary, nChequer % 2 == 0 ? e_L200 : e_L100);
}

Qt::ItemFlags CBitModel::flags(const QModelIndex& index) const
{
    const Cell cell = cellAt(index);
    if (cell.isEmpty())
        return Qt::NoItemFlags;
    return cell.nField == FieldValue ? TbModel::flags(index) : Qt::ItemIsSelectable | Qt::ItemIsEnabled;
}

bool CBitModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    const Cell cell = cellAt(index);
    if (cell.isEmpty())
        return false;
    if (cell.nField != FieldValue || role != Qt::EditRole)
        return TbModel::setData(index, value, role);

    const int nMask = 1 << cell.nBit;
    const int nByte = static_cast<uchar>(m_tByteArray.at(cell.nElement));
    m_tByteArray[cell.nElement] = static_cast<char>(value.toBool() ? nByte | nMask : nByte & ~nMask);
    Q_EMIT sigByteArrayChanged(m_tByteArray);
    Q_EMIT dataChanged(index, index);
    return true;
}

QVariant CBitModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole && section >= 0)
        return m_tHeaders.at(section % c_nFields);
    return TbModel::headerData(section, orientation, role);
}

void CBitModel::setByteArray(const QByteArray& tByteArray)
{
    if (tByteArray == m_tByteArray)
        return;
    beginResetModel();
    const int nSize = static_cast<int>(tByteArray.size());
    m_nBytesPerRow = nSize < 2 ? 1 : nSize > 4 ? 4 : 2;
    m_nByteRows = (nSize + m_nBytesPerRow - 1) / m_nBytesPerRow;
    m_tByteArray = tByteArray;
    endResetModel();
}

const QByteArray& CBitModel::byteArray() const
{
    return m_tByteArray;
}

void CBitModel::setBitDescMap(const QMap<int, QString>& tBitDescMap)
{
    beginResetModel();
    m_tBitDescMap = tBitDescMap;
    endResetModel();
}

const QMap<int, QString>& CBitModel::bitDescMap() const
{
    return m_tBitDescMap;
}

} // namespace nsUI
