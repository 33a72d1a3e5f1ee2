// SPDX-License-Identifier: MIT
#include "CellModels.h"
#include "support/TestMain.h"
#include "TestSupport.h"

#include <Tessera/CISpinBox/CI16SpinBox.h>
#include <Tessera/CISpinBox/CI32SpinBox.h>
#include <Tessera/CISpinBox/CI64SpinBox.h>
#include <Tessera/CISpinBox/CI8SpinBox.h>
#include <Tessera/CISpinBox/CU16SpinBox.h>
#include <Tessera/CISpinBox/CU32SpinBox.h>
#include <Tessera/CISpinBox/CU64SpinBox.h>
#include <Tessera/CISpinBox/CU8SpinBox.h>
#include <Tessera/views/StyledItemDelegate.h>
#include <Tessera/views/TbView.h>
#include <Tessera/widgets/CDataComboBox.h>
#include <Tessera/widgets/CDSpinBox.h>

#include <QAbstractItemModelTester>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QImage>
#include <QLineEdit>
#include <QMetaProperty>
#include <QPainter>
#include <QPointer>
#include <QRegularExpressionValidator>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QSortFilterProxyModel>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QtTest>

#include <cstring>
#include <limits>
#include <string>

using CellModels::Answers;
using CellModels::CellHost;
using CellModels::CellTable;
using CellModels::CellTree;
using CellModels::spelled;
using nsUI::CDataComboBox;
using nsUI::CDSpinBox;
using nsUI::StyledItemDelegate;

Q_DECLARE_METATYPE(CellModels::Answers)

namespace {

const QRgb c_nBackground = qRgb(0xFF, 0x00, 0xFF);

QString picture(const char* name)
{
    return QStringLiteral(":/pictures/%1.svg").arg(QLatin1String(name));
}

QStringList pictures(const char* forTrue, const char* forFalse)
{
    return {picture(forTrue), picture(forFalse)};
}

//! A usable cell of each kind.
Answers cellOf(int nKind)
{
    const QStringList texts{QStringLiteral("one"), QStringLiteral("two"), QStringLiteral("three")};
    Answers answers{{Qt::UserRole, nKind}, {Qt::EditRole, QStringLiteral("text")}};
    switch (nKind) {
    case 1:
    case 2:
        answers[Qt::EditRole] = true;
        break;
    case 3:
        answers[Qt::EditRole] = true;
        answers[258] = pictures("red", "blue");
        break;
    case 4:
        answers[Qt::EditRole] = 2;
        answers[260] = texts;
        break;
    case 5:
        answers[Qt::EditRole] = 20;
        answers[261] = texts;
        answers[262] = QVariantList{10, 20, 30};
        break;
    case 6:
        answers[Qt::EditRole] = QVariant::fromValue(ushort(1234));
        answers[263] = 16;
        answers[264] = QVariant::fromValue(ushort(0));
        answers[265] = QVariant::fromValue(ushort(0xFFFF));
        break;
    case 7:
        answers[Qt::EditRole] = 1.5;
        break;
    case 8:
        answers[Qt::EditRole] = QStringLiteral("AB");
        answers[275] = QStringLiteral("[0-9A-F]{0,4}");
        break;
    case 9:
        answers[Qt::EditRole] = QColor(Qt::red);
        break;
    case 10:
        answers[Qt::EditRole] = QFont();
        break;
    case 11:
        answers[Qt::EditRole] = QPen(Qt::red);
        break;
    case 12:
        answers[Qt::EditRole] = QByteArray("AB");
        break;
    default:
        break;
    }
    return answers;
}

QImage canvas(const QSize& size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(c_nBackground);
    return image;
}

//! What stands out from the background.
QRect paintedRect(const QImage& image)
{
    QRect painted;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != c_nBackground)
                painted |= QRect(x, y, 1, 1);
        }
    }
    return painted;
}

//! Every pixel of \a rect, and no other, has the colour.
bool isFilled(const QImage& image, const QRect& rect, QRgb nColor)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != (rect.contains(x, y) ? nColor : c_nBackground))
                return false;
        }
    }
    return true;
}

QImage paintedCell(const QAbstractItemDelegate& delegate, const QStyleOptionViewItem& option, const QModelIndex& index,
                   const QSize& size = QSize(140, 60))
{
    QImage image = canvas(size);
    QPainter painter(&image);
    delegate.paint(&painter, option, index);
    return image;
}

template <class T>
bool sameBits(const T& first, const T& second)
{
    return std::memcmp(&first, &second, sizeof(T)) == 0;
}

} // namespace

class tst_StyledItemDelegate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    // The class
    void itIsAPlainDelegateOfItsParent();

    // Which editor
    void eachKindHasItsEditor_data();
    void eachKindHasItsEditor();
    void allOtherKindsAreEditedAsWithQtsDelegate_data();
    void allOtherKindsAreEditedAsWithQtsDelegate();
    void anInvalidIndexCountsAsPlain();
    void theKindMayBeAnyVariantThatIsANumber();
    void theKindOfAProxyCounts();

    // The editors' settings
    void aComboBoxHoldsTheTextsAlone();
    void aComboBoxWithoutTextsIsEmpty();
    void aDataComboBoxHoldsTheTextsWithTheirData();
    void aDataComboBoxMayBeEmpty_data();
    void aDataComboBoxMayBeEmpty();
    void textsAndDataThatDifferInNumberGetTheDefaultEditor_data();
    void textsAndDataThatDifferInNumberGetTheDefaultEditor();
    void eachIntegerTypeHasItsBox_data();
    void eachIntegerTypeHasItsBox();
    void anIntegerBoxTakesItsSettings();
    void anIntegerBoxWithoutSettingsKeepsItsDefaults();
    void aDoubleBoxTakesItsSettings();
    void aDoubleBoxWithoutSettingsKeepsItsDefaults();
    void eachSettingOfADoubleBoxStandsAlone_data();
    void eachSettingOfADoubleBoxStandsAlone();
    void theSettingsOfADoubleBoxAreAppliedInOrder();
    void aLineEditAcceptsWhatItsPatternAccepts();
    void aLineEditWithoutPatternAcceptsAnything();
    void anEmptyPatternIsAPattern();
    void theToolTipFollowsTheText_data();
    void theToolTipFollowsTheText();

    // Loading and committing
    void loadingShowsTheValueAndSelectsIt_data();
    void loadingShowsTheValueAndSelectsIt();
    void loadingADataComboBoxWithAnUnknownValueChangesNothing();
    void committingWritesTheExactVariantUnderTheEditRole_data();
    void committingWritesTheExactVariantUnderTheEditRole();
    void committingWritesThroughTheModelThatIsGiven();
    void anEditorOfAnotherClassIsLeftToQtsDelegate_data();
    void anEditorOfAnotherClassIsLeftToQtsDelegate();

    // Placing
    void aComboBoxIsPlacedAndOpened_data();
    void aComboBoxIsPlacedAndOpened();
    void theOtherEditorsArePlacedInTheCell_data();
    void theOtherEditorsArePlacedInTheCell();
    void allOtherEditorsArePlacedByQtsDelegate_data();
    void allOtherEditorsArePlacedByQtsDelegate();
    void noEditorIsPlacedNowhere_data();
    void noEditorIsPlacedNowhere();

    // Writing at once, following the step
    void everyChangeIsWrittenAtOnceIfToldSo_data();
    void everyChangeIsWrittenAtOnceIfToldSo();
    void settingsWriteNothing();
    void theWritingEndsWithTheModel();
    void theWritingEndsWithTheEditor();
    void theWritingFollowsACellThatMoves();
    void theWritingEndsWithTheCell();
    void theWritingGoesThroughAProxy();
    void theStepIsReadAgainWhenTheCellIsReportedChanged_data();
    void theStepIsReadAgainWhenTheCellIsReportedChanged();
    void aRangeFromBottomToTopHoldsNoCell();
    void theStepOfATreesCellFollowsItsOwnBranchAlone();
    void theStepIsNotReadAgainUnlessToldSo();
    void theStepThatIsGoneBecomesZero();
    void followingTheStepEndsWithTheEditor();
    void bothOptionsWorkTogetherInAView();

    // Painting
    void aPictureIsFittedAndCentred_data();
    void aPictureIsFittedAndCentred();
    void thePictureFollowsFromValueAndFlags_data();
    void thePictureFollowsFromValueAndFlags();
    void aPictureThatCannotBeDrawnLeavesTheCellEmpty_data();
    void aPictureThatCannotBeDrawnLeavesTheCellEmpty();
    void nothingIsDrawnButThePicture();
    void aPictureFileIsReadEveryTime();
    void allOtherKindsArePaintedAsByQtsDelegate_data();
    void allOtherKindsArePaintedAsByQtsDelegate();
    void theSizeHintIsThatOfQtsDelegate_data();
    void theSizeHintIsThatOfQtsDelegate();

    // In a view
    void aViewOpensAComboBoxWithItsList_data();
    void aViewOpensAComboBoxWithItsList();
    void theListOfAViewsComboBoxStandsOnTheValue_data();
    void theListOfAViewsComboBoxStandsOnTheValue();
    void anUntouchedEditorLeavesTheValueAsItIs_data();
    void anUntouchedEditorLeavesTheValueAsItIs();
    void anIntegerKeepsItsValueAndType_data();
    void anIntegerKeepsItsValueAndType();
    void rowsThatComeAndGoTakeTheEditorAlong_data();
    void rowsThatComeAndGoTakeTheEditorAlong();
    void aCellThatGoesTakesItsEditorWithIt_data();
    void aCellThatGoesTakesItsEditorWithIt();
    void aModelThatGoesTakesItsEditorWithIt_data();
    void aModelThatGoesTakesItsEditorWithIt();
    void typingIntoACellEndToEnd();

