// SPDX-License-Identifier: MIT
#pragma once

#include "session/OpenDevice.h"

#include <QMainWindow>

#include <memory>

QT_BEGIN_NAMESPACE
class QLabel;
class QSplitter;
QT_END_NAMESPACE

namespace registers {

class DevicePanel;
class EditActions;
class FileActions;
class FileWork;
class FormView;
class LayoutKeeper;
class Navigator;
class RemarksButton;
class ViewActions;
class WorkSteps;

/// The register editor: the tree of a device at the left, the form of the chosen register at the right.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    /// Shows @p session in place of what is open. Its values count as not edited yet.
    void setSession(Session session);
    /// What is open. Call it, and edits(), after setSession() only.
    const Session& session() const { return m_device->session(); }
    /// The edits of the session, which can be undone.
    DeviceEdits& edits() const { return m_device->edits(); }

    /// Reads @p fileName and shows its device. When that fails, the user is told why and what is open stays.
    bool openFile(const QString& fileName);

    /// Reads values that were saved and sets them, as one edit. What has no place in the device is named, and the rest
    /// is set only if the user agrees.
    bool loadValues(const QString& fileName);

    /// Writes the values of all registers and fields as JSON. When that fails, the user is told why.
    bool saveValues(const QString& fileName);

    /// Takes size and place from the settings, and keeps them there when the window is closed.
    void restoreLayout();

    DevicePanel* devicePanel() const { return m_panel; }
    FormView* formView() const { return m_view; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void initCentral();
    void initMenus();
    void initToolBar();
    void initConnect();

    void takeStep(int step);
    void updateStep();
    void markEdited();
    void updateState();

    std::unique_ptr<OpenDevice> m_device; ///< null until the first session
    DevicePanel* m_panel;
    FormView* m_view;
    QSplitter* m_splitter;
    FileWork* m_files;
    FileActions* m_fileActions;
    EditActions* m_editActions;
    ViewActions* m_viewActions;
    LayoutKeeper* m_layout;
    Navigator* m_navigator;
    WorkSteps* m_steps;
    RemarksButton* m_remarks;
    QLabel* m_changedLabel;
};

} // namespace registers
