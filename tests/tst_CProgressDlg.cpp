// SPDX-License-Identifier: MIT
#include "ModalDriver.h"
#include "support/GlobalState.h"
#include "support/TestMain.h"

#include <Tessera/widgets/CProgressDlg.h>

#include <QApplication>
#include <QDialogButtonBox>
#include <QFile>
#include <QImage>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QProcess>
#include <QProgressBar>
#include <QPushButton>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QTextStream>
#include <QtTest>
#include <QVBoxLayout>

#include <climits>
#include <optional>

#include <sys/resource.h>

using nsUI::CProgressDlg;

namespace {

//! A host's own dialog, which takes over the keys: what it gets, and once what the library makes of it.
class HostDialog : public CProgressDlg
{
public:
    QList<const QKeyEvent*> events;

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        events << event;
        if (events.size() == 1)
            CProgressDlg::keyPressEvent(event);
    }
};

//! A parent that notes the keys which its children leave to it.
class KeyNotingWidget : public QWidget
{
public:
    QList<int> keys;

protected:
    void keyPressEvent(QKeyEvent* event) override { keys << event->key(); }
};

const QString sPressAKey = QStringLiteral("--press-a-key");

//! What another process does to find out what a key that no host takes over comes to.
int pressAKey()
{
    QTextStream out(stdout);
    CProgressDlg dialog;
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(&dialog, &escape);
    out << "Escape came back" << Qt::endl;

    // The processor's time for the next key is limited to a second or two; that it comes back takes far less.
    rusage used{};
    getrusage(RUSAGE_SELF, &used);
    const auto nLimit = static_cast<rlim_t>(used.ru_utime.tv_sec + used.ru_stime.tv_sec) + 2;
    const rlimit time{nLimit, nLimit + 1};
    const rlimit noCoreFile{0, 0};
    setrlimit(RLIMIT_CPU, &time);
    setrlimit(RLIMIT_CORE, &noCoreFile);
    QKeyEvent letter(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"));
    QCoreApplication::sendEvent(&dialog, &letter);
    out << "A came back" << Qt::endl;
    return 0;
}

} // namespace

class tst_CProgressDlg : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    // Building
    void itDeclaresNothing();
    void itsObjectsHaveTheirNames();
    void itIsBuiltOfTextBarAndButtons();
    void itIsMadeHidden();
    void itIsModalForTheApplication();
    void theTitleBarHasNeitherCloseNorHelpButton();
    void aDialogBelongsToItsParent();

    // Progress
    void theTextIsShown();
    void thePercentageIsShown();
    void theFormatCanBeChanged();
    void theRangeIsTheBars();
    void aValueIsSet_data();
    void aValueIsSet();
    void aValueIsAdded_data();
    void aValueIsAdded();
    void valuesAddUp();
    void progressProcessesNoEvents();
    void theSheetColoursTheBarAndCentresItsText();

    // Buttons
    void aButtonIsEnabledAndDisabled();
    void aButtonThatIsMissing_data();
    void aButtonThatIsMissing();
    void aButtonThatIsAddedCounts();
    void cancelIsTheHostsAffair();

    // Keys
    void escapeNeitherClosesNorRejects();
    void escapeIsLeftToTheParent();
    void escapeIsNotHandedBack();
    void otherKeysAreHandedBackToTheHost_data();
    void otherKeysAreHandedBackToTheHost();
    void aPlainDialogDoesNotComeBackFromAKey();

private:
    void show()
    {
        m_pDialog->show();
        QVERIFY(QTest::qWaitForWindowActive(m_pDialog.data()));
    }

    std::optional<TestSupport::GlobalState> m_global;
    QScopedPointer<CProgressDlg> m_pDialog;
};

void tst_CProgressDlg::init()
{
    m_global.emplace();
    m_pDialog.reset(new CProgressDlg);
}

void tst_CProgressDlg::cleanup()
{
    m_pDialog.reset();
    m_global.reset();
}

void tst_CProgressDlg::itDeclaresNothing()
{
    const QMetaObject& meta = CProgressDlg::staticMetaObject;
    QCOMPARE(meta.className(), "nsUI::CProgressDlg");
    QCOMPARE(meta.superClass(), &QDialog::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.enumeratorCount(), meta.enumeratorOffset());
}

