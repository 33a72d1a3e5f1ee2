// SPDX-License-Identifier: MIT
#pragma once

#include "tree/DeviceTreeModel.h"
#include "tree/ExpandedRows.h"

#include <QTimer>
#include <QWidget>

#include <memory>

QT_BEGIN_NAMESPACE
class QLabel;
class QLineEdit;
class QTreeView;
QT_END_NAMESPACE

namespace registers {

class DeviceEdits;
class DeviceFilterModel;

/// The tree of a device, with its values to be edited, and the line that filters it.
class DevicePanel : public QWidget
{
    Q_OBJECT

public:
    explicit DevicePanel(QWidget* parent = nullptr);
    ~DevicePanel() override;

    /// Shows another device. @p edits must live until the next call, or as long as this widget.
    void setEdits(DeviceEdits& edits);

    /// The row that is current; the device itself when none is.
    TreePlace currentPlace() const;
    /// Makes a row current and visible. A filter that hides it is cleared.
    void setCurrentPlace(const TreePlace& place);

    /// Shows what the current row holds.
    void expandCurrent();

    NumberBase base() const { return m_base; }
    /// The base of all values and reset values.
    void setBase(NumberBase base);
    bool changesOnly() const;
    void setChangesOnly(bool changesOnly);

    /// Opens the editor of the current row's value, or turns its bit over. False when it cannot be edited.
    bool editValue();
    /// Opens the bit dialog on the current row's register, or the one that its field is in; writes what it gives.
    /// False when there is none that can be written.
    bool editBits();
    /// The register that editBits() would edit, or -1.
    int registerOfBits() const;
    /// The selected rows as text: one line each, in the tree's order, with a tab between columns.
    QString selectedText() const;
    /// Puts them on the clipboard.
    void copySelection() const;
    void expandAll();

    /// The width that shows addresses and values, and names of a usual length.
    int preferredWidth() const;

    QTreeView* view() const { return m_view; }
    QLineEdit* filterEdit() const { return m_filterEdit; }
    /// Puts the cursor into the filter line.
    void focusFilter();
    /// Makes the next match of the filter current; after the last one the first.
    void findNext();

Q_SIGNALS:
    void currentPlaceChanged(const registers::TreePlace& place);
    /// Something else than setChangesOnly() has ended that.
    void changesOnlyChanged(bool changesOnly);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void initView();
    void initFilter();
    bool filterKeyPressed(int key);
    bool toggleBit();
    void applyFilter();
    void showFiltered();
    void keepCurrent(const TreePlace& place);
    void updateColumns();
    void reportCurrent();

    QLineEdit* m_filterEdit;
    QTreeView* m_view;
    QLabel* m_noHits;
    std::unique_ptr<DeviceTreeModel> m_model;
    std::unique_ptr<DeviceFilterModel> m_filter;
    QTimer m_filterDelay;
    ExpandedRows m_expanded;
    TreePlace m_reported;
    NumberBase m_base = NumberBase::Hexadecimal;
};

} // namespace registers
