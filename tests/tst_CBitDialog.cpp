// SPDX-License-Identifier: MIT
#include "ModalDriver.h"
#include "support/GlobalState.h"
#include "support/TestMain.h"

#include <Tessera/views/CBitDialog.h>
#include <Tessera/views/TbView.h>

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPointer>
#include <QPushButton>
#include <QScopedPointer>
#include <QScreen>
#include <QSet>
#include <QSignalSpy>
#include <QtTest>
#include <QVBoxLayout>

using nsUI::CBitDialog;
using nsUI::TbView;

namespace {

QString hexText(const QByteArray& bytes)
{
    return QString::fromLatin1(bytes.toHex(' ').toUpper());
}

QString binText(const QByteArray& bytes)
{
    QStringList groups;
    for (const char c : bytes)
        groups << QStringLiteral("%1").arg(static_cast<uchar>(c), 8, 2, QLatin1Char('0'));
    return groups.join(QLatin1Char(' '));
}

//! What a user sees of a bit dialog.
struct Parts
{
    explicit Parts(CBitDialog& dialog)
        : pForm(dialog.findChild<QFormLayout*>())
        , pHex(qobject_cast<QLineEdit*>(pForm->itemAt(0, QFormLayout::FieldRole)->widget()))
        , pBin(qobject_cast<QLineEdit*>(pForm->itemAt(1, QFormLayout::FieldRole)->widget()))
        , pView(dialog.findChild<TbView*>())
        , pBox(dialog.findChild<QDialogButtonBox*>())
        , pModel(pView->model())
    {
    }

    QFormLayout* pForm;
    QLineEdit* pHex;
    QLineEdit* pBin;
    TbView* pView;
    QDialogButtonBox* pBox;
    QAbstractItemModel* pModel;

    //! The array as the grid shows it.
    QByteArray gridBytes(int nSize) const
    {
        QByteArray bytes(nSize, '\0');
        for (int nRow = 0; nRow < pModel->rowCount(); ++nRow) {
            for (int nColumn = 0; nColumn < pModel->columnCount(); nColumn += 3) {
                const QVariant position = pModel->index(nRow, nColumn).data();
                if (position.isValid() && pModel->index(nRow, nColumn + 1).data().toInt() == 1) {
                    const int nAt = nSize - 1 - position.toInt() / 8;
                    bytes[nAt] = static_cast<char>(bytes.at(nAt) | (1 << (position.toInt() % 8)));
                }
            }
        }
        return bytes;
    }

    void click(int nRow, int nColumn) const
    {
        const QModelIndex index = pModel->index(nRow, nColumn);
        pView->scrollTo(index);
        QTest::mouseClick(pView->viewport(), Qt::LeftButton, Qt::NoModifier, pView->visualRect(index).center());
    }
};

} // namespace

class tst_CBitDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    // Building
    void itDeclaresItsSlotsInOrder();
    void itIsBuiltOfTextsGridAndButtons();
    void itsTextsAreTranslated();
    void aNewDialogIsEmpty();
    void aDialogCanBeMadeWithItsValue();
    void aDialogBelongsToItsParent();
    void theTextsHaveTheFontOfTheDialog();
    void itsButtonsCanBeReached();
    void theGridIsReadableInADarkPalette();
    void typingBeginsAtTheFirstDigit();
    void theLastColumnTakesTheRoomThatIsLeft();

    // Giving it a value
    void bytesShowInAllThreePlaces_data();
    void bytesShowInAllThreePlaces();
    void theMasksFollowFromTheSize_data();
    void theMasksFollowFromTheSize();
    void anEmptyArrayDisablesTheTexts();
    void descriptionsGoToTheGrid();

    // Editing
    void aHexTextCountsOnceItIsComplete();
    void theTypedHexTextIsNotRewritten();
    void lowerCaseHexDigitsBecomeUpperCase();
    void otherKeysThanHexDigitsDoNothing();
    void aBinaryTextCountsOnceItIsComplete();
    void theSameDigitAgainResetsNothing();
    void aTextThatIsSetByCodeDoesNotCount();
    void aClickFlipsABitWithoutReset();
    void aClickBesideTheValuesDoesNothing();
    void everyByteCanBeTypedAsHex();
    void everyByteCanBeTypedAsBinary();
    void aLargeArrayIsEditedInAllThreePlaces();
    void resetReturnsToTheArrayThatWasGiven();
    void resetReturnsToTheArrayGivenLast();
    void resetOfAnEmptyArrayEmptiesTheGrid();
    void aPasteAndItsUndoShowInAllThreePlaces();

    // The update by its source
    void anUpdateIsNotWrittenBackToItsSource_data();
    void anUpdateIsNotWrittenBackToItsSource();
    void aFullUpdateMakesNewMasks();
    void aFullUpdateWithoutBytesDisablesTheTexts();
    void aPartUpdateLeavesMasksAndEnabling();
    void anUpdateLeavesTheResetValue();

    // Showing
    void theColumnsFitTheirContentsOnEveryShow();
    void theGridStaysAModelWhileItIsEdited();

    // By keys
    void theTabKeyWalksTextsGridAndButtons();
    void theArrowKeysWalkTheGrid();
    void enterInTheGridIsForOk();

    // The static call
    void theStaticCallAnswersWhatWasDone_data();
    void theStaticCallAnswersWhatWasDone();
    void theStaticCallAnswersTheEditedBytes();
    void theStaticCallTakesParentTitleAndDescriptions();
    void theStaticCallMakesADialogOfHalfTheScreen();

