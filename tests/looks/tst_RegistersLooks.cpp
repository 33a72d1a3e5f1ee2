// SPDX-License-Identifier: MIT
#include "Pictures.h"
#include "Setting.h"
#include "support/GlobalState.h"
#include "support/TestMain.h"
#include "Walk.h"

#include "CommandRun.h"
#include "common/Screenshot.h"
#include "device/DeviceImport.h"
#include "tree/DevicePanel.h"
#include "window/GoToDialog.h"
#include "window/LoadDialog.h"
#include "window/MainWindow.h"
#include "window/UnplacedDialog.h"

#include <Tessera/Tessera.h>

#include <QApplication>
#include <QDialog>
#include <QLoggingCategory>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QTimer>
#include <QTranslator>

#include <functional>
#include <memory>

using namespace registers;

Q_LOGGING_CATEGORY(c_looks, "tests.looks") // what was looked at; a message without a category would fail the run

namespace {

QVector<looks::Exemption>& exemptions()
{
    static QVector<looks::Exemption> all{
        {QRegularExpression(QStringLiteral("^faint: .*: #ffffff on #308cc6, ")),
         "The selection has the desktop's colours; where there is no desktop those are Fusion's."},
        {QRegularExpression(QStringLiteral("^faint: CProgressDlg/pBar: \"40%\" .*: #ffffff on #ffffff, ")),
         "Fusion writes on a mirrored bar in the colour that suits the other part of it."},
    };
    return all;
}

/// What is done with a window while it is shown.
using Look = std::function<void(QWidget*)>;

void showAndLook(QWidget* window, const Look& look)
{
    apps::showUnseen(window);
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    look(window);
}

/// The window on the sample device, with some values that were edited.
std::unique_ptr<MainWindow> windowOn(const QString& path)
{
    CommandLine commandLine;
    commandLine.sets = {{QStringLiteral("CLOCK.SELECT"), QStringLiteral("0x2A0835")},
                        {QStringLiteral("PORTA.OUT"), QStringLiteral("0xBEEF")}};
    commandLine.selectPath = path;
    Session session;
    QString error;
    if (!openSession(commandLine, &session, &error)) {
        QTest::qFail(qPrintable(error), __FILE__, __LINE__);
    }
    auto window = std::make_unique<MainWindow>();
    apps::showUnseen(window.get());
    window->setSession(std::move(session));
    QCoreApplication::processEvents();
    return window;
}

void lookAtRegister(const char* path, const Look& look)
{
    showAndLook(windowOn(QLatin1String(path)).get(), look);
}

void lookAtEmptyWindow(const Look& look)
{
    MainWindow window;
    showAndLook(&window, look);
}

void lookAtGroup(const Look& look)
{
    const auto window = windowOn(QStringLiteral("CLOCK.SELECT"));
    window->devicePanel()->setCurrentPlace({window->session().device->registerAt(0).node, -1});
    const Device& device = *window->session().device;
    const int parent = device.node(window->devicePanel()->currentPlace().node).parent;
    window->devicePanel()->setCurrentPlace({parent, -1});
    showAndLook(window.get(), look);
}

void lookAtEditor(const char* path, const Look& look)
{
    const auto window = windowOn(QLatin1String(path));
    window->devicePanel()->editValue();
    showAndLook(window.get(), look);
}

void lookAtBits(const Look& look)
{
    const auto window = windowOn(QStringLiteral("CLOCK.SELECT"));
    QTimer::singleShot(0, window.get(), [&look] {
        QWidget* dialog = QApplication::activeModalWidget();
        look(dialog);
        dialog->close();
    });
    QVERIFY(window->devicePanel()->editBits());
}

void lookAtGoTo(const Look& look)
{
    GoToDialog dialog;
    dialog.setAddress(0x40001000);
    showAndLook(&dialog, look);
}

void lookAtLoad(const Look& look)
{
    LoadDialog dialog;
    apps::showUnseen(&dialog);
    dialog.start(QStringLiteral("/device/sample.svd"));
    dialog.setProgress(40, 100);
    showAndLook(&dialog, look);
}

void lookAtUnplaced(const Look& look)
{
    ImportResult result;
    result.values.resize(12);
    result.unplaced = {{QStringLiteral("OLD.CTRL"), QStringLiteral("the device \"TSM410\" has no peripheral \"OLD\"")},
                       {QStringLiteral("ADC.GAIN"), QStringLiteral("the value is too large")}};
    UnplacedDialog dialog(QStringLiteral("values.json"), result, QStringLiteral("TSM400"));
    showAndLook(&dialog, look);
}

void lookAtMenus(const Look& look)
{
    const auto window = windowOn(QStringLiteral("CLOCK.SELECT"));
    const QList<QAction*> actions = window->menuBar()->actions();
    for (const QAction* action : actions) {
        showAndLook(action->menu(), look);
        action->menu()->hide();
    }
}

struct Scene
{
    const char* name;
    void (*show)(const Look& look);
    bool hasPicture;
};

constexpr Scene kScenes[] = {
    {"register", [](const Look& look) { lookAtRegister("CLOCK.SELECT", look); }, true},
    {"status", [](const Look& look) { lookAtRegister("SERIAL0.STATUS", look); }, true},
    {"wide", [](const Look& look) { lookAtRegister("SYS.UNIQUE_ID", look); }, true},
    {"group", lookAtGroup, true},
    {"editor", [](const Look& look) { lookAtEditor("CLOCK.SELECT.PLL_FACTOR", look); }, false},
    {"choice", [](const Look& look) { lookAtEditor("CLOCK.SELECT.SOURCE", look); }, false},
    {"empty", lookAtEmptyWindow, true},
    {"menus", lookAtMenus, false},
    {"dialog-bits", lookAtBits, true},
    {"dialog-goto", lookAtGoTo, true},
    {"dialog-load", lookAtLoad, true},
    {"dialog-unplaced", lookAtUnplaced, true},
};

/// The register editor takes the desktop's palette; this is a dark one.
QPalette darkPalette()
{
    QPalette palette(QColor(0x35, 0x38, 0x3c), QColor(0x2a, 0x2d, 0x31));
    palette.setColor(QPalette::Base, QColor(0x1e, 0x20, 0x23));
    palette.setColor(QPalette::AlternateBase, QColor(0x26, 0x29, 0x2c));
    palette.setColor(QPalette::Link, QColor(0x6a, 0xb0, 0xf0));
    palette.setColor(QPalette::Highlight, QColor(0x2a, 0x60, 0xa0));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, QColor(0xee, 0xee, 0xee));
        palette.setColor(QPalette::Disabled, role, QColor(0x80, 0x80, 0x80));
    }
    palette.setColor(QPalette::PlaceholderText, QColor(0xa0, 0xa4, 0xa8));
    return palette;
}

} // namespace

