// SPDX-License-Identifier: MIT
#include "editors/EnumBox.h"

#include "editors/EnumValidator.h"

#include <Tessera/widgets/CDataComboBox.h>

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace registers {

namespace {

constexpr int kShortestContents = 9;
constexpr int kLongestContents = 24;
constexpr int kListMargin = 40; ///< for the scroll bar and the frame of the list

} // namespace

EnumBox::EnumBox(EnumText names, NumberBase base, QWidget* parent)
    : ValueEditor(parent)
    , m_names(std::move(names))
    , m_base(base)
{
    initBox();
    fillList();
    showValue();
    setContent(m_box);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

EnumBox::~EnumBox() = default;

void EnumBox::initBox()
{
    m_box = new nsUI::CDataComboBox(this);
    m_box->setEditable(true);
    m_box->setInsertPolicy(QComboBox::NoInsert);
    // No completion: what it appends to a typed number would be another value.
    m_box->setCompleter(nullptr);
    m_box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_box->lineEdit()->setAcceptDrops(false); // a dropped file is for the window
    m_box->lineEdit()->setValidator(new EnumValidator(m_names, this));
    m_box->installEventFilter(this);
    connect(m_box, QOverload<int>::of(&QComboBox::activated), this, &EnumBox::choose);
}

void EnumBox::fillList()
{
    const QSignalBlocker blocker(m_box);
    m_box->clear();
    int widest = m_box->fontMetrics().horizontalAdvance(m_names.widestText(m_base));
    for (const EnumText::Choice& choice : m_names.choices()) {
        const QString text = m_names.text(choice, m_base);
        m_box->addItem(text, QVariant::fromValue(choice.value));
        m_box->setItemData(m_box->count() - 1, choice.entry->description, Qt::ToolTipRole);
        widest = std::max(widest, m_box->fontMetrics().horizontalAdvance(text));
    }
    // The box reckons in letters of this width.
    const int letters = widest / m_box->fontMetrics().horizontalAdvance(QLatin1Char('X')) + 1;
    m_box->setMinimumContentsLength(std::clamp(letters, kShortestContents, kLongestContents));
    m_box->view()->setMinimumWidth(widest + kListMargin);
}

QComboBox* EnumBox::box() const
{
    return m_box;
}

quint64 EnumBox::value() const
{
    return m_value;
}

void EnumBox::setValue(quint64 value)
{
    if (value != m_value) {
        m_value = value;
        showValue();
    }
}

void EnumBox::setBase(NumberBase base)
{
    if (base != m_base) {
        m_base = base;
        fillList();
        showValue();
    }
}

void EnumBox::showValue()
{
    const QSignalBlocker blocker(m_box);
    if (const EnumText::Choice* choice = m_names.choiceFor(m_value)) {
        m_box->setCurrentData(QVariant::fromValue(choice->value));
    } else {
        m_box->setCurrentIndex(-1);
    }
    const QString text = m_names.text(m_value, m_base);
    m_box->setEditText(text);
    m_box->lineEdit()->setCursorPosition(0);
    m_box->setToolTip(text);
}

void EnumBox::choose(int row)
{
    if (row >= 0 && row < m_names.choices().size()) {
        setByUser(m_names.chosen(m_names.choices().at(row), m_value));
    }
}

void EnumBox::commitText()
{
    setByUser(m_names.value(m_box->currentText(), m_value).value_or(m_value));
}

void EnumBox::setByUser(quint64 value)
{
    const bool changed = value != m_value;
    m_value = value;
    showValue();
    if (changed) {
        Q_EMIT valueEdited(m_value);
    }
}

bool EnumBox::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress: {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            commitText();
        } else if (key == Qt::Key_Escape) {
            showValue();
        }
        return false;
    }
    case QEvent::FocusIn:
        if (static_cast<QFocusEvent*>(event)->reason() == Qt::MouseFocusReason) {
            // After the click has placed its cursor: what is typed next replaces the text.
            QTimer::singleShot(0, m_box->lineEdit(), &QLineEdit::selectAll);
        }
        return false;
    case QEvent::FocusOut:
        if (static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason) {
            commitText();
        }
        return false;
    default:
        return ValueEditor::eventFilter(watched, event);
    }
}

} // namespace registers