private:
    void show(const QByteArray& bytes)
    {
        m_pDialog->setByteArray(bytes);
        m_pDialog->resize(900, 500);
        m_pDialog->show();
        QVERIFY(QTest::qWaitForWindowActive(m_pDialog.data()));
    }
    void updateUI(const QByteArray& bytes, int nFlag)
    {
        QVERIFY(QMetaObject::invokeMethod(m_pDialog.data(), "slotUpdateUI", Qt::DirectConnection,
                                          Q_ARG(QByteArray, bytes), Q_ARG(int, nFlag)));
    }

    QScopedPointer<CBitDialog> m_pDialog;
    QScopedPointer<Parts> m_p;
};

#define VERIFY_ALL_SHOW(bytes)                                                                                         \
    do {                                                                                                               \
        const QByteArray verified = (bytes);                                                                           \
        QCOMPARE(m_pDialog->byteArray(), verified);                                                                    \
        QCOMPARE(m_p->gridBytes(static_cast<int>(verified.size())), verified);                                         \
        QCOMPARE(m_p->pHex->text(), hexText(verified));                                                                \
        QCOMPARE(m_p->pBin->text(), binText(verified));                                                                \
    } while (false)

void tst_CBitDialog::init()
{
    m_pDialog.reset(new CBitDialog);
    m_p.reset(new Parts(*m_pDialog));
}

void tst_CBitDialog::cleanup()
{
    m_p.reset();
    m_pDialog.reset();
}

// Building

void tst_CBitDialog::itDeclaresItsSlotsInOrder()
{
    const QMetaObject& meta = CBitDialog::staticMetaObject;
    QCOMPARE(meta.className(), "nsUI::CBitDialog");
    QCOMPARE(meta.superClass(), &QDialog::staticMetaObject);
    QStringList slotNames;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        QCOMPARE(meta.method(i).methodType(), QMetaMethod::Slot);
        QCOMPARE(meta.method(i).access(), QMetaMethod::Private);
        slotNames << QString::fromLatin1(meta.method(i).methodSignature());
    }
    QCOMPARE(slotNames,
             (QStringList{QStringLiteral("slotUpdateUI(QByteArray,int)"), QStringLiteral("slotBtnResetClicked()"),
                          QStringLiteral("slotTableModelChanged(QByteArray)"),
                          QStringLiteral("slotLEditHexTextChanged(QString)"),
                          QStringLiteral("slotLEditBinTextChanged(QString)")}));
}

void tst_CBitDialog::itIsBuiltOfTextsGridAndButtons()
{
    QCOMPARE(m_pDialog->windowTitle(), QStringLiteral("Bit Settings"));

    auto* const pLayout = qobject_cast<QVBoxLayout*>(m_pDialog->layout());
    QVERIFY(pLayout);
    QCOMPARE(pLayout->count(), 3);
    QCOMPARE(pLayout->itemAt(0)->layout(), m_p->pForm);
    QCOMPARE(pLayout->itemAt(1)->widget(), m_p->pView);
    QCOMPARE(pLayout->itemAt(2)->widget(), m_p->pBox);
    QCOMPARE(pLayout->stretch(0), 0);
    QCOMPARE(pLayout->stretch(1), 1);
    QCOMPARE(pLayout->stretch(2), 0);

    QCOMPARE(m_p->pForm->rowCount(), 2);
    QVERIFY(m_p->pHex && m_p->pBin);
    QCOMPARE(qobject_cast<QLabel*>(m_p->pForm->labelForField(m_p->pHex))->text(), QStringLiteral("HEX:"));
    QCOMPARE(qobject_cast<QLabel*>(m_p->pForm->labelForField(m_p->pBin))->text(), QStringLiteral("BIN:"));
    for (QWidget* const pChild : {static_cast<QWidget*>(m_p->pHex), static_cast<QWidget*>(m_p->pBin),
                                  static_cast<QWidget*>(m_p->pView), static_cast<QWidget*>(m_p->pBox)})
        QCOMPARE(pChild->parentWidget(), m_pDialog.data());

    QVERIFY(m_p->pView->verticalHeader()->isHidden());
    QVERIFY(m_p->pView->horizontalHeader()->stretchLastSection());
    QCOMPARE(m_p->pView->itemDelegate()->metaObject()->className(), "QStyledItemDelegate");
    QCOMPARE(m_p->pModel->metaObject()->className(), "nsUI::CBitModel");
    QCOMPARE(m_p->pModel->parent(), m_pDialog.data());

    QCOMPARE(m_p->pBox->standardButtons(), QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Reset);
}

void tst_CBitDialog::itsTextsAreTranslated()
{
    TestSupport::GlobalState global;
    QVERIFY(global.install(QStringLiteral(":/qm/Tessera_zh_CN.qm")));
    CBitDialog dialog;
    global.removeCatalogues();
    QCOMPARE(dialog.windowTitle(), QStringLiteral("位设置"));
    dialog.setByteArray(QByteArray("\x12"));
    QCOMPARE(Parts(dialog).pModel->headerData(1, Qt::Horizontal).toString(), QStringLiteral("位值"));
}

void tst_CBitDialog::aNewDialogIsEmpty()
{
    QVERIFY(m_pDialog->byteArray().isEmpty());
    QVERIFY(m_pDialog->bitDescMap().isEmpty());
    QCOMPARE(m_p->pModel->rowCount(), 0);
    QCOMPARE(m_p->pHex->text(), QString());
    QCOMPARE(m_p->pBin->text(), QString());
}

