// SPDX-License-Identifier: MIT
#include "frame/MainWindow.h"

#include "frame/LookBar.h"
#include "host/Host.h"
#include "host/Names.h"
#include "pages/DialogLauncher.h"
#include "pages/Page.h"
#include "pages/Pages.h"

#include <QCoreApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QListWidget>
#include <QStackedWidget>

#include <algorithm>

namespace gallery {

namespace {

constexpr QSize kDefaultSize(1240, 800);
constexpr QSize kSmallestSize(640, 400);
constexpr int kHighest = 12000; // of a picture
constexpr int kNavigationMargin = 36;
constexpr int kNavigationPadding = 8;

/// The place of a page that has not been made yet.
bool isPlaceholder(const QWidget* widget)
{
    return !qobject_cast<const Page*>(widget);
}

} // namespace

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent)
    , m_navigation(new QListWidget)
    , m_pages(new QStackedWidget)
{
    initUI();
    updateTexts();
    initConnect();
    resize(kDefaultSize);
}

void MainWindow::showPage(const QString& name)
{
    m_navigation->setCurrentRow(std::max(0, static_cast<int>(pageNames().indexOf(name))));
}

Page* MainWindow::currentPage() const
{
    return qobject_cast<Page*>(m_pages->currentWidget());
}

void MainWindow::openDialog(const QString& name)
{
    gallery::openDialog(name, this);
}

void MainWindow::fitPage()
{
    const int missing = currentPage()->missingHeight();
    resize(width(), std::min(kHighest, height() + missing));
}

void MainWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    switch (event->type()) {
    case QEvent::LanguageChange:
        updateTexts();
        break;
    case QEvent::FontChange:
    case QEvent::StyleChange:
        fitNavigation();
        break;
    default:
        break;
    }
}

void MainWindow::initUI()
{
    setMinimumSize(kSmallestSize);
    m_navigation->setObjectName(QStringLiteral("navigation"));
    m_navigation->setFrameShape(QFrame::NoFrame);
    m_navigation->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    const QStringList names = pageNames();
    for (int i = 0; i < names.size(); ++i) {
        m_navigation->addItem(QString());
        m_pages->addWidget(new QWidget);
    }

    auto* content = new QWidget;
    auto* layout = new QHBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_navigation);
    layout->addWidget(m_pages, 1);
    addToolBar(new LookBar(this)); // before the content, which the tab key reaches behind it
    setCentralWidget(content);
}

void MainWindow::initConnect()
{
    connect(m_navigation, &QListWidget::currentRowChanged, this, &MainWindow::turnTo);
    connect(findChild<LookBar*>(), &LookBar::fontRequested, this, [this] { openDialog(QStringLiteral("font")); });
}

void MainWindow::updateTexts()
{
    setWindowTitle(tr("Tessera Gallery"));
    m_navigation->setAccessibleName(tr("Pages"));
    const QStringList names = pageNames();
    for (int i = 0; i < names.size(); ++i) {
        m_navigation->item(i)->setText(text(titleOfPage(names.at(i))));
    }
    fitNavigation();
}

void MainWindow::fitNavigation()
{
    m_navigation->ensurePolished();
    const QFontMetrics metrics(m_navigation->font());
    int widest = 0;
    for (int i = 0; i < m_navigation->count(); ++i) {
        QListWidgetItem* item = m_navigation->item(i);
        widest = std::max(widest, metrics.horizontalAdvance(item->text()));
        item->setSizeHint(QSize(0, metrics.height() + 2 * kNavigationPadding));
    }
    m_navigation->setFixedWidth(widest + kNavigationMargin);
}

void MainWindow::turnTo(int place)
{
    QWidget* there = m_pages->widget(place);
    if (!there) {
        return;
    }
    if (isPlaceholder(there)) {
        m_pages->insertWidget(place, makePage(pageNames().at(place)));
        m_pages->removeWidget(there);
        delete there;
    }
    m_pages->setCurrentIndex(place);
}

} // namespace gallery
