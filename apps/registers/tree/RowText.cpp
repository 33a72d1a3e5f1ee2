// SPDX-License-Identifier: MIT
#include "tree/RowText.h"

#include "device/DeviceState.h"
#include "editors/ValueCell.h"
#include "look/Access.h"
#include "text/Numbers.h"
#include "tree/DeviceTreeModel.h"

#include <QStringList>

#include <algorithm>

namespace registers {

QString registerText(const DeviceState& state, const PathTarget& target, NumberBase base, int column)
{
    const Register& reg = state.device().registerAt(target.registerIndex);
    switch (column) {
    case DeviceTreeModel::NameColumn:
        return reg.name;
    case DeviceTreeModel::AddressColumn:
        return addressText(reg.address);
    case DeviceTreeModel::ResetColumn:
        return ValueCell(state, target, base).resetText();
    case DeviceTreeModel::AccessColumn:
        return accessText(reg.access);
    case DeviceTreeModel::DescriptionColumn:
        return reg.description.simplified();
    default:
        return QString();
    }
}

QString fieldText(const DeviceState& state, const PathTarget& target, NumberBase base, int column)
{
    const Field& field = state.device().registerAt(target.registerIndex).fields.at(target.fieldIndex);
    switch (column) {
    case DeviceTreeModel::NameColumn:
        return field.name;
    case DeviceTreeModel::AddressColumn:
        return bitRangeText(field.msb(), field.lsb);
    case DeviceTreeModel::ResetColumn:
        return ValueCell(state, target, base).resetText();
    case DeviceTreeModel::AccessColumn:
        return accessText(field.access);
    case DeviceTreeModel::DescriptionColumn:
        return field.description.simplified();
    default:
        return QString();
    }
}

QVariant columnTitle(int column)
{
    switch (column) {
    case DeviceTreeModel::NameColumn:
        return DeviceTreeModel::tr("Name");
    case DeviceTreeModel::AddressColumn:
        return DeviceTreeModel::tr("Address");
    case DeviceTreeModel::ValueColumn:
        return DeviceTreeModel::tr("Value");
    case DeviceTreeModel::BytesColumn:
        return DeviceTreeModel::tr("Bits");
    case DeviceTreeModel::ResetColumn:
        return DeviceTreeModel::tr("Reset");
    case DeviceTreeModel::AccessColumn:
        return DeviceTreeModel::tr("Access");
    case DeviceTreeModel::DescriptionColumn:
        return DeviceTreeModel::tr("Description");
    default:
        return QVariant();
    }
}

QString rowsAsText(const DeviceTreeModel& model, QVector<TreePlace> places)
{
    std::sort(places.begin(), places.end(), [](const TreePlace& a, const TreePlace& b) {
        return a.node != b.node ? a.node < b.node : a.field < b.field;
    });
    QString text;
    for (const TreePlace& place : qAsConst(places)) {
        QStringList cells{model.pathOf(place)};
        for (int column = DeviceTreeModel::AddressColumn; column < DeviceTreeModel::ColumnCount; ++column) {
            if (column != DeviceTreeModel::BytesColumn) {
                cells.append(model.indexOf(place, column).data().toString());
            }
        }
        text += cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
    }
    return text;
}

} // namespace registers
