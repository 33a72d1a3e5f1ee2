// SPDX-License-Identifier: MIT
#pragma once

#include "editors/ValueEditor.h"
#include "text/EnumText.h"

QT_BEGIN_NAMESPACE
class QComboBox;
QT_END_NAMESPACE

namespace nsUI {
class CDataComboBox;
}

namespace registers {

/// A field's value by its names: to be chosen from a list, or typed as a name or a number.
///
/// A typed text counts when Enter is pressed or the focus leaves. A text without a meaning cannot be typed, and an
/// unfinished one gives way to the value.
class EnumBox : public ValueEditor
{
    Q_OBJECT

public:
    EnumBox(EnumText names, NumberBase base, QWidget* parent = nullptr);
    ~EnumBox() override;

    quint64 value() const override;
    void setValue(quint64 value) override;
    void setBase(NumberBase base) override;

    /// Each item's data is its value, a quint64.
    QComboBox* box() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void initBox();
    void fillList();
    void showValue();
    void choose(int row);
    void commitText();
    void setByUser(quint64 value);

    EnumText m_names;
    nsUI::CDataComboBox* m_box = nullptr;
    quint64 m_value = 0;
    NumberBase m_base;
};

} // namespace registers
