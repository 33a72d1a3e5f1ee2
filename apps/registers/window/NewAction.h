// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>
#include <QKeySequence>
#include <QString>

namespace registers {

/// An action that belongs to @p parent.
inline QAction* newAction(QObject* parent, const QString& text, const QKeySequence& shortcut, const char* objectName)
{
    auto* action = new QAction(text, parent);
    action->setShortcut(shortcut);
    action->setObjectName(QLatin1String(objectName));
    return action;
}

} // namespace registers
