// SPDX-License-Identifier: MIT
#include "GuiTestSupport.h"
#include "ModalDriver.h"
#include "support/TestMain.h"

#include "device/DeviceExport.h"
#include "editors/NumberBox.h"
#include "form/FormView.h"
#include "form/RegisterForm.h"
#include "form/ValuePanel.h"
#include "session/DeviceEdits.h"
#include "tree/DevicePanel.h"
#include "window/MainWindow.h"

#include <Tessera/CISpinBox/CU32SpinBox.h>
#include <Tessera/views/CBitDialog.h>

#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTableView>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QTreeView>

#include <memory>

using namespace GuiTestSupport;

namespace {

enum Index { Control, Data, Status };

DevicePtr smallDevice()
{
    Field mode = makeField(QStringLiteral("MODE"), 4, 4);
    mode.enumeration = makeEnumeration(
        {makeName(QStringLiteral("OFF"), 0), makeName(QStringLiteral("SLOW"), 1), makeName(QStringLiteral("FAST"), 2)});
    const Register control =
        makeRegister(QStringLiteral("CTRL"), 32,
                     {makeField(QStringLiteral("EN"), 0, 1), mode, makeField(QStringLiteral("DIV"), 8, 12)});
    Register status = makeRegister(QStringLiteral("STATUS"), 16);
    status.access = Access::ReadOnly;
    return makeDevice({control, makeRegister(QStringLiteral("DATA"), 12), status});
}

} // namespace

/// Editing in the tree of the window, and what the window does with edits.
class tst_TreeEditing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aDoubleClickEditsAValue();
    void aKeyEditsTheCurrentRow_data();
    void aKeyEditsTheCurrentRow();
    void typingOpensTheEditor();
    void aReadOnlyValueIsNotEdited();
    void aNameIsChosenFromTheOpenList();
    void escapeKeepsTheNamedValue();
    void aClickTogglesABit();
    void walkingThroughTheTreeOpensNoEditor();
    void anOpenEditorFollowsTheValue();
    void anEditorWhoseRowGoesAwayWritesNothing();
    void aFieldRowIsMarkedInTheForm();
    void treeAndFormAgree();
    void aClickOnTheBitsOpensTheDialog();
    void theBitsOfAFieldsRegisterAreEdited();
    void aCancelledBitDialogChangesNothing();
    void bitsOfAReadOnlyRegisterAreNotEdited();
    void typedDigitsAreUndoneAtOnce();
    void undoShowsWhatItChanges();
    void clicksOnBitsAreUndoneOneByOne();
    void rowsAreCopiedAsText();
    void theBaseIsOneForAll();
    void findNextGoesRound();
    void changesOnlyShowsChangedRows();
    void aHiddenRowThatIsToBeShownEndsTheFilter();
    void savedValuesLoadBack();
    void savingIsWhatTheStarTells();
    void aFailedSaveIsToldAndKeepsTheStar();
    void whatStandsInAnOpenEditorIsAnEdit_data();
    void whatStandsInAnOpenEditorIsAnEdit();
    void anotherBaseKeepsWhatIsBeingTyped();
    void changesOnlyKeepsWhatIsBeingTyped();
    void rowsStayWhileAnEditorIsOpen();
    void keysTurnABitOver_data();
    void keysTurnABitOver();
    void undoIsTheWindowsInTheFormToo();
    void bitsOfAHiddenRowAreEdited();
    void whatEndsChangesOnlyUnchecksIt();
    void aFileOfAnotherDeviceIsAskedFor();
    void whatHasNoPlaceIsNamed_data();
    void whatHasNoPlaceIsNamed();
    void withNothingToSetNothingIsAsked();
    void aBadFileIsToldOnce();
    void anotherDeviceForgetsTheHistory();

