// SPDX-License-Identifier: MIT
#include "GuiTestSupport.h"
#include "ModalDriver.h"
#include "support/GlobalState.h"
#include "support/TestMain.h"

#include "form/FormView.h"
#include "form/RegisterForm.h"
#include "session/DeviceEdits.h"
#include "tree/DevicePanel.h"
#include "window/LoadDialog.h"
#include "window/MainWindow.h"
#include "window/RemarksDialog.h"
#include "window/Settings.h"
#include "window/WorkSteps.h"

#include <CCommon.h>

#include <Tessera/widgets/FontSettingDlg.h>

#include <QAction>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QSettings>
#include <QSpinBox>
#include <QStatusBar>
#include <QSvgWidget>
#include <QToolButton>

#include <memory>
#include <optional>

using namespace GuiTestSupport;

/// The window's dialogs and the bar of steps.
class tst_WindowDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void anAddressLeadsToItsRegister_data();
    void anAddressLeadsToItsRegister();
    void theAddressOfThePresentRowIsOffered();
    void theStepsFollowTheWork();
    void aStepIsTaken();
    void theStepsHaveTheirArrows();
    void theChosenFontIsUsedAndKept();
    void aCancelledFontChangesNothing();
    void theProgressOfAFileIsShown();
    void escapeCancelsLoadingAndOtherKeysDoNothing();
    void theFormIsNeverNarrowerThanItsContent();
    void withoutRemarksNothingTellsOfThem();
    void remarksAreListedAndLeadToTheirRegister();
    void aListOfRemarksGoesWithItsDescription();
    void ofManyRemarksTheListHoldsTheFirst();

private:
    /// Opens the device once more, with remarks.
    void setRemarks(const QVector<SvdMessage>& remarks, qint64 count);
    QToolButton* remarksButton() const { return m_window->findChild<QToolButton*>(QStringLiteral("remarkCount")); }
    RemarksDialog* openRemarks() const;

    QAction* action(const char* name) const { return m_window->findChild<QAction*>(QLatin1String(name)); }
    QCheckBox* step(WorkSteps::Step step) const { return m_steps->findChildren<QCheckBox*>().at(step); }
    void clickStep(WorkSteps::Step step) const;

    std::unique_ptr<MainWindow> m_window;
    WorkSteps* m_steps = nullptr;
    std::optional<TestSupport::GlobalState> m_global;
};

void tst_WindowDialogs::init()
{
    m_global.emplace();
    m_window = std::make_unique<MainWindow>();
    const DevicePtr device = makeDevice({makeRegister(QStringLiteral("A"), 32), makeRegister(QStringLiteral("B"), 64)});
    m_window->setSession({device, std::make_unique<DeviceState>(device), {}});
    m_steps = m_window->findChild<WorkSteps*>();
    QVERIFY(showAndActivate(m_window.get()));
}

void tst_WindowDialogs::cleanup()
{
    m_window.reset();
    m_global.reset();
}

void tst_WindowDialogs::clickStep(WorkSteps::Step which) const
{
    QTest::mouseClick(step(which), Qt::LeftButton);
}

void tst_WindowDialogs::setRemarks(const QVector<SvdMessage>& remarks, qint64 count)
{
    const DevicePtr device = m_window->session().device;
    m_window->setSession({device, std::make_unique<DeviceState>(device), {}, remarks, count});
}

RemarksDialog* tst_WindowDialogs::openRemarks() const
{
    QTest::mouseClick(remarksButton(), Qt::LeftButton);
    return m_window->findChild<RemarksDialog*>();
}

void tst_WindowDialogs::anAddressLeadsToItsRegister_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("shown");
    QTest::newRow("where it begins") << QStringLiteral("40000008") << 1;
    QTest::newRow("within it") << QStringLiteral("4000000F") << 1;
    QTest::newRow("the first") << QStringLiteral("40000000") << 0;
    QTest::newRow("between registers") << QStringLiteral("40000004") << -1;
    QTest::newRow("behind the last") << QStringLiteral("40000010") << -1;
}

