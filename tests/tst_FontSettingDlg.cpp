// SPDX-License-Identifier: MIT
#include "ModalDriver.h"
#include "support/GlobalState.h"
#include "support/TestMain.h"

#include <CCommon.h>
#include <Tessera/Tessera.h>
#include <Tessera/widgets/FontSettingDlg.h>

#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFontComboBox>
#include <QGroupBox>
#include <QIcon>
#include <QLabel>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QScopedPointer>
#include <QSpinBox>
#include <QToolButton>
#include <QTranslator>
#include <QtTest>
#include <QVBoxLayout>

#include <optional>

using nsUI::FontSettingDlg;
using nsUI::tagAppFont;
using TestSupport::GlobalState;

namespace {

const QString sGroup = QStringLiteral("Setting_AppFont");
const QString sOne = QStringLiteral("Family One"); // two that no machine has
const QString sTwo = QStringLiteral("Family Two");

QSharedPointer<QSettings> store()
{
    return CCommon::instance().getSettings(QString());
}

//! The stored choice as one text; empty when nothing at all is stored.
QString stored()
{
    const QSharedPointer<QSettings> pSettings = store();
    QStringList texts;
    QStringList keys = pSettings->allKeys();
    keys.sort();
    for (const QString& sKey : qAsConst(keys)) {
        const QVariant value = pSettings->value(sKey);
        const bool bList = value.userType() == QMetaType::QStringList;
        texts << sKey + QLatin1Char('=') + (bList ? value.toStringList().join(QLatin1Char(',')) : value.toString());
    }
    return texts.join(QLatin1Char(';'));
}

QString choice(const QString& sFamilies, int nSize, bool bBold, bool bItalic)
{
    return QStringLiteral("Setting_AppFont/Bold=%1;Setting_AppFont/Familys=%2;Setting_AppFont/Italic=%3;"
                          "Setting_AppFont/PointSize=%4")
        .arg(QVariant(bBold).toString(), sFamilies, QVariant(bItalic).toString(), QString::number(nSize));
}

void put(const QStringList& families, int nSize, bool bBold, bool bItalic)
{
    tagAppFont font;
    font.families = families;
    font.pointSize = nSize;
    font.bold = bBold;
    font.italic = bItalic;
    font.writeSettings(store(), sGroup);
}

QString rule(const QStringList& families, int nSize, bool bBold, bool bItalic)
{
    tagAppFont font;
    font.families = families;
    font.pointSize = nSize;
    font.bold = bBold;
    font.italic = bItalic;
    return font.toStyleSheet();
}

//! What a user sees of the dialog, by the names that a host's style sheet knows.
struct Parts
{
    explicit Parts(const QDialog& dialog)
        : pFont(dialog.findChild<QFontComboBox*>(QStringLiteral("pCbxFont")))
        , pAdd(dialog.findChild<QToolButton*>(QStringLiteral("pBtnAdd")))
        , pDel(dialog.findChild<QToolButton*>(QStringLiteral("pBtnDel")))
        , pList(dialog.findChild<QListWidget*>(QStringLiteral("pListWdgFont")))
        , pLabel(dialog.findChild<QLabel*>(QStringLiteral("label")))
        , pSize(dialog.findChild<QSpinBox*>(QStringLiteral("pISpxSize")))
        , pItalic(dialog.findChild<QCheckBox*>(QStringLiteral("pCkxItalic")))
        , pBold(dialog.findChild<QCheckBox*>(QStringLiteral("pCkxBold")))
        , pBox(dialog.findChild<QDialogButtonBox*>(QStringLiteral("buttonBox")))
        , pExamples(dialog.findChild<QGroupBox*>(QStringLiteral("pGrxExamples")))
        , pExample(pExamples->findChild<QLabel*>())
    {
    }

    QStringList families() const
    {
        QStringList texts;
        for (int i = 0; i < pList->count(); ++i)
            texts << pList->item(i)->text();
        return texts;
    }

    //! Chooses a family in the combo box, as a user does on whose machine it is installed.
    void pick(const QString& sFamily) const
    {
        if (pFont->findText(sFamily) < 0)
            pFont->addItem(sFamily);
        pFont->setCurrentIndex(pFont->findText(sFamily));
        QCOMPARE(pFont->currentFont().family(), sFamily);
    }

    void add(const QString& sFamily) const
    {
        pick(sFamily);
        QTest::mouseClick(pAdd, Qt::LeftButton);
    }
    void del() const { QTest::mouseClick(pDel, Qt::LeftButton); }
    void press(QDialogButtonBox::StandardButton which) const { QTest::mouseClick(pBox->button(which), Qt::LeftButton); }

    QFontComboBox* pFont;
    QToolButton* pAdd;
    QToolButton* pDel;
    QListWidget* pList;
    QLabel* pLabel;
    QSpinBox* pSize;
    QCheckBox* pItalic;
    QCheckBox* pBold;
    QDialogButtonBox* pBox;
    QGroupBox* pExamples;
    QLabel* pExample;
};

QColor colorOf(const QIcon& icon)
{
    return icon.pixmap(8, 8).toImage().pixelColor(4, 4);
}

//! Answers every text with its context, so that one can tell which catalogue entry it is.
class ContextTranslator : public QTranslator
{
public:
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        return QString::fromLatin1(context) + QLatin1Char('|') + QString::fromLatin1(text);
    }
    bool isEmpty() const override { return false; }
};

