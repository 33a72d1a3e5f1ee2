// SPDX-License-Identifier: MIT
#include "CellModels.h"
#include "support/TestMain.h"
#include "TestSupport.h"

#include <Tessera/CISpinBox/CU16SpinBox.h>
#include <Tessera/views/StyledItemDelegate.h>
#include <Tessera/views/TbView.h>
#include <Tessera/views/TrView.h>
#include <Tessera/widgets/CDSpinBox.h>

#include <QAbstractItemModelTester>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPointer>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QtTest>

#include <functional>

using CellModels::Answers;
using CellModels::CellTable;
using CellModels::CellTree;
using nsUI::StyledItemDelegate;

Q_DECLARE_METATYPE(QAbstractItemDelegate::EndEditHint)

namespace {

//! A usable cell of each kind. One value for all of them, so that nothing but the kind changes.
Answers cellOf(int nKind, int nType = 16)
{
    const QStringList texts{QStringLiteral("one"), QStringLiteral("two"), QStringLiteral("three")};
    return {{Qt::UserRole, nKind},        {Qt::EditRole, 1}, {260, texts}, {261, texts},
            {262, QVariantList{0, 1, 2}}, {263, nType}};
}

} // namespace

/*!
    A cell that becomes another one while its editor is open, by its kind, its integer type or by going away: the
    editor closes, and what stood in it is not written.
*/
class tst_ChangingCells : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qRegisterMetaType<QAbstractItemDelegate::EndEditHint>(); } // a signal spy wants to know it
    void init();
    void cleanup();

    void aCellThatIsReportedAsAnotherOneClosesItsEditor_data() { changes(); }
    void aCellThatIsReportedAsAnotherOneClosesItsEditor();
    void aRangeOfCellsIsReportedLikeOne_data() { changes(); }
    void aRangeOfCellsIsReportedLikeOne();
    void aNewLayoutIsAReport_data() { changes(); }
    void aNewLayoutIsAReport();
    void aCellThatChangesWithoutAWordIsNotWrittenByACommit_data() { changes(); }
    void aCellThatChangesWithoutAWordIsNotWrittenByACommit();
    void enterWritesNothingIntoACellThatHasChanged_data() { changes(); }
    void enterWritesNothingIntoACellThatHasChanged();
    void aTreesEditorClosesToo_data() { changes(); }
    void aTreesEditorClosesToo();
    void aCellThatChangesWithItsOwnWriteIsClosed();

    void aModelThatAnswersNoMoreIsNotWritten_data();
    void aModelThatAnswersNoMoreIsNotWritten();
    void aRowThatIsGoneIsNotWritten_data() { editorKinds(); }
    void aRowThatIsGoneIsNotWritten();

    void anOpenListFollowsTheValue_data();
    void anOpenListFollowsTheValue();
    void anEditorStaysWhileItsCellStaysWhatItIs_data();
    void anEditorStaysWhileItsCellStaysWhatItIs();
    void aCellThatWasAnotherOneInBetweenGoesOn();
    void aPersistentEditorStaysAndIsNotRead();
    void anEditorThatTheDelegateHasNotMadeIsNotClosed();
    void anIntegerBoxOfTheHostsOwnWritesNothingThatIsNoNumber();
    void theDelegateSaysWhichEditorCloses_data() { changes(); }
    void theDelegateSaysWhichEditorCloses();

