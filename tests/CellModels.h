// SPDX-License-Identifier: MIT
#pragma once

#include <Tessera/views/ItemRoles.h>
#include <Tessera/views/TbModel.h>
#include <Tessera/views/TrModel.h>

#include <QDebug>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

//! Host models whose cells are data, and which write down every attempt to change them.
namespace CellModels {

//! What one cell answers by role, its value under Qt::EditRole among it.
struct Cell
{
    QMap<int, QVariant> answers;
    bool disabled = false; //!< the cell is shown, but not enabled
    bool refuses = false;  //!< setData() for Qt::EditRole answers false and changes nothing
};

using Answers = QMap<int, QVariant>;
using Row = QVector<Cell>;

//! A variant with its type, exact for everything but the last digits of a double.
inline QString spelled(const QVariant& value)
{
    QString text;
    QDebug(&text).nospace() << value;
    return text.trimmed();
}

//! The same type and the same value, where QVariant's own comparison converts.
inline bool identical(const QVariant& first, const QVariant& second)
{
    return first.userType() == second.userType() && first.isValid() == second.isValid() && first == second;
}

/*!
    The same cells as a table or as the rows below one branch of a tree, so that one test serves both. The cells
    are told by row and column, whatever stands above them.
*/
class CellHost
{
public:
    virtual ~CellHost() = default;

    virtual QAbstractItemModel* model() = 0;
    virtual QModelIndex at(int nRow, int nColumn = 0) const = 0;
    virtual Cell& cell(int nRow, int nColumn = 0) = 0;
    virtual void addRow(int nRow) = 0;  //!< an empty row before \a nRow, properly announced
    virtual void dropRow(int nRow) = 0; //!< properly announced

    void answer(int nRow, int nColumn, const Answers& answers) { cell(nRow, nColumn).answers = answers; }

    //! Changes one answer and tells the views.
    void change(int nRow, int nColumn, int nRole, const QVariant& value)
    {
        cell(nRow, nColumn).answers[nRole] = value;
        Q_EMIT model()->dataChanged(at(nRow, nColumn), at(nRow, nColumn));
    }

    QVariant value(int nRow, int nColumn = 0) { return cell(nRow, nColumn).answers.value(Qt::EditRole); }

    //! Every call of setData() since the last one of this, in order, as "row,column role variant".
    QStringList takeWrites()
    {
        QStringList writes;
        writes.swap(m_writes);
        return writes;
    }

protected:
    QStringList m_writes;
};

template <class Base>
class CellModelOf : public Base, public CellHost
{
public:
    using Base::Base;

    QAbstractItemModel* model() override { return this; }

    QVariant data(const QModelIndex& index, int role) const override
    {
        if (const Cell* pCell = find(index)) {
            const auto answer = pCell->answers.constFind(role);
            if (answer != pCell->answers.constEnd())
                return *answer;
        }
        return Base::data(index, role);
    }

    Qt::ItemFlags flags(const QModelIndex& index) const override
    {
        const Cell* const pCell = find(index);
        Qt::ItemFlags tFlags = Base::flags(index);
        tFlags.setFlag(Qt::ItemIsEnabled, tFlags.testFlag(Qt::ItemIsEnabled) && !(pCell && pCell->disabled));
        return tFlags;
    }

    bool setData(const QModelIndex& index, const QVariant& value, int role) override
    {
        m_writes << QStringLiteral("%1,%2 %3 %4").arg(index.row()).arg(index.column()).arg(role).arg(spelled(value));
        Cell* const pCell = const_cast<Cell*>(find(index));
        if (role != Qt::EditRole || !pCell)
            return Base::setData(index, value, role);
        if (pCell->refuses)
            return false;
        pCell->answers[Qt::EditRole] = value;
        Q_EMIT this->dataChanged(index, index, {role});
        return true;
    }

protected:
    virtual const Cell* find(const QModelIndex& index) const = 0;
};

//! A flat table.
class CellTable : public CellModelOf<nsUI::TbModel>
{
public:
    CellTable(int nRows, int nColumns, QObject* parent = nullptr)
        : CellModelOf(parent)
        , m_nColumns(nColumns)
        , m_rows(nRows, Row(nColumns))
    {
    }