void tst_CBitDialog::aDialogCanBeMadeWithItsValue()
{
    QWidget parent;
    const QMap<int, QString> map{{0, QStringLiteral("ready")}};
    auto* const pDialog = new CBitDialog(QByteArray("\x12\xAB"), map, &parent);
    QCOMPARE(pDialog->parentWidget(), &parent);
    QCOMPARE(pDialog->byteArray(), QByteArray("\x12\xAB"));
    QCOMPARE(pDialog->bitDescMap(), map);
    m_pDialog.reset(pDialog);
    m_p.reset(new Parts(*pDialog));
    VERIFY_ALL_SHOW(QByteArray("\x12\xAB"));
    m_p.reset();
    m_pDialog.reset();
}

void tst_CBitDialog::aDialogBelongsToItsParent()
{
    QWidget parent;
    QPointer<CBitDialog> pDialog = new CBitDialog(&parent);
    QCOMPARE(pDialog->parentWidget(), &parent);
    QVERIFY(pDialog->isWindow());
    QVERIFY(!pDialog->isModal()); // only while it is executed
    delete pDialog.data();
    QVERIFY(parent.children().isEmpty());
}

void tst_CBitDialog::theTextsHaveTheFontOfTheDialog()
{
    const auto shownFont = [](const QWidget* pWidget) {
        const QFontInfo info(pWidget->font());
        return QStringLiteral("%1 %2 %3 %4")
            .arg(info.family())
            .arg(info.pointSize())
            .arg(info.bold())
            .arg(info.italic());
    };
    QCOMPARE(shownFont(m_p->pHex), shownFont(m_pDialog.data()));
    QCOMPARE(shownFont(m_p->pBin), shownFont(m_pDialog.data()));

    QFont font(QStringLiteral("DejaVu Sans Mono"), 17, QFont::Bold);
    font.setItalic(true);
    m_pDialog->setFont(font);
    QCOMPARE(m_p->pHex->font().pointSize(), 17);
    QCOMPARE(shownFont(m_p->pHex), shownFont(m_pDialog.data()));
    QCOMPARE(shownFont(m_p->pBin), shownFont(m_pDialog.data()));

    m_pDialog->setStyleSheet(QStringLiteral("QLineEdit { font-size: 23pt; }"));
    m_pDialog->ensurePolished();
    QCOMPARE(m_p->pHex->font().pointSize(), 23);
    QCOMPARE(m_p->pBin->font().pointSize(), 23);
}

void tst_CBitDialog::itsButtonsCanBeReached()
{
    QCOMPARE(m_pDialog->buttonBox(), m_p->pBox);
    QCOMPARE(m_pDialog->button(QDialogButtonBox::Reset), m_p->pBox->button(QDialogButtonBox::Reset));
    QVERIFY(!m_pDialog->button(QDialogButtonBox::Apply));
    m_pDialog->setBtnEnable(QDialogButtonBox::Ok, false);
    QVERIFY(!m_p->pBox->button(QDialogButtonBox::Ok)->isEnabled());
    m_pDialog->setBtnEnable(QDialogButtonBox::Ok, true);
    QVERIFY(m_p->pBox->button(QDialogButtonBox::Ok)->isEnabled());
    m_pDialog->setBtnEnable(QDialogButtonBox::Apply, false); // there is none
}

void tst_CBitDialog::theGridIsReadableInADarkPalette()
{
    const TestSupport::GlobalState global;
    QApplication::setPalette(QPalette(QColor(0x30, 0x30, 0x30)));
    const CBitDialog dialog(QByteArray("\x12"), {});
    const QColor text = dialog.findChild<TbView*>()->palette().color(QPalette::Text);
    QVERIFY2(text.lightness() < 64, qPrintable(text.name()));
}

void tst_CBitDialog::typingBeginsAtTheFirstDigit()
{
    m_pDialog->setByteArray(QByteArray("\x12\xAB"));
    m_pDialog->show();
    QCOMPARE(m_p->pHex->cursorPosition(), 0);
    QCOMPARE(m_p->pBin->cursorPosition(), 0);
    QTest::keyClicks(m_p->pHex, QStringLiteral("34cd"));
    QCOMPARE(m_pDialog->byteArray(), QByteArray("\x34\xCD"));
}

void tst_CBitDialog::theLastColumnTakesTheRoomThatIsLeft()
{
    m_pDialog->setByteArray(QByteArray("\x12\xAB"));
    m_pDialog->resize(1200, 400);
    m_pDialog->show();
    QCOMPARE(m_p->pView->horizontalHeader()->length(), m_p->pView->viewport()->width());
}

// Giving it a value

void tst_CBitDialog::bytesShowInAllThreePlaces_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("one zero") << QByteArray("\0", 1);
    QTest::newRow("two") << QByteArray("\x12\xAB");
    QTest::newRow("three") << QByteArray("\xFF\x00\x80", 3);
    QTest::newRow("nine") << QByteArray("\x01\x23\x45\x67\x89\xAB\xCD\xEF\x5A");
}

void tst_CBitDialog::bytesShowInAllThreePlaces()
{
    QFETCH(QByteArray, bytes);
    m_pDialog->setByteArray(bytes);
    VERIFY_ALL_SHOW(bytes);
    QVERIFY(m_p->pHex->isEnabled());
    QVERIFY(m_p->pBin->isEnabled());
}