private:
    QWidget* createEditor(const QAbstractItemDelegate& delegate, const QModelIndex& index)
    {
        return delegate.createEditor(m_pParent.data(), m_option, index);
    }

    template <class Editor>
    Editor* openedEditor(int nRow, int nColumn)
    {
        QWidget* const pEditor = createEditor(m_delegate, m_pTable->at(nRow, nColumn));
        m_delegate.setEditorData(pEditor, m_pTable->at(nRow, nColumn));
        return qobject_cast<Editor*>(pEditor);
    }

    void editorKinds()
    {
        QTest::addColumn<int>("kind");
        for (const int nKind : {0, 4, 5, 6, 7, 8})
            QTest::addRow("%d", nKind) << nKind;
    }
    void otherKinds()
    {
        QTest::addColumn<int>("kind");
        for (const int nKind : {0, 1, 2, 3, 9, 10, 11, 12, 13, -1, 256})
            QTest::addRow("%d", nKind) << nKind;
    }

    void showView()
    {
        m_pView.reset(new nsUI::TbView);
        m_pView->setModel(m_pTable.data());
        m_pView->setItemDelegate(new StyledItemDelegate(m_pView.data()));
        m_pView->setEditTriggers(QAbstractItemView::DoubleClicked); // not already when the focus comes
        m_pView->resize(400, 300);
        m_pView->show();
        QVERIFY(QTest::qWaitForWindowActive(m_pView.data()));
    }
    QWidget* editInView(int nRow, int nColumn)
    {
        const QModelIndex index = m_pTable->at(nRow, nColumn);
        m_pView->setCurrentIndex(index);
        m_pView->edit(index);
        return m_pView->indexWidget(index);
    }
    void commitAndClose(QWidget* pEditor)
    {
        QAbstractItemDelegate* const pDelegate = m_pView->itemDelegate();
        Q_EMIT pDelegate->commitData(pEditor);
        Q_EMIT pDelegate->closeEditor(pEditor);
    }

    StyledItemDelegate m_delegate;
    QStyledItemDelegate m_qtDelegate;
    QScopedPointer<CellTable> m_pTable;
    QScopedPointer<QAbstractItemModelTester> m_pTester;
    QScopedPointer<QWidget> m_pParent;
    QScopedPointer<nsUI::TbView> m_pView;
    QStyleOptionViewItem m_option;
};

void tst_StyledItemDelegate::init()
{
    m_pTable.reset(new CellTable(4, 3));
    m_pTester.reset(
        new QAbstractItemModelTester(m_pTable.data(), QAbstractItemModelTester::FailureReportingMode::Fatal));
    m_pParent.reset(new QWidget);
    m_pParent->resize(300, 200);
    m_option = QStyleOptionViewItem();
    m_option.rect = QRect(5, 7, 120, 24);
    m_option.state = QStyle::State_Enabled | QStyle::State_Active;
}

void tst_StyledItemDelegate::cleanup()
{
    m_pView.reset();
    m_pParent.reset();
    m_pTester.reset();
    m_pTable.reset();
}

// The class

void tst_StyledItemDelegate::itIsAPlainDelegateOfItsParent()
{
    const QMetaObject& meta = StyledItemDelegate::staticMetaObject;
    QCOMPARE(meta.className(), "nsUI::StyledItemDelegate");
    QCOMPARE(meta.superClass(), &QStyledItemDelegate::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(sizeof(StyledItemDelegate), sizeof(QStyledItemDelegate));

    QObject parent;
    QCOMPARE((new StyledItemDelegate(&parent))->parent(), &parent);
    QCOMPARE(m_delegate.parent(), nullptr);
}

// Which editor

void tst_StyledItemDelegate::eachKindHasItsEditor_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QByteArray>("className");
    QTest::newRow("4") << 4 << QByteArray("QComboBox");
    QTest::newRow("5") << 5 << QByteArray("nsUI::CDataComboBox");
    QTest::newRow("6") << 6 << QByteArray("nsUI::CU16SpinBox");
    QTest::newRow("7") << 7 << QByteArray("nsUI::CDSpinBox");
    QTest::newRow("8") << 8 << QByteArray("QLineEdit");
}

void tst_StyledItemDelegate::eachKindHasItsEditor()
{
    QFETCH(int, kind);
    m_pTable->answer(1, 1, cellOf(kind));
    QWidget* const pEditor = createEditor(m_delegate, m_pTable->at(1, 1));
    QVERIFY(pEditor);
    QTEST(QByteArray(pEditor->metaObject()->className()), "className");
    QCOMPARE(pEditor->parentWidget(), m_pParent.data());
    QCOMPARE(m_pTable->takeWrites(), QStringList());
}

void tst_StyledItemDelegate::allOtherKindsAreEditedAsWithQtsDelegate_data()
{
    otherKinds();
}

void tst_StyledItemDelegate::allOtherKindsAreEditedAsWithQtsDelegate()
{
    QFETCH(int, kind);
    m_pTable->answer(1, 1, cellOf(kind));
    const QModelIndex index = m_pTable->at(1, 1);

    QWidget* const pOurs = createEditor(m_delegate, index);
    QWidget* const pQts = createEditor(m_qtDelegate, index);
    QVERIFY(pOurs && pQts);
    QCOMPARE(pOurs->metaObject()->className(), pQts->metaObject()->className());
    QVERIFY(!qobject_cast<CDSpinBox*>(pOurs));

    m_delegate.setEditorData(pOurs, index);
    m_qtDelegate.setEditorData(pQts, index);
    const QByteArray name = pQts->metaObject()->userProperty().name();
    QCOMPARE(pOurs->property(name.constData()), pQts->property(name.constData()));

    m_delegate.setModelData(pOurs, m_pTable.data(), index);
    const QStringList ourWrites = m_pTable->takeWrites();
    QCOMPARE(ourWrites.size(), 1);
    QVERIFY(ourWrites.first().startsWith(QStringLiteral("1,1 2 ")));
    m_pTable->answer(1, 1, cellOf(kind));
    m_qtDelegate.setModelData(pQts, m_pTable.data(), index);
    QCOMPARE(ourWrites, m_pTable->takeWrites());
}

void tst_StyledItemDelegate::anInvalidIndexCountsAsPlain()
{
    const QModelIndex none;
    QVERIFY(!createEditor(m_delegate, none)); // as with Qt's delegate
    QVERIFY(!createEditor(m_qtDelegate, none));

    QLineEdit edit(QStringLiteral("old"), m_pParent.data());
    m_delegate.setEditorData(&edit, none);
    QCOMPARE(edit.text(), QString());

    QLineEdit qtEdit(m_pParent.data());
    m_delegate.updateEditorGeometry(&edit, m_option, none);
    m_qtDelegate.updateEditorGeometry(&qtEdit, m_option, none);
    QCOMPARE(edit.geometry(), qtEdit.geometry());

    m_delegate.setModelData(&edit, m_pTable.data(), none);
    QCOMPARE(m_pTable->takeWrites(), QStringList{QStringLiteral("-1,-1 2 ") + spelled(QString(QLatin1String("")))});
}

void tst_StyledItemDelegate::theKindMayBeAnyVariantThatIsANumber()
{
    for (const QVariant& kind : {QVariant(QStringLiteral("7")), QVariant(7.0), QVariant::fromValue(uchar(7))}) {
        m_pTable->answer(0, 0, {{Qt::UserRole, kind}, {Qt::EditRole, 1.5}});
        QVERIFY(qobject_cast<CDSpinBox*>(createEditor(m_delegate, m_pTable->at(0, 0))));
    }
}

void tst_StyledItemDelegate::theKindOfAProxyCounts()
{
    class Renamed : public QSortFilterProxyModel
    {
    public:
        QVariant data(const QModelIndex& index, int role) const override
        {
            if (role == Qt::UserRole)
                return 4;
            if (role == 260)
                return QStringList{QStringLiteral("proxy"), QStringLiteral("text")};
            return QSortFilterProxyModel::data(index, role);
        }
    };
    m_pTable->answer(0, 0, {{Qt::UserRole, 7}, {Qt::EditRole, 1.0}});
    Renamed proxy;
    proxy.setSourceModel(m_pTable.data());
    const QModelIndex index = proxy.mapFromSource(m_pTable->at(0, 0));
    auto* const pCombo = qobject_cast<QComboBox*>(createEditor(m_delegate, index));
    QVERIFY(pCombo);
    m_delegate.setEditorData(pCombo, index);
    QCOMPARE(pCombo->currentText(), QStringLiteral("text"));
    pCombo->setCurrentIndex(0);
    m_delegate.setModelData(pCombo, &proxy, index);
    QCOMPARE(m_pTable->takeWrites(), QStringList{QStringLiteral("0,0 2 QVariant(int, 0)")});
}

// The editors' settings

void tst_StyledItemDelegate::aComboBoxHoldsTheTextsAlone()
{
    m_pTable->answer(0, 0, cellOf(4));
    auto* const pCombo = qobject_cast<QComboBox*>(createEditor(m_delegate, m_pTable->at(0, 0)));
    QVERIFY(pCombo);
    QStringList texts;
    for (int i = 0; i < pCombo->count(); ++i) {
        texts << pCombo->itemText(i);
        QVERIFY(!pCombo->itemData(i).isValid());
        QVERIFY(pCombo->itemIcon(i).isNull());
    }
    QCOMPARE(texts, m_pTable->cell(0, 0).answers.value(260).toStringList());
    QVERIFY(!pCombo->isEditable());
}

void tst_StyledItemDelegate::aComboBoxWithoutTextsIsEmpty()
{
    m_pTable->answer(0, 0, {{Qt::UserRole, 4}, {Qt::EditRole, 1}});
    auto* const pCombo = openedEditor<QComboBox>(0, 0);
    QVERIFY(pCombo);
    QCOMPARE(pCombo->count(), 0);
    QCOMPARE(pCombo->currentIndex(), -1);
}

void tst_StyledItemDelegate::aDataComboBoxHoldsTheTextsWithTheirData()
{
    const QVariantList data{10, QStringLiteral("id"), QVariant()};
    Answers answers = cellOf(5);
    answers[262] = data;
    m_pTable->answer(0, 0, answers);
    auto* const pCombo = qobject_cast<CDataComboBox*>(createEditor(m_delegate, m_pTable->at(0, 0)));
    QVERIFY(pCombo);
    QCOMPARE(pCombo->count(), 3);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(pCombo->itemText(i), answers.value(261).toStringList().at(i));
        QVERIFY(CellModels::identical(pCombo->itemData(i, Qt::UserRole), data.at(i)));
        QVERIFY(pCombo->itemIcon(i).isNull());
    }
}

void tst_StyledItemDelegate::aDataComboBoxMayBeEmpty_data()
{
    QTest::addColumn<Answers>("answers");
    QTest::newRow("no lists") << Answers{{Qt::UserRole, 5}};
    QTest::newRow("empty lists") << Answers{{Qt::UserRole, 5}, {261, QStringList()}, {262, QVariantList()}};
}

void tst_StyledItemDelegate::aDataComboBoxMayBeEmpty()
{
    QFETCH(Answers, answers);
    m_pTable->answer(0, 0, answers);
    auto* const pCombo = qobject_cast<CDataComboBox*>(createEditor(m_delegate, m_pTable->at(0, 0)));
    QVERIFY(pCombo);
    QCOMPARE(pCombo->count(), 0);
}