private:
    QTreeView* view() const { return m_window->devicePanel()->view(); }
    DeviceState& state() const { return *m_window->session().state; }
    QAction* action(const char* name) const { return m_window->findChild<QAction*>(QLatin1String(name)); }
    EditHistory* history() const { return &m_window->edits().history(); }
    QModelIndex row(const QString& name) const;
    QModelIndex value(const QString& name) const { return row(name).siblingAtColumn(DeviceTreeModel::ValueColumn); }
    void makeCurrent(const QModelIndex& index) const;
    void click(const QModelIndex& index) const;
    void doubleClick(const QModelIndex& index) const;
    template <class Editor>
    Editor* editor() const
    {
        return view()->viewport()->findChild<Editor*>();
    }
    QString write(const QString& name, const QByteArray& content) const;

    std::unique_ptr<MainWindow> m_window;
    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_TreeEditing::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_window = std::make_unique<MainWindow>();
    const DevicePtr device = smallDevice();
    m_window->setSession({device, std::make_unique<DeviceState>(device), {}});
    QVERIFY(showAndActivate(m_window.get()));
    view()->expandAll();
}

void tst_TreeEditing::cleanup()
{
    m_window.reset();
}

QModelIndex tst_TreeEditing::row(const QString& name) const
{
    return view()
        ->model()
        ->match(view()->model()->index(0, 0), Qt::DisplayRole, name, 1, Qt::MatchExactly | Qt::MatchRecursive)
        .value(0);
}

void tst_TreeEditing::makeCurrent(const QModelIndex& index) const
{
    view()->setFocus();
    view()->setCurrentIndex(index);
}

void tst_TreeEditing::click(const QModelIndex& index) const
{
    view()->scrollTo(index);
    QTest::mouseClick(view()->viewport(), Qt::LeftButton, Qt::NoModifier, view()->visualRect(index).center());
}

void tst_TreeEditing::doubleClick(const QModelIndex& index) const
{
    click(index);
    QTest::mouseDClick(view()->viewport(), Qt::LeftButton, Qt::NoModifier, view()->visualRect(index).center());
}

QString tst_TreeEditing::write(const QString& name, const QByteArray& content) const
{
    QFile file(m_folder->filePath(name));
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() ? file.fileName() : QString();
}

void tst_TreeEditing::aDoubleClickEditsAValue()
{
    doubleClick(value(QStringLiteral("CTRL")));
    auto* box = editor<nsUI::CU32SpinBox>();
    QVERIFY(box);
    QCOMPARE(box->text(), QStringLiteral("0x0"));
    QTest::keyClicks(box, QStringLiteral("2A0835"));
    QTest::keyClick(box, Qt::Key_Return);
    QTRY_COMPARE(state().value(Control), quint64(0x2A0835));
    QCOMPARE(value(QStringLiteral("CTRL")).data().toString(), QStringLiteral("0x002A0835"));
    QCOMPARE(history()->count(), 1);
}

void tst_TreeEditing::aKeyEditsTheCurrentRow_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("F2") << int(Qt::Key_F2);
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
}

void tst_TreeEditing::aKeyEditsTheCurrentRow()
{
    QFETCH(int, key);
    makeCurrent(row(QStringLiteral("CTRL"))); // its name
    QTest::keyClick(view(), static_cast<Qt::Key>(key));
    auto* box = editor<nsUI::CU32SpinBox>();
    QVERIFY(box);
    QTest::keyClicks(box, QStringLiteral("7"));
    QTest::keyClick(box, Qt::Key_Return);
    QTRY_COMPARE(state().value(Control), quint64(7));
}

void tst_TreeEditing::typingOpensTheEditor()
{
    makeCurrent(value(QStringLiteral("CTRL")));
    QTest::keyClick(view(), Qt::Key_5);
    QVERIFY(editor<nsUI::CU32SpinBox>());
}

void tst_TreeEditing::aReadOnlyValueIsNotEdited()
{
    doubleClick(value(QStringLiteral("STATUS")));
    QVERIFY(!editor<QWidget>());
    QTest::keyClick(view(), Qt::Key_F2);
    QVERIFY(!editor<QWidget>());
}

