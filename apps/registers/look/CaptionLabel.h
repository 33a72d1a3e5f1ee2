// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace registers {

/// A label of less weight, for captions and side remarks. It follows the palette of its parent.
class CaptionLabel : public QLabel
{
    Q_OBJECT

public:
    explicit CaptionLabel(const QString& text = QString(), QWidget* parent = nullptr);

protected:
    bool event(QEvent* event) override;

private:
    void updateColor();

    bool m_updating = false;
};

} // namespace registers