void tst_CBitDialog::theMasksFollowFromTheSize_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<QString>("hexMask");
    QTest::addColumn<QString>("binMask");
    QTest::newRow("1") << 1 << QStringLiteral(">HH") << QStringLiteral("BBBBBBBB");
    QTest::newRow("2") << 2 << QStringLiteral(">HH HH") << QStringLiteral("BBBBBBBB BBBBBBBB");
    QTest::newRow("3") << 3 << QStringLiteral(">HH HH HH") << QStringLiteral("BBBBBBBB BBBBBBBB BBBBBBBB");
    QTest::newRow("5") << 5 << QStringLiteral(">HH HH HH HH HH")
                       << QStringLiteral("BBBBBBBB BBBBBBBB BBBBBBBB BBBBBBBB BBBBBBBB");
}

void tst_CBitDialog::theMasksFollowFromTheSize()
{
    QFETCH(int, size);
    m_pDialog->setByteArray(QByteArray(9, '\x01')); // a longer mask before
    m_pDialog->setByteArray(QByteArray(size, '\x01'));
    QTEST(m_p->pHex->inputMask(), "hexMask");
    QTEST(m_p->pBin->inputMask(), "binMask");
    QVERIFY(m_p->pHex->hasAcceptableInput());
    QVERIFY(m_p->pBin->hasAcceptableInput());
}

void tst_CBitDialog::anEmptyArrayDisablesTheTexts()
{
    m_pDialog->setByteArray(QByteArray("\x12\xAB"));
    m_pDialog->setByteArray(QByteArray());
    QVERIFY(!m_p->pHex->isEnabled());
    QVERIFY(!m_p->pBin->isEnabled());
    QCOMPARE(m_p->pHex->inputMask(), QStringLiteral(">HH HH"));
    QCOMPARE(m_p->pBin->inputMask(), QStringLiteral("BBBBBBBB BBBBBBBB"));
    QCOMPARE(m_p->pModel->rowCount(), 0);
    QVERIFY(m_pDialog->byteArray().isEmpty());

    m_pDialog->setByteArray(QByteArray("\x05"));
    QVERIFY(m_p->pHex->isEnabled());
    QVERIFY(m_p->pBin->isEnabled());
    VERIFY_ALL_SHOW(QByteArray("\x05"));
}

void tst_CBitDialog::descriptionsGoToTheGrid()
{
    const QMap<int, QString> map{{0, QStringLiteral("ready")}, {9, QStringLiteral("error")}};
    m_pDialog->setByteArray(QByteArray("\x12\xAB"));
    QSignalSpy resets(m_p->pModel, &QAbstractItemModel::modelReset);
    m_pDialog->setBitDescMap(map);
    m_pDialog->setBitDescMap(map);
    QCOMPARE(resets.count(), 2); // straight through, every time
    QCOMPARE(m_pDialog->bitDescMap(), map);
    QCOMPARE(m_p->pModel->index(0, 2).data().toString(), QStringLiteral("ready"));
    QCOMPARE(m_p->pModel->index(1, 5).data().toString(), QStringLiteral("error"));
}

// Editing

void tst_CBitDialog::aHexTextCountsOnceItIsComplete()
{
    show(QByteArray("\x12\xAB"));
    QSignalSpy resets(m_p->pModel, &QAbstractItemModel::modelReset);
    m_p->pHex->setFocus();
    m_p->pHex->setCursorPosition(1);
    QTest::keyClick(m_p->pHex, Qt::Key_Delete); // one digit is missing
    QCOMPARE(m_pDialog->byteArray(), QByteArray("\x12\xAB"));
    QCOMPARE(m_p->pBin->text(), binText(QByteArray("\x12\xAB")));
    QCOMPARE(resets.count(), 0);

    QTest::keyClick(m_p->pHex, Qt::Key_F);
    VERIFY_ALL_SHOW(QByteArray("\x1F\xAB"));
    QCOMPARE(resets.count(), 1);
}

void tst_CBitDialog::theTypedHexTextIsNotRewritten()
{
    show(QByteArray("\x12\xAB"));
    m_p->pHex->setFocus();
    m_p->pHex->setCursorPosition(1);
    QSignalSpy hexTexts(m_p->pHex, &QLineEdit::textChanged);
    QSignalSpy binTexts(m_p->pBin, &QLineEdit::textChanged);

    QLineEdit alone; // the same key without a dialog around
    alone.setInputMask(m_p->pHex->inputMask());
    alone.setText(m_p->pHex->text());
    alone.setCursorPosition(1);
    QTest::keyClick(&alone, Qt::Key_7);

    QTest::keyClick(m_p->pHex, Qt::Key_7);
    QCOMPARE(m_p->pHex->text(), alone.text());
    QCOMPARE(m_p->pHex->cursorPosition(), alone.cursorPosition());
    QCOMPARE(m_p->pHex->cursorPosition(), 3);
    QVERIFY(m_p->pHex->isUndoAvailable()); // setText() would end that
    QCOMPARE(hexTexts.count(), 1);
    QCOMPARE(binTexts.count(), 1);
    VERIFY_ALL_SHOW(QByteArray("\x17\xAB"));
}

void tst_CBitDialog::lowerCaseHexDigitsBecomeUpperCase()
{
    show(QByteArray("\x12\xAB"));
    m_p->pHex->setFocus();
    m_p->pHex->setCursorPosition(0);
    QTest::keyClicks(m_p->pHex, QStringLiteral("cafe"));
    QCOMPARE(m_p->pHex->text(), QStringLiteral("CA FE"));
    VERIFY_ALL_SHOW(QByteArray("\xCA\xFE"));
}

