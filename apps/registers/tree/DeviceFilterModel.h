// SPDX-License-Identifier: MIT
#pragma once

#include "tree/DeviceTreeModel.h"

#include <QSortFilterProxyModel>
#include <QTimer>
#include <QVector>

#include <functional>
#include <utility>

namespace registers {

/// The part of the device tree that a text is found in, that has changed, or both, with everything above it.
///
/// Every word must be found in the path. A word that begins with "0x" is looked for in the address as well. What a
/// match holds is shown too. All rows are judged once for each text or change, so that they are only looked up later.
class DeviceFilterModel : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit DeviceFilterModel(QObject* parent = nullptr);

    /// @p model must live as long as this model, or until another is set.
    void setDeviceModel(DeviceTreeModel* model);
    /// The device of that model.
    const Device& device() const { return m_model->device(); }
    QString text() const { return m_text; }
    void setText(const QString& text);
    /// Leaves only what differs from its reset value; the rows follow every change.
    void setChangesOnly(bool changesOnly);
    bool changesOnly() const { return m_changesOnly; }
    /// While @p isHeld answers true, changed values lead to no other rows: an open editor would lose its own.
    void setHeldWhile(std::function<bool()> isHeld) { m_isHeld = std::move(isHeld); }
    bool isFiltering() const { return m_changesOnly || !m_words.isEmpty(); }

    /// What matches without its parent matching, in the tree's order; empty when nothing is filtered.
    const QVector<TreePlace>& hits() const { return m_hits; }
    /// How many registers are left.
    int registerCount() const { return m_registerCount; }

    QModelIndex indexOf(const TreePlace& place) const;
    TreePlace placeOf(const QModelIndex& index) const;

Q_SIGNALS:
    /// Changed values have led to other rows.
    void refiltered();

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;

private:
    void followChanges();
    void refilter();
    void judgeAll();
    void judgeRegister(int node, bool matches, bool isBelowMatch);
    void acceptWithParents(int node);
    bool matches(const QString& path, const QString& address) const;
    bool matchesField(const QString& path, const Field& field) const;

    DeviceTreeModel* m_model = nullptr;
    QTimer m_refilter; ///< gathers the changes of one turn
    std::function<bool()> m_isHeld;
    QVector<QString> m_paths;
    QVector<int> m_firstField; ///< of a register, in m_acceptedFields
    QString m_text;
    QStringList m_words; ///< of the text
    QVector<bool> m_accepted;
    QVector<bool> m_acceptedFields;
    QVector<TreePlace> m_hits;
    int m_registerCount = 0;
    bool m_changesOnly = false;
};

} // namespace registers
