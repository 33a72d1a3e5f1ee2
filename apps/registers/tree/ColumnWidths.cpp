// SPDX-License-Identifier: MIT
#include "tree/ColumnWidths.h"

#include "look/Theme.h"
#include "text/Numbers.h"
#include "tree/DeviceTreeModel.h"

#include <QHeaderView>
#include <QTreeView>

#include <algorithm>

namespace registers {

namespace {

constexpr int kColumnMargin = 14;
constexpr int kNameLength = 14;

} // namespace

void fitColumns(QTreeView& view, const DeviceTreeModel& model)
{
    QFont numbers = numberFont(view.font());
    numbers.setBold(true);
    const QFontMetrics metrics(numbers);
    int largestSize = 1;
    for (const Register& reg : model.device().registers()) {
        largestSize = std::max<int>(largestSize, reg.size);
    }
    const QString address = addressText(0);
    const QString value = paddedNumber(bitMask(largestSize), largestSize, model.base());
    const int valueWidth = metrics.horizontalAdvance(value.size() > address.size() ? value : address) + kColumnMargin;
    QHeaderView* header = view.header();
    header->resizeSection(DeviceTreeModel::NameColumn,
                          view.parentWidget()->fontMetrics().horizontalAdvance(QString(kNameLength, QLatin1Char('N'))) +
                              3 * kIndentation);
    header->resizeSection(DeviceTreeModel::AddressColumn, metrics.horizontalAdvance(address) + kColumnMargin);
    header->resizeSection(DeviceTreeModel::ValueColumn, valueWidth + metrics.horizontalAdvance(QLatin1Char('0')));
    header->resizeSection(DeviceTreeModel::BytesColumn, header->sectionSizeHint(DeviceTreeModel::BytesColumn));
    header->resizeSection(DeviceTreeModel::ResetColumn, valueWidth);
    header->resizeSection(
        DeviceTreeModel::AccessColumn,
        view.parentWidget()->fontMetrics().horizontalAdvance(DeviceTreeModel::tr("read, write once")) + kColumnMargin);
}

} // namespace registers