void tst_WindowDialogs::anAddressLeadsToItsRegister()
{
    QFETCH(QString, typed);
    QFETCH(int, shown);
    const ModalDriver driver([&typed](QDialog& dialog) {
        typeOver(dialog.findChild<QLineEdit*>(), typed);
        dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    });
    m_window->devicePanel()->setCurrentPlace({m_window->session().device->registerAt(shown == 0 ? 1 : 0).node});
    action("goTo")->trigger();
    QVERIFY(driver.hasActed());
    if (shown >= 0) {
        QCOMPARE(m_window->formView()->form()->registerIndex(), shown);
    } else {
        QCOMPARE(m_window->formView()->form()->registerIndex(), 0);
        QVERIFY(m_window->statusBar()->currentMessage().contains(QStringLiteral("0x") + typed));
    }
}

void tst_WindowDialogs::theAddressOfThePresentRowIsOffered()
{
    m_window->devicePanel()->setCurrentPlace({m_window->session().device->registerAt(1).node});
    QString offered;
    const ModalDriver driver([&offered](QDialog& dialog) {
        offered = dialog.findChild<QLineEdit*>()->text();
        dialog.reject();
    });
    action("goTo")->trigger();
    QCOMPARE(offered, QStringLiteral("0x40000008"));
    QCOMPARE(m_window->formView()->form()->registerIndex(), 1);
}

void tst_WindowDialogs::theStepsFollowTheWork()
{
    QCOMPARE(m_steps->currentIndex(), int(WorkSteps::Edit));
    m_window->edits().setRegister(0, 1);
    QCOMPARE(m_steps->currentIndex(), int(WorkSteps::Edit));
    action("changesOnly")->trigger();
    QCOMPARE(m_steps->currentIndex(), int(WorkSteps::Review));
    action("changesOnly")->trigger();
    QCOMPARE(m_steps->currentIndex(), int(WorkSteps::Edit));
    QCOMPARE(MainWindow().findChild<WorkSteps*>()->currentIndex(), int(WorkSteps::Open)); // nothing is open there
}

void tst_WindowDialogs::aStepIsTaken()
{
    m_window->edits().setRegister(0, 1);
    clickStep(WorkSteps::Review);
    QVERIFY(m_window->devicePanel()->changesOnly());
    QVERIFY(action("changesOnly")->isChecked());
    clickStep(WorkSteps::Edit);
    QVERIFY(!m_window->devicePanel()->changesOnly());
    for (const WorkSteps::Step which : {WorkSteps::Open, WorkSteps::Save}) {
        const ModalDriver driver([](QDialog& dialog) { dialog.reject(); }); // a file dialog
        clickStep(which);
        QVERIFY(driver.hasActed());
        QCOMPARE(m_steps->currentIndex(), int(WorkSteps::Edit));
    }
}

void tst_WindowDialogs::theStepsHaveTheirArrows()
{
    const QList<QSvgWidget*> arrows = m_steps->findChildren<QSvgWidget*>();
    QCOMPARE(arrows.size(), 4);
    QVERIFY(QFile::exists(QStringLiteral(":/svg/primary/arrow-forward.svg")));
    for (const QSvgWidget* arrow : arrows) {
        QCOMPARE(arrow->height(), step(WorkSteps::Open)->height());
    }
}

void tst_WindowDialogs::theChosenFontIsUsedAndKept()
{
    QVERIFY(!Settings().chosenFont());
    const ModalDriver driver([](QDialog& dialog) {
        dialog.findChild<QSpinBox*>(QStringLiteral("pISpxSize"))->setValue(17);
        dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    });
    const QFont before = QApplication::font();
    action("font")->trigger();
    QVERIFY(driver.hasActed());
    QCOMPARE(QApplication::font().pointSize(), 17);
    QVERIFY(Settings().chosenFont());
    QCOMPARE(Settings().chosenFont()->pointSize(), 17);
    QApplication::setFont(before);
    useChosenFont(); // as the next run does
    QCOMPARE(QApplication::font().pointSize(), 17);
}

void tst_WindowDialogs::aCancelledFontChangesNothing()
{
    const ModalDriver driver([](QDialog& dialog) {
        dialog.findChild<QSpinBox*>(QStringLiteral("pISpxSize"))->setValue(17);
        dialog.reject();
    });
    const QFont before = QApplication::font();
    action("font")->trigger();
    QVERIFY(driver.hasActed());
    QCOMPARE(QApplication::font(), before);
    QVERIFY(!Settings().chosenFont());
}

