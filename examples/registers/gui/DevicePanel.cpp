// SPDX-License-Identifier: MIT
#include "gui/DevicePanel.h"

#include "device/DeviceExport.h"
#include "device/DeviceState.h"
#include "gui/DeviceFilterModel.h"
#include "gui/DeviceTreeModel.h"
#include "gui/Icons.h"
#include "gui/Theme.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

namespace registers {

namespace {

constexpr int kMargin = 8;
constexpr int kFilterDelayMs = 60;
constexpr int kAddressDigits = 8;
constexpr int kColumnMargin = 14;
constexpr int kMostHitsToOpen = 400;
constexpr int kMarkSide = 12;
constexpr int kNameLength = 10;
constexpr int kIndentation = 16;

} // namespace

DevicePanel::DevicePanel(QWidget* parent)
    : QWidget(parent)
    , m_filterEdit(new QLineEdit(this))
    , m_view(new QTreeView(this))
    , m_noHits(new QLabel(m_view))
    , m_filter(std::make_unique<DeviceFilterModel>())
{
    initFilter();
    initView();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->addWidget(m_filterEdit);
    layout->addWidget(m_view);
}

DevicePanel::~DevicePanel()
{
    m_view->setModel(nullptr);
}

void DevicePanel::initFilter()
{
    m_filterEdit->setPlaceholderText(tr("Filter by name or 0x address"));
    m_filterEdit->setToolTip(tr("Shows what has every word in its path, such as “uart ctrl”, or an address "
                                "such as “0x4000”"));
    m_filterEdit->setAcceptDrops(false); // a dropped file is for the window
    m_filterEdit->setClearButtonEnabled(true);
    m_filterEdit->addAction(lineIcon(LineIcon::Search), QLineEdit::LeadingPosition);
    m_filterEdit->installEventFilter(this);
    m_filterDelay.setSingleShot(true);
    m_filterDelay.setInterval(kFilterDelayMs);
    connect(m_filterEdit, &QLineEdit::textChanged, &m_filterDelay, QOverload<>::of(&QTimer::start));
    connect(&m_filterDelay, &QTimer::timeout, this, &DevicePanel::applyFilter);
}

void DevicePanel::initView()
{
    m_view->setUniformRowHeights(true);
    m_view->setAllColumnsShowFocus(true);
    m_view->setIndentation(kIndentation);
    m_view->setIconSize(QSize(kMarkSide, kMarkSide));
    m_view->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_view->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_view->setModel(m_filter.get());
    m_view->header()->setStretchLastSection(false);
    m_view->header()->setHighlightSections(false);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &DevicePanel::reportCurrent);

    m_noHits->setText(tr("Nothing matches the filter."));
    m_noHits->setAlignment(Qt::AlignCenter);
    m_noHits->hide();
    auto* over = new QVBoxLayout(m_view);
    over->addWidget(m_noHits);
}

void DevicePanel::setState(const DeviceState& state)
{
    m_filterEdit->clear();
    m_filterDelay.stop();
    m_expandedBefore.clear();
    m_filter->setText(QString());
    auto model = std::make_unique<DeviceTreeModel>(state);
    m_filter->setDeviceModel(model.get());
    m_model = std::move(model);
    m_reportedNode = Device::kRootNode;
    m_noHits->hide();
    updateColumns();
}

void DevicePanel::updateColumns()
{
    if (!m_model) {
        return;
    }
    QFont numbers = numberFont(m_view->font());
    m_model->setNumberFont(numbers);
    numbers.setBold(true);
    const QFontMetrics metrics(numbers);
    int largestSize = 1;
    for (const Register& reg : m_model->device().registers()) {
        largestSize = std::max<int>(largestSize, reg.size);
    }
    const QString value = hexNumber(0, std::max(kAddressDigits, hexDigits(largestSize)));
    QHeaderView* header = m_view->header();
    header->setSectionResizeMode(DeviceTreeModel::NameColumn, QHeaderView::Stretch);
    header->setSectionResizeMode(DeviceTreeModel::AddressColumn, QHeaderView::Interactive);
    header->setSectionResizeMode(DeviceTreeModel::ValueColumn, QHeaderView::Interactive);
    header->resizeSection(DeviceTreeModel::AddressColumn,
                          metrics.horizontalAdvance(hexNumber(0, kAddressDigits)) + kColumnMargin);
    header->resizeSection(DeviceTreeModel::ValueColumn, metrics.horizontalAdvance(value) + kColumnMargin);
}

