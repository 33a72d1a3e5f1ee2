// SPDX-License-Identifier: MIT
#include "form/FieldTable.h"

#include "common/Theme.h"
#include "device/Device.h"
#include "editors/EnumBox.h"
#include "editors/EnumLabel.h"
#include "editors/NumberBox.h"
#include "look/Access.h"
#include "look/Badge.h"
#include "look/CaptionLabel.h"
#include "look/ChangeMark.h"
#include "look/Theme.h"

#include <QGridLayout>
#include <QLabel>
#include <QPainter>

namespace registers {

namespace {

enum Column { MarkColumn, BitsColumn, NameColumn, ValueColumn, RemarkColumn, ColumnCount };

constexpr int kHeaderRow = 0;
constexpr int kFirstRow = 1;
constexpr int kColumnGap = 12;
constexpr int kRowMargin = 3;
constexpr int kSideMargin = 6;
constexpr int kShortestRemark = 150;
constexpr double kStripeShare = 0.045;
constexpr double kMarkedShare = 0.18;
constexpr double kStripeRadius = 4.0;

} // namespace

FieldTable::FieldTable(const Register& reg, NumberBase base, QWidget* parent)
    : QWidget(parent)
    , m_register(reg)
    , m_grid(new QGridLayout(this))
{
    m_grid->setContentsMargins(kSideMargin, 0, kSideMargin, 0);
    m_grid->setHorizontalSpacing(kColumnGap);
    m_grid->setVerticalSpacing(0);
    m_grid->setColumnStretch(RemarkColumn, 1);
    addHeader();
    m_rows.resize(reg.fields.size());
    for (int i = 0; i < reg.fields.size(); ++i) {
        addRow(i, base);
    }
}

void FieldTable::addHeader()
{
    m_grid->addWidget(new CaptionLabel(tr("Bits"), this), kHeaderRow, BitsColumn, Qt::AlignTrailing);
    m_grid->addWidget(new CaptionLabel(tr("Field"), this), kHeaderRow, NameColumn);
    m_grid->addWidget(new CaptionLabel(tr("Value"), this), kHeaderRow, ValueColumn);
    m_grid->addWidget(new CaptionLabel(tr("Description"), this), kHeaderRow, RemarkColumn);
    m_grid->setRowMinimumHeight(kHeaderRow, fontMetrics().height() + 2 * kRowMargin);
}

void FieldTable::addRow(int fieldIndex, NumberBase base)
{
    const Field& field = m_register.fields.at(fieldIndex);
    Row& row = m_rows[fieldIndex];
    row.mark = new ChangeMark(this);
    row.name = makeName(field);
    row.editor = makeEditor(field, base);

    auto* bits = new QLabel(bitRangeText(field.msb(), field.lsb), this);
    bits->setFont(numberFont(font()));

    const int gridRow = kFirstRow + fieldIndex;
    m_grid->addWidget(row.mark, gridRow, MarkColumn, Qt::AlignCenter);
    m_grid->addWidget(bits, gridRow, BitsColumn, Qt::AlignTrailing | Qt::AlignVCenter);
    m_grid->addWidget(row.name, gridRow, NameColumn, Qt::AlignVCenter);
    if (row.editor) {
        row.editor->setContentsMargins(0, kRowMargin, 0, kRowMargin);
        row.name->setBuddy(row.editor);
        m_grid->addWidget(row.editor, gridRow, ValueColumn, Qt::AlignLeading | Qt::AlignVCenter);
        connect(row.editor, &ValueEditor::valueEdited, this,
                [this, fieldIndex](quint64 value) { Q_EMIT fieldEdited(fieldIndex, value); });
    }
    row.remarks = makeRemarks(field);
    m_grid->addWidget(row.remarks, gridRow, RemarkColumn);
}

QLabel* FieldTable::makeName(const Field& field)
{
    auto* name = new QLabel(this);
    name->setTextFormat(Qt::PlainText);
    name->setText(field.name);
    name->setAlignment(leadingAlignment(this));
    name->setToolTip(
        QStringLiteral("%1 %2\n%3").arg(field.name, bitRangeText(field.msb(), field.lsb), field.description).trimmed());
    // Room for the bold face of a changed field, so that the columns stay where they are.
    QFont bold = font();
    bold.setBold(true);
    name->setMinimumWidth(QFontMetrics(bold).horizontalAdvance(field.name));
    return name;
}

ValueEditor* FieldTable::makeEditor(const Field& field, NumberBase base)
{
    const int width = usableWidth(m_register, field);
    if (width <= 0) {
        return nullptr;
    }
    ValueEditor* editor = nullptr;
    if (field.enumeration && isWritable(field.access)) {
        editor = new EnumBox(EnumText(field.enumeration, largestFieldValue(m_register, field)), base, this);
    } else if (field.enumeration) {
        editor = new EnumLabel(EnumText(field.enumeration, largestFieldValue(m_register, field)), base, this);
    } else {
        const auto mode = isWritable(field.access) ? NumberBox::Mode::Editable : NumberBox::Mode::ReadOnly;
        editor = new NumberBox(width, base, mode, this);
    }
    editor->setObjectName(QStringLiteral("field:") + field.name);
    return editor;
}

QWidget* FieldTable::makeRemarks(const Field& field)
{
    auto* remarks = new QWidget(this);
    auto* layout = new QVBoxLayout(remarks);
    layout->setContentsMargins(0, kRowMargin, 0, kRowMargin);
    layout->setSpacing(kRowMargin);
    layout->addStretch();
    const QVector<Note> notes = fieldNotes(m_register, field);
    if (!notes.isEmpty()) {
        auto* line = new QHBoxLayout;
        for (const Note& note : notes) {
            line->addWidget(new Badge(note, remarks));
        }
        line->addStretch();
        layout->addLayout(line);
    }
    if (!field.description.isEmpty()) {
        auto* description = new QLabel(remarks);
        description->setTextFormat(Qt::PlainText);
        description->setText(field.description);
        description->setWordWrap(true);
        description->setAlignment(leadingAlignment(this));
        description->setMinimumWidth(kShortestRemark);
        layout->addWidget(description);
    }
    layout->addStretch();
    return remarks;
}

void FieldTable::setRegisterValue(quint64 registerValue)
{
    for (int i = 0; i < m_rows.size(); ++i) {
        updateRow(i, registerValue);
    }
}

void FieldTable::updateRow(int fieldIndex, quint64 registerValue)
{
    const Row& row = m_rows.at(fieldIndex);
    if (!row.editor) {
        return;
    }
    const Field& field = m_register.fields.at(fieldIndex);
    const quint64 value = fieldValue(field, registerValue);
    const quint64 resetValue = fieldValue(field, m_register.resetValue);
    const bool changed = value != resetValue;
    row.editor->setValue(value);
    if (row.mark->isMarked() != changed) {
        row.mark->setMarked(changed,
                            tr("Changed; after a reset it is %1").arg(numberText(resetValue, NumberBase::Hexadecimal)));
        QFont nameFont = row.name->font();
        nameFont.setBold(changed);
        row.name->setFont(nameFont);
    }
}

void FieldTable::setBase(NumberBase base)
{
    for (const Row& row : qAsConst(m_rows)) {
        if (row.editor) {
            row.editor->setBase(base);
        }
    }
}

ValueEditor* FieldTable::editor(int fieldIndex) const
{
    return m_rows.at(fieldIndex).editor;
}

QRect FieldTable::rowRect(int fieldIndex) const
{
    // The remarks are the one widget that fills its cell.
    const QRect remarks = m_rows.at(fieldIndex).remarks->geometry();
    return {0, remarks.top(), width(), remarks.height()};
}

void FieldTable::setMarkedRow(int fieldIndex)
{
    m_markedRow = fieldIndex;
    update();
}

QColor FieldTable::groundOf(int fieldIndex) const
{
    const QColor ground = cardColor(palette());
    if (fieldIndex == m_markedRow) {
        return apps::blended(accentColor(palette(), Accent::Changed), ground, kMarkedShare);
    }
    return fieldIndex % 2 == 0 ? apps::blended(palette().color(QPalette::WindowText), ground, kStripeShare) : ground;
}

void FieldTable::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    for (int i = 0; i < m_rows.size(); ++i) {
        painter.setBrush(groundOf(i));
        painter.drawRoundedRect(rowRect(i), kStripeRadius, kStripeRadius);
    }
}

} // namespace registers
