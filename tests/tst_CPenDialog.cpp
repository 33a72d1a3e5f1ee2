// SPDX-License-Identifier: MIT
#include "ModalDriver.h"
#include "support/GlobalState.h"
#include "support/TestMain.h"

#include <Tessera/widgets/CDataComboBox.h>
#include <Tessera/widgets/CPenDialog.h>

#include <QApplication>
#include <QColorDialog>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPointer>
#include <QPushButton>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QtTest>
#include <QVBoxLayout>

#include <memory>

using nsUI::CDataComboBox;
using nsUI::CPenDialog;

Q_DECLARE_METATYPE(Qt::PenStyle)

namespace {

//! What a user sees of a pen dialog.
struct Parts
{
    explicit Parts(const QDialog& dialog)
        : pForm(dialog.findChild<QFormLayout*>())
        , pColor(qobject_cast<QPushButton*>(field(0)))
        , pWidth(qobject_cast<QDoubleSpinBox*>(field(1)))
        , pStyle(qobject_cast<CDataComboBox*>(field(2)))
        , pBox(dialog.findChild<QDialogButtonBox*>())
    {
    }

    QWidget* field(int nRow) const { return pForm->itemAt(nRow, QFormLayout::FieldRole)->widget(); }
    QString label(int nRow) const { return qobject_cast<QLabel*>(pForm->labelForField(field(nRow)))->text(); }
    QColor color() const { return pColor->palette().color(QPalette::Button); }

    //! The colour, width and style on show.
    QString shown() const
    {
        return QStringLiteral("%1;%2;%3").arg(color().name(QColor::HexArgb), pWidth->text(), pStyle->currentText());
    }

    //! Chooses a colour as a user does.
    void chooseColor(const QColor& color) const
    {
        const ModalDriver driver([color](QDialog& dialog) {
            static_cast<QColorDialog&>(dialog).setCurrentColor(color);
            dialog.accept();
        });
        QTest::mouseClick(pColor, Qt::LeftButton);
        QVERIFY(driver.hasActed());
    }

    QFormLayout* pForm;
    QPushButton* pColor;
    QDoubleSpinBox* pWidth;
    CDataComboBox* pStyle;
    QDialogButtonBox* pBox;
};

QPen fullPen()
{
    QPen pen(QBrush(QColor(10, 20, 30, 40), Qt::Dense4Pattern), 2.5, Qt::DashLine, Qt::RoundCap, Qt::MiterJoin);
    pen.setMiterLimit(7.5);
    pen.setCosmetic(true);
    return pen;
}

} // namespace

class tst_CPenDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void itsButtonsCanBeReached();
    void cleanup();

    void itDeclaresOnePrivateSlot();
    void itIsBuiltOfColourWidthStyleAndButtons();
    void theStylesAreListedInOrder();
    void eachStyleHasItsName_data();
    void eachStyleHasItsName();
    void itsTextsAreTranslated();
    void aNewDialogShowsTheDefaultPen();
    void aDialogBelongsToItsParent();

    void aPenIsShown_data();
    void aPenIsShown();
    void theColourIsInTheButtonsPaletteAlone();
    void aWidthBeyondTheRangeIsCutOff();
    void anAcceptedWidthIsThatOfTheField_data();
    void anAcceptedWidthIsThatOfTheField();
    void aPatternOfItsOwnLeavesTheStyleAsItIs();
    void anotherPenReplacesWhatIsShown();
    void theSamePenAgainChangesNothing();

    void theUsersChoiceShowsInTheSelectedPenAlone();
    void theColourDialogStartsWithTheColourAndShowsAlpha();
    void aCancelledColourDialogChangesNothing();
    void anotherColourLeavesWidthAndStyle();
    void aTypedWidthIsKept();
    void aFinishedWidthIsShownAnew();
    void aDialogMayBeDeletedWhileItsWidthHasTheFocus();
    void aWidthAboveTheRangeCannotBeTyped();
    void resetShowsTheGivenPenAgain();
    void resetShowsThePenGivenLast();
    void everythingThatIsNotShownPassesThrough();
    void acceptingDoesNotChangeTheCurrentPen();

    void theStaticCallAnswersThePen_data();
    void theStaticCallAnswersThePen();
    void theStaticCallWorksWithoutFlag();
    void theStaticCallAnswersTheUsersPen();
    void theStaticCallTakesParentAndTitle();

