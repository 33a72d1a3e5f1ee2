// SPDX-License-Identifier: MIT
#pragma once

#include "svd/SvdReader.h"

#include <QObject>
#include <QString>

QT_BEGIN_NAMESPACE
class QMainWindow;
QT_END_NAMESPACE

namespace registers {

class DeviceLoader;
class LoadDialog;
class OpenDevice;

/// What the File menu does: asks for files, reads and writes them, and tells the user what became of it.
class FileWork : public QObject
{
    Q_OBJECT

public:
    /// Dialogs stand in front of @p window, messages in its status bar.
    explicit FileWork(QMainWindow* window);

    /// What is open, null for nothing; it must live until the next call.
    void setDevice(OpenDevice* device) { m_device = device; }

    /// True while a description is being read. The event loop runs meanwhile.
    bool isReading() const;

    /// Reads @p fileName, unless edited values are not to be lost. False when nothing was opened.
    bool open(const QString& fileName);
    /// Sets the values of @p fileName as one edit. What has no place in the device is named, and the rest is set only
    /// if the user agrees.
    bool load(const QString& fileName);
    bool save(const QString& fileName);

    void openWithDialog();
    void loadWithDialog();
    bool saveWithDialog();

    /// Whether the window may be closed: no values would be lost, or the user does not mind. While a description is
    /// being read it may not, but is closed when that has ended.
    bool mayClose();

Q_SIGNALS:
    /// A description has been read.
    void opened(const registers::SvdResult& read);
    /// The values of the device have been written.
    void saved();
    /// Reading goes on long enough to be seen, and has ended.
    void readingStarted();
    void readingFinished();

private:
    bool confirmLosingEdits();
    void startReading(const QString& fileName);
    void finishReading();
    void say(const QString& text);

    QMainWindow* m_window;
    DeviceLoader* m_loader;
    LoadDialog* m_loadDialog;
    OpenDevice* m_device = nullptr;
    bool m_closesAfterReading = false;
};

} // namespace registers
