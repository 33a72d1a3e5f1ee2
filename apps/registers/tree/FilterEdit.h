// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

namespace registers {

/// The line that a tree is filtered by.
class FilterEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit FilterEdit(QWidget* parent);

protected:
    bool event(QEvent* event) override;

private:
    void updatePlaceholder();

    bool m_updating = false;
};

} // namespace registers