void tst_CProgressDlg::itsObjectsHaveTheirNames()
{
    QCOMPARE(m_pDialog->objectName(), QStringLiteral("CProgressDlg"));
    QVERIFY(m_pDialog->label());
    QCOMPARE(m_pDialog->findChild<QLabel*>(QStringLiteral("pLab")), m_pDialog->label());
    QVERIFY(m_pDialog->bar());
    QCOMPARE(m_pDialog->findChild<QProgressBar*>(QStringLiteral("pBar")), m_pDialog->bar());
    QVERIFY(m_pDialog->buttonBox());
    QCOMPARE(m_pDialog->findChild<QDialogButtonBox*>(QStringLiteral("pBtnBox")), m_pDialog->buttonBox());
    QCOMPARE(m_pDialog->layout()->objectName(), QStringLiteral("verticalLayout"));
}

void tst_CProgressDlg::itIsBuiltOfTextBarAndButtons()
{
    auto* const pLayout = qobject_cast<QVBoxLayout*>(m_pDialog->layout());
    QVERIFY(pLayout);
    QCOMPARE(pLayout->count(), 4);
    QCOMPARE(pLayout->itemAt(0)->widget(), m_pDialog->label());
    QCOMPARE(pLayout->itemAt(1)->widget(), m_pDialog->bar());
    QSpacerItem* const pRoom = pLayout->itemAt(2)->spacerItem();
    QVERIFY(pRoom);
    QCOMPARE(pRoom->sizeHint(), QSize(20, 40));
    QCOMPARE(pRoom->sizePolicy().horizontalPolicy(), QSizePolicy::Minimum);
    QCOMPARE(pRoom->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(pLayout->itemAt(3)->widget(), m_pDialog->buttonBox());

    QCOMPARE(m_pDialog->label()->alignment(), Qt::AlignCenter);
    QCOMPARE(m_pDialog->bar()->format(), QStringLiteral("%p%"));
    QCOMPARE(m_pDialog->buttonBox()->standardButtons(), QDialogButtonBox::Cancel);
    QCOMPARE(m_pDialog->buttonBox()->buttons().size(), 1);
    QVERIFY(m_pDialog->button(QDialogButtonBox::Cancel));
    QCOMPARE(m_pDialog->button(QDialogButtonBox::Cancel), m_pDialog->buttonBox()->button(QDialogButtonBox::Cancel));

    QList<QObject*> widgets;
    for (QObject* const pChild : m_pDialog->children()) {
        if (pChild->isWidgetType())
            widgets << pChild;
    }
    QCOMPARE(widgets, (QList<QObject*>{m_pDialog->label(), m_pDialog->bar(), m_pDialog->buttonBox()}));
}

void tst_CProgressDlg::itIsMadeHidden()
{
    QVERIFY(!m_pDialog->isVisible());
    QVERIFY(m_pDialog->isHidden());
    QVERIFY(m_pDialog->testAttribute(Qt::WA_WState_ExplicitShowHide));
    QCOMPARE(m_pDialog->size(), QSize(126, 133));

    // A parent that is shown later does not show it.
    QWidget parent;
    const CProgressDlg dialog(&parent);
    parent.show();
    QVERIFY(!dialog.isVisible());
}

void tst_CProgressDlg::itIsModalForTheApplication()
{
    QCOMPARE(m_pDialog->windowModality(), Qt::ApplicationModal);
    QVERIFY(!QApplication::activeModalWidget());
    show();
    QCOMPARE(QApplication::activeModalWidget(), m_pDialog.data());
    m_pDialog->hide();
    QVERIFY(!QApplication::activeModalWidget());
}

void tst_CProgressDlg::theTitleBarHasNeitherCloseNorHelpButton()
{
    const QDialog plain;
    Qt::WindowFlags expected = plain.windowFlags();
    QVERIFY(expected & Qt::WindowCloseButtonHint);
    expected &= ~Qt::WindowContextHelpButtonHint;
    expected &= ~Qt::WindowCloseButtonHint;
    QCOMPARE(m_pDialog->windowFlags(), expected);
    show();
    QCOMPARE(m_pDialog->windowFlags(), expected);
}

void tst_CProgressDlg::aDialogBelongsToItsParent()
{
    QWidget parent;
    QPointer<CProgressDlg> pDialog = new CProgressDlg(&parent);
    QCOMPARE(pDialog->parentWidget(), &parent);
    QVERIFY(pDialog->isWindow());
    QVERIFY(!m_pDialog->parentWidget());
}

void tst_CProgressDlg::theTextIsShown()
{
    for (const QString& sText : {QStringLiteral("Reading registers"), QString(), QStringLiteral("读取")}) {
        m_pDialog->setText(sText);
        QCOMPARE(m_pDialog->label()->text(), sText);
    }
}

void tst_CProgressDlg::thePercentageIsShown()
{
    m_pDialog->setMinimum(100);
    m_pDialog->setMaximum(300);
    m_pDialog->setValue(150);
    QCOMPARE(m_pDialog->bar()->text(), QStringLiteral("25%"));
    m_pDialog->setValue(300);
    QCOMPARE(m_pDialog->bar()->text(), QStringLiteral("100%"));
}

void tst_CProgressDlg::theFormatCanBeChanged()
{
    m_pDialog->setFormat(QStringLiteral("%v of %m"));
    QCOMPARE(m_pDialog->bar()->format(), QStringLiteral("%v of %m"));
    m_pDialog->setMaximum(50);
    m_pDialog->setValue(7);
    QCOMPARE(m_pDialog->bar()->text(), QStringLiteral("7 of 50"));
}

void tst_CProgressDlg::theRangeIsTheBars()
{
    m_pDialog->setMinimum(-20);
    QCOMPARE(m_pDialog->bar()->minimum(), -20);
    QCOMPARE(m_pDialog->bar()->maximum(), 100);
    m_pDialog->setMaximum(30);
    QCOMPARE(m_pDialog->bar()->minimum(), -20);
    QCOMPARE(m_pDialog->bar()->maximum(), 30);
    m_pDialog->setMinimum(40); // as the bar does: the other end gives way
    QCOMPARE(m_pDialog->bar()->maximum(), 40);
    m_pDialog->setMinimum(0);
    m_pDialog->setMaximum(0);
    m_pDialog->setValue(5);
    QCOMPARE(m_pDialog->bar()->text(), QString()); // a busy indicator
}

void tst_CProgressDlg::aValueIsSet_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("result");
    QTest::newRow("inside") << 20 << 20;
    QTest::newRow("the minimum") << -5 << -5;
    QTest::newRow("the maximum") << 50 << 50;
    QTest::newRow("below") << -6 << 10;
    QTest::newRow("above") << 51 << 10;
}