void tst_CBitDialog::otherKeysThanHexDigitsDoNothing()
{
    show(QByteArray("\x12\xAB"));
    QSignalSpy resets(m_p->pModel, &QAbstractItemModel::modelReset);
    m_p->pHex->setFocus();
    m_p->pHex->setCursorPosition(0);
    QTest::keyClicks(m_p->pHex, QStringLiteral("gxz-+."));
    m_p->pBin->setFocus();
    m_p->pBin->setCursorPosition(0);
    QTest::keyClicks(m_p->pBin, QStringLiteral("2a9"));
    VERIFY_ALL_SHOW(QByteArray("\x12\xAB"));
    QCOMPARE(resets.count(), 0);
}

void tst_CBitDialog::aBinaryTextCountsOnceItIsComplete()
{
    show(QByteArray("\x12\xAB"));
    QSignalSpy resets(m_p->pModel, &QAbstractItemModel::modelReset);
    QSignalSpy hexTexts(m_p->pHex, &QLineEdit::textChanged);
    QSignalSpy binTexts(m_p->pBin, &QLineEdit::textChanged);
    m_p->pBin->setFocus();
    m_p->pBin->setCursorPosition(0);
    QTest::keyClick(m_p->pBin, Qt::Key_Delete);
    QCOMPARE(m_pDialog->byteArray(), QByteArray("\x12\xAB"));
    QCOMPARE(m_p->pHex->text(), QStringLiteral("12 AB"));
    QCOMPARE(resets.count(), 0);
    QCOMPARE(hexTexts.count(), 0);

    QTest::keyClick(m_p->pBin, Qt::Key_1);
    VERIFY_ALL_SHOW(QByteArray("\x92\xAB"));
    QCOMPARE(resets.count(), 1);
    QCOMPARE(hexTexts.count(), 1);
    QCOMPARE(binTexts.count(), 2); // the user's own two changes
    QCOMPARE(m_p->pBin->cursorPosition(), 1);
    QVERIFY(m_p->pBin->isUndoAvailable());
}

void tst_CBitDialog::theSameDigitAgainResetsNothing()
{
    show(QByteArray("\x12\xAB"));
    QSignalSpy resets(m_p->pModel, &QAbstractItemModel::modelReset);
    m_p->pHex->setFocus();
    m_p->pHex->setCursorPosition(0);
    QTest::keyClick(m_p->pHex, Qt::Key_1);
    VERIFY_ALL_SHOW(QByteArray("\x12\xAB"));
    QCOMPARE(resets.count(), 0);
}

void tst_CBitDialog::aTextThatIsSetByCodeDoesNotCount()
{
    m_pDialog->setByteArray(QByteArray("\x12\xAB"));
    m_p->pHex->setText(QStringLiteral("FF FF"));
    m_p->pBin->setText(QStringLiteral("00000000 00000000"));
    QCOMPARE(m_pDialog->byteArray(), QByteArray("\x12\xAB"));
    QCOMPARE(m_p->pHex->text(), QStringLiteral("FF FF"));
}

void tst_CBitDialog::aClickFlipsABitWithoutReset()
{
    show(QByteArray("\x12\xAB"));
    QSignalSpy resets(m_p->pModel, &QAbstractItemModel::modelReset);
    QSignalSpy changes(m_p->pModel, &QAbstractItemModel::dataChanged);
    QSignalSpy hexTexts(m_p->pHex, &QLineEdit::textChanged);
    QSignalSpy binTexts(m_p->pBin, &QLineEdit::textChanged);
    m_p->click(2, 1);
    VERIFY_ALL_SHOW(QByteArray("\x12\xAF"));
    m_p->click(7, 4);
    VERIFY_ALL_SHOW(QByteArray("\x92\xAF"));
    m_p->click(7, 4);
    VERIFY_ALL_SHOW(QByteArray("\x12\xAF"));
    QCOMPARE(resets.count(), 0);
    QCOMPARE(changes.count(), 3);
    QCOMPARE(hexTexts.count(), 3);
    QCOMPARE(binTexts.count(), 3);
}

void tst_CBitDialog::aClickBesideTheValuesDoesNothing()
{
    show(QByteArray("\x12\xAB\x00", 3));
    QSignalSpy changes(m_p->pModel, &QAbstractItemModel::dataChanged);
    for (const int nColumn : {0, 2, 3, 5})
        m_p->click(2, nColumn);
    for (const int nColumn : {3, 4, 5})
        m_p->click(9, nColumn); // no byte there
    VERIFY_ALL_SHOW(QByteArray("\x12\xAB\x00", 3));
    QCOMPARE(changes.count(), 0);
}

void tst_CBitDialog::everyByteCanBeTypedAsHex()
{
    show(QByteArray("\x5A\xA5"));
    m_p->pHex->setFocus();
    for (int n = 0; n < 256; ++n) {
        m_p->pHex->setCursorPosition(3);
        QTest::keyClicks(m_p->pHex, QStringLiteral("%1").arg(n, 2, 16, QLatin1Char('0')));
        VERIFY_ALL_SHOW(QByteArray("\x5A") + static_cast<char>(n));
    }
}

void tst_CBitDialog::everyByteCanBeTypedAsBinary()
{
    show(QByteArray("\x5A\xA5"));
    m_p->pBin->setFocus();
    for (int n = 0; n < 256; ++n) {
        m_p->pBin->setCursorPosition(0);
        QTest::keyClicks(m_p->pBin, QStringLiteral("%1").arg(n, 8, 2, QLatin1Char('0')));
        VERIFY_ALL_SHOW(QByteArray(1, static_cast<char>(n)) + "\xA5");
    }
}