private:
    void editorKinds()
    {
        QTest::addColumn<int>("kind");
        for (const int nKind : {0, 4, 5, 6, 7, 8})
            QTest::addRow("%d", nKind) << nKind;
    }

    //! From what the editor is made for, to what the cell becomes; by kind and integer type.
    void changes()
    {
        QTest::addColumn<int>("fromKind");
        QTest::addColumn<int>("fromType");
        QTest::addColumn<int>("toKind");
        QTest::addColumn<int>("toType");
        for (const int nFrom : {0, 4, 5, 6, 7, 8}) {
            for (int nTo = 0; nTo <= 12; ++nTo) {
                if (nFrom != nTo)
                    QTest::addRow("%d to %d", nFrom, nTo) << nFrom << 16 << nTo << 16;
            }
        }
        const QVector<int> types{-8, 8, 16, -16, -32, 32, 64, -64};
        for (int i = 0; i < types.size(); ++i) {
            const int nTo = types.at((i + 1) % types.size());
            QTest::addRow("type %d to %d", types.at(i), nTo) << 6 << types.at(i) << 6 << nTo;
        }
        QTest::newRow("type 64 to none") << 6 << 64 << 6 << 0;
    }

    void showView(QAbstractItemModel* pModel, QAbstractItemView* pView)
    {
        m_pView.reset(pView);
        m_pView->setModel(pModel);
        m_pView->setItemDelegate(new StyledItemDelegate(m_pView.data()));
        m_pView->setEditTriggers(QAbstractItemView::DoubleClicked); // not already when the focus comes
        m_pView->resize(400, 300);
        m_pView->show();
        QVERIFY(QTest::qWaitForWindowActive(m_pView.data()));
    }
    void showTable() { showView(m_pTable.data(), new nsUI::TbView); }

    QWidget* edit(const QModelIndex& index)
    {
        m_pView->setCurrentIndex(index);
        m_pView->edit(index);
        return m_pView->indexWidget(index);
    }

    //! The cell (1, 1) with its editor open in a shown table, and something typed into it.
    QPointer<QWidget> openedCell(int nKind, int nType)
    {
        m_pTable->answer(1, 1, cellOf(nKind, nType));
        showTable();
        QPointer<QWidget> pEditor = edit(m_pTable->at(1, 1));
        if (pEditor && !qobject_cast<QComboBox*>(pEditor.data()))
            QTest::keyClick(pEditor, Qt::Key_7);
        m_pTable->takeWrites();
        return pEditor;
    }

    void becomeSilently(int nKind, int nType)
    {
        m_pTable->cell(1, 1).answers[Qt::UserRole] = nKind;
        m_pTable->cell(1, 1).answers[263] = nType;
    }

    StyledItemDelegate m_delegate;
    QScopedPointer<CellTable> m_pTable;
    QScopedPointer<QAbstractItemModelTester> m_pTester;
    QScopedPointer<QAbstractItemView> m_pView;
};

void tst_ChangingCells::init()
{
    m_pTable.reset(new CellTable(4, 3));
    m_pTester.reset(
        new QAbstractItemModelTester(m_pTable.data(), QAbstractItemModelTester::FailureReportingMode::Fatal));
}

void tst_ChangingCells::cleanup()
{
    m_pView.reset();
    m_pTester.reset();
    m_pTable.reset();
}

void tst_ChangingCells::aCellThatIsReportedAsAnotherOneClosesItsEditor()
{
    QFETCH(int, fromKind);
    QFETCH(int, fromType);
    QFETCH(int, toKind);
    QFETCH(int, toType);
    QPointer<QWidget> pEditor = openedCell(fromKind, fromType);
    QVERIFY(pEditor);
    m_pTable->cell(1, 1).answers[263] = toType;
    m_pTable->change(1, 1, Qt::UserRole, toKind);
    QTRY_VERIFY(!pEditor);
    QVERIFY(!m_pView->indexWidget(m_pTable->at(1, 1)));
    QVERIFY(!QApplication::activePopupWidget());
    QCOMPARE(m_pTable->takeWrites(), QStringList());
    QCOMPARE(m_pTable->value(1, 1), QVariant(1));

    // And the cell can be edited as what it is now.
    if (m_pTable->at(1, 1).flags().testFlag(Qt::ItemIsEditable))
        QVERIFY(edit(m_pTable->at(1, 1)));
}