void tst_StyledItemDelegate::textsAndDataThatDifferInNumberGetTheDefaultEditor_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QVariantList>("data");
    const QString sText = QStringLiteral("x");
    QTest::newRow("three texts, two data") << QStringList{sText, sText, sText} << QVariantList{1, 2};
    QTest::newRow("two texts, three data") << QStringList{sText, sText} << QVariantList{1, 2, 3};
    QTest::newRow("texts, no data") << QStringList{sText} << QVariantList();
    QTest::newRow("data, no texts") << QStringList() << QVariantList{1};
}

void tst_StyledItemDelegate::textsAndDataThatDifferInNumberGetTheDefaultEditor()
{
    QFETCH(QStringList, texts);
    QFETCH(QVariantList, data);
    m_pTable->answer(0, 0, {{Qt::UserRole, 5}, {Qt::EditRole, QStringLiteral("value")}, {261, texts}, {262, data}});
    const QModelIndex index = m_pTable->at(0, 0);

    QPointer<QWidget> pEditor = createEditor(m_delegate, index);
    QVERIFY(qobject_cast<QLineEdit*>(pEditor.data()));
    m_delegate.setEditorData(pEditor, index);
    QCOMPARE(qobject_cast<QLineEdit*>(pEditor.data())->text(), QStringLiteral("value"));
    m_delegate.updateEditorGeometry(pEditor, m_option, index);
    qobject_cast<QLineEdit*>(pEditor.data())->setText(QStringLiteral("new"));
    m_delegate.setModelData(pEditor, m_pTable.data(), index);
    QCOMPARE(m_pTable->takeWrites(), QStringList{QStringLiteral("0,0 2 ") + spelled(QStringLiteral("new"))});

    // What was made first in vain goes away by itself, and takes nothing with it.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(m_pParent->findChildren<QComboBox*>().isEmpty());
    QVERIFY(pEditor);
}

void tst_StyledItemDelegate::eachIntegerTypeHasItsBox_data()
{
    QTest::addColumn<QVariant>("type");
    QTest::addColumn<QByteArray>("className");
    for (const int nBits : {8, 16, 32, 64}) {
        QTest::addRow("%d", nBits) << QVariant(nBits) << QByteArray("nsUI::CU") + QByteArray::number(nBits) + "SpinBox";
        QTest::addRow("%d", -nBits) << QVariant(-nBits)
                                    << QByteArray("nsUI::CI") + QByteArray::number(nBits) + "SpinBox";
    }
    QTest::newRow("no type") << QVariant() << QByteArray("nsUI::CI32SpinBox");
    QTest::newRow("0") << QVariant(0) << QByteArray("nsUI::CI32SpinBox");
    QTest::newRow("12") << QVariant(12) << QByteArray("nsUI::CI32SpinBox");
    QTest::newRow("64 as text") << QVariant(QStringLiteral("64")) << QByteArray("nsUI::CU64SpinBox");
}

void tst_StyledItemDelegate::eachIntegerTypeHasItsBox()
{
    QFETCH(QVariant, type);
    m_pTable->answer(0, 0, {{Qt::UserRole, 6}, {Qt::EditRole, 42}});
    if (type.isValid())
        m_pTable->cell(0, 0).answers[263] = type;
    QWidget* const pEditor = createEditor(m_delegate, m_pTable->at(0, 0));
    QVERIFY(pEditor);
    QTEST(QByteArray(pEditor->metaObject()->className()), "className");

    m_delegate.setEditorData(pEditor, m_pTable->at(0, 0));
    auto* const pEdit = pEditor->findChild<QLineEdit*>();
    QCOMPARE(pEdit->text(), QStringLiteral("42"));
    QCOMPARE(pEdit->selectedText(), QStringLiteral("42"));
}

void tst_StyledItemDelegate::anIntegerBoxTakesItsSettings()
{
    m_pTable->answer(0, 0,
                     {{Qt::UserRole, 6},
                      {Qt::EditRole, QVariant::fromValue(ushort(0xBEEF))},
                      {263, 16},
                      {264, 5},
                      {265, 0xFFF0},
                      {266, QStringLiteral("<")},
                      {267, QStringLiteral(">")},
                      {268, 16}});
    auto* const pBox = openedEditor<nsUI::CU16SpinBox>(0, 0);
    QVERIFY(pBox);
    QCOMPARE(pBox->minimum(), ushort(5));
    QCOMPARE(pBox->maximum(), ushort(0xFFF0));
    QCOMPARE(pBox->prefix(), QStringLiteral("<"));
    QCOMPARE(pBox->suffix(), QStringLiteral(">"));
    QCOMPARE(pBox->displayIntegerBase(), 16);
    QCOMPARE(pBox->value(), ushort(0xBEEF));
    QCOMPARE(pBox->toolTip(), pBox->text());
}

void tst_StyledItemDelegate::anIntegerBoxWithoutSettingsKeepsItsDefaults()
{
    m_pTable->answer(0, 0, {{Qt::UserRole, 6}, {263, 16}});
    auto* const pBox = qobject_cast<nsUI::CU16SpinBox*>(createEditor(m_delegate, m_pTable->at(0, 0)));
    QVERIFY(pBox);
    const nsUI::CU16SpinBox fresh;
    QCOMPARE(pBox->minimum(), fresh.minimum());
    QCOMPARE(pBox->maximum(), fresh.maximum());
    QCOMPARE(pBox->prefix(), QString());
    QCOMPARE(pBox->suffix(), QString());
    QCOMPARE(pBox->displayIntegerBase(), 10);
}

void tst_StyledItemDelegate::aDoubleBoxTakesItsSettings()
{
    m_pTable->answer(0, 0,
                     {{Qt::UserRole, 7},
                      {Qt::EditRole, 1234.5},
                      {269, -10.5},
                      {270, 99999.25},
                      {271, 4},
                      {272, QChar(QLatin1Char('e'))},
                      {273, 0.5}});
    auto* const pBox = openedEditor<CDSpinBox>(0, 0);
    QVERIFY(pBox);
    QCOMPARE(pBox->minimum(), -10.5);
    QCOMPARE(pBox->maximum(), 99999.25);
    QCOMPARE(pBox->decimals(), 4);
    QCOMPARE(pBox->fmtChar(), QChar(QLatin1Char('e')));
    QCOMPARE(pBox->singleStep(), 0.5);
    QCOMPARE(pBox->value(), 1234.5);
    QCOMPARE(pBox->text(), QStringLiteral("1.2345e+03"));
    QCOMPARE(pBox->findChild<QLineEdit*>()->selectedText(), QStringLiteral("1.2345e+03"));
    QCOMPARE(pBox->toolTip(), QStringLiteral("1.2345e+03"));
}

void tst_StyledItemDelegate::aDoubleBoxWithoutSettingsKeepsItsDefaults()
{
    m_pTable->answer(0, 0, cellOf(7));
    auto* const pBox = openedEditor<CDSpinBox>(0, 0);
    QVERIFY(pBox);
    const CDSpinBox fresh;
    QCOMPARE(pBox->minimum(), fresh.minimum());
    QCOMPARE(pBox->maximum(), fresh.maximum());
    QCOMPARE(pBox->decimals(), fresh.decimals());
    QCOMPARE(pBox->fmtChar(), fresh.fmtChar());
    QCOMPARE(pBox->singleStep(), fresh.singleStep());
    QCOMPARE(pBox->stepType(), fresh.stepType());
}

void tst_StyledItemDelegate::eachSettingOfADoubleBoxStandsAlone_data()
{
    QTest::addColumn<int>("role");
    QTest::addColumn<QVariant>("setting");
    QTest::addColumn<QString>("expected"); // minimum maximum decimals format step
    QTest::newRow("none") << 0 << QVariant() << QStringLiteral("0 99.99 2 f 1");
    QTest::newRow("minimum") << 269 << QVariant(-3.5) << QStringLiteral("-3.5 99.99 2 f 1");
    QTest::newRow("maximum") << 270 << QVariant(7) << QStringLiteral("0 7 2 f 1");
    QTest::newRow("decimals") << 271 << QVariant(5) << QStringLiteral("0 99.99 5 f 1");
    QTest::newRow("format") << 272 << QVariant(QChar(QLatin1Char('G'))) << QStringLiteral("0 99.99 2 G 1");
    QTest::newRow("unknown format") << 272 << QVariant(QChar(QLatin1Char('x'))) << QStringLiteral("0 99.99 2 f 1");
    QTest::newRow("step") << 273 << QVariant(0.25) << QStringLiteral("0 99.99 2 f 0.25");
    QTest::newRow("minimum as text") << 269 << QVariant(QStringLiteral("1.5")) << QStringLiteral("1.5 99.99 2 f 1");
    QTest::newRow("maximum that is no number") << 270 << QVariant(QStringLiteral("x")) << QStringLiteral("0 0 2 f 1");
}

void tst_StyledItemDelegate::eachSettingOfADoubleBoxStandsAlone()
{
    QFETCH(int, role);
    QFETCH(QVariant, setting);
    m_pTable->answer(0, 0, {{Qt::UserRole, 7}, {role == 0 ? 300 : role, setting}});
    auto* const pBox = qobject_cast<CDSpinBox*>(createEditor(m_delegate, m_pTable->at(0, 0)));
    QVERIFY(pBox);
    QTEST(QStringLiteral("%1 %2 %3 %4 %5")
              .arg(pBox->minimum())
              .arg(pBox->maximum())
              .arg(pBox->decimals())
              .arg(pBox->fmtChar())
              .arg(pBox->singleStep()),
          "expected");
}

void tst_StyledItemDelegate::theSettingsOfADoubleBoxAreAppliedInOrder()
{
    // The minimum is set first, so a maximum below it takes it along.
    m_pTable->answer(0, 0, {{Qt::UserRole, 7}, {269, 200.0}, {270, 150.0}});
    auto* const pBox = qobject_cast<CDSpinBox*>(createEditor(m_delegate, m_pTable->at(0, 0)));
    QVERIFY(pBox);
    QCOMPARE(pBox->minimum(), 150.0);
    QCOMPARE(pBox->maximum(), 150.0);

    // The bounds are given in full, whatever the decimals were when they were set.
    m_pTable->answer(0, 1, {{Qt::UserRole, 7}, {269, 0.1234}, {270, 0.5678}, {271, 4}});
    auto* const pFine = qobject_cast<CDSpinBox*>(createEditor(m_delegate, m_pTable->at(0, 1)));
    QVERIFY(pFine);
    QCOMPARE(pFine->minimum(), 0.1234);
    QCOMPARE(pFine->maximum(), 0.5678);
}

