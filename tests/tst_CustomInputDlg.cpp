// SPDX-License-Identifier: MIT
#include "ModalDriver.h"
#include "support/TestMain.h"

#include <Tessera/widgets/CustomInputDlg.h>

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QSpinBox>
#include <QtTest>
#include <QVBoxLayout>

#include <type_traits>

using nsUI::CustomInputDlg;

namespace {

QVBoxLayout* layoutOf(const QDialog& dialog)
{
    return qobject_cast<QVBoxLayout*>(dialog.layout());
}

QFormLayout* formOf(const QDialog& dialog)
{
    return qobject_cast<QFormLayout*>(layoutOf(dialog)->itemAt(0)->layout());
}

} // namespace

class tst_CustomInputDlg : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void itDeclaresNothing();
    void itIsBuiltOfFormRoomAndButtons();
    void aNewDialogHasNoRowsAndNoButtons();
    void itTakesParentAndFlags_data();
    void itTakesParentAndFlags();

    void rowsAreAddedInOrder();
    void theDialogTakesTheFields();
    void aLabelLeadsToItsField();
    void rowsStandAtTheTopAndButtonsAtTheBottom();

    void theFirstFieldHasTheFocus();
    void theFirstFieldThatTakesTabHasTheFocus();
    void aRowMayHaveNoField();
    void tabGoesRound_data();
    void tabGoesRound();
    void tabGoesRoundWithButtonsThatComeLater();
    void theFocusGivenToTheButtonsIsTheFirstButtons();

    void theHostAddsTheButtons();
    void theButtonsDoNothingOfThemselves();
    void aHostsDialogAnswers();

private:
    QScopedPointer<CustomInputDlg> m_pDialog;
};

void tst_CustomInputDlg::init()
{
    m_pDialog.reset(new CustomInputDlg(nullptr, Qt::WindowFlags()));
}

void tst_CustomInputDlg::cleanup()
{
    m_pDialog.reset();
}

void tst_CustomInputDlg::itDeclaresNothing()
{
    const QMetaObject& meta = CustomInputDlg::staticMetaObject;
    QCOMPARE(meta.className(), "nsUI::CustomInputDlg");
    QCOMPARE(meta.superClass(), &QDialog::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.enumeratorCount(), meta.enumeratorOffset());
    QVERIFY(!std::is_default_constructible<CustomInputDlg>::value);
    QVERIFY((std::is_constructible<CustomInputDlg, QWidget*, Qt::WindowFlags>::value));
}

void tst_CustomInputDlg::itIsBuiltOfFormRoomAndButtons()
{
    QVBoxLayout* const pLayout = layoutOf(*m_pDialog);
    QVERIFY(pLayout);
    QCOMPARE(pLayout->count(), 3);
    QVERIFY(formOf(*m_pDialog));
    QVERIFY(pLayout->itemAt(1)->spacerItem());
    QVERIFY(m_pDialog->buttonBox());
    QCOMPARE(pLayout->itemAt(2)->widget(), m_pDialog->buttonBox());
    QCOMPARE(pLayout->stretch(0), 1);
    QCOMPARE(pLayout->stretch(1), 0);
    QCOMPARE(pLayout->stretch(2), 0);
    QCOMPARE(m_pDialog->buttonBox()->parentWidget(), m_pDialog.data());
    QCOMPARE(pLayout->itemAt(1)->spacerItem()->expandingDirections() & Qt::Vertical, Qt::Vertical);
}

void tst_CustomInputDlg::aNewDialogHasNoRowsAndNoButtons()
{
    QCOMPARE(formOf(*m_pDialog)->rowCount(), 0);
    QCOMPARE(m_pDialog->buttonBox()->standardButtons(), QDialogButtonBox::NoButton);
    QVERIFY(m_pDialog->buttonBox()->buttons().isEmpty());
    QVERIFY(m_pDialog->findChildren<QPushButton*>().isEmpty());
    QCOMPARE(m_pDialog->findChildren<QWidget*>(), QList<QWidget*>{m_pDialog->buttonBox()});
    QVERIFY(!m_pDialog->isVisible());
}

