// SPDX-License-Identifier: MIT
#include "GuiTestSupport.h"
#include "support/TestMain.h"

#include "editors/NumberBox.h"
#include "form/FormView.h"
#include "form/RegisterForm.h"
#include "form/ValuePanel.h"
#include "session/DeviceEdits.h"
#include "session/DeviceLoader.h"
#include "tree/DeviceFilterModel.h"
#include "tree/DevicePanel.h"
#include "tree/DeviceTreeModel.h"
#include "window/MainWindow.h"
#include "window/Screenshot.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QDragEnterEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeView>

#include <memory>

using namespace GuiTestSupport;

namespace {

/// Two peripherals with two registers each; the second one has its registers in a cluster.
DevicePtr smallDevice()
{
    auto device = QSharedPointer<Device>::create();
    device->name = QStringLiteral("SMALL");
    device->sourceFile = QStringLiteral("/some/where/small.svd");
    const auto add = [&device](int parent, const QString& path, quint64 address) {
        Register reg;
        reg.path = path;
        reg.name = path.section(QLatin1Char('.'), -1);
        reg.address = address;
        reg.resetMask = bitMask(32);
        reg.fields = {makeField(QStringLiteral("EN"), 0, 1)};
        device->addRegister(parent, std::move(reg));
    };
    const int uart = device->addGroup(0, NodeKind::Peripheral, QStringLiteral("UART"), QString(), 0x40000000);
    add(uart, QStringLiteral("UART.CTRL"), 0x40000000);
    add(uart, QStringLiteral("UART.DATA"), 0x40000004);
    const int dma = device->addGroup(0, NodeKind::Peripheral, QStringLiteral("DMA"), QString(), 0x50000000);
    const int channel = device->addGroup(dma, NodeKind::Cluster, QStringLiteral("CH"), QString(), 0x50000100);
    add(channel, QStringLiteral("DMA.CH.CTRL"), 0x50000100);
    add(channel, QStringLiteral("DMA.CH.COUNT"), 0x50000104);
    return device;
}

Session sessionOf(const DevicePtr& device)
{
    return {device, std::make_unique<DeviceState>(device), {}};
}

/// Answers the next message box by clicking one of its buttons, and keeps its text.
class Answer : public QObject
{
public:
    explicit Answer(QMessageBox::ButtonRole role)
        : m_role(role)
    {
        connect(&m_timer, &QTimer::timeout, this, &Answer::click);
        m_timer.start(5);
    }

    int count() const { return m_count; }
    QString text() const { return m_text; }

private:
    void click()
    {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box) {
            return;
        }
        ++m_count;
        m_text = box->text() + QLatin1Char('\n') + box->informativeText();
        for (QAbstractButton* button : box->buttons()) {
            if (box->buttonRole(button) == m_role) {
                button->click();
                return;
            }
        }
        box->reject();
    }

    QTimer m_timer;
    QMessageBox::ButtonRole m_role;
    QString m_text;
    int m_count = 0;
};

QString writeFile(const QTemporaryDir& folder, const QString& name, const QByteArray& content)
{
    QFile file(folder.filePath(name));
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() ? file.fileName() : QString();
}

/// A description that takes a while to read.
QByteArray largeDescription(int registerCount)
{
    QByteArray text = "<device schemaVersion=\"1.3\"><name>LARGE</name><version>1</version><description>d</description>"
                      "<addressUnitBits>8</addressUnitBits><width>32</width><size>32</size>"
                      "<peripherals><peripheral><name>P</name><baseAddress>0</baseAddress><registers>";
    for (int i = 0; i < registerCount; ++i) {
        const QByteArray number = QByteArray::number(i);
        text += "<register><name>R" + number + "</name><description>register " + number +
                "</description><addressOffset>" + QByteArray::number(4 * i) +
                "</addressOffset><fields><field><name>F</name><description>f</description><bitRange>[7:0]</bitRange>"
                "</field></fields></register>\n";
    }
    return text + "</registers></peripheral></peripherals></device>\n";
}

QStringList rows(std::initializer_list<const char*> texts)
{
    QStringList list;
    for (const char* text : texts) {
        list.append(QLatin1String(text));
    }
    return list;
}

/// The names of all rows that are shown, with two spaces before each level.
QStringList shownRows(const QTreeView* view, const QModelIndex& parent = QModelIndex(), int level = 0)
{
    QStringList names;
    for (int row = 0; row < view->model()->rowCount(parent); ++row) {
        const QModelIndex index = view->model()->index(row, 0, parent);
        names.append(QString(2 * level, QLatin1Char(' ')) + index.data().toString());
        if (view->isExpanded(index)) {
            names += shownRows(view, index, level + 1);
        }
    }
    return names;
}

} // namespace