private:
    void give(const QPen& pen)
    {
        m_pDialog.reset(new CPenDialog(pen, nullptr));
        m_p.reset(new Parts(*m_pDialog));
    }
    void show()
    {
        m_pDialog->show();
        QVERIFY(QTest::qWaitForWindowActive(m_pDialog.data()));
    }

    QScopedPointer<CPenDialog> m_pDialog;
    QScopedPointer<Parts> m_p;
};

void tst_CPenDialog::initTestCase()
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void tst_CPenDialog::init()
{
    m_pDialog.reset(new CPenDialog);
    m_p.reset(new Parts(*m_pDialog));
}

void tst_CPenDialog::cleanup()
{
    m_p.reset();
    m_pDialog.reset();
}

void tst_CPenDialog::itDeclaresOnePrivateSlot()
{
    const QMetaObject& meta = CPenDialog::staticMetaObject;
    QCOMPARE(meta.className(), "nsUI::CPenDialog");
    QCOMPARE(meta.superClass(), &QDialog::staticMetaObject);
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    const QMetaMethod slot = meta.method(meta.methodOffset());
    QCOMPARE(slot.methodSignature(), QByteArray("slotBtnColorClicked()"));
    QCOMPARE(slot.methodType(), QMetaMethod::Slot);
    QCOMPARE(slot.access(), QMetaMethod::Private);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

void tst_CPenDialog::itIsBuiltOfColourWidthStyleAndButtons()
{
    QCOMPARE(m_pDialog->windowTitle(), QStringLiteral("Pen Settings"));
    auto* const pLayout = qobject_cast<QVBoxLayout*>(m_pDialog->layout());
    QVERIFY(pLayout);
    QCOMPARE(pLayout->count(), 2);
    QCOMPARE(pLayout->itemAt(0)->layout(), m_p->pForm);
    QCOMPARE(pLayout->itemAt(1)->widget(), m_p->pBox);
    QCOMPARE(pLayout->stretch(0), 1);
    QCOMPARE(pLayout->stretch(1), 0);

    QCOMPARE(m_p->pForm->rowCount(), 3);
    QVERIFY(m_p->pColor && m_p->pWidth && m_p->pStyle);
    QCOMPARE(m_p->label(0), QStringLiteral("Color:"));
    QCOMPARE(m_p->label(1), QStringLiteral("Line Width:"));
    QCOMPARE(m_p->label(2), QStringLiteral("Style:"));

    QVERIFY(m_p->pColor->autoFillBackground());
    QVERIFY(m_p->pColor->isFlat());
    QCOMPARE(m_p->pWidth->minimum(), 0.0);
    QCOMPARE(m_p->pWidth->maximum(), 99.99);
    QCOMPARE(m_p->pWidth->decimals(), 2);
    QCOMPARE(m_p->pWidth->singleStep(), 1.0);
    QCOMPARE(m_p->pBox->standardButtons(), QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Reset);
    for (QWidget* const pChild : {static_cast<QWidget*>(m_p->pColor), static_cast<QWidget*>(m_p->pWidth),
                                  static_cast<QWidget*>(m_p->pStyle), static_cast<QWidget*>(m_p->pBox)})
        QCOMPARE(pChild->parentWidget(), m_pDialog.data());
}

void tst_CPenDialog::theStylesAreListedInOrder()
{
    const QStringList texts{QStringLiteral("NoPen"),   QStringLiteral("SolidLine"),   QStringLiteral("DashLine"),
                            QStringLiteral("DotLine"), QStringLiteral("DashDotLine"), QStringLiteral("DashDotDotLine")};
    QCOMPARE(m_p->pStyle->count(), 6);
    for (int i = 0; i < 6; ++i) {
        QCOMPARE(m_p->pStyle->itemText(i), texts.at(i));
        QCOMPARE(m_p->pStyle->itemData(i, Qt::UserRole).userType(), int(QMetaType::Int));
        QCOMPARE(m_p->pStyle->itemData(i, Qt::UserRole).toInt(), i);
        QVERIFY(m_p->pStyle->itemIcon(i).isNull());
    }
}

void tst_CPenDialog::eachStyleHasItsName_data()
{
    QTest::addColumn<Qt::PenStyle>("style");
    QTest::addColumn<QString>("english");
    QTest::addColumn<QString>("chinese");
    QTest::newRow("0") << Qt::NoPen << QStringLiteral("NoPen") << QStringLiteral("无画笔");
    QTest::newRow("1") << Qt::SolidLine << QStringLiteral("SolidLine") << QStringLiteral("实线");
    QTest::newRow("2") << Qt::DashLine << QStringLiteral("DashLine") << QStringLiteral("虚线");
    QTest::newRow("3") << Qt::DotLine << QStringLiteral("DotLine") << QStringLiteral("点线");
    QTest::newRow("4") << Qt::DashDotLine << QStringLiteral("DashDotLine") << QStringLiteral("虚点线");
    QTest::newRow("5") << Qt::DashDotDotLine << QStringLiteral("DashDotDotLine") << QStringLiteral("虚点点线");
    QTest::newRow("6") << Qt::CustomDashLine << QStringLiteral("Undefine") << QStringLiteral("未定义");
    QTest::newRow("none") << static_cast<Qt::PenStyle>(9) << QStringLiteral("Undefine") << QStringLiteral("未定义");
}

void tst_CPenDialog::eachStyleHasItsName()
{
    QFETCH(Qt::PenStyle, style);
    QTEST(CPenDialog::getPenStyleDesc(style), "english");
    TestSupport::GlobalState global;
    QVERIFY(global.install(QStringLiteral(":/qm/Tessera_zh_CN.qm")));
    const QString sTranslated = CPenDialog::getPenStyleDesc(style);
    global.removeCatalogues();
    QTEST(sTranslated, "chinese");
}

void tst_CPenDialog::itsTextsAreTranslated()
{
    TestSupport::GlobalState global;
    QVERIFY(global.install(QStringLiteral(":/qm/Tessera_zh_CN.qm")));
    const CPenDialog dialog;
    global.removeCatalogues();
    const Parts parts(dialog);
    QCOMPARE(dialog.windowTitle(), QStringLiteral("画笔设置"));
    QCOMPARE(parts.label(0), QStringLiteral("颜色："));
    QCOMPARE(parts.label(1), QStringLiteral("线宽："));
    QCOMPARE(parts.label(2), QStringLiteral("样式："));
    QCOMPARE(parts.pStyle->itemText(1), QStringLiteral("实线"));
}

void tst_CPenDialog::aNewDialogShowsTheDefaultPen()
{
    QCOMPARE(m_pDialog->currentPen(), QPen());
    QCOMPARE(m_pDialog->selectedPen(), QPen());
    QCOMPARE(m_p->shown(), QStringLiteral("#ff000000;1.00;SolidLine"));
}

void tst_CPenDialog::aDialogBelongsToItsParent()
{
    QWidget parent;
    QPointer<CPenDialog> pFirst = new CPenDialog(&parent);
    QPointer<CPenDialog> pSecond = new CPenDialog(QPen(Qt::red), &parent);
    QCOMPARE(pFirst->parentWidget(), &parent);
    QCOMPARE(pSecond->parentWidget(), &parent);
    QVERIFY(pSecond->isWindow());
}

void tst_CPenDialog::aPenIsShown_data()
{
    QTest::addColumn<QPen>("pen");
    QTest::addColumn<QString>("shown");
    QTest::newRow("red, 2.5, dashed") << QPen(Qt::red, 2.5, Qt::DashLine) << QStringLiteral("#ffff0000;2.50;DashLine");
    QTest::newRow("alpha") << QPen(QColor(1, 2, 3, 4), 0) << QStringLiteral("#04010203;0.00;SolidLine");
    QTest::newRow("no pen") << QPen(Qt::NoPen) << QStringLiteral("#ff000000;1.00;NoPen");
    QTest::newRow("the widest") << QPen(Qt::blue, 99.99, Qt::DashDotDotLine)
                                << QStringLiteral("#ff0000ff;99.99;DashDotDotLine");
    QTest::newRow("everything else") << fullPen() << QStringLiteral("#280a141e;2.50;DashLine");
}

void tst_CPenDialog::aPenIsShown()
{
    QFETCH(QPen, pen);
    QFETCH(QString, shown);
    give(pen);
    QCOMPARE(m_p->shown(), shown);
    QCOMPARE(m_pDialog->currentPen(), pen);
    QCOMPARE(m_pDialog->selectedPen(), pen);

    init();
    m_pDialog->setCurrentPen(pen);
    QCOMPARE(m_p->shown(), shown);
    QCOMPARE(m_pDialog->currentPen(), pen);
    QCOMPARE(m_pDialog->selectedPen(), pen);
}

void tst_CPenDialog::theColourIsInTheButtonsPaletteAlone()
{
    const QPushButton fresh;
    const QColor color(1, 2, 3, 4);
    give(QPen(color, 3));
    const QPalette palette = m_p->pColor->palette();
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        QCOMPARE(palette.brush(group, QPalette::Button), QBrush(color, Qt::SolidPattern));
        for (int nRole = 0; nRole < QPalette::NColorRoles; ++nRole) {
            const auto role = static_cast<QPalette::ColorRole>(nRole);
            if (role != QPalette::Button)
                QCOMPARE(palette.brush(group, role), fresh.palette().brush(group, role));
        }
    }
    QCOMPARE(m_p->pColor->styleSheet(), QString());
    QCOMPARE(m_p->pColor->text(), QString());
    QVERIFY(m_p->pColor->icon().isNull());
    QVERIFY(m_pDialog->palette().color(QPalette::Button) != color);
    QVERIFY(m_p->pBox->button(QDialogButtonBox::Ok)->palette().color(QPalette::Button) != color);

    // The user sees it.
    give(QPen(QColor(10, 200, 30), 3));
    m_p->pColor->resize(40, 20);
    QCOMPARE(m_p->pColor->grab().toImage().pixelColor(20, 10), QColor(10, 200, 30));
}

