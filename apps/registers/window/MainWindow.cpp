// SPDX-License-Identifier: MIT
#include "window/MainWindow.h"

#include "form/FormView.h"
#include "tree/DevicePanel.h"
#include "window/EditActions.h"
#include "window/FileActions.h"
#include "window/FileWork.h"
#include "window/LayoutKeeper.h"
#include "window/Navigator.h"
#include "window/RemarksButton.h"
#include "window/Settings.h"
#include "window/ViewActions.h"
#include "window/WindowText.h"
#include "window/WorkSteps.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QSplitter>
#include <QStatusBar>
#include <QToolBar>
#include <QTreeView>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace registers {

namespace {

constexpr QSize kDefaultSize(1440, 820);
constexpr int kFormWidth = 650;
constexpr int kToolIcon = 20;
constexpr int kMessageMs = 6000;

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
    , m_files(new FileWork(this))
    , m_fileActions(new FileActions(m_files, this))
    , m_editActions(new EditActions(m_panel, m_view, this))
    , m_viewActions(new ViewActions(m_panel, m_view, this))
    , m_layout(new LayoutKeeper(this, m_splitter))
    , m_navigator(new Navigator(m_panel, m_view))
    , m_steps(new WorkSteps)
    , m_remarks(new RemarksButton)
    , m_changedLabel(new QLabel)
{
    initCentral();
    initMenus();
    initToolBar();
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

void MainWindow::initCentral()
{
    m_splitter->addWidget(m_panel);
    m_splitter->addWidget(m_view);
    m_splitter->setStretchFactor(1, 1);
    m_splitter->setChildrenCollapsible(false);
    setCentralWidget(m_splitter);
    setAcceptDrops(true);
    m_changedLabel->setObjectName(QStringLiteral("changedCount"));
    statusBar()->addPermanentWidget(m_remarks);
    statusBar()->addPermanentWidget(m_changedLabel);
}

void MainWindow::initMenus()
{
    m_fileActions->fill(menuBar()->addMenu(tr("&File")));
    m_editActions->fill(menuBar()->addMenu(tr("&Edit")));
    m_viewActions->fill(menuBar()->addMenu(tr("&View")));
    menuBar()->setCornerWidget(m_steps);
    m_editActions->fillRowMenu(m_panel->view());
    m_viewActions->fillRowMenu(m_panel->view());
}

void MainWindow::initToolBar()
{
    QToolBar* bar = addToolBar(tr("Tools"));
    bar->setObjectName(QStringLiteral("tools"));
    bar->setMovable(false);
    bar->setIconSize(QSize(kToolIcon, kToolIcon));
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    m_fileActions->fill(bar);
    bar->addSeparator();
    m_editActions->fill(bar);
    bar->addSeparator();
    m_viewActions->fill(bar);
}

void MainWindow::initConnect()
{
    connect(m_files, &FileWork::opened, this, [this](const SvdResult& read) { setSession(sessionOf(read)); });
    connect(m_files, &FileWork::saved, this, &MainWindow::markEdited);
    connect(m_files, &FileWork::readingStarted, this, &MainWindow::updateState);
    connect(m_files, &FileWork::readingFinished, this, &MainWindow::updateState);
    connect(m_editActions, &EditActions::addressGiven, m_navigator, &Navigator::goToAddress);
    connect(m_viewActions, &ViewActions::changesOnlyChanged, this, &MainWindow::updateStep);
    connect(m_steps, &WorkSteps::sigStepClicked, this, &MainWindow::takeStep);
    connect(m_remarks, &RemarksButton::registerChosen, m_navigator, &Navigator::goToRegister);
    connect(m_navigator, &Navigator::moved, this, &MainWindow::updateState);
    connect(m_navigator, &Navigator::notFound, this,
            [this](quint64 address) { statusBar()->showMessage(noRegisterText(address), kMessageMs); });
    // Who goes elsewhere has done with what was being typed.
    connect(qApp, &QApplication::focusChanged, this, [this] {
        if (m_device) {
            edits().endGesture();
        }
    });
}

void MainWindow::setSession(Session session)
{
    m_view->clear();
    const auto before = std::exchange(m_device, std::make_unique<OpenDevice>(std::move(session)));
    m_files->setDevice(m_device.get());
    m_navigator->setDevice(m_device.get());
    m_panel->setEdits(edits()); // until then the tree looks at what was open before
    m_viewActions->uncheckChangesOnly();
    m_layout->suggestWidth(std::min(m_panel->preferredWidth(), width() - kFormWidth));
    connect(&m_device->state(), &DeviceState::registerChanged, this, &MainWindow::markEdited);
    connect(&m_device->state(), &DeviceState::allChanged, this, &MainWindow::markEdited);
    setWindowTitle(titleText(*m_device));
    m_remarks->setRemarks(this->session().remarks, this->session().remarkCount);
    markEdited();
    m_navigator->showFirst(this->session().selection);
}

void MainWindow::takeStep(int step)
{
    if (!m_device && step != WorkSteps::Open) {
        return;
    }
    switch (step) {
    case WorkSteps::Open:
        m_files->openWithDialog();
        break;
    case WorkSteps::Save:
        m_files->saveWithDialog();
        break;
    default:
        m_viewActions->setChangesOnly(step == WorkSteps::Review);
        break;
    }
    updateStep();
}

void MainWindow::updateStep()
{
    if (m_files->isReading() || !m_device) {
        m_steps->slotSetCurrentStep(WorkSteps::Open);
    } else if (m_panel->changesOnly()) {
        m_steps->slotSetCurrentStep(WorkSteps::Review);
    } else {
        m_steps->slotSetCurrentStep(m_device->wasSaved() && !isWindowModified() ? WorkSteps::Save : WorkSteps::Edit);
    }
}

bool MainWindow::openFile(const QString& fileName)
{
    return m_files->open(fileName);
}

bool MainWindow::loadValues(const QString& fileName)
{
    return m_files->load(fileName);
}

bool MainWindow::saveValues(const QString& fileName)
{
    return m_files->save(fileName);
}

void MainWindow::markEdited()
{
    setWindowModified(m_device->isEdited());
    updateState();
}

void MainWindow::updateState()
{
    const bool isIdle = !m_files->isReading();
    m_splitter->setEnabled(isIdle);
    m_fileActions->update(m_device != nullptr);
    m_editActions->update(isIdle ? m_device.get() : nullptr);
    m_viewActions->update(isIdle && m_device);
    m_changedLabel->setText(m_device ? changedText(m_device->state().modifiedCount()) : QString());
    m_steps->setEnabled(isIdle);
    updateStep();
}

void MainWindow::restoreLayout()
{
    m_layout->restore();
    m_viewActions->setBase(Settings().fieldBase());
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (!m_files->mayClose()) {
        event->ignore();
        return;
    }
    m_layout->save(m_view->fieldBase());
    event->accept();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!droppedFile(event->mimeData()).isEmpty() && !m_files->isReading()) {
        event->acceptProposedAction();
    }
}

void MainWindow::dropEvent(QDropEvent* event)
{
    event->acceptProposedAction();
    openFile(droppedFile(event->mimeData()));
}

} // namespace registers
