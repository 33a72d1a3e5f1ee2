// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>
#include <QVector>
#include <QWidget>

#include <memory>

QT_BEGIN_NAMESPACE
class QLabel;
class QLineEdit;
class QTreeView;
QT_END_NAMESPACE

namespace registers {

class DeviceFilterModel;
class DeviceState;
class DeviceTreeModel;

/// The tree of a device with the line that filters it.
class DevicePanel : public QWidget
{
    Q_OBJECT

public:
    explicit DevicePanel(QWidget* parent = nullptr);
    ~DevicePanel() override;

    /// Shows another device. @p state must live until the next call, or as long as this widget.
    void setState(const DeviceState& state);

    /// The node that is current; the device itself when none is.
    int currentNode() const;
    /// Makes a node current and visible. A filter that hides it is cleared.
    void setCurrentNode(int node);

    /// The width that shows addresses and values, and names of a usual length.
    int preferredWidth() const;

    QTreeView* view() const { return m_view; }
    QLineEdit* filterEdit() const { return m_filterEdit; }
    /// Puts the cursor into the filter line.
    void focusFilter();

Q_SIGNALS:
    void currentNodeChanged(int node);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void initView();
    void initFilter();
    void applyFilter();
    void showHits();
    void restoreExpanded();
    void updateColumns();
    void reportCurrent();

    QLineEdit* m_filterEdit;
    QTreeView* m_view;
    QLabel* m_noHits;
    std::unique_ptr<DeviceTreeModel> m_model;
    std::unique_ptr<DeviceFilterModel> m_filter;
    QTimer m_filterDelay;
    QVector<int> m_expandedBefore; ///< nodes that were open before the filter
    int m_reportedNode = 0;
};

} // namespace registers