void tst_ChangingCells::aRangeOfCellsIsReportedLikeOne()
{
    QFETCH(int, fromKind);
    QFETCH(int, fromType);
    QFETCH(int, toKind);
    QFETCH(int, toType);
    QPointer<QWidget> pEditor = openedCell(fromKind, fromType);
    QVERIFY(pEditor);
    becomeSilently(toKind, toType);
    Q_EMIT m_pTable->dataChanged(m_pTable->at(0, 0), m_pTable->at(3, 2));
    QTRY_VERIFY(!pEditor);
    QCOMPARE(m_pTable->takeWrites(), QStringList());
}

void tst_ChangingCells::aNewLayoutIsAReport()
{
    QFETCH(int, fromKind);
    QFETCH(int, fromType);
    QFETCH(int, toKind);
    QFETCH(int, toType);
    QPointer<QWidget> pEditor = openedCell(fromKind, fromType);
    QVERIFY(pEditor);
    Q_EMIT m_pTable->layoutAboutToBeChanged();
    becomeSilently(toKind, toType);
    Q_EMIT m_pTable->layoutChanged();
    QTRY_VERIFY(!pEditor);
    QCOMPARE(m_pTable->takeWrites(), QStringList());
}

void tst_ChangingCells::aCellThatChangesWithoutAWordIsNotWrittenByACommit()
{
    QFETCH(int, fromKind);
    QFETCH(int, fromType);
    QFETCH(int, toKind);
    QFETCH(int, toType);
    QPointer<QWidget> pEditor = openedCell(fromKind, fromType);
    QVERIFY(pEditor);
    becomeSilently(toKind, toType);
    Q_EMIT m_pView->itemDelegate()->commitData(pEditor);
    QTRY_VERIFY(!pEditor);
    QCOMPARE(m_pTable->takeWrites(), QStringList());
    QCOMPARE(m_pTable->value(1, 1), QVariant(1));
}

void tst_ChangingCells::enterWritesNothingIntoACellThatHasChanged()
{
    QFETCH(int, fromKind);
    QFETCH(int, fromType);
    QFETCH(int, toKind);
    QFETCH(int, toType);
    QPointer<QWidget> pEditor = openedCell(fromKind, fromType);
    QVERIFY(pEditor);
    if (auto* const pCombo = qobject_cast<QComboBox*>(pEditor.data()))
        pCombo->hidePopup();
    becomeSilently(toKind, toType);
    TestSupport::MessageRecorder log;
    QTest::keyClick(pEditor, Qt::Key_Return);
    QTRY_VERIFY(!pEditor);
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(m_pTable->takeWrites(), QStringList());
}

void tst_ChangingCells::aTreesEditorClosesToo()
{
    QFETCH(int, fromKind);
    QFETCH(int, fromType);
    QFETCH(int, toKind);
    QFETCH(int, toType);
    CellTree tree(4, 2);
    tree.answer(1, 1, cellOf(fromKind, fromType));
    auto* const pTreeView = new nsUI::TrView;
    showView(&tree, pTreeView);
    pTreeView->expandAll();
    QPointer<QWidget> pEditor = edit(tree.at(1, 1));
    QVERIFY(pEditor);
    tree.cell(1, 1).answers[263] = toType;
    tree.change(1, 1, Qt::UserRole, toKind);
    QTRY_VERIFY(!pEditor);
    QCOMPARE(tree.takeWrites(), QStringList());
    m_pView.reset();
}

//! A cell may be of one kind or another by its own value.
void tst_ChangingCells::aCellThatChangesWithItsOwnWriteIsClosed()
{
    QPointer<QWidget> pEditor = openedCell(6, 16);
    QVERIFY(pEditor);
    connect(m_pTable.data(), &QAbstractItemModel::dataChanged, m_pTable.data(), [this] {
        if (m_pTable->cell(1, 1).answers.value(Qt::UserRole) == 6)
            m_pTable->change(1, 1, Qt::UserRole, 7);
    });
    TestSupport::MessageRecorder log;
    QTest::keyClick(pEditor, Qt::Key_Return);
    QTRY_VERIFY(!pEditor);
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(m_pTable->takeWrites().size(), 1);
    QCOMPARE(m_pTable->value(1, 1), QVariant::fromValue(ushort(7)));
    QVERIFY(qobject_cast<nsUI::CDSpinBox*>(edit(m_pTable->at(1, 1))));
}

