// SPDX-License-Identifier: MIT
#include "editors/NumberBox.h"

#include "editors/SpinBoxType.h"
#include "look/Theme.h"
#include "text/Numbers.h"

#include <Tessera/CISpinBox/CU16SpinBox.h>
#include <Tessera/CISpinBox/CU32SpinBox.h>
#include <Tessera/CISpinBox/CU64SpinBox.h>
#include <Tessera/CISpinBox/CU8SpinBox.h>
#include <Tessera/views/ItemRoles.h>

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScopedValueRollback>

#include <algorithm>

namespace registers {

namespace {

constexpr int kWheelNotch = 120;
constexpr int kLargeStep = 10;

} // namespace

NumberBox::NumberBox(int width, NumberBase base, Mode mode, QWidget* parent)
    : ValueEditor(parent)
    , m_maximum(bitMask(width))
    , m_type(spinBoxType(width))
    , m_width(width)
    , m_base(base)
    , m_readOnly(mode == Mode::ReadOnly)
{
    initBox(base);
    if (m_readOnly) {
        initReadOnly();
    }
    setContent(m_box);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    updateWidth();
}

void NumberBox::initBox(NumberBase base)
{
    const QHash<int, QVariant> settings{
        {nsUI::e_Role_ISpxType, m_type},
        {nsUI::e_Role_ISpxMinimum, 0U},
        {nsUI::e_Role_ISpxMaximum, m_maximum},
        {nsUI::e_Role_ISpxPrefix, basePrefix(base)},
        {nsUI::e_Role_ISpxBase, static_cast<int>(base)},
    };
    m_box = static_cast<QAbstractSpinBox*>(nsUI::TesseraGlobal::ISP_create(this, settings));
    m_edit = m_box->findChild<QLineEdit*>();
    m_edit->setAcceptDrops(false); // a dropped file is for the window
    m_box->setFont(numberFont(font()));
    m_box->installEventFilter(this);
    m_edit->installEventFilter(this);
    visitBox([this](auto* box) {
        using Box = std::remove_pointer_t<decltype(box)>;
        connect(box, &Box::valueChanged, this, &NumberBox::takeBoxValue);
    });
}

void NumberBox::initReadOnly()
{
    m_box->setReadOnly(true);
    m_box->setButtonSymbols(QAbstractSpinBox::NoButtons);
    m_box->setFrame(false);
    QPalette flat;
    flat.setColor(QPalette::Base, Qt::transparent);
    m_box->setPalette(flat);
    // The spin box's own menu offers to step; the line edit's offers to copy.
    m_edit->setContextMenuPolicy(Qt::DefaultContextMenu);
}

template <class Action>
void NumberBox::visitBox(Action action) const
{
    switch (m_type) {
    case nsUI::e_ISpx_U8:
        action(static_cast<nsUI::CU8SpinBox*>(m_box));
        break;
    case nsUI::e_ISpx_U16:
        action(static_cast<nsUI::CU16SpinBox*>(m_box));
        break;
    case nsUI::e_ISpx_U32:
        action(static_cast<nsUI::CU32SpinBox*>(m_box));
        break;
    default:
        action(static_cast<nsUI::CU64SpinBox*>(m_box));
        break;
    }
}

quint64 NumberBox::value() const
{
    return m_value;
}

void NumberBox::setValue(quint64 value)
{
    const QScopedValueRollback<bool> setting(m_setting, true);
    m_value = std::min(value, m_maximum);
    nsUI::TesseraGlobal::ISP_setData(m_box, m_type, m_value, false);
}

void NumberBox::setBase(NumberBase base)
{
    if (base == m_base) {
        return;
    }
    m_base = base;
    visitBox([base](auto* box) {
        box->setDisplayIntegerBase(static_cast<int>(base));
        box->setPrefix(basePrefix(base));
    });
    showValue();
    updateWidth();
}

void NumberBox::updateWidth()
{
    const int digits = digitCount(m_width, m_base) + static_cast<int>(basePrefix(m_base).size());
    const int textWidth = m_box->fontMetrics().horizontalAdvance(QString(digits, QLatin1Char('0')));
    m_box->setMinimumWidth(m_box->sizeHint().width() + textWidth);
}

void NumberBox::changeEvent(QEvent* event)
{
    ValueEditor::changeEvent(event);
    if (m_box && event->type() == QEvent::FontChange) {
        m_box->setFont(numberFont(font()));
    }
    if (m_box && (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)) {
        updateWidth();
    }
}

void NumberBox::takeBoxValue()
{
    if (m_setting) {
        return;
    }
    const quint64 shown = nsUI::TesseraGlobal::ISP_getData(m_box, m_type).toULongLong();
    if (m_readOnly) {
        setValue(m_value);
    } else if (shown != m_value) {
        m_value = shown;
        Q_EMIT valueEdited(m_value);
    }
}

void NumberBox::setByUser(quint64 value)
{
    nsUI::TesseraGlobal::ISP_setData(m_box, m_type, value, true);
    showValue();
}

void NumberBox::step(qint64 steps)
{
    if (steps < 0) {
        setByUser(m_value - std::min(m_value, static_cast<quint64>(-steps)));
    } else {
        setByUser(m_value + std::min(m_maximum - m_value, static_cast<quint64>(steps)));
    }
}

void NumberBox::showValue()
{
    visitBox([this](auto* box) {
        const QString text = box->prefix() + box->textFromValue(box->value());
        if (m_edit->text() != text) {
            m_edit->setText(text);
        }
    });
}

bool NumberBox::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        return handleKey(static_cast<QKeyEvent*>(event));
    case QEvent::Wheel:
        return watched == m_box && handleWheel(static_cast<QWheelEvent*>(event));
    case QEvent::FocusOut:
        if (static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason) {
            showValue();
        }
        return false;
    case QEvent::Paint:
        // Without frame and buttons there is nothing to draw, but some styles leave dots.
        return m_readOnly && watched == m_box;
    case QEvent::MouseButtonPress:
    case QEvent::Timer:
        // With Ctrl held the buttons would step by ten and past the end of the range.
        return watched == m_box && QApplication::keyboardModifiers().testFlag(Qt::ControlModifier);
    default:
        return ValueEditor::eventFilter(watched, event);
    }
}