void tst_WindowDialogs::theProgressOfAFileIsShown()
{
    LoadDialog dialog;
    dialog.start(QStringLiteral("/some/where/big.svd"));
    QVERIFY(dialog.isVisible());
    QVERIFY(dialog.windowTitle().contains(QStringLiteral("big.svd")));
    dialog.setProgress(0, 0); // not known yet
    QCOMPARE(dialog.bar()->maximum(), 0);
    dialog.setProgress(3000000000, 4000000000);
    QCOMPARE(dialog.bar()->text(), QStringLiteral("75%"));
    dialog.setProgress(5000000000, 4000000000);
    QCOMPARE(dialog.bar()->text(), QStringLiteral("100%"));
}

void tst_WindowDialogs::escapeCancelsLoadingAndOtherKeysDoNothing()
{
    LoadDialog dialog;
    QSignalSpy cancelled(&dialog, &LoadDialog::cancelled);
    dialog.start(QStringLiteral("big.svd"));
    QTest::keyClick(&dialog, Qt::Key_A);
    QTest::keyClick(&dialog, Qt::Key_F1);
    QCOMPARE(cancelled.size(), 0);
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QCOMPARE(cancelled.size(), 1);
    QVERIFY(dialog.isVisible()); // until the reader has ended
    QTest::mouseClick(dialog.button(QDialogButtonBox::Cancel), Qt::LeftButton);
    QCOMPARE(cancelled.size(), 2);
}

void tst_WindowDialogs::theFormIsNeverNarrowerThanItsContent()
{
    m_window->devicePanel()->setCurrentPlace({m_window->session().device->registerAt(1).node}); // 64 bits
    m_window->resize(400, 500);
    QCoreApplication::processEvents();
    const FormView* view = m_window->formView();
    QVERIFY(view->viewport()->width() >= view->widget()->minimumSizeHint().width());
    QCOMPARE(view->widget()->width(), view->viewport()->width());
    QCOMPARE(view->horizontalScrollBar()->maximum(), 0);
}

void tst_WindowDialogs::withoutRemarksNothingTellsOfThem()
{
    QVERIFY(!remarksButton()->isVisible());
}

void tst_WindowDialogs::remarksAreListedAndLeadToTheirRegister()
{
    const QString path = m_window->session().device->registerAt(1).path;
    setRemarks({{QStringLiteral("a.svd"), 3, 4, QStringLiteral("<b>odd</b>; left out"), QString()},
                {QStringLiteral("a.svd"), 5, 6, QStringLiteral("odd, too"), path}},
               2);
    QVERIFY(remarksButton()->isVisible());
    QCOMPARE(remarksButton()->text(), QStringLiteral("2 remarks"));

    RemarksDialog* dialog = openRemarks();
    QVERIFY(dialog && dialog->isVisible());
    auto* list = dialog->findChild<QListWidget*>();
    QCOMPARE(list->count(), 2);
    QCOMPARE(list->item(0)->text(), QStringLiteral("3:4: <b>odd</b>; left out"));
    QCOMPARE(list->item(1)->text(), QStringLiteral("5:6: odd, too"));
    QCOMPARE(m_window->formView()->form()->registerIndex(), 0);

    list->setCurrentRow(0);
    QTest::keyClick(list, Qt::Key_Return);
    QCOMPARE(m_window->formView()->form()->registerIndex(), 0);
    list->setCurrentRow(1);
    QTest::keyClick(list, Qt::Key_Return);
    QCOMPARE(m_window->formView()->form()->registerIndex(), 1);
    QVERIFY(dialog->isVisible());
    QCOMPARE(openRemarks(), dialog);
}

void tst_WindowDialogs::aListOfRemarksGoesWithItsDescription()
{
    setRemarks({{QStringLiteral("a.svd"), 3, 4, QStringLiteral("odd"), QString()}}, 1);
    QCOMPARE(remarksButton()->text(), QStringLiteral("1 remark"));
    QVERIFY(openRemarks());
    setRemarks({}, 0);
    QVERIFY(!remarksButton()->isVisible());
    QVERIFY(!m_window->findChild<RemarksDialog*>());
}

void tst_WindowDialogs::ofManyRemarksTheListHoldsTheFirst()
{
    setRemarks({{QStringLiteral("a.svd"), 3, 4, QStringLiteral("odd"), QString()}}, 12000);
    QCOMPARE(remarksButton()->text(), QStringLiteral("12000 remarks"));
    QCOMPARE(openRemarks()->findChild<QLabel*>(QStringLiteral("heading"))->text(),
             QStringLiteral("The first 1 of 12000 remarks, with line and column:"));
}

TESSERA_TEST_MAIN(tst_WindowDialogs)
#include "tst_windowdialogs.moc"
