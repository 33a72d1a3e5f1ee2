// SPDX-License-Identifier: MIT
#include "support/TestMain.h"

#include <Tessera/views/CBitDialog.h>

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDialogButtonBox>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QFocusEvent>
#include <QFormLayout>
#include <QImage>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QRandomGenerator>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QToolTip>
#include <QtTest>

#include <algorithm>

using nsUI::CBitDialog;

namespace {

enum class Way { Keys, OtherKeys, Menu, Drop };

QString text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

//! All that a refusal leaves alone.
struct State
{
    QByteArray bytes;
    QString hex;
    QString bin;
    int cursor;
    int selectionStart;
    QString selected;

    bool operator==(const State& other) const
    {
        return bytes == other.bytes && hex == other.hex && bin == other.bin && cursor == other.cursor &&
               selectionStart == other.selectionStart && selected == other.selected;
    }
};

char* toString(const State& state)
{
    return qstrdup(qPrintable(QStringLiteral("%1 | %2 | %3 | cursor %4 | selected from %5: '%6'")
                                  .arg(QString::fromLatin1(state.bytes.toHex()), state.hex, state.bin)
                                  .arg(state.cursor)
                                  .arg(state.selectionStart)
                                  .arg(state.selected)));
}

//! A point where a click puts the cursor before the character at \a position.
QPoint pointBefore(QLineEdit* edit, int position)
{
    QPoint at(0, edit->height() / 2);
    while (at.x() < edit->width() && edit->cursorPositionAt(at) != position)
        ++at.rx();
    return at;
}

QString shownTip()
{
    return QToolTip::isVisible() ? QToolTip::text() : QString();
}

} // namespace

Q_DECLARE_METATYPE(Way)

//! The two fields of the bit dialog, as a user meets them: by keys, clipboard, menu and mouse.
class tst_CDigitsEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    // Typing
    void onlyAsciiDigitsCanBeTyped_data();
    void onlyAsciiDigitsCanBeTyped();
    void aKeyThatIsNoDigitLeavesTheSelection();
    void aCommandKeyIsNotTyped();
    void aBlankGoesToTheNextByte();
    void digitsOfAnInputMethodCount();
    void whatIsBeingComposedChangesNothing();
    void anInputMethodCanRemoveAndSelect();
    void severalDigitsOfAnInputMethodAreAPaste();
    void insertedByCodeOnlyAsciiDigitsCount_data();
    void insertedByCodeOnlyAsciiDigitsCount();
    void unfinishedDigitsAreNoFinishedEdit();
    void theDigitsAreSetWithoutKerning();

    // Pasting
    void aPasteOfTheWholeValueReplacesIt_data();
    void aPasteOfTheWholeValueReplacesIt();
    void aShorterPasteOverwritesFromTheCursor_data();
    void aShorterPasteOverwritesFromTheCursor();
    void aDropGoesWhereItIsDropped();
    void aDropLeavesNoCursorBehind();
    void aPasteThatDoesNotFitChangesNothing_data();
    void aPasteThatDoesNotFitChangesNothing();
    void aPasteFillsWhatIsMissing();
    void anEmptyClipboardIsNoRefusal();
    void aHugePasteIsRefusedAtOnce();
    void aReadOnlyFieldTakesNoPaste();
    void aFieldWithoutBytesIsAnyLine();
    void theMiddleButtonPastesWhatIsSelected();

    // The tool tip of a refusal
    void theToolTipShowsTheTextAsItIs();
    void theToolTipStandsAtTheField();
    void theToolTipOutlastsTheMenu();
    void theToolTipGoesWithTheNextEdit();
    void theToolTipGoesWithTheDialog();

    // Taking back
    void oneUndoTakesOnePasteBack_data();
    void oneUndoTakesOnePasteBack();
    void anUndoRestoresTheSelection();
    void anUndoRestoresTheCursor();
    void everyTypedDigitIsAStep();
    void deletionsAreTakenBackDigitByDigit();
    void everyHistoryGoesBackAndForth_data();
    void everyHistoryGoesBackAndForth();
    void anEditAfterAnUndoEndsTheRedo();
    void aTextThatIsSetEndsTheHistory();
    void theMenuKnowsWhatCanBeTakenBack();
    void whatCodeInsertsCanBeTakenBack();
    void anUndoIsSentAsOneEdit();
    void largePastesAreTakenBackAtOnce();

private:
    void show(const QByteArray& bytes);
    State state(const QLineEdit* edit) const;
    QMenu* openMenu(QLineEdit* edit);
    static QAction* actionOf(const QMenu* menu, const char* text);
    void clickInMenu(QLineEdit* edit, const char* text);
    void pasteBy(Way way, QLineEdit* edit, const QString& text);
    static void drop(QLineEdit* edit, const QString& text, int position, bool* isAccepted = nullptr);
    static void undo(QLineEdit* edit) { QTest::keyClick(edit, Qt::Key_Z, Qt::ControlModifier); }
    static void redo(QLineEdit* edit) { QTest::keySequence(edit, QKeySequence::Redo); }
    static void commit(QLineEdit* edit, const QString& text, const QString& preedit = QString());

    QScopedPointer<CBitDialog> m_pDialog;
    QLineEdit* m_pHex = nullptr;
    QLineEdit* m_pBin = nullptr;
};

void tst_CDigitsEdit::initTestCase()
{
    QApplication::setEffectEnabled(Qt::UI_FadeTooltip, false);
    QApplication::setEffectEnabled(Qt::UI_AnimateTooltip, false);
}

void tst_CDigitsEdit::init()
{
    m_pDialog.reset(new CBitDialog);
    auto* const form = m_pDialog->findChild<QFormLayout*>();
    m_pHex = qobject_cast<QLineEdit*>(form->itemAt(0, QFormLayout::FieldRole)->widget());
    m_pBin = qobject_cast<QLineEdit*>(form->itemAt(1, QFormLayout::FieldRole)->widget());
    QGuiApplication::clipboard()->clear();
    QCOMPARE(shownTip(), QString());
}

void tst_CDigitsEdit::cleanup()
{
    m_pDialog.reset();
    QCOMPARE(shownTip(), QString());
}

void tst_CDigitsEdit::show(const QByteArray& bytes)
{
    m_pDialog->setByteArray(bytes);
    m_pDialog->resize(900, 400);
    m_pDialog->show();
    m_pDialog->activateWindow(); // for a display without a window manager
    QVERIFY(QTest::qWaitForWindowActive(m_pDialog.data()));
}