class tst_MainWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanupTestCase();
    void theTreeKeepsTheModelsPromises();
    void theFilteredTreeKeepsTheModelsPromises();
    void theTreeShowsNamesAddressesAndValues();
    void theFirstRegisterIsShownAtFirst();
    void selectingARowShowsItsForm();
    void aSelectedFieldIsShown();
    void theFilterShowsHitsAndWhatIsAboveThem_data();
    void theFilterShowsHitsAndWhatIsAboveThem();
    void clearingTheFilterRestoresTheTree();
    void theFilterKeepsTheFormThatIsShown();
    void anEditMarksTheRowAndItsParents();
    void resetTakesTheMarksAway();
    void resetAllSaysHowManyAndIsDisabledWithoutChanges();
    void aFailedLoadTellsWhyOnceAndKeepsTheDevice();
    void anotherFileReplacesTheDevice();
    void aDroppedFileIsOpened();
    void editsAreAskedForBeforeAnotherFile();
    void editsAreAskedForBeforeClosing();
    void withoutEditsNothingIsAsked();
    void loadingCanBeCancelled();
    void closingWhileLoadingCancelsAndCloses();
    void anotherLoadWhileLoadingIsRefused();
    void theTitleNamesDeviceAndFile();
    void theScreenshotShowsTheSession();
    void tenThousandRegistersAreQuick();

private:
    void show(const DevicePtr& device);
    QAction* action(const QString& name) const { return m_window->findChild<QAction*>(name); }
    DeviceState& state() const { return *m_window->session().state; }
    QTreeView* view() const { return m_window->devicePanel()->view(); }
    void filter(const QString& text);
    QModelIndex row(const QString& name) const;

    std::unique_ptr<MainWindow> m_window;
};

void tst_MainWindow::init()
{
    m_window = std::make_unique<MainWindow>();
}

void tst_MainWindow::cleanupTestCase()
{
    m_window.reset();
    // The clear button of a line edit fades, and Qt frees that animation only when it notices that the button is gone.
    QTest::qWait(200);
}

void tst_MainWindow::show(const DevicePtr& device)
{
    m_window->setSession(sessionOf(device));
    QVERIFY(showAndActivate(m_window.get()));
}

void tst_MainWindow::filter(const QString& text)
{
    m_window->devicePanel()->filterEdit()->setText(text);
    QTest::keyClick(m_window->devicePanel()->filterEdit(), Qt::Key_Down); // without waiting for the delay
}

QModelIndex tst_MainWindow::row(const QString& name) const
{
    return view()
        ->model()
        ->match(view()->model()->index(0, 0), Qt::DisplayRole, name, 1, Qt::MatchExactly | Qt::MatchRecursive)
        .value(0);
}

void tst_MainWindow::theTreeKeepsTheModelsPromises()
{
    DeviceState state(smallDevice());
    DeviceEdits edits(state);
    DeviceTreeModel model(edits);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QCOMPARE(model.rowCount(), 2);
    state.setValue(2, 5);
    state.resetAll();
}

void tst_MainWindow::theFilteredTreeKeepsTheModelsPromises()
{
    DeviceState state(smallDevice());
    DeviceEdits edits(state);
    DeviceTreeModel model(edits);
    DeviceFilterModel filterModel;
    filterModel.setDeviceModel(&model);
    const QAbstractItemModelTester tester(&filterModel, QAbstractItemModelTester::FailureReportingMode::QtTest);
    filterModel.setText(QStringLiteral("count"));
    QCOMPARE(filterModel.rowCount(), 1);
    QCOMPARE(filterModel.registerCount(), 1);
    state.setValue(3, 5);
    filterModel.setText(QString());
    QCOMPARE(filterModel.rowCount(), 2);
}

void tst_MainWindow::theTreeShowsNamesAddressesAndValues()
{
    show(smallDevice());
    state().setValue(3, 0xABC);
    const QModelIndex count = row(QStringLiteral("COUNT"));
    QCOMPARE(count.sibling(count.row(), DeviceTreeModel::AddressColumn).data().toString(),
             QStringLiteral("0x50000104"));
    QCOMPARE(count.sibling(count.row(), DeviceTreeModel::ValueColumn).data().toString(), QStringLiteral("0x00000ABC"));
}