/// The register editor: its window in several states and its dialogs.
class tst_RegistersLooks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void aSceneLooksWell_data();
    void aSceneLooksWell();
    void everyExemptionIsNeeded();

private:
    void use(const looks::Setting& setting);

    std::unique_ptr<TestSupport::GlobalState> m_global;
    QVector<looks::Setting> m_all;
    QTranslator m_catalogue;
    int m_widgets = 0;
};

void tst_RegistersLooks::initTestCase()
{
    m_global = std::make_unique<TestSupport::GlobalState>();
    nsUI::TesseraGlobal::instance();
    const QString missing = looks::pinLooks();
    QVERIFY2(missing.isEmpty(), qPrintable(missing));
}

void tst_RegistersLooks::cleanupTestCase()
{
    qCInfo(c_looks, "%d widgets were looked at", m_widgets);
    m_global.reset();
}

/// The editor itself speaks English; the library's dialogs in it speak Chinese, too.
void tst_RegistersLooks::use(const looks::Setting& setting)
{
    QCoreApplication::removeTranslator(&m_catalogue);
    QVERIFY(m_catalogue.load(QStringLiteral(":/qm/Tessera_%1.qm").arg(setting.language())));
    QCoreApplication::installTranslator(&m_catalogue);
    QApplication::setLayoutDirection(setting.direction); // which a catalogue may change
    QApplication::setPalette(setting.isDark ? darkPalette() : QApplication::style()->standardPalette());
}

void tst_RegistersLooks::aSceneLooksWell_data()
{
    QTest::addColumn<int>("setting");
    QTest::addColumn<int>("scene");
    m_all = looks::settingsOfProcess();
    for (int i = 0; i < m_all.size(); ++i) {
        for (int j = 0; j < static_cast<int>(std::size(kScenes)); ++j) {
            QTest::addRow("%s-%s", kScenes[j].name, qPrintable(m_all.at(i).name())) << i << j;
        }
    }
}

void tst_RegistersLooks::aSceneLooksWell()
{
    QFETCH(int, setting);
    QFETCH(int, scene);
    use(m_all.at(setting));
    QStringList found;
    int widgets = 0;
    kScenes[scene].show([&](QWidget* window) {
        widgets += static_cast<int>(looks::visibleWidgets(window).size());
        found += looks::findings(window, &exemptions());
        const QString name = QStringLiteral("registers-") + QLatin1String(kScenes[scene].name);
        const QString difference =
            kScenes[scene].hasPicture ? looks::checkPicture(window, name, m_all.at(setting)) : QString();
        found += difference.isEmpty() ? QStringList() : QStringList(difference);
    });
    QVERIFY(widgets > 0);
    m_widgets += widgets;
    for (const QString& finding : qAsConst(found)) {
        qWarning("%s", qPrintable(finding)); // a failure's text is cut
    }
    QCOMPARE(found.size(), 0);
}

/// With Qt 5, that is; another Fusion may do better.
void tst_RegistersLooks::everyExemptionIsNeeded()
{
    for (const looks::Exemption& exemption : qAsConst(exemptions())) {
        QVERIFY2(exemption.uses > 0 || QT_VERSION >= QT_VERSION_CHECK(6, 0, 0), exemption.reason);
    }
}

int main(int argc, char* argv[])
{
    looks::prepareApplication();
    return TestSupport::testMain<QApplication, tst_RegistersLooks>(argc, argv);
}

#include "tst_RegistersLooks.moc"