void tst_CustomInputDlg::itTakesParentAndFlags_data()
{
    QTest::addColumn<bool>("parent");
    QTest::addColumn<int>("flags");
    const int nOwn = int(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    QTest::newRow("a plain dialog") << true << int(Qt::Dialog);
    QTest::newRow("flags of its own") << true << nOwn;
    QTest::newRow("without a parent") << false << nOwn;
    QTest::newRow("frameless") << false << int(Qt::Dialog | Qt::FramelessWindowHint);
}

void tst_CustomInputDlg::itTakesParentAndFlags()
{
    QFETCH(bool, parent);
    QFETCH(int, flags);
    QWidget owner;
    QWidget* const pOwner = parent ? &owner : nullptr;
    const CustomInputDlg dialog(pOwner, Qt::WindowFlags(flags));
    QCOMPARE(dialog.parentWidget(), pOwner);
    QVERIFY(dialog.isWindow());
    const QDialog plain(pOwner, Qt::WindowFlags(flags));
    const Qt::WindowFlags help = Qt::WindowContextHelpButtonHint;
    QCOMPARE(dialog.windowFlags() & ~help, plain.windowFlags() & ~help);
}

void tst_CustomInputDlg::rowsAreAddedInOrder()
{
    const QStringList labels{QStringLiteral("Name:"), QStringLiteral("Address:"), QString(), QStringLiteral("&Width:")};
    QList<QWidget*> fields;
    for (const QString& sLabel : labels) {
        fields << new QLineEdit;
        m_pDialog->addRow(sLabel, fields.last());
    }
    const QFormLayout* const pForm = formOf(*m_pDialog);
    QCOMPARE(pForm->rowCount(), 4);
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(pForm->itemAt(i, QFormLayout::FieldRole)->widget(), fields.at(i));
        const auto* const pLabel = qobject_cast<QLabel*>(pForm->labelForField(fields.at(i)));
        QCOMPARE(pLabel ? pLabel->text() : QString(), labels.at(i));
    }
    QCOMPARE(layoutOf(*m_pDialog)->count(), 3);
}

void tst_CustomInputDlg::theDialogTakesTheFields()
{
    QWidget former;
    QPointer<QSpinBox> pField = new QSpinBox(&former);
    m_pDialog->addRow(QStringLiteral("Value:"), pField);
    QCOMPARE(pField->parentWidget(), m_pDialog.data());
    m_pDialog->show();
    QVERIFY(pField->isVisible());
    m_pDialog.reset();
    QVERIFY(pField.isNull());
}

void tst_CustomInputDlg::aLabelLeadsToItsField()
{
    auto* const pFirst = new QLineEdit;
    auto* const pSecond = new QLineEdit;
    m_pDialog->addRow(QStringLiteral("&First:"), pFirst);
    m_pDialog->addRow(QStringLiteral("&Second:"), pSecond);
    m_pDialog->show();
    QVERIFY(QTest::qWaitForWindowActive(m_pDialog.data()));
    QCOMPARE(qobject_cast<QLabel*>(formOf(*m_pDialog)->labelForField(pSecond))->buddy(), pSecond);
    QTest::keyClick(m_pDialog.data(), Qt::Key_S, Qt::AltModifier);
    QVERIFY(pSecond->hasFocus());
}

void tst_CustomInputDlg::rowsStandAtTheTopAndButtonsAtTheBottom()
{
    auto* const pFirst = new QLineEdit;
    auto* const pSecond = new QLineEdit;
    m_pDialog->addRow(QStringLiteral("First:"), pFirst);
    m_pDialog->addRow(QStringLiteral("Second:"), pSecond);
    m_pDialog->buttonBox()->setStandardButtons(QDialogButtonBox::Ok);
    m_pDialog->layout()->setContentsMargins(0, 0, 0, 0);
    m_pDialog->resize(300, 500);
    m_pDialog->show();
    QCOMPARE(pFirst->geometry().top(), 0);
    QVERIFY(pSecond->geometry().top() > pFirst->geometry().bottom());
    QVERIFY(pSecond->geometry().bottom() < 150);
    QCOMPARE(m_pDialog->buttonBox()->geometry().bottom(), 499);
    QVERIFY(m_pDialog->buttonBox()->geometry().top() > 400);
}