void tst_CPenDialog::aWidthBeyondTheRangeIsCutOff()
{
    give(QPen(Qt::red, 150.0));
    QCOMPARE(m_p->pWidth->value(), 99.99);
    QCOMPARE(m_pDialog->currentPen().widthF(), 150.0);
    QCOMPARE(m_pDialog->selectedPen().widthF(), 99.99);
}

void tst_CPenDialog::anAcceptedWidthIsThatOfTheField_data()
{
    QTest::addColumn<double>("given");
    QTest::addColumn<double>("accepted");
    QTest::newRow("too wide") << 150.0 << 99.99;
    QTest::newRow("too fine") << 2.3456 << 2.35;
    QTest::newRow("next to nothing") << 0.004 << 0.0;
}

void tst_CPenDialog::anAcceptedWidthIsThatOfTheField()
{
    QFETCH(double, given);
    QFETCH(double, accepted);
    const QPen pen(Qt::red, given);
    for (const bool bAccepts : {true, false}) {
        const ModalDriver driver(
            [bAccepts](QDialog& dialog) { dialog.done(bAccepts ? QDialog::Accepted : QDialog::Rejected); });
        const QPen answer = CPenDialog::getPen(nullptr, pen, nullptr, QString());
        QVERIFY(driver.hasActed());
        QCOMPARE(answer.widthF(), bAccepts ? accepted : given);
    }
}

