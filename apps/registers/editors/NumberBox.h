// SPDX-License-Identifier: MIT
#pragma once

#include "editors/ValueEditor.h"

#include <Tessera/Tessera.h>

QT_BEGIN_NAMESPACE
class QAbstractSpinBox;
class QKeyEvent;
class QLineEdit;
class QWheelEvent;
QT_END_NAMESPACE

namespace registers {

/// A number of an exact width in one of the library's integer spin boxes, the smallest that holds it.
///
/// Beyond what that box does by itself: a step stops at the ends of the range however large it is, a text that is
/// no number gives way to the value when the focus leaves, a number with a prefix can be pasted whatever the base,
/// and a read-only box cannot be stepped. The box is as wide as its largest number needs.
class NumberBox : public ValueEditor
{
    Q_OBJECT

public:
    enum class Mode { Editable, ReadOnly };

    /// @p width is 1 to 64 bits.
    NumberBox(int width, NumberBase base, Mode mode, QWidget* parent = nullptr);

    quint64 value() const override;
    void setValue(quint64 value) override;
    void setBase(NumberBase base) override;

    quint64 maximum() const { return m_maximum; }
    /// The library's spin box.
    QAbstractSpinBox* box() const { return m_box; }

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void changeEvent(QEvent* event) override;

private:
    template <class Action>
    void visitBox(Action action) const;

    void initBox(NumberBase base);
    void initReadOnly();
    void updateWidth();
    void takeBoxValue();
    void setByUser(quint64 value);
    void step(qint64 steps);
    void showValue();
    bool handleKey(QKeyEvent* event);
    bool handleWheel(QWheelEvent* event);
    bool paste();

    QAbstractSpinBox* m_box = nullptr;
    QLineEdit* m_edit = nullptr;
    quint64 m_maximum;
    quint64 m_value = 0;
    nsUI::e_ISpx_Type m_type;
    int m_width;
    int m_wheelRest = 0;
    NumberBase m_base;
    bool m_readOnly;
    bool m_setting = false;
};

} // namespace registers