void tst_TreeEditing::aNameIsChosenFromTheOpenList()
{
    makeCurrent(value(QStringLiteral("MODE")));
    QTest::keyClick(view(), Qt::Key_F2);
    auto* box = editor<QComboBox>();
    QVERIFY(box);
    QVERIFY(box->view()->isVisible());
    QTest::keyClick(box->view(), Qt::Key_End);
    QTest::keyClick(box->view(), Qt::Key_Return); // this is all: what is picked is set
    QCOMPARE(state().value(Control), quint64(0x20));
    QTRY_VERIFY(!editor<QComboBox>());
}

void tst_TreeEditing::escapeKeepsTheNamedValue()
{
    state().setValue(Control, 0x90); // without a name
    makeCurrent(value(QStringLiteral("MODE")));
    QTest::keyClick(view(), Qt::Key_F2);
    auto* box = editor<QComboBox>();
    QVERIFY(box);
    QCOMPARE(box->currentText(), QStringLiteral("0x9 (not named)"));
    QTest::keyClick(box->view(), Qt::Key_Escape);
    QTest::keyClick(box, Qt::Key_Escape);
    QCOMPARE(state().value(Control), quint64(0x90));
}

void tst_TreeEditing::aClickTogglesABit()
{
    const QModelIndex bit = value(QStringLiteral("EN"));
    view()->scrollTo(bit);
    const QRect cell = view()->visualRect(bit);
    const QPoint box(cell.left() + 9, cell.center().y());
    QTest::mouseClick(view()->viewport(), Qt::LeftButton, Qt::NoModifier, box);
    QCOMPARE(state().value(Control), quint64(1));
    makeCurrent(bit);
    QTest::keyClick(view(), Qt::Key_Space);
    QCOMPARE(state().value(Control), quint64(0));
    QCOMPARE(history()->count(), 2);
}

void tst_TreeEditing::walkingThroughTheTreeOpensNoEditor()
{
    makeCurrent(value(QStringLiteral("CTRL")));
    for (int i = 0; i < 5; ++i) {
        QTest::keyClick(view(), Qt::Key_Down);
        QVERIFY(!editor<QWidget>());
    }
}

void tst_TreeEditing::anOpenEditorFollowsTheValue()
{
    makeCurrent(value(QStringLiteral("CTRL")));
    QTest::keyClick(view(), Qt::Key_F2);
    state().setValue(Control, 0x77);
    QCOMPARE(editor<nsUI::CU32SpinBox>()->value(), quint32(0x77));
}

void tst_TreeEditing::anEditorWhoseRowGoesAwayWritesNothing()
{
    makeCurrent(value(QStringLiteral("CTRL")));
    QTest::keyClick(view(), Qt::Key_F2);
    const QPointer<nsUI::CU32SpinBox> box = editor<nsUI::CU32SpinBox>();
    QVERIFY(box);
    QTest::keyClicks(box, QStringLiteral("123"));
    m_window->devicePanel()->filterEdit()->setText(QStringLiteral("data"));
    m_window->devicePanel()->findNext();
    QTRY_VERIFY(!box);
    QCOMPARE(state().value(Data), quint64(0));
    QVERIFY(state().value(Control) == 0 || state().value(Control) == 0x123); // committed or given up, but nowhere else
}

void tst_TreeEditing::aFieldRowIsMarkedInTheForm()
{
    makeCurrent(row(QStringLiteral("DIV")));
    QCOMPARE(m_window->formView()->form()->registerIndex(), int(Control));
    QVERIFY(view()->hasFocus());
    makeCurrent(row(QStringLiteral("DATA")));
    QCOMPARE(m_window->formView()->form()->registerIndex(), int(Data));
}

void tst_TreeEditing::treeAndFormAgree()
{
    makeCurrent(row(QStringLiteral("CTRL")));
    auto* edit = m_window->formView()->form()->values()->hexadecimal()->findChild<QLineEdit*>();
    typeOver(edit, QStringLiteral("1234"));
    QCOMPARE(value(QStringLiteral("CTRL")).data().toString(), QStringLiteral("0x00001234"));
    view()->model()->setData(value(QStringLiteral("CTRL")), 0x56, Qt::EditRole);
    QCOMPARE(edit->text(), QStringLiteral("0x56"));
}