void tst_StyledItemDelegate::aLineEditAcceptsWhatItsPatternAccepts()
{
    m_pTable->answer(0, 0, cellOf(8));
    auto* const pEdit = openedEditor<QLineEdit>(0, 0);
    QVERIFY(pEdit);
    const auto* const pValidator = qobject_cast<const QRegularExpressionValidator*>(pEdit->validator());
    QVERIFY(pValidator);
    QCOMPARE(pValidator->parent(), pEdit);
    QCOMPARE(pValidator->regularExpression().pattern(), QStringLiteral("[0-9A-F]{0,4}"));
    QCOMPARE(pValidator->regularExpression().patternOptions(),
             QRegularExpression::PatternOptions(QRegularExpression::NoPatternOption));

    QCOMPARE(pEdit->text(), QStringLiteral("AB"));
    QCOMPARE(pEdit->selectedText(), QStringLiteral("AB"));
    QTest::keyClicks(pEdit, QStringLiteral("1fG2E3x45"));
    QCOMPARE(pEdit->text(), QStringLiteral("12E3"));
}

void tst_StyledItemDelegate::aLineEditWithoutPatternAcceptsAnything()
{
    m_pTable->answer(0, 0, {{Qt::UserRole, 8}, {Qt::EditRole, QStringLiteral("old")}});
    auto* const pEdit = openedEditor<QLineEdit>(0, 0);
    QVERIFY(pEdit);
    QVERIFY(!pEdit->validator());
    QTest::keyClicks(pEdit, QStringLiteral("Any text: 1, 2"));
    QCOMPARE(pEdit->text(), QStringLiteral("Any text: 1, 2"));
}

void tst_StyledItemDelegate::anEmptyPatternIsAPattern()
{
    m_pTable->answer(0, 0, {{Qt::UserRole, 8}, {Qt::EditRole, QString()}, {275, QString()}});
    auto* const pEdit = openedEditor<QLineEdit>(0, 0);
    QVERIFY(pEdit);
    const auto* const pValidator = qobject_cast<const QRegularExpressionValidator*>(pEdit->validator());
    QVERIFY(pValidator);
    QCOMPARE(pValidator->regularExpression().pattern(), QString());
}

void tst_StyledItemDelegate::theToolTipFollowsTheText_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("loaded");
    QTest::addColumn<QString>("changed");
    QTest::newRow("4") << 4 << QStringLiteral("three") << QStringLiteral("two");
    QTest::newRow("5") << 5 << QStringLiteral("two") << QStringLiteral("one");
    QTest::newRow("6") << 6 << QStringLiteral("1234") << QStringLiteral("1235");
    QTest::newRow("7") << 7 << QStringLiteral("1.50") << QStringLiteral("2.50");
    QTest::newRow("8") << 8 << QStringLiteral("AB") << QStringLiteral("1");
}

void tst_StyledItemDelegate::theToolTipFollowsTheText()
{
    QFETCH(int, kind);
    m_pTable->answer(0, 0, cellOf(kind));
    QWidget* const pEditor = createEditor(m_delegate, m_pTable->at(0, 0));
    m_delegate.setEditorData(pEditor, m_pTable->at(0, 0));
    QTEST(pEditor->toolTip(), "loaded");
    if (auto* const pBox = qobject_cast<QAbstractSpinBox*>(pEditor))
        pBox->stepUp();
    else
        QTest::keyClick(pEditor, kind == 8 ? Qt::Key_1 : Qt::Key_Up);
    QTEST(pEditor->toolTip(), "changed");
}

// Loading and committing

void tst_StyledItemDelegate::loadingShowsTheValueAndSelectsIt_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("selected");
    QTest::newRow("4") << 4 << QVariant(1) << QStringLiteral("two") << false;
    QTest::newRow("4, a number as text") << 4 << QVariant(QStringLiteral("2")) << QStringLiteral("three") << false;
    QTest::newRow("4, none") << 4 << QVariant(-1) << QString() << false;
    QTest::newRow("5") << 5 << QVariant(30) << QStringLiteral("three") << false;
    QTest::newRow("5, equal after conversion") << 5 << QVariant(QStringLiteral("20")) << QStringLiteral("two") << false;
    QTest::newRow("6") << 6 << QVariant(77) << QStringLiteral("77") << true;
    QTest::newRow("6, no number counts as 0") << 6 << QVariant(QStringLiteral("x")) << QStringLiteral("0") << true;
    QTest::newRow("7") << 7 << QVariant(2.25) << QStringLiteral("2.25") << true;
    QTest::newRow("7, a whole number") << 7 << QVariant(3) << QStringLiteral("3.00") << true;
    QTest::newRow("8") << 8 << QVariant(QStringLiteral("CAFE")) << QStringLiteral("CAFE") << true;
    QTest::newRow("8, a number") << 8 << QVariant(12) << QStringLiteral("12") << true;
    QTest::newRow("8, beyond the pattern")
        << 8 << QVariant(QStringLiteral("no hex")) << QStringLiteral("no hex") << true;
}

void tst_StyledItemDelegate::loadingShowsTheValueAndSelectsIt()
{
    QFETCH(int, kind);
    QFETCH(QVariant, value);
    QFETCH(QString, text);
    QFETCH(bool, selected);
    m_pTable->answer(0, 0, cellOf(kind));
    m_pTable->cell(0, 0).answers[Qt::EditRole] = value;
    QWidget* const pEditor = createEditor(m_delegate, m_pTable->at(0, 0));
    m_delegate.setEditorData(pEditor, m_pTable->at(0, 0));
    if (auto* const pCombo = qobject_cast<QComboBox*>(pEditor)) {
        QCOMPARE(pCombo->currentText(), text);
    } else {
        auto* pEdit = qobject_cast<QLineEdit*>(pEditor);
        pEdit = pEdit ? pEdit : pEditor->findChild<QLineEdit*>();
        QVERIFY(pEdit);
        QCOMPARE(pEdit->text(), text);
        QCOMPARE(pEdit->selectedText(), selected ? text : QString());
    }
    QCOMPARE(m_pTable->takeWrites(), QStringList());
}

void tst_StyledItemDelegate::loadingADataComboBoxWithAnUnknownValueChangesNothing()
{
    m_pTable->answer(0, 0, cellOf(5));
    auto* const pCombo = openedEditor<CDataComboBox>(0, 0);
    QVERIFY(pCombo);
    QCOMPARE(pCombo->currentIndex(), 1);
    m_pTable->cell(0, 0).answers[Qt::EditRole] = 99;
    m_delegate.setEditorData(pCombo, m_pTable->at(0, 0));
    QCOMPARE(pCombo->currentIndex(), 1);
}

void tst_StyledItemDelegate::committingWritesTheExactVariantUnderTheEditRole_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("key");
    QTest::addColumn<QVariant>("expected");
    QTest::newRow("4, the row") << 4 << int(Qt::Key_Up) << QVariant(1);
    QTest::newRow("5, the data") << 5 << int(Qt::Key_Down) << QVariant(30);
    QTest::newRow("6, in its type") << 6 << int(Qt::Key_Up) << QVariant::fromValue(ushort(1235));
    QTest::newRow("7, a double") << 7 << int(Qt::Key_Up) << QVariant(2.5);
    QTest::newRow("8, a text") << 8 << int(Qt::Key_7) << QVariant(QStringLiteral("7"));
}

void tst_StyledItemDelegate::committingWritesTheExactVariantUnderTheEditRole()
{
    QFETCH(int, kind);
    QFETCH(int, key);
    QFETCH(QVariant, expected);
    m_pTable->answer(2, 1, cellOf(kind));
    QWidget* const pEditor = createEditor(m_delegate, m_pTable->at(2, 1));
    m_delegate.setEditorData(pEditor, m_pTable->at(2, 1));
    QTest::keyClick(pEditor, static_cast<Qt::Key>(key));
    QCOMPARE(m_pTable->takeWrites(), QStringList());
    m_delegate.setModelData(pEditor, m_pTable.data(), m_pTable->at(2, 1));
    QCOMPARE(m_pTable->takeWrites(), QStringList{QStringLiteral("2,1 2 ") + spelled(expected)});
    QVERIFY(CellModels::identical(m_pTable->value(2, 1), expected));
}

void tst_StyledItemDelegate::committingWritesThroughTheModelThatIsGiven()
{
    m_pTable->answer(2, 0, cellOf(7));
    QSortFilterProxyModel sorted;
    sorted.setSourceModel(m_pTable.data());
    sorted.sort(0, Qt::DescendingOrder);
    const QModelIndex index = sorted.mapFromSource(m_pTable->at(2, 0));
    auto* const pBox = qobject_cast<CDSpinBox*>(createEditor(m_delegate, index));
    QVERIFY(pBox);
    m_delegate.setEditorData(pBox, index);
    QCOMPARE(pBox->value(), 1.5);
    pBox->setValue(3.0);
    m_delegate.setModelData(pBox, &sorted, index);
    QCOMPARE(m_pTable->takeWrites(), QStringList{QStringLiteral("2,0 2 QVariant(double, 3)")});
}

void tst_StyledItemDelegate::anEditorOfAnotherClassIsLeftToQtsDelegate_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("useComboBox");
    QTest::newRow("4") << 4 << false;
    QTest::newRow("5") << 5 << false;
    QTest::newRow("7") << 7 << false;
    QTest::newRow("8") << 8 << true;
}

void tst_StyledItemDelegate::anEditorOfAnotherClassIsLeftToQtsDelegate()
{
    QFETCH(int, kind);
    QFETCH(bool, useComboBox);
    Answers answers = cellOf(kind);
    answers[Qt::EditRole] = QStringLiteral("two");
    m_pTable->answer(0, 0, answers);
    QScopedPointer<QWidget> pEditor;
    if (useComboBox) {
        auto* const pCombo = new QComboBox;
        pCombo->addItems({QStringLiteral("one"), QStringLiteral("two")});
        pEditor.reset(pCombo);
    } else {
        pEditor.reset(new QLineEdit);
    }
    m_delegate.setEditorData(pEditor.data(), m_pTable->at(0, 0));
    QCOMPARE(pEditor->property(pEditor->metaObject()->userProperty().name()).toString(), QStringLiteral("two"));
    m_delegate.setModelData(pEditor.data(), m_pTable.data(), m_pTable->at(0, 0));
    QCOMPARE(m_pTable->takeWrites(), QStringList{QStringLiteral("0,0 2 ") + spelled(QStringLiteral("two"))});
}

