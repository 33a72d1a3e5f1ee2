// SPDX-License-Identifier: MIT
#include "Pictures.h"
#include "Setting.h"
#include "support/GlobalState.h"
#include "support/TestMain.h"
#include "Walk.h"

#include "common/Screenshot.h"
#include "frame/MainWindow.h"
#include "host/Host.h"
#include "host/Names.h"
#include "pages/DialogCatalog.h"
#include "pages/Page.h"
#include "samples/CellTable.h"

#include <Tessera/views/TbView.h>

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLoggingCategory>
#include <QRegularExpression>
#include <QTest>

#include <memory>

using namespace gallery;

Q_LOGGING_CATEGORY(c_looks, "tests.looks") // what was looked at; a message without a category would fail the run

namespace {

const QString kEditors = QStringLiteral("editors");
const QString kDialogPrefix = QStringLiteral("dialog-");

QStringList sceneNames()
{
    QStringList names = pageNames();
    names.append(kEditors);
    for (const QString& dialog : dialogNames()) {
        names.append(kDialogPrefix + dialog);
    }
    return names;
}

/// Replaces the colours that come by chance.
void pinRandomColors(QWidget* window)
{
    const QList<QLabel*> fields = window->findChildren<QLabel*>(QStringLiteral("randomColor"));
    for (QLabel* field : fields) {
        QPalette palette;
        palette.setColor(QPalette::Window, Qt::darkGreen);
        palette.setColor(QPalette::WindowText, Qt::white);
        field->setPalette(palette);
        field->setText(QColor(Qt::darkGreen).name());
    }
}

std::unique_ptr<QWidget> makePageWindow(const QString& name)
{
    constexpr int kSettlingRounds = 3; // a page's height follows its width, and that the scroll bar
    auto window = std::make_unique<MainWindow>();
    window->showPage(name);
    pinRandomColors(window.get());
    apps::showUnseen(window.get());
    for (int i = 0; i < kSettlingRounds; ++i) {
        QCoreApplication::processEvents();
        window->fitPage();
    }
    QCoreApplication::processEvents();
    return window;
}

/// The page of the item views with all editors of the table open.
std::unique_ptr<QWidget> makeEditorsWindow()
{
    std::unique_ptr<QWidget> window = makePageWindow(QStringLiteral("items"));
    auto* view = window->findChild<nsUI::TbView*>();
    const QAbstractItemModel* model = view->model();
    for (int row = 0; row < model->rowCount(); ++row) {
        const QModelIndex cell = model->index(row, CellTable::ValueColumn);
        if (cell.flags() & Qt::ItemIsEditable) {
            view->openPersistentEditor(cell);
        }
    }
    QCoreApplication::processEvents();
    return window;
}

std::unique_ptr<QWidget> makeScene(const QString& name)
{
    if (name == kEditors) {
        return makeEditorsWindow();
    }
    if (!name.startsWith(kDialogPrefix)) {
        return makePageWindow(name);
    }
    std::unique_ptr<QWidget> dialog(dialogNamed(name.mid(kDialogPrefix.size())).make(nullptr));
    apps::showUnseen(dialog.get());
    QCoreApplication::processEvents();
    return dialog;
}

} // namespace

/// All of the library, as the gallery shows it.
class tst_GalleryLooks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void aSceneLooksWell_data();
    void aSceneLooksWell();
    void everyWidgetOfTheLibraryWasLookedAt();

private:
    std::unique_ptr<TestSupport::GlobalState> m_global;
    std::unique_ptr<Host> m_host;
    QVector<looks::Setting> m_all;
    QSet<QString> m_classes;
    int m_widgets = 0;
};

void tst_GalleryLooks::initTestCase()
{
    m_global = std::make_unique<TestSupport::GlobalState>();
    const QString missing = looks::pinLooks();
    QVERIFY2(missing.isEmpty(), qPrintable(missing));
    // The gallery changes sheets all the time, and the library tells of each change and of the fonts.
    TestSupport::allowMessages(QtInfoMsg,
                               QRegularExpression(QStringLiteral("^(Successfully to load|Unused) qss File: ")));
    TestSupport::allowMessages(QtDebugMsg, QRegularExpression(QStringLiteral("QFileInfo\\(:/ttf/.*\\.ttf\\)")));
    m_host = std::make_unique<Host>(Look());
}

void tst_GalleryLooks::cleanupTestCase()
{
    qCInfo(c_looks, "%d widgets were looked at", m_widgets);
    m_host.reset();
    m_global.reset();
}

void tst_GalleryLooks::aSceneLooksWell_data()
{
    QTest::addColumn<int>("setting");
    QTest::addColumn<QString>("scene");
    m_all = looks::settingsOfProcess();
    for (int i = 0; i < m_all.size(); ++i) {
        for (const QString& scene : sceneNames()) {
            QTest::addRow("%s-%s", qPrintable(scene), qPrintable(m_all.at(i).name())) << i << scene;
        }
    }
}

void tst_GalleryLooks::aSceneLooksWell()
{
    QFETCH(int, setting);
    QFETCH(QString, scene);
    const looks::Setting& look = m_all.at(setting);
    m_host->setLanguage(look.isChinese ? Language::Chinese : Language::English);
    m_host->setShade(look.isDark ? Shade::Dark : Shade::Light);
    m_host->setDirection(look.direction);
    const std::unique_ptr<QWidget> window = makeScene(scene);
    const QVector<QWidget*> widgets = looks::visibleWidgets(window.get());
    m_widgets += static_cast<int>(widgets.size());
    for (const QWidget* widget : widgets) {
        for (const QMetaObject* meta = widget->metaObject(); meta; meta = meta->superClass()) {
            m_classes.insert(QString::fromLatin1(meta->className()));
        }
    }
    QStringList found = looks::findings(window.get());
    const QString difference =
        scene == kEditors ? QString() : looks::checkPicture(window.get(), QStringLiteral("gallery-") + scene, look);
    found += difference.isEmpty() ? QStringList() : QStringList(difference);
    for (const QString& finding : qAsConst(found)) {
        qWarning("%s", qPrintable(finding)); // a failure's text is cut
    }
    QCOMPARE(found.size(), 0);
}

void tst_GalleryLooks::everyWidgetOfTheLibraryWasLookedAt()
{
    for (const char* name :
         {"CI8SpinBox",     "CI16SpinBox",  "CI32SpinBox", "CI64SpinBox",   "CU8SpinBox",     "CU16SpinBox",
          "CU32SpinBox",    "CU64SpinBox",  "CDSpinBox",   "CDataComboBox", "CBitDialog",     "CMessageDlg",
          "CPenDialog",     "CProgressDlg", "CScrollWdg",  "CStepBar",      "CustomInputDlg", "CustomTextBrowser",
          "FontSettingDlg", "TbView",       "TrView"}) {
        QVERIFY2(m_classes.contains(QStringLiteral("nsUI::") + QLatin1String(name)), name);
    }
}

int main(int argc, char* argv[])
{
    looks::prepareApplication();
    return TestSupport::testMain<QApplication, tst_GalleryLooks>(argc, argv);
}

#include "tst_GalleryLooks.moc"