State tst_CDigitsEdit::state(const QLineEdit* edit) const
{
    return {m_pDialog->byteArray(), m_pHex->displayText(),  m_pBin->displayText(),
            edit->cursorPosition(), edit->selectionStart(), edit->selectedText()};
}

QMenu* tst_CDigitsEdit::openMenu(QLineEdit* edit)
{
    const QPoint center = edit->rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, center, edit->mapToGlobal(center));
    QApplication::sendEvent(edit, &event);
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

QAction* tst_CDigitsEdit::actionOf(const QMenu* menu, const char* text)
{
    const QList<QAction*> actions = menu->actions();
    const auto found = std::find_if(actions.cbegin(), actions.cend(), [text](const QAction* action) {
        return action->text().section(QLatin1Char('\t'), 0, 0) == QLineEdit::tr(text);
    });
    return found == actions.cend() ? nullptr : *found;
}

void tst_CDigitsEdit::clickInMenu(QLineEdit* edit, const char* text)
{
    QMenu* const menu = openMenu(edit);
    QVERIFY(menu);
    QAction* const action = actionOf(menu, text);
    QVERIFY(action);
    QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier, menu->actionGeometry(action).center());
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_CDigitsEdit::pasteBy(Way way, QLineEdit* edit, const QString& text)
{
    QGuiApplication::clipboard()->setText(text);
    switch (way) {
    case Way::Keys:
        QTest::keyClick(edit, Qt::Key_V, Qt::ControlModifier);
        break;
    case Way::OtherKeys:
        QTest::keyClick(edit, Qt::Key_Insert, Qt::ShiftModifier);
        break;
    case Way::Menu:
        clickInMenu(edit, "&Paste");
        break;
    case Way::Drop:
        drop(edit, text, edit->hasSelectedText() ? edit->selectionStart() : edit->cursorPosition());
        break;
    }
}