// Placing

void tst_StyledItemDelegate::aComboBoxIsPlacedAndOpened_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("4") << 4;
    QTest::newRow("5") << 5;
}

void tst_StyledItemDelegate::aComboBoxIsPlacedAndOpened()
{
    QFETCH(int, kind);
    m_pTable->answer(0, 0, cellOf(kind));
    m_pParent->show();
    auto* const pCombo = qobject_cast<QComboBox*>(createEditor(m_delegate, m_pTable->at(0, 0)));
    QVERIFY(pCombo);
    pCombo->show();
    QVERIFY(!pCombo->view()->isVisible());
    m_delegate.updateEditorGeometry(pCombo, m_option, m_pTable->at(0, 0));
    QCOMPARE(pCombo->geometry(), m_option.rect);
    QVERIFY(pCombo->view()->isVisible());
    pCombo->hidePopup();
}

void tst_StyledItemDelegate::theOtherEditorsArePlacedInTheCell_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("6") << 6;
    QTest::newRow("7") << 7;
    QTest::newRow("8") << 8;
}

void tst_StyledItemDelegate::theOtherEditorsArePlacedInTheCell()
{
    QFETCH(int, kind);
    m_pTable->answer(0, 0, cellOf(kind));
    QWidget* const pEditor = createEditor(m_delegate, m_pTable->at(0, 0));
    m_delegate.updateEditorGeometry(pEditor, m_option, m_pTable->at(0, 0));
    QCOMPARE(pEditor->geometry(), m_option.rect);
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_StyledItemDelegate::allOtherEditorsArePlacedByQtsDelegate_data()
{
    otherKinds();
}

void tst_StyledItemDelegate::allOtherEditorsArePlacedByQtsDelegate()
{
    QFETCH(int, kind);
    m_pTable->answer(0, 0, cellOf(kind));
    // A decoration moves Qt's editors aside.
    m_pTable->cell(0, 0).answers[Qt::DecorationRole] = QColor(Qt::green);
    m_option.decorationSize = QSize(16, 16);
    const QModelIndex index = m_pTable->at(0, 0);
    QWidget* const pOurs = createEditor(m_delegate, index);
    QWidget* const pQts = createEditor(m_qtDelegate, index);
    m_delegate.updateEditorGeometry(pOurs, m_option, index);
    m_qtDelegate.updateEditorGeometry(pQts, m_option, index);
    QCOMPARE(pOurs->geometry(), pQts->geometry());
    QVERIFY(pOurs->geometry() != m_option.rect);
}

void tst_StyledItemDelegate::noEditorIsPlacedNowhere_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("0") << 0;
    QTest::newRow("4") << 4;
    QTest::newRow("5") << 5;
}

void tst_StyledItemDelegate::noEditorIsPlacedNowhere()
{
    QFETCH(int, kind);
    m_pTable->answer(0, 0, cellOf(kind));
    m_delegate.updateEditorGeometry(nullptr, m_option, m_pTable->at(0, 0));
    QVERIFY(!QApplication::activePopupWidget());
}

// Writing at once, following the step

void tst_StyledItemDelegate::everyChangeIsWrittenAtOnceIfToldSo_data()
{
    QTest::addColumn<QVariant>("options");
    QTest::addColumn<bool>("expected");
    QTest::newRow("no options") << QVariant() << false;
    QTest::newRow("0") << QVariant(quint64(0)) << false;
    QTest::newRow("1") << QVariant(quint64(1)) << true;
    QTest::newRow("2") << QVariant(quint64(2)) << false;
    QTest::newRow("3") << QVariant(quint64(3)) << true;
    QTest::newRow("4") << QVariant(quint64(4)) << false;
    QTest::newRow("the highest bit and the lowest") << QVariant(quint64(0x8000000000000001)) << true;
    QTest::newRow("all bits but the lowest") << QVariant(~quint64(1)) << false;
    QTest::newRow("an int") << QVariant(1) << true;
    QTest::newRow("a text") << QVariant(QStringLiteral("1")) << true;
}

void tst_StyledItemDelegate::everyChangeIsWrittenAtOnceIfToldSo()
{
    QFETCH(QVariant, options);
    QFETCH(bool, expected);
    m_pTable->answer(1, 2, cellOf(7));
    m_pTable->cell(1, 2).answers[273] = 0.25;
    if (options.isValid())
        m_pTable->cell(1, 2).answers[274] = options;
    auto* const pBox = openedEditor<CDSpinBox>(1, 2);
    QVERIFY(pBox);
    m_pTable->takeWrites(); // loading changes the value of a fresh box

    pBox->stepUp();
    pBox->stepUp();
    pBox->stepDown();
    pBox->setValue(1.75); // no change
    const QString sWrite = QStringLiteral("1,2 2 QVariant(double, %1)");
    QStringList writes;
    if (expected)
        writes << sWrite.arg(1.75) << sWrite.arg(2.0) << sWrite.arg(1.75);
    QCOMPARE(m_pTable->takeWrites(), writes);

    m_delegate.setModelData(pBox, m_pTable.data(), m_pTable->at(1, 2));
    QCOMPARE(m_pTable->takeWrites(), QStringList{sWrite.arg(1.75)});
}

void tst_StyledItemDelegate::settingsWriteNothing()
{
    // The minimum moves the fresh box's value, but nobody has changed anything yet.
    Answers answers = cellOf(7);
    answers[269] = 10.0;
    answers[274] = quint64(1);
    answers[Qt::EditRole] = 10.0;
    m_pTable->answer(0, 0, answers);
    auto* const pBox = openedEditor<CDSpinBox>(0, 0);
    QVERIFY(pBox);
    QCOMPARE(m_pTable->takeWrites(), QStringList());
    pBox->stepUp();
    QCOMPARE(m_pTable->takeWrites().size(), 1);
}

void tst_StyledItemDelegate::theWritingEndsWithTheModel()
{
    Answers answers = cellOf(7);
    answers[273] = 1.0;
    answers[274] = quint64(3);
    m_pTable->answer(0, 0, answers);
    auto* const pBox = openedEditor<CDSpinBox>(0, 0);
    QVERIFY(pBox);
    m_pTester.reset();
    m_pTable.reset();
    pBox->stepUp();
    QCOMPARE(pBox->value(), 2.5);
}

void tst_StyledItemDelegate::theWritingEndsWithTheEditor()
{
    Answers answers = cellOf(7);
    answers[274] = quint64(1);
    m_pTable->answer(0, 0, answers);
    auto* const pBox = openedEditor<CDSpinBox>(0, 0);
    m_pTable->takeWrites();
    delete pBox;
    m_pTable->change(0, 0, 273, 5.0);
    QCOMPARE(m_pTable->takeWrites(), QStringList());
}

void tst_StyledItemDelegate::theWritingFollowsACellThatMoves()
{
    Answers answers = cellOf(7);
    answers[274] = quint64(1);
    m_pTable->answer(1, 0, answers);
    m_pTable->answer(2, 0, cellOf(7));
    auto* const pBox = openedEditor<CDSpinBox>(1, 0);
    m_pTable->takeWrites();

    m_pTable->addRow(0);
    pBox->stepUp();
    QCOMPARE(m_pTable->takeWrites(), QStringList{QStringLiteral("2,0 2 QVariant(double, 2.5)")});
    m_pTable->dropRow(0);
    m_pTable->dropRow(0);
    pBox->stepUp();
    QCOMPARE(m_pTable->takeWrites(), QStringList{QStringLiteral("0,0 2 QVariant(double, 3.5)")});
}

void tst_StyledItemDelegate::theWritingEndsWithTheCell()
{
    Answers answers = cellOf(7);
    answers[273] = 1.0;
    answers[274] = quint64(3);
    m_pTable->answer(1, 0, answers);
    m_pTable->answer(2, 0, cellOf(7));
    auto* const pBox = openedEditor<CDSpinBox>(1, 0);
    m_pTable->takeWrites();

    m_pTable->dropRow(1);
    pBox->stepUp();
    m_pTable->change(1, 0, 273, 9.0);
    pBox->stepUp();
    QCOMPARE(m_pTable->takeWrites(), QStringList());
    QCOMPARE(m_pTable->value(1, 0), QVariant(1.5));
    QCOMPARE(pBox->value(), 3.5);

    // Not even when the model is emptied, or reset.
    while (m_pTable->rowCount() > 0)
        m_pTable->dropRow(0);
    pBox->stepUp();
    m_pTable->reset();
    pBox->stepUp();
    QCOMPARE(m_pTable->takeWrites(), QStringList());
}

void tst_StyledItemDelegate::theWritingGoesThroughAProxy()
{
    Answers answers = cellOf(7);
    answers[273] = 1.0;
    answers[274] = quint64(3);
    m_pTable->answer(3, 0, answers);
    QSortFilterProxyModel sorted;
    sorted.setSourceModel(m_pTable.data());
    const QModelIndex index = sorted.mapFromSource(m_pTable->at(3, 0));
    auto* const pBox = qobject_cast<CDSpinBox*>(createEditor(m_delegate, index));
    QVERIFY(pBox);
    m_delegate.setEditorData(pBox, index);
    m_pTable->takeWrites();
    pBox->stepUp();
    QCOMPARE(m_pTable->takeWrites(), QStringList{QStringLiteral("3,0 2 QVariant(double, 2.5)")});
    m_pTable->change(3, 0, 273, 0.125);
    QCOMPARE(pBox->singleStep(), 0.125);
}

void tst_StyledItemDelegate::theStepIsReadAgainWhenTheCellIsReportedChanged_data()
{
    QTest::addColumn<QRect>("range"); // columns and rows; the cell is in column 1, row 2
    QTest::addColumn<bool>("expected");
    QTest::newRow("the cell") << QRect(1, 2, 1, 1) << true;
    QTest::newRow("the whole table") << QRect(0, 0, 3, 4) << true;
    QTest::newRow("its row") << QRect(0, 2, 3, 1) << true;
    QTest::newRow("its column") << QRect(1, 0, 1, 4) << true;
    QTest::newRow("from the cell on") << QRect(1, 2, 2, 2) << true;
    QTest::newRow("up to the cell") << QRect(0, 0, 2, 3) << true;
    QTest::newRow("the row above") << QRect(0, 1, 3, 1) << false;
    QTest::newRow("the row below") << QRect(0, 3, 3, 1) << false;
    QTest::newRow("the column before") << QRect(0, 0, 1, 4) << false;
    QTest::newRow("the column behind") << QRect(2, 0, 1, 4) << false;
    QTest::newRow("the neighbour") << QRect(0, 2, 1, 1) << false;
    QTest::newRow("above and before") << QRect(0, 0, 1, 2) << false;
}

