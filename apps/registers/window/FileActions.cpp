// SPDX-License-Identifier: MIT
#include "window/FileActions.h"

#include "look/Icons.h"
#include "session/Session.h"
#include "window/FileWork.h"
#include "window/NewAction.h"

#include <QMainWindow>
#include <QMenu>
#include <QToolBar>

namespace registers {

FileActions::FileActions(FileWork* files, QMainWindow* window)
    : QObject(window)
    , m_files(files)
    , m_open(newAction(this, tr("&Open…"), QKeySequence::Open, "open"))
    , m_openSample(newAction(this, tr("Open &Sample"), QKeySequence(), "openSample"))
    , m_load(newAction(this, tr("&Load Values…"), QKeySequence(tr("Ctrl+L")), "load"))
    , m_save(newAction(this, tr("&Save Values…"), QKeySequence::Save, "export"))
    , m_quit(newAction(this, tr("&Quit"), QKeySequence::Quit, "quit"))
{
    m_open->setIcon(lineIcon(LineIcon::Open));
    m_load->setIcon(lineIcon(LineIcon::Load));
    m_save->setIcon(lineIcon(LineIcon::Export));
    m_load->setToolTip(tr("Set the registers to the values of a JSON file that was saved here"));
    m_save->setToolTip(tr("Save the values of all registers and fields as a JSON file"));
    connect(m_open, &QAction::triggered, files, &FileWork::openWithDialog);
    connect(m_openSample, &QAction::triggered, files, [files] { files->open(sampleFileName()); });
    connect(m_load, &QAction::triggered, files, &FileWork::loadWithDialog);
    connect(m_save, &QAction::triggered, files, &FileWork::saveWithDialog);
    connect(m_quit, &QAction::triggered, window, &QMainWindow::close);
}

void FileActions::fill(QMenu* menu) const
{
    menu->addActions({m_open, m_openSample});
    menu->addSeparator();
    menu->addActions({m_load, m_save});
    menu->addSeparator();
    menu->addAction(m_quit);
}

void FileActions::fill(QToolBar* bar) const
{
    bar->addActions({m_open, m_load, m_save});
}

void FileActions::update(bool hasDevice)
{
    const bool isIdle = !m_files->isReading();
    m_open->setEnabled(isIdle);
    m_openSample->setEnabled(isIdle);
    m_load->setEnabled(isIdle && hasDevice);
    m_save->setEnabled(isIdle && hasDevice);
}

} // namespace registers