void tst_CustomInputDlg::theHostAddsTheButtons()
{
    QPushButton* const pOk = m_pDialog->buttonBox()->addButton(QDialogButtonBox::Ok);
    m_pDialog->buttonBox()->addButton(QStringLiteral("Try"), QDialogButtonBox::ActionRole);
    m_pDialog->show();
    QVERIFY(pOk->isVisible());
    QCOMPARE(m_pDialog->buttonBox()->buttons().size(), 2);
}

void tst_CustomInputDlg::theButtonsDoNothingOfThemselves()
{
    m_pDialog->buttonBox()->setStandardButtons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel |
                                               QDialogButtonBox::Help);
    m_pDialog->show();
    QSignalSpy finished(m_pDialog.data(), &QDialog::finished);
    for (QAbstractButton* const pButton : m_pDialog->buttonBox()->buttons())
        QTest::mouseClick(pButton, Qt::LeftButton);
    QCOMPARE(finished.count(), 0);
    QVERIFY(m_pDialog->isVisible());
}

void tst_CustomInputDlg::aHostsDialogAnswers()
{
    auto* const pField = new QLineEdit;
    m_pDialog->addRow(QStringLiteral("Name:"), pField);
    m_pDialog->buttonBox()->setStandardButtons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(m_pDialog->buttonBox(), &QDialogButtonBox::accepted, m_pDialog.data(), &QDialog::accept);
    connect(m_pDialog->buttonBox(), &QDialogButtonBox::rejected, m_pDialog.data(), &QDialog::reject);
    for (const bool bAccepts : {true, false}) {
        const ModalDriver driver([&](QDialog&) {
            pField->clear();
            QTest::keyClicks(pField, QStringLiteral("CTRL"));
            QTest::mouseClick(
                m_pDialog->buttonBox()->button(bAccepts ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel),
                Qt::LeftButton);
        });
        QCOMPARE(m_pDialog->exec(), int(bAccepts ? QDialog::Accepted : QDialog::Rejected));
        QVERIFY(driver.hasActed());
        QCOMPARE(pField->text(), QStringLiteral("CTRL"));
    }
}

void tst_CustomInputDlg::theFirstFieldHasTheFocus()
{
    CustomInputDlg dialog(nullptr, Qt::WindowFlags());
    auto* const pNote = new QLabel(QStringLiteral("a note"));
    auto* const pFirst = new QLineEdit;
    auto* const pSecond = new QSpinBox;
    dialog.addRow(QString(), pNote);
    dialog.addRow(QStringLiteral("First"), pFirst);
    dialog.addRow(QStringLiteral("Second"), pSecond);
    dialog.buttonBox()->setStandardButtons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QCOMPARE(QApplication::focusWidget(), pFirst);
    QTest::keyClick(&dialog, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), pSecond);
    QTest::keyClick(&dialog, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), dialog.button(QDialogButtonBox::Ok));
    QVERIFY(!dialog.button(QDialogButtonBox::Apply));
    dialog.setBtnEnable(QDialogButtonBox::Ok, false);
    QVERIFY(!dialog.button(QDialogButtonBox::Ok)->isEnabled());
}

//! A field that leaves the focus to a part of it, one that is left out, and one that only a click reaches.
void tst_CustomInputDlg::theFirstFieldThatTakesTabHasTheFocus()
{
    auto* const pClicked = new QLineEdit;
    pClicked->setFocusPolicy(Qt::ClickFocus);
    auto* const pFramed = new QWidget;
    auto* const pInner = new QLineEdit(pFramed);
    pFramed->setFocusProxy(pInner);
    m_pDialog->addRow(QStringLiteral("Clicked:"), pClicked);
    m_pDialog->addRow(QStringLiteral("Framed:"), pFramed);
    m_pDialog->addRow(QStringLiteral("Last:"), new QLineEdit);
    m_pDialog->buttonBox()->setStandardButtons(QDialogButtonBox::Ok);
    m_pDialog->show();
    QVERIFY(QTest::qWaitForWindowActive(m_pDialog.data()));
    QCOMPARE(QApplication::focusWidget(), pInner);
}