void tst_TreeEditing::aClickOnTheBitsOpensTheDialog()
{
    state().setValue(Data, 0x801);
    const ModalDriver driver([](QDialog& dialog) {
        auto* bits = qobject_cast<nsUI::CBitDialog*>(&dialog);
        QVERIFY(bits);
        QCOMPARE(bits->byteArray(), QByteArray::fromHex("0801"));
        QCOMPARE(bits->bitDescMap().value(12), QStringLiteral("not in the register"));
        auto* table = bits->findChild<QTableView*>();
        const QModelIndex bit1 = table->model()->index(1, 1);
        QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, table->visualRect(bit1).center());
        bits->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    });
    click(row(QStringLiteral("DATA")).siblingAtColumn(DeviceTreeModel::BytesColumn));
    QVERIFY(driver.hasActed());
    QCOMPARE(state().value(Data), quint64(0x803));
    QCOMPARE(history()->count(), 1);
}

void tst_TreeEditing::theBitsOfAFieldsRegisterAreEdited()
{
    makeCurrent(row(QStringLiteral("DIV")));
    const ModalDriver driver([](QDialog& dialog) {
        auto* bits = qobject_cast<nsUI::CBitDialog*>(&dialog);
        QVERIFY(bits);
        QVERIFY(bits->windowTitle().contains(QStringLiteral("BLOCK.CTRL")));
        QCOMPARE(bits->bitDescMap().value(4), QStringLiteral("MODE[0]"));
        auto* hex = bits->findChild<QLineEdit*>();
        hex->setFocus();
        hex->selectAll();
        QTest::keyClicks(hex, QStringLiteral("DEADBEEF"));
        bits->accept();
    });
    action("editBits")->trigger();
    QVERIFY(driver.hasActed());
    QCOMPARE(state().value(Control), quint64(0xDEADBEEF));
}

void tst_TreeEditing::aCancelledBitDialogChangesNothing()
{
    makeCurrent(row(QStringLiteral("DATA")));
    const ModalDriver driver([](QDialog& dialog) { dialog.reject(); });
    action("editBits")->trigger();
    QVERIFY(driver.hasActed());
    QCOMPARE(history()->count(), 0);
}

void tst_TreeEditing::bitsOfAReadOnlyRegisterAreNotEdited()
{
    makeCurrent(row(QStringLiteral("STATUS")));
    QVERIFY(!action("editBits")->isEnabled());
    makeCurrent(row(QStringLiteral("BLOCK")));
    QVERIFY(!action("editBits")->isEnabled());
    makeCurrent(row(QStringLiteral("EN")));
    QVERIFY(action("editBits")->isEnabled());
}

void tst_TreeEditing::typedDigitsAreUndoneAtOnce()
{
    makeCurrent(row(QStringLiteral("CTRL")));
    auto* edit = m_window->formView()->form()->values()->decimal()->findChild<QLineEdit*>();
    edit->setFocus();
    typeOver(edit, QStringLiteral("123"));
    QCOMPARE(history()->count(), 1);
    view()->setFocus();
    edit->setFocus();
    typeOver(edit, QStringLiteral("45"));
    QCOMPARE(history()->count(), 2);
    action("undo")->trigger();
    QCOMPARE(state().value(Control), quint64(123));
    action("undo")->trigger();
    QCOMPARE(state().value(Control), quint64(0));
    action("redo")->trigger();
    QCOMPARE(state().value(Control), quint64(123));
}

void tst_TreeEditing::undoShowsWhatItChanges()
{
    m_window->edits().setField(Control, 2, 5);
    makeCurrent(row(QStringLiteral("DATA")));
    action("undo")->trigger();
    QCOMPARE(m_window->formView()->form()->registerIndex(), int(Control));
    QCOMPARE(view()->currentIndex().data().toString(), QStringLiteral("DIV"));
    makeCurrent(row(QStringLiteral("EN")));
    action("redo")->trigger(); // the same register: nothing jumps
    QCOMPARE(view()->currentIndex().data().toString(), QStringLiteral("EN"));
}