void tst_CPenDialog::aPatternOfItsOwnLeavesTheStyleAsItIs()
{
    QPen pen(Qt::red, 3.5);
    pen.setDashPattern({1, 2, 3, 4});
    QCOMPARE(pen.style(), Qt::CustomDashLine);
    give(pen);
    QCOMPARE(m_p->shown(), QStringLiteral("#ffff0000;3.50;SolidLine")); // that of the empty dialog
    QCOMPARE(m_pDialog->currentPen(), pen);
    QCOMPARE(m_pDialog->selectedPen().style(), Qt::SolidLine);

    give(QPen(Qt::blue, 1, Qt::DotLine));
    m_pDialog->setCurrentPen(pen);
    QCOMPARE(m_p->shown(), QStringLiteral("#ffff0000;3.50;DotLine"));
}

void tst_CPenDialog::anotherPenReplacesWhatIsShown()
{
    give(QPen(Qt::red, 2));
    m_p->pWidth->setValue(5);
    m_p->pStyle->setCurrentIndex(4);
    m_pDialog->setCurrentPen(QPen(Qt::green, 3, Qt::DotLine));
    QCOMPARE(m_p->shown(), QStringLiteral("#ff00ff00;3.00;DotLine"));
    QCOMPARE(m_pDialog->selectedPen(), QPen(Qt::green, 3, Qt::DotLine));

    // A pen that differs in nothing that is shown is another pen all the same.
    m_p->pWidth->setValue(5);
    m_pDialog->setCurrentPen(QPen(Qt::green, 3, Qt::DotLine, Qt::RoundCap));
    QCOMPARE(m_p->pWidth->value(), 3.0);
    QCOMPARE(m_pDialog->selectedPen().capStyle(), Qt::RoundCap);
}

