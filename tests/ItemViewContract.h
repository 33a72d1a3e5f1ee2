// SPDX-License-Identifier: MIT
#pragma once

#include "CellModels.h"
#include "ModalDriver.h"

#include <Tessera/views/CBitDialog.h>
#include <Tessera/views/StyledItemDelegate.h>
#include <Tessera/widgets/CDSpinBox.h>
#include <Tessera/widgets/CPenDialog.h>

#include <QAbstractItemModelTester>
#include <QAbstractItemView>
#include <QApplication>
#include <QColorDialog>
#include <QDoubleSpinBox>
#include <QFontDialog>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPointer>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QSortFilterProxyModel>
#include <QStyleOptionViewItem>
#include <QtTest>

using BitDescriptions = QMap<int, QString>;

/*!
    What TbView and TrView promise alike: they act on a click by the kind of the cell.

    A test of one class says how the view, Qt's plain view of that sort and a model of cells are made.
*/
class ItemViewContract : public QObject
{
    Q_OBJECT

protected:
    virtual QAbstractItemView* createView(QWidget* pParent = nullptr) const = 0;
    virtual QAbstractItemView* createQtView() const = 0;
    virtual CellModels::CellHost* createHost() const = 0;
    virtual void prepare(QAbstractItemView& view) const = 0; //!< makes every cell visible

private Q_SLOTS:
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    void init()
    {
        m_pHost.reset(createHost());
        m_pTester.reset(
            new QAbstractItemModelTester(m_pHost->model(), QAbstractItemModelTester::FailureReportingMode::Fatal));
        m_pView.reset(createView());
        m_pView->setModel(m_pHost->model());
        prepare(*m_pView);
        m_pView->resize(500, 400);
    }

    void cleanup()
    {
        m_pView.reset();
        m_pTester.reset();
        m_pHost.reset();
    }

    // The class

    void itDeclaresOneProtectedSlot()
    {
        const QMetaObject& meta = *m_pView->metaObject();
        QCOMPARE(meta.superClass(), QScopedPointer<QAbstractItemView>(createQtView())->metaObject());
        QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
        const QMetaMethod slot = meta.method(meta.methodOffset());
        QCOMPARE(slot.methodSignature(), QByteArray("slotClicked(QModelIndex)"));
        QCOMPARE(slot.methodType(), QMetaMethod::Slot);
        QCOMPARE(slot.access(), QMetaMethod::Protected);
        QCOMPARE(slot.parameterNames(), QList<QByteArray>{"index"});
        QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    }

    void itBelongsToItsParent()
    {
        QWidget parent;
        QCOMPARE(createView(&parent)->parentWidget(), &parent);
        QCOMPARE(m_pView->parentWidget(), nullptr);
    }

    void everyEditTriggerIsOnAndAllElseIsAsInQtsView()
    {
        const QScopedPointer<QAbstractItemView> pView(createView());
        const QScopedPointer<QAbstractItemView> pQtView(createQtView());
        QCOMPARE(int(pView->editTriggers()), 31);
        QVERIFY(pView->editTriggers() != pQtView->editTriggers());
        QCOMPARE(pView->itemDelegate()->metaObject()->className(), "QStyledItemDelegate");
        QCOMPARE(pView->selectionMode(), pQtView->selectionMode());
        QCOMPARE(pView->selectionBehavior(), pQtView->selectionBehavior());
        QVERIFY(!pView->model());
    }

    // Booleans