void tst_TreeEditing::clicksOnBitsAreUndoneOneByOne()
{
    view()->model()->setData(value(QStringLiteral("EN")), true, Qt::EditRole);
    view()->model()->setData(value(QStringLiteral("DIV")), 3, Qt::EditRole);
    view()->model()->setData(value(QStringLiteral("DIV")), 4, Qt::EditRole);
    QVERIFY(action("undo")->text().contains(QStringLiteral("BLOCK.CTRL.DIV")));
    action("undo")->trigger();
    QCOMPARE(state().value(Control), quint64(0x301));
}

void tst_TreeEditing::rowsAreCopiedAsText()
{
    m_window->edits().setRegister(Control, 0x21);
    makeCurrent(row(QStringLiteral("MODE")));
    view()->selectionModel()->select(row(QStringLiteral("CTRL")),
                                     QItemSelectionModel::Select | QItemSelectionModel::Rows);
    QTest::keyClick(view(), Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(),
             QStringLiteral("BLOCK.CTRL\t0x40000000\t0x00000021\t0x00000000\tread-write\tWhat CTRL is for\n"
                            "BLOCK.CTRL.MODE\t[7:4]\tFAST (0x2)\tOFF (0x0)\tread-write\tWhat MODE is for\n"));
}

void tst_TreeEditing::theBaseIsOneForAll()
{
    m_window->edits().setRegister(Control, 0x900);
    makeCurrent(row(QStringLiteral("CTRL")));
    for (QAction* base : m_window->findChildren<QAction*>()) {
        if (base->data().toInt() == static_cast<int>(NumberBase::Binary)) {
            base->trigger();
        }
    }
    QCOMPARE(value(QStringLiteral("DIV")).data().toString(), QStringLiteral("0b1001"));
    QCOMPARE(value(QStringLiteral("DATA")).data().toString(), QStringLiteral("0b000000000000"));
    QCOMPARE(m_window->formView()->fieldBase(), NumberBase::Binary);
    m_window->formView()->setFieldBase(NumberBase::Decimal); // as its own buttons do
    QCOMPARE(value(QStringLiteral("DIV")).data().toString(), QStringLiteral("9"));
}

void tst_TreeEditing::findNextGoesRound()
{
    m_window->devicePanel()->filterEdit()->setText(QStringLiteral("t")); // CTRL with what it holds, DATA, STATUS
    for (const char* name : {"DATA", "STATUS", "CTRL", "DATA"}) {
        action("findNext")->trigger();
        QCOMPARE(view()->currentIndex().data().toString(), QLatin1String(name));
    }
}

void tst_TreeEditing::changesOnlyShowsChangedRows()
{
    m_window->edits().setField(Control, 2, 5);
    makeCurrent(row(QStringLiteral("CTRL")));
    action("changesOnly")->trigger();
    QVERIFY(row(QStringLiteral("DIV")).isValid());
    QVERIFY(view()->isExpanded(row(QStringLiteral("CTRL"))));
    QVERIFY(!row(QStringLiteral("EN")).isValid());
    QVERIFY(!row(QStringLiteral("DATA")).isValid());
    m_window->edits().setRegister(Data, 1);
    QTRY_VERIFY(row(QStringLiteral("DATA")).isValid());
    action("resetAll")->trigger();
    QTRY_VERIFY(!row(QStringLiteral("BLOCK")).isValid());
    QCOMPARE(m_window->formView()->form()->registerIndex(), int(Control)); // the form stays
    action("changesOnly")->trigger();
    QVERIFY(row(QStringLiteral("EN")).isValid());
    QVERIFY(view()->isExpanded(row(QStringLiteral("CTRL"))));
}

void tst_TreeEditing::aHiddenRowThatIsToBeShownEndsTheFilter()
{
    m_window->edits().setRegister(Data, 1);
    makeCurrent(row(QStringLiteral("CTRL")));
    m_window->edits().setField(Control, 0, 1);
    makeCurrent(row(QStringLiteral("DATA")));
    m_window->devicePanel()->filterEdit()->setText(QStringLiteral("data"));
    m_window->devicePanel()->findNext();
    action("undo")->trigger(); // of CTRL.EN
    QCOMPARE(view()->currentIndex().data().toString(), QStringLiteral("EN"));
    QVERIFY(m_window->devicePanel()->filterEdit()->text().isEmpty());
}

