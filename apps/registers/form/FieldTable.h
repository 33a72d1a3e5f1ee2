// SPDX-License-Identifier: MIT
#pragma once

#include "text/NumberText.h"

#include <QVector>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QGridLayout;
class QLabel;
QT_END_NAMESPACE

namespace registers {

class ChangeMark;
class ValueEditor;
struct Field;
struct Register;

/// The fields of a register, one a row: bits, name, value, and what there is to say about it.
class FieldTable : public QWidget
{
    Q_OBJECT

public:
    /// @p reg must live as long as this widget.
    FieldTable(const Register& reg, NumberBase base, QWidget* parent = nullptr);

    /// Shows the fields of a register that holds @p registerValue.
    void setRegisterValue(quint64 registerValue);
    void setBase(NumberBase base);

    /// Tells one field's row from the others by its ground; -1 for none.
    void setMarkedRow(int fieldIndex);

    /// The editor of a field; null for one that lies outside the register.
    ValueEditor* editor(int fieldIndex) const;
    /// Where a field's row is drawn.
    QRect rowRect(int fieldIndex) const;

Q_SIGNALS:
    void fieldEdited(int fieldIndex, quint64 value);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Row
    {
        ChangeMark* mark = nullptr;
        QLabel* name = nullptr;
        ValueEditor* editor = nullptr;
        QWidget* remarks = nullptr;
    };

    void addHeader();
    void addRow(int fieldIndex, NumberBase base);
    QLabel* makeName(const Field& field);
    ValueEditor* makeEditor(const Field& field, NumberBase base);
    QWidget* makeRemarks(const Field& field);
    QColor groundOf(int fieldIndex) const;
    void updateRow(int fieldIndex, quint64 registerValue);

    const Register& m_register;
    QGridLayout* m_grid;
    QVector<Row> m_rows;
    int m_markedRow = -1;
};

} // namespace registers