void tst_MainWindow::theFirstRegisterIsShownAtFirst()
{
    show(smallDevice());
    QVERIFY(m_window->formView()->form());
    QCOMPARE(m_window->formView()->form()->registerIndex(), 0);
    QCOMPARE(view()->currentIndex().data().toString(), QStringLiteral("CTRL"));
}

void tst_MainWindow::selectingARowShowsItsForm()
{
    show(smallDevice());
    view()->setCurrentIndex(row(QStringLiteral("COUNT")));
    QCOMPARE(m_window->formView()->form()->registerIndex(), 3);
    view()->setCurrentIndex(row(QStringLiteral("DMA")));
    QVERIFY(!m_window->formView()->form());
    view()->setCurrentIndex(row(QStringLiteral("DATA")));
    QCOMPARE(m_window->formView()->form()->registerIndex(), 1);
}

void tst_MainWindow::aSelectedFieldIsShown()
{
    Session session = sessionOf(smallDevice());
    session.selection = session.device->find(QStringLiteral("DMA.CH.COUNT.EN"));
    QVERIFY(showAndActivate(m_window.get()));
    m_window->setSession(std::move(session));
    QCOMPARE(m_window->formView()->form()->registerIndex(), 3);
    const QWidget* field = m_window->findChild<QWidget*>(QStringLiteral("field:EN"));
    QVERIFY(field);
    QCOMPARE(QApplication::focusWidget(), field->focusProxy());
}

void tst_MainWindow::theFilterShowsHitsAndWhatIsAboveThem_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("shown");
    QTest::newRow("a register's name") << QStringLiteral("count") << rows({"DMA", "  CH", "    COUNT"});
    QTest::newRow("a name in two places")
        << QStringLiteral("CTRL") << rows({"UART", "  CTRL", "DMA", "  CH", "    CTRL"});
    QTest::newRow("a peripheral's name, which holds what is current")
        << QStringLiteral("uart") << rows({"UART", "  CTRL", "  DATA"});
    QTest::newRow("a peripheral's name") << QStringLiteral("dma") << rows({"DMA"});
    QTest::newRow("two words") << QStringLiteral("ctrl dma") << rows({"DMA", "  CH", "    CTRL"});
    QTest::newRow("a path") << QStringLiteral("ch.co") << rows({"DMA", "  CH", "    COUNT"});
    QTest::newRow("an address") << QStringLiteral("0x50000104") << rows({"DMA", "  CH", "    COUNT"});
    QTest::newRow("nothing") << QStringLiteral("nothing") << QStringList();
}

void tst_MainWindow::theFilterShowsHitsAndWhatIsAboveThem()
{
    QFETCH(QString, text);
    QFETCH(QStringList, shown);
    show(smallDevice());
    view()->collapseAll();
    filter(text);
    QCOMPARE(shownRows(view()), shown);
}

void tst_MainWindow::clearingTheFilterRestoresTheTree()
{
    show(smallDevice());
    const QStringList before = shownRows(view());
    filter(QStringLiteral("count"));
    QVERIFY(shownRows(view()) != before);
    filter(QString());
    QCOMPARE(shownRows(view()), before);
}

void tst_MainWindow::theFilterKeepsTheFormThatIsShown()
{
    show(smallDevice());
    view()->setCurrentIndex(row(QStringLiteral("DATA")));
    filter(QStringLiteral("dma"));
    QCOMPARE(m_window->formView()->form()->registerIndex(), 1);
    filter(QString());
    QCOMPARE(view()->currentIndex().data().toString(), QStringLiteral("DATA"));
    QCOMPARE(m_window->formView()->form()->registerIndex(), 1);
}

void tst_MainWindow::anEditMarksTheRowAndItsParents()
{
    show(smallDevice());
    view()->setCurrentIndex(row(QStringLiteral("COUNT")));
    typeOver(m_window->formView()->form()->values()->hexadecimal()->findChild<QLineEdit*>(), QStringLiteral("5"));
    for (const char* name : {"COUNT", "CH", "DMA"}) {
        QVERIFY(row(QLatin1String(name)).data(DeviceTreeModel::ChangedRole).toBool());
    }
    QVERIFY(!row(QStringLiteral("UART")).data(DeviceTreeModel::ChangedRole).toBool());
    QVERIFY(row(QStringLiteral("COUNT")).data(Qt::FontRole).value<QFont>().bold());
    const QModelIndex dma = row(QStringLiteral("DMA"));
    QCOMPARE(dma.sibling(dma.row(), DeviceTreeModel::ValueColumn).data().toString(), QStringLiteral("1 changed"));
    QCOMPARE(m_window->findChild<QLabel*>(QStringLiteral("changedCount"))->text(),
             QStringLiteral("Changed: 1 register"));
    QVERIFY(m_window->isWindowModified());
}