void tst_TreeEditing::savedValuesLoadBack()
{
    m_window->edits().setRegister(Control, 0x12345678);
    const QString file = write(QStringLiteral("values.json"), exportJson(state()));
    m_window->edits().resetAll();
    m_window->edits().setRegister(Data, 5);
    QVERIFY(m_window->loadValues(file));
    QCOMPARE(state().value(Control), quint64(0x12345678));
    QCOMPARE(state().value(Data), quint64(0));
    QVERIFY(action("undo")->text().contains(QStringLiteral("values.json")));
    action("undo")->trigger(); // the whole load
    QCOMPARE(state().value(Control), quint64(0));
    QCOMPARE(state().value(Data), quint64(5));
}

void tst_TreeEditing::savingIsWhatTheStarTells()
{
    QVERIFY(!m_window->isWindowModified());
    m_window->edits().setRegister(Control, 1);
    QVERIFY(m_window->isWindowModified());
    QVERIFY(m_window->saveValues(m_folder->filePath(QStringLiteral("saved.json"))));
    QVERIFY(!m_window->isWindowModified());
    m_window->edits().setRegister(Data, 1);
    QVERIFY(m_window->isWindowModified());
    action("undo")->trigger();
    QVERIFY(!m_window->isWindowModified()); // as saved again
    action("resetAll")->trigger();
    QVERIFY(m_window->isWindowModified()); // not as saved, though nothing differs from its reset value
}

void tst_TreeEditing::aFailedSaveIsToldAndKeepsTheStar()
{
    m_window->edits().setRegister(Control, 1);
    bool isWaiting = true;
    const ModalDriver driver([&isWaiting](QDialog& dialog) {
        isWaiting = QGuiApplication::overrideCursor() != nullptr;
        dialog.reject();
    });
    QVERIFY(!m_window->saveValues(m_folder->filePath(QStringLiteral("no/such/folder.json"))));
    QVERIFY(driver.hasActed());
    QVERIFY(!isWaiting);
    QVERIFY(m_window->isWindowModified());
}

void tst_TreeEditing::whatStandsInAnOpenEditorIsAnEdit_data()
{
    QTest::addColumn<bool>("isList");
    QTest::newRow("a number") << false;
    QTest::newRow("a choice") << true;
}

void tst_TreeEditing::whatStandsInAnOpenEditorIsAnEdit()
{
    QFETCH(bool, isList);
    makeCurrent(value(isList ? QStringLiteral("MODE") : QStringLiteral("DATA")));
    QTest::keyClick(view(), Qt::Key_F2);
    if (isList) {
        QTest::keyClick(editor<QComboBox>()->view(), Qt::Key_Escape); // the list alone
        editor<QComboBox>()->setCurrentIndex(2);
    } else {
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("99"));
    }
    bool isAsked = false;
    const ModalDriver driver([&isAsked](QDialog& dialog) {
        isAsked = qobject_cast<QMessageBox*>(&dialog) != nullptr;
        dialog.reject();
    });
    QVERIFY(!m_window->close());
    QVERIFY(isAsked);
    QCOMPARE(state().value(isList ? Control : Data), isList ? quint64(0x20) : quint64(0x99));
}

void tst_TreeEditing::anotherBaseKeepsWhatIsBeingTyped()
{
    makeCurrent(value(QStringLiteral("DATA")));
    QTest::keyClick(view(), Qt::Key_F2);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("55"));
    m_window->formView()->setFieldBase(NumberBase::Decimal);
    QCOMPARE(state().value(Data), quint64(0x55));
    QVERIFY(view()->hasFocus());
}

void tst_TreeEditing::changesOnlyKeepsWhatIsBeingTyped()
{
    makeCurrent(value(QStringLiteral("DATA")));
    QTest::keyClick(view(), Qt::Key_F2);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("55"));
    action("changesOnly")->trigger();
    QCOMPARE(state().value(Data), quint64(0x55));
    QCOMPARE(view()->currentIndex().siblingAtColumn(0).data().toString(), QStringLiteral("DATA"));
}