void tst_ChangingCells::aModelThatAnswersNoMoreIsNotWritten_data()
{
    QTest::addColumn<int>("kind");
    for (const int nKind : {4, 5, 6, 7, 8}) // a plain cell may be empty
        QTest::addRow("%d", nKind) << nKind;
}

//! As from a binding whose data() has run into an error: every answer is invalid from now on.
void tst_ChangingCells::aModelThatAnswersNoMoreIsNotWritten()
{
    QFETCH(int, kind);
    QPointer<QWidget> pEditor = openedCell(kind, 16);
    QVERIFY(pEditor);
    m_pTable->cell(1, 1).answers.clear();
    Q_EMIT m_pTable->dataChanged(m_pTable->at(1, 1), m_pTable->at(1, 1));
    QTRY_VERIFY(!pEditor);
    QCOMPARE(m_pTable->takeWrites(), QStringList());
}

void tst_ChangingCells::aRowThatIsGoneIsNotWritten()
{
    QFETCH(int, kind);
    for (int nRow = 0; nRow < 4; ++nRow)
        m_pTable->answer(nRow, 1, cellOf(kind));
    QWidget parent;
    for (const int nRow : {1, 2}) { // another row takes its place; none does
        const QModelIndex index = m_pTable->at(nRow, 1);
        QWidget* const pEditor = m_delegate.createEditor(&parent, QStyleOptionViewItem(), index);
        m_delegate.setEditorData(pEditor, index);
        parent.show();
        pEditor->show();
        QSignalSpy closed(&m_delegate, &QAbstractItemDelegate::closeEditor);
        m_pTable->dropRow(nRow);
        if (nRow == 2)
            m_pTable->dropRow(1);
        m_delegate.setEditorData(pEditor, index);
        m_delegate.setModelData(pEditor, m_pTable.data(), index);
        QTRY_VERIFY(closed.count() > 0);
        QCOMPARE(closed.last().first().value<QWidget*>(), pEditor);
    }
    QCOMPARE(m_pTable->takeWrites(), QStringList());
}

void tst_ChangingCells::anOpenListFollowsTheValue_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("value"); // the list stands on 1 when it opens
    for (const int nKind : {4, 5}) {
        QTest::addRow("%d, to the first entry", nKind) << nKind << 0;
        QTest::addRow("%d, to the last entry", nKind) << nKind << 2;
    }
}

void tst_ChangingCells::anOpenListFollowsTheValue()
{
    QFETCH(int, kind);
    QFETCH(int, value);
    QPointer<QWidget> pEditor = openedCell(kind, 16);
    auto* const pCombo = qobject_cast<QComboBox*>(pEditor.data());
    QVERIFY(pCombo);
    QCOMPARE(pCombo->view()->currentIndex().row(), 1);
    m_pTable->change(1, 1, Qt::EditRole, value);
    QVERIFY(pCombo->view()->isVisible());
    QCOMPARE(pCombo->view()->currentIndex().row(), value);
    QTest::keyClick(pCombo->view(), Qt::Key_Return); // what the list stands on is what is taken
    QVERIFY(!pCombo->view()->isVisible());
    Q_EMIT m_pView->itemDelegate()->commitData(pCombo);
    QCOMPARE(m_pTable->takeWrites().size(), 1);
    QCOMPARE(m_pTable->value(1, 1), QVariant(value));
}

