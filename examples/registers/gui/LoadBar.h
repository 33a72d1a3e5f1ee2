// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

QT_BEGIN_NAMESPACE
class QLabel;
class QProgressBar;
QT_END_NAMESPACE

namespace registers {

/// How far the reading of a file has come, and a button that ends it.
class LoadBar : public QWidget
{
    Q_OBJECT

public:
    explicit LoadBar(QWidget* parent = nullptr);

    void start(const QString& fileName);
    void setProgress(qint64 done, qint64 total);

Q_SIGNALS:
    void cancelClicked();

private:
    QLabel* m_label;
    QProgressBar* m_bar;
};

} // namespace registers