void tst_CProgressDlg::aValueIsSet()
{
    QFETCH(int, value);
    m_pDialog->setMinimum(-5);
    m_pDialog->setMaximum(50);
    m_pDialog->setValue(10);
    QCOMPARE(m_pDialog->value(), 10);
    m_pDialog->setValue(value);
    QTEST(m_pDialog->value(), "result");
    QTEST(m_pDialog->bar()->value(), "result");
    m_pDialog->bar()->setValue(33);
    QCOMPARE(m_pDialog->value(), 33);
}

void tst_CProgressDlg::aValueIsAdded_data()
{
    QTest::addColumn<int>("delta");
    QTest::addColumn<int>("result"); // from 10 in 0 to 50
    QTest::newRow("nothing") << 0 << 10;
    QTest::newRow("5") << 5 << 15;
    QTest::newRow("less") << -4 << 6;
    QTest::newRow("down to the minimum") << -10 << 0;
    QTest::newRow("up to the maximum") << 40 << 50;
    QTest::newRow("below the minimum") << -11 << 10;
    QTest::newRow("above the maximum") << 41 << 10;
    QTest::newRow("far above") << INT_MAX << 10;
    QTest::newRow("far below") << INT_MIN << 10;
}

void tst_CProgressDlg::aValueIsAdded()
{
    QFETCH(int, delta);
    m_pDialog->setMaximum(50);
    m_pDialog->setValue(10);
    m_pDialog->addValue(delta);
    QTEST(m_pDialog->value(), "result");
}

void tst_CProgressDlg::valuesAddUp()
{
    m_pDialog->setValue(10);
    m_pDialog->addValue(5);
    m_pDialog->addValue(5);
    QCOMPARE(m_pDialog->value(), 20);
    m_pDialog->bar()->setValue(60);
    m_pDialog->addValue(1);
    QCOMPARE(m_pDialog->value(), 61);
}

void tst_CProgressDlg::progressProcessesNoEvents()
{
    show();
    int nEvents = 0;
    QMetaObject::invokeMethod(
        m_pDialog.data(), [&] { ++nEvents; }, Qt::QueuedConnection);
    m_pDialog->setText(QStringLiteral("Working"));
    m_pDialog->setFormat(QStringLiteral("%v"));
    m_pDialog->setMinimum(1);
    m_pDialog->setMaximum(1000);
    for (int i = 1; i < 100; ++i) {
        m_pDialog->setValue(i);
        m_pDialog->addValue(1);
    }
    m_pDialog->setBtnEnable(QDialogButtonBox::Cancel, false);
    QCOMPARE(nEvents, 0);
    QCoreApplication::processEvents();
    QCOMPARE(nEvents, 1);
    QVERIFY(m_pDialog->isVisible());
    m_pDialog->setValue(1000); // nor does it close at the end
    QCoreApplication::processEvents();
    QVERIFY(m_pDialog->isVisible());
    QCOMPARE(m_pDialog->value(), 1000);
}

