// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

QT_BEGIN_NAMESPACE
class QAction;
class QMainWindow;
class QMenu;
class QToolBar;
QT_END_NAMESPACE

namespace registers {

class FileWork;

/// The actions of the File menu: descriptions and values, and the end of the program.
class FileActions : public QObject
{
    Q_OBJECT

public:
    /// @p files does what they say.
    FileActions(FileWork* files, QMainWindow* window);

    void fill(QMenu* menu) const;
    void fill(QToolBar* bar) const;

    void update(bool hasDevice);

private:
    FileWork* m_files;
    QAction* m_open;
    QAction* m_openSample;
    QAction* m_load;
    QAction* m_save;
    QAction* m_quit;
};

} // namespace registers