void tst_MainWindow::resetTakesTheMarksAway()
{
    show(smallDevice());
    view()->setCurrentIndex(row(QStringLiteral("COUNT")));
    QVERIFY(!action(QStringLiteral("resetCurrent"))->isEnabled());
    state().setValue(3, 7);
    state().setValue(0, 7);
    QVERIFY(action(QStringLiteral("resetCurrent"))->isEnabled());
    action(QStringLiteral("resetCurrent"))->trigger();
    QCOMPARE(state().value(3), quint64(0));
    QCOMPARE(state().value(0), quint64(7));
    QVERIFY(!row(QStringLiteral("DMA")).data(DeviceTreeModel::ChangedRole).toBool());
    QVERIFY(row(QStringLiteral("UART")).data(DeviceTreeModel::ChangedRole).toBool());
    action(QStringLiteral("resetAll"))->trigger();
    QVERIFY(!row(QStringLiteral("UART")).data(DeviceTreeModel::ChangedRole).toBool());
    QVERIFY(!m_window->isWindowModified());
}

void tst_MainWindow::resetAllSaysHowManyAndIsDisabledWithoutChanges()
{
    show(smallDevice());
    QAction* reset = action(QStringLiteral("resetAll"));
    QVERIFY(!reset->isEnabled());
    state().setValue(0, 1);
    state().setValue(1, 1);
    QVERIFY(reset->isEnabled());
    QVERIFY(reset->text().contains(QStringLiteral("(2)")));
    reset->trigger();
    QCOMPARE(state().modifiedCount(), 0);
    QVERIFY(!reset->isEnabled());
}

void tst_MainWindow::aFailedLoadTellsWhyOnceAndKeepsTheDevice()
{
    const QTemporaryDir folder;
    const QString bad = writeFile(folder, QStringLiteral("bad.svd"), "<device>\n  <name>X</wrong>\n</device>\n");
    show(smallDevice());
    Answer answer(QMessageBox::AcceptRole);
    QVERIFY(!m_window->openFile(bad));
    QCOMPARE(answer.count(), 1);
    QVERIFY2(answer.text().contains(QStringLiteral("bad.svd:2:")), qPrintable(answer.text()));
    QVERIFY2(!answer.text().contains(QLatin1Char('&')), qPrintable(answer.text()));
    QCOMPARE(m_window->session().device->name, QStringLiteral("SMALL"));
    QCOMPARE(m_window->formView()->form()->registerIndex(), 0);
    QVERIFY(!m_window->openFile(folder.filePath(QStringLiteral("missing.svd"))));
    QCOMPARE(answer.count(), 2);
    QCOMPARE(m_window->session().device->name, QStringLiteral("SMALL"));
}

void tst_MainWindow::anotherFileReplacesTheDevice()
{
    const QTemporaryDir folder;
    const QString file = writeFile(folder, QStringLiteral("large.svd"), largeDescription(10));
    show(smallDevice());
    QVERIFY(m_window->openFile(file));
    QCOMPARE(m_window->session().device->name, QStringLiteral("LARGE"));
    QCOMPARE(shownRows(view()).value(0), QStringLiteral("P"));
    QCOMPARE(m_window->formView()->form()->registerIndex(), 0);
}

void tst_MainWindow::aDroppedFileIsOpened()
{
    const QTemporaryDir folder;
    show(smallDevice());
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(writeFile(folder, QStringLiteral("large.svd"), largeDescription(10)))});
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_window.get(), &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_window.get(), &drop);
    QCOMPARE(m_window->session().device->name, QStringLiteral("LARGE"));
}

void tst_MainWindow::editsAreAskedForBeforeAnotherFile()
{
    show(smallDevice());
    m_window->edits().setRegister(0, 1);
    {
        Answer cancel(QMessageBox::RejectRole);
        action(QStringLiteral("openSample"))->trigger();
        QCOMPARE(cancel.count(), 1);
    }
    QCOMPARE(m_window->session().device->name, QStringLiteral("SMALL"));
    QCOMPARE(state().value(0), quint64(1));
    Answer discard(QMessageBox::DestructiveRole);
    action(QStringLiteral("openSample"))->trigger();
    QCOMPARE(discard.count(), 1);
    QVERIFY(m_window->session().device->name != QStringLiteral("SMALL"));
    QVERIFY(!m_window->isWindowModified());
}