void tst_ChangingCells::anEditorStaysWhileItsCellStaysWhatItIs_data()
{
    QTest::addColumn<int>("fromKind");
    QTest::addColumn<int>("fromType");
    QTest::addColumn<QVariant>("toKind");
    QTest::addColumn<QVariant>("toType");
    for (const int nKind : {0, 4, 5, 6, 7, 8})
        QTest::addRow("%d", nKind) << nKind << 16 << QVariant(nKind) << QVariant(16);
    QTest::newRow("the kind as a text") << 6 << 16 << QVariant(QStringLiteral("6")) << QVariant(16);
    QTest::newRow("0 to a number that is no kind") << 0 << 16 << QVariant(13) << QVariant(16);
    QTest::newRow("0 to none") << 0 << 16 << QVariant() << QVariant(16);
    QTest::newRow("the type that all others count as") << 6 << -32 << QVariant(6) << QVariant(12);
    QTest::newRow("a type that the kind does not use") << 7 << 16 << QVariant(7) << QVariant(64);
}

void tst_ChangingCells::anEditorStaysWhileItsCellStaysWhatItIs()
{
    QFETCH(int, fromKind);
    QFETCH(int, fromType);
    QFETCH(QVariant, toKind);
    QFETCH(QVariant, toType);
    QPointer<QWidget> pEditor = openedCell(fromKind, fromType);
    QVERIFY(pEditor);
    m_pTable->cell(1, 1).answers[263] = toType;
    m_pTable->cell(1, 1).answers[Qt::EditRole] = 2;
    m_pTable->change(1, 1, Qt::UserRole, toKind);
    m_pTable->addRow(0);
    Q_EMIT m_pTable->layoutAboutToBeChanged();
    Q_EMIT m_pTable->layoutChanged();
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(pEditor);
    QCOMPARE(m_pView->indexWidget(m_pTable->at(2, 1)), pEditor.data());
    Q_EMIT m_pView->itemDelegate()->commitData(pEditor);
    QCOMPARE(m_pTable->takeWrites().size(), 1);
    QCOMPARE(m_pTable->value(2, 1).toString(), fromKind == 8 ? QStringLiteral("2") : QString::number(2));
}

//! An answer that fails once between two reports does no harm.
void tst_ChangingCells::aCellThatWasAnotherOneInBetweenGoesOn()
{
    QPointer<QWidget> pEditor = openedCell(6, 16);
    QVERIFY(pEditor);
    becomeSilently(0, 0);
    becomeSilently(6, 16);
    Q_EMIT m_pTable->dataChanged(m_pTable->at(1, 1), m_pTable->at(1, 1));
    Q_EMIT m_pView->itemDelegate()->commitData(pEditor);
    QVERIFY(pEditor);
    QCOMPARE(m_pTable->takeWrites().size(), 1);
}

//! The view closes it for its host alone.
void tst_ChangingCells::aPersistentEditorStaysAndIsNotRead()
{
    m_pTable->answer(1, 1, cellOf(6, 16));
    showTable();
    m_pView->openPersistentEditor(m_pTable->at(1, 1));
    QPointer<QWidget> pEditor = m_pView->indexWidget(m_pTable->at(1, 1));
    QVERIFY(pEditor);
    m_pTable->change(1, 1, 263, 8);
    Q_EMIT m_pView->itemDelegate()->commitData(pEditor);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(m_pTable->takeWrites(), QStringList());
    auto* const pTable = qobject_cast<QTableView*>(m_pView.data());
    pTable->setColumnWidth(0, pTable->columnWidth(0) + 40); // the cell moves, and its editor with it
    QTRY_COMPARE(pEditor->geometry(), m_pView->visualRect(m_pTable->at(1, 1)));
    m_pTable->change(1, 1, 263, 16);
    QVERIFY(pEditor);
    Q_EMIT m_pView->itemDelegate()->commitData(pEditor);
    QCOMPARE(m_pTable->takeWrites().size(), 1);
}