void tst_CPenDialog::theSamePenAgainChangesNothing()
{
    give(fullPen());
    m_p->pWidth->setValue(5);
    m_p->pStyle->setCurrentIndex(4);
    m_pDialog->setCurrentPen(fullPen());
    QCOMPARE(m_p->shown(), QStringLiteral("#280a141e;5.00;DashDotLine"));
}

void tst_CPenDialog::theUsersChoiceShowsInTheSelectedPenAlone()
{
    const QPen given(Qt::red, 2.5, Qt::DashLine);
    give(given);
    show();
    m_p->chooseColor(QColor(0, 0, 255, 128));
    m_p->pWidth->setFocus();
    QTest::keyClick(m_p->pWidth, Qt::Key_Up);
    QTest::keyClick(m_p->pStyle, Qt::Key_Down);
    QCOMPARE(m_p->shown(), QStringLiteral("#800000ff;3.50;DotLine"));
    QCOMPARE(m_pDialog->selectedPen(), QPen(QColor(0, 0, 255, 128), 3.5, Qt::DotLine));
    QCOMPARE(m_pDialog->currentPen(), given);
}

void tst_CPenDialog::theColourDialogStartsWithTheColourAndShowsAlpha()
{
    give(QPen(QColor(1, 2, 3, 4), 2));
    show();
    const QString sQtsTitle = QColorDialog().windowTitle();
    const ModalDriver driver([&](QDialog& dialog) {
        auto* const pColorDialog = qobject_cast<QColorDialog*>(&dialog);
        QVERIFY(pColorDialog);
        QCOMPARE(pColorDialog->currentColor(), QColor(1, 2, 3, 4));
        QVERIFY(pColorDialog->testOption(QColorDialog::ShowAlphaChannel));
        QCOMPARE(pColorDialog->parentWidget(), m_pDialog.data());
        QCOMPARE(pColorDialog->windowTitle(), sQtsTitle);
        dialog.reject();
    });
    QTest::mouseClick(m_p->pColor, Qt::LeftButton);
    QVERIFY(driver.hasActed());
}

void tst_CPenDialog::aCancelledColourDialogChangesNothing()
{
    give(QPen(Qt::red, 2));
    show();
    const ModalDriver driver([](QDialog& dialog) {
        static_cast<QColorDialog&>(dialog).setCurrentColor(Qt::blue);
        dialog.reject();
    });
    QTest::mouseClick(m_p->pColor, Qt::LeftButton);
    QVERIFY(driver.hasActed());
    QCOMPARE(m_p->color(), QColor(Qt::red));
}

