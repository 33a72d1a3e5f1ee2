// SPDX-License-Identifier: MIT
#include "tree/DevicePanel.h"

#include "device/DeviceState.h"
#include "editors/ValueDelegate.h"
#include "look/Theme.h"
#include "session/DeviceEdits.h"
#include "text/Numbers.h"
#include "tree/ColumnWidths.h"
#include "tree/DeviceFilterModel.h"
#include "tree/FilterEdit.h"
#include "tree/OpenEditor.h"
#include "tree/RowText.h"

#include <Tessera/views/CBitDialog.h>
#include <Tessera/views/ItemRoles.h>
#include <Tessera/views/TrView.h>
#include <Tessera/widgets/CAutoCursor.h>

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>

namespace registers {

namespace {

constexpr int kMargin = 8;
constexpr int kFilterDelayMs = 60;
constexpr int kRowMargin = 8;
constexpr int kMarkSide = 16;

} // namespace

DevicePanel::DevicePanel(QWidget* parent)
    : QWidget(parent)
    , m_filterEdit(new FilterEdit(this))
    , m_view(new nsUI::TrView(this))
    , m_noHits(new QLabel(m_view))
    , m_filter(std::make_unique<DeviceFilterModel>())
    , m_expanded(*m_view)
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
    m_filterEdit->installEventFilter(this);
    m_filterDelay.setSingleShot(true);
    m_filterDelay.setInterval(kFilterDelayMs);
    connect(m_filterEdit, &QLineEdit::textChanged, &m_filterDelay, QOverload<>::of(&QTimer::start));
    connect(&m_filterDelay, &QTimer::timeout, this, &DevicePanel::applyFilter);
    m_filter->setHeldWhile([this] { return isEditing(*m_view); });
    connect(m_filter.get(), &DeviceFilterModel::refiltered, this, &DevicePanel::showFiltered);
}

void DevicePanel::initView()
{
    m_view->setUniformRowHeights(true);
    m_view->setAllColumnsShowFocus(true);
    m_view->setAlternatingRowColors(true);
    m_view->setIndentation(kIndentation);
    m_view->setIconSize(QSize(kMarkSide, kMarkSide));
    m_view->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    // Not on becoming current: walking through the tree would open one editor after the other.
    m_view->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked |
                            QAbstractItemView::EditKeyPressed | QAbstractItemView::AnyKeyPressed);
    m_view->setExpandsOnDoubleClick(false); // a double click edits; the arrows open and close
    m_view->setItemDelegate(new ValueDelegate(m_view));
    m_view->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_view->installEventFilter(this);
    m_view->setModel(m_filter.get());
    m_view->header()->setStretchLastSection(true);
    m_view->header()->setHighlightSections(false);
    m_view->header()->setDefaultAlignment(Qt::AlignLeading | Qt::AlignVCenter);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &DevicePanel::reportCurrent);

    m_noHits->setAlignment(Qt::AlignCenter);
    m_noHits->hide();
    auto* over = new QVBoxLayout(m_view);
    over->addWidget(m_noHits);
}

void DevicePanel::setEdits(DeviceEdits& edits)
{
    m_filterEdit->clear();
    m_filterDelay.stop();
    m_expanded.forget();
    m_filter->setText(QString());
    m_filter->setChangesOnly(false);
    Q_EMIT changesOnlyChanged(false);
    auto model = std::make_unique<DeviceTreeModel>(edits);
    model->setBase(m_base);
    m_filter->setDeviceModel(model.get());
    m_model = std::move(model);
    m_reported = {};
    m_noHits->hide();
    updateColumns();
}

// --- Look -----------------------------------------------------------------------------------------------------------

void DevicePanel::setBase(NumberBase base)
{
    finishEditing(*m_view);
    m_base = base;
    if (m_model) {
        m_model->setBase(base);
        updateColumns();
    }
}

void DevicePanel::updateColumns()
{
    if (!m_model) {
        return;
    }
    m_model->setLook(numberFont(m_view->font()), fontMetrics().height() + kRowMargin);
    fitColumns(*m_view, *m_model);
}

int DevicePanel::preferredWidth() const
{
    int width = style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 2 * kMargin;
    for (int column = 0; column < DeviceTreeModel::DescriptionColumn; ++column) {
        width += m_view->header()->sectionSize(column);
    }
    return width;
}

void DevicePanel::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        updateColumns();
    }
}

// --- The current row ------------------------------------------------------------------------------------------------

TreePlace DevicePanel::currentPlace() const
{
    return m_model ? m_filter->placeOf(m_view->currentIndex()) : TreePlace();
}

void DevicePanel::setCurrentPlace(const TreePlace& place)
{
    if (!m_filter->indexOf(place).isValid() && m_filter->isFiltering()) {
        m_filterEdit->clear();
        m_filterDelay.stop();
        m_filter->setChangesOnly(false);
        m_filter->setText(QString());
        showFiltered();
        Q_EMIT changesOnlyChanged(false);
    }
    const QModelIndex index = m_filter->indexOf(place);
    m_view->setCurrentIndex(index);
    m_view->scrollTo(index);
}

void DevicePanel::expandCurrent()
{
    m_view->expand(m_view->currentIndex());
}

void DevicePanel::reportCurrent()
{
    // A filter that hides the current row moves the view's current index; the form keeps what it shows.
    const TreePlace place = currentPlace();
    if (place.node != Device::kRootNode && place != m_reported) {
        m_reported = place;
        Q_EMIT currentPlaceChanged(place);
    }
}