//! A row of the controls column that is a check box and the room beside it.
void compareSwitchRow(const QLayout* pRow, const QCheckBox* pSwitch)
{
    QCOMPARE(pRow->count(), 2);
    QCOMPARE(pRow->itemAt(0)->widget(), pSwitch);
    QSpacerItem* const pRoom = pRow->itemAt(1)->spacerItem();
    QVERIFY(pRoom);
    QCOMPARE(pRoom->sizeHint(), QSize(40, 20));
    QCOMPARE(pRoom->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(pRoom->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
}

} // namespace

class tst_FontSettingDlg : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFormerExampleIsHiddenAtOnce();
    void initTestCase();
    void init();
    void cleanup();

    // Building
    void itDeclaresNothing();
    void itsObjectsHaveTheirNames();
    void itsControlsComeInOrder();
    void theControlsStandBesideTheExample();
    void theColumnHoldsTheControlsInOrder();
    void whatTheControlsAre();
    void theSwitchesAreMarkedForStyleSheets();
    void theWindowHasItsSizeIconAndButtons();
    void theExampleStandsInItsGroup();
    void itsTextsAreEnglish_data();
    void itsTextsAreEnglish();
    void itsTextsAreChineseWithTheCatalogue();
    void itsTextsHaveTwoContexts();
    void aDialogBelongsToItsParent();

    // What it starts with
    void withoutAChoiceItStartsWithTheDefaults();
    void theStoredChoiceIsShown_data();
    void theStoredChoiceIsShown();
    void theFontInEffectIsNoChoice();
    void missingKeysKeepTheDefaults();
    void theComboBoxShowsTheFirstFamily();
    void withoutFamiliesTheComboBoxShowsItsOwnFont();
    void storedDuplicatesAreDropped();
    void buildingItStoresNothing();

    // The list
    void aFamilyIsAddedAtTheTop();
    void aFamilyThatIsThereMovesToTheTop();
    void onlyTheSameSpellingIsADuplicate();
    void withoutAPickTheApplicationsFamilyIsAdded();
    void pickingAFamilyAloneChangesNothing();
    void theCurrentFamilyIsRemoved();
    void theLastFamilyIsRemovedWhileNoneIsCurrent();
    void theMinusButtonNeedsAFamily();
    void deletingFromAnEmptyListDoesNothing();

    // The example
    void theExampleFollowsEveryChoice();
    void theExampleLooksLikeTheChoice();
    void aSizeStaysFromOneToNinetyNine();
    void aSwitchCountsWhenItIsClicked();
    void duplicatesAreDroppedWithTheNextChange();

    // Storing
    void okStoresAllFourValues_data();
    void okStoresAllFourValues();
    void okStoresWhatWasEdited();
    void okStoresBeforeItAccepts();
    void okStoresWhatTheExampleShows();
    void okStoresAnEmptyList();
    void okLeavesTheApplicationAsItIs();
    void nothingButOkStores_data();
    void nothingButOkStores();
    void aCancelledDialogKeepsWhatWasEdited();

    // A host's example
    void aHostsExampleTakesTheLabelsPlace();
    void theFormerExampleIsDeletedLater();
    void aHostsExampleFollowsEveryChoice();
    void aHostsExampleIsReplacedToo();
    void aNullExampleIsIgnored();
    void aHostMayDeleteItsExample();

private:
    void make()
    {
        m_pDialog.reset(new FontSettingDlg);
        m_p.reset(new Parts(*m_pDialog));
    }
    void make(const QStringList& families, int nSize = 12, bool bBold = false, bool bItalic = false)
    {
        put(families, nSize, bBold, bItalic);
        make();
    }
    void show()
    {
        m_pDialog->show();
        QVERIFY(QTest::qWaitForWindowActive(m_pDialog.data()));
    }

    std::optional<GlobalState> m_global;
    QScopedPointer<FontSettingDlg> m_pDialog;
    QScopedPointer<Parts> m_p;
};

void tst_FontSettingDlg::initTestCase()
{
    nsUI::TesseraGlobal::instance();
}

void tst_FontSettingDlg::init()
{
    m_global.emplace();
    make();
}

void tst_FontSettingDlg::cleanup()
{
    m_p.reset();
    m_pDialog.reset();
    m_global.reset();
}

void tst_FontSettingDlg::itDeclaresNothing()
{
    const QMetaObject& meta = FontSettingDlg::staticMetaObject;
    QCOMPARE(meta.className(), "nsUI::FontSettingDlg");
    QCOMPARE(meta.superClass(), &QDialog::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.enumeratorCount(), meta.enumeratorOffset());
}

void tst_FontSettingDlg::itsObjectsHaveTheirNames()
{
    QCOMPARE(m_pDialog->objectName(), QStringLiteral("FontSettingDlg"));
    QVERIFY(m_p->pFont && m_p->pAdd && m_p->pDel && m_p->pList && m_p->pLabel && m_p->pSize);
    QVERIFY(m_p->pItalic && m_p->pBold && m_p->pBox && m_p->pExamples && m_p->pExample);
    QVERIFY(m_pDialog->findChild<QVBoxLayout*>(QStringLiteral("verticalLayout")));
    for (const char* const name :
         {"horizontalLayout", "horizontalLayout_2", "horizontalLayout_3", "horizontalLayout_4", "horizontalLayout_5"})
        QVERIFY2(m_pDialog->findChild<QHBoxLayout*>(QLatin1String(name)), name);
}

void tst_FontSettingDlg::itsControlsComeInOrder()
{
    QStringList names;
    for (QObject* const pChild : m_pDialog->children()) {
        if (pChild->isWidgetType())
            names << pChild->objectName();
    }
    QCOMPARE(names, (QStringList{QStringLiteral("pCbxFont"), QStringLiteral("pBtnAdd"), QStringLiteral("pBtnDel"),
                                 QStringLiteral("pListWdgFont"), QStringLiteral("label"), QStringLiteral("pISpxSize"),
                                 QStringLiteral("pCkxItalic"), QStringLiteral("pCkxBold"), QStringLiteral("buttonBox"),
                                 QStringLiteral("pGrxExamples")}));
}