//! Drags \a text over the field and drops it before the character at \a position.
void tst_CDigitsEdit::drop(QLineEdit* edit, const QString& text, int position, bool* isAccepted)
{
    const QPoint at = pointBefore(edit, position);
    QCOMPARE(edit->cursorPositionAt(at), position);
    QMimeData mime;
    mime.setText(text);
    QDragEnterEvent enter(at, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(edit, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(at, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(edit, &drop);
    if (isAccepted)
        *isAccepted = drop.isAccepted();
}

void tst_CDigitsEdit::commit(QLineEdit* edit, const QString& text, const QString& preedit)
{
    QInputMethodEvent event(preedit, {});
    event.setCommitString(text);
    QApplication::sendEvent(edit, &event);
}

// Typing

void tst_CDigitsEdit::onlyAsciiDigitsCanBeTyped_data()
{
    QTest::addColumn<QString>("digit");
    QTest::newRow("Arabic-Indic") << text("\xD9\xA1");
    QTest::newRow("extended Arabic-Indic") << text("\xDB\xB1");
    QTest::newRow("full width") << text("\xEF\xBC\x91");
    QTest::newRow("letter of full width") << text("\xEF\xBC\xA1");
    QTest::newRow("Devanagari") << text("\xE0\xA5\xA7");
    QTest::newRow("superscript") << text("\xC2\xB9");
    QTest::newRow("fraction") << text("\xC2\xBD");
    QTest::newRow("Roman numeral") << text("\xE2\x85\xA0");
}

void tst_CDigitsEdit::onlyAsciiDigitsCanBeTyped()
{
    QFETCH(QString, digit);
    show(QByteArray("\x12\xAB\x34"));
    for (QLineEdit* const edit : {m_pHex, m_pBin}) {
        for (const int length : {0, 4}) {
            edit->setSelection(1, length);
            const State before = state(edit);
            QSignalSpy edits(edit, &QLineEdit::textEdited);
            QTest::sendKeyEvent(QTest::Click, edit, Qt::Key_unknown, digit, Qt::NoModifier);
            QCOMPARE(state(edit), before);
            commit(edit, digit);
            QCOMPARE(state(edit), before);
            QCOMPARE(edits.count(), 0);
            QVERIFY(edit->hasAcceptableInput());
        }
    }
}

void tst_CDigitsEdit::aKeyThatIsNoDigitLeavesTheSelection()
{
    show(QByteArray("\x12\xAB\x34"));
    m_pHex->selectAll();
    State before = state(m_pHex);
    QSignalSpy rejections(m_pHex, &QLineEdit::inputRejected);
    QTest::keyClicks(m_pHex, QStringLiteral("gxh-_,."));
    QCOMPARE(state(m_pHex), before);
    QCOMPARE(rejections.count(), 7);

    m_pBin->setSelection(3, 10);
    before = state(m_pBin);
    QTest::keyClicks(m_pBin, QStringLiteral("2a9b"));
    QCOMPARE(state(m_pBin), before);

    // Keys that are no text do what they always do.
    QTest::keyClick(m_pBin, Qt::Key_Right);
    QVERIFY(!m_pBin->hasSelectedText());
    QTest::keyClick(m_pBin, Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(m_pBin->selectedText(), m_pBin->text());
}

void tst_CDigitsEdit::aCommandKeyIsNotTyped()
{
    show(QByteArray("\x12\xAB\x34"));
    m_pHex->setSelection(1, 3);
    const State before = state(m_pHex);
    QSignalSpy rejections(m_pHex, &QLineEdit::inputRejected);
    const auto isTaken = [this](Qt::KeyboardModifiers modifiers) {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_K, modifiers, QStringLiteral("k"));
        QApplication::sendEvent(m_pHex, &event);
        return event.isAccepted();
    };
    QVERIFY(!isTaken(Qt::ControlModifier)); // left to whom the dialog belongs to
    QCOMPARE(rejections.count(), 0);
    QVERIFY(isTaken(Qt::ControlModifier | Qt::AltModifier)); // the third level of a keyboard
    QCOMPARE(rejections.count(), 1);
    QCOMPARE(state(m_pHex), before);
}

void tst_CDigitsEdit::aBlankGoesToTheNextByte()
{
    show(QByteArray("\x12\xAB\x34"));
    m_pHex->setCursorPosition(1);
    QTest::keyClick(m_pHex, Qt::Key_Space);
    QCOMPARE(m_pHex->cursorPosition(), 3);
    QTest::keyClicks(m_pHex, QStringLiteral("cd ef"));
    QCOMPARE(m_pDialog->byteArray(), QByteArray("\x12\xCD\xEF"));
}

void tst_CDigitsEdit::digitsOfAnInputMethodCount()
{
    show(QByteArray("\x12\xAB\x34"));
    m_pHex->setCursorPosition(0);
    commit(m_pHex, text("c"));
    QCOMPARE(m_pHex->text(), QStringLiteral("C2 AB 34"));
    QCOMPARE(m_pHex->cursorPosition(), 1);
    QCOMPARE(m_pDialog->byteArray(), QByteArray("\xC2\xAB\x34"));
    undo(m_pHex);
    QCOMPARE(m_pDialog->byteArray(), QByteArray("\x12\xAB\x34"));
    QCOMPARE(m_pHex->cursorPosition(), 0);
}

void tst_CDigitsEdit::whatIsBeingComposedChangesNothing()
{
    show(QByteArray("\x12\xAB\x34"));
    m_pHex->setSelection(1, 4);
    const State before = state(m_pHex);
    commit(m_pHex, QString(), text("\xEF\xBC\x91"));
    QCOMPARE(state(m_pHex), before);
    commit(m_pHex, text("\xEF\xBC\x91"));
    QCOMPARE(state(m_pHex), before);
    commit(m_pHex, QString(), text("d"));
    QCOMPARE(state(m_pHex), before);
    commit(m_pHex, QString()); // given up
    QCOMPARE(state(m_pHex), before);
}

void tst_CDigitsEdit::anInputMethodCanRemoveAndSelect()
{
    show(QByteArray("\x12\xAB\x34"));
    m_pHex->setCursorPosition(4);
    QInputMethodEvent removal;
    removal.setCommitString(QString(), -1, 1);
    QApplication::sendEvent(m_pHex, &removal);
    QCOMPARE(m_pHex->displayText(), QStringLiteral("12  B 34"));

    QInputMethodEvent selection(QString(), {{QInputMethodEvent::Selection, 3, 2, QVariant()}});
    QApplication::sendEvent(m_pHex, &selection);
    QCOMPARE(m_pHex->selectionStart(), 3);
    QCOMPARE(m_pHex->selectedText(), QStringLiteral(" B"));
}

void tst_CDigitsEdit::severalDigitsOfAnInputMethodAreAPaste()
{
    show(QByteArray("\x12\xAB\x34"));
    m_pHex->setCursorPosition(4);
    commit(m_pHex, text("0xdeadbe"));
    QCOMPARE(m_pDialog->byteArray(), QByteArray("\xDE\xAD\xBE"));
    const State before = state(m_pHex);
    commit(m_pHex, text("\xEF\xBC\x91\xEF\xBC\x92"));
    QCOMPARE(state(m_pHex), before);
    QVERIFY(!shownTip().isEmpty());
}

void tst_CDigitsEdit::insertedByCodeOnlyAsciiDigitsCount_data()
{
    onlyAsciiDigitsCanBeTyped_data();
}

void tst_CDigitsEdit::insertedByCodeOnlyAsciiDigitsCount()
{
    QFETCH(QString, digit);
    show(QByteArray("\x12\xAB\x34"));
    m_pHex->setCursorPosition(1);
    const State before = state(m_pHex);
    m_pHex->insert(digit);
    QCOMPARE(state(m_pHex).bytes, before.bytes);
    QCOMPARE(state(m_pHex).hex, before.hex);
    m_pHex->setText(digit.repeated(6));
    QCOMPARE(m_pDialog->byteArray(), before.bytes);
}

void tst_CDigitsEdit::unfinishedDigitsAreNoFinishedEdit()
{
    show(QByteArray("\x12\xAB\x34"));
    QSignalSpy finishes(m_pHex, &QLineEdit::editingFinished);
    QSignalSpy returns(m_pHex, &QLineEdit::returnPressed);
    m_pHex->setFocus();
    m_pHex->setCursorPosition(0);
    QTest::keyClick(m_pHex, Qt::Key_Delete);
    QVERIFY(!m_pHex->hasAcceptableInput());
    m_pBin->setFocus();
    QCOMPARE(finishes.count(), 0);
    m_pHex->setFocus();
    QTest::keyClick(m_pHex, Qt::Key_Home);
    QTest::keyClick(m_pHex, Qt::Key_5);
    QVERIFY(m_pHex->hasAcceptableInput());
    m_pBin->setFocus();
    QCOMPARE(finishes.count(), 1);
    QCOMPARE(returns.count(), 0);
}

void tst_CDigitsEdit::theDigitsAreSetWithoutKerning()
{
    // A digit is as wide beside any other, and a long line is laid out and painted the faster.
    for (const QLineEdit* const edit : {m_pHex, m_pBin}) {
        const QFont font = edit->font();
        QVERIFY(!font.kerning());
        QVERIFY(font.styleStrategy() & QFont::PreferNoShaping);
        QVERIFY(font.styleStrategy() & QFont::NoFontMerging);
    }
}

// Pasting

void tst_CDigitsEdit::aPasteOfTheWholeValueReplacesIt_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("isHex");
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<Way>("way");
    const auto rows = [](const QByteArray& name, const char* bytes, bool isHex, const char* pasted) {
        const QByteArray value = QByteArray::fromHex(bytes);
        QTest::newRow((name + ", keys").constData()) << value << isHex << text(pasted) << Way::Keys;
        QTest::newRow((name + ", other keys").constData()) << value << isHex << text(pasted) << Way::OtherKeys;
        QTest::newRow((name + ", menu").constData()) << value << isHex << text(pasted) << Way::Menu;
        QTest::newRow((name + ", drop").constData()) << value << isHex << text(pasted) << Way::Drop;
    };
    rows("1 byte", "EF", true, "EF");
    rows("1 byte, 0x", "EF", true, "0xef\n");
    rows("1 byte, h", "EF", true, "EFh");
    rows("1 byte that reads like 0b", "0B", true, "0b");
    rows("1 byte, binary", "EF", false, "11101111");
    rows("1 byte, 0b", "EF", false, "0b1110_1111");
    rows("3 bytes", "DEADBE", true, "DEADBE");
    rows("3 bytes, as they are shown", "0B1010", true, "0B 10 10");
    rows("3 bytes, lines", "DEADBE", true, "DE\r\nAD\r\nBE\r\n");
    rows("3 bytes, binary", "DEADBE", false, "11011110 10101101 10111110");
    rows("8 bytes, 0x", "0123456789ABCDEF", true, "0x01234567_89ABCDEF");
    rows("8 bytes, lower case", "FEDCBA9876543210", true, "fedcba9876543210");
    rows("8 bytes, 0b", "8000000000000001", false,
         "0b1000000000000000000000000000000000000000000000000000000000000001");
}

void tst_CDigitsEdit::aPasteOfTheWholeValueReplacesIt()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, isHex);
    QFETCH(QString, pasted);
    QFETCH(Way, way);
    const QByteArray old(bytes.size(), '\x55');
    show(old);
    QLineEdit* const edit = isHex ? m_pHex : m_pBin;
    const int end = static_cast<int>(edit->text().size());
    for (const QPair<int, int>& selection : {qMakePair(0, 0), qMakePair(1, 0), qMakePair(end, 0), qMakePair(0, end),
                                             qMakePair(1, 1), qMakePair(end - 1, 1)}) {
        m_pDialog->setByteArray(old);
        edit->setSelection(selection.first, selection.second);
        QSignalSpy edits(edit, &QLineEdit::textEdited);
        pasteBy(way, edit, pasted);
        QCOMPARE(m_pDialog->byteArray(), bytes);
        QCOMPARE(m_pHex->text(), QString::fromLatin1(bytes.toHex(' ').toUpper()));
        QCOMPARE(m_pBin->text().remove(QLatin1Char(' ')).toULongLong(nullptr, 2),
                 bytes.toHex().toULongLong(nullptr, 16));
        QCOMPARE(edit->cursorPosition(), end);
        QVERIFY(!edit->hasSelectedText());
        QCOMPARE(edits.count(), 1);
        QCOMPARE(shownTip(), QString());
    }
}