//! A widget of the host's own, as in a mapper: it is shown what the cell holds as well as it can.
void tst_ChangingCells::anEditorThatTheDelegateHasNotMadeIsNotClosed()
{
    QLineEdit edit;
    QSignalSpy closed(&m_delegate, &QAbstractItemDelegate::closeEditor);
    for (const int nKind : {8, 0, 4, 6, 7, 8}) {
        m_pTable->answer(1, 1, cellOf(nKind));
        edit.clear();
        m_delegate.setEditorData(&edit, m_pTable->at(1, 1));
        QCOMPARE(edit.text(), QStringLiteral("1"));
        m_delegate.setModelData(&edit, m_pTable.data(), m_pTable->at(1, 1));
        QCOMPARE(m_pTable->takeWrites().size(), 1);
    }
    QCOMPARE(closed.count(), 0);
}

//! The integer boxes have no property for Qt's delegate, which would write an invalid value.
void tst_ChangingCells::anIntegerBoxOfTheHostsOwnWritesNothingThatIsNoNumber()
{
    nsUI::CU16SpinBox box;
    m_pTable->answer(1, 1, cellOf(6, 16));
    m_delegate.setEditorData(&box, m_pTable->at(1, 1));
    QCOMPARE(box.value(), ushort(1));
    for (const int nKind : {0, 4, 5, 6, 7, 8, 12}) {
        m_pTable->answer(1, 1, cellOf(nKind, 8));
        m_delegate.setEditorData(&box, m_pTable->at(1, 1));
        m_delegate.setModelData(&box, m_pTable.data(), m_pTable->at(1, 1));
        QCOMPARE(m_pTable->takeWrites(), QStringList());
    }
    QCOMPARE(box.value(), ushort(1));
    m_pTable->answer(1, 1, cellOf(6, 16));
    m_delegate.setModelData(&box, m_pTable.data(), m_pTable->at(1, 1));
    QCOMPARE(m_pTable->value(1, 1), QVariant::fromValue(ushort(1)));
    QCOMPARE(m_pTable->takeWrites().size(), 1);
}

void tst_ChangingCells::theDelegateSaysWhichEditorCloses()
{
    QFETCH(int, fromKind);
    QFETCH(int, fromType);
    QFETCH(int, toKind);
    QFETCH(int, toType);
    m_pTable->answer(1, 1, cellOf(fromKind, fromType));
    const QModelIndex index = m_pTable->at(1, 1);
    QWidget parent;
    QWidget* const pEditor = m_delegate.createEditor(&parent, QStyleOptionViewItem(), index);
    m_delegate.setEditorData(pEditor, index);
    parent.show();
    pEditor->show();
    becomeSilently(toKind, toType);

    // Each time later: a view that is placing its editors cannot do without one of them at once.
    QSignalSpy closed(&m_delegate, &QAbstractItemDelegate::closeEditor);
    const std::function<void()> calls[] = {
        [&] { m_delegate.setEditorData(pEditor, index); },
        [&] { m_delegate.setModelData(pEditor, m_pTable.data(), index); },
        [&] { m_delegate.updateEditorGeometry(pEditor, QStyleOptionViewItem(), index); },
    };
    for (const auto& call : calls) {
        call();
        QCOMPARE(closed.count(), 0);
        QVERIFY(!QApplication::activePopupWidget());
        QTRY_COMPARE(closed.count(), 1);
        QCOMPARE(closed.takeFirst().first().value<QWidget*>(), pEditor);
    }
    // A view closes the editor of a key by itself, and hides it.
    m_delegate.setModelData(pEditor, m_pTable.data(), index);
    pEditor->hide();
    QCoreApplication::processEvents();
    QCOMPARE(closed.count(), 0);
    QCOMPARE(m_pTable->takeWrites(), QStringList());
}

TESSERA_TEST_MAIN(tst_ChangingCells)
#include "tst_ChangingCells.moc"