void tst_FontSettingDlg::theControlsStandBesideTheExample()
{
    auto* const pLayout = qobject_cast<QHBoxLayout*>(m_pDialog->layout());
    QVERIFY(pLayout);
    QCOMPARE(pLayout->objectName(), QStringLiteral("horizontalLayout_5"));
    QCOMPARE(pLayout->count(), 2);
    QVERIFY(pLayout->itemAt(0)->layout());
    QCOMPARE(pLayout->itemAt(0)->layout()->objectName(), QStringLiteral("verticalLayout"));
    QCOMPARE(pLayout->itemAt(1)->widget(), m_p->pExamples);
    QCOMPARE(pLayout->stretch(0), 1);
    QCOMPARE(pLayout->stretch(1), 100);
}

void tst_FontSettingDlg::theColumnHoldsTheControlsInOrder()
{
    auto* const pColumn = m_pDialog->findChild<QVBoxLayout*>(QStringLiteral("verticalLayout"));
    QCOMPARE(pColumn->count(), 7);
    const QStringList names{QStringLiteral("horizontalLayout"),
                            QString(),
                            QStringLiteral("horizontalLayout_3"),
                            QStringLiteral("horizontalLayout_2"),
                            QStringLiteral("horizontalLayout_4"),
                            QString(),
                            QString()};
    QList<QLayout*> rows;
    for (int i = 0; i < 7; ++i) {
        rows << pColumn->itemAt(i)->layout();
        QCOMPARE(rows.last() ? rows.last()->objectName() : QString(), names.at(i));
    }

    QCOMPARE(rows.at(0)->count(), 3);
    QCOMPARE(rows.at(0)->itemAt(0)->widget(), m_p->pFont);
    QCOMPARE(rows.at(0)->itemAt(1)->widget(), m_p->pAdd);
    QCOMPARE(rows.at(0)->itemAt(2)->widget(), m_p->pDel);
    QCOMPARE(pColumn->itemAt(1)->widget(), m_p->pList);
    QCOMPARE(rows.at(2)->count(), 2);
    QCOMPARE(rows.at(2)->itemAt(0)->widget(), m_p->pLabel);
    QCOMPARE(rows.at(2)->itemAt(1)->widget(), m_p->pSize);
    compareSwitchRow(rows.at(3), m_p->pItalic);
    compareSwitchRow(rows.at(4), m_p->pBold);
    QSpacerItem* const pRoom = pColumn->itemAt(5)->spacerItem();
    QVERIFY(pRoom);
    QCOMPARE(pRoom->sizeHint(), QSize(20, 40));
    QCOMPARE(pRoom->sizePolicy().horizontalPolicy(), QSizePolicy::Minimum);
    QCOMPARE(pRoom->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(pColumn->itemAt(6)->widget(), m_p->pBox);
}

void tst_FontSettingDlg::whatTheControlsAre()
{
    QCOMPARE(m_p->pAdd->text(), QString());
    QCOMPARE(m_p->pDel->text(), QString());
    QCOMPARE(colorOf(m_p->pAdd->icon()), QColor(0, 255, 0)); // plus.svg of the test's own resources
    QCOMPARE(colorOf(m_p->pDel->icon()), QColor(0, 0, 255)); // minus.svg
    QCOMPARE(m_p->pSize->minimum(), 1);
    QCOMPARE(m_p->pSize->maximum(), 99);
    QCOMPARE(m_p->pSize->singleStep(), 1);
    QCOMPARE(m_p->pBox->standardButtons(), QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
}

void tst_FontSettingDlg::theSwitchesAreMarkedForStyleSheets()
{
    for (const QCheckBox* const pSwitch : {m_p->pBold, m_p->pItalic}) {
        QCOMPARE(pSwitch->dynamicPropertyNames(), QList<QByteArray>{"qssIconName"});
        QCOMPARE(pSwitch->property("qssIconName"), QVariant(QStringLiteral("Switch")));
        QCOMPARE(pSwitch->layoutDirection(), Qt::RightToLeft);
    }
    QCOMPARE(m_p->pSize->layoutDirection(), Qt::LeftToRight);
}

void tst_FontSettingDlg::theWindowHasItsSizeIconAndButtons()
{
    QCOMPARE(m_pDialog->size(), QSize(625, 416));
    QCOMPARE(colorOf(m_pDialog->windowIcon()), QColor(255, 0, 0)); // text.svg
    const QDialog plain;
    Qt::WindowFlags expected = plain.windowFlags();
    expected &= ~Qt::WindowContextHelpButtonHint;
    expected &= ~Qt::WindowMaximizeButtonHint;
    QCOMPARE(m_pDialog->windowFlags(), expected);
    QVERIFY(m_pDialog->windowFlags() & Qt::WindowCloseButtonHint);
    QVERIFY(!m_pDialog->isVisible());
    QVERIFY(!m_pDialog->isModal());
}

void tst_FontSettingDlg::theExampleStandsInItsGroup()
{
    auto* const pLayout = qobject_cast<QVBoxLayout*>(m_p->pExamples->layout());
    QVERIFY(pLayout);
    QCOMPARE(pLayout->count(), 1);
    QCOMPARE(pLayout->itemAt(0)->widget(), m_p->pExample);
    QCOMPARE(m_p->pExample->parentWidget(), m_p->pExamples);
}

void tst_FontSettingDlg::itsTextsAreEnglish_data()
{
    QTest::addColumn<bool>("catalogue");
    QTest::newRow("without a catalogue") << false;
    QTest::newRow("with the English catalogue") << true;
}

void tst_FontSettingDlg::itsTextsAreEnglish()
{
    QFETCH(bool, catalogue);
    if (catalogue)
        QVERIFY(m_global->install(QStringLiteral(":/qm/Tessera_en.qm")));
    make();
    m_global->removeCatalogues();
    QCOMPARE(m_pDialog->windowTitle(), QStringLiteral("Font Settings"));
    QCOMPARE(m_p->pLabel->text(), QStringLiteral("Font Size:"));
    QCOMPARE(m_p->pItalic->text(), QStringLiteral("Italic"));
    QCOMPARE(m_p->pBold->text(), QStringLiteral("Bold"));
    QCOMPARE(m_p->pExamples->title(), QStringLiteral("Example"));
    QCOMPARE(m_p->pExample->text(), QStringLiteral("Example Text"));
}

void tst_FontSettingDlg::itsTextsAreChineseWithTheCatalogue()
{
    QVERIFY(m_global->install(QStringLiteral(":/qm/Tessera_zh_CN.qm")));
    make();
    m_global->removeCatalogues();
    QCOMPARE(m_pDialog->windowTitle(), QStringLiteral("字体设置"));
    QCOMPARE(m_p->pLabel->text(), QStringLiteral("字号："));
    QCOMPARE(m_p->pItalic->text(), QStringLiteral("倾斜"));
    QCOMPARE(m_p->pBold->text(), QStringLiteral("加粗"));
    QCOMPARE(m_p->pExamples->title(), QStringLiteral("示例"));
    QCOMPARE(m_p->pExample->text(), QStringLiteral("示例文本"));
    QCOMPARE(m_p->pAdd->text(), QString());
    QCOMPARE(m_p->pDel->text(), QString());
}

void tst_FontSettingDlg::itsTextsHaveTwoContexts()
{
    ContextTranslator contexts;
    QVERIFY(QCoreApplication::installTranslator(&contexts));
    make();
    QVERIFY(QCoreApplication::removeTranslator(&contexts));
    QCOMPARE(m_pDialog->windowTitle(), QStringLiteral("FontSettingDlg|Font Settings"));
    QCOMPARE(m_p->pLabel->text(), QStringLiteral("FontSettingDlg|Font Size:"));
    QCOMPARE(m_p->pItalic->text(), QStringLiteral("FontSettingDlg|Italic"));
    QCOMPARE(m_p->pBold->text(), QStringLiteral("FontSettingDlg|Bold"));
    QCOMPARE(m_p->pExamples->title(), QStringLiteral("FontSettingDlg|Example"));
    QCOMPARE(m_p->pExample->text(), QStringLiteral("nsUI::FontSettingDlg|Example Text"));
}

void tst_FontSettingDlg::aDialogBelongsToItsParent()
{
    QWidget parent;
    QPointer<FontSettingDlg> pDialog = new FontSettingDlg(&parent);
    QCOMPARE(pDialog->parentWidget(), &parent);
    QVERIFY(pDialog->isWindow());
    QVERIFY(!m_pDialog->parentWidget());
}

void tst_FontSettingDlg::withoutAChoiceItStartsWithTheDefaults()
{
    QCOMPARE(stored(), QString());
    QCOMPARE(m_p->families(), (QStringList{QStringLiteral("JetBrains Mono"), QStringLiteral("Arial")}));
    QCOMPARE(m_p->pList->currentRow(), -1);
    QCOMPARE(m_p->pFont->currentText(), QStringLiteral("JetBrains Mono"));
    QCOMPARE(m_p->pSize->value(), 10);
    QVERIFY(!m_p->pBold->isChecked());
    QVERIFY(!m_p->pItalic->isChecked());
    QVERIFY(m_p->pDel->isEnabled());
    QCOMPARE(m_p->pExample->styleSheet(), tagAppFont().toStyleSheet());
}

void tst_FontSettingDlg::theStoredChoiceIsShown_data()
{
    QTest::addColumn<QStringList>("families");
    QTest::addColumn<int>("size");
    QTest::addColumn<bool>("bold");
    QTest::addColumn<bool>("italic");
    QTest::addColumn<int>("sizeShown");
    const QStringList three{QStringLiteral("One"), QStringLiteral("Two, too"), QStringLiteral("字体")};
    QTest::newRow("three families, bold") << three << 7 << true << false << 7;
    QTest::newRow("one family, italic") << QStringList{QStringLiteral("One")} << 99 << false << true << 99;
    QTest::newRow("no family, both") << QStringList() << 1 << true << true << 1;
    QTest::newRow("too small") << three << 0 << false << false << 1;
    QTest::newRow("negative") << three << -3 << false << false << 1;
    QTest::newRow("too large") << three << 250 << false << false << 99;
}

void tst_FontSettingDlg::theStoredChoiceIsShown()
{
    QFETCH(QStringList, families);
    QFETCH(int, size);
    QFETCH(bool, bold);
    QFETCH(bool, italic);
    QFETCH(int, sizeShown);
    make(families, size, bold, italic);
    QCOMPARE(m_p->families(), families);
    QCOMPARE(m_p->pList->currentRow(), -1);
    QCOMPARE(m_p->pSize->value(), sizeShown);
    QCOMPARE(m_p->pBold->isChecked(), bold);
    QCOMPARE(m_p->pItalic->isChecked(), italic);
    QCOMPARE(m_p->pDel->isEnabled(), !families.isEmpty());
    QCOMPARE(m_p->pExample->styleSheet(), rule(families, sizeShown, bold, italic));
}

void tst_FontSettingDlg::theFontInEffectIsNoChoice()
{
    tagAppFont other;
    other.families = QStringList{QStringLiteral("Other")};
    other.pointSize = 33;
    other.bold = true;
    other.italic = true;
    other.writeSettings(store(), QStringLiteral("AppFont"));
    make();
    QCOMPARE(m_p->pExample->styleSheet(), tagAppFont().toStyleSheet());
    QCOMPARE(m_p->pSize->value(), 10);
}

void tst_FontSettingDlg::missingKeysKeepTheDefaults()
{
    store()->setValue(QStringLiteral("Setting_AppFont/PointSize"), 14);
    store()->setValue(QStringLiteral("Setting_AppFont/Italic"), true);
    make();
    QCOMPARE(m_p->pExample->styleSheet(), rule(tagAppFont().families, 14, false, true));
    QCOMPARE(m_p->families(), tagAppFont().families);
}

void tst_FontSettingDlg::theComboBoxShowsTheFirstFamily()
{
    make({QStringLiteral("Nowhere Installed"), sOne});
    QCOMPARE(m_p->pFont->currentText(), QStringLiteral("Nowhere Installed"));
    make({sTwo, sOne});
    QCOMPARE(m_p->pFont->currentText(), sTwo);
}

void tst_FontSettingDlg::withoutFamiliesTheComboBoxShowsItsOwnFont()
{
    make(QStringList());
    QCOMPARE(m_p->pFont->currentText(), m_p->pFont->currentFont().family());
    QCOMPARE(m_p->pFont->currentFont().family(), QFontComboBox().currentFont().family());
}

void tst_FontSettingDlg::storedDuplicatesAreDropped()
{
    make({QStringLiteral("B"), QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("B"), QStringLiteral("b"),
          QStringLiteral("A")});
    QCOMPARE(m_p->families(), (QStringList{QStringLiteral("B"), QStringLiteral("A"), QStringLiteral("b")}));
    QCOMPARE(m_p->pExample->styleSheet(), rule(m_p->families(), 12, false, false));
}

void tst_FontSettingDlg::buildingItStoresNothing()
{
    QCOMPARE(stored(), QString());
    make({QStringLiteral("A"), QStringLiteral("A")}, 250);
    QCOMPARE(stored(), choice(QStringLiteral("A,A"), 250, false, false));
}

void tst_FontSettingDlg::aFamilyIsAddedAtTheTop()
{
    make({QStringLiteral("A"), QStringLiteral("B")});
    m_p->add(sOne);
    QCOMPARE(m_p->families(), (QStringList{sOne, QStringLiteral("A"), QStringLiteral("B")}));
    m_p->pList->setCurrentRow(2); // makes no difference
    m_p->add(sTwo);
    QCOMPARE(m_p->families(), (QStringList{sTwo, sOne, QStringLiteral("A"), QStringLiteral("B")}));
    QCOMPARE(m_p->pExample->styleSheet(), rule(m_p->families(), 12, false, false));
}

void tst_FontSettingDlg::aFamilyThatIsThereMovesToTheTop()
{
    make({QStringLiteral("A"), sOne, sTwo});
    m_p->add(sTwo);
    QCOMPARE(m_p->families(), (QStringList{sTwo, QStringLiteral("A"), sOne}));
    m_p->add(sOne);
    QCOMPARE(m_p->families(), (QStringList{sOne, sTwo, QStringLiteral("A")}));
    m_p->add(sOne);
    QCOMPARE(m_p->families(), (QStringList{sOne, sTwo, QStringLiteral("A")}));
    QCOMPARE(m_p->pExample->styleSheet(), rule(m_p->families(), 12, false, false));
}

void tst_FontSettingDlg::onlyTheSameSpellingIsADuplicate()
{
    make({sOne.toUpper(), sOne.toLower()});
    m_p->add(sOne);
    QCOMPARE(m_p->families(), (QStringList{sOne, sOne.toUpper(), sOne.toLower()}));
}

void tst_FontSettingDlg::withoutAPickTheApplicationsFamilyIsAdded()
{
    make({sTwo, sOne});
    const QString sOwn = QFontComboBox().currentFont().family();
    QVERIFY(sOwn != sTwo);
    QVERIFY(!sOwn.isEmpty());
    QCOMPARE(m_p->pFont->currentText(), sTwo);
    show();
    QTest::mouseClick(m_p->pAdd, Qt::LeftButton);
    QCOMPARE(m_p->families(), (QStringList{sOwn, sTwo, sOne}));

    make({sTwo, sOne}); // nor does it matter where the focus has been
    show();
    m_p->pFont->setFocus();
    m_p->pSize->setFocus();
    QTest::mouseClick(m_p->pAdd, Qt::LeftButton);
    QCOMPARE(m_p->families(), (QStringList{sOwn, sTwo, sOne}));
}

void tst_FontSettingDlg::pickingAFamilyAloneChangesNothing()
{
    make({QStringLiteral("A"), QStringLiteral("B")});
    const QString sBefore = m_p->pExample->styleSheet();
    m_p->pick(sOne);
    QCOMPARE(m_p->pExample->styleSheet(), sBefore);
    QCOMPARE(m_p->families(), (QStringList{QStringLiteral("A"), QStringLiteral("B")}));
    m_p->pSize->setValue(20); // not with the next change either
    QCOMPARE(m_p->pExample->styleSheet(), rule({QStringLiteral("A"), QStringLiteral("B")}, 20, false, false));
    m_p->press(QDialogButtonBox::Ok);
    QCOMPARE(stored(), choice(QStringLiteral("A,B"), 20, false, false));
}

void tst_FontSettingDlg::theCurrentFamilyIsRemoved()
{
    const QStringList families{QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")};
    for (int i = 0; i < 3; ++i) {
        make(families);
        m_p->pList->setCurrentRow(i);
        m_p->del();
        QStringList left = families;
        left.removeAt(i);
        QCOMPARE(m_p->families(), left);
        QCOMPARE(m_p->pExample->styleSheet(), rule(left, 12, false, false));
    }
}

void tst_FontSettingDlg::theLastFamilyIsRemovedWhileNoneIsCurrent()
{
    make({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")});
    QCOMPARE(m_p->pList->currentRow(), -1);
    m_p->del();
    QCOMPARE(m_p->families(), (QStringList{QStringLiteral("A"), QStringLiteral("B")}));
    m_p->pList->setCurrentRow(-1);
    m_p->del();
    QCOMPARE(m_p->families(), QStringList{QStringLiteral("A")});
    QCOMPARE(m_p->pExample->styleSheet(), rule({QStringLiteral("A")}, 12, false, false));
}

void tst_FontSettingDlg::theMinusButtonNeedsAFamily()
{
    make({QStringLiteral("A"), QStringLiteral("B")});
    QVERIFY(m_p->pDel->isEnabled());
    m_p->del();
    QVERIFY(m_p->pDel->isEnabled());
    m_p->del();
    QVERIFY(!m_p->pDel->isEnabled());
    QCOMPARE(m_p->families(), QStringList());
    QCOMPARE(m_p->pExample->styleSheet(), rule({}, 12, false, false));
    m_p->add(sOne);
    QVERIFY(m_p->pDel->isEnabled());
    QVERIFY(m_p->pAdd->isEnabled());
}

void tst_FontSettingDlg::deletingFromAnEmptyListDoesNothing()
{
    make(QStringList());
    const QString sBefore = QStringLiteral("QLabel { color: red; }");
    m_p->pExample->setStyleSheet(sBefore);
    m_p->pDel->setEnabled(true);
    m_p->del();
    QCOMPARE(m_p->families(), QStringList());
    QCOMPARE(m_p->pExample->styleSheet(), sBefore);
}

void tst_FontSettingDlg::theExampleFollowsEveryChoice()
{
    make({QStringLiteral("A"), QStringLiteral("B")}, 12, true, false);
    show();
    QStringList families{QStringLiteral("A"), QStringLiteral("B")};
    QCOMPARE(m_p->pExample->styleSheet(), rule(families, 12, true, false));
    m_p->pSize->setFocus();
    QTest::keyClick(m_p->pSize, Qt::Key_Up);
    QCOMPARE(m_p->pExample->styleSheet(), rule(families, 13, true, false));
    QTest::mouseClick(m_p->pBold, Qt::LeftButton, Qt::NoModifier, m_p->pBold->rect().center());
    QCOMPARE(m_p->pExample->styleSheet(), rule(families, 13, false, false));
    QTest::keyClick(m_p->pItalic, Qt::Key_Space);
    QCOMPARE(m_p->pExample->styleSheet(), rule(families, 13, false, true));
    m_p->pSize->setValue(30);
    QCOMPARE(m_p->pExample->styleSheet(), rule(families, 30, false, true));
    QTest::keyClick(m_p->pBold, Qt::Key_Space);
    QCOMPARE(m_p->pExample->styleSheet(), rule(families, 30, true, true));
    m_p->add(sOne);
    families.prepend(sOne);
    QCOMPARE(m_p->pExample->styleSheet(), rule(families, 30, true, true));
    m_p->pList->setCurrentRow(1);
    m_p->del();
    families.removeAt(1);
    QCOMPARE(m_p->pExample->styleSheet(), rule(families, 30, true, true));
    QTest::keyClick(m_p->pItalic, Qt::Key_Space);
    QCOMPARE(m_p->pExample->styleSheet(), rule(families, 30, true, false));
}

void tst_FontSettingDlg::theExampleLooksLikeTheChoice()
{
    make({sOne, sTwo}, 31, true, true);
    m_p->pExample->ensurePolished();
    QFont font = m_p->pExample->font();
    QCOMPARE(font.family(), sOne);
    QCOMPARE(font.pointSize(), 31);
    QVERIFY(font.bold());
    QVERIFY(font.italic());
    m_p->pList->setCurrentRow(0);
    m_p->del();
    m_p->pSize->setValue(8);
    QTest::keyClick(m_p->pBold, Qt::Key_Space);
    QTest::keyClick(m_p->pItalic, Qt::Key_Space);
    m_p->pExample->ensurePolished();
    font = m_p->pExample->font();
    QCOMPARE(font.family(), sTwo);
    QCOMPARE(font.pointSize(), 8);
    QVERIFY(!font.bold());
    QVERIFY(!font.italic());
    QCOMPARE(m_p->pLabel->font().toString(), QApplication::font(m_p->pLabel).toString()); // the example alone
}

void tst_FontSettingDlg::aSizeStaysFromOneToNinetyNine()
{
    show();
    m_p->pSize->setValue(0);
    QCOMPARE(m_p->pSize->value(), 1);
    QTest::keyClick(m_p->pSize, Qt::Key_Down);
    QCOMPARE(m_p->pSize->value(), 1);
    QCOMPARE(m_p->pExample->styleSheet(), rule(tagAppFont().families, 1, false, false));
    m_p->pSize->setValue(1000);
    QCOMPARE(m_p->pSize->value(), 99);
    QTest::keyClick(m_p->pSize, Qt::Key_Up);
    QCOMPARE(m_p->pSize->value(), 99);
    QCOMPARE(m_p->pExample->styleSheet(), rule(tagAppFont().families, 99, false, false));
}

void tst_FontSettingDlg::aSwitchCountsWhenItIsClicked()
{
    make({QStringLiteral("A")}, 12);
    m_p->pBold->setChecked(true);
    m_p->pItalic->setChecked(true);
    QCOMPARE(m_p->pExample->styleSheet(), rule({QStringLiteral("A")}, 12, false, false));
    m_p->pSize->setValue(13); // and is taken along by any other change
    QCOMPARE(m_p->pExample->styleSheet(), rule({QStringLiteral("A")}, 13, true, true));
}

void tst_FontSettingDlg::duplicatesAreDroppedWithTheNextChange()
{
    make({QStringLiteral("A"), QStringLiteral("B")});
    m_p->pList->addItems({QStringLiteral("B"), QStringLiteral("C"), QStringLiteral("A"), QStringLiteral("C")});
    QCOMPARE(m_p->pExample->styleSheet(), rule({QStringLiteral("A"), QStringLiteral("B")}, 12, false, false));
    m_p->pBold->click();
    const QStringList left{QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")};
    QCOMPARE(m_p->families(), left);
    QCOMPARE(m_p->pExample->styleSheet(), rule(left, 12, true, false));
}

void tst_FontSettingDlg::okStoresAllFourValues_data()
{
    QTest::addColumn<bool>("before");
    QTest::newRow("over nothing") << false;
    QTest::newRow("over what is the same") << true;
}

void tst_FontSettingDlg::okStoresAllFourValues()
{
    QFETCH(bool, before);
    if (before)
        tagAppFont().writeSettings(store(), sGroup);
    make();
    if (before)
        store()->clear(); // whoever takes them away meanwhile
    const ModalDriver driver([](QDialog& dialog) { Parts(dialog).press(QDialogButtonBox::Ok); });
    QCOMPARE(m_pDialog->exec(), int(QDialog::Accepted));
    QVERIFY(driver.hasActed());
    QCOMPARE(stored(), choice(QStringLiteral("JetBrains Mono,Arial"), 10, false, false));
    QCOMPARE(store()->value(QStringLiteral("Setting_AppFont/Familys")), QVariant(tagAppFont().families));
}

void tst_FontSettingDlg::okStoresWhatWasEdited()
{
    make({QStringLiteral("A"), QStringLiteral("B")}, 12, true, true);
    const ModalDriver driver([](QDialog& dialog) {
        const Parts parts(dialog);
        parts.add(sOne);
        parts.pList->setCurrentRow(1);
        parts.del();
        parts.pSize->setValue(44);
        QTest::keyClick(parts.pBold, Qt::Key_Space);
        parts.press(QDialogButtonBox::Ok);
    });
    QCOMPARE(m_pDialog->exec(), int(QDialog::Accepted));
    QVERIFY(driver.hasActed());
    QCOMPARE(stored(), choice(sOne + QStringLiteral(",B"), 44, false, true));

    make(); // and it is there again
    QCOMPARE(m_p->families(), (QStringList{sOne, QStringLiteral("B")}));
    QCOMPARE(m_p->pExample->styleSheet(), rule({sOne, QStringLiteral("B")}, 44, false, true));
}

void tst_FontSettingDlg::okStoresBeforeItAccepts()
{
    QStringList log;
    connect(m_pDialog.data(), &QDialog::accepted, this, [&] { log << stored(); });
    connect(m_pDialog.data(), &QDialog::rejected, this, [&] { log << QStringLiteral("rejected"); });
    m_p->pSize->setValue(21);
    m_p->press(QDialogButtonBox::Ok);
    QCOMPARE(log, QStringList{choice(QStringLiteral("JetBrains Mono,Arial"), 21, false, false)});
    QCOMPARE(m_pDialog->result(), int(QDialog::Accepted));
}

void tst_FontSettingDlg::okStoresWhatTheExampleShows()
{
    // What nobody clicked is not part of the choice yet.
    make({QStringLiteral("A")}, 12);
    m_p->pBold->setChecked(true);
    m_p->pList->addItem(QStringLiteral("B"));
    m_p->press(QDialogButtonBox::Ok);
    QCOMPARE(stored(), choice(QStringLiteral("A"), 12, false, false));
}

void tst_FontSettingDlg::okStoresAnEmptyList()
{
    make({QStringLiteral("A")}, 12);
    m_p->del();
    m_p->press(QDialogButtonBox::Ok);
    QCOMPARE(stored(), choice(QString(), 12, false, false));
    QVERIFY(store()->contains(QStringLiteral("Setting_AppFont/Familys")));
    make();
    QCOMPARE(m_p->families(), QStringList());
}

void tst_FontSettingDlg::okLeavesTheApplicationAsItIs()
{
    const QFont font = QApplication::font();
    make({sOne}, 44, true, true);
    m_p->press(QDialogButtonBox::Ok);
    QCOMPARE(QApplication::font(), font);
    QCOMPARE(qApp->styleSheet(), QString());
    QVERIFY(!store()->childGroups().contains(QStringLiteral("AppFont")));
}

void tst_FontSettingDlg::nothingButOkStores_data()
{
    QTest::addColumn<QString>("action");
    QTest::newRow("Cancel") << QStringLiteral("cancel");
    QTest::newRow("Escape") << QStringLiteral("escape");
    QTest::newRow("closing the window") << QStringLiteral("close");
    QTest::newRow("accepting by code") << QStringLiteral("accept");
}

void tst_FontSettingDlg::nothingButOkStores()
{
    QFETCH(QString, action);
    for (const bool bStored : {false, true}) {
        if (bStored)
            make({QStringLiteral("A")}, 12);
        const QString sBefore = stored();
        const ModalDriver driver([&](QDialog& dialog) {
            const Parts parts(dialog);
            parts.pSize->setValue(55);
            parts.add(sOne);
            QTest::keyClick(parts.pBold, Qt::Key_Space);
            if (action == QLatin1String("cancel"))
                parts.press(QDialogButtonBox::Cancel);
            else if (action == QLatin1String("escape"))
                QTest::keyClick(&dialog, Qt::Key_Escape);
            else if (action == QLatin1String("close"))
                dialog.close();
            else
                dialog.accept();
        });
        const bool bAccepts = action == QLatin1String("accept");
        QCOMPARE(m_pDialog->exec(), int(bAccepts ? QDialog::Accepted : QDialog::Rejected));
        QVERIFY(driver.hasActed());
        QCOMPARE(stored(), sBefore);
    }
}

void tst_FontSettingDlg::aCancelledDialogKeepsWhatWasEdited()
{
    make({QStringLiteral("A")}, 12);
    show();
    m_p->pSize->setValue(40);
    m_p->add(sOne);
    m_p->press(QDialogButtonBox::Cancel);
    QVERIFY(!m_pDialog->isVisible());
    show();
    QCOMPARE(m_p->families(), (QStringList{sOne, QStringLiteral("A")}));
    QCOMPARE(m_p->pExample->styleSheet(), rule({sOne, QStringLiteral("A")}, 40, false, false));
    m_p->press(QDialogButtonBox::Ok);
    QCOMPARE(stored(), choice(sOne + QStringLiteral(",A"), 40, false, false));
}

void tst_FontSettingDlg::aHostsExampleTakesTheLabelsPlace()
{
    make({sOne}, 17, true, false);
    show();
    auto* const pOwn = new QPushButton(QStringLiteral("Host"));
    m_pDialog->setExampleWdg(pOwn);
    QCOMPARE(pOwn->styleSheet(), rule({sOne}, 17, true, false));
    QCOMPARE(pOwn->parentWidget(), m_p->pExamples);
    QVERIFY(m_p->pExamples->layout()->indexOf(pOwn) >= 0);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    QCOMPARE(m_p->pExamples->layout()->count(), 1);
    QCOMPARE(m_p->pExamples->layout()->itemAt(0)->widget(), pOwn);
    QVERIFY(pOwn->isVisible());
    QCOMPARE(pOwn->font().family(), sOne);
    QCOMPARE(pOwn->font().pointSize(), 17);

    const QPointer<QPushButton> pGuard = pOwn;
    cleanup();
    QVERIFY(pGuard.isNull());
}

void tst_FontSettingDlg::theFormerExampleIsDeletedLater()
{
    const QPointer<QLabel> pFormer = m_p->pExample;
    m_pDialog->setExampleWdg(new QLabel(QStringLiteral("Host")));
    QVERIFY(pFormer);
    m_p->pSize->setValue(50);
    QCOMPARE(pFormer->styleSheet(), tagAppFont().toStyleSheet()); // it follows no more
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(pFormer.isNull());
}

void tst_FontSettingDlg::aHostsExampleFollowsEveryChoice()
{
    make({QStringLiteral("A")}, 12);
    auto* const pOwn = new QLabel;
    m_pDialog->setExampleWdg(pOwn);
    m_p->pSize->setValue(18);
    QCOMPARE(pOwn->styleSheet(), rule({QStringLiteral("A")}, 18, false, false));
    m_p->pItalic->click();
    m_p->add(sOne);
    QCOMPARE(pOwn->styleSheet(), rule({sOne, QStringLiteral("A")}, 18, false, true));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    m_p->pList->setCurrentRow(0);
    m_p->del();
    QCOMPARE(pOwn->styleSheet(), rule({QStringLiteral("A")}, 18, false, true));
}

void tst_FontSettingDlg::aHostsExampleIsReplacedToo()
{
    QWidget former;
    auto* const pFirst = new QLabel(&former);
    auto* const pSecond = new QWidget;
    auto* const pInner = new QLabel(pSecond);
    const QPointer<QLabel> pGuard = pFirst;
    m_pDialog->setExampleWdg(pFirst); // takes it over from whoever has it
    QCOMPARE(pFirst->parentWidget(), m_p->pExamples);
    m_pDialog->setExampleWdg(pSecond);
    QVERIFY(pGuard);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(pGuard.isNull());
    QCOMPARE(m_p->pExamples->layout()->count(), 1);
    show();
    m_p->pSize->setValue(27);
    QCOMPARE(pInner->font().pointSize(), 27); // its children show the choice too
}

void tst_FontSettingDlg::aNullExampleIsIgnored()
{
    m_pDialog->setExampleWdg(nullptr);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(m_p->pExamples->findChild<QLabel*>(), m_p->pExample);
    m_p->pSize->setValue(27);
    QCOMPARE(m_p->pExample->styleSheet(), rule(tagAppFont().families, 27, false, false));
}

void tst_FontSettingDlg::aHostMayDeleteItsExample()
{
    auto* const pOwn = new QLabel;
    m_pDialog->setExampleWdg(pOwn);
    delete pOwn;
    m_p->pSize->setValue(27);
    auto* const pNext = new QLabel;
    m_pDialog->setExampleWdg(pNext);
    QCOMPARE(pNext->styleSheet(), rule(tagAppFont().families, 27, false, false));
    m_p->press(QDialogButtonBox::Ok);
    QCOMPARE(stored(), choice(QStringLiteral("JetBrains Mono,Arial"), 27, false, false));
}

void tst_FontSettingDlg::theFormerExampleIsHiddenAtOnce()
{
    FontSettingDlg dialog;
    dialog.show();
    auto* const pBox = dialog.findChild<QGroupBox*>(QStringLiteral("pGrxExamples"));
    const QPointer<QLabel> pFormer = pBox->findChild<QLabel*>();
    QVERIFY(pFormer && pFormer->isVisible());
    dialog.setExampleWdg(new QPushButton(QStringLiteral("mine")));
    QVERIFY(pFormer && !pFormer->isVisible());
    QCOMPARE(dialog.button(QDialogButtonBox::Ok), dialog.buttonBox()->button(QDialogButtonBox::Ok));
    dialog.setBtnEnable(QDialogButtonBox::Ok, false);
    QVERIFY(!dialog.button(QDialogButtonBox::Ok)->isEnabled());
}

TESSERA_TEST_MAIN(tst_FontSettingDlg)
#include "tst_FontSettingDlg.moc"