void tst_CDigitsEdit::aShorterPasteOverwritesFromTheCursor_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("isHex");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("length");
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<int>("cursor");
    const auto row = [](const char* name, const char* bytes, bool isHex, int from, int length, const char* pasted,
                        const char* expected, int cursor) {
        QTest::newRow(name) << QByteArray::fromHex(bytes) << isHex << from << length << text(pasted) << text(expected)
                            << cursor;
    };
    row("1 byte, first digit", "55", true, 0, 0, "f", "F5", 1);
    row("1 byte, second digit", "55", true, 1, 0, "0xf", "5F", 2);
    row("1 byte, bits", "55", false, 5, 0, "0b111", "01010111", 8);
    row("3 bytes, at the start", "555555", true, 0, 0, "0xAB", "AB 55 55", 3);
    row("3 bytes, across a blank", "555555", true, 1, 0, "a b", "5A B5 55", 4);
    row("3 bytes, before a blank", "555555", true, 2, 0, "AB", "55 AB 55", 6);
    row("3 bytes, to the end", "555555", true, 4, 0, "ABCh", "55 5A BC", 8);
    row("3 bytes, bits", "555555", false, 7, 0, "0b00", "01010100 01010101 01010101", 10);
    row("3 bytes, over a selection", "555555", true, 0, 2, "AB", "AB 55 55", 3);
    row("3 bytes, over more", "555555", true, 0, 8, "AB", "AB 55 55", 3);
    row("3 bytes, over less", "555555", true, 3, 1, "ABC", "55 AB C5", 7);
    row("8 bytes", "5555555555555555", true, 9, 0, "DEADBEEF", "55 55 55 DE AD BE EF 55", 21);
}

void tst_CDigitsEdit::aShorterPasteOverwritesFromTheCursor()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, isHex);
    QFETCH(int, from);
    QFETCH(int, length);
    QFETCH(QString, pasted);
    show(bytes);
    QLineEdit* const edit = isHex ? m_pHex : m_pBin;
    for (const Way way : {Way::Keys, Way::OtherKeys, Way::Menu, Way::Drop}) {
        m_pDialog->setByteArray(bytes);
        edit->setSelection(from, length);
        pasteBy(way, edit, pasted);
        QTEST(edit->text(), "expected");
        QTEST(edit->cursorPosition(), "cursor");
        QVERIFY(!edit->hasSelectedText());
        QCOMPARE(m_pHex->text(), QString::fromLatin1(m_pDialog->byteArray().toHex(' ').toUpper()));
        QCOMPARE(shownTip(), QString());
    }
}

void tst_CDigitsEdit::aDropGoesWhereItIsDropped()
{
    show(QByteArray("\x55\x55\x55"));
    m_pHex->setSelection(0, 2);
    bool isAccepted = false;
    drop(m_pHex, text("AB"), 6, &isAccepted);
    QVERIFY(isAccepted);
    QCOMPARE(m_pHex->text(), QStringLiteral("55 55 AB"));
    undo(m_pHex);
    QCOMPARE(m_pHex->selectedText(), QStringLiteral("55"));

    // From one that does not fit nothing is taken, so that a text that was to be moved is not lost.
    const State before = state(m_pHex);
    drop(m_pHex, text("ABC"), 6, &isAccepted);
    QVERIFY(!isAccepted);
    QCOMPARE(state(m_pHex), before);
}

void tst_CDigitsEdit::aDropLeavesNoCursorBehind()
{
    show(QByteArray("\x55\x55\x55"));
    m_pBin->setFocus();
    const QImage before = m_pHex->grab().toImage();
    for (const char* const dropped : {"55", "0b1"}) {
        drop(m_pHex, text(dropped), 3);
        QCOMPARE(m_pHex->grab().toImage(), before);
    }
}

