// SPDX-License-Identifier: MIT
#include "gui/MainWindow.h"

#include "device/DeviceExport.h"
#include "gui/DeviceLoader.h"
#include "gui/DevicePanel.h"
#include "gui/FormView.h"
#include "gui/Icons.h"
#include "gui/LoadBar.h"
#include "gui/RegisterForm.h"
#include "gui/Settings.h"

#include <QActionGroup>
#include <QCloseEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QSplitter>
#include <QStatusBar>
#include <QToolBar>

#include <utility>

namespace registers {

namespace {

constexpr QSize kDefaultSize(1180, 760);
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
    , m_panel(new DevicePanel)
    , m_view(new FormView)
    , m_splitter(new QSplitter(this))
    , m_loader(new DeviceLoader(this))
    , m_loadBar(new LoadBar)
    , m_changedLabel(new QLabel)
    , m_fieldBases(new QActionGroup(this))
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
    // They look at the session, so they go before it.
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
    addAction(m_export, tr("&Export JSON…"), QKeySequence(tr("Ctrl+E")), "export")->setIcon(lineIcon(LineIcon::Export));
    addAction(m_quit, tr("&Quit"), QKeySequence::Quit, "quit");
    addAction(m_find, tr("&Find"), QKeySequence::Find, "find");
    addAction(m_resetRegister, tr("&Reset Register"), QKeySequence(tr("Ctrl+R")), "resetCurrent")
        ->setIcon(lineIcon(LineIcon::Reset));
    addAction(m_resetAll, tr("Reset &All"), QKeySequence(tr("Ctrl+Shift+R")), "resetAll")
        ->setIcon(lineIcon(LineIcon::ResetAll));

