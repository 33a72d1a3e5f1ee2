// SPDX-License-Identifier: MIT
#pragma once

#include <Tessera/views/TbModel.h>

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

namespace nsUI {

/*!
    The grid of the bit dialog: a byte array as one big-endian number, bit by bit.

    Blocks of eight rows show one, two or four bytes side by side, each as three columns: position, value and
    description. Byte 0, the array's last, is the leftmost of the first block; bit 0 stands on top. Cells beyond the
    array are empty. A cell is worked out from its place, so showing one costs the same in an array of any size; a write
    copies an array that somebody else still holds.
*/
class CBitModel : public TbModel
{
    Q_OBJECT

public:
    explicit CBitModel(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    //! Resets the model, unless the array is the same. Emits no sigByteArrayChanged().
    void setByteArray(const QByteArray& tByteArray);
    const QByteArray& byteArray() const;

    //! Resets the model, every time. The keys are bit positions.
    void setBitDescMap(const QMap<int, QString>& tBitDescMap);
    const QMap<int, QString>& bitDescMap() const;

Q_SIGNALS:
    //! A bit was written through setData(), even if it had that value before. Sent before dataChanged().
    void sigByteArrayChanged(const QByteArray& tByteArray);

private:
    struct Cell;
    Cell cellAt(const QModelIndex& index) const;
    QColor background(const QModelIndex& index, const Cell& cell) const;

    QByteArray m_tByteArray = QByteArray(""); // not null from the start: null means a cancelled dialog
    QMap<int, QString> m_tBitDescMap;
    QStringList m_tHeaders;
    int m_nByteRows = 0;
    int m_nBytesPerRow = 0;
};

} // namespace nsUI