void tst_TreeEditing::rowsStayWhileAnEditorIsOpen()
{
    m_window->edits().setRegister(Control, 0x10);
    m_window->edits().setRegister(Data, 1);
    action("changesOnly")->trigger();
    makeCurrent(value(QStringLiteral("CTRL")));
    QTest::keyClick(view(), Qt::Key_F2);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("20"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab); // sets it and opens the next editor, a list
    QTRY_COMPARE(state().value(Control), quint64(0x20));
    QTest::qWait(20);
    auto* box = editor<QComboBox>();
    QVERIFY(box);
    QTest::keyClick(box->view(), Qt::Key_Home);
    QTest::keyClick(box->view(), Qt::Key_Return); // its reset value: nothing of the register differs any more
    QCOMPARE(state().value(Control), quint64(0));
    QTRY_VERIFY(!row(QStringLiteral("CTRL")).isValid());
    QVERIFY(row(QStringLiteral("DATA")).isValid());
}

void tst_TreeEditing::keysTurnABitOver_data()
{
    QTest::addColumn<int>("key");
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_F2, Qt::Key_Return}) {
        QTest::newRow(qPrintable(QKeySequence(key).toString())) << int(key);
    }
}

void tst_TreeEditing::keysTurnABitOver()
{
    QFETCH(int, key);
    makeCurrent(row(QStringLiteral("EN"))); // its name
    QTest::keyClick(view(), static_cast<Qt::Key>(key));
    QCOMPARE(state().value(Control), quint64(1));
    QTest::keyClick(view(), static_cast<Qt::Key>(key));
    QCOMPARE(state().value(Control), quint64(0));
}

void tst_TreeEditing::undoIsTheWindowsInTheFormToo()
{
    m_window->edits().setRegister(Data, 0x12);
    makeCurrent(row(QStringLiteral("DATA")));
    auto* edit = m_window->formView()->form()->values()->hexadecimal()->findChild<QLineEdit*>();
    edit->setFocus();
    typeOver(edit, QStringLiteral("345"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(state().value(Data), quint64(0x12));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(state().value(Data), quint64(0));
}

void tst_TreeEditing::bitsOfAHiddenRowAreEdited()
{
    makeCurrent(row(QStringLiteral("DATA")));
    m_window->devicePanel()->filterEdit()->setText(QStringLiteral("ctrl"));
    QTest::keyClick(m_window->devicePanel()->filterEdit(), Qt::Key_Down);
    QCOMPARE(m_window->formView()->form()->registerIndex(), int(Data));
    QVERIFY(action("editBits")->isEnabled());
    const ModalDriver driver([](QDialog& dialog) {
        QVERIFY(dialog.windowTitle().contains(QStringLiteral("BLOCK.DATA")));
        dialog.reject();
    });
    action("editBits")->trigger();
    QVERIFY(driver.hasActed());
}

void tst_TreeEditing::whatEndsChangesOnlyUnchecksIt()
{
    m_window->edits().setRegister(Data, 1);
    action("changesOnly")->trigger();
    m_window->devicePanel()->setCurrentPlace({m_window->session().device->registerAt(Status).node});
    QVERIFY(!action("changesOnly")->isChecked());
    action("changesOnly")->trigger();
    QVERIFY(m_window->devicePanel()->changesOnly());
    const DevicePtr device = smallDevice();
    m_window->setSession({device, std::make_unique<DeviceState>(device), {}});
    QVERIFY(!action("changesOnly")->isChecked());
    QVERIFY(!m_window->devicePanel()->changesOnly());
}

void tst_TreeEditing::aFileOfAnotherDeviceIsAskedFor()
{
    const QString file = write(QStringLiteral("a%2b.json"),
                               R"({"device": "OTHER", "registers": [{"path": "BLOCK.CTRL", "value": "0x7"}]})");
    const ModalDriver driver([](QDialog& dialog) {
        const QString text = dialog.findChild<QTextBrowser*>()->toPlainText();
        QVERIFY2(text.contains(QStringLiteral("a%2b.json")) && text.contains(QStringLiteral("OTHER")),
                 qPrintable(text));
        dialog.findChild<QPushButton*>(QStringLiteral("setOthers"))->click();
    });
    QVERIFY(m_window->loadValues(file));
    QVERIFY(driver.hasActed());
    QCOMPARE(state().value(Control), quint64(7));
}

void tst_TreeEditing::whatHasNoPlaceIsNamed_data()
{
    QTest::addColumn<bool>("agrees");
    QTest::newRow("agreed") << true;
    QTest::newRow("cancelled") << false;
}

void tst_TreeEditing::whatHasNoPlaceIsNamed()
{
    QFETCH(bool, agrees);
    const QString file = write(QStringLiteral("other.json"), R"({"device": "OTHER", "registers": [
            {"path": "BLOCK.CTRL", "value": "0x7"}, {"path": "BLOCK.GONE", "value": "0x1"},
            {"path": "BLOCK.DATA", "value": "0x1000"}, {"path": "BLOCK.STATUS", "value": "0x1"}]})");
    const ModalDriver driver([agrees](QDialog& dialog) {
        const QString list = dialog.findChild<QTextBrowser*>()->toPlainText();
        for (const char* path : {"BLOCK.GONE", "BLOCK.DATA", "BLOCK.STATUS"}) {
            QVERIFY2(list.contains(QLatin1String(path)), qPrintable(list));
        }
        QVERIFY(!list.contains(QStringLiteral("CTRL")));
        auto* others = dialog.findChild<QPushButton*>(QStringLiteral("setOthers"));
        QVERIFY(others && others->text().contains(QStringLiteral("1")));
        QPushButton* nothing = dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
        QVERIFY(nothing->isDefault());
        (agrees ? others : nothing)->click();
    });
    QCOMPARE(m_window->loadValues(file), agrees);
    QVERIFY(driver.hasActed());
    QCOMPARE(state().value(Control), agrees ? quint64(7) : quint64(0));
    QCOMPARE(state().value(Data), quint64(0));
    QCOMPARE(history()->count(), agrees ? 1 : 0);
}

