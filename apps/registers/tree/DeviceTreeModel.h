// SPDX-License-Identifier: MIT
#pragma once

#include "device/Device.h"
#include "text/NumberText.h"

#include <Tessera/views/TrModel.h>

#include <QFont>
#include <QIcon>
#include <QVector>

#include <optional>

namespace registers {

class DeviceEdits;
class DeviceState;

/// A row of the tree: a peripheral, a cluster or a register, or a field of a register.
struct TreePlace
{
    int node = Device::kRootNode;
    int field = -1; ///< of a register's node, an index into Register::fields

    bool operator==(const TreePlace& other) const { return node == other.node && field == other.field; }
    bool operator!=(const TreePlace& other) const { return !(*this == other); }
};

/// The peripherals, clusters, registers and fields of a device, with values that are edited in place.
///
/// The value of a register or a field is a cell of the kind that ValueCell tells. Beside a register that can be
/// written stands a cell that holds its bytes, for the bit dialog. Every edit goes through DeviceEdits.
///
/// An index holds the number of its node, and whether it is a field's, so that finding a row, a parent or a child looks
/// nothing up.
class DeviceTreeModel : public nsUI::TrModel
{
    Q_OBJECT

public:
    enum Column {
        NameColumn,
        AddressColumn, ///< or the bits of a field
        ValueColumn,
        BytesColumn,
        ResetColumn,
        AccessColumn,
        DescriptionColumn,
        ColumnCount
    };

    /// bool: a register or a field differs from its reset value, or a register below a group does.
    static constexpr int ChangedRole = Qt::UserRole + 100;

    /// @p edits must live as long as this model.
    explicit DeviceTreeModel(DeviceEdits& edits, QObject* parent = nullptr);

    const Device& device() const;
    const DeviceState& state() const;

    static TreePlace placeOf(const QModelIndex& index);
    QModelIndex indexOf(const TreePlace& place, int column = NameColumn) const;
    /// The register or field of a place; invalid for a group.
    PathTarget targetOf(const TreePlace& place) const;
    /// Such as "DMA.CH[2].CTRL.EN".
    QString pathOf(const TreePlace& place) const;
    /// How many registers at or below a node differ from their reset values.
    int changedCount(int node) const { return m_changedBelow.at(node); }

    /// Makes whoever shows the rows read all of them anew: far less work than to take many away one by one.
    void reread();

    NumberBase base() const { return m_base; }
    void setBase(NumberBase base);
    /// The fixed-pitch font of addresses and values, and the height of a row that an editor fits into.
    void setLook(const QFont& numberFont, int rowHeight);

    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QVariant nameData(const TreePlace& place, int role) const;
    QVariant valueData(const QModelIndex& index, const PathTarget& target, int role) const;
    QVariant bytesData(const QModelIndex& index, int registerIndex, int role) const;
    QString plainText(const TreePlace& place, int column) const;
    QString groupText(int nodeIndex, int column) const;
    QString description(const TreePlace& place) const;
    QVariant font(const TreePlace& place, int column) const;
    bool isChanged(const TreePlace& place) const;
    bool hasBytes(const TreePlace& place) const;

    void countAll();
    void updateRegister(int registerIndex);
    void updateAll();
    void addChange(int registerIndex, int difference);
    void tellChange(int node);

    DeviceEdits& m_edits;
    QVector<int> m_changedBelow;
    QVector<bool> m_changed;
    QFont m_numberFont;
    QIcon m_bitsIcon;
    QSize m_rowSize;
    NumberBase m_base = NumberBase::Hexadecimal;
};

} // namespace registers