void tst_CPenDialog::anotherColourLeavesWidthAndStyle()
{
    give(QPen(Qt::red, 2));
    show();
    m_p->pWidth->setValue(7.25);
    m_p->pStyle->setCurrentIndex(5);
    m_p->chooseColor(Qt::green);
    QCOMPARE(m_p->shown(), QStringLiteral("#ff00ff00;7.25;DashDotDotLine"));
    m_p->chooseColor(Qt::green); // the same again
    QCOMPARE(m_p->shown(), QStringLiteral("#ff00ff00;7.25;DashDotDotLine"));
}

void tst_CPenDialog::aTypedWidthIsKept()
{
    give(QPen(Qt::red, 2));
    show();
    QSignalSpy finished(m_p->pWidth, &QDoubleSpinBox::editingFinished);
    m_p->pWidth->setFocus();
    m_p->pWidth->selectAll();
    QTest::keyClicks(m_p->pWidth, QLocale().toString(3.25));
    QCOMPARE(m_pDialog->selectedPen().widthF(), 3.25);
    m_p->pStyle->setFocus();
    QVERIFY(finished.count() >= 1);
    QCOMPARE(m_p->shown(), QStringLiteral("#ffff0000;3.25;SolidLine"));
    QCOMPARE(m_pDialog->selectedPen().widthF(), 3.25);
    QCOMPARE(m_pDialog->currentPen().widthF(), 2.0);
}

void tst_CPenDialog::aFinishedWidthIsShownAnew()
{
    give(QPen(Qt::red, 2));
    show();
    m_p->pWidth->setFocus();
    m_p->pWidth->selectAll();
    QTest::keyClick(m_p->pWidth, Qt::Key_7);
    QCOMPARE(m_p->pWidth->text(), QStringLiteral("7"));
    Q_EMIT m_p->pWidth->editingFinished(); // the dialog's part: Qt's own would come before the signal
    QCOMPARE(m_p->shown(), QStringLiteral("#ffff0000;7.00;SolidLine"));
    QCOMPARE(m_pDialog->selectedPen().widthF(), 7.0);
    QCOMPARE(m_pDialog->currentPen().widthF(), 2.0);
}

void tst_CPenDialog::aDialogMayBeDeletedWhileItsWidthHasTheFocus()
{
    for (const char* const key : {"", "7"}) {
        auto pDialog = std::make_unique<CPenDialog>(fullPen(), nullptr);
        pDialog->show();
        QVERIFY(QTest::qWaitForWindowActive(pDialog.get()));
        const QPointer<QDoubleSpinBox> pWidth = Parts(*pDialog).pWidth;
        pWidth->setFocus();
        QVERIFY(pWidth->hasFocus());
        QTest::keyClicks(pWidth, QLatin1String(key));
        QSignalSpy finished(pWidth.data(), &QDoubleSpinBox::editingFinished);
        pDialog.reset();
        QVERIFY(pWidth.isNull());
        QCOMPARE(finished.count(), 1);
    }
}

void tst_CPenDialog::aWidthAboveTheRangeCannotBeTyped()
{
    give(QPen(Qt::red, 2));
    show();
    m_p->pWidth->setFocus();
    m_p->pWidth->selectAll();
    QTest::keyClicks(m_p->pWidth, QStringLiteral("100"));
    m_p->pStyle->setFocus();
    QVERIFY(m_pDialog->selectedPen().widthF() <= 99.99);
    QCOMPARE(m_p->pWidth->value(), 10.0); // the third digit was refused
}