void tst_TreeEditing::withNothingToSetNothingIsAsked()
{
    const QString file = write(QStringLiteral("other.json"),
                               R"({"device": "OTHER", "registers": [{"path": "BLOCK.GONE", "value": "0x1"}]})");
    const ModalDriver driver([](QDialog& dialog) {
        QVERIFY(!dialog.findChild<QPushButton*>(QStringLiteral("setOthers")));
        dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    });
    QVERIFY(!m_window->loadValues(file));
    QVERIFY(driver.hasActed());
}

void tst_TreeEditing::aBadFileIsToldOnce()
{
    m_window->edits().setRegister(Data, 5);
    const QString file = write(QStringLiteral("bad.json"), "{\n  \"registers\": [,]\n}\n");
    QString text;
    const ModalDriver driver([&text](QDialog& dialog) {
        text = qobject_cast<QMessageBox*>(&dialog) ? static_cast<QMessageBox&>(dialog).text() : QString();
        dialog.reject();
    });
    QVERIFY(!m_window->loadValues(file));
    QVERIFY(driver.hasActed());
    QVERIFY2(text.contains(QStringLiteral("bad.json:2:")), qPrintable(text));
    QCOMPARE(state().value(Data), quint64(5));
}

void tst_TreeEditing::anotherDeviceForgetsTheHistory()
{
    m_window->edits().setRegister(Data, 5);
    QVERIFY(action("undo")->isEnabled());
    const DevicePtr device = smallDevice();
    m_window->setSession({device, std::make_unique<DeviceState>(device), {}});
    QVERIFY(!action("undo")->isEnabled());
    m_window->edits().setRegister(Data, 6);
    QVERIFY(action("undo")->isEnabled());
    action("undo")->trigger();
    QCOMPARE(state().value(Data), quint64(0));
}

TESSERA_TEST_MAIN(tst_TreeEditing)
#include "tst_treeediting.moc"
