// SPDX-License-Identifier: MIT
#pragma once

#include "ItemViewContract.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QScopeGuard>
#include <QVBoxLayout>

/*!
    What TbView and TrView promise alike about keys: Space, F2 and Enter do on the current cell what a click does.
*/
class ItemKeyContract : public ItemViewContract
{
    Q_OBJECT

private Q_SLOTS:
    // Where a click acts

    void aKeyTogglesABool_data() { keysOn({1, 2, 3}); }
    void aKeyTogglesABool()
    {
        QFETCH(int, key);
        QFETCH(int, kind);
        m_pHost->answer(1, 1, {{Qt::UserRole, kind}, {Qt::EditRole, true}});
        showOn(1, 1);
        for (const bool value : {false, true}) {
            press(key);
            QVERIFY(!m_pHost->takeWrites().isEmpty());
            QVERIFY(CellModels::identical(m_pHost->value(1, 1), value));
        }
        QVERIFY(!editorOf(1, 1));
        QCOMPARE(m_pView->currentIndex(), m_pHost->at(1, 1));
    }

    void aKeyOpensTheDialogOfTheKind_data() { keysOn({9, 10, 11, 12}); }
    void aKeyOpensTheDialogOfTheKind()
    {
        QFETCH(int, key);
        QFETCH(int, kind);
        answerDialogCell(1, kind);
        showOn(1, 0);
        QVariant chosen;
        const ModalDriver driver([&](QDialog& dialog) {
            QCOMPARE(dialog.metaObject()->className(), dialogClass(kind));
            QCOMPARE(dialog.parentWidget(), nullptr);
            chosen = choose(dialog, kind);
            dialog.accept();
        });
        press(key);
        QVERIFY(driver.hasActed());
        QCOMPARE(m_pHost->takeWrites(), QStringList{written(1, 0, chosen)});
    }

    void aKeyActsUnderTheDelegateToo_data() { keysOn({1, 2, 3, 12}); }
    void aKeyActsUnderTheDelegateToo()
    {
        m_pView->setItemDelegate(new nsUI::StyledItemDelegate(m_pView.data()));
        QFETCH(int, kind);
        if (kind == 12)
            aKeyOpensTheDialogOfTheKind();
        else
            aKeyTogglesABool();
    }

    //! As a click does; but an Enter that is no edit trigger is left to a dialog.
    void aKeyActsWhateverTheEditTriggersAre()
    {
        m_pView->setEditTriggers(QAbstractItemView::NoEditTriggers);
        for (const int nKind : {1, 2}) {
            for (const int nKey : {int(Qt::Key_Space), int(Qt::Key_F2)}) {
                m_pHost->answer(1, 1, {{Qt::UserRole, nKind}, {Qt::EditRole, true}});
                showOn(1, 1);
                press(nKey);
                QCOMPARE(m_pHost->value(1, 1), QVariant(false));
            }
        }
    }

    void aKeyThatIsHeldActsOnce_data() { keysOn({1, 2, 12}); }
    void aKeyThatIsHeldActsOnce()
    {
        QFETCH(int, key);
        QFETCH(int, kind);
        answerDialogCell(1, kind);
        if (kind != 12)
            m_pHost->cell(1, 0).answers[Qt::EditRole] = true;
        showOn(1, 0);
        QSignalSpy activated(m_pView.data(), &QAbstractItemView::activated);
        const ModalDriver driver([](QDialog& dialog) { dialog.accept(); });
        press(key);
        QVERIFY(!m_pHost->takeWrites().isEmpty());
        const auto nActivated = activated.count();
        for (int i = 0; i < 3; ++i)
            QVERIFY(sendPress(key, Qt::NoModifier, true)); // nor does a dialog's button get it
        QCOMPARE(m_pHost->takeWrites(), QStringList());
        QCOMPARE(activated.count(), nActivated);
    }

    void onlyTheCurrentCellIsActedOn()
    {
        for (int nRow = 0; nRow < 3; ++nRow)
            m_pHost->answer(nRow, 1, {{Qt::UserRole, 2}, {Qt::EditRole, true}});
        showOn(1, 1);
        m_pView->selectAll();
        press(Qt::Key_Space);
        QCOMPARE(m_pHost->takeWrites(), QStringList{written(1, 1, false)});
        m_pView->setCurrentIndex(QModelIndex());
        press(Qt::Key_Space);
        press(Qt::Key_F2);
        press(Qt::Key_Return);
        QCOMPARE(m_pHost->takeWrites(), QStringList());
    }

