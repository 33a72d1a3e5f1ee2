// SPDX-License-Identifier: MIT
#include "support/TestMain.h"

#include <Tessera/CISpinBox/CU32SpinBox.h>
#include <Tessera/services/CWheelGuard.h>
#include <Tessera/widgets/CDataComboBox.h>
#include <Tessera/widgets/CDSpinBox.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QDial>
#include <QDialog>
#include <QLineEdit>
#include <QPointer>
#include <QScopedPointer>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QStandardItemModel>
#include <QTabBar>
#include <QTableView>
#include <QtTest>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <memory>

using nsUI::CWheelGuard;

namespace {

constexpr int nNotch = 120;
constexpr int nAbove = 100; // room above a page's content, so that it stays in sight when it is scrolled
const QPoint oneDown(0, -nNotch);
const QPoint oneUp(0, nNotch);
const QPoint oneSideways(-nNotch, 0);

//! A turn of the wheel over a widget. Without a phase it is a mouse's.
struct Turn
{
    QPoint angle = oneDown;
    QPoint pixels;
    Qt::ScrollPhase phase = Qt::NoScrollPhase;
};

//! Sees whether a wheel goes all the way up to a window: nobody below has used it then.
class LastStop : public QObject
{
public:
    explicit LastStop(QWidget* pWindow) { pWindow->installEventFilter(this); }

    bool bReached = false;