void tst_CPenDialog::resetShowsTheGivenPenAgain()
{
    give(QPen(QColor(1, 2, 3, 4), 2.5, Qt::DashLine));
    show();
    const QString sBefore = m_p->shown();
    m_p->chooseColor(Qt::blue);
    m_p->pWidth->setValue(9);
    m_p->pStyle->setCurrentIndex(0);
    QCOMPARE(m_p->shown(), QStringLiteral("#ff0000ff;9.00;NoPen"));
    QTest::mouseClick(m_p->pBox->button(QDialogButtonBox::Reset), Qt::LeftButton);
    QCOMPARE(m_p->shown(), sBefore);
    QCOMPARE(m_pDialog->selectedPen(), m_pDialog->currentPen());
    QVERIFY(m_pDialog->isVisible());

    // Each of the three on its own.
    m_p->chooseColor(Qt::blue);
    QTest::mouseClick(m_p->pBox->button(QDialogButtonBox::Reset), Qt::LeftButton);
    QCOMPARE(m_p->shown(), sBefore);
    m_p->pWidth->setValue(9);
    QTest::mouseClick(m_p->pBox->button(QDialogButtonBox::Reset), Qt::LeftButton);
    QCOMPARE(m_p->shown(), sBefore);
    m_p->pStyle->setCurrentIndex(0);
    QTest::mouseClick(m_p->pBox->button(QDialogButtonBox::Reset), Qt::LeftButton);
    QCOMPARE(m_p->shown(), sBefore);
}

void tst_CPenDialog::resetShowsThePenGivenLast()
{
    give(QPen(Qt::red, 2));
    show();
    m_pDialog->setCurrentPen(QPen(Qt::green, 3, Qt::DotLine));
    m_p->pWidth->setValue(9);
    QTest::mouseClick(m_p->pBox->button(QDialogButtonBox::Reset), Qt::LeftButton);
    QCOMPARE(m_p->shown(), QStringLiteral("#ff00ff00;3.00;DotLine"));
}

void tst_CPenDialog::everythingThatIsNotShownPassesThrough()
{
    give(fullPen());
    show();
    m_p->chooseColor(QColor(50, 60, 70, 80));
    m_p->pWidth->setValue(4);
    m_p->pStyle->setCurrentIndex(3);
    QPen expected = fullPen();
    expected.setBrush(QBrush(QColor(50, 60, 70, 80), Qt::Dense4Pattern));
    expected.setWidthF(4);
    expected.setStyle(Qt::DotLine);
    const QPen selected = m_pDialog->selectedPen();
    QCOMPARE(selected.brush(), expected.brush());
    QCOMPARE(selected.capStyle(), Qt::RoundCap);
    QCOMPARE(selected.joinStyle(), Qt::MiterJoin);
    QCOMPARE(selected.miterLimit(), 7.5);
    QVERIFY(selected.isCosmetic());
    QCOMPARE(selected, expected);
}

void tst_CPenDialog::acceptingDoesNotChangeTheCurrentPen()
{
    give(QPen(Qt::red, 2));
    show();
    m_p->pWidth->setValue(4);
    QTest::mouseClick(m_p->pBox->button(QDialogButtonBox::Ok), Qt::LeftButton);
    QCOMPARE(m_pDialog->result(), int(QDialog::Accepted));
    QCOMPARE(m_pDialog->currentPen(), QPen(Qt::red, 2));
    QCOMPARE(m_pDialog->selectedPen(), QPen(Qt::red, 4));
}

void tst_CPenDialog::theStaticCallAnswersThePen_data()
{
    QTest::addColumn<QPen>("pen");
    QTest::addColumn<QString>("action");
    QTest::addColumn<bool>("accepted");
    const QPen red(Qt::red, 2.5, Qt::DashLine, Qt::RoundCap);
    QPen own(Qt::red, 3);
    own.setDashPattern({1, 2});
    QTest::newRow("OK") << red << QStringLiteral("ok") << true;
    QTest::newRow("OK, everything else") << fullPen() << QStringLiteral("ok") << true;
    QTest::newRow("Cancel") << red << QStringLiteral("cancel") << false;
    QTest::newRow("Cancel, an own pattern") << own << QStringLiteral("cancel") << false;
    QTest::newRow("Escape") << red << QStringLiteral("escape") << false;
    QTest::newRow("closing the window") << red << QStringLiteral("close") << false;
}

