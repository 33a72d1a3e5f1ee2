// SPDX-License-Identifier: MIT
#include "tree/DeviceFilterModel.h"

#include "device/DeviceState.h"
#include "text/Numbers.h"

#include <algorithm>

namespace registers {

namespace {

constexpr int kHeldMs = 100; ///< between looks at whether the rows may change

} // namespace

DeviceFilterModel::DeviceFilterModel(QObject* parent)
    : QSortFilterProxyModel(parent)
{
    setDynamicSortFilter(false);
    m_refilter.setSingleShot(true);
    connect(&m_refilter, &QTimer::timeout, this, &DeviceFilterModel::followChanges);
}

void DeviceFilterModel::followChanges()
{
    if (m_isHeld && m_isHeld()) {
        m_refilter.start(kHeldMs);
        return;
    }
    refilter();
    Q_EMIT refiltered();
}

void DeviceFilterModel::setDeviceModel(DeviceTreeModel* model)
{
    m_model = model;
    m_paths.clear();
    m_paths.reserve(device().nodes().size());
    for (int node = 0; node < device().nodes().size(); ++node) {
        m_paths.append(device().nodePath(node));
    }
    m_firstField.clear();
    m_firstField.reserve(device().registerCount());
    int fieldCount = 0;
    for (const Register& reg : device().registers()) {
        m_firstField.append(fieldCount);
        fieldCount += static_cast<int>(reg.fields.size());
    }
    judgeAll();
    setSourceModel(model);
    const auto refilterLater = [this] {
        if (m_changesOnly) {
            m_refilter.start(0);
        }
    };
    connect(&model->state(), &DeviceState::registerChanged, this, refilterLater);
    connect(&model->state(), &DeviceState::allChanged, this, refilterLater);
}

void DeviceFilterModel::setText(const QString& text)
{
    if (text != m_text) {
        m_text = text;
        m_words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        refilter();
    }
}

void DeviceFilterModel::setChangesOnly(bool changesOnly)
{
    if (changesOnly != m_changesOnly) {
        m_changesOnly = changesOnly;
        refilter();
    }
}

void DeviceFilterModel::refilter()
{
    if (m_model) {
        judgeAll();
        m_model->reread();
    }
}

bool DeviceFilterModel::matches(const QString& path, const QString& address) const
{
    return std::all_of(m_words.begin(), m_words.end(), [&](const QString& word) {
        return path.contains(word, Qt::CaseInsensitive) || (word.startsWith(QLatin1String("0x"), Qt::CaseInsensitive) &&
                                                            address.contains(word, Qt::CaseInsensitive));
    });
}

bool DeviceFilterModel::matchesField(const QString& path, const Field& field) const
{
    return std::all_of(m_words.begin(), m_words.end(), [&](const QString& word) {
        return field.name.contains(word, Qt::CaseInsensitive) || path.contains(word, Qt::CaseInsensitive) ||
               (word.contains(QLatin1Char('.')) &&
                QString(path + QLatin1Char('.') + field.name).contains(word, Qt::CaseInsensitive));
    });
}

void DeviceFilterModel::judgeAll()
{
    m_hits.clear();
    m_registerCount = 0;
    m_accepted.fill(false, device().nodes().size());
    m_acceptedFields.fill(false, device().fieldCount());
    m_accepted[Device::kRootNode] = true;
    QVector<bool> matched(device().nodes().size(), m_words.isEmpty());
    for (int node = Device::kRootNode + 1; node < device().nodes().size(); ++node) {
        const Node& judged = device().node(node);
        const bool isBelowMatch = matched.at(judged.parent);
        matched[node] = isBelowMatch || matches(m_paths.at(node), addressText(judged.address));
        if (judged.kind == NodeKind::Register) {
            judgeRegister(node, matched.at(node), isBelowMatch);
        } else if (matched.at(node) && !m_changesOnly) {
            acceptWithParents(node);
            if (!isBelowMatch) {
                m_hits.append(TreePlace{node});
            }
        }
    }
}

void DeviceFilterModel::judgeRegister(int node, bool matches, bool isBelowMatch)
{
    const int index = device().node(node).registerIndex;
    const Register& reg = device().registerAt(index);
    if (m_changesOnly && !m_model->state().isModified(index)) {
        return;
    }
    if (matches && (m_changesOnly || !isBelowMatch)) {
        m_hits.append(TreePlace{node});
    }
    bool isAccepted = matches;
    for (int i = 0; i < reg.fields.size(); ++i) {
        if ((matches || matchesField(m_paths.at(node), reg.fields.at(i))) &&
            (!m_changesOnly || m_model->state().isFieldModified(index, i))) {
            m_acceptedFields[m_firstField.at(index) + i] = true;
            isAccepted = true;
            if (!matches) {
                m_hits.append(TreePlace{node, i});
            }
        }
    }
    if (isAccepted) {
        acceptWithParents(node);
        ++m_registerCount;
    }
}

void DeviceFilterModel::acceptWithParents(int node)
{
    for (int above = node; !m_accepted.at(above); above = device().node(above).parent) {
        m_accepted[above] = true;
    }
}

bool DeviceFilterModel::filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const
{
    const Node& parent = device().node(DeviceTreeModel::placeOf(sourceParent).node);
    return parent.kind == NodeKind::Register ? m_acceptedFields.at(m_firstField.at(parent.registerIndex) + sourceRow)
                                             : m_accepted.at(parent.children.at(sourceRow));
}

QModelIndex DeviceFilterModel::indexOf(const TreePlace& place) const
{
    return m_model ? mapFromSource(m_model->indexOf(place)) : QModelIndex();
}

TreePlace DeviceFilterModel::placeOf(const QModelIndex& index) const
{
    return DeviceTreeModel::placeOf(mapToSource(index));
}

} // namespace registers
