// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

QT_BEGIN_NAMESPACE
class QGridLayout;
QT_END_NAMESPACE

namespace registers {

/// Short facts side by side, each under its caption, to be read and copied.
class FactsLine : public QWidget
{
    Q_OBJECT

public:
    enum class Kind { Text, Number };

    explicit FactsLine(QWidget* parent = nullptr);

    void addFact(const QString& caption, const QString& text, Kind kind);

private:
    QGridLayout* m_grid;
    int m_count = 0;
};

} // namespace registers
