// SPDX-License-Identifier: MIT
#pragma once

#include "look/Access.h"

#include <QWidget>

QT_BEGIN_NAMESPACE
class QVBoxLayout;
QT_END_NAMESPACE

namespace registers {

class ChangeMark;
class FactsLine;

/// What stands above a form: the path, the name with its notes, the description, and a line of facts.
class Heading : public QWidget
{
    Q_OBJECT

public:
    struct Texts
    {
        QString path;
        QString name;
        QString description;
        QVector<Note> notes;
    };

    explicit Heading(const Texts& texts, QWidget* parent = nullptr);

    FactsLine* facts() const { return m_facts; }
    void setMarked(bool marked, const QString& toolTip);

private:
    void addTitle(const Texts& texts);

    QVBoxLayout* m_layout;
    ChangeMark* m_mark = nullptr;
    FactsLine* m_facts;
};

} // namespace registers
