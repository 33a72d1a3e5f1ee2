// SPDX-License-Identifier: MIT
#include "gui/MainWindow.h"

#include "device/DeviceExport.h"
#include "device/DeviceImport.h"
#include "gui/DeviceEdits.h"
#include "gui/DeviceLoader.h"
#include "gui/DevicePanel.h"
#include "gui/FormView.h"
#include "gui/GoToDialog.h"
#include "gui/Icons.h"
#include "gui/LoadDialog.h"
#include "gui/RegisterForm.h"
#include "gui/Settings.h"
#include "gui/UnplacedDialog.h"
#include "gui/WorkSteps.h"

#include <Tessera/widgets/CAutoCursor.h>
#include <Tessera/widgets/FontSettingDlg.h>

#include <QActionGroup>
#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QSplitter>
#include <QStatusBar>
#include <QToolBar>
#include <QTreeView>
#include <QUndoGroup>

#include <algorithm>
#include <utility>

namespace registers {

namespace {

constexpr QSize kDefaultSize(1440, 820);
constexpr int kFormWidth = 650;
constexpr int kToolIcon = 20;
constexpr int kMessageMs = 6000;

/// The platforms without a desktop have no dialogs of their own either.
QFileDialog::Options dialogOptions()
{
    return QGuiApplication::platformName() == QLatin1String("offscreen") ? QFileDialog::DontUseNativeDialog
                                                                         : QFileDialog::Options();
}

void showError(QWidget* parent, const QString& title, const QString& text)
{
    QMessageBox box(QMessageBox::Critical, title, title + QLatin1String("\n\n") + text, QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box.exec();
}

QString changedText(int count)
{
    switch (count) {
    case 0:
        return MainWindow::tr("No register changed");
    case 1:
        return MainWindow::tr("Changed: 1 register");
    default:
        return MainWindow::tr("Changed: %1 registers").arg(count);
    }
}

QString droppedFile(const QMimeData* data)
{
    const QList<QUrl> urls = data->urls();
    return urls.size() == 1 ? urls.first().toLocalFile() : QString();
}

} // namespace

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent)
    , m_undoGroup(new QUndoGroup(this))
    , m_panel(new DevicePanel)
    , m_view(new FormView)
    , m_splitter(new QSplitter(this))
    , m_loader(new DeviceLoader(this))
    , m_loadDialog(new LoadDialog(this))
    , m_steps(new WorkSteps)
    , m_changedLabel(new QLabel)
    , m_bases(new QActionGroup(this))
{
    m_splitter->addWidget(m_panel);
    m_splitter->addWidget(m_view);
    m_splitter->setStretchFactor(1, 1);
    m_splitter->setChildrenCollapsible(false);
    setCentralWidget(m_splitter);
    setAcceptDrops(true);
    initActions();
    initMenus();
    initToolBar();
    initStatusBar();
    initConnect();
    resize(kDefaultSize);
    updateState();
}

MainWindow::~MainWindow()
{
    // They look at the session, so they go before it; and the focus that is lost then is nobody's concern.
    disconnect(qApp, nullptr, this, nullptr);
    delete m_splitter;
}

QAction* MainWindow::addAction(QAction*& action, const QString& text, const QKeySequence& shortcut,
                               const char* objectName)
{
    action = new QAction(text, this);
    action->setShortcut(shortcut);
    action->setObjectName(QLatin1String(objectName));
    return action;
}

void MainWindow::initActions()
{
    addAction(m_open, tr("&Open…"), QKeySequence::Open, "open")->setIcon(lineIcon(LineIcon::Open));
    addAction(m_openSample, tr("Open &Sample"), QKeySequence(), "openSample");
    addAction(m_load, tr("&Load Values…"), QKeySequence(tr("Ctrl+L")), "load")->setIcon(lineIcon(LineIcon::Load));
    addAction(m_export, tr("&Save Values…"), QKeySequence::Save, "export")->setIcon(lineIcon(LineIcon::Export));
    m_load->setToolTip(tr("Set the registers to the values of a JSON file that was saved here"));
    m_export->setToolTip(tr("Save the values of all registers and fields as a JSON file"));
    addAction(m_quit, tr("&Quit"), QKeySequence::Quit, "quit");

    m_undo = m_undoGroup->createUndoAction(this, tr("&Undo"));
    m_redo = m_undoGroup->createRedoAction(this, tr("&Redo"));
    m_undo->setShortcut(QKeySequence::Undo);
    m_redo->setShortcut(QKeySequence::Redo);
    m_undo->setObjectName(QStringLiteral("undo"));
    m_redo->setObjectName(QStringLiteral("redo"));
    m_undo->setIcon(lineIcon(LineIcon::Undo));
    m_redo->setIcon(lineIcon(LineIcon::Redo));
    m_undo->setIconText(tr("Undo"));
    m_redo->setIconText(tr("Redo"));

    addAction(m_copy, tr("&Copy Rows"), QKeySequence::Copy, "copy");
    addAction(m_find, tr("&Find"), QKeySequence::Find, "find");
    addAction(m_goTo, tr("&Go to Address…"), QKeySequence(tr("Ctrl+G")), "goTo");
    addAction(m_findNext, tr("Find &Next"), QKeySequence(tr("F3")), "findNext");
    addAction(m_editBits, tr("Edit &Bits…"), QKeySequence(tr("Ctrl+B")), "editBits")->setIcon(lineIcon(LineIcon::Bits));
    addAction(m_resetRegister, tr("&Reset Register"), QKeySequence(tr("Ctrl+R")), "resetCurrent")
        ->setIcon(lineIcon(LineIcon::Reset));
    addAction(m_resetAll, tr("Reset &All"), QKeySequence(tr("Ctrl+Shift+R")), "resetAll")
        ->setIcon(lineIcon(LineIcon::ResetAll));

    addAction(m_changesOnly, tr("&Changes Only"), QKeySequence(tr("Ctrl+D")), "changesOnly")
        ->setIcon(lineIcon(LineIcon::Changes));
    m_changesOnly->setCheckable(true);
    addAction(m_font, tr("&Font…"), QKeySequence(), "font");
    addAction(m_expandAll, tr("&Expand All"), QKeySequence(tr("Ctrl+Shift+E")), "expandAll");
    addAction(m_collapseAll, tr("C&ollapse All"), QKeySequence(tr("Ctrl+Shift+W")), "collapseAll");
    initBases();
}

void MainWindow::initBases()
{
    const struct
    {
        NumberBase base;
        QString text;
        QString shortcut;
    } bases[] = {
        {NumberBase::Decimal, tr("Values in &Decimal"), tr("Ctrl+1")},
        {NumberBase::Hexadecimal, tr("Values in &Hexadecimal"), tr("Ctrl+2")},
        {NumberBase::Binary, tr("Values in &Binary"), tr("Ctrl+3")},
    };
    for (const auto& entry : bases) {
        QAction* action = m_bases->addAction(entry.text);
        action->setCheckable(true);
        action->setChecked(entry.base == m_view->fieldBase());
        action->setShortcut(QKeySequence(entry.shortcut));
        action->setData(static_cast<int>(entry.base));
    }
}

void MainWindow::initMenus()
{
    QMenu* file = menuBar()->addMenu(tr("&File"));
    file->addActions({m_open, m_openSample});
    file->addSeparator();
    file->addActions({m_load, m_export});
    file->addSeparator();
    file->addAction(m_quit);
    QMenu* edit = menuBar()->addMenu(tr("&Edit"));
    edit->addActions({m_undo, m_redo});
    edit->addSeparator();
    edit->addAction(m_copy);
    edit->addSeparator();
    edit->addActions({m_find, m_findNext, m_goTo});
    edit->addSeparator();
    edit->addActions({m_editBits, m_resetRegister, m_resetAll});
    QMenu* view = menuBar()->addMenu(tr("&View"));
    view->addActions(m_bases->actions());
    view->addSeparator();
    view->addActions({m_changesOnly, m_expandAll, m_collapseAll});
    view->addSeparator();
    view->addAction(m_font);
    menuBar()->setCornerWidget(m_steps);

    // The context menu of the tree. Copying is the tree's own affair: text boxes copy what is selected in them.
    m_copy->setShortcutContext(Qt::WidgetShortcut);
    m_panel->view()->addActions({m_editBits, m_resetRegister, m_copy, m_expandAll, m_collapseAll});
}

void MainWindow::initToolBar()
{
    QToolBar* bar = addToolBar(tr("Tools"));
    bar->setObjectName(QStringLiteral("tools"));
    bar->setMovable(false);
    bar->setIconSize(QSize(kToolIcon, kToolIcon));
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    bar->addActions({m_open, m_load, m_export});
    bar->addSeparator();
    bar->addActions({m_undo, m_redo});
    bar->addSeparator();
    bar->addActions({m_editBits, m_resetRegister, m_resetAll});
    bar->addSeparator();
    bar->addAction(m_changesOnly);
}

void MainWindow::initStatusBar()
{
    m_changedLabel->setObjectName(QStringLiteral("changedCount"));
    statusBar()->addPermanentWidget(m_changedLabel);
}

void MainWindow::initConnect()
{
    connect(m_open, &QAction::triggered, this, &MainWindow::openWithDialog);
    connect(m_openSample, &QAction::triggered, this, &MainWindow::openSample);
    connect(m_load, &QAction::triggered, this, &MainWindow::loadWithDialog);
    connect(m_export, &QAction::triggered, this, &MainWindow::exportWithDialog);
    connect(m_quit, &QAction::triggered, this, &MainWindow::close);
    connect(m_copy, &QAction::triggered, this, &MainWindow::copySelection);
    connect(m_find, &QAction::triggered, m_panel, &DevicePanel::focusFilter);
    connect(m_findNext, &QAction::triggered, m_panel, &DevicePanel::findNext);
    connect(m_goTo, &QAction::triggered, this, &MainWindow::goToAddress);
    connect(m_font, &QAction::triggered, this, &MainWindow::chooseFont);
    connect(m_steps, &WorkSteps::sigStepClicked, this, &MainWindow::takeStep);
    connect(m_editBits, &QAction::triggered, m_panel, &DevicePanel::editBits);
    connect(m_resetRegister, &QAction::triggered, this, &MainWindow::resetRegister);
    connect(m_resetAll, &QAction::triggered, this, &MainWindow::resetAll);
    connect(m_changesOnly, &QAction::triggered, this, &MainWindow::setChangesOnly);
    connect(m_expandAll, &QAction::triggered, this, &MainWindow::expandAll);
    connect(m_collapseAll, &QAction::triggered, m_panel->view(), &QTreeView::collapseAll);
    connect(m_bases, &QActionGroup::triggered, this,
            [this](QAction* action) { setBase(static_cast<NumberBase>(action->data().toInt())); });
    connect(m_view, &FormView::fieldBaseChanged, this, &MainWindow::setBase);
    // Who goes elsewhere has done with what was being typed.
    connect(qApp, &QApplication::focusChanged, this, [this] {
        if (m_edits) {
            m_edits->endGesture();
        }
    });
    connect(m_splitter, &QSplitter::splitterMoved, this, [this] { m_splitterIsPlaced = true; });
    connect(m_panel, &DevicePanel::changesOnlyChanged, this, &MainWindow::setChangesOnly);
    connect(m_panel, &DevicePanel::currentPlaceChanged, this, &MainWindow::showPlace);
    connect(m_loader, &DeviceLoader::started, this, &MainWindow::startLoading);
    connect(m_loader, &DeviceLoader::progressed, m_loadDialog, &LoadDialog::setProgress);
    connect(m_loader, &DeviceLoader::finished, this, &MainWindow::finishLoading);
    connect(m_loadDialog, &LoadDialog::cancelled, m_loader, &DeviceLoader::cancel);
}

void MainWindow::setSession(Session session)
{
    m_view->clear();
    std::swap(m_session, session); // the old one lives until the tree has let go of it
    auto edits = std::make_unique<DeviceEdits>(*m_session.state);
    m_panel->setEdits(*edits);
    m_edits.swap(edits);
    m_undoGroup->addStack(m_edits->stack());
    m_undoGroup->setActiveStack(m_edits->stack());
    m_changesOnly->setChecked(false);
    if (!m_splitterIsPlaced) {
        const int treeWidth = std::min(m_panel->preferredWidth(), width() - kFormWidth);
        m_splitter->setSizes({treeWidth, width() - treeWidth});
    }
    m_fileName = m_session.device->sourceFile;
    m_savedValues = m_session.state->values();
    m_wasSaved = false;
    connect(m_session.state.get(), &DeviceState::registerChanged, this, &MainWindow::markEdited);
    connect(m_session.state.get(), &DeviceState::allChanged, this, &MainWindow::markEdited);
    connect(m_edits.get(), &DeviceEdits::stepped, this, &MainWindow::showStep);
    setWindowModified(false);
    updateTitle();
    updateState();
    if (m_session.selection.isValid()) {
        select(m_session.selection);
        m_panel->expandCurrent();
    } else if (m_session.device->registerCount() > 0) {
        select({0, -1});
    }
}

void MainWindow::select(const PathTarget& target)
{
    m_panel->setCurrentPlace({m_session.device->registerAt(target.registerIndex).node, target.fieldIndex});
    if (target.isField()) {
        m_view->showField(target.fieldIndex);
    }
}

void MainWindow::showPlace(const TreePlace& place)
{
    const int registerIndex = m_session.device->node(place.node).registerIndex;
    if (registerIndex < 0 || !m_view->form() || m_view->form()->registerIndex() != registerIndex) {
        m_view->showNode(*m_edits, place.node);
    }
    m_view->markField(place.field);
    updateState();
}

/// What an undone edit has changed is shown, unless it is already.
void MainWindow::showStep(const PathTarget& target)
{
    if (target.isValid() && (!m_view->form() || m_view->form()->registerIndex() != target.registerIndex)) {
        m_panel->setCurrentPlace({m_session.device->registerAt(target.registerIndex).node, target.fieldIndex});
    }
}

void MainWindow::goToAddress()
{
    GoToDialog dialog(this);
    const TreePlace present = m_panel->currentPlace();
    dialog.setAddress(m_session.device->node(present.node).address);
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    const int index = m_session.device->findAddress(dialog.address());
    if (index >= 0) {
        select({index, -1});
    } else {
        statusBar()->showMessage(tr("No register at %1").arg(numberText(dialog.address(), NumberBase::Hexadecimal)),
                                 kMessageMs);
    }
}

void MainWindow::chooseFont()
{
    nsUI::FontSettingDlg dialog(this);
    if (dialog.exec() == QDialog::Accepted) {
        useChosenFont();
    }
}

void MainWindow::takeStep(int step)
{
    if (!m_edits && step != WorkSteps::Open) {
        return;
    }
    switch (step) {
    case WorkSteps::Open:
        openWithDialog();
        break;
    case WorkSteps::Save:
        exportWithDialog();
        break;
    default:
        setChangesOnly(step == WorkSteps::Review);
        break;
    }
    updateStep();
}

void MainWindow::updateStep()
{
    if (m_loader->isLoading() || !m_edits) {
        m_steps->slotSetCurrentStep(WorkSteps::Open);
    } else if (m_panel->changesOnly()) {
        m_steps->slotSetCurrentStep(WorkSteps::Review);
    } else {
        m_steps->slotSetCurrentStep(m_wasSaved && !isWindowModified() ? WorkSteps::Save : WorkSteps::Edit);
    }
}

void MainWindow::expandAll()
{
    const nsUI::CAutoCursor waiting(Qt::WaitCursor);
    m_panel->view()->expandAll();
}

void MainWindow::setBase(NumberBase base)
{
    m_view->setFieldBase(base);
    m_panel->setBase(base);
    for (QAction* action : m_bases->actions()) {
        action->setChecked(action->data().toInt() == static_cast<int>(base));
    }
}

void MainWindow::setChangesOnly(bool changesOnly)
{
    m_changesOnly->setChecked(changesOnly);
    m_panel->setChangesOnly(changesOnly);
    updateStep();
}

void MainWindow::copySelection()
{
    const QString text = m_panel->selectedText();
    if (!text.isEmpty()) {
        QGuiApplication::clipboard()->setText(text);
    }
}

bool MainWindow::openFile(const QString& fileName)
{
    if (m_loader->isLoading() || !confirmLosingEdits()) {
        return false;
    }
    SvdResult result = m_loader->load(fileName);
    const bool closes = std::exchange(m_closesAfterLoading, false);
    if (closes) {
        close();
        return false;
    }
    if (result.cancelled) {
        statusBar()->showMessage(tr("Reading was cancelled."), kMessageMs);
        return false;
    }
    if (!result.isOk()) {
        showError(this, tr("The file cannot be opened"), result.error.text());
        return false;
    }
    setSession({result.device, std::make_unique<DeviceState>(result.device), {}});
    return true;
}

void MainWindow::openWithDialog()
{
    const QString folder = m_fileName.startsWith(QLatin1Char(':')) ? QString() : QFileInfo(m_fileName).path();
    const QString fileName = QFileDialog::getOpenFileName(this, tr("Open a device description"), folder,
                                                          tr("CMSIS-SVD descriptions (*.svd *.xml);;All files (*)"),
                                                          nullptr, dialogOptions());
    if (!fileName.isEmpty()) {
        openFile(fileName);
    }
}

void MainWindow::openSample()
{
    openFile(sampleFileName());
}

bool MainWindow::exportWithDialog()
{
    const QString fileName =
        QFileDialog::getSaveFileName(this, tr("Save values"), m_session.device->name + QLatin1String(".json"),
                                     tr("JSON files (*.json);;All files (*)"), nullptr, dialogOptions());
    if (fileName.isEmpty()) {
        return false;
    }
    return saveValues(fileName);
}

bool MainWindow::saveValues(const QString& fileName)
{
    QString error;
    bool isSaved = false;
    {
        const nsUI::CAutoCursor waiting(Qt::WaitCursor);
        isSaved = saveExport(fileName, exportJson(*m_session.state), &error);
    }
    if (!isSaved) {
        showError(this, tr("The file cannot be written"), error);
        return false;
    }
    m_edits->endGesture();
    m_savedValues = m_session.state->values();
    m_wasSaved = true;
    setWindowModified(false);
    updateStep();
    statusBar()->showMessage(tr("Saved to %1").arg(fileName), kMessageMs);
    return true;
}

void MainWindow::loadWithDialog()
{
    const QString fileName = QFileDialog::getOpenFileName(
        this, tr("Load values"), QString(), tr("JSON files (*.json);;All files (*)"), nullptr, dialogOptions());
    if (!fileName.isEmpty()) {
        loadValues(fileName);
    }
}

bool MainWindow::loadValues(const QString& fileName)
{
    const ImportResult result = [&] {
        const nsUI::CAutoCursor waiting(Qt::WaitCursor);
        return readExportFile(fileName, *m_session.state);
    }();
    const QString name = QFileInfo(fileName).fileName();
    if (!result.isOk()) {
        showError(this, tr("The values cannot be loaded"), result.error);
        return false;
    }
    const bool isOfAnother = !result.deviceName.isEmpty() && result.deviceName != m_session.device->name;
    if ((isOfAnother || !result.unplaced.isEmpty()) &&
        !UnplacedDialog(name, result, isOfAnother ? result.deviceName : QString(), this).ask()) {
        return false;
    }
    const int before = m_edits->stack()->index();
    m_edits->setAll(result.values, name);
    const bool isChanged = m_edits->stack()->index() != before;
    statusBar()->showMessage(isChanged ? tr("Loaded from %1").arg(fileName)
                                       : tr("%1 holds the values that are already there.").arg(name),
                             kMessageMs);
    return true;
}

bool MainWindow::confirmLosingEdits()
{
    if (QWidget* edited = focusWidget()) {
        edited->clearFocus(); // what stands in an open editor is an edit too
    }
    if (!isWindowModified()) {
        return true;
    }
    QMessageBox box(QMessageBox::Question, tr("Edited values"), tr("The edited values of this device would be lost."),
                    QMessageBox::NoButton, this);
    const QAbstractButton* exports = box.addButton(tr("&Save Values…"), QMessageBox::AcceptRole);
    const QAbstractButton* discards = box.addButton(QMessageBox::Discard);
    box.setDefaultButton(box.addButton(QMessageBox::Cancel));
    box.exec();
    if (box.clickedButton() == exports) {
        return exportWithDialog();
    }
    return box.clickedButton() == discards;
}

void MainWindow::resetRegister()
{
    if (RegisterForm* form = m_view->form()) {
        m_edits->reset(form->registerIndex());
    }
}

void MainWindow::resetAll()
{
    if (m_edits) {
        m_edits->resetAll();
    }
}

void MainWindow::markEdited()
{
    setWindowModified(m_session.state->values() != m_savedValues);
    updateState();
}

void MainWindow::updateState()
{
    const DeviceState* state = m_session.state.get();
    const int changed = state ? state->modifiedCount() : 0;
    const RegisterForm* form = m_view->form();
    const bool idle = !m_loader->isLoading();
    m_open->setEnabled(idle);
    m_openSample->setEnabled(idle);
    m_load->setEnabled(idle && state);
    m_export->setEnabled(idle && state);
    m_editBits->setEnabled(idle && m_panel->registerOfBits() >= 0);
    m_changesOnly->setEnabled(idle && state);
    m_undoGroup->setActiveStack(idle && m_edits ? m_edits->stack() : nullptr);
    m_resetRegister->setEnabled(idle && form && state->isModified(form->registerIndex()));
    m_resetAll->setEnabled(idle && changed > 0);
    m_resetAll->setText(changed > 0 ? tr("Reset &All (%1)").arg(changed) : tr("Reset &All"));
    m_changedLabel->setText(state ? changedText(changed) : QString());
    m_goTo->setEnabled(idle && state);
    m_steps->setEnabled(idle);
    updateStep();
}

void MainWindow::updateTitle()
{
    const QString file =
        m_fileName.startsWith(QLatin1Char(':')) ? tr("built-in sample") : QFileInfo(m_fileName).fileName();
    setWindowTitle(QStringLiteral("%1 – %2[*] – %3").arg(m_session.device->name, file, tr("Tessera Registers")));
}

void MainWindow::startLoading(const QString& fileName)
{
    m_splitter->setEnabled(false);
    m_loadDialog->start(fileName);
    updateState();
}

void MainWindow::finishLoading()
{
    m_loadDialog->hide();
    m_splitter->setEnabled(true);
    updateState();
}

void MainWindow::restoreLayout()
{
    m_keepsLayout = true;
    const Settings settings;
    restoreGeometry(settings.windowGeometry());
    m_splitterIsPlaced = m_splitter->restoreState(settings.splitterState());
    setBase(settings.fieldBase());
}

void MainWindow::saveLayout()
{
    if (m_keepsLayout) {
        Settings settings;
        settings.setWindowGeometry(saveGeometry());
        if (m_splitterIsPlaced) {
            settings.setSplitterState(m_splitter->saveState());
        }
        settings.setFieldBase(m_view->fieldBase());
    }
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (m_loader->isLoading()) {
        m_loader->cancel();
        m_closesAfterLoading = true;
        event->ignore();
        return;
    }
    if (!confirmLosingEdits()) {
        event->ignore();
        return;
    }
    saveLayout();
    event->accept();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!droppedFile(event->mimeData()).isEmpty() && !m_loader->isLoading()) {
        event->acceptProposedAction();
    }
}

void MainWindow::dropEvent(QDropEvent* event)
{
    event->acceptProposedAction();
    openFile(droppedFile(event->mimeData()));
}

} // namespace registers