    void aDisabledCellIsNotActedOn_data() { keysOn({1, 2, 3, 9, 12, 4}); }
    void aDisabledCellIsNotActedOn()
    {
        QFETCH(int, key);
        QFETCH(int, kind);
        answerDialogCell(1, kind);
        m_pView->setEditTriggers(m_pView->editTriggers() & ~QAbstractItemView::CurrentChanged);
        showOn(1, 0);
        m_pHost->cell(1, 0).disabled = true;
        const ModalDriver driver([](QDialog& dialog) { dialog.accept(); });
        press(key);
        QVERIFY(!driver.hasActed());
        QCOMPARE(m_pHost->takeWrites(), QStringList());
        QVERIFY(!editorOf(1, 0));
    }

    void aKeyWithAModifierIsQts_data()
    {
        QTest::addColumn<int>("modifiers");
        QTest::newRow("Ctrl") << int(Qt::ControlModifier);
        QTest::newRow("Shift") << int(Qt::ShiftModifier);
        QTest::newRow("Alt") << int(Qt::AltModifier);
        QTest::newRow("Meta") << int(Qt::MetaModifier);
    }
    void aKeyWithAModifierIsQts()
    {
        QFETCH(int, modifiers);
        m_pHost->answer(1, 1, {{Qt::UserRole, 2}, {Qt::EditRole, true}});
        showOn(1, 1);
        for (const int nKey : keys())
            sendPress(nKey, Qt::KeyboardModifiers(modifiers), false);
        QCOMPARE(m_pHost->takeWrites(), QStringList());
    }

    void theEnterOfTheKeypadIsEnter()
    {
        m_pHost->answer(1, 1, {{Qt::UserRole, 2}, {Qt::EditRole, true}});
        showOn(1, 1);
        QVERIFY(sendPress(Qt::Key_Enter, Qt::KeypadModifier, false));
        QCOMPARE(m_pHost->takeWrites(), QStringList{written(1, 1, false)});
    }

    // Editors

    void aKeyOpensAListAndLeavesItOpen_data() { keysOn({4, 5}); }
    void aKeyOpensAListAndLeavesItOpen()
    {
        QFETCH(int, key);
        QFETCH(int, kind);
        answerEditableCell(kind);
        m_pView->setEditTriggers(m_pView->editTriggers() & ~QAbstractItemView::CurrentChanged);
        m_pView->setItemDelegate(new nsUI::StyledItemDelegate(m_pView.data()));
        showOn(1, 1);
        QVERIFY(sendPress(key, Qt::NoModifier, false));
        auto* const pCombo = qobject_cast<QComboBox*>(editorOf(1, 1));
        QVERIFY(pCombo);
        QVERIFY(pCombo->view()->isVisible());
        QCOMPARE(pCombo->view()->currentIndex().row(), 1);
        QTest::keyRelease(pCombo->view(), static_cast<Qt::Key>(key)); // the popup has got the keyboard
        QVERIFY(pCombo->view()->isVisible());
        QTest::keyClick(pCombo->view(), Qt::Key_Down);
        QTest::keyClick(pCombo->view(), Qt::Key_Return);
        QTest::keyClick(pCombo, Qt::Key_Return);
        QTRY_VERIFY(!editorOf(1, 1));
        QCOMPARE(m_pHost->value(1, 1), QVariant(2));
    }

