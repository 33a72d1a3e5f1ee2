// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

QT_BEGIN_NAMESPACE
class QPushButton;
QT_END_NAMESPACE

namespace gallery {

class TextLabel;

/// A dialog on a card: its picture, a button that opens it, and what was last chosen in it.
class DialogSample : public QWidget
{
    Q_OBJECT

public:
    /// @p name is one of dialogNames().
    explicit DialogSample(const QString& name, QWidget* parent = nullptr);

private:
    void open();

    QString m_name;
    QPushButton* m_button;
    TextLabel* m_outcome;
};

} // namespace gallery