    int rowCount(const QModelIndex& parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
    }
    int columnCount(const QModelIndex& parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : m_nColumns;
    }

    QModelIndex at(int nRow, int nColumn = 0) const override { return index(nRow, nColumn); }
    Cell& cell(int nRow, int nColumn = 0) override { return m_rows[nRow][nColumn]; }

    void addRow(int nRow) override
    {
        beginInsertRows(QModelIndex(), nRow, nRow);
        m_rows.insert(nRow, Row(m_nColumns));
        endInsertRows();
    }
    void dropRow(int nRow) override
    {
        beginRemoveRows(QModelIndex(), nRow, nRow);
        m_rows.remove(nRow);
        endRemoveRows();
    }
    void reset()
    {
        beginResetModel();
        endResetModel();
    }

protected:
    const Cell* find(const QModelIndex& index) const override
    {
        return index.isValid() && index.row() < m_rows.size() ? &m_rows[index.row()][index.column()] : nullptr;
    }

private:
    int m_nColumns;
    QVector<Row> m_rows;
};

//! Two branches; the cells are the rows below the second, and the first has rows of the same places.
class CellTree : public CellModelOf<nsUI::TrModel>
{
public:
    CellTree(int nRows, int nColumns, QObject* parent = nullptr)
        : CellModelOf(parent)
        , m_nColumns(nColumns)
        , m_branches{{Row(nColumns), QVector<Row>(nRows, Row(nColumns))},
                     {Row(nColumns), QVector<Row>(nRows, Row(nColumns))}}
    {
    }

    QModelIndex branch(int nBranch, int nColumn = 0) const { return index(nBranch, nColumn, QModelIndex()); }

    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override
    {
        if (!hasIndex(row, column, parent))
            return {};
        return createIndex(row, column, parent.isValid() ? static_cast<quintptr>(parent.row()) + 1 : quintptr(0));
    }
    QModelIndex parent(const QModelIndex& child) const override
    {
        if (!child.isValid() || child.internalId() == 0)
            return {};
        return createIndex(static_cast<int>(child.internalId()) - 1, 0, quintptr(0));
    }
    using QObject::parent;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override
    {
        if (!parent.isValid())
            return static_cast<int>(m_branches.size());
        return parent.internalId() == 0 && parent.column() == 0 ? static_cast<int>(m_branches[parent.row()].rows.size())
                                                                : 0;
    }
    int columnCount(const QModelIndex& parent = QModelIndex()) const override
    {
        return parent.isValid() && parent.internalId() != 0 ? 0 : m_nColumns;
    }

    QModelIndex at(int nRow, int nColumn = 0) const override { return index(nRow, nColumn, branch(1)); }
    Cell& cell(int nRow, int nColumn = 0) override { return m_branches[1].rows[nRow][nColumn]; }
    Cell& branchCell(int nBranch, int nColumn = 0) { return m_branches[nBranch].own[nColumn]; }

    void addRow(int nRow) override
    {
        beginInsertRows(branch(1), nRow, nRow);
        m_branches[1].rows.insert(nRow, Row(m_nColumns));
        endInsertRows();
    }
    void dropRow(int nRow) override
    {
        beginRemoveRows(branch(1), nRow, nRow);
        m_branches[1].rows.remove(nRow);
        endRemoveRows();
    }

protected:
    const Cell* find(const QModelIndex& index) const override
    {
        if (!index.isValid())
            return nullptr;
        if (index.internalId() == 0)
            return &m_branches[index.row()].own[index.column()];
        const QVector<Row>& rows = m_branches[static_cast<int>(index.internalId()) - 1].rows;
        return index.row() < rows.size() ? &rows[index.row()][index.column()] : nullptr;
    }

private:
    struct Branch
    {
        Row own;
        QVector<Row> rows;
    };

    int m_nColumns;
    QVector<Branch> m_branches;
};

} // namespace CellModels
