// SPDX-License-Identifier: MIT
// What the code in the documentation takes for granted: it stands in a widget of the reader's, who has a device
// and a page that scrolls.
#pragma once

#include <QApplication>
#include <QScrollArea>

class Device : public QObject
{
public:
    void writeControl(quint32 nValue) { m_nControl = nValue; }

private:
    quint32 m_nControl = 0;
};

struct Surroundings : QWidget
{
    Device tDevice;
    Device* device = &tDevice;
    QScrollArea* scrollArea = new QScrollArea(this);
};
