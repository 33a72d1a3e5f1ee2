// SPDX-License-Identifier: MIT
#pragma once

#include "device/Device.h"

#include <QAbstractItemModel>
#include <QFont>

namespace registers {

class DeviceState;

/// The peripherals, clusters and registers of a device with their addresses and values.
///
/// An index holds the number of its node, so finding a row, a parent or a child looks nothing up.
class DeviceTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Column { NameColumn, AddressColumn, ValueColumn, ColumnCount };

    /// bool: a register differs from its reset value, or one below a group does.
    static constexpr int ChangedRole = Qt::UserRole;

    /// @p state must live as long as this model.
    explicit DeviceTreeModel(const DeviceState& state, QObject* parent = nullptr);

    const Device& device() const;

    static int nodeOf(const QModelIndex& index);
    QModelIndex indexOfNode(int node, int column = NameColumn) const;
    /// How many registers at or below a node differ from their reset values.
    int changedCount(int node) const { return m_changedBelow.at(node); }

    /// The fixed-pitch font of addresses and values.
    void setNumberFont(const QFont& font) { m_numberFont = font; }

    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void countAll();
    void updateRegister(int registerIndex);
    void updateAll();
    void addChange(int registerIndex, int difference);
    QString text(const Node& node, int changed, int column) const;
    QString toolTip(int node) const;

    const DeviceState& m_state;
    QVector<int> m_changedBelow;
    QVector<bool> m_changed;
    QFont m_numberFont;
};

} // namespace registers