    void aClickTogglesABool_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<bool>("expected");
        for (const int nKind : {2, 3}) {
            QTest::addRow("%d, true", nKind) << nKind << QVariant(true) << false;
            QTest::addRow("%d, false", nKind) << nKind << QVariant(false) << true;
            QTest::addRow("%d, a number", nKind) << nKind << QVariant(5) << false;
            QTest::addRow("%d, a text", nKind) << nKind << QVariant(QStringLiteral("false")) << true;
            QTest::addRow("%d, nothing", nKind) << nKind << QVariant() << true;
        }
    }
    void aClickTogglesABool()
    {
        QFETCH(int, kind);
        QFETCH(QVariant, value);
        QFETCH(bool, expected);
        m_pHost->answer(1, 1, {{Qt::UserRole, kind}, {Qt::EditRole, value}});
        show();
        click(1, 1);
        QCOMPARE(m_pHost->takeWrites(), QStringList{written(1, 1, expected)});
        QVERIFY(CellModels::identical(m_pHost->value(1, 1), expected));
        QVERIFY(!editorOf(1, 1));
        click(1, 1);
        QCOMPARE(m_pHost->takeWrites(), QStringList{written(1, 1, !expected)});
        QVERIFY(!editorOf(1, 1));
    }

    void aClickOnAPictureTogglesItUnderTheDelegateToo()
    {
        m_pHost->answer(1, 1, {{Qt::UserRole, 3}, {Qt::EditRole, true}});
        m_pView->setItemDelegate(new nsUI::StyledItemDelegate(m_pView.data()));
        show();
        click(1, 1);
        QCOMPARE(m_pHost->takeWrites(), QStringList{written(1, 1, false)});
    }

    void onlyTheLeftButtonClicks()
    {
        m_pHost->answer(1, 1, {{Qt::UserRole, 2}, {Qt::EditRole, true}});
        show();
        for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton})
            QTest::mouseClick(m_pView->viewport(), button, Qt::NoModifier, placeOf(1, 1));
        QCOMPARE(m_pHost->takeWrites(), QStringList());
    }

    void aRefusedToggleChangesNothing()
    {
        m_pHost->answer(1, 1, {{Qt::UserRole, 2}, {Qt::EditRole, true}});
        m_pHost->cell(1, 1).refuses = true;
        show();
        click(1, 1);
        click(1, 1);
        QCOMPARE(m_pHost->takeWrites(), (QStringList{written(1, 1, false), written(1, 1, false)}));
    }

    void aCheckBoxIsToggledByTheViewItself()
    {
        m_pHost->answer(1, 1, {{Qt::UserRole, 1}, {Qt::EditRole, false}});
        show();
        clickSlot(m_pHost->at(1, 1)); // nothing of the click handler's
        QCOMPARE(m_pHost->takeWrites(), QStringList());

        QStyleOptionViewItem option;
        option.initFrom(m_pView.data());
        option.rect = m_pView->visualRect(m_pHost->at(1, 1));
        option.features = QStyleOptionViewItem::HasCheckIndicator;
        const QPoint box =
            m_pView->style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, m_pView.data()).center();
        QTest::mouseClick(m_pView->viewport(), Qt::LeftButton, Qt::NoModifier, box);
        QCOMPARE(m_pHost->takeWrites(), (QStringList{QStringLiteral("1,1 10 QVariant(int, 2)"), written(1, 1, true)}));
        QTest::mouseClick(m_pView->viewport(), Qt::LeftButton, Qt::NoModifier, box);
        QCOMPARE(m_pHost->takeWrites(), (QStringList{QStringLiteral("1,1 10 QVariant(int, 0)"), written(1, 1, false)}));
        QVERIFY(!editorOf(1, 1));
    }

    // What a click does not act on

    void aClickOnAnyOtherKindDoesNothing_data()
    {
        QTest::addColumn<QVariant>("kind");
        for (const int nKind : {0, 1, 4, 5, 6, 7, 8, 13, -1, 256, 265})
            QTest::addRow("%d", nKind) << QVariant(nKind);
        QTest::newRow("no kind") << QVariant();
        QTest::newRow("no number") << QVariant(QStringLiteral("x"));
    }
    void aClickOnAnyOtherKindDoesNothing()
    {
        QFETCH(QVariant, kind);
        m_pHost->answer(1, 1, {{Qt::EditRole, true}});
        if (kind.isValid())
            m_pHost->cell(1, 1).answers[Qt::UserRole] = kind;
        const ModalDriver driver([](QDialog& dialog) { dialog.accept(); });
        clickSlot(m_pHost->at(1, 1));
        QVERIFY(!driver.hasActed());
        QCOMPARE(m_pHost->takeWrites(), QStringList());
    }

    void aClickOnADisabledCellDoesNothing_data()
    {
        QTest::addColumn<int>("kind");
        for (const int nKind : {1, 2, 3, 9, 10, 11, 12})
            QTest::addRow("%d", nKind) << nKind;
    }
    void aClickOnADisabledCellDoesNothing()
    {
        QFETCH(int, kind);
        answerDialogCell(1, kind);
        m_pHost->cell(1, 0).disabled = true;
        show();
        const ModalDriver driver([](QDialog& dialog) { dialog.accept(); });
        click(1, 0);
        doubleClick(1, 0);
        QVERIFY(!driver.hasActed());
        QCOMPARE(m_pHost->takeWrites(), QStringList());
    }

    void anInvalidIndexDoesNothing()
    {
        clickSlot(QModelIndex());
        QCOMPARE(m_pHost->takeWrites(), QStringList());
        m_pView->setModel(nullptr);
        clickSlot(QModelIndex());
    }

    // Dialogs

    void aClickOpensTheDialogOfTheKind_data() { dialogKinds(); }
    void aClickOpensTheDialogOfTheKind()
    {
        QFETCH(int, kind);
        answerDialogCell(1, kind);
        show();
        const QString sTitle = ownTitle(kind);
        QVERIFY(!sTitle.isEmpty());
        const ModalDriver driver([&](QDialog& dialog) {
            QCOMPARE(dialog.metaObject()->className(), dialogClass(kind));
            QCOMPARE(dialog.parentWidget(), nullptr);
            QCOMPARE(dialog.windowTitle(), sTitle);
            QVERIFY(!editorOf(1, 0));
            dialog.reject();
        });
        click(1, 0);
        QVERIFY(driver.hasActed());
        QCOMPARE(m_pHost->takeWrites(), QStringList());
        QVERIFY(!editorOf(1, 0));
    }

    void aCancelledDialogWritesNothing_data() { dialogKinds(); }
    void aCancelledDialogWritesNothing()
    {
        QFETCH(int, kind);
        answerDialogCell(1, kind);
        show();
        const QVariant value = m_pHost->value(1);
        QSignalSpy changes(m_pHost->model(), &QAbstractItemModel::dataChanged);
        const ModalDriver driver([kind](QDialog& dialog) {
            choose(dialog, kind);
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        click(1, 0);
        QVERIFY(driver.hasActed());
        QCOMPARE(m_pHost->takeWrites(), QStringList());
        QCOMPARE(changes.count(), 0);
        QVERIFY(CellModels::identical(m_pHost->value(1), value));
    }

    void anAcceptedDialogWritesWhatWasChosen_data() { dialogKinds(); }
    void anAcceptedDialogWritesWhatWasChosen()
    {
        QFETCH(int, kind);
        answerDialogCell(1, kind);
        show();
        QVariant chosen;
        const ModalDriver driver([&](QDialog& dialog) {
            chosen = choose(dialog, kind);
            dialog.accept();
        });
        click(1, 0);
        QVERIFY(driver.hasActed());
        QCOMPARE(m_pHost->takeWrites(), QStringList{written(1, 0, chosen)});
        QVERIFY(CellModels::identical(m_pHost->value(1), chosen));
    }

    void anAcceptedDialogWritesEvenWhatWasThere_data() { dialogKinds(); }
    void anAcceptedDialogWritesEvenWhatWasThere()
    {
        QFETCH(int, kind);
        answerDialogCell(1, kind);
        show();
        const QVariant value = m_pHost->value(1);
        const ModalDriver driver([](QDialog& dialog) { dialog.accept(); });
        click(1, 0);
        QVERIFY(driver.hasActed());
        QCOMPARE(m_pHost->takeWrites().size(), 1);
        if (kind != 10) // the font dialog may know the font by another name
            QVERIFY(CellModels::identical(m_pHost->value(1), value));
        QCOMPARE(m_pHost->value(1).userType(), value.userType());
    }

    void aModelThatGoesWhileItsDialogIsOpenIsNotTouched_data() { dialogKinds(); }
    void aModelThatGoesWhileItsDialogIsOpenIsNotTouched()
    {
        QFETCH(int, kind);
        answerDialogCell(1, kind);
        const ModalDriver driver([this, kind](QDialog& dialog) {
            choose(dialog, kind);
            m_pTester.reset();
            m_pHost.reset();
            dialog.accept();
        });
        clickSlot(m_pHost->at(1));
        QVERIFY(driver.hasActed());
        QVERIFY(!m_pView->model());
    }

    void aRowThatGoesWhileItsDialogIsOpenIsNotWritten_data() { dialogKinds(); }
    void aRowThatGoesWhileItsDialogIsOpenIsNotWritten()
    {
        QFETCH(int, kind);
        answerDialogCell(1, kind);
        answerDialogCell(2, kind); // takes its place
        const ModalDriver driver([this, kind](QDialog& dialog) {
            choose(dialog, kind);
            m_pHost->dropRow(1);
            dialog.accept();
        });
        clickSlot(m_pHost->at(1));
        QVERIFY(driver.hasActed());
        QCOMPARE(m_pHost->takeWrites(), QStringList());
    }

    void aRowThatMovesWhileItsDialogIsOpenIsWrittenWhereItIs_data() { dialogKinds(); }
    void aRowThatMovesWhileItsDialogIsOpenIsWrittenWhereItIs()
    {
        QFETCH(int, kind);
        answerDialogCell(1, kind);
        QVariant chosen;
        const ModalDriver driver([&](QDialog& dialog) {
            chosen = choose(dialog, kind);
            m_pHost->addRow(0);
            dialog.accept();
        });
        clickSlot(m_pHost->at(1));
        QVERIFY(driver.hasActed());
        QCOMPARE(m_pHost->takeWrites(), QStringList{written(2, 0, chosen)});
    }

    void aDoubleClickOnADialogCellOpensNoEditor_data() { dialogKinds(); }
    void aDoubleClickOnADialogCellOpensNoEditor()
    {
        QFETCH(int, kind);
        answerDialogCell(1, kind);
        m_pView->setItemDelegate(new nsUI::StyledItemDelegate(m_pView.data()));
        show();
        const ModalDriver driver([](QDialog& dialog) { dialog.reject(); });
        doubleClick(1, 0);
        QVERIFY(driver.hasActed()); // the first of the two clicks
        QVERIFY(!editorOf(1, 0));
        QCOMPARE(m_pHost->takeWrites(), QStringList());
    }

    void theColourDialogStartsWithTheValueAndShowsAlpha_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QColor>("initial");
        const QColorDialog qts(QColor{});
        QTest::newRow("a colour") << QVariant(QColor(1, 2, 3, 4)) << QColor(1, 2, 3, 4);
        QTest::newRow("a name") << QVariant(QStringLiteral("red")) << QColor(Qt::red);
        QTest::newRow("no colour's name") << QVariant(QStringLiteral("nonsense")) << qts.currentColor();
        QTest::newRow("a number") << QVariant(5) << qts.currentColor();
        QTest::newRow("nothing") << QVariant() << qts.currentColor();
    }
    void theColourDialogStartsWithTheValueAndShowsAlpha()
    {
        QFETCH(QVariant, value);
        QFETCH(QColor, initial);
        m_pHost->answer(1, 0, {{Qt::UserRole, 9}, {Qt::EditRole, value}});
        QColor accepted;
        const ModalDriver driver([&](QDialog& dialog) {
            auto* const pDialog = qobject_cast<QColorDialog*>(&dialog);
            QVERIFY(pDialog);
            QVERIFY(pDialog->testOption(QColorDialog::ShowAlphaChannel));
            QCOMPARE(pDialog->currentColor(), initial);
            accepted = pDialog->currentColor();
            dialog.accept();
        });
        clickSlot(m_pHost->at(1));
        QVERIFY(driver.hasActed());
        QCOMPARE(m_pHost->takeWrites(), QStringList{written(1, 0, accepted)}); // a colour from now on
    }

    void theFontDialogStartsWithTheValue_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QFont>("initial");
        QFont font(QApplication::font());
        font.setPointSize(17);
        font.setBold(true);
        font.setItalic(true);
        QTest::newRow("a font") << QVariant(font) << font;
        QTest::newRow("nothing") << QVariant() << QFont();
    }
    void theFontDialogStartsWithTheValue()
    {
        QFETCH(QVariant, value);
        QFETCH(QFont, initial);
        m_pHost->answer(1, 0, {{Qt::UserRole, 10}, {Qt::EditRole, value}});
        const ModalDriver driver([&](QDialog& dialog) {
            auto* const pDialog = qobject_cast<QFontDialog*>(&dialog);
            QVERIFY(pDialog);
            QCOMPARE(pDialog->options(), QFontDialog::FontDialogOptions());
            const QFontDialog alone(initial); // it shows what the fonts of the system offer
            QCOMPARE(pDialog->currentFont(), alone.currentFont());
            QCOMPARE(pDialog->currentFont().pointSize(), initial.pointSize());
            dialog.reject();
        });
        clickSlot(m_pHost->at(1));
        QVERIFY(driver.hasActed());
    }

    void thePenDialogStartsWithTheValue_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QPen>("initial");
        const QPen pen(Qt::red, 2.5, Qt::DashLine, Qt::RoundCap);
        QTest::newRow("a pen") << QVariant(pen) << pen;
        QTest::newRow("nothing") << QVariant() << QPen();
        QTest::newRow("a text") << QVariant(QStringLiteral("x")) << QPen();
    }
    void thePenDialogStartsWithTheValue()
    {
        QFETCH(QVariant, value);
        QFETCH(QPen, initial);
        m_pHost->answer(1, 0, {{Qt::UserRole, 11}, {Qt::EditRole, value}});
        const ModalDriver driver([&](QDialog& dialog) {
            auto* const pDialog = qobject_cast<nsUI::CPenDialog*>(&dialog);
            QVERIFY(pDialog);
            QCOMPARE(pDialog->currentPen(), initial);
            dialog.reject();
        });
        clickSlot(m_pHost->at(1));
        QVERIFY(driver.hasActed());
    }

    void theBitDialogStartsWithValueAndDescriptions_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QVariant>("descriptions");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<BitDescriptions>("map");
        const BitDescriptions map{{0, QStringLiteral("ready")}, {9, QStringLiteral("error")}};
        const QByteArray bytes("\x12\xAB");
        QTest::newRow("both") << QVariant(bytes) << QVariant::fromValue(map) << bytes << map;
        QTest::newRow("no descriptions") << QVariant(bytes) << QVariant() << bytes << BitDescriptions();
        QTest::newRow("no bytes") << QVariant(QByteArray("")) << QVariant::fromValue(map) << QByteArray("") << map;
        QTest::newRow("nothing") << QVariant() << QVariant() << QByteArray("") << BitDescriptions();
    }
    void theBitDialogStartsWithValueAndDescriptions()
    {
        QFETCH(QVariant, value);
        QFETCH(QVariant, descriptions);
        QFETCH(QByteArray, bytes);
        QFETCH(BitDescriptions, map);
        m_pHost->answer(1, 0, {{Qt::UserRole, 12}, {Qt::EditRole, value}});
        if (descriptions.isValid())
            m_pHost->cell(1, 0).answers[276] = descriptions;
        const ModalDriver driver([&](QDialog& dialog) {
            auto* const pDialog = qobject_cast<nsUI::CBitDialog*>(&dialog);
            QVERIFY(pDialog);
            QCOMPARE(pDialog->byteArray(), bytes);
            QCOMPARE(pDialog->bitDescMap(), map);
            dialog.accept();
        });
        clickSlot(m_pHost->at(1));
        QVERIFY(driver.hasActed());
        QCOMPARE(m_pHost->takeWrites(), QStringList{written(1, 0, bytes)}); // an empty result is a result
    }

    // Proxies and editors

    void aClickThroughAProxyReachesTheSource()
    {
        m_pHost->answer(2, 1, {{Qt::UserRole, 2}, {Qt::EditRole, true}});
        answerDialogCell(1, 12);
        QSortFilterProxyModel sorted;
        sorted.setSourceModel(m_pHost->model());
        QAbstractItemModelTester tester(&sorted, QAbstractItemModelTester::FailureReportingMode::Fatal);
        sorted.sort(0, Qt::DescendingOrder);
        m_pView->setModel(&sorted);
        clickSlot(sorted.mapFromSource(m_pHost->at(2, 1)));
        QCOMPARE(m_pHost->takeWrites(), QStringList{written(2, 1, false)});

        QVariant chosen;
        const ModalDriver driver([&](QDialog& dialog) {
            chosen = choose(dialog, 12);
            dialog.accept();
        });
        clickSlot(sorted.mapFromSource(m_pHost->at(1)));
        QCOMPARE(m_pHost->takeWrites(), QStringList{written(1, 0, chosen)});
        m_pView->setModel(nullptr);
    }

    void aClickOnASelectedEditableCellOpensItsEditor()
    {
        m_pHost->answer(1, 1, {{Qt::UserRole, 7}, {Qt::EditRole, 1.5}});
        m_pView->setItemDelegate(new nsUI::StyledItemDelegate(m_pView.data()));
        m_pView->setEditTriggers(m_pView->editTriggers() & ~QAbstractItemView::CurrentChanged);
        show();
        click(1, 1); // selects
        QVERIFY(!editorOf(1, 1));
        click(1, 1);
        QTRY_VERIFY(editorOf(1, 1)); // unless it becomes a double click
        QVERIFY(qobject_cast<nsUI::CDSpinBox*>(editorOf(1, 1)));
        QCOMPARE(m_pHost->takeWrites(), QStringList());
    }

    void anEditorOpensWithEveryTrigger()
    {
        m_pHost->answer(1, 1, {{Qt::UserRole, 7}, {Qt::EditRole, 1.5}});
        m_pHost->answer(2, 1, {{Qt::UserRole, 2}, {Qt::EditRole, true}});
        m_pView->setItemDelegate(new nsUI::StyledItemDelegate(m_pView.data()));
        show();
        m_pView->setCurrentIndex(m_pHost->at(2, 1));
        QVERIFY(!editorOf(2, 1));
        m_pView->setCurrentIndex(m_pHost->at(1, 1)); // current
        closeEditor();
        QTest::keyClick(m_pView->viewport(), Qt::Key_F2); // edit key
        closeEditor();
        QTest::keyClick(m_pView->viewport(), Qt::Key_5); // any key
        closeEditor();
        doubleClick(1, 1);
        closeEditor();
    }

    void rowsThatComeAndGoLeaveTheOpenEditorWithItsCell()
    {
        // No other cell opens an editor when it becomes current.
        for (int nRow = 0; nRow < 4; ++nRow) {
            for (int nColumn = 0; nColumn < 2; ++nColumn)
                m_pHost->answer(nRow, nColumn, {{Qt::UserRole, 2}, {Qt::EditRole, true}});
        }
        m_pHost->answer(1, 1, {{Qt::UserRole, 7}, {Qt::EditRole, 1.5}, {273, 0.5}, {274, quint64(3)}});
        m_pView->setItemDelegate(new nsUI::StyledItemDelegate(m_pView.data()));
        show();
        m_pView->setCurrentIndex(m_pHost->at(1, 1));
        QPointer<QWidget> pEditor = editorOf(1, 1);
        QVERIFY(pEditor);
        m_pHost->takeWrites();

        m_pHost->addRow(0);
        QCOMPARE(editorOf(2, 1), pEditor.data());
        QTest::keyClick(pEditor, Qt::Key_Up);
        QCOMPARE(m_pHost->takeWrites(), QStringList{written(2, 1, 2.0)});
        m_pHost->change(2, 1, 273, 0.25);
        QTest::keyClick(pEditor, Qt::Key_Up);
        QCOMPARE(m_pHost->takeWrites(), QStringList{written(2, 1, 2.25)});

        m_pHost->dropRow(2);
        // Qt's tree commits to the row that is about to go, its table does not; after that nothing is written.
        const QStringList lastWrites = m_pHost->takeWrites();
        QVERIFY(lastWrites.isEmpty() || lastWrites == QStringList{written(2, 1, 2.25)});
        if (pEditor)
            QTest::keyClick(pEditor, Qt::Key_Up);
        QTRY_VERIFY(!pEditor);
        QCOMPARE(m_pHost->takeWrites(), QStringList());
        click(2, 1); // the row below has moved up
        QCOMPARE(m_pHost->takeWrites(), QStringList{written(2, 1, false)});
    }