void tst_CustomInputDlg::aRowMayHaveNoField()
{
    m_pDialog->addRow(QStringLiteral("A heading"), nullptr);
    auto* const pField = new QLineEdit;
    m_pDialog->addRow(QStringLiteral("Name:"), pField);
    const QFormLayout* const pForm = formOf(*m_pDialog);
    QCOMPARE(pForm->rowCount(), 2);
    const auto* const pLabel = qobject_cast<QLabel*>(pForm->itemAt(0, QFormLayout::LabelRole)->widget());
    QVERIFY(pLabel);
    QCOMPARE(pLabel->text(), QStringLiteral("A heading"));
    QVERIFY(!pForm->itemAt(0, QFormLayout::FieldRole));
    m_pDialog->show();
    QVERIFY(QTest::qWaitForWindowActive(m_pDialog.data()));
    QCOMPARE(QApplication::focusWidget(), pField);
}

void tst_CustomInputDlg::tabGoesRound_data()
{
    QTest::addColumn<int>("fields");
    QTest::addColumn<bool>("buttonsFirst");
    for (const int nFields : {1, 2, 3}) {
        QTest::addRow("%d fields, then buttons", nFields) << nFields << false;
        QTest::addRow("buttons, then %d fields", nFields) << nFields << true;
    }
}

void tst_CustomInputDlg::tabGoesRound()
{
    QFETCH(int, fields);
    QFETCH(bool, buttonsFirst);
    const auto buttons = QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Help;
    if (buttonsFirst)
        m_pDialog->buttonBox()->setStandardButtons(buttons);
    QWidgetList stops;
    for (int i = 0; i < fields; ++i) {
        stops << new QSpinBox;
        m_pDialog->addRow(QString::number(i), stops.last());
    }
    if (!buttonsFirst)
        m_pDialog->buttonBox()->setStandardButtons(buttons);
    m_pDialog->show();
    QVERIFY(QTest::qWaitForWindowActive(m_pDialog.data()));
    const QLayout* const pButtons = m_pDialog->buttonBox()->layout();
    for (int i = 0; i < pButtons->count(); ++i) {
        if (QWidget* const pButton = pButtons->itemAt(i)->widget())
            stops << pButton;
    }
    const int nStops = fields + 3;
    QCOMPARE(stops.size(), nStops);
    for (int nStop = 0; nStop < 2 * nStops; ++nStop) {
        QCOMPARE(QApplication::focusWidget(), stops.at(nStop % nStops));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    for (int nStop = 2 * nStops; nStop > 0; --nStop) {
        QCOMPARE(QApplication::focusWidget(), stops.at(nStop % nStops));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    }
}

void tst_CustomInputDlg::tabGoesRoundWithButtonsThatComeLater()
{
    auto* const pField = new QLineEdit;
    m_pDialog->addRow(QStringLiteral("Name:"), pField);
    m_pDialog->show();
    QVERIFY(QTest::qWaitForWindowActive(m_pDialog.data()));
    QPushButton* const pOk = m_pDialog->buttonBox()->addButton(QDialogButtonBox::Ok);
    QPushButton* const pCancel = m_pDialog->buttonBox()->addButton(QDialogButtonBox::Cancel);
    m_pDialog->setStyleSheet(QStringLiteral("QPushButton { color: red }")); // lays them out anew
    for (int nRound = 0; nRound < 2; ++nRound) {
        for (QWidget* const pStop : QWidgetList{pField, pOk, pCancel}) {
            QCOMPARE(QApplication::focusWidget(), pStop);
            QTest::keyClick(pStop, Qt::Key_Tab);
        }
    }
}

void tst_CustomInputDlg::theFocusGivenToTheButtonsIsTheFirstButtons()
{
    auto* const pField = new QLineEdit;
    m_pDialog->addRow(QStringLiteral("Name:"), pField);
    QPushButton* const pOk = m_pDialog->buttonBox()->addButton(QDialogButtonBox::Ok);
    m_pDialog->show();
    QVERIFY(QTest::qWaitForWindowActive(m_pDialog.data()));
    QTest::keyClick(pField, Qt::Key_Tab);
    QTest::keyClick(pOk, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), pField);
    m_pDialog->buttonBox()->setFocus();
    QCOMPARE(QApplication::focusWidget(), pOk);
}

TESSERA_TEST_MAIN(tst_CustomInputDlg)
#include "tst_CustomInputDlg.moc"