void tst_CDigitsEdit::aPasteThatDoesNotFitChangesNothing_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("isHex");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("length");
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QString>("why");
    const auto row = [](const char* name, const char* bytes, bool isHex, int from, int length, const char* pasted,
                        const char* why) {
        QTest::newRow(name) << QByteArray::fromHex(bytes) << isHex << from << length << text(pasted) << text(why);
    };
    row("1 byte, too long", "55", true, 0, 0, "123", "3 × [0-9A-F] &gt; 2");
    row("1 byte, beyond the end", "55", false, 6, 0, "111", "3 × [01] &gt; 2");
    row("1 byte, at the end", "55", true, 2, 0, "1", "1 × [0-9A-F] &gt; 0");
    row("1 byte, binary", "55", true, 0, 0, "0b1", "0b ≠ 0x");
    row("1 byte, hexadecimal", "55", false, 0, 0, "0x1", "0x ≠ 0b");
    row("3 bytes, too long", "555555", true, 0, 0, "0xDEADBEEF", "8 × [0-9A-F] &gt; 6");
    row("3 bytes, too long for all that is selected", "555555", true, 0, 8, "DEADBEEF", "8 × [0-9A-F] &gt; 6");
    row("3 bytes, beyond the end of a selection", "555555", true, 7, 1, "AB", "2 × [0-9A-F] &gt; 1");
    row("3 bytes, binary", "555555", true, 3, 0, "0b1010", "0b ≠ 0x");
    row("3 bytes, binary of the whole length", "555555", true, 0, 8, "0b1010", "0b ≠ 0x");
    row("3 bytes, hexadecimal", "555555", false, 0, 26, "0x10", "0x ≠ 0b");
    row("3 bytes, hexadecimal with h", "555555", false, 3, 4, "10h", "h ≠ 0b");
    row("3 bytes, broken", "555555", true, 0, 8, "12 3G 45", "G ≠ [0-9A-F]");
    row("3 bytes, a sign", "555555", true, 1, 3, "-1", "- ≠ [0-9A-F]");
    row("3 bytes, decimal", "555555", false, 0, 0, "1012", "2 ≠ [01]");
    row("3 bytes, another script", "555555", true, 3, 2, "\xD9\xA1\xD9\xA2", "\xD9\xA1 U+0661 ≠ [0-9A-F]");
    row("3 bytes, full width", "555555", true, 3, 2, "\xEF\xBC\x91", "\xEF\xBC\x91 U+FF11 ≠ [0-9A-F]");
    row("3 bytes, blanks", "555555", true, 3, 2, "  \n", "0 × [0-9A-F]");
    row("3 bytes, a mark alone", "555555", false, 3, 2, "0b", "0 × [01]");
    row("8 bytes, too long", "5555555555555555", true, 12, 3, "0x0123456789ABCDEF0", "17 × [0-9A-F] &gt; 16");
    row("8 bytes, beyond the end", "5555555555555555", true, 12, 3, "123456789", "9 × [0-9A-F] &gt; 8");
}

void tst_CDigitsEdit::aPasteThatDoesNotFitChangesNothing()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, isHex);
    QFETCH(int, from);
    QFETCH(int, length);
    QFETCH(QString, pasted);
    QFETCH(QString, why);
    show(bytes);
    QLineEdit* const edit = isHex ? m_pHex : m_pBin;
    QSignalSpy edits(edit, &QLineEdit::textEdited);
    QSignalSpy changes(edit, &QLineEdit::textChanged);
    for (const Way way : {Way::Keys, Way::OtherKeys, Way::Menu, Way::Drop}) {
        edit->setSelection(from, length);
        const State before = state(edit);
        QToolTip::showText(QPoint(), QStringLiteral("another"));
        pasteBy(way, edit, pasted);
        QCOMPARE(state(edit), before);
        QVERIFY2(shownTip().contains(why), qPrintable(shownTip()));
    }
    edit->setSelection(from + length, -length); // the cursor at its start
    const State before = state(edit);
    pasteBy(Way::Keys, edit, pasted);
    QCOMPARE(state(edit), before);
    QCOMPARE(edits.count(), 0);
    QCOMPARE(changes.count(), 0);
    undo(edit);
    QCOMPARE(state(edit), before);
}

void tst_CDigitsEdit::aPasteFillsWhatIsMissing()
{
    show(QByteArray("\x12\xAB\x34"));
    m_pHex->selectAll();
    QTest::keyClick(m_pHex, Qt::Key_Delete);
    QCOMPARE(m_pHex->displayText(), QStringLiteral("        "));
    m_pHex->setCursorPosition(3);
    pasteBy(Way::Keys, m_pHex, text("CDEF"));
    QCOMPARE(m_pHex->displayText(), QStringLiteral("   CD EF"));
    QCOMPARE(m_pDialog->byteArray(), QByteArray("\x12\xAB\x34"));
    m_pHex->setCursorPosition(0);
    pasteBy(Way::Keys, m_pHex, text("AB"));
    QCOMPARE(m_pDialog->byteArray(), QByteArray("\xAB\xCD\xEF"));
}

void tst_CDigitsEdit::anEmptyClipboardIsNoRefusal()
{
    show(QByteArray("\x12\xAB\x34"));
    m_pHex->selectAll();
    const State before = state(m_pHex);
    QTest::keyClick(m_pHex, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(state(m_pHex), before);
    QCOMPARE(shownTip(), QString());
}

void tst_CDigitsEdit::aHugePasteIsRefusedAtOnce()
{
    show(QByteArray("\x12\xAB\x34"));
    const State before = state(m_pHex);
    QGuiApplication::clipboard()->setText(QString(50 * 1000 * 1000, QLatin1Char('A')));
    QElapsedTimer timer;
    timer.start();
    QTest::keyClick(m_pHex, Qt::Key_V, Qt::ControlModifier);
    QVERIFY2(timer.elapsed() < 500, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(state(m_pHex), before);
    QVERIFY2(shownTip().contains(text("50000000 × [0-9A-F] &gt; 6")), qPrintable(shownTip()));
}

void tst_CDigitsEdit::aReadOnlyFieldTakesNoPaste()
{
    show(QByteArray("\x12\xAB\x34"));
    QTest::keyClick(m_pHex, Qt::Key_5);
    m_pHex->setReadOnly(true);
    const State before = state(m_pHex);
    pasteBy(Way::Keys, m_pHex, text("AB"));
    undo(m_pHex);
    commit(m_pHex, text("7"));
    commit(m_pHex, text("77"));
    QCOMPARE(state(m_pHex), before);
    QCOMPARE(shownTip(), QString());
    QMenu* const menu = openMenu(m_pHex);
    QVERIFY(!actionOf(menu, "&Paste"));
    QVERIFY(actionOf(menu, "&Copy"));
    menu->close();
}

void tst_CDigitsEdit::aFieldWithoutBytesIsAnyLine()
{
    m_pDialog->show();
    m_pDialog->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_pDialog.data()));
    QCOMPARE(m_pHex->inputMask(), QString());
    pasteBy(Way::Keys, m_pHex, text("zyx"));
    QTest::keyClicks(m_pHex, text("w"));
    QCOMPARE(m_pHex->text(), text("zyxw"));
    undo(m_pHex);
    QCOMPARE(m_pHex->text(), text("zyx"));
    clickInMenu(m_pHex, "&Undo");
    QCOMPARE(m_pHex->text(), QString());
}

