// SPDX-License-Identifier: MIT
#pragma once

#include "CommandLine.h"
#include "gui/NumberText.h"

#include <QMainWindow>

#include <memory>

QT_BEGIN_NAMESPACE
class QAction;
class QActionGroup;
class QLabel;
class QSplitter;
class QUndoGroup;
QT_END_NAMESPACE

namespace registers {

class DeviceEdits;
class DeviceLoader;
class DevicePanel;
class FormView;
class LoadDialog;
class WorkSteps;
struct TreePlace;

/// The register editor: the tree of a device at the left, the form of the chosen register at the right.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    /// Shows @p session in place of what is open. Its values count as not edited yet.
    void setSession(Session session);
    const Session& session() const { return m_session; }

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
    /// The edits of the session, which can be undone.
    DeviceEdits& edits() const { return *m_edits; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void initActions();
    void initBases();
    void initMenus();
    void initToolBar();
    void initStatusBar();
    void initConnect();
    QAction* addAction(QAction*& action, const QString& text, const QKeySequence& shortcut, const char* objectName);

    void openWithDialog();
    void openSample();
    bool exportWithDialog();
    bool confirmLosingEdits();
    void loadWithDialog();
    void select(const PathTarget& target);
    void showPlace(const TreePlace& place);
    void showStep(const PathTarget& target);
    void goToAddress();
    void chooseFont();
    void takeStep(int step);
    void updateStep();
    void expandAll();
    void setBase(NumberBase base);
    void setChangesOnly(bool changesOnly);
    void copySelection();
    void resetRegister();
    void resetAll();
    void markEdited();
    void updateState();
    void updateTitle();
    void startLoading(const QString& fileName);
    void finishLoading();
    void saveLayout();

    Session m_session;
    std::unique_ptr<DeviceEdits> m_edits; ///< of the session's state
    QUndoGroup* m_undoGroup;
    QVector<quint64> m_savedValues; ///< as they were opened, or saved last
    QString m_fileName;
    DevicePanel* m_panel;
    FormView* m_view;
    QSplitter* m_splitter;
    DeviceLoader* m_loader;
    LoadDialog* m_loadDialog;
    WorkSteps* m_steps;
    QLabel* m_changedLabel;
    QAction* m_open = nullptr;
    QAction* m_openSample = nullptr;
    QAction* m_load = nullptr;
    QAction* m_export = nullptr;
    QAction* m_quit = nullptr;
    QAction* m_undo = nullptr;
    QAction* m_redo = nullptr;
    QAction* m_copy = nullptr;
    QAction* m_find = nullptr;
    QAction* m_findNext = nullptr;
    QAction* m_goTo = nullptr;
    QAction* m_editBits = nullptr;
    QAction* m_resetRegister = nullptr;
    QAction* m_resetAll = nullptr;
    QAction* m_changesOnly = nullptr;
    QAction* m_font = nullptr;
    QAction* m_expandAll = nullptr;
    QAction* m_collapseAll = nullptr;
    QActionGroup* m_bases;
    bool m_wasSaved = false; ///< since it was opened
    bool m_keepsLayout = false;
    bool m_splitterIsPlaced = false; ///< by the user; until then it suits the device
    bool m_closesAfterLoading = false;
};

} // namespace registers