    bool eventFilter(QObject*, QEvent* event) override
    {
        bReached = bReached || event->type() == QEvent::Wheel;
        return false;
    }
};

//! Sends a widget a wheel as a program does: Qt leaves it there. Answers whether it was used.
bool sendTurn(QWidget* pWidget, const QPoint& angle)
{
    const QPoint place = pWidget->rect().center();
    QWheelEvent event(place, pWidget->mapToGlobal(place), QPoint(), angle, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(pWidget, &event);
    return event.isAccepted();
}

//! Turns a wheel over a widget: what the window finds there has it first. Answers whether anybody in it has used it.
bool turn(QWidget* pOver, const Turn& aTurn)
{
    QWidget* const pWindow = pOver->window();
    const QPoint inWindow = pOver->mapTo(pWindow, pOver->rect().center());
    QWidget* const pUnder = pWindow->childAt(inWindow);
    if (pUnder == nullptr)
        qFatal("the widget is out of sight");
    const LastStop lastStop(pWindow);
    QWheelEvent event(pUnder->mapFrom(pWindow, inWindow), pWindow->mapToGlobal(inWindow), aTurn.pixels, aTurn.angle,
                      Qt::NoButton, Qt::NoModifier, aTurn.phase, false);
    QSpontaneKeyEvent::setSpontaneous(&event); // else it would be a program's, and go no further
    qApp->notify(pUnder, &event);
    return !lastStop.bReached;
}

bool turn(QWidget* pOver, const QPoint& angle = oneDown)
{
    Turn aTurn;
    aTurn.angle = angle;
    return turn(pOver, aTurn);
}

//! What a box of any kind shows.
QVariant valueOf(const QWidget* pBox)
{
    if (const auto* const pSpin = qobject_cast<const QAbstractSpinBox*>(pBox))
        return pSpin->text();
    if (const auto* const pCombo = qobject_cast<const QComboBox*>(pBox))
        return pCombo->currentIndex();
    if (const auto* const pSlider = qobject_cast<const QAbstractSlider*>(pBox))
        return pSlider->value();
    return qobject_cast<const QTabBar*>(pBox)->currentIndex();
}

//! A box of a kind, somewhere in the middle of its range, so that the wheel can change it both ways.
QWidget* makeBox(const QString& sKind)
{
    const QStringList texts{QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")};
    const auto inTheMiddle = [](auto* pBox) {
        pBox->setValue(50);
        return pBox;
    };
    const auto withTexts = [&](QComboBox* pBox) {
        pBox->addItems(texts);
        pBox->setCurrentIndex(1);
        return pBox;
    };
    if (sKind == QLatin1String("QSpinBox"))
        return inTheMiddle(new QSpinBox);
    if (sKind == QLatin1String("CU32SpinBox"))
        return inTheMiddle(new nsUI::CU32SpinBox);
    if (sKind == QLatin1String("CDSpinBox"))
        return inTheMiddle(new nsUI::CDSpinBox);
    if (sKind == QLatin1String("QDateTimeEdit"))
        return new QDateTimeEdit(QDate(2001, 2, 3), nullptr);
    if (sKind == QLatin1String("QComboBox"))
        return withTexts(new QComboBox);
    if (sKind == QLatin1String("CDataComboBox"))
        return withTexts(new nsUI::CDataComboBox);
    if (sKind == QLatin1String("an editable QComboBox")) {
        QComboBox* const pBox = withTexts(new QComboBox);
        pBox->setEditable(true);
        return pBox;
    }
    if (sKind == QLatin1String("QSlider"))
        return inTheMiddle(new QSlider(Qt::Horizontal));
    if (sKind == QLatin1String("QDial"))
        return inTheMiddle(new QDial);
    auto* const pTabs = new QTabBar;
    for (const QString& sText : texts)
        pTabs->addTab(sText);
    pTabs->setCurrentIndex(1);
    return pTabs;
}

void addKinds()
{
    QTest::addColumn<QString>("kind");
    for (const char* const kind : {"QSpinBox", "CU32SpinBox", "CDSpinBox", "QDateTimeEdit", "QComboBox",
                                   "CDataComboBox", "an editable QComboBox", "QSlider", "QDial", "QTabBar"})
        QTest::newRow(kind) << QString::fromLatin1(kind);
}

//! The box itself, and what lies in it that the pointer can be over.
QList<QWidget*> under(QWidget* pBox)
{
    QList<QWidget*> all{pBox};
    if (auto* const pEdit = pBox->findChild<QLineEdit*>())
        all << pEdit;
    return all;
}

//! Records the wheels that come to it.
class Catcher : public QWidget
{
public:
    using QWidget::QWidget;

    QList<QPoint> turns;

protected:
    void wheelEvent(QWheelEvent* event) override
    {
        turns << event->angleDelta();
        event->accept();
    }
};

//! A page with a field, which has the focus, a box, and more than it can show of either side.
class Page : public QScrollArea
{
public:
    explicit Page(QWidget* pBox = nullptr, QWidget* pParent = nullptr)
        : QScrollArea(pParent)
    {
        auto* const pContent = new QWidget;
        pContent->setMinimumSize(1000, 2000);
        auto* const pLayout = new QVBoxLayout(pContent);
        pField = new QLineEdit;
        pLayout->addSpacing(nAbove);
        pLayout->addWidget(pField, 0, Qt::AlignLeft);
        if (pBox != nullptr)
            pLayout->addWidget(pBox, 0, Qt::AlignLeft);
        pLayout->addStretch(1);
        setWidgetResizable(true);
        setWidget(pContent);
        setWindowFlag(Qt::FramelessWindowHint);
        resize(300, 400);
    }

    bool open()
    {
        show();
        activateWindow();
        pField->setFocus();
        return QTest::qWaitForWindowActive(this) && pField->hasFocus();
    }

    void add(QWidget* pWidget)
    {
        static_cast<QVBoxLayout*>(widget()->layout())->insertWidget(2, pWidget, 0, Qt::AlignLeft);
        QCoreApplication::processEvents();
    }

    //! How far it is scrolled oneDown; it goes back to the top.
    int takeScrolled()
    {
        const int nScrolled = verticalScrollBar()->value();
        verticalScrollBar()->setValue(0);
        return nScrolled;
    }

    QLineEdit* pField = nullptr;
};

//! A page whose box is guarded, or a box on an ordinary page.
struct Stage
{
    explicit Stage(const QString& sKind, bool bGuards = true)
        : pBox(makeBox(sKind))
        , page(pBox)
    {
        if (bGuards)
            new CWheelGuard(&page);
        bOpen = page.open();
    }

    QWidget* pBox;
    Page page;
    bool bOpen = false;
};

} // namespace

class tst_CWheelGuard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itDeclaresNothing();
    void itBelongsToWhatItGuards();

    // A box
    void withoutAGuardTheWheelChangesABox_data();
    void withoutAGuardTheWheelChangesABox();
    void theWheelOverABoxScrollsThePage_data();
    void theWheelOverABoxScrollsThePage();
    void theWheelChangesABoxWithTheFocus_data();
    void theWheelChangesABoxWithTheFocus();
    void theFocusInsideABoxIsTheBoxesToo();
    void theWheelGivesNoFocus_data();
    void theWheelGivesNoFocus();
    void aDisabledBoxLetsThePageScroll();
    void aBoxInAnInactiveWindowLetsThePageScroll();
    void aWheelThatAProgramSendsScrollsThePageToo();

    // What scrolls
    void scrollBarsGoOnScrolling();
    void theListOfAComboBoxGoesOnScrolling();
    void theNearestAreaThatCanScrollDoes();
    void aWheelSidewaysScrollsSideways();
    void aTouchpadScrollsBySmallSteps();
    void aGestureThatBeginsOverABoxIsThePages();
    void theAreaLearnsWhereThePointerIs();
    void withoutAnAreaTheParentsHaveTheWheel();
    void aWindowsEndIsTheEndOfTheWay();
    void whatKeepsItsWheelsKeepsThem();

    // What is guarded
    void oneBoxIsGuarded();
    void whatIsAddedLaterIsGuarded();
    void whatIsMovedInIsGuarded();
    void whatIsTakenOutIsNot();
    void anEditorOfAViewIsGuarded();
    void aDialogOfThePageIsGuarded();
    void theApplicationIsGuarded();
    void anythingElseGuardsNothing();
    void severalGuardsAreAsGoodAsOne();
    void aDeletedGuardGuardsNothing();
    void theHostMayDeleteTheBoxMeanwhile_data();
    void theHostMayDeleteTheBoxMeanwhile();
    void theHostMayDeleteThePageMeanwhile();
};

void tst_CWheelGuard::itDeclaresNothing()
{
    const QMetaObject& meta = CWheelGuard::staticMetaObject;
    QCOMPARE(meta.className(), "nsUI::CWheelGuard");
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

void tst_CWheelGuard::itBelongsToWhatItGuards()
{
    auto pWidget = std::make_unique<QWidget>();
    const QPointer<CWheelGuard> pGuard = new CWheelGuard(pWidget.get());
    QCOMPARE(pGuard->parent(), pWidget.get());
    pWidget.reset();
    QVERIFY(pGuard.isNull());
}

void tst_CWheelGuard::withoutAGuardTheWheelChangesABox_data()
{
    addKinds();
}

void tst_CWheelGuard::withoutAGuardTheWheelChangesABox()
{
    QFETCH(QString, kind);
    const Stage stage(kind, false);
    QVERIFY(stage.bOpen);
    const QVariant before = valueOf(stage.pBox);
    turn(stage.pBox);
    QVERIFY(valueOf(stage.pBox) != before);
}

void tst_CWheelGuard::theWheelOverABoxScrollsThePage_data()
{
    addKinds();
}

void tst_CWheelGuard::theWheelOverABoxScrollsThePage()
{
    QFETCH(QString, kind);
    Stage stage(kind);
    QVERIFY(stage.bOpen);
    const QVariant before = valueOf(stage.pBox);
    for (QWidget* const pUnder : under(stage.pBox)) {
        QVERIFY(turn(pUnder));
        const int nScrolled = stage.page.verticalScrollBar()->value();
        QVERIFY(nScrolled > 0);
        QVERIFY(turn(pUnder, oneUp));
        QVERIFY(stage.page.takeScrolled() < nScrolled);
        QVERIFY(!turn(pUnder, oneUp)); // nothing is left to scroll
        QCOMPARE(valueOf(stage.pBox), before);
    }
    // As far as over the page itself.
    turn(stage.pBox);
    const int nOverBox = stage.page.takeScrolled();
    turn(stage.page.pField);
    QCOMPARE(stage.page.takeScrolled(), nOverBox);
}

void tst_CWheelGuard::theWheelChangesABoxWithTheFocus_data()
{
    addKinds();
}

void tst_CWheelGuard::theWheelChangesABoxWithTheFocus()
{
    QFETCH(QString, kind);
    Stage stage(kind);
    stage.pBox->setFocus(Qt::TabFocusReason);
    QVERIFY(stage.pBox->hasFocus());
    const QVariant before = valueOf(stage.pBox);
    for (QWidget* const pUnder : under(stage.pBox)) {
        turn(pUnder);
        QVERIFY(valueOf(stage.pBox) != before);
        turn(pUnder, oneUp);
        QCOMPARE(valueOf(stage.pBox), before);
    }
    QCOMPARE(stage.page.takeScrolled(), 0);
    stage.page.pField->setFocus();
    turn(stage.pBox);
    QCOMPARE(valueOf(stage.pBox), before);
}

void tst_CWheelGuard::theFocusInsideABoxIsTheBoxesToo()
{
    Stage stage(QStringLiteral("an editable QComboBox"));
    auto* const pEdit = stage.pBox->findChild<QLineEdit*>();
    pEdit->setFocusProxy(nullptr);
    pEdit->setFocus();
    QVERIFY(pEdit->hasFocus());
    QVERIFY(!stage.pBox->hasFocus());
    turn(stage.pBox);
    QCOMPARE(valueOf(stage.pBox), QVariant(2));
    QCOMPARE(stage.page.takeScrolled(), 0);
}

void tst_CWheelGuard::theWheelGivesNoFocus_data()
{
    addKinds();
}

void tst_CWheelGuard::theWheelGivesNoFocus()
{
    QFETCH(QString, kind);
    Stage stage(kind);
    QVERIFY(stage.bOpen);
    QVERIFY(stage.pBox->focusPolicy() != Qt::WheelFocus);
    for (QWidget* const pUnder : under(stage.pBox)) {
        turn(pUnder);
        turn(pUnder, oneUp);
        QVERIFY(stage.page.pField->hasFocus());
    }
    // A click gives it where it did before.
    const QScopedPointer<QWidget> pPlain(makeBox(kind));
    const Qt::FocusPolicy policy = pPlain->focusPolicy();
    QCOMPARE(stage.pBox->focusPolicy(), policy == Qt::WheelFocus ? Qt::StrongFocus : policy);
}

void tst_CWheelGuard::aDisabledBoxLetsThePageScroll()
{
    Stage stage(QStringLiteral("QSpinBox"));
    stage.pBox->setEnabled(false);
    for (QWidget* const pUnder : under(stage.pBox)) {
        QVERIFY(turn(pUnder));
        QVERIFY(stage.page.takeScrolled() > 0);
    }
    QCOMPARE(valueOf(stage.pBox), QVariant(QStringLiteral("50")));
}

void tst_CWheelGuard::aBoxInAnInactiveWindowLetsThePageScroll()
{
    Stage stage(QStringLiteral("QSpinBox"));
    stage.pBox->setFocus();
    QWidget other;
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    QCOMPARE(stage.page.focusWidget(), stage.pBox);
    QVERIFY(turn(stage.pBox));
    QVERIFY(stage.page.takeScrolled() > 0);
    QCOMPARE(valueOf(stage.pBox), QVariant(QStringLiteral("50")));
}

void tst_CWheelGuard::aWheelThatAProgramSendsScrollsThePageToo()
{
    Stage stage(QStringLiteral("QSpinBox"));
    QVERIFY(sendTurn(stage.pBox, oneDown));
    QVERIFY(stage.page.verticalScrollBar()->value() > 0);
    QVERIFY(sendTurn(stage.pBox, oneUp));
    QCOMPARE(stage.page.takeScrolled(), 0);
    QVERIFY(!sendTurn(stage.pBox, oneUp)); // nothing is left to scroll
    QCOMPARE(valueOf(stage.pBox), QVariant(QStringLiteral("50")));
}

void tst_CWheelGuard::scrollBarsGoOnScrolling()
{
    auto* const pFree = new QScrollBar(Qt::Vertical);
    Page page(pFree);
    new CWheelGuard(&page);
    QVERIFY(page.open());
    turn(page.verticalScrollBar());
    QVERIFY(page.takeScrolled() > 0);
    turn(pFree);
    QVERIFY(pFree->value() > 0);
    QCOMPARE(page.takeScrolled(), 0);
    QVERIFY(!pFree->hasFocus());
}

void tst_CWheelGuard::theListOfAComboBoxGoesOnScrolling()
{
    auto* const pBox = new QComboBox;
    for (int i = 0; i < 100; ++i)
        pBox->addItem(QString::number(i));
    Page page(pBox);
    new CWheelGuard(&page);
    QVERIFY(page.open());
    pBox->showPopup();
    QScrollBar* const pBar = pBox->view()->verticalScrollBar();
    const int nBefore = pBar->value();
    QVERIFY(pBar->maximum() > nBefore);
    turn(pBox->view()->viewport());
    QVERIFY(pBar->value() > nBefore);
    pBox->hidePopup();
    QCOMPARE(pBox->currentIndex(), 0);
    QCOMPARE(page.takeScrolled(), 0);
}

void tst_CWheelGuard::theNearestAreaThatCanScrollDoes()
{
    auto* const pBox = new QSpinBox;
    auto* const pInner = new Page(pBox);
    pInner->setFixedSize(200, 220);
    pInner->widget()->setMinimumHeight(290); // its box stays in sight
    Page outer(pInner);
    new CWheelGuard(&outer);
    QVERIFY(outer.open());
    QVERIFY(turn(pBox));
    QVERIFY(pInner->verticalScrollBar()->value() > 0);
    QCOMPARE(outer.takeScrolled(), 0);
    pInner->verticalScrollBar()->setValue(pInner->verticalScrollBar()->maximum());
    QVERIFY(turn(pBox)); // the inner one has come to its end
    QCOMPARE(pInner->verticalScrollBar()->value(), pInner->verticalScrollBar()->maximum());
    QVERIFY(outer.verticalScrollBar()->value() > 0);
    QVERIFY(turn(pBox, oneUp));
    QVERIFY(pInner->verticalScrollBar()->value() < pInner->verticalScrollBar()->maximum());
    QVERIFY(outer.takeScrolled() > 0);
    QCOMPARE(pBox->value(), 0);

    pInner->takeScrolled();
    pInner->setEnabled(false); // one that cannot be used is not scrolled
    QVERIFY(turn(pBox));
    QCOMPARE(pInner->verticalScrollBar()->value(), 0);
    QVERIFY(outer.takeScrolled() > 0);
}

void tst_CWheelGuard::aWheelSidewaysScrollsSideways()
{
    Stage stage(QStringLiteral("QSlider"));
    QVERIFY(turn(stage.pBox, oneSideways));
    QVERIFY(stage.page.horizontalScrollBar()->value() > 0);
    QCOMPARE(stage.page.takeScrolled(), 0);
    QCOMPARE(valueOf(stage.pBox), QVariant(50));
}

void tst_CWheelGuard::aTouchpadScrollsBySmallSteps()
{
    Stage stage(QStringLiteral("CU32SpinBox"));
    const auto scrolledOver = [&](QWidget* pUnder) {
        for (int i = 0; i < 12; ++i) {
            Turn aTurn;
            aTurn.angle = QPoint(0, -10); // twelve make one notch
            aTurn.pixels = QPoint(0, -3);
            turn(pUnder, aTurn);
        }
        return stage.page.takeScrolled();
    };
    const int nOverField = scrolledOver(stage.page.pField);
    QVERIFY(nOverField > 0);
    QCOMPARE(scrolledOver(stage.pBox), nOverField);
    QCOMPARE(valueOf(stage.pBox), QVariant(QStringLiteral("50")));
}

void tst_CWheelGuard::aGestureThatBeginsOverABoxIsThePages()
{
    Stage stage(QStringLiteral("QSpinBox"));
    const auto gesture = [&](QWidget* pUnder, Qt::ScrollPhase phase) {
        Turn aTurn;
        aTurn.angle = phase == Qt::ScrollUpdate ? oneDown / 4 : QPoint();
        aTurn.phase = phase;
        turn(pUnder, aTurn);
    };
    for (int nRound = 0; nRound < 2; ++nRound) {
        gesture(stage.pBox, Qt::ScrollBegin);
        int nScrolled = 0;
        for (int i = 0; i < 3; ++i) {
            gesture(stage.pBox, Qt::ScrollUpdate);
            QVERIFY(stage.page.verticalScrollBar()->value() > nScrolled);
            nScrolled = stage.page.verticalScrollBar()->value();
        }
        gesture(stage.pBox, Qt::ScrollEnd);
        stage.page.takeScrolled();
    }
    QVERIFY(stage.page.pField->hasFocus());
    QCOMPARE(valueOf(stage.pBox), QVariant(QStringLiteral("50")));
}

void tst_CWheelGuard::theAreaLearnsWhereThePointerIs()
{
    class Area : public Page
    {
    public:
        using Page::Page;
        QPoint place;
        QPointF onScreen;
        QPoint pixels;

    protected:
        void wheelEvent(QWheelEvent* event) override
        {
            place = event->position().toPoint();
            onScreen = event->globalPosition();
            pixels = event->pixelDelta();
            event->accept();
        }
    };
    auto* const pBox = new QSpinBox;
    Area area(pBox);
    new CWheelGuard(&area);
    QVERIFY(area.open());
    area.horizontalScrollBar()->setValue(5);
    const QPoint expected = pBox->mapTo(area.viewport(), pBox->rect().center());
    Turn aTurn;
    aTurn.pixels = QPoint(1, -7);
    QVERIFY(turn(pBox, aTurn));
    QCOMPARE(area.place, expected);
    QCOMPARE(area.onScreen, QPointF(area.viewport()->mapToGlobal(expected)));
    QCOMPARE(area.pixels, QPoint(1, -7));
}

void tst_CWheelGuard::withoutAnAreaTheParentsHaveTheWheel()
{
    Catcher window;
    auto* const pHolder = new QWidget(&window);
    auto* const pLayout = new QVBoxLayout(pHolder);
    auto* const pBox = new QSpinBox;
    pLayout->addWidget(pBox);
    pHolder->resize(200, 100);
    window.resize(200, 100);
    new CWheelGuard(pHolder);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    window.setFocusPolicy(Qt::StrongFocus);
    window.setFocus();
    for (QWidget* const pUnder : under(pBox)) {
        turn(pUnder);
        QCOMPARE(window.turns, QList<QPoint>{oneDown});
        window.turns.clear();
    }
    QCOMPARE(pBox->value(), 0);
}

void tst_CWheelGuard::aWindowsEndIsTheEndOfTheWay()
{
    Page page;
    auto* const pDialog = new QDialog(&page);
    auto* const pBox = new QSpinBox(pDialog);
    auto* const pField = new QLineEdit(pDialog);
    pField->move(0, 100);
    new CWheelGuard(pDialog);
    QVERIFY(page.open());
    pDialog->show();
    QVERIFY(QTest::qWaitForWindowActive(pDialog));
    pField->setFocus();
    QVERIFY(!turn(pBox));
    QCOMPARE(page.takeScrolled(), 0);
    QCOMPARE(pBox->value(), 0);
}

void tst_CWheelGuard::whatKeepsItsWheelsKeepsThem()
{
    auto* const pHolder = new QWidget;
    auto* const pBox = new QSpinBox(pHolder);
    pHolder->setFixedSize(200, 100);
    pHolder->setAttribute(Qt::WA_NoMousePropagation);
    Page page(pHolder);
    new CWheelGuard(&page);
    QVERIFY(page.open());
    turn(pBox);
    QCOMPARE(page.takeScrolled(), 0);
    QCOMPARE(pBox->value(), 0);
}

void tst_CWheelGuard::oneBoxIsGuarded()
{
    auto* const pBox = new QSpinBox;
    auto* const pOther = new QSpinBox;
    Page page(pBox);
    page.add(pOther);
    new CWheelGuard(pBox);
    QVERIFY(page.open());
    turn(pBox, oneUp);
    turn(pOther, oneUp);
    QCOMPARE(pBox->value(), 0);
    QCOMPARE(pOther->value(), 1);
    QCOMPARE(pOther->focusPolicy(), Qt::WheelFocus);
}

void tst_CWheelGuard::whatIsAddedLaterIsGuarded()
{
    Page page;
    new CWheelGuard(&page);
    QVERIFY(page.open());
    auto* const pHolder = new QWidget;
    page.add(pHolder);
    auto* const pBox = new QSpinBox(pHolder); // as a child of what is there
    pBox->setValue(50);
    pHolder->setFixedSize(200, 40);
    pBox->show();
    auto* const pCombo = new QComboBox; // with a layout
    pCombo->addItems({QStringLiteral("a"), QStringLiteral("b")});
    page.add(pCombo);
    for (QWidget* const pAdded : {static_cast<QWidget*>(pBox), static_cast<QWidget*>(pCombo)}) {
        const QVariant before = valueOf(pAdded);
        turn(pAdded);
        QCOMPARE(valueOf(pAdded), before);
        QVERIFY(page.takeScrolled() > 0);
        QVERIFY(page.pField->hasFocus());
    }
    pCombo->setEditable(true); // and what a box gets later
    turn(pCombo->lineEdit());
    QCOMPARE(pCombo->currentIndex(), 0);
    QVERIFY(page.takeScrolled() > 0);
    QVERIFY(page.pField->hasFocus());
}

void tst_CWheelGuard::whatIsMovedInIsGuarded()
{
    auto* const pHolder = new QWidget;
    auto* const pBox = new QSpinBox(pHolder);
    pBox->setValue(50);
    pHolder->setFixedSize(200, 40);
    pHolder->show(); // a window of its own, until now
    QVERIFY(QTest::qWaitForWindowExposed(pHolder));
    Page page;
    new CWheelGuard(&page);
    QVERIFY(page.open());
    page.add(pHolder);
    pHolder->show();
    turn(pBox);
    QCOMPARE(pBox->value(), 50);
    QVERIFY(page.takeScrolled() > 0);
    QVERIFY(page.pField->hasFocus());
}

void tst_CWheelGuard::whatIsTakenOutIsNot()
{
    auto* const pHolder = new QWidget;
    auto* const pBox = new QSpinBox(pHolder);
    pHolder->setFixedSize(200, 40);
    Page page(pHolder);
    new CWheelGuard(&page);
    QVERIFY(page.open());
    turn(pBox, oneUp);
    QCOMPARE(pBox->value(), 0);

    Page other;
    QVERIFY(other.open());
    other.add(pHolder);
    turn(pBox, oneUp);
    QCOMPARE(pBox->value(), 1);
    page.add(pHolder); // and back
    turn(pBox, oneUp);
    QCOMPARE(pBox->value(), 1);
}

void tst_CWheelGuard::anEditorOfAViewIsGuarded()
{
    QStandardItemModel model(100, 1);
    for (int nRow = 0; nRow < model.rowCount(); ++nRow)
        model.setData(model.index(nRow, 0), 50);
    auto* const pView = new QTableView;
    pView->setModel(&model);
    Page page(pView);
    new CWheelGuard(&page);
    QVERIFY(page.open());
    pView->openPersistentEditor(model.index(0, 0));
    auto* const pEditor = pView->findChild<QSpinBox*>();
    QVERIFY(pEditor);
    page.pField->setFocus();
    turn(pEditor);
    QCOMPARE(pEditor->value(), 50);
    QVERIFY(pView->verticalScrollBar()->value() > 0);
    QVERIFY(!pEditor->hasFocus());
    pView->verticalScrollBar()->setValue(0);
    pEditor->setFocus();
    turn(pEditor, oneUp);
    QCOMPARE(pEditor->value(), 51);
}

void tst_CWheelGuard::aDialogOfThePageIsGuarded()
{
    Page page;
    new CWheelGuard(&page);
    QVERIFY(page.open());
    QDialog dialog(&page);
    auto* const pBox = new QSpinBox(&dialog);
    auto* const pField = new QLineEdit(&dialog);
    pField->move(0, 100);
    dialog.show();
    dialog.activateWindow();
    pField->setFocus();
    QTRY_VERIFY(pField->hasFocus());
    turn(pBox, oneUp);
    QCOMPARE(pBox->value(), 0);
    QVERIFY(pField->hasFocus());
    pBox->setFocus();
    turn(pBox, oneUp);
    QCOMPARE(pBox->value(), 1);
}

void tst_CWheelGuard::theApplicationIsGuarded()
{
    Stage before(QStringLiteral("QComboBox"), false);
    const QScopedPointer<CWheelGuard> pGuard(new CWheelGuard(qApp));
    QCOMPARE(pGuard->parent(), qApp);
    Stage after(QStringLiteral("QSpinBox"), false);
    QVERIFY(before.page.open());
    for (Stage* const pStage : {&before, &after}) {
        QVERIFY(pStage->page.open());
        const QVariant value = valueOf(pStage->pBox);
        for (QWidget* const pUnder : under(pStage->pBox)) {
            QVERIFY(turn(pUnder));
            QVERIFY(pStage->page.takeScrolled() > 0);
            QVERIFY(pStage->page.pField->hasFocus());
            QCOMPARE(valueOf(pStage->pBox), value);
        }
        pStage->pBox->setFocus();
        turn(pStage->pBox);
        QVERIFY(valueOf(pStage->pBox) != value);
        QCOMPARE(pStage->page.takeScrolled(), 0);
    }
    turn(after.page.verticalScrollBar());
    QVERIFY(after.page.takeScrolled() > 0);
}

void tst_CWheelGuard::anythingElseGuardsNothing()
{
    const QScopedPointer<CWheelGuard> pOfNobody(new CWheelGuard(nullptr));
    Stage stage(QStringLiteral("QSpinBox"), false);
    new CWheelGuard(stage.page.widget()->layout());
    turn(stage.pBox, oneUp);
    QCOMPARE(valueOf(stage.pBox), QVariant(QStringLiteral("51")));
    QCOMPARE(stage.pBox->focusPolicy(), Qt::WheelFocus);
}

void tst_CWheelGuard::severalGuardsAreAsGoodAsOne()
{
    Stage stage(QStringLiteral("QSpinBox"));
    turn(stage.pBox);
    const int nScrolled = stage.page.takeScrolled();
    const QScopedPointer<CWheelGuard> pEverywhere(new CWheelGuard(qApp));
    new CWheelGuard(stage.pBox);
    const QScopedPointer<CWheelGuard> pSecond(new CWheelGuard(&stage.page));
    turn(stage.pBox);
    QCOMPARE(stage.page.takeScrolled(), nScrolled);
    QCOMPARE(valueOf(stage.pBox), QVariant(QStringLiteral("50")));
}

void tst_CWheelGuard::aDeletedGuardGuardsNothing()
{
    Stage stage(QStringLiteral("QSpinBox"));
    delete stage.page.findChild<CWheelGuard*>();
    turn(stage.pBox, oneUp);
    QCOMPARE(valueOf(stage.pBox), QVariant(QStringLiteral("51")));
    QVERIFY(stage.page.pField->hasFocus()); // the box's policy remains
}

void tst_CWheelGuard::theHostMayDeleteTheBoxMeanwhile_data()
{
    QTest::addColumn<bool>("canScroll");
    QTest::newRow("the area scrolls") << true;
    QTest::newRow("the area cannot use it") << false;
}

void tst_CWheelGuard::theHostMayDeleteTheBoxMeanwhile()
{
    class Area : public Page
    {
    public:
        using Page::Page;
        QWidget* pVictim = nullptr;
        bool bScrolls = false;

    protected:
        void wheelEvent(QWheelEvent* event) override
        {
            delete std::exchange(pVictim, nullptr);
            event->setAccepted(bScrolls);
        }
    };
    QFETCH(bool, canScroll);
    Area area;
    area.bScrolls = canScroll;
    new CWheelGuard(&area);
    QVERIFY(area.open());
    for (const bool bSends : {false, true}) {
        const QPointer<QWidget> pBox = new QSpinBox;
        area.add(pBox);
        area.pVictim = pBox;
        QVERIFY(bSends ? sendTurn(pBox, oneDown) : turn(pBox)); // used or not, nobody is to go on with it
        QVERIFY(pBox.isNull());
    }
}

void tst_CWheelGuard::theHostMayDeleteThePageMeanwhile()
{
    const QPointer<Page> pPage = new Page(new QSpinBox);
    new CWheelGuard(pPage);
    QVERIFY(pPage->open());
    connect(pPage->verticalScrollBar(), &QScrollBar::valueChanged, pPage, &QObject::deleteLater);
    turn(pPage->findChild<QSpinBox*>());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(pPage.isNull());
}

TESSERA_TEST_MAIN(tst_CWheelGuard)
#include "tst_CWheelGuard.moc"
