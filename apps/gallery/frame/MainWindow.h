// SPDX-License-Identifier: MIT
#pragma once

#include <QMainWindow>

QT_BEGIN_NAMESPACE
class QListWidget;
class QStackedWidget;
QT_END_NAMESPACE

namespace gallery {

class Page;

/// The gallery: the list of pages, the page that is chosen, and the tool bar for the look of it all.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);

    /// Turns to the page of one of pageNames(), which is made when it is first wanted.
    void showPage(const QString& name);
    Page* currentPage() const;

    /// Opens the dialog of one of dialogNames(), until the user closes it.
    void openDialog(const QString& name);

    /// Makes the window as high as its page, so that all of it is seen.
    void fitPage();

protected:
    void changeEvent(QEvent* event) override;

private:
    void initUI();
    void initConnect();
    void updateTexts();
    void fitNavigation();
    void turnTo(int place);

    QListWidget* m_navigation;
    QStackedWidget* m_pages;
};

} // namespace gallery