void tst_CDigitsEdit::theMiddleButtonPastesWhatIsSelected()
{
    show(QByteArray("\x55\x55\x55"));
    QClipboard* const clipboard = QGuiApplication::clipboard();
    const auto click = [&](const char* selected) {
        m_pHex->setSelection(3, 4);
        if (clipboard->supportsSelection())
            clipboard->setText(text(selected), QClipboard::Selection);
        QTest::mouseClick(m_pHex, Qt::MiddleButton, Qt::NoModifier, pointBefore(m_pHex, 0));
    };
    click("0xAB");
    if (!clipboard->supportsSelection()) { // a platform without one: a click is a click
        QCOMPARE(m_pHex->text(), text("55 55 55"));
        return;
    }
    QCOMPARE(m_pHex->text(), text("AB 55 55"));
    undo(m_pHex);
    QCOMPARE(m_pHex->text(), text("55 55 55"));
    QCOMPARE(m_pHex->selectedText(), text("55 5"));

    m_pHex->setSelection(3, 4);
    const State before = state(m_pHex);
    click("0b101");
    QCOMPARE(state(m_pHex), before);
    QVERIFY2(shownTip().contains(text("0b ≠ 0x")), qPrintable(shownTip()));
}

// The tool tip of a refusal

void tst_CDigitsEdit::theToolTipShowsTheTextAsItIs()
{
    show(QByteArray("\x12\xAB\x34"));
    pasteBy(Way::Keys, m_pHex, text("<h1>12</h1>\x01\n%1&amp;"));
    QVERIFY2(shownTip().endsWith(text("<b><u>&lt;</u></b>h1&gt;12&lt;/h1&gt;\xEF\xBF\xBD %1&amp;a…</p>")),
             qPrintable(shownTip()));
}

void tst_CDigitsEdit::theToolTipStandsAtTheField()
{
    show(QByteArray("\x12\xAB\x34"));
    for (QLineEdit* const edit : {m_pHex, m_pBin}) {
        edit->setFocus();
        pasteBy(Way::Keys, edit, text("zz"));
        const QWidgetList windows = QApplication::topLevelWidgets();
        const auto tip = std::find_if(windows.cbegin(), windows.cend(), [](const QWidget* window) {
            return window->isVisible() && window->inherits("QTipLabel");
        });
        QVERIFY(tip != windows.cend());
        const QRect field(edit->mapToGlobal(QPoint()), edit->size());
        QVERIFY((*tip)->y() > field.center().y());
        QVERIFY((*tip)->y() < field.bottom() + field.height());
        QVERIFY((*tip)->x() < field.right() && (*tip)->geometry().right() > field.left());
    }
}

void tst_CDigitsEdit::theToolTipOutlastsTheMenu()
{
    show(QByteArray("\x12\xAB\x34"));
    pasteBy(Way::Menu, m_pHex, text("zz"));
    const QString tip = shownTip();
    QVERIFY(!tip.isEmpty());
    QFocusEvent back(QEvent::FocusIn, Qt::PopupFocusReason); // as a display sends it, late
    QApplication::sendEvent(m_pHex, &back);
    QCOMPARE(shownTip(), QString());
    QTRY_COMPARE(shownTip(), tip);
}

void tst_CDigitsEdit::theToolTipGoesWithTheNextEdit()
{
    show(QByteArray("\x12\xAB\x34"));
    pasteBy(Way::Keys, m_pHex, text("zz"));
    QVERIFY(!shownTip().isEmpty());
    QTest::keyClick(m_pHex, Qt::Key_Left);
    QVERIFY(!shownTip().isEmpty());
    QTest::keyClick(m_pHex, Qt::Key_7);
    QTRY_COMPARE(shownTip(), QString());

    // Another tool tip is left alone.
    pasteBy(Way::Keys, m_pHex, text("zz"));
    QToolTip::showText(m_pHex->mapToGlobal(QPoint()), text("another"), m_pHex);
    QTest::qWait(200);
    QCOMPARE(shownTip(), text("another"));
    QTest::keyClick(m_pHex, Qt::Key_8);
    QTest::qWait(400); // as long as it would take to go
    QCOMPARE(shownTip(), text("another"));
}

void tst_CDigitsEdit::theToolTipGoesWithTheDialog()
{
    show(QByteArray("\x12\xAB\x34"));
    pasteBy(Way::Keys, m_pHex, text("zz"));
    m_pDialog->close();
    QCOMPARE(shownTip(), QString());
    QTest::qWait(200);
    QCOMPARE(shownTip(), QString());
}

// Taking back

void tst_CDigitsEdit::oneUndoTakesOnePasteBack_data()
{
    QTest::addColumn<Way>("way");
    QTest::addColumn<bool>("isHex");
    QTest::addColumn<int>("size");
    QTest::addColumn<QString>("pasted");
    for (const int size : {1, 3, 8}) {
        for (const bool isHex : {true, false}) {
            for (const Way way : {Way::Keys, Way::Menu, Way::Drop}) {
                const QString whole = isHex ? text("B7").repeated(size) : text("01100111").repeated(size);
                const QByteArray name = QByteArray::number(size) + (isHex ? ", hex" : ", binary") + ", way " +
                                        QByteArray::number(static_cast<int>(way));
                QTest::newRow((name + ", whole").constData()) << way << isHex << size << whole;
                QTest::newRow((name + ", part").constData()) << way << isHex << size << whole.left(1);
            }
        }
    }
}

void tst_CDigitsEdit::oneUndoTakesOnePasteBack()
{
    QFETCH(Way, way);
    QFETCH(bool, isHex);
    QFETCH(int, size);
    QFETCH(QString, pasted);
    show(QByteArray(size, '\x5A'));
    QLineEdit* const edit = isHex ? m_pHex : m_pBin;
    edit->setCursorPosition(0);
    QTest::keyClicks(edit, text("1")); // a step of its own
    edit->setCursorPosition(1);
    const State before = state(edit);
    pasteBy(way, edit, pasted);
    const State after = state(edit);
    QVERIFY(after.bytes != before.bytes);

    const bool isMenu = way == Way::Menu;
    isMenu ? clickInMenu(edit, "&Undo") : undo(edit);
    QCOMPARE(state(edit), before);
    isMenu ? clickInMenu(edit, "&Redo") : redo(edit);
    QCOMPARE(state(edit), after);
    undo(edit);
    undo(edit);
    QCOMPARE(m_pDialog->byteArray(), QByteArray(size, '\x5A'));
    undo(edit); // nothing is left
    QCOMPARE(m_pDialog->byteArray(), QByteArray(size, '\x5A'));
    redo(edit);
    redo(edit);
    redo(edit);
    QCOMPARE(state(edit), after);
}

