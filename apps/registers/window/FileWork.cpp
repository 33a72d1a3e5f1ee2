// SPDX-License-Identifier: MIT
#include "window/FileWork.h"

#include "session/DeviceLoader.h"
#include "session/OpenDevice.h"
#include "window/LoadDialog.h"
#include "window/UnplacedDialog.h"

#include <Tessera/widgets/CAutoCursor.h>

#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QStatusBar>

#include <utility>

namespace registers {

namespace {

constexpr int kMessageMs = 6000;

/// The platforms without a desktop have no dialogs of their own either.
QFileDialog::Options dialogOptions()
{
    return QGuiApplication::platformName() == QLatin1String("offscreen") ? QFileDialog::DontUseNativeDialog
                                                                         : QFileDialog::Options();
}

QString valuesFilter()
{
    return FileWork::tr("JSON files (*.json);;All files (*)");
}

void showError(QWidget* parent, const QString& title, const QString& text)
{
    QMessageBox box(QMessageBox::Critical, title, title + QLatin1String("\n\n") + text, QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box.exec();
}

} // namespace

FileWork::FileWork(QMainWindow* window)
    : QObject(window)
    , m_window(window)
    , m_loader(new DeviceLoader(this))
    , m_loadDialog(new LoadDialog(window))
{
    connect(m_loader, &DeviceLoader::started, this, &FileWork::startReading);
    connect(m_loader, &DeviceLoader::progressed, m_loadDialog, &LoadDialog::setProgress);
    connect(m_loader, &DeviceLoader::finished, this, &FileWork::finishReading);
    connect(m_loadDialog, &LoadDialog::cancelled, m_loader, &DeviceLoader::cancel);
}

bool FileWork::isReading() const
{
    return m_loader->isLoading();
}

void FileWork::say(const QString& text)
{
    m_window->statusBar()->showMessage(text, kMessageMs);
}

void FileWork::startReading(const QString& fileName)
{
    Q_EMIT readingStarted();
    m_loadDialog->start(fileName);
}

void FileWork::finishReading()
{
    m_loadDialog->hide();
    Q_EMIT readingFinished();
}

bool FileWork::open(const QString& fileName)
{
    if (isReading() || !confirmLosingEdits()) {
        return false;
    }
    const SvdResult result = m_loader->load(fileName);
    if (std::exchange(m_closesAfterReading, false)) {
        m_window->close();
        return false;
    }
    if (result.cancelled) {
        say(tr("Reading was cancelled."));
        return false;
    }
    if (!result.isOk()) {
        showError(m_window, tr("The file cannot be opened"), result.error.text());
        return false;
    }
    Q_EMIT opened(result);
    return true;
}

void FileWork::openWithDialog()
{
    const QString folder =
        m_device && !m_device->isSample() ? QFileInfo(m_device->device().sourceFile).path() : QString();
    const QString fileName = QFileDialog::getOpenFileName(m_window, tr("Open a device description"), folder,
                                                          tr("CMSIS-SVD descriptions (*.svd *.xml);;All files (*)"),
                                                          nullptr, dialogOptions());
    if (!fileName.isEmpty()) {
        open(fileName);
    }
}

bool FileWork::save(const QString& fileName)
{
    QString error;
    const bool isSaved = [&] {
        const nsUI::CAutoCursor waiting(Qt::WaitCursor);
        return m_device->save(fileName, &error);
    }();
    if (!isSaved) {
        showError(m_window, tr("The file cannot be written"), error);
        return false;
    }
    Q_EMIT saved();
    say(tr("Saved to %1").arg(fileName));
    return true;
}

bool FileWork::saveWithDialog()
{
    const QString fileName =
        QFileDialog::getSaveFileName(m_window, tr("Save values"), m_device->device().name + QLatin1String(".json"),
                                     valuesFilter(), nullptr, dialogOptions());
    return !fileName.isEmpty() && save(fileName);
}

void FileWork::loadWithDialog()
{
    const QString fileName =
        QFileDialog::getOpenFileName(m_window, tr("Load values"), QString(), valuesFilter(), nullptr, dialogOptions());
    if (!fileName.isEmpty()) {
        load(fileName);
    }
}

bool FileWork::load(const QString& fileName)
{
    const ImportResult result = [&] {
        const nsUI::CAutoCursor waiting(Qt::WaitCursor);
        return m_device->readValues(fileName);
    }();
    if (!result.isOk()) {
        showError(m_window, tr("The values cannot be loaded"), result.error);
        return false;
    }
    const QString name = QFileInfo(fileName).fileName();
    const bool isOfAnother = m_device->isOfAnother(result);
    if ((isOfAnother || !result.unplaced.isEmpty()) &&
        !UnplacedDialog(name, result, isOfAnother ? result.deviceName : QString(), m_window).ask()) {
        return false;
    }
    say(m_device->take(result, name) ? tr("Loaded from %1").arg(fileName)
                                     : tr("%1 holds the values that are already there.").arg(name));
    return true;
}

bool FileWork::confirmLosingEdits()
{
    if (QWidget* edited = m_window->focusWidget()) {
        edited->clearFocus(); // what stands in an open editor is an edit too
    }
    if (!m_device || !m_device->isEdited()) {
        return true;
    }
    QMessageBox box(QMessageBox::Question, tr("Edited values"), tr("The edited values of this device would be lost."),
                    QMessageBox::NoButton, m_window);
    const QAbstractButton* saves = box.addButton(tr("&Save Values…"), QMessageBox::AcceptRole);
    const QAbstractButton* discards = box.addButton(QMessageBox::Discard);
    box.setDefaultButton(box.addButton(QMessageBox::Cancel));
    box.exec();
    if (box.clickedButton() == saves) {
        return saveWithDialog();
    }
    return box.clickedButton() == discards;
}

bool FileWork::mayClose()
{
    if (isReading()) {
        m_loader->cancel();
        m_closesAfterReading = true;
        return false;
    }
    return confirmLosingEdits();
}

} // namespace registers