    void F2AndEnterOpenEveryEditorOnWhatItHolds_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("kind");
        for (const int nKey : {int(Qt::Key_F2), int(Qt::Key_Return), int(Qt::Key_Enter)}) {
            for (const int nKind : {0, 4, 5, 6, 7, 8})
                addKeyRow(nKey, nKind);
        }
    }
    void F2AndEnterOpenEveryEditorOnWhatItHolds()
    {
        QFETCH(int, key);
        QFETCH(int, kind);
        answerEditableCell(kind);
        m_pView->setEditTriggers(QAbstractItemView::EditKeyPressed);
        m_pView->setItemDelegate(new nsUI::StyledItemDelegate(m_pView.data()));
        showOn(1, 1);
        const QVariant value = m_pHost->value(1, 1);
        QSignalSpy activated(m_pView.data(), &QAbstractItemView::activated);
        QVERIFY(sendPress(key, Qt::NoModifier, false));
        QPointer<QWidget> pEditor = editorOf(1, 1);
        QVERIFY(pEditor);
        QCOMPARE(activated.count(), key == Qt::Key_F2 ? 0 : 1);
        if (auto* const pCombo = qobject_cast<QComboBox*>(pEditor.data()))
            pCombo->hidePopup();

        // The keys are the editor's now: Enter closes it, and is not taken for another one that opens it.
        QTest::keyClick(pEditor, Qt::Key_Return);
        QTRY_VERIFY(!pEditor);
        QVERIFY(!editorOf(1, 1));
        QCOMPARE(m_pHost->value(1, 1).toInt(), value.toInt());
        QCOMPARE(activated.count(), key == Qt::Key_F2 ? 0 : 1);
    }

    void aHeldEnterOpensNoEditor()
    {
        answerEditableCell(7);
        m_pView->setEditTriggers(QAbstractItemView::EditKeyPressed);
        showOn(1, 1);
        sendPress(Qt::Key_Return, Qt::NoModifier, true);
        QVERIFY(!editorOf(1, 1));
    }

    void keysOpenNoEditorThatTheEditTriggersForbid()
    {
        m_pView->setEditTriggers(QAbstractItemView::DoubleClicked);
        for (const int nKind : {0, 4, 7}) {
            answerEditableCell(nKind);
            showOn(1, 1);
            for (const int nKey : keys())
                press(nKey);
            QVERIFY(!editorOf(1, 1));
        }
    }

    void spaceIsTypedIntoAnEditorForTexts()
    {
        answerEditableCell(8);
        m_pView->setEditTriggers(QAbstractItemView::AnyKeyPressed);
        m_pView->setItemDelegate(new nsUI::StyledItemDelegate(m_pView.data()));
        showOn(1, 1);
        press(Qt::Key_Space);
        auto* const pEdit = qobject_cast<QLineEdit*>(editorOf(1, 1));
        QVERIFY(pEdit);
        QCOMPARE(pEdit->text(), QStringLiteral(" "));
        QTest::keyClick(pEdit, Qt::Key_Space);
        QCOMPARE(pEdit->text(), QStringLiteral("  "));
    }

    void theKeysOfAWidgetInTheViewAreItsOwn()
    {
        m_pHost->answer(1, 1, {{Qt::UserRole, 2}, {Qt::EditRole, true}});
        showOn(1, 1);
        auto* const pWidget = new QWidget; // ignores every key, so that it comes to the view
        pWidget->setFocusPolicy(Qt::StrongFocus);
        m_pView->setIndexWidget(m_pHost->at(2, 1), pWidget);
        pWidget->setFocus();
        QVERIFY(pWidget->hasFocus());
        for (const int nKey : keys())
            QTest::keyClick(pWidget, static_cast<Qt::Key>(nKey));
        QCOMPARE(m_pHost->takeWrites(), QStringList());
    }

    // Enter and what else it means

    void enterActivatesACellBeforeItActs()
    {
        m_pHost->answer(1, 1, {{Qt::UserRole, 2}, {Qt::EditRole, true}});
        showOn(1, 1);
        QStringList writesBefore{QStringLiteral("not activated")};
        connect(m_pView.data(), &QAbstractItemView::activated, m_pView.data(), [&](const QModelIndex& index) {
            QCOMPARE(index, m_pHost->at(1, 1));
            writesBefore = m_pHost->takeWrites();
        });
        press(Qt::Key_Return);
        QCOMPARE(writesBefore, QStringList());
        QCOMPARE(m_pHost->takeWrites(), QStringList{written(1, 1, false)});
    }

    void aHostThatMovesOnWithEnterIsFollowed()
    {
        m_pHost->answer(1, 1, {{Qt::UserRole, 2}, {Qt::EditRole, true}});
        m_pHost->answer(2, 1, {{Qt::UserRole, 2}, {Qt::EditRole, true}});
        showOn(1, 1);
        connect(m_pView.data(), &QAbstractItemView::activated, m_pView.data(),
                [this] { m_pView->setCurrentIndex(m_pHost->at(2, 1)); });
        press(Qt::Key_Return);
        QCOMPARE(m_pHost->takeWrites(), QStringList());
    }

    void anEnterThatDidSomethingIsNotTheDialogsToo_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<bool>("isTheDialogs");
        QTest::newRow("toggles") << 2 << false;
        QTest::newRow("checks") << 1 << false;
        QTest::newRow("opens an editor") << 7 << false;
        for (const int kind : {0, 1, 2, 3, 7, 12})
            QTest::addRow("is no edit trigger, kind %d", kind) << kind << true;
    }
    void anEnterThatDidSomethingIsNotTheDialogsToo()
    {
        QFETCH(int, kind);
        QFETCH(bool, isTheDialogs);
        m_pHost->answer(1, 1, {{Qt::UserRole, kind}, {Qt::EditRole, 1}});
        m_pView->setEditTriggers(isTheDialogs ? QAbstractItemView::NoEditTriggers : QAbstractItemView::EditKeyPressed);
        QDialog dialog;
        auto* const pButtons = new QDialogButtonBox(QDialogButtonBox::Ok);
        auto* const pLayout = new QVBoxLayout(&dialog);
        pLayout->addWidget(m_pView.data());
        pLayout->addWidget(pButtons);
        const auto release = qScopeGuard([this] { m_pView->setParent(nullptr); }); // it is not the dialog's to delete
        QSignalSpy accepted(pButtons, &QDialogButtonBox::accepted);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        m_pView->setFocus();
        m_pView->setCurrentIndex(m_pHost->at(1, 1));
        press(Qt::Key_Return);
        QCOMPARE(accepted.count(), isTheDialogs ? 1 : 0);
        QCOMPARE(m_pHost->takeWrites().isEmpty(), isTheDialogs || kind == 7);
    }

    // What goes away meanwhile

    void aViewMayGoWhileADialogIsOpenThatAKeyHasOpened_data() { keysOn({9, 10, 11, 12}); }
    void aViewMayGoWhileADialogIsOpenThatAKeyHasOpened()
    {
        QFETCH(int, key);
        QFETCH(int, kind);
        answerDialogCell(1, kind);
        m_pView->setEditTriggers(m_pView->editTriggers() & ~QAbstractItemView::CurrentChanged);
        QWidget window;
        auto* const pLayout = new QVBoxLayout(&window);
        pLayout->addWidget(m_pView.data());
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        m_pView->setFocus();
        m_pView->setCurrentIndex(m_pHost->at(1, 0));
        QVariant chosen;
        const ModalDriver driver([&](QDialog& dialog) {
            chosen = choose(dialog, kind);
            m_pView.reset();
            dialog.accept();
        });
        press(key);
        QVERIFY(driver.hasActed());
        QVERIFY(!m_pView);
        QCOMPARE(m_pHost->takeWrites(), QStringList{written(1, 0, chosen)}); // the cell is still there
    }