void tst_CBitDialog::aLargeArrayIsEditedInAllThreePlaces()
{
    QByteArray bytes(0x10000, '\x55');
    show(bytes);

    m_p->pHex->setCursorPosition(0);
    QTest::keyClicks(m_p->pHex, QStringLiteral("a"));
    bytes[0] = '\xA5';
    VERIFY_ALL_SHOW(bytes);

    m_p->pBin->end(false);
    m_p->pBin->cursorBackward(false);
    QTest::keyClicks(m_p->pBin, QStringLiteral("0"));
    bytes[0xFFFF] = '\x54';
    VERIFY_ALL_SHOW(bytes);

    m_p->click(0, 4); // bit 8
    bytes[0xFFFE] = '\x54';
    VERIFY_ALL_SHOW(bytes);
}

void tst_CBitDialog::resetReturnsToTheArrayThatWasGiven()
{
    show(QByteArray("\x12\xAB"));
    m_p->click(0, 1);
    m_p->pHex->setFocus();
    m_p->pHex->setCursorPosition(0);
    QTest::keyClick(m_p->pHex, Qt::Key_F);
    m_p->pBin->setFocus();
    m_p->pBin->setCursorPosition(16);
    QTest::keyClick(m_p->pBin, Qt::Key_1);
    VERIFY_ALL_SHOW(QByteArray("\xF2\xAB"));
    m_p->click(1, 1);
    VERIFY_ALL_SHOW(QByteArray("\xF2\xA9"));

    QTest::mouseClick(m_p->pBox->button(QDialogButtonBox::Reset), Qt::LeftButton);
    VERIFY_ALL_SHOW(QByteArray("\x12\xAB"));
    QVERIFY(m_pDialog->isVisible());
    QTest::mouseClick(m_p->pBox->button(QDialogButtonBox::Reset), Qt::LeftButton);
    VERIFY_ALL_SHOW(QByteArray("\x12\xAB"));

    // An unfinished text goes as well.
    m_p->pHex->setFocus();
    m_p->pHex->setCursorPosition(0);
    QTest::keyClick(m_p->pHex, Qt::Key_Delete);
    QTest::mouseClick(m_p->pBox->button(QDialogButtonBox::Reset), Qt::LeftButton);
    VERIFY_ALL_SHOW(QByteArray("\x12\xAB"));
}

void tst_CBitDialog::resetReturnsToTheArrayGivenLast()
{
    show(QByteArray("\x12\xAB"));
    m_pDialog->setByteArray(QByteArray("\x01"));
    m_p->click(1, 1);
    VERIFY_ALL_SHOW(QByteArray("\x03"));
    QTest::mouseClick(m_p->pBox->button(QDialogButtonBox::Reset), Qt::LeftButton);
    VERIFY_ALL_SHOW(QByteArray("\x01"));
}

void tst_CBitDialog::resetOfAnEmptyArrayEmptiesTheGrid()
{
    show(QByteArray());
    updateUI(QByteArray("\x07"), 0);
    VERIFY_ALL_SHOW(QByteArray("\x07"));
    QTest::mouseClick(m_p->pBox->button(QDialogButtonBox::Reset), Qt::LeftButton);
    QVERIFY(m_pDialog->byteArray().isEmpty());
    QCOMPARE(m_p->pModel->rowCount(), 0);
    QVERIFY(!m_p->pHex->isEnabled());
    QVERIFY(!m_p->pBin->isEnabled());
}

void tst_CBitDialog::aPasteAndItsUndoShowInAllThreePlaces()
{
    show(QByteArray("\x12\xAB"));
    for (QLineEdit* const pEdit : {m_p->pHex, m_p->pBin}) {
        pEdit->setFocus();
        QGuiApplication::clipboard()->setText(pEdit == m_p->pHex ? QStringLiteral("0xF00D\n")
                                                                 : QStringLiteral("0b1111_0000_0000_1101"));
        QTest::keyClick(pEdit, Qt::Key_V, Qt::ControlModifier);
        VERIFY_ALL_SHOW(QByteArray("\xF0\x0D"));
        QTest::keyClick(pEdit, Qt::Key_Z, Qt::ControlModifier);
        VERIFY_ALL_SHOW(QByteArray("\x12\xAB"));
    }
}

// The update by its source

void tst_CBitDialog::anUpdateIsNotWrittenBackToItsSource_data()
{
    QTest::addColumn<int>("flag");
    for (int nFlag = 0; nFlag <= 8; ++nFlag)
        QTest::addRow("%d", nFlag) << nFlag;
}

void tst_CBitDialog::anUpdateIsNotWrittenBackToItsSource()
{
    QFETCH(int, flag);
    const QByteArray before("\x12\xAB");
    const QByteArray after("\xCA\xFE");
    m_pDialog->setByteArray(before);
    QSignalSpy resets(m_p->pModel, &QAbstractItemModel::modelReset);
    updateUI(after, flag);
    QCOMPARE(m_pDialog->byteArray(), flag & 1 ? before : after);
    QCOMPARE(resets.count(), flag & 1 ? 0 : 1);
    QCOMPARE(m_p->pHex->text(), hexText(flag & 2 ? before : after));
    QCOMPARE(m_p->pBin->text(), binText(flag & 4 ? before : after));
}

void tst_CBitDialog::aFullUpdateMakesNewMasks()
{
    m_pDialog->setByteArray(QByteArray());
    updateUI(QByteArray("\x01\x02\x03"), 0);
    QCOMPARE(m_p->pHex->inputMask(), QStringLiteral(">HH HH HH"));
    QCOMPARE(m_p->pBin->inputMask(), QStringLiteral("BBBBBBBB BBBBBBBB BBBBBBBB"));
    QVERIFY(m_p->pHex->isEnabled());
    QVERIFY(m_p->pBin->isEnabled());
    VERIFY_ALL_SHOW(QByteArray("\x01\x02\x03"));
}