void tst_CProgressDlg::theSheetColoursTheBarAndCentresItsText()
{
    QProgressBar* const pBar = m_pDialog->bar();
    const auto apply = [](const QString& sMore) {
        QFile sheet(QStringLiteral(":/qss/Tessera.qss"));
        QVERIFY(sheet.open(QIODevice::ReadOnly));
        qApp->setStyleSheet(QString::fromUtf8(sheet.readAll()) + sMore);
    };
    // The columns in which a block of text shows in pure black, first and last.
    const auto textColumns = [pBar] {
        const QImage image = pBar->grab().toImage();
        QPair<int, int> columns(image.width(), -1);
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, image.height() / 2) == QColor(Qt::black))
                columns = qMakePair(qMin(columns.first, x), x);
        }
        return columns;
    };
    m_pDialog->resize(400, 200);
    m_pDialog->show();
    apply(QStringLiteral("QProgressBar { color: black; background: white; border: 0px; }"));
    m_pDialog->setFormat(QStringLiteral("█"));
    m_pDialog->setValue(0);
    const QPair<int, int> columns = textColumns();
    QVERIFY(columns.second >= columns.first);
    QVERIFY(qAbs(columns.first - (pBar->width() - 1 - columns.second)) <= 2);

    m_pDialog->setValue(50);
    const QImage image = pBar->grab().toImage();
    const QColor chunk(0x13, 0x67, 0x96);
    QCOMPARE(image.pixelColor(10, image.height() / 2), chunk);
    QVERIFY(image.pixelColor(image.width() - 10, image.height() / 2) != chunk);
}

void tst_CProgressDlg::aButtonIsEnabledAndDisabled()
{
    QVERIFY(m_pDialog->btnEnable(QDialogButtonBox::Cancel));
    m_pDialog->setBtnEnable(QDialogButtonBox::Cancel, false);
    QVERIFY(!m_pDialog->button(QDialogButtonBox::Cancel)->isEnabled());
    QVERIFY(!m_pDialog->btnEnable(QDialogButtonBox::Cancel));
    m_pDialog->setBtnEnable(QDialogButtonBox::Cancel, true);
    QVERIFY(m_pDialog->button(QDialogButtonBox::Cancel)->isEnabled());
    QVERIFY(m_pDialog->btnEnable(QDialogButtonBox::Cancel));
}

void tst_CProgressDlg::aButtonThatIsMissing_data()
{
    QTest::addColumn<int>("which");
    QTest::newRow("OK") << int(QDialogButtonBox::Ok);
    QTest::newRow("Help") << int(QDialogButtonBox::Help);
    QTest::newRow("none") << int(QDialogButtonBox::NoButton);
}

void tst_CProgressDlg::aButtonThatIsMissing()
{
    QFETCH(int, which);
    const auto button = static_cast<QDialogButtonBox::StandardButton>(which);
    QVERIFY(!m_pDialog->button(button));
    QVERIFY(!m_pDialog->btnEnable(button));
    m_pDialog->setBtnEnable(button, false);
    m_pDialog->setBtnEnable(button, true);
    QVERIFY(!m_pDialog->btnEnable(button));
    QVERIFY(m_pDialog->btnEnable(QDialogButtonBox::Cancel));
    QCOMPARE(m_pDialog->buttonBox()->buttons().size(), 1);
}

void tst_CProgressDlg::aButtonThatIsAddedCounts()
{
    QPushButton* const pOk = m_pDialog->buttonBox()->addButton(QDialogButtonBox::Ok);
    QCOMPARE(m_pDialog->button(QDialogButtonBox::Ok), pOk);
    m_pDialog->setBtnEnable(QDialogButtonBox::Ok, false);
    QVERIFY(!pOk->isEnabled());
    QVERIFY(!m_pDialog->btnEnable(QDialogButtonBox::Ok));
    QVERIFY(m_pDialog->btnEnable(QDialogButtonBox::Cancel));
}

void tst_CProgressDlg::cancelIsTheHostsAffair()
{
    show();
    QSignalSpy finished(m_pDialog.data(), &QDialog::finished);
    QSignalSpy rejected(m_pDialog->buttonBox(), &QDialogButtonBox::rejected);
    QSignalSpy clicked(m_pDialog->button(QDialogButtonBox::Cancel), &QPushButton::clicked);
    QTest::mouseClick(m_pDialog->button(QDialogButtonBox::Cancel), Qt::LeftButton);
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(rejected.count(), 1);
    QCOMPARE(finished.count(), 0);
    QVERIFY(m_pDialog->isVisible());
    connect(m_pDialog->buttonBox(), &QDialogButtonBox::rejected, m_pDialog.data(), &QDialog::reject);
    QTest::mouseClick(m_pDialog->button(QDialogButtonBox::Cancel), Qt::LeftButton);
    QVERIFY(!m_pDialog->isVisible());
}