private:
    static QVector<int> keys() { return {Qt::Key_Space, Qt::Key_F2, Qt::Key_Return, Qt::Key_Enter}; }

    static void addKeyRow(int nKey, int nKind)
    {
        QTest::addRow("%s, %d", qPrintable(QKeySequence(nKey).toString()), nKind) << nKey << nKind;
    }
    static void keysOn(const QVector<int>& kinds)
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("kind");
        for (const int nKey : keys()) {
            for (const int nKind : kinds)
                addKeyRow(nKey, nKind);
        }
    }

    void answerEditableCell(int nKind)
    {
        const QStringList texts{QStringLiteral("one"), QStringLiteral("two"), QStringLiteral("three")};
        m_pHost->answer(1, 1,
                        {{Qt::UserRole, nKind},
                         {Qt::EditRole, 1},
                         {260, texts},
                         {261, texts},
                         {262, QVariantList{0, 1, 2}},
                         {263, 16}});
    }

    void showOn(int nRow, int nColumn)
    {
        show();
        m_pView->setCurrentIndex(m_pHost->at(nRow, nColumn));
        m_pHost->takeWrites();
    }

    void press(int nKey) { QTest::keyClick(m_pView.data(), static_cast<Qt::Key>(nKey)); }

    //! True when the view has taken the key.
    bool sendPress(int nKey, Qt::KeyboardModifiers modifiers, bool isRepeated)
    {
        const QString sText = nKey == Qt::Key_Space ? QStringLiteral(" ")
                              : nKey == Qt::Key_F2  ? QString()
                                                    : QStringLiteral("\r");
        QKeyEvent event(QEvent::KeyPress, nKey, modifiers, sText, isRepeated);
        QCoreApplication::sendEvent(m_pView.data(), &event);
        return event.isAccepted();
    }
};