void tst_MainWindow::editsAreAskedForBeforeClosing()
{
    show(smallDevice());
    m_window->edits().setRegister(0, 1);
    {
        Answer cancel(QMessageBox::RejectRole);
        QVERIFY(!m_window->close());
        QCOMPARE(cancel.count(), 1);
    }
    QVERIFY(m_window->isVisible());
    Answer discard(QMessageBox::DestructiveRole);
    QVERIFY(m_window->close());
    QVERIFY(!m_window->isVisible());
}

void tst_MainWindow::withoutEditsNothingIsAsked()
{
    show(smallDevice());
    m_window->edits().setRegister(0, 1);
    m_window->edits().reset(0);
    Answer answer(QMessageBox::RejectRole);
    QVERIFY(m_window->close());
    QCOMPARE(answer.count(), 0);
}

void tst_MainWindow::loadingCanBeCancelled()
{
    const QTemporaryDir folder;
    const QString file = writeFile(folder, QStringLiteral("large.svd"), largeDescription(60000));
    show(smallDevice());
    auto* loader = m_window->findChild<DeviceLoader*>();
    auto* cancel = m_window->findChild<QPushButton*>(QStringLiteral("cancelLoading"));
    int shown = 0;
    connect(loader, &DeviceLoader::progressed, this, [&] {
        ++shown;
        QVERIFY(!view()->isEnabled());
        QVERIFY(!action(QStringLiteral("open"))->isEnabled());
        QTest::mouseClick(cancel, Qt::LeftButton);
    });
    QVERIFY(!m_window->openFile(file));
    QCOMPARE(shown, 1);
    QCOMPARE(m_window->session().device->name, QStringLiteral("SMALL"));
    QVERIFY(view()->isEnabled());
    QVERIFY(!cancel->isVisible());
    QVERIFY(action(QStringLiteral("open"))->isEnabled());
}

void tst_MainWindow::closingWhileLoadingCancelsAndCloses()
{
    const QTemporaryDir folder;
    const QString file = writeFile(folder, QStringLiteral("large.svd"), largeDescription(60000));
    show(smallDevice());
    connect(m_window->findChild<DeviceLoader*>(), &DeviceLoader::progressed, this, [this] { m_window->close(); });
    QVERIFY(!m_window->openFile(file));
    QVERIFY(!m_window->isVisible());
}

void tst_MainWindow::anotherLoadWhileLoadingIsRefused()
{
    const QTemporaryDir folder;
    const QString file = writeFile(folder, QStringLiteral("large.svd"), largeDescription(60000));
    show(smallDevice());
    int refused = 0;
    connect(m_window->findChild<DeviceLoader*>(), &DeviceLoader::progressed, this,
            [&] { refused += m_window->openFile(sampleFileName()) ? 0 : 1; });
    QVERIFY(m_window->openFile(file));
    QVERIFY(refused > 0);
    QCOMPARE(m_window->session().device->name, QStringLiteral("LARGE"));
}

void tst_MainWindow::theTitleNamesDeviceAndFile()
{
    show(smallDevice());
    QVERIFY(m_window->windowTitle().contains(QStringLiteral("SMALL")));
    QVERIFY(m_window->windowTitle().contains(QStringLiteral("small.svd[*]")));
}

void tst_MainWindow::theScreenshotShowsTheSession()
{
    Session session = sessionOf(smallDevice());
    QByteArray before;
    QByteArray after;
    QString error;
    QVERIFY(renderScreenshot(session, &before, &error));
    session.state->setValue(0, 0x123);
    QVERIFY(renderScreenshot(session, &after, &error));
    QVERIFY(QImage::fromData(before).width() >= 1000);
    QVERIFY(before != after);
}

void tst_MainWindow::tenThousandRegistersAreQuick()
{
    QVector<Register> registers;
    for (int i = 0; i < 10000; ++i) {
        registers.append(makeRegister(QStringLiteral("REG%1").arg(i), 32, {makeField(QStringLiteral("A"), 0, 8)}));
    }
    show(makeDevice(registers));
    QElapsedTimer timer;
    timer.start();
    filter(QStringLiteral("REG99"));
    filter(QString());
    for (int i = 0; i < 20; ++i) {
        m_window->devicePanel()->setCurrentPlace({m_window->session().device->registerAt(i * 400).node});
    }
    QVERIFY2(timer.elapsed() < 3000, qPrintable(QString::number(timer.elapsed())));
}

TESSERA_TEST_MAIN(tst_MainWindow)
#include "tst_mainwindow.moc"