void tst_CProgressDlg::escapeNeitherClosesNorRejects()
{
    QSignalSpy finished(m_pDialog.data(), &QDialog::finished);
    const ModalDriver driver([&](QDialog& dialog) {
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QTest::keyClick(m_pDialog->button(QDialogButtonBox::Cancel), Qt::Key_Escape);
        QTest::keyClick(m_pDialog->windowHandle(), Qt::Key_Escape);
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QCoreApplication::sendEvent(&dialog, &escape);
        QVERIFY(!escape.isAccepted());
        QVERIFY(dialog.isVisible());
        QCOMPARE(finished.count(), 0);
        dialog.done(5);
    });
    QCOMPARE(m_pDialog->exec(), 5);
    QVERIFY(driver.hasActed());
    QCOMPARE(finished, (QList<QVariantList>{{5}}));
}

void tst_CProgressDlg::escapeIsLeftToTheParent()
{
    // As a child widget it has a parent that the key can go on to.
    KeyNotingWidget parent;
    CProgressDlg dialog(&parent);
    dialog.setWindowFlags(Qt::Widget);
    dialog.show();
    parent.show();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QCOMPARE(parent.keys, QList<int>{Qt::Key_Escape});
    QVERIFY(dialog.isVisible());
}

void tst_CProgressDlg::escapeIsNotHandedBack()
{
    HostDialog dialog;
    dialog.show();
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    escape.accept();
    QCoreApplication::sendEvent(&dialog, &escape);
    QCOMPARE(dialog.events, QList<const QKeyEvent*>{&escape});
    QVERIFY(!escape.isAccepted());
    QVERIFY(dialog.isVisible());
}

void tst_CProgressDlg::otherKeysAreHandedBackToTheHost_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::newRow("Return") << int(Qt::Key_Return) << int(Qt::NoModifier);
    QTest::newRow("Enter") << int(Qt::Key_Enter) << int(Qt::KeypadModifier);
    QTest::newRow("a letter") << int(Qt::Key_A) << int(Qt::NoModifier);
    QTest::newRow("a function key") << int(Qt::Key_F1) << int(Qt::NoModifier);
    QTest::newRow("Space") << int(Qt::Key_Space) << int(Qt::NoModifier);
    QTest::newRow("Shift+Escape") << int(Qt::Key_Escape) << int(Qt::ShiftModifier);
    QTest::newRow("Shift alone") << int(Qt::Key_Shift) << int(Qt::ShiftModifier);
}

void tst_CProgressDlg::otherKeysAreHandedBackToTheHost()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    HostDialog dialog;
    dialog.show();
    dialog.button(QDialogButtonBox::Cancel)->setDefault(true);
    QSignalSpy clicked(dialog.button(QDialogButtonBox::Cancel), &QPushButton::clicked);
    QSignalSpy finished(&dialog, &QDialog::finished);
    QKeyEvent event(QEvent::KeyPress, key, Qt::KeyboardModifiers(modifiers));
    QCoreApplication::sendEvent(&dialog, &event);
    // From Qt to the host, by way of the library to the host once more; never to QDialog, which presses buttons.
    QCOMPARE(dialog.events, (QList<const QKeyEvent*>{&event, &event}));
    QVERIFY(event.isAccepted());
    QCOMPARE(clicked.count(), 0);
    QCOMPARE(finished.count(), 0);
    QVERIFY(dialog.isVisible());
}

void tst_CProgressDlg::aPlainDialogDoesNotComeBackFromAKey()
{
    QProcess process;
    process.setProcessChannelMode(QProcess::SeparateChannels);
    process.start(QCoreApplication::applicationFilePath(), {sPressAKey});
    QVERIFY(process.waitForFinished(-1)); // it is ended for the time that it uses, or for the stack
    QCOMPARE(QString::fromUtf8(process.readAllStandardOutput()), QStringLiteral("Escape came back\n"));
    QVERIFY(process.exitStatus() == QProcess::CrashExit || process.exitCode() != 0);
}

int main(int argc, char* argv[])
{
    if (argc == 2 && sPressAKey == QLatin1String(argv[1])) {
        const QApplication application(argc, argv);
        return pressAKey();
    }
    return TestSupport::testMain<QApplication, tst_CProgressDlg>(argc, argv);
}

#include "tst_CProgressDlg.moc"