void tst_StyledItemDelegate::theStepIsReadAgainWhenTheCellIsReportedChanged()
{
    QFETCH(QRect, range);
    QFETCH(bool, expected);
    Answers answers = cellOf(7);
    answers[273] = 0.5;
    answers[274] = quint64(2);
    m_pTable->answer(2, 1, answers);
    auto* const pBox = openedEditor<CDSpinBox>(2, 1);
    QVERIFY(pBox);
    QCOMPARE(pBox->singleStep(), 0.5);

    m_pTable->cell(2, 1).answers[273] = 0.75;
    QCOMPARE(pBox->singleStep(), 0.5); // nobody was told
    const QModelIndex topLeft = m_pTable->at(range.top(), range.left());
    const QModelIndex bottomRight = m_pTable->at(range.bottom(), range.right());
    Q_EMIT m_pTable->dataChanged(topLeft, bottomRight, {Qt::DisplayRole}); // whatever the roles
    QCOMPARE(pBox->singleStep(), expected ? 0.75 : 0.5);
    QCOMPARE(pBox->value(), 1.5);

    m_pTable->cell(2, 1).answers[273] = 0.125;
    Q_EMIT m_pTable->dataChanged(topLeft, bottomRight);
    QCOMPARE(pBox->singleStep(), expected ? 0.125 : 0.5);
    QCOMPARE(m_pTable->takeWrites(), QStringList());
}

void tst_StyledItemDelegate::aRangeFromBottomToTopHoldsNoCell()
{
    m_pTester.reset(); // it rightly objects
    Answers answers = cellOf(7);
    answers[273] = 0.5;
    answers[274] = quint64(2);
    m_pTable->answer(2, 1, answers);
    auto* const pBox = openedEditor<CDSpinBox>(2, 1);
    m_pTable->cell(2, 1).answers[273] = 0.75;
    Q_EMIT m_pTable->dataChanged(m_pTable->at(3, 2), m_pTable->at(0, 0));
    QCOMPARE(pBox->singleStep(), 0.5);
}

void tst_StyledItemDelegate::theStepOfATreesCellFollowsItsOwnBranchAlone()
{
    CellTree tree(3, 2);
    QScopedPointer<QAbstractItemModelTester> pTester(
        new QAbstractItemModelTester(&tree, QAbstractItemModelTester::FailureReportingMode::Fatal));
    Answers answers = cellOf(7);
    answers[273] = 0.5;
    answers[274] = quint64(2);
    tree.answer(1, 1, answers);
    const QModelIndex index = tree.at(1, 1);
    auto* const pBox = qobject_cast<CDSpinBox*>(createEditor(m_delegate, index));
    QVERIFY(pBox);
    tree.cell(1, 1).answers[273] = 0.75;

    const QModelIndex other = tree.branch(0);
    Q_EMIT tree.dataChanged(tree.index(0, 0, other), tree.index(2, 1, other)); // the same places of another branch
    Q_EMIT tree.dataChanged(tree.branch(0), tree.branch(1, 1));                // the branches themselves
    QCOMPARE(pBox->singleStep(), 0.5);
    pTester.reset(); // it rightly objects to ranges across branches
    Q_EMIT tree.dataChanged(tree.at(0, 0), tree.index(2, 1, other));
    Q_EMIT tree.dataChanged(tree.index(0, 0, other), tree.at(2, 1));
    Q_EMIT tree.dataChanged(QModelIndex(), QModelIndex());
    QCOMPARE(pBox->singleStep(), 0.5);
    Q_EMIT tree.dataChanged(tree.at(0, 0), tree.at(2, 1));
    QCOMPARE(pBox->singleStep(), 0.75);
}

void tst_StyledItemDelegate::theStepIsNotReadAgainUnlessToldSo()
{
    for (const quint64 nOptions : {quint64(0), quint64(1), quint64(4), ~quint64(2)}) {
        Answers answers = cellOf(7);
        answers[273] = 0.5;
        answers[274] = nOptions;
        m_pTable->answer(0, 0, answers);
        auto* const pBox = openedEditor<CDSpinBox>(0, 0);
        m_pTable->change(0, 0, 273, 0.75);
        QCOMPARE(pBox->singleStep(), 0.5);
        delete pBox;
    }
}

void tst_StyledItemDelegate::theStepThatIsGoneBecomesZero()
{
    Answers answers = cellOf(7);
    answers[274] = quint64(2);
    m_pTable->answer(0, 0, answers);
    auto* const pBox = openedEditor<CDSpinBox>(0, 0);
    QCOMPARE(pBox->singleStep(), 1.0);
    m_pTable->change(0, 0, Qt::EditRole, 2.0);
    QCOMPARE(pBox->singleStep(), 0.0);
}

void tst_StyledItemDelegate::followingTheStepEndsWithTheEditor()
{
    Answers answers = cellOf(7);
    answers[274] = quint64(2);
    m_pTable->answer(0, 0, answers);
    delete openedEditor<CDSpinBox>(0, 0);
    m_pTable->change(0, 0, 273, 0.75);
    QCOMPARE(m_pTable->at(0, 0).data(273).toDouble(), 0.75);
}

void tst_StyledItemDelegate::bothOptionsWorkTogetherInAView()
{
    Answers answers = cellOf(7);
    answers[273] = 0.5;
    answers[274] = quint64(3);
    m_pTable->answer(1, 1, answers);
    showView();
    auto* const pBox = qobject_cast<CDSpinBox*>(editInView(1, 1));
    QVERIFY(pBox);
    m_pTable->takeWrites();
    QTest::keyClick(pBox, Qt::Key_Up);
    QTest::keyClick(pBox, Qt::Key_Up);
    QCOMPARE(m_pTable->takeWrites(),
             (QStringList{QStringLiteral("1,1 2 QVariant(double, 2)"), QStringLiteral("1,1 2 QVariant(double, 2.5)")}));
    m_pTable->change(1, 1, 273, 0.25);
    QTest::keyClick(pBox, Qt::Key_Up);
    m_pTable->change(1, 0, 273, 9.0);
    m_pTable->change(2, 1, 273, 9.0);
    QTest::keyClick(pBox, Qt::Key_Up);
    QCOMPARE(m_pTable->takeWrites(), (QStringList{QStringLiteral("1,1 2 QVariant(double, 2.75)"),
                                                  QStringLiteral("1,1 2 QVariant(double, 3)")}));
    commitAndClose(pBox);
    QCOMPARE(m_pTable->takeWrites(), QStringList{QStringLiteral("1,1 2 QVariant(double, 3)")});
}

// Painting

void tst_StyledItemDelegate::aPictureIsFittedAndCentred_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QRect>("cell");
    QTest::addColumn<QRect>("expected");
    const auto row = [](const char* file, const QRect& cell, const QRect& expected) {
        QTest::addRow("%s in %d x %d", file, cell.width(), cell.height()) << picture(file) << cell << expected;
    };
    row("red", QRect(0, 0, 100, 20), QRect(40, 0, 20, 20));
    row("red", QRect(5, 7, 100, 20), QRect(45, 7, 20, 20));
    row("red", QRect(0, 0, 20, 50), QRect(0, 15, 20, 20));
    row("red", QRect(3, 4, 24, 24), QRect(3, 4, 24, 24));
    row("red", QRect(0, 0, 4, 4), QRect(0, 0, 4, 4));
    row("shifted", QRect(0, 0, 100, 20), QRect(40, 0, 20, 20));
    row("wide", QRect(0, 0, 100, 30), QRect(20, 0, 60, 30));
    row("wide", QRect(0, 0, 40, 40), QRect(0, 10, 40, 20));
    row("tall", QRect(0, 0, 100, 40), QRect(40, 0, 20, 40));
    row("tall", QRect(0, 0, 16, 50), QRect(0, 9, 16, 32));
    row("fraction", QRect(0, 0, 100, 20), QRect(30, 0, 40, 20));
    // Margins lose their fraction, so the picture is wider than its share: 40.5, 6.5 and 25.25 here.
    row("red", QRect(0, 0, 101, 20), QRect(40, 0, 21, 20));
    row("red", QRect(2, 3, 20, 33), QRect(2, 9, 20, 21));
    row("three_to_two", QRect(0, 0, 100, 33), QRect(25, 0, 50, 33));
}

void tst_StyledItemDelegate::aPictureIsFittedAndCentred()
{
    QFETCH(QString, file);
    QFETCH(QRect, cell);
    QFETCH(QRect, expected);
    m_pTable->answer(0, 0, {{Qt::UserRole, 3}, {Qt::EditRole, true}, {258, QStringList{file, picture("blue")}}});
    m_option.rect = cell;
    const QImage image = paintedCell(m_delegate, m_option, m_pTable->at(0, 0));
    QCOMPARE(paintedRect(image), expected);
    QVERIFY(isFilled(image, expected, qRgb(0xFF, 0, 0)));
}

void tst_StyledItemDelegate::thePictureFollowsFromValueAndFlags_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("disabled");
    QTest::addColumn<QVariant>("pictures");
    QTest::addColumn<QVariant>("disabledPictures");
    QTest::addColumn<QRgb>("expected");
    const QRgb nRed = qRgb(255, 0, 0);
    const QRgb nBlue = qRgb(0, 0, 255);
    const QRgb nGreen = qRgb(0, 255, 0);
    const QRgb nGray = qRgb(128, 128, 128);
    const QVariant pair = pictures("red", "blue");
    const QVariant disabledPair = pictures("green", "gray");
    QTest::newRow("true") << QVariant(true) << false << pair << QVariant() << nRed;
    QTest::newRow("false") << QVariant(false) << false << pair << QVariant() << nBlue;
    QTest::newRow("nothing is false") << QVariant() << false << pair << QVariant() << nBlue;
    QTest::newRow("a number is true") << QVariant(7) << false << pair << QVariant() << nRed;
    QTest::newRow("enabled, true") << QVariant(true) << false << pair << disabledPair << nRed;
    QTest::newRow("enabled, false") << QVariant(false) << false << pair << disabledPair << nBlue;
    QTest::newRow("disabled, true") << QVariant(true) << true << pair << disabledPair << nGreen;
    QTest::newRow("disabled, false") << QVariant(false) << true << pair << disabledPair << nGray;
    QTest::newRow("disabled, true, no own") << QVariant(true) << true << pair << QVariant() << nRed;
    QTest::newRow("disabled, false, no own") << QVariant(false) << true << pair << QVariant() << nBlue;
    QTest::newRow("disabled, only own") << QVariant(true) << true << QVariant() << disabledPair << nGreen;
    QTest::newRow("disabled, own but empty")
        << QVariant(true) << true << pair << QVariant(QStringList()) << c_nBackground;
}