void tst_CBitDialog::aFullUpdateWithoutBytesDisablesTheTexts()
{
    m_pDialog->setByteArray(QByteArray("\x12\xAB"));
    updateUI(QByteArray(), 0);
    QVERIFY(!m_p->pHex->isEnabled());
    QVERIFY(!m_p->pBin->isEnabled());
    QCOMPARE(m_p->pHex->inputMask(), QStringLiteral(">HH HH"));
    QVERIFY(m_pDialog->byteArray().isEmpty());
}

void tst_CBitDialog::aPartUpdateLeavesMasksAndEnabling()
{
    m_pDialog->setByteArray(QByteArray("\x12\xAB"));
    for (const int nFlag : {1, 2, 4}) {
        updateUI(QByteArray("\x01\x02\x03"), nFlag);
        QCOMPARE(m_p->pHex->inputMask(), QStringLiteral(">HH HH"));
        QCOMPARE(m_p->pBin->inputMask(), QStringLiteral("BBBBBBBB BBBBBBBB"));
        updateUI(QByteArray(), nFlag);
        QVERIFY(m_p->pHex->isEnabled());
        QVERIFY(m_p->pBin->isEnabled());
    }
}

void tst_CBitDialog::anUpdateLeavesTheResetValue()
{
    show(QByteArray("\x12\xAB"));
    for (int nFlag = 0; nFlag <= 7; ++nFlag) {
        updateUI(QByteArray("\x34\x56"), nFlag);
        QTest::mouseClick(m_p->pBox->button(QDialogButtonBox::Reset), Qt::LeftButton);
        VERIFY_ALL_SHOW(QByteArray("\x12\xAB"));
    }
}

// Showing

void tst_CBitDialog::theColumnsFitTheirContentsOnEveryShow()
{
    const auto widths = [this] {
        QList<int> list;
        for (int nColumn = 0; nColumn < m_p->pModel->columnCount() - 1; ++nColumn) // the last takes the rest
            list << m_p->pView->columnWidth(nColumn);
        return list;
    };
    m_pDialog->setBitDescMap({{3, QStringLiteral("a description that is much longer than its header")}});
    show(QByteArray("\x12\xAB"));
    const QList<int> fitting = widths();
    QVERIFY(fitting.at(2) > m_p->pView->fontMetrics().horizontalAdvance(m_pDialog->bitDescMap().value(3)));
    QVERIFY(fitting.at(0) < fitting.at(2));

    m_pDialog->hide();
    for (int nColumn = 0; nColumn < 5; ++nColumn)
        m_p->pView->setColumnWidth(nColumn, 11 + nColumn);
    QVERIFY(widths() != fitting);
    m_pDialog->show();
    QCOMPARE(widths(), fitting);
    m_p->pView->resizeColumnsToContents();
    QCOMPARE(widths(), fitting);
}

void tst_CBitDialog::theGridStaysAModelWhileItIsEdited()
{
    QAbstractItemModelTester tester(m_p->pModel, QAbstractItemModelTester::FailureReportingMode::Fatal);
    show(QByteArray("\x12\xAB\x00", 3));
    m_p->click(1, 1);
    m_p->pHex->setFocus();
    m_p->pHex->setCursorPosition(0);
    QTest::keyClicks(m_p->pHex, QStringLiteral("fedcba"));
    VERIFY_ALL_SHOW(QByteArray("\xFE\xDC\xBA"));
    m_pDialog->setByteArray(QByteArray());
    m_pDialog->setByteArray(QByteArray(9, '\x55'));
    m_pDialog->setBitDescMap({{70, QStringLiteral("high")}});
    VERIFY_ALL_SHOW(QByteArray(9, '\x55'));
}

// By keys

void tst_CBitDialog::theTabKeyWalksTextsGridAndButtons()
{
    show(QByteArray("\x12\xAB"));
    QList<QWidget*> stops{m_p->pHex, m_p->pBin, m_p->pView};
    for (QPushButton* const pButton : m_p->pBox->findChildren<QPushButton*>())
        stops << pButton;
    QCOMPARE(stops.size(), 6);
    m_p->pHex->setFocus();

    QList<QWidget*> visited{QApplication::focusWidget()};
    for (int i = 0; i < stops.size(); ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        visited << QApplication::focusWidget();
    }
    QCOMPARE(visited.first(), stops.first());
    QCOMPARE(visited.last(), stops.first());
    QCOMPARE(visited.mid(1, 2), stops.mid(1, 2));
    QCOMPARE(QSet<QWidget*>(visited.cbegin(), visited.cend()), QSet<QWidget*>(stops.cbegin(), stops.cend()));

    for (int i = 1; i < visited.size(); ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(QApplication::focusWidget(), visited.at(visited.size() - 1 - i));
    }
}

void tst_CBitDialog::theArrowKeysWalkTheGrid()
{
    show(QByteArray("\x12\xAB"));
    m_p->pView->setFocus();
    m_p->pView->setCurrentIndex(m_p->pModel->index(0, 0));
    const auto walk = [this](Qt::Key key) {
        QTest::keyClick(m_p->pView, key);
        return QPoint(m_p->pView->currentIndex().row(), m_p->pView->currentIndex().column());
    };
    QCOMPARE(walk(Qt::Key_Right), QPoint(0, 1));
    QCOMPARE(walk(Qt::Key_Down), QPoint(1, 1));
    QCOMPARE(walk(Qt::Key_Left), QPoint(1, 0));
    QCOMPARE(walk(Qt::Key_Up), QPoint(0, 0));
    QVERIFY(m_p->pView->hasFocus());
}