bool DevicePanel::toggleBit()
{
    const QModelIndex value = m_view->currentIndex().siblingAtColumn(DeviceTreeModel::ValueColumn);
    if (!value.flags().testFlag(Qt::ItemIsUserCheckable)) {
        return false;
    }
    const bool isSet = value.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    return m_filter->setData(value, isSet ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

bool DevicePanel::editValue()
{
    if (toggleBit()) {
        return true;
    }
    const QModelIndex value = m_view->currentIndex().siblingAtColumn(DeviceTreeModel::ValueColumn);
    if (!value.flags().testFlag(Qt::ItemIsEditable)) {
        return false;
    }
    m_view->setCurrentIndex(value);
    m_view->edit(value);
    return true;
}

int DevicePanel::registerOfBits() const
{
    const TreePlace place = m_reported; // the row that is current, or was before a filter has hidden it
    if (!m_model || !m_model->targetOf(place).isValid()) {
        return -1;
    }
    const QModelIndex bytes = m_model->indexOf({place.node}, DeviceTreeModel::BytesColumn);
    return bytes.data(nsUI::e_Role_ItemType).toInt() == nsUI::e_Item_ByteArray ? m_model->targetOf(place).registerIndex
                                                                               : -1;
}

bool DevicePanel::editBits()
{
    if (registerOfBits() < 0) {
        return false;
    }
    const TreePlace place{m_reported.node};
    const QPersistentModelIndex bytes = m_model->indexOf(place, DeviceTreeModel::BytesColumn);
    const QByteArray edited = nsUI::CBitDialog::getByteArray(
        bytes.data(Qt::EditRole).toByteArray(), bytes.data(nsUI::e_Role_BitDescriptions).value<QMap<int, QString>>(),
        window(), tr("Bits of %1").arg(m_model->pathOf(place)));
    if (!edited.isNull() && bytes.isValid()) {
        m_model->setData(bytes, edited, Qt::EditRole);
    }
    return true;
}

void DevicePanel::copySelection() const
{
    const QString text = selectedText();
    if (!text.isEmpty()) {
        QGuiApplication::clipboard()->setText(text);
    }
}

void DevicePanel::expandAll()
{
    const nsUI::CAutoCursor waiting(Qt::WaitCursor);
    m_view->expandAll();
}

QString DevicePanel::selectedText() const
{
    QVector<TreePlace> places;
    for (const QItemSelectionRange& range : m_view->selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            places.append(m_filter->placeOf(m_filter->index(row, 0, range.parent())));
        }
    }
    return rowsAsText(*m_model, places);
}

// --- The filter -----------------------------------------------------------------------------------------------------

bool DevicePanel::changesOnly() const
{
    return m_filter->changesOnly();
}

void DevicePanel::setChangesOnly(bool changesOnly)
{
    if (!m_model || changesOnly == m_filter->changesOnly()) {
        return;
    }
    finishEditing(*m_view);
    m_expanded.remember(*m_filter);
    m_filter->setChangesOnly(changesOnly);
    showFiltered();
}

void DevicePanel::focusFilter()
{
    m_filterEdit->setFocus(Qt::ShortcutFocusReason);
    m_filterEdit->selectAll();
}

void DevicePanel::findNext()
{
    m_filterDelay.stop();
    applyFilter();
    const QVector<TreePlace>& hits = m_filter->hits();
    if (hits.isEmpty()) {
        focusFilter();
        return;
    }
    setCurrentPlace(hits.at((hits.indexOf(m_reported) + 1) % hits.size()));
}

void DevicePanel::applyFilter()
{
    if (m_model && m_filterEdit->text() != m_filter->text()) {
        finishEditing(*m_view);
        m_expanded.remember(*m_filter);
        m_filter->setText(m_filterEdit->text());
        showFiltered();
    }
}

void DevicePanel::showFiltered()
{
    const TreePlace current = m_reported;
    if (m_filter->isFiltering()) {
        m_expanded.expandHits(*m_filter);
    } else {
        m_expanded.restore(*m_filter);
    }
    m_noHits->setText(m_filterEdit->text().isEmpty() ? tr("Nothing has changed.") : tr("Nothing matches the filter."));
    m_noHits->setVisible(m_filter->isFiltering() && m_filter->hits().isEmpty());
    keepCurrent(current);
}

/// What is shown in the form stays current, if only it is still there.
void DevicePanel::keepCurrent(const TreePlace& place)
{
    const QModelIndex index = m_filter->indexOf(place);
    if (index.isValid()) {
        m_view->setCurrentIndex(index.siblingAtColumn(std::max(0, m_view->currentIndex().column())));
        m_view->scrollTo(index);
    } else {
        m_view->setCurrentIndex(QModelIndex()); // or the view takes the first row when it gets the focus
        m_view->scrollToTop();
    }
}

// --- Keys -----------------------------------------------------------------------------------------------------------

bool DevicePanel::filterKeyPressed(int key)
{
    switch (key) {
    case Qt::Key_Down:
        m_filterDelay.stop();
        applyFilter();
        m_view->setFocus(Qt::TabFocusReason);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        m_filterDelay.stop();
        applyFilter();
        m_view->setFocus(Qt::TabFocusReason);
        if (!m_filter->hits().isEmpty()) {
            setCurrentPlace(m_filter->hits().first());
        }
        return true;
    case Qt::Key_Escape:
        if (m_filterEdit->text().isEmpty()) {
            return false;
        }
        m_filterEdit->clear();
        return true;
    default:
        return false;
    }
}

bool DevicePanel::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress) {
        return QWidget::eventFilter(watched, event);
    }
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (watched == m_filterEdit && filterKeyPressed(key)) {
        return true;
    }
    const bool edits = key == Qt::Key_F2 || key == Qt::Key_Return || key == Qt::Key_Enter;
    if (watched == m_view && m_view->hasFocus() && // an open editor passes its keys on
        ((edits && editValue()) || (key == Qt::Key_Space && toggleBit()))) {
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace registers