void tst_CDigitsEdit::anUndoRestoresTheSelection()
{
    show(QByteArray("\x12\xAB\x34"));
    for (const int length : {5, -5}) {
        m_pHex->setSelection(length > 0 ? 1 : 6, length);
        const State before = state(m_pHex);
        pasteBy(Way::Keys, m_pHex, text("77"));
        undo(m_pHex);
        QCOMPARE(state(m_pHex), before);
        QTest::keyClick(m_pHex, Qt::Key_Delete);
        QCOMPARE(m_pHex->displayText(), text("1     34"));
        undo(m_pHex);
        QCOMPARE(state(m_pHex), before);
    }
}

void tst_CDigitsEdit::anUndoRestoresTheCursor()
{
    show(QByteArray("\x12\xAB\x34"));
    m_pHex->setCursorPosition(1);
    pasteBy(Way::Keys, m_pHex, text("777777"));
    undo(m_pHex);
    QCOMPARE(m_pHex->cursorPosition(), 1);
    redo(m_pHex);
    const State before = state(m_pHex);
    QCOMPARE(before.cursor, 8);
    QTest::keyClick(m_pHex, Qt::Key_Backspace);
    undo(m_pHex);
    QCOMPARE(state(m_pHex), before);
}

void tst_CDigitsEdit::everyTypedDigitIsAStep()
{
    show(QByteArray("\x12\xAB\x34"));
    m_pHex->setFocus();
    m_pHex->setCursorPosition(0);
    QVector<State> states{state(m_pHex)};
    for (const char digit : {'f', 'e', 'd', 'c', 'b'}) {
        QTest::keyClick(m_pHex, digit);
        states << state(m_pHex);
    }
    QCOMPARE(states.last().hex, text("FE DC B4"));
    for (int i = 4; i >= 0; --i) {
        undo(m_pHex);
        QCOMPARE(state(m_pHex), states.at(i));
    }
    for (int i = 1; i <= 5; ++i) {
        redo(m_pHex);
        QCOMPARE(state(m_pHex), states.at(i));
    }
}

void tst_CDigitsEdit::deletionsAreTakenBackDigitByDigit()
{
    show(QByteArray("\x12\xAB\x34"));
    m_pHex->setFocus();
    m_pHex->setCursorPosition(2);
    const State before = state(m_pHex);
    QTest::keyClick(m_pHex, Qt::Key_Backspace);
    QCOMPARE(m_pHex->displayText(), text("1  AB 34"));
    QTest::keyClick(m_pHex, Qt::Key_Backspace);
    QCOMPARE(m_pHex->displayText(), text("   AB 34"));
    undo(m_pHex);
    QCOMPARE(m_pHex->displayText(), text("1  AB 34"));
    QCOMPARE(m_pHex->cursorPosition(), 1);
    undo(m_pHex);
    QCOMPARE(state(m_pHex), before);

    m_pHex->selectAll();
    clickInMenu(m_pHex, "Delete");
    QCOMPARE(m_pHex->displayText(), text("        "));
    undo(m_pHex);
    QCOMPARE(state(m_pHex).hex, before.hex);
    QCOMPARE(m_pHex->selectedText(), before.hex);
}

void tst_CDigitsEdit::everyHistoryGoesBackAndForth_data()
{
    QTest::addColumn<bool>("isHex");
    QTest::addColumn<int>("size");
    for (const int size : {1, 3, 8}) {
        QTest::newRow(qPrintable(QStringLiteral("hex, %1").arg(size))) << true << size;
        QTest::newRow(qPrintable(QStringLiteral("binary, %1").arg(size))) << false << size;
    }
}

// Digits and missing digits in every mixture, which pastes and deletions leave and cover again.
void tst_CDigitsEdit::everyHistoryGoesBackAndForth()
{
    QFETCH(bool, isHex);
    QFETCH(int, size);
    show(QByteArray(size, '\x5A'));
    QLineEdit* const edit = isHex ? m_pHex : m_pBin;
    QRandomGenerator random(static_cast<quint32>(size));
    const int end = static_cast<int>(edit->text().size());
    const int digits = size * (isHex ? 2 : 8);
    const auto digit = [&] { return QString::number(random.bounded(isHex ? 16 : 2), 16); };
    QStringList texts{edit->displayText()};
    while (texts.size() < 200) {
        const int from = random.bounded(end + 1);
        edit->setSelection(from, random.bounded(end + 1) - from);
        switch (random.bounded(6)) {
        case 0:
            QTest::keyClicks(edit, digit());
            break;
        case 1:
            QTest::keyClick(edit, Qt::Key_Delete);
            break;
        case 2:
            QTest::keyClick(edit, Qt::Key_Backspace);
            break;
        case 3:
            QTest::keyClick(edit, Qt::Key_X, Qt::ControlModifier);
            break;
        default: {
            QString pasted;
            for (int left = random.bounded(2) ? digits : 1 + random.bounded(digits); left > 0; --left)
                pasted += digit();
            pasteBy(Way::Keys, edit, pasted);
        }
        }
        if (edit->displayText() != texts.last())
            texts << edit->displayText();
    }
    for (int i = static_cast<int>(texts.size()) - 1; i > 0; --i) {
        QCOMPARE(edit->displayText(), texts.at(i));
        undo(edit);
    }
    QCOMPARE(edit->displayText(), texts.first());
    QCOMPARE(m_pDialog->byteArray(), QByteArray(size, '\x5A'));
    for (int i = 1; i < texts.size(); ++i) {
        redo(edit);
        QCOMPARE(edit->displayText(), texts.at(i));
    }
    if (edit->hasAcceptableInput())
        QCOMPARE(m_pHex->text(), QString::fromLatin1(m_pDialog->byteArray().toHex(' ').toUpper()));
}

void tst_CDigitsEdit::anEditAfterAnUndoEndsTheRedo()
{
    show(QByteArray("\x12\xAB\x34"));
    m_pHex->setFocus();
    m_pHex->setCursorPosition(0);
    QTest::keyClicks(m_pHex, text("fed"));
    undo(m_pHex);
    undo(m_pHex);
    QTest::keyClicks(m_pHex, text("7"));
    QCOMPARE(m_pHex->text(), text("F7 AB 34"));
    redo(m_pHex);
    QCOMPARE(m_pHex->text(), text("F7 AB 34"));
    undo(m_pHex);
    undo(m_pHex);
    QCOMPARE(m_pHex->text(), text("12 AB 34"));
}