void tst_CBitDialog::enterInTheGridIsForOk()
{
    show(QByteArray("\x12\xAB"));
    m_p->pView->setFocus();
    m_p->pView->setCurrentIndex(m_p->pModel->index(1, 1)); // a bit's value
    const QByteArray before = m_pDialog->byteArray();
    QTest::keyClick(m_p->pView, Qt::Key_Space);
    const QByteArray turned = m_pDialog->byteArray();
    QVERIFY(turned != before);
    QTest::keyClick(m_p->pView, Qt::Key_Return);
    QCOMPARE(m_pDialog->byteArray(), turned);
    QCOMPARE(m_pDialog->result(), int(QDialog::Accepted));
    QVERIFY(!m_pDialog->isVisible());
}

// The static call

void tst_CBitDialog::theStaticCallAnswersWhatWasDone_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("action");
    QTest::addColumn<bool>("isNull");
    const QByteArray two("\x12\xAB");
    QTest::newRow("OK") << two << QStringLiteral("ok") << false;
    QTest::newRow("OK, zeros") << QByteArray(2, '\0') << QStringLiteral("ok") << false;
    QTest::newRow("OK, an empty array") << QByteArray("") << QStringLiteral("ok") << false;
    QTest::newRow("OK, a null array") << QByteArray() << QStringLiteral("ok") << false;
    QTest::newRow("Cancel") << two << QStringLiteral("cancel") << true;
    QTest::newRow("Cancel, an empty array") << QByteArray("") << QStringLiteral("cancel") << true;
    QTest::newRow("Escape") << two << QStringLiteral("escape") << true;
    QTest::newRow("closing the window") << two << QStringLiteral("close") << true;
}

void tst_CBitDialog::theStaticCallAnswersWhatWasDone()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, action);
    QFETCH(bool, isNull);
    const ModalDriver driver([&](QDialog& dialog) {
        auto* const pBox = dialog.findChild<QDialogButtonBox*>();
        if (action == QLatin1String("ok"))
            QTest::mouseClick(pBox->button(QDialogButtonBox::Ok), Qt::LeftButton);
        else if (action == QLatin1String("cancel"))
            QTest::mouseClick(pBox->button(QDialogButtonBox::Cancel), Qt::LeftButton);
        else if (action == QLatin1String("escape"))
            QTest::keyClick(&dialog, Qt::Key_Escape);
        else
            dialog.close();
    });
    const QByteArray result = CBitDialog::getByteArray(bytes, {});
    QVERIFY(driver.hasActed());
    QCOMPARE(result.isNull(), isNull);
    if (!isNull)
        QCOMPARE(result, bytes);
}

void tst_CBitDialog::theStaticCallAnswersTheEditedBytes()
{
    const ModalDriver driver([](QDialog& dialog) {
        auto* const pBitDialog = qobject_cast<CBitDialog*>(&dialog);
        QVERIFY(pBitDialog);
        const Parts parts(*pBitDialog);
        parts.click(0, 4);
        parts.pHex->setFocus();
        parts.pHex->setCursorPosition(4);
        QTest::keyClick(parts.pHex, Qt::Key_C);
        QTest::mouseClick(parts.pBox->button(QDialogButtonBox::Ok), Qt::LeftButton);
    });
    QCOMPARE(CBitDialog::getByteArray(QByteArray("\x12\xAB"), {}), QByteArray("\x13\xAC"));
    QVERIFY(driver.hasActed());
}

void tst_CBitDialog::theStaticCallTakesParentTitleAndDescriptions()
{
    QWidget parent;
    parent.show();
    const QMap<int, QString> map{{3, QStringLiteral("three")}};
    for (const QString& sTitle : {QString(), QStringLiteral(""), QStringLiteral("Register 5")}) {
        const ModalDriver driver([&](QDialog& dialog) {
            auto* const pBitDialog = qobject_cast<CBitDialog*>(&dialog);
            QVERIFY(pBitDialog);
            QCOMPARE(dialog.windowTitle(), sTitle.isEmpty() ? QStringLiteral("Bit Settings") : sTitle);
            QCOMPARE(dialog.parentWidget(), sTitle.isNull() ? nullptr : &parent);
            QCOMPARE(pBitDialog->bitDescMap(), map);
            QCOMPARE(pBitDialog->byteArray(), QByteArray("\x12"));
            QVERIFY(dialog.isModal());
            dialog.reject();
        });
        if (sTitle.isNull())
            QVERIFY(CBitDialog::getByteArray(QByteArray("\x12"), map).isNull());
        else
            QVERIFY(CBitDialog::getByteArray(QByteArray("\x12"), map, &parent, sTitle).isNull());
        QVERIFY(driver.hasActed());
    }
    QVERIFY(parent.findChildren<QDialog*>().isEmpty());
}

void tst_CBitDialog::theStaticCallMakesADialogOfHalfTheScreen()
{
    const ModalDriver driver([](QDialog& dialog) {
        const QSize screen = QApplication::primaryScreen()->size();
        QVERIFY(dialog.minimumSizeHint().width() < screen.width() / 2);
        QCOMPARE(dialog.size(), screen / 2);
        dialog.reject();
    });
    CBitDialog::getByteArray(QByteArray("\x12"), {});
    QVERIFY(driver.hasActed());
}

TESSERA_TEST_MAIN(tst_CBitDialog)
#include "tst_CBitDialog.moc"