void tst_StyledItemDelegate::thePictureFollowsFromValueAndFlags()
{
    QFETCH(QVariant, value);
    QFETCH(bool, disabled);
    QFETCH(QVariant, pictures);
    QFETCH(QVariant, disabledPictures);
    QFETCH(QRgb, expected);
    m_pTable->answer(0, 0, {{Qt::UserRole, 3}, {Qt::EditRole, value}});
    if (pictures.isValid())
        m_pTable->cell(0, 0).answers[258] = pictures;
    if (disabledPictures.isValid())
        m_pTable->cell(0, 0).answers[259] = disabledPictures;
    m_pTable->cell(0, 0).disabled = disabled;
    m_option.rect = QRect(10, 10, 20, 20);
    // The cell's flags decide, not the state of the option.
    for (const QStyle::State& state : {QStyle::State(QStyle::State_Enabled), QStyle::State(QStyle::State_None)}) {
        m_option.state = state;
        const QImage image = paintedCell(m_delegate, m_option, m_pTable->at(0, 0));
        QVERIFY(isFilled(image, m_option.rect, expected));
    }
}

void tst_StyledItemDelegate::aPictureThatCannotBeDrawnLeavesTheCellEmpty_data()
{
    QTest::addColumn<QVariant>("pictures");
    QTest::addColumn<QRect>("cell");
    const QRect cell(10, 10, 40, 20);
    QTest::newRow("no list") << QVariant() << cell;
    QTest::newRow("an empty list") << QVariant(QStringList()) << cell;
    QTest::newRow("one picture, for true only") << QVariant(QStringList{picture("red")}) << cell;
    QTest::newRow("no such file") << QVariant(QStringList{picture("red"), picture("missing")}) << cell;
    QTest::newRow("no picture in the file") << QVariant(QStringList{picture("red"), picture("broken")}) << cell;
    QTest::newRow("no name") << QVariant(QStringList{picture("red"), QString()}) << cell;
    QTest::newRow("a cell without size") << QVariant(QStringList{picture("red"), picture("blue")})
                                         << QRect(10, 10, 0, 0);
    QTest::newRow("a cell without height")
        << QVariant(QStringList{picture("red"), picture("blue")}) << QRect(10, 10, 20, 0);
}

void tst_StyledItemDelegate::aPictureThatCannotBeDrawnLeavesTheCellEmpty()
{
    QFETCH(QVariant, pictures);
    QFETCH(QRect, cell);
    m_pTable->answer(0, 0, {{Qt::UserRole, 3}, {Qt::EditRole, false}});
    if (pictures.isValid())
        m_pTable->cell(0, 0).answers[258] = pictures;
    m_option.rect = cell;

    // What Qt itself says about such a file is all that is said.
    TestSupport::MessageRecorder recorder;
    const QStringList paths = pictures.toStringList();
    if (paths.size() == 2)
        QSvgRenderer(paths.at(1));
    const QStringList qtsWords = recorder.take();

    const QImage image = paintedCell(m_delegate, m_option, m_pTable->at(0, 0));
    QCOMPARE(paintedRect(image), QRect());
    QCOMPARE(recorder.take(), qtsWords);
}

void tst_StyledItemDelegate::nothingIsDrawnButThePicture()
{
    m_pTable->answer(0, 0, cellOf(3));
    Answers& answers = m_pTable->cell(0, 0).answers;
    answers[Qt::BackgroundRole] = QColor(Qt::yellow);
    answers[Qt::DisplayRole] = QStringLiteral("text");
    answers[Qt::DecorationRole] = QColor(Qt::cyan);
    answers[Qt::CheckStateRole] = int(Qt::Checked);
    m_option.rect = QRect(0, 0, 100, 20);
    m_option.state = QStyle::State_Enabled | QStyle::State_Active | QStyle::State_Selected | QStyle::State_HasFocus |
                     QStyle::State_MouseOver | QStyle::State_KeyboardFocusChange;
    m_option.showDecorationSelected = true;
    m_option.backgroundBrush = Qt::yellow;
    const QImage image = paintedCell(m_delegate, m_option, m_pTable->at(0, 0));
    QVERIFY(isFilled(image, QRect(40, 0, 20, 20), qRgb(255, 0, 0)));
}

void tst_StyledItemDelegate::aPictureFileIsReadEveryTime()
{
    QTemporaryDir folder;
    QVERIFY(folder.isValid());
    const QString sPath = folder.filePath(QStringLiteral("changing.svg"));
    m_pTable->answer(0, 0, {{Qt::UserRole, 3}, {Qt::EditRole, true}, {258, QStringList{sPath, sPath}}});
    m_option.rect = QRect(0, 0, 20, 20);
    const QList<QPair<QString, QRgb>> contents{{picture("red"), qRgb(255, 0, 0)}, {picture("blue"), qRgb(0, 0, 255)}};
    for (const auto& content : contents) {
        QFile::remove(sPath);
        QVERIFY(QFile::copy(content.first, sPath));
        QVERIFY(QFile::setPermissions(sPath, QFile::ReadOwner | QFile::WriteOwner));
        const QImage image = paintedCell(m_delegate, m_option, m_pTable->at(0, 0));
        QVERIFY(isFilled(image, m_option.rect, content.second));
    }
}

void tst_StyledItemDelegate::allOtherKindsArePaintedAsByQtsDelegate_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("state");
    for (const int nKind : {0, 1, 2, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, -1}) {
        QTest::addRow("%d", nKind) << nKind << int(QStyle::State_Enabled | QStyle::State_Active);
        QTest::addRow("%d, selected", nKind)
            << nKind
            << int(QStyle::State_Enabled | QStyle::State_Active | QStyle::State_Selected | QStyle::State_HasFocus);
        QTest::addRow("%d, disabled", nKind) << nKind << 0;
    }
}

void tst_StyledItemDelegate::allOtherKindsArePaintedAsByQtsDelegate()
{
    QFETCH(int, kind);
    QFETCH(int, state);
    m_pTable->answer(0, 0, cellOf(kind));
    m_pTable->cell(0, 0).answers[258] = pictures("red", "blue"); // means nothing here
    m_option.state = QStyle::State(state);
    const QImage ours = paintedCell(m_delegate, m_option, m_pTable->at(0, 0));
    QCOMPARE(ours, paintedCell(m_qtDelegate, m_option, m_pTable->at(0, 0)));
    QVERIFY(!paintedRect(ours).isNull());
}

void tst_StyledItemDelegate::theSizeHintIsThatOfQtsDelegate_data()
{
    QTest::addColumn<int>("kind");
    for (int nKind = -1; nKind <= 13; ++nKind)
        QTest::addRow("%d", nKind) << nKind;
}

void tst_StyledItemDelegate::theSizeHintIsThatOfQtsDelegate()
{
    QFETCH(int, kind);
    m_pTable->answer(0, 0, cellOf(kind));
    const QModelIndex index = m_pTable->at(0, 0);
    QCOMPARE(m_delegate.sizeHint(m_option, index), m_qtDelegate.sizeHint(m_option, index));
    m_pTable->cell(0, 0).answers[Qt::SizeHintRole] = QSize(123, 45);
    QCOMPARE(m_delegate.sizeHint(m_option, index), QSize(123, 45));
}

// In a view

void tst_StyledItemDelegate::aViewOpensAComboBoxWithItsList_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVariant>("chosen");
    QTest::newRow("4") << 4 << QStringLiteral("two") << QVariant(2);
    QTest::newRow("5") << 5 << QStringLiteral("two") << QVariant(30);
}

void tst_StyledItemDelegate::aViewOpensAComboBoxWithItsList()
{
    QFETCH(int, kind);
    QFETCH(QString, text);
    QFETCH(QVariant, chosen);
    m_pTable->answer(1, 1, cellOf(kind));
    m_pTable->cell(1, 1).answers[Qt::EditRole] = kind == 4 ? 1 : 20;
    showView();
    QPointer<QComboBox> pCombo = qobject_cast<QComboBox*>(editInView(1, 1));
    QVERIFY(pCombo);
    QVERIFY(pCombo->isVisible());
    QVERIFY(pCombo->view()->isVisible());
    QCOMPARE(pCombo->currentText(), text);

    QTest::keyClick(pCombo->view(), Qt::Key_End);
    QTest::keyClick(pCombo->view(), Qt::Key_Return);
    QVERIFY(!pCombo->view()->isVisible());
    commitAndClose(pCombo);
    QCOMPARE(m_pTable->takeWrites(), QStringList{QStringLiteral("1,1 2 ") + spelled(chosen)});
    QTRY_VERIFY(!pCombo);
}

void tst_StyledItemDelegate::theListOfAViewsComboBoxStandsOnTheValue_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("4") << 4;
    QTest::newRow("5") << 5;
}

void tst_StyledItemDelegate::theListOfAViewsComboBoxStandsOnTheValue()
{
    QFETCH(int, kind);
    m_pTable->answer(1, 1, cellOf(kind));
    const QVariant value = m_pTable->value(1, 1);
    showView();
    QPointer<QComboBox> pCombo = qobject_cast<QComboBox*>(editInView(1, 1));
    QVERIFY(pCombo);
    QVERIFY(pCombo->view()->isVisible());
    QTest::keyClick(pCombo->view(), Qt::Key_Return); // what is shown is what is taken
    QVERIFY(!pCombo->view()->isVisible());
    commitAndClose(pCombo);
    QCOMPARE(m_pTable->takeWrites(), QStringList{QStringLiteral("1,1 2 ") + spelled(value)});
}