    const struct
    {
        NumberBase base;
        QString text;
        QString shortcut;
    } bases[] = {
        {NumberBase::Decimal, tr("Fields in &Decimal"), tr("Ctrl+1")},
        {NumberBase::Hexadecimal, tr("Fields in &Hexadecimal"), tr("Ctrl+2")},
        {NumberBase::Binary, tr("Fields in &Binary"), tr("Ctrl+3")},
    };
    for (const auto& entry : bases) {
        QAction* action = m_fieldBases->addAction(entry.text);
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
    file->addAction(m_export);
    file->addSeparator();
    file->addAction(m_quit);
    QMenu* edit = menuBar()->addMenu(tr("&Edit"));
    edit->addAction(m_find);
    edit->addSeparator();
    edit->addActions({m_resetRegister, m_resetAll});
    QMenu* view = menuBar()->addMenu(tr("&View"));
    view->addActions(m_fieldBases->actions());
}

void MainWindow::initToolBar()
{
    QToolBar* bar = addToolBar(tr("Tools"));
    bar->setObjectName(QStringLiteral("tools"));
    bar->setMovable(false);
    bar->setIconSize(QSize(kToolIcon, kToolIcon));
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    bar->addActions({m_open, m_export});
    bar->addSeparator();
    bar->addActions({m_resetRegister, m_resetAll});
}

void MainWindow::initStatusBar()
{
    m_changedLabel->setObjectName(QStringLiteral("changedCount"));
    m_loadBar->hide();
    statusBar()->addWidget(m_loadBar, 1);
    statusBar()->addPermanentWidget(m_changedLabel);
}

void MainWindow::initConnect()
{
    connect(m_open, &QAction::triggered, this, &MainWindow::openWithDialog);
    connect(m_openSample, &QAction::triggered, this, &MainWindow::openSample);
    connect(m_export, &QAction::triggered, this, &MainWindow::exportWithDialog);
    connect(m_quit, &QAction::triggered, this, &MainWindow::close);
    connect(m_find, &QAction::triggered, m_panel, &DevicePanel::focusFilter);
    connect(m_resetRegister, &QAction::triggered, this, &MainWindow::resetRegister);
    connect(m_resetAll, &QAction::triggered, this, &MainWindow::resetAll);
    connect(m_fieldBases, &QActionGroup::triggered, this,
            [this](QAction* action) { m_view->setFieldBase(static_cast<NumberBase>(action->data().toInt())); });
    connect(m_view, &FormView::fieldBaseChanged, this, [this](NumberBase base) {
        for (QAction* action : m_fieldBases->actions()) {
            action->setChecked(action->data().toInt() == static_cast<int>(base));
        }
    });
    connect(m_splitter, &QSplitter::splitterMoved, this, [this] { m_splitterIsPlaced = true; });
    connect(m_panel, &DevicePanel::currentNodeChanged, this, &MainWindow::showNode);
    connect(m_loader, &DeviceLoader::started, this, &MainWindow::startLoading);
    connect(m_loader, &DeviceLoader::progressed, m_loadBar, &LoadBar::setProgress);
    connect(m_loader, &DeviceLoader::finished, this, &MainWindow::finishLoading);
    connect(m_loadBar, &LoadBar::cancelClicked, m_loader, &DeviceLoader::cancel);
}

void MainWindow::setSession(Session session)
{
    m_view->clear();
    std::swap(m_session, session); // the old one lives until the tree has let go of it
    m_panel->setState(*m_session.state);
    if (!m_splitterIsPlaced) {
        m_splitter->setSizes({m_panel->preferredWidth(), width() - m_panel->preferredWidth()});
    }
    m_fileName = m_session.device->sourceFile;
    connect(m_session.state.get(), &DeviceState::registerChanged, this, &MainWindow::markEdited);
    connect(m_session.state.get(), &DeviceState::allChanged, this, &MainWindow::markEdited);
    setWindowModified(false);
    updateTitle();
    updateState();
    if (m_session.selection.isValid()) {
        select(m_session.selection);
    } else if (m_session.device->registerCount() > 0) {
        select({0, -1});
    }
}

void MainWindow::select(const PathTarget& target)
{
    m_panel->setCurrentNode(m_session.device->registerAt(target.registerIndex).node);
    if (target.isField()) {
        m_view->showField(target.fieldIndex);
    }
}

void MainWindow::showNode(int node)
{
    m_view->showNode(*m_session.state, node);
    updateState();
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
        QFileDialog::getSaveFileName(this, tr("Export all registers"), m_session.device->name + QLatin1String(".json"),
                                     tr("JSON files (*.json);;All files (*)"), nullptr, dialogOptions());
    if (fileName.isEmpty()) {
        return false;
    }
    QString error;
    if (!saveExport(fileName, exportJson(*m_session.state), &error)) {
        showError(this, tr("The file cannot be written"), error);
        return false;
    }
    setWindowModified(false);
    statusBar()->showMessage(tr("Exported to %1").arg(fileName), kMessageMs);
    return true;
}

bool MainWindow::confirmLosingEdits()
{
    if (!isWindowModified()) {
        return true;
    }
    QMessageBox box(QMessageBox::Question, tr("Edited values"), tr("The edited values of this device would be lost."),
                    QMessageBox::NoButton, this);
    const QAbstractButton* exports = box.addButton(tr("&Export JSON…"), QMessageBox::AcceptRole);
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
        m_session.state->reset(form->registerIndex());
    }
}

void MainWindow::resetAll()
{
    if (m_session.state) {
        m_session.state->resetAll();
    }
}

void MainWindow::markEdited()
{
    setWindowModified(m_session.state->modifiedCount() > 0);
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
    m_export->setEnabled(idle && state);
    m_resetRegister->setEnabled(idle && form && state->isModified(form->registerIndex()));
    m_resetAll->setEnabled(idle && changed > 0);
    m_resetAll->setText(changed > 0 ? tr("Reset &All (%1)").arg(changed) : tr("Reset &All"));
    m_changedLabel->setText(state ? changedText(changed) : QString());
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
    m_loadBar->start(fileName);
    m_loadBar->show();
    updateState();
}

void MainWindow::finishLoading()
{
    m_loadBar->hide();
    m_splitter->setEnabled(true);
    updateState();
}

void MainWindow::restoreLayout()
{
    m_keepsLayout = true;
    const Settings settings;
    restoreGeometry(settings.windowGeometry());
    m_splitterIsPlaced = m_splitter->restoreState(settings.splitterState());
    m_view->setFieldBase(settings.fieldBase());
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