void tst_CDigitsEdit::aTextThatIsSetEndsTheHistory()
{
    const QByteArray bytes("\x12\xAB\x34");
    show(bytes);
    const auto edited = [&](QLineEdit* edit) {
        edit->setFocus();
        edit->setCursorPosition(0);
        QTest::keyClicks(edit, text("1"));
        QTest::keyClicks(edit, text("0"));
        undo(edit);
    };
    const auto verifyEnded = [&](QLineEdit* edit) {
        const State before = state(edit);
        undo(edit);
        redo(edit);
        QCOMPARE(state(edit), before);
    };
    edited(m_pHex);
    QTest::mouseClick(m_pDialog->button(QDialogButtonBox::Reset), Qt::LeftButton);
    verifyEnded(m_pHex);
    edited(m_pHex);
    m_pDialog->setByteArray(QByteArray("\x12\xAB\x34\x56"));
    verifyEnded(m_pHex);
    edited(m_pHex);
    m_pDialog->setByteArray(m_pDialog->byteArray()); // nothing to see, but it begins anew
    verifyEnded(m_pHex);
    edited(m_pHex);
    edited(m_pBin);
    verifyEnded(m_pHex);
    m_pHex->setFocus();
    QTest::keyClick(m_pHex, Qt::Key_9);
    verifyEnded(m_pBin);
    edited(m_pHex);
    m_pHex->setText(text("11 22 33 44"));
    verifyEnded(m_pHex);
}

void tst_CDigitsEdit::theMenuKnowsWhatCanBeTakenBack()
{
    show(QByteArray("\x12\xAB\x34"));
    const auto enabled = [this] {
        QMenu* const menu = openMenu(m_pHex);
        const QPair<bool, bool> answer(actionOf(menu, "&Undo")->isEnabled(), actionOf(menu, "&Redo")->isEnabled());
        menu->close();
        return answer;
    };
    QCOMPARE(enabled(), qMakePair(false, false));
    m_pHex->setCursorPosition(0);
    QTest::keyClicks(m_pHex, text("ab"));
    QCOMPARE(enabled(), qMakePair(true, false));
    undo(m_pHex);
    QCOMPARE(enabled(), qMakePair(true, true));
    undo(m_pHex);
    QCOMPARE(enabled(), qMakePair(false, true));
}

void tst_CDigitsEdit::whatCodeInsertsCanBeTakenBack()
{
    show(QByteArray("\x12\xAB\x34"));
    m_pHex->setCursorPosition(0);
    m_pHex->insert(text("77"));
    m_pHex->insert(text("8"));
    QCOMPARE(m_pDialog->byteArray(), QByteArray("\x77\x8B\x34"));
    undo(m_pHex);
    QCOMPARE(m_pDialog->byteArray(), QByteArray("\x77\xAB\x34"));
    undo(m_pHex);
    QCOMPARE(m_pDialog->byteArray(), QByteArray("\x12\xAB\x34"));

    // Qt's own undo knows a paste as one edit, too.
    QTest::keyClicks(m_pHex, text("5"));
    pasteBy(Way::Keys, m_pHex, text("0xC0DE"));
    QCOMPARE(m_pHex->text(), text("5C 0D E4"));
    m_pHex->undo();
    QCOMPARE(m_pHex->text(), text("52 AB 34"));
    QCOMPARE(m_pDialog->byteArray(), QByteArray("\x52\xAB\x34"));
    undo(m_pHex);
    QCOMPARE(m_pHex->text(), text("5C 0D E4"));
    QVERIFY(!m_pHex->isUndoAvailable());
}

void tst_CDigitsEdit::anUndoIsSentAsOneEdit()
{
    show(QByteArray("\x12\xAB\x34"));
    m_pHex->setSelection(1, 1);
    QTest::keyClick(m_pHex, Qt::Key_Delete);
    m_pHex->setSelection(6, 1);
    QTest::keyClick(m_pHex, Qt::Key_Delete);
    const QString before = m_pHex->displayText();
    QCOMPARE(before, text("1  AB  4"));
    pasteBy(Way::Keys, m_pHex, text("778899"));

    QSignalSpy edits(m_pHex, &QLineEdit::textEdited);
    QSignalSpy changes(m_pHex, &QLineEdit::textChanged);
    undo(m_pHex);
    QCOMPARE(m_pHex->displayText(), before);
    QCOMPARE(edits.count(), 1);
    QCOMPARE(edits.first().first().toString(), m_pHex->text());
    QCOMPARE(changes.count(), 1);
    redo(m_pHex);
    QCOMPARE(edits.count(), 2);
    QCOMPARE(edits.last().first().toString(), text("77 88 99"));
    QCOMPARE(changes.count(), 2);
    QCOMPARE(m_pDialog->byteArray(), QByteArray("\x77\x88\x99"));
}

void tst_CDigitsEdit::largePastesAreTakenBackAtOnce()
{
    constexpr int size = 0x10000;
    show(QByteArray(size, '\x55'));
    for (QLineEdit* const edit : {m_pHex, m_pBin}) {
        edit->setCursorPosition(1000);
        QTest::keyClick(edit, Qt::Key_Delete); // to go back to what takes three pieces
        const QString before = edit->displayText();
        QGuiApplication::clipboard()->setText(edit == m_pHex ? text("A7").repeated(size)
                                                             : text("01100111").repeated(size));
        QElapsedTimer timer;
        timer.start();
        QTest::keyClick(edit, Qt::Key_V, Qt::ControlModifier);
        const qint64 pasting = timer.restart();
        const QString after = edit->displayText();
        QVERIFY(after != before);
        timer.restart();
        undo(edit);
        const qint64 undoing = timer.restart();
        QCOMPARE(edit->displayText(), before);
        timer.restart();
        redo(edit);
        const qint64 redoing = timer.restart();
        QCOMPARE(edit->displayText(), after);
        const qint64 limit = 4 * pasting + 200; // a digit at a time it takes twenty times as long
        const QString times = QStringLiteral("%1, %2 and %3 ms").arg(pasting).arg(undoing).arg(redoing);
        QVERIFY2(undoing < limit && redoing < limit, qPrintable(times));
    }
}

TESSERA_TEST_MAIN(tst_CDigitsEdit)
#include "tst_CDigitsEdit.moc"