void tst_StyledItemDelegate::anUntouchedEditorLeavesTheValueAsItIs_data()
{
    QTest::addColumn<Answers>("answers");
    QTest::addColumn<bool>("useEnter");

    const auto row = [](const QByteArray& name, Answers answers, const QVariant& value, bool enter = true) {
        answers[Qt::EditRole] = value;
        QTest::newRow((name + ", committed").constData()) << answers << false;
        if (enter)
            QTest::newRow((name + ", Enter").constData()) << answers << true;
    };
    row("0, a text", cellOf(0), QStringLiteral("text"));
    row("0, an empty text", cellOf(0), QStringLiteral(""));
    row("0, an int", cellOf(0), -5);
    row("0, the largest int", cellOf(0), std::numeric_limits<int>::max());
    row("0, a double", cellOf(0), 1.25);
    for (int nRow = 0; nRow < 3; ++nRow)
        row("4, row " + QByteArray::number(nRow), cellOf(4), nRow, false);
    for (const int nData : {10, 20, 30})
        row("5, int " + QByteArray::number(nData), cellOf(5), nData, false);
    Answers mixed = cellOf(5);
    const QVariantList data{QVariant::fromValue(quint32(0xFFFFFFFF)), QStringLiteral("id"), 0.1};
    mixed[262] = data;
    for (const QVariant& value : data)
        row(QByteArray("5, ") + value.typeName(), mixed, value, false);

    const auto doubleRow = [&row](const char* name, double fValue, const Answers& settings) {
        Answers answers = settings;
        answers[Qt::UserRole] = 7;
        row(QByteArray("7, ") + name, answers, fValue);
    };
    const double fMax = std::numeric_limits<double>::max();
    doubleRow("0", 0.0, {});
    doubleRow("99.99", 99.99, {});
    doubleRow("a negative", -12.34, {{269, -100.0}});
    doubleRow("17 digits", 0.1 + 0.2, {{271, 17}});
    doubleRow("the largest", fMax, {{269, -fMax}, {270, fMax}});
    doubleRow("the smallest", -fMax, {{269, -fMax}, {270, fMax}});
    doubleRow("an exponent", 1.25e-7, {{271, 9}, {272, QChar(QLatin1Char('e'))}});
    doubleRow("written at once", 12.5, {{274, quint64(3)}, {273, 0.5}});

    row("8, a text", cellOf(8), QStringLiteral("CAFE"));
    row("8, an empty text", cellOf(8), QStringLiteral(""));
    Answers free = cellOf(8);
    free.remove(275);
    row("8, blanks and signs", free, QStringLiteral("  ü %1 \u20ac "));
}

void tst_StyledItemDelegate::anUntouchedEditorLeavesTheValueAsItIs()
{
    QFETCH(Answers, answers);
    QFETCH(bool, useEnter);
    const QVariant value = answers.value(Qt::EditRole);
    m_pTable->answer(1, 1, answers);
    showView();
    QPointer<QWidget> pEditor = editInView(1, 1);
    QVERIFY(pEditor);
    if (useEnter)
        QTest::keyClick(pEditor, Qt::Key_Return);
    else
        commitAndClose(pEditor);
    QTRY_VERIFY(!pEditor);
    QVERIFY(!m_pTable->takeWrites().isEmpty());

    const QVariant result = m_pTable->value(1, 1);
    QCOMPARE(result.userType(), value.userType());
    QCOMPARE(result, value);
    if (value.userType() == QMetaType::Double)
        QVERIFY(sameBits(result.toDouble(), value.toDouble()));
}

void tst_StyledItemDelegate::anIntegerKeepsItsValueAndType_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("base");
    QTest::addColumn<QVariant>("minimum");
    QTest::addColumn<QVariant>("maximum");
    QTest::addColumn<QVariant>("value");

    const auto rows = [](int nType, auto zero) {
        using T = decltype(zero);
        const T aValues[] = {std::numeric_limits<T>::min(),
                             std::numeric_limits<T>::max(),
                             T(0),
                             T(1),
                             T(42),
                             static_cast<T>(std::numeric_limits<T>::max() / 2 + 1)};
        for (const int nBase : {2, 10, 16}) {
            for (const T value : aValues) {
                QTest::addRow("%d, base %d, %s", nType, nBase, std::to_string(value).c_str())
                    << nType << nBase << QVariant::fromValue(std::numeric_limits<T>::min())
                    << QVariant::fromValue(std::numeric_limits<T>::max()) << QVariant::fromValue(value);
            }
        }
    };
    using SChar = signed char;
    rows(-8, SChar(0));
    rows(-16, short(0));
    rows(-32, int(0));
    rows(-64, qlonglong(0));
    rows(8, uchar(0));
    rows(16, ushort(0));
    rows(32, uint(0));
    rows(64, qulonglong(0));
}

void tst_StyledItemDelegate::anIntegerKeepsItsValueAndType()
{
    QFETCH(int, type);
    QFETCH(int, base);
    QFETCH(QVariant, minimum);
    QFETCH(QVariant, maximum);
    QFETCH(QVariant, value);
    m_pTable->answer(
        1, 1, {{Qt::UserRole, 6}, {Qt::EditRole, value}, {263, type}, {264, minimum}, {265, maximum}, {268, base}});
    showView();
    for (const bool useEnter : {false, true}) {
        QPointer<QWidget> pEditor = editInView(1, 1);
        QVERIFY(pEditor);
        if (useEnter)
            QTest::keyClick(pEditor, Qt::Key_Return);
        else
            commitAndClose(pEditor);
        QTRY_VERIFY(!pEditor);
        QCOMPARE(m_pTable->takeWrites().size(), 1);
        const QVariant result = m_pTable->value(1, 1);
        QCOMPARE(result.userType(), value.userType());
        QCOMPARE(result, value);
    }
}

void tst_StyledItemDelegate::rowsThatComeAndGoTakeTheEditorAlong_data()
{
    editorKinds();
}

void tst_StyledItemDelegate::rowsThatComeAndGoTakeTheEditorAlong()
{
    QFETCH(int, kind);
    m_pTable->answer(1, 1, cellOf(kind));
    const QVariant value = m_pTable->value(1, 1);
    showView();
    QPointer<QWidget> pEditor = editInView(1, 1);
    QVERIFY(pEditor);
    m_pTable->addRow(0);
    m_pTable->addRow(3);
    m_pTable->dropRow(4);
    QVERIFY(pEditor);
    QCOMPARE(m_pView->indexWidget(m_pTable->at(2, 1)), pEditor.data());
    commitAndClose(pEditor);
    QCOMPARE(m_pTable->takeWrites(), QStringList{QStringLiteral("2,1 2 ") + spelled(value)});
    QVERIFY(CellModels::identical(m_pTable->value(2, 1), value));
}

void tst_StyledItemDelegate::aCellThatGoesTakesItsEditorWithIt_data()
{
    editorKinds();
}

void tst_StyledItemDelegate::aCellThatGoesTakesItsEditorWithIt()
{
    QFETCH(int, kind);
    m_pTable->answer(1, 1, cellOf(kind));
    m_pTable->answer(2, 1, cellOf(kind));
    if (kind == 7)
        m_pTable->cell(1, 1).answers[274] = quint64(3);
    const QVariant value = m_pTable->value(2, 1);
    showView();
    QPointer<QWidget> pEditor = editInView(1, 1);
    QVERIFY(pEditor);
    m_pTable->takeWrites();
    m_pTable->dropRow(1);
    if (pEditor) { // gone for the view, though its deletion may still be on the way
        QTest::keyClick(pEditor, Qt::Key_Up);
        QTest::keyClick(pEditor, Qt::Key_Return);
    }
    TestSupport::MessageRecorder log;
    if (pEditor)
        commitAndClose(pEditor);
    QTRY_VERIFY(!pEditor);
    // Qt 6 tells of an editor that is not the view's own any more.
    const QStringList said = log.take();
    QVERIFY(said.isEmpty() || QT_VERSION >= QT_VERSION_CHECK(6, 0, 0));
    for (const QString& line : said)
        QVERIFY2(line.endsWith(QLatin1String(" called with an editor that does not belong to this view")),
                 qPrintable(line));
    QCOMPARE(m_pTable->takeWrites(), QStringList());
    QVERIFY(CellModels::identical(m_pTable->value(1, 1), value));
}

void tst_StyledItemDelegate::aModelThatGoesTakesItsEditorWithIt_data()
{
    editorKinds();
}

void tst_StyledItemDelegate::aModelThatGoesTakesItsEditorWithIt()
{
    QFETCH(int, kind);
    m_pTable->answer(1, 1, cellOf(kind));
    if (kind == 7)
        m_pTable->cell(1, 1).answers[274] = quint64(3);
    showView();
    QPointer<QWidget> pEditor = editInView(1, 1);
    QVERIFY(pEditor);
    m_pTable->takeWrites();
    m_pTable->reset();
    QTRY_VERIFY(!pEditor);
    QCOMPARE(m_pTable->takeWrites(), QStringList());

    pEditor = editInView(1, 1);
    QVERIFY(pEditor);
    TestSupport::MessageRecorder log;
    m_pTester.reset();
    m_pTable.reset();
    if (pEditor)
        QTest::keyClick(pEditor, Qt::Key_Up);
    QTRY_VERIFY(!pEditor);
    // Qt's views reset themselves some time after their model has gone, and with that their selection.
    const QStringList lines = log.take();
    for (const QString& line : lines)
        QCOMPARE(line,
                 QStringLiteral("warning: QItemSelectionModel: Selecting when no model has been set will result in a "
                                "no-op."));
}

void tst_StyledItemDelegate::typingIntoACellEndToEnd()
{
    Answers answers = cellOf(6);
    answers[268] = 16;
    m_pTable->answer(1, 1, answers);
    showView();
    const QPoint pos = m_pView->visualRect(m_pTable->at(1, 1)).center();
    QTest::mouseClick(m_pView->viewport(), Qt::LeftButton, Qt::NoModifier, pos);
    QTest::mouseDClick(m_pView->viewport(), Qt::LeftButton, Qt::NoModifier, pos);
    QPointer<QWidget> pEditor = m_pView->indexWidget(m_pTable->at(1, 1));
    QVERIFY(qobject_cast<nsUI::CU16SpinBox*>(pEditor.data()));
    QTest::keyClicks(pEditor, QStringLiteral("beef"));
    QTest::keyClick(pEditor, Qt::Key_Return);
    QTRY_VERIFY(!pEditor);
    QCOMPARE(m_pTable->takeWrites(),
             QStringList{QStringLiteral("1,1 2 ") + spelled(QVariant::fromValue(ushort(0xBEEF)))});
    QCOMPARE(m_pTable->at(1, 1).data().toInt(), 0xBEEF);
}

TESSERA_TEST_MAIN(tst_StyledItemDelegate)
#include "tst_StyledItemDelegate.moc"