bool NumberBox::handleKey(QKeyEvent* event)
{
    const bool large = event->modifiers().testFlag(Qt::ControlModifier);
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown: {
        if (m_readOnly) {
            event->ignore(); // it scrolls the form
            return true;
        }
        const bool page = event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown;
        const bool up = event->key() == Qt::Key_Up || event->key() == Qt::Key_PageUp;
        const int steps = page || large ? kLargeStep : 1;
        step(up ? steps : -steps);
        event->accept();
        return true;
    }
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
        showValue();
        return false;
    default:
        return event->matches(QKeySequence::Paste) && !m_readOnly && paste();
    }
}

bool NumberBox::handleWheel(QWheelEvent* event)
{
    if (m_readOnly) {
        event->ignore();
        return true;
    }
    m_wheelRest += event->angleDelta().y();
    const int notches = m_wheelRest / kWheelNotch;
    m_wheelRest -= notches * kWheelNotch;
    if (notches != 0) {
        step(event->modifiers().testFlag(Qt::ControlModifier) ? notches * kLargeStep : notches);
    }
    event->accept();
    return true;
}

bool NumberBox::paste()
{
    const QString text = QApplication::clipboard()->text().trimmed();
    // Digits alone are for the box, which reads them in its own base; in hexadecimal "0b" is digits as well.
    const bool isHex = text.startsWith(QLatin1String("0x"), Qt::CaseInsensitive);
    const bool isBinary = text.startsWith(QLatin1String("0b"), Qt::CaseInsensitive);
    if (!isHex && !(isBinary && m_base != NumberBase::Hexadecimal)) {
        return false;
    }
    const std::optional<quint64> number = parseCopiedNumber(text);
    if (!number || *number > m_maximum) {
        return false;
    }
    setByUser(*number);
    return true;
}

} // namespace registers