int DevicePanel::preferredWidth() const
{
    const QHeaderView* header = m_view->header();
    const int names = fontMetrics().horizontalAdvance(QString(kNameLength, QLatin1Char('N')));
    return names + 3 * m_view->indentation() + header->sectionSize(DeviceTreeModel::AddressColumn) +
           header->sectionSize(DeviceTreeModel::ValueColumn) + style()->pixelMetric(QStyle::PM_ScrollBarExtent) +
           2 * kMargin;
}

int DevicePanel::currentNode() const
{
    return m_model ? m_filter->nodeOf(m_view->currentIndex()) : Device::kRootNode;
}

void DevicePanel::setCurrentNode(int node)
{
    if (!m_filter->indexOfNode(node).isValid() && !m_filterEdit->text().isEmpty()) {
        m_filterEdit->clear();
        m_filterDelay.stop();
        applyFilter();
    }
    const QModelIndex index = m_filter->indexOfNode(node);
    m_view->setCurrentIndex(index);
    m_view->scrollTo(index);
}

void DevicePanel::focusFilter()
{
    m_filterEdit->setFocus(Qt::ShortcutFocusReason);
    m_filterEdit->selectAll();
}

void DevicePanel::applyFilter()
{
    if (!m_model) {
        return;
    }
    const int current = m_reportedNode;
    if (!m_filter->isFiltering()) {
        m_expandedBefore.clear();
        for (int node = 0; node < m_model->device().nodes().size(); ++node) {
            if (!m_model->device().node(node).children.isEmpty() && m_view->isExpanded(m_filter->indexOfNode(node))) {
                m_expandedBefore.append(node);
            }
        }
    }
    m_filter->setText(m_filterEdit->text());
    if (m_filter->isFiltering()) {
        showHits();
    } else {
        restoreExpanded();
    }
    m_noHits->setVisible(m_filter->isFiltering() && m_filter->hits().isEmpty());
    // What is shown at the right stays current, if only it is still there.
    const QModelIndex index = m_filter->indexOfNode(current);
    if (index.isValid()) {
        m_view->setCurrentIndex(index);
        m_view->scrollTo(index);
    } else {
        m_view->scrollToTop();
    }
}

void DevicePanel::showHits()
{
    const int count = std::min(m_filter->hits().size(), kMostHitsToOpen);
    for (int i = 0; i < count; ++i) {
        for (int node = m_model->device().node(m_filter->hits().at(i)).parent; node > Device::kRootNode;
             node = m_model->device().node(node).parent) {
            m_view->expand(m_filter->indexOfNode(node));
        }
    }
}

void DevicePanel::restoreExpanded()
{
    m_view->collapseAll();
    for (const int node : qAsConst(m_expandedBefore)) {
        m_view->expand(m_filter->indexOfNode(node));
    }
}

void DevicePanel::reportCurrent()
{
    // A filter that hides the current row moves the view's current index; the form keeps what it shows.
    const int node = currentNode();
    if (node != Device::kRootNode && node != m_reportedNode) {
        m_reportedNode = node;
        Q_EMIT currentNodeChanged(node);
    }
}

bool DevicePanel::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_filterEdit && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Down || key == Qt::Key_Return || key == Qt::Key_Enter) {
            m_filterDelay.stop();
            applyFilter();
            m_view->setFocus(Qt::TabFocusReason);
            if (key != Qt::Key_Down && !m_filter->hits().isEmpty()) {
                setCurrentNode(m_filter->hits().first());
            }
            return true;
        }
        if (key == Qt::Key_Escape && !m_filterEdit->text().isEmpty()) {
            m_filterEdit->clear();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void DevicePanel::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        updateColumns();
    }
}

} // namespace registers