void tst_CPenDialog::theStaticCallAnswersThePen()
{
    QFETCH(QPen, pen);
    QFETCH(QString, action);
    QFETCH(bool, accepted);
    const ModalDriver driver([&](QDialog& dialog) {
        const Parts parts(dialog);
        if (action != QLatin1String("ok"))
            parts.pWidth->setValue(77);
        if (action == QLatin1String("ok"))
            QTest::mouseClick(parts.pBox->button(QDialogButtonBox::Ok), Qt::LeftButton);
        else if (action == QLatin1String("cancel"))
            QTest::mouseClick(parts.pBox->button(QDialogButtonBox::Cancel), Qt::LeftButton);
        else if (action == QLatin1String("escape"))
            QTest::keyClick(&dialog, Qt::Key_Escape);
        else
            dialog.close();
    });
    bool ok = !accepted;
    const QPen result = CPenDialog::getPen(&ok, pen, nullptr, QString());
    QVERIFY(driver.hasActed());
    QCOMPARE(ok, accepted);
    QCOMPARE(result, pen); // unchanged, or as it was given
}

void tst_CPenDialog::theStaticCallWorksWithoutFlag()
{
    for (const bool accepts : {true, false}) {
        const ModalDriver driver([accepts](QDialog& dialog) {
            Parts(dialog).pWidth->setValue(8);
            dialog.done(accepts ? QDialog::Accepted : QDialog::Rejected);
        });
        const QPen result = CPenDialog::getPen(nullptr, QPen(Qt::red, 2), nullptr, QString());
        QVERIFY(driver.hasActed());
        QCOMPARE(result, QPen(Qt::red, accepts ? 8 : 2));
    }
}

void tst_CPenDialog::theStaticCallAnswersTheUsersPen()
{
    const ModalDriver driver([](QDialog& dialog) {
        const Parts parts(dialog);
        QTest::keyClick(parts.pStyle, Qt::Key_Down);
        parts.pWidth->setFocus();
        parts.pWidth->selectAll();
        QTest::keyClicks(parts.pWidth, QStringLiteral("6"));
        QTest::mouseClick(parts.pBox->button(QDialogButtonBox::Ok), Qt::LeftButton);
    });
    bool ok = false;
    const QPen result = CPenDialog::getPen(&ok, fullPen(), nullptr, QString());
    QVERIFY(driver.hasActed());
    QVERIFY(ok);
    QPen expected = fullPen();
    expected.setStyle(Qt::DotLine);
    expected.setWidthF(6);
    QCOMPARE(result, expected);
}

void tst_CPenDialog::theStaticCallTakesParentAndTitle()
{
    QWidget parent;
    parent.show();
    for (const QString& sTitle : {QString(), QStringLiteral(""), QStringLiteral("Grid lines")}) {
        const ModalDriver driver([&](QDialog& dialog) {
            QVERIFY(qobject_cast<CPenDialog*>(&dialog));
            QCOMPARE(dialog.windowTitle(), sTitle.isEmpty() ? QStringLiteral("Pen Settings") : sTitle);
            QCOMPARE(dialog.parentWidget(), sTitle.isNull() ? nullptr : &parent);
            QVERIFY(dialog.isModal());
            dialog.reject();
        });
        bool ok = true;
        CPenDialog::getPen(&ok, QPen(), sTitle.isNull() ? nullptr : &parent, sTitle);
        QVERIFY(driver.hasActed());
        QVERIFY(!ok);
    }
    QVERIFY(parent.findChildren<QDialog*>().isEmpty());
}

void tst_CPenDialog::itsButtonsCanBeReached()
{
    QCOMPARE(m_pDialog->buttonBox(), m_p->pBox);
    QCOMPARE(m_pDialog->button(QDialogButtonBox::Reset), m_p->pBox->button(QDialogButtonBox::Reset));
    QVERIFY(!m_pDialog->button(QDialogButtonBox::Apply));
    m_pDialog->setBtnEnable(QDialogButtonBox::Ok, false);
    QVERIFY(!m_p->pBox->button(QDialogButtonBox::Ok)->isEnabled());
    m_pDialog->setBtnEnable(QDialogButtonBox::Apply, false); // there is none
}

TESSERA_TEST_MAIN(tst_CPenDialog)
#include "tst_CPenDialog.moc"
