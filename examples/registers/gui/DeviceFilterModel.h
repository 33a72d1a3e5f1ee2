// SPDX-License-Identifier: MIT
#pragma once

#include <QSortFilterProxyModel>
#include <QVector>

namespace registers {

class DeviceTreeModel;

/// The part of the device tree that a text is found in, with everything above and below it.
///
/// Every word must be found in the path. A word that begins with "0x" is looked for in the address as well. All
/// nodes are judged once for each text, so that the rows themselves are only looked up.
class DeviceFilterModel : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit DeviceFilterModel(QObject* parent = nullptr);

    /// @p model must live as long as this model, or until another is set.
    void setDeviceModel(DeviceTreeModel* model);
    void setText(const QString& text);
    bool isFiltering() const { return !m_words.isEmpty(); }

    /// The nodes that match without their parent matching, in the tree's order; empty without a text.
    const QVector<int>& hits() const { return m_hits; }
    /// How many registers are left.
    int registerCount() const { return m_registerCount; }

    QModelIndex indexOfNode(int node) const;
    int nodeOf(const QModelIndex& index) const;

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;

private:
    void judgeNodes();
    void acceptParents(int node);
    bool matches(const QString& path, const QString& address) const;

    DeviceTreeModel* m_model = nullptr;
    QVector<QString> m_paths;
    QStringList m_words;
    QVector<bool> m_accepted;
    QVector<int> m_hits;
    int m_registerCount = 0;
};

} // namespace registers