protected:
    static QString written(int nRow, int nColumn, const QVariant& value)
    {
        return QStringLiteral("%1,%2 2 ").arg(nRow).arg(nColumn) + CellModels::spelled(value);
    }

    void show()
    {
        // The first cell becomes current with the focus; it must not open an editor then.
        m_pHost->cell(0, 0).answers[Qt::UserRole] = 2;
        m_pView->show();
        QVERIFY(QTest::qWaitForWindowActive(m_pView.data()));
    }

    QPoint placeOf(int nRow, int nColumn) const { return m_pView->visualRect(m_pHost->at(nRow, nColumn)).center(); }

    void click(int nRow, int nColumn)
    {
        QTest::mouseClick(m_pView->viewport(), Qt::LeftButton, Qt::NoModifier, placeOf(nRow, nColumn));
    }

    void doubleClick(int nRow, int nColumn)
    {
        click(nRow, nColumn);
        QTest::mouseDClick(m_pView->viewport(), Qt::LeftButton, Qt::NoModifier, placeOf(nRow, nColumn));
    }

    void clickSlot(const QModelIndex& index)
    {
        QVERIFY(
            QMetaObject::invokeMethod(m_pView.data(), "slotClicked", Qt::DirectConnection, Q_ARG(QModelIndex, index)));
    }

    QWidget* editorOf(int nRow, int nColumn) const { return m_pView->indexWidget(m_pHost->at(nRow, nColumn)); }

    //! Closes the editor of (1, 1), which must be open.
    void closeEditor()
    {
        QPointer<QWidget> pEditor = editorOf(1, 1);
        QVERIFY(pEditor);
        QTest::keyClick(pEditor, Qt::Key_Escape);
        QTRY_VERIFY(!editorOf(1, 1));
        QTRY_VERIFY(!pEditor);
    }

    static void dialogKinds()
    {
        QTest::addColumn<int>("kind");
        QTest::newRow("colour") << 9;
        QTest::newRow("font") << 10;
        QTest::newRow("pen") << 11;
        QTest::newRow("bytes") << 12;
    }

    void answerDialogCell(int nRow, int nKind)
    {
        const QMap<int, QVariant> values{{9, QColor(1, 2, 3, 4)},
                                         {10, QApplication::font()},
                                         {11, QPen(Qt::red, 2.5, Qt::DashLine, Qt::RoundCap)},
                                         {12, QByteArray("\x12\xAB")}};
        m_pHost->answer(nRow, 0, {{Qt::UserRole, nKind}, {Qt::EditRole, values.value(nKind)}});
    }

    static const char* dialogClass(int nKind)
    {
        return nKind == 9    ? "QColorDialog"
               : nKind == 10 ? "QFontDialog"
               : nKind == 11 ? "nsUI::CPenDialog"
                             : "nsUI::CBitDialog";
    }

    static QString ownTitle(int nKind)
    {
        return nKind == 9    ? QColorDialog().windowTitle()
               : nKind == 10 ? QFontDialog().windowTitle()
               : nKind == 11 ? QStringLiteral("Pen Settings")
                             : QStringLiteral("Bit Settings");
    }

    //! Another value than answerDialogCell()'s, chosen in the open dialog.
    static QVariant choose(QDialog& dialog, int nKind)
    {
        if (nKind == 9) {
            const QColor color(90, 80, 70, 60);
            static_cast<QColorDialog&>(dialog).setCurrentColor(color);
            return color;
        }
        if (nKind == 10) {
            QFont font = QApplication::font();
            font.setPointSize(23);
            static_cast<QFontDialog&>(dialog).setCurrentFont(font);
            return static_cast<QFontDialog&>(dialog).currentFont();
        }
        if (nKind == 11) {
            dialog.findChild<QDoubleSpinBox*>()->setValue(7.5);
            return QPen(Qt::red, 7.5, Qt::DashLine, Qt::RoundCap);
        }
        auto* const pHex = dialog.findChild<QLineEdit*>();
        pHex->setFocus();
        pHex->setCursorPosition(0);
        QTest::keyClicks(pHex, QStringLiteral("cafe"));
        return QByteArray("\xCA\xFE");
    }

    QScopedPointer<CellModels::CellHost> m_pHost;
    QScopedPointer<QAbstractItemModelTester> m_pTester;
    QScopedPointer<QAbstractItemView> m_pView;
};
