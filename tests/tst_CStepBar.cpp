// SPDX-License-Identifier: MIT
#include "support/TestMain.h"
#include "TestSupport.h"

#include <Tessera/Tessera.h>
#include <Tessera/widgets/CStepBar.h>

#include <QApplication>
#include <QBoxLayout>
#include <QCheckBox>
#include <QImage>
#include <QLabel>
#include <QMetaMethod>
#include <QPainter>
#include <QPointer>
#include <QScopedPointer>
#include <QScrollArea>
#include <QSet>
#include <QSignalSpy>
#include <QStyleOptionButton>
#include <QSvgRenderer>
#include <QSvgWidget>
#include <QtTest>
#include <QVBoxLayout>

#include <climits>
#include <optional>
#include <random>
#include <utility>

using nsUI::CStepBar;
using nsUI::TesseraGlobal;
using TestSupport::GlobalState;
using TestSupport::MessageRecorder;

Q_DECLARE_METATYPE(QBoxLayout::Direction)
Q_DECLARE_METATYPE(nsUI::CStepBar::Alignment)

namespace {

const QStringList abc{QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")};

QBoxLayout* layoutOf(const CStepBar& bar)
{
    return qobject_cast<QBoxLayout*>(bar.layout());
}

//! The layout's content in order: "_" is room, ">" an arrow, and a step shows its text.
QString arrangement(const CStepBar& bar)
{
    QStringList items;
    for (int i = 0; i < bar.layout()->count(); ++i) {
        QLayoutItem* const pItem = bar.layout()->itemAt(i);
        if (pItem->spacerItem())
            items << QStringLiteral("_");
        else if (qobject_cast<QSvgWidget*>(pItem->widget()))
            items << QStringLiteral(">");
        else if (auto* const pBox = qobject_cast<QCheckBox*>(pItem->widget()))
            items << pBox->text();
        else
            items << QStringLiteral("?");
    }
    return items.join(QLatin1Char(' '));
}

QStringList stepTexts(const CStepBar& bar)
{
    QStringList texts;
    for (int i = 0; i < bar.count(); ++i)
        texts << bar.stepText(i);
    return texts;
}

//! The box and the arrow of a step; the latter stands before the former.
QCheckBox* box(const CStepBar& bar, const QString& sText)
{
    for (QCheckBox* const pBox : bar.findChildren<QCheckBox*>()) {
        if (pBox->text() == sText)
            return pBox;
    }
    return nullptr;
}

QCheckBox* box(const CStepBar& bar, int nIndex)
{
    return box(bar, bar.stepText(nIndex));
}

QSvgWidget* arrow(const CStepBar& bar, int nIndex)
{
    const int nPlace = bar.layout()->indexOf(box(bar, nIndex));
    return qobject_cast<QSvgWidget*>(bar.layout()->itemAt(nPlace - 1)->widget());
}

//! Which arrows are to be seen, one letter a step: "hss" is a first one that is hidden and two that are shown.
QString visibleArrows(const CStepBar& bar)
{
    QString sVisible;
    for (int i = 0; i < bar.count(); ++i)
        sVisible += arrow(bar, i)->isVisible() ? QLatin1Char('s') : QLatin1Char('h');
    return sVisible;
}

QString checkedSteps(const CStepBar& bar)
{
    QString sChecked;
    for (int i = 0; i < bar.count(); ++i)
        sChecked += box(bar, i)->isChecked() ? QLatin1Char('1') : QLatin1Char('0');
    return sChecked;
}

QString enabledSteps(const CStepBar& bar)
{
    QString sEnabled;
    for (int i = 0; i < bar.count(); ++i)
        sEnabled += box(bar, i)->isEnabled() ? QLatin1Char('1') : QLatin1Char('0');
    return sEnabled;
}

//! The picture that an arrow was loaded from; the test's resources hold another colour for each.
QString picture(const QSvgWidget* pArrow)
{
    QImage image(8, 8, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    pArrow->renderer()->render(&painter);
    painter.end();
    return image.pixelColor(4, 4).name(QColor::HexArgb);
}

const QString sForward = QStringLiteral("#ffff0000");
const QString sBack = QStringLiteral("#ff00ff00");
const QString sDownward = QStringLiteral("#ff0000ff");
const QString sUpward = QStringLiteral("#ff808080");

//! Whether a picture of the widget has pixels of exactly this colour.
bool shows(QWidget* pWidget, const QColor& color)
{
    const QImage image = pWidget->grab().toImage().convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) == color.rgb())
                return true;
        }
    }
    return false;
}

/*!
    What a bar of any history holds, told by its rules alone: places in the layout are counted as in a centred bar, and
    what stands at a place goes, whoever it belongs to.
*/
class ExpectedBar
{
public:
    int count() const { return static_cast<int>(m_boxes.size()); }
    int boxId(int nStep) const { return m_boxes.at(nStep); }
    int iconId(int nStep) const { return m_icons.at(nStep); }
    const QList<int>& layout() const { return m_layout; }
    bool isDeleted(int nId) const { return m_deleted.contains(nId); }

    void insert(int nIndex, int nIcon, int nBox)
    {
        const int nStep = qBound(0, nIndex, count());
        m_icons.insert(nStep, nIcon);
        m_boxes.insert(nStep, nBox);
        for (const int nId : {nBox, nIcon}) // a place beyond the end is the end
            m_layout.insert(qMin(2 * nStep + 1, static_cast<int>(m_layout.size())), nId);
    }

    void remove(int nIndex)
    {
        if (nIndex < 0 || nIndex >= count())
            return;
        m_icons.removeAt(nIndex);
        m_boxes.removeAt(nIndex);
        for (int i = 0; i < 2; ++i) {
            const int nId = take(2 * nIndex + 1);
            if (nId != nRoom)
                m_deleted.insert(nId);
        }
    }

    void align(CStepBar::Alignment alignment)
    {
        if (alignment == CStepBar::AlignCenter)
            return;
        take(static_cast<int>(m_layout.size()) - 1);
        take(0);
        if (alignment == CStepBar::AlignStart)
            m_layout.append(nRoom);
        else
            m_layout.prepend(nRoom);
    }

    static constexpr int nRoom = -1;

private:
    int take(int nPlace) { return nPlace >= 0 && nPlace < m_layout.size() ? m_layout.takeAt(nPlace) : nRoom; }

    QList<int> m_icons;
    QList<int> m_boxes;
    QList<int> m_layout{nRoom, nRoom};
    QSet<int> m_deleted;
};

/*!
    A column of steps below a text that needs the more height the narrower it is, on a page that is too narrow for the
    steps: so the text takes from their height.
*/
class NarrowPage : public QScrollArea
{
public:
    NarrowPage(int nSteps, int nWords)
    {
        auto* const pText = new QLabel(QStringLiteral("word ").repeated(nWords));
        pText->setWordWrap(true);
        auto* const pBar = new CStepBar;
        pBar->setDirection(QBoxLayout::TopToBottom);
        pBar->addStep(QStringLiteral("a step with a name that is longer than the page is wide"));
        for (int i = 1; i < nSteps; ++i)
            pBar->addStep(QString::number(i));
        auto* const pCard = new QWidget;
        auto* const pColumn = new QVBoxLayout(pCard);
        pColumn->addWidget(pText);
        pColumn->addWidget(pBar);
        auto* const pContent = new QWidget;
        auto* const pLayout = new QVBoxLayout(pContent);
        pLayout->addWidget(pCard);
        pLayout->addStretch(1);

        setWidgetResizable(true);
        setWidget(pContent);
        pContent->installEventFilter(this); // before the scroll area's own
        resize(600, 200);
        show();
        pContent->setFixedWidth(60);
    }

    //! How often the page's content has changed its size since the last call. It is stopped at a number.
    int takeResizes() { return std::exchange(m_nResizes, 0); }

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override
    {
        if (pWatched == widget() && pEvent->type() == QEvent::Resize && ++m_nResizes > 60)
            return true;
        return QScrollArea::eventFilter(pWatched, pEvent);
    }

private:
    int m_nResizes = 0;
};

//! A bar beside what it is expected to hold.
class Walk
{
public:
    Walk(unsigned nSeed, bool bAligns)
        : m_random(nSeed)
        , m_bAligns(bAligns)
    {
        QObject::connect(&m_bar, &CStepBar::sigStepClicked, &m_bar, [this](int nIndex) { m_clicked << nIndex; });
        m_bar.show();
    }

    void step()
    {
        switch (number(0, m_bAligns ? 11 : 10)) {
        case 0:
        case 1:
        case 2:
        case 3:
            insert();
            break;
        case 4:
        case 5: {
            const int nIndex = index();
            m_bar.remove(nIndex);
            m_expected.remove(nIndex);
            break;
        }
        case 6:
            m_bar.setStepEnabled(number(0, 1) == 1);
            break;
        case 7:
            m_bar.setStepEnabled(index(), number(0, 1) == 1);
            break;
        case 8:
            m_bar.setDirection(static_cast<QBoxLayout::Direction>(number(0, 3)));
            break;
        case 9:
            m_bar.resize(number(20, 400), number(10, 200));
            m_bar.slotSetCurrentStep(index());
            break;
        case 10:
            click();
            break;
        case 11:
            align();
            break;
        }
    }

    void compare()
    {
        QCOMPARE(m_bar.count(), m_expected.count());
        QCOMPARE(m_bar.layout()->count(), m_expected.layout().size());
        for (int i = 0; i < m_bar.layout()->count(); ++i) {
            const int nId = m_expected.layout().at(i);
            QWidget* const pWidget = m_bar.layout()->itemAt(i)->widget();
            QCOMPARE(pWidget, nId == ExpectedBar::nRoom ? nullptr : m_widgets.at(nId).data());
            QCOMPARE(pWidget == nullptr, nId == ExpectedBar::nRoom);
        }
        for (int nId = 0; nId < m_widgets.size(); ++nId)
            QCOMPARE(m_widgets.at(nId).isNull(), m_expected.isDeleted(nId));
        int nCurrent = -1;
        for (int i = m_expected.count() - 1; i >= 0; --i) {
            const auto* const pBox = qobject_cast<QCheckBox*>(m_widgets.at(m_expected.boxId(i)));
            QCOMPARE(m_bar.stepText(i), pBox ? pBox->text() : QString());
            if (pBox && pBox->isChecked())
                nCurrent = i;
        }
        QCOMPARE(m_bar.currentIndex(), nCurrent);
        compareArrows();
    }

private:
    int number(int nFirst, int nLast) { return std::uniform_int_distribution<int>(nFirst, nLast)(m_random); }
    int index() { return number(-2, m_expected.count() + 1); }

    void insert()
    {
        const QSet<QWidget*> before = children();
        const int nIndex = index();
        const QString sText = QString::number(m_widgets.size());
        m_bar.insertStep(nIndex, sText);
        QSet<QWidget*> added = children();
        added.subtract(before);
        QCOMPARE(added.size(), 2);
        QWidget* const pBox = box(m_bar, sText);
        QVERIFY(added.remove(pBox));
        const int nIcon = static_cast<int>(m_widgets.size());
        m_widgets << *added.begin() << pBox;
        m_expected.insert(nIndex, nIcon, nIcon + 1);
    }

    //! Clicks a step, if it can be: the bar says so, and nothing else changes.
    void click()
    {
        if (m_expected.count() == 0)
            return;
        const int nIndex = number(0, m_expected.count() - 1);
        auto* const pBox = qobject_cast<QCheckBox*>(m_widgets.at(m_expected.boxId(nIndex)));
        if (!pBox)
            return;
        const bool bChecked = pBox->isChecked();
        m_clicked.clear();
        pBox->click();
        QCOMPARE(m_clicked, pBox->isEnabled() ? QList<int>{nIndex} : QList<int>());
        QCOMPARE(pBox->isChecked(), bChecked);
    }

    void align()
    {
        const auto alignment = static_cast<CStepBar::Alignment>(number(0, 2));
        m_bar.setAlignment(alignment);
        m_expected.align(alignment);
    }

    //! Only a bar that was never rearranged keeps an arrow for every step.
    void compareArrows()
    {
        if (m_bAligns)
            return;
        for (int i = 0; i < m_expected.count(); ++i) {
            const QWidget* const pIcon = m_widgets.at(m_expected.iconId(i));
            const bool bHidden = pIcon->isHidden() && pIcon->testAttribute(Qt::WA_WState_ExplicitShowHide);
            QCOMPARE(bHidden, i == 0);
        }
    }

    QSet<QWidget*> children() const
    {
        const QList<QWidget*> list = m_bar.findChildren<QWidget*>();
        return QSet<QWidget*>(list.cbegin(), list.cend());
    }

    std::mt19937 m_random;
    bool m_bAligns;
    CStepBar m_bar;
    ExpectedBar m_expected;
    QList<QPointer<QWidget>> m_widgets; // each arrow and its box, in the order they came
    QList<int> m_clicked;
};

} // namespace

class tst_CStepBar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    // Building
    void itsOnlyMethodIsItsSignal();
    void itsAlignmentsAreNumbered();
    void aNewBarIsEmpty();
    void aBarBelongsToItsParent();

    // Steps
    void stepsFollowOneAnotherWithAnArrowBeforeEach();
    void aListIsAddedTextByText();
    void aStepIsInserted_data();
    void aStepIsInserted();
    void aStepIsRemoved_data();
    void aStepIsRemoved();
    void aRemovedStepTakesItsTwoWidgetsAlong();
    void anEmptiedBarCanBeFilledAgain();
    void aStepHasItsText_data();
    void aStepHasItsText();
    void whatAStepIsMadeOf();
    void noItemStretches();

    // Arrows
    void theArrowBeforeTheFirstStepAloneIsHidden();
    void arrowsAreHiddenBeforeTheBarIsShown();
    void otherArrowsAreLeftAsTheyAre();
    void arrowsPointInTheDirection_data();
    void arrowsPointInTheDirection();
    void arrowsPointTheOtherWayWhereTextRunsFromTheRight_data();
    void arrowsPointTheOtherWayWhereTextRunsFromTheRight();
    void arrowsFollowTheDirectionOfText();
    void theSameDirectionReloadsNothing();
    void aChangeOfTheLayoutsOwnDirectionCounts();
    void anUnknownDirectionHasNoArrows();
    void arrowsAreAsHighAndWideAsTheFirstStep_data();
    void arrowsAreAsHighAndWideAsTheFirstStep();
    void theFirstStepAloneTellsTheArrowsSize();
    void arrowsGetTheirSizeWithTheNextResize();
    void aSqueezedStepDoesNotShrinkTheArrows_data();
    void aSqueezedStepDoesNotShrinkTheArrows();
    void aStepThatIsKeptLowKeepsTheArrowsLow();
    void aScrollAreaComesToRest_data();
    void aScrollAreaComesToRest();
    void anEmptyBarCanBeResized();

    // Enabling
    void stepsCannotBeClickedAtFirst();
    void stepsAreEnabledTogether();
    void newStepsTakeTheFlag();
    void oneStepIsEnabledWhileAllAre_data();
    void oneStepIsEnabledWhileAllAre();
    void oneStepCannotBeEnabledWhileNoneIs();
    void theSameFlagAgainChangesNothing();

    // Clicking
    void aClickIsReportedAndMovesNothing_data();
    void aClickIsReportedAndMovesNothing();
    void aDisabledStepReportsNothing();
    void theCheckIsTurnedBackBeforeTheReport();
    void theHostMayMoveInTheReport();
    void aReportCountsTheStepsAsTheyAre();
    void everyReleaseIsAClick();
    void aPressThatIsDraggedOffTurnsTheCheckOver();
    void aPressThatEndsWithDisablingIsNoClick_data();
    void aPressThatEndsWithDisablingIsNoClick();
    void aClickMayDisableTheStep_data();
    void aClickMayDisableTheStep();
    void aStepsKeyClicksIt();
    void nothingElseReports();
    void aStepMayBeRemovedWhileItReports();
    void theBarMayBeDeletedWhileItReports();

    // The current step
    void theHostMakesAStepCurrent_data();
    void theHostMakesAStepCurrent();
    void theFirstCheckedStepIsTheCurrentOne();
    void theCurrentStepIsCountedAnewAfterChanges();
    void aDisabledStepCanBeCurrent();

    // Room
    void theRoomStandsWhereTheAlignmentSays_data();
    void theRoomStandsWhereTheAlignmentSays();
    void theStepsStandWhereTheAlignmentSays_data();
    void theStepsStandWhereTheAlignmentSays();
    void theRoomIsMadeForAnEmptyBarToo_data();
    void theRoomIsMadeForAnEmptyBarToo();
    void centringDoesNothing();
    void aSecondAlignmentTakesTheOutermostItems_data();
    void aSecondAlignmentTakesTheOutermostItems();
    void placesStayThoseOfACentredBar_data();
    void placesStayThoseOfACentredBar();
    void whatStandsAtARemovedStepsPlaceGoes_data();
    void whatStandsAtARemovedStepsPlaceGoes();
    void aStepThatLostItsWidgetIsAnEmptyOne();

    // Any order of calls
    void anySequenceOfCallsKeepsTheOrder_data();
    void anySequenceOfCallsKeepsTheOrder();

    // The library's style sheet
    void theSheetColoursTheSteps();
    void theSheetColoursTheStepUnderTheMouse();
    void theSheetHidesTheChecks();

private:
    //! A bar on show with these steps, all of which can be clicked.
    void show(const QStringList& texts = abc)
    {
        m_pBar->addStep(texts);
        m_pBar->setStepEnabled(true);
        m_pBar->resize(600, 60);
        m_pBar->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_pBar.data()));
    }
    void click(int nIndex) { QTest::mouseClick(box(*m_pBar, nIndex), Qt::LeftButton); }
    void loadTheSheet() const;

    std::optional<GlobalState> m_global;
    QScopedPointer<CStepBar> m_pBar;
};

void tst_CStepBar::init()
{
    m_global.emplace();
    m_pBar.reset(new CStepBar);
    m_pBar->setWindowFlag(Qt::FramelessWindowHint);
}

void tst_CStepBar::cleanup()
{
    m_pBar.reset();
    m_global.reset();
}

void tst_CStepBar::itsOnlyMethodIsItsSignal()
{
    const QMetaObject& meta = CStepBar::staticMetaObject;
    QCOMPARE(meta.className(), "nsUI::CStepBar"); // what the style sheet selects on
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    const QMetaMethod signal = meta.method(meta.methodOffset());
    QCOMPARE(signal.methodSignature(), QByteArray("sigStepClicked(int)"));
    QCOMPARE(signal.methodType(), QMetaMethod::Signal);
    QCOMPARE(signal.parameterNames(), QList<QByteArray>{"nIndex"});
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.enumeratorCount(), meta.enumeratorOffset());
}

void tst_CStepBar::itsAlignmentsAreNumbered()
{
    QCOMPARE(int(CStepBar::AlignStart), 0);
    QCOMPARE(int(CStepBar::AlignCenter), 1);
    QCOMPARE(int(CStepBar::AlignEnd), 2);
}

void tst_CStepBar::aNewBarIsEmpty()
{
    QCOMPARE(m_pBar->count(), 0);
    QCOMPARE(m_pBar->currentIndex(), -1);
    QCOMPARE(m_pBar->stepText(0), QString());
    QCOMPARE(m_pBar->stepText(-1), QString());
    QVERIFY(m_pBar->findChildren<QWidget*>().isEmpty());
    QVERIFY(layoutOf(*m_pBar));
    QCOMPARE(layoutOf(*m_pBar)->direction(), QBoxLayout::LeftToRight);
    QCOMPARE(layoutOf(*m_pBar)->spacing(), 0);
    QCOMPARE(arrangement(*m_pBar), QStringLiteral("_ _"));
    QCOMPARE(m_pBar->findChildren<QLayout*>().size(), 1);
}

void tst_CStepBar::aBarBelongsToItsParent()
{
    QWidget parent;
    QPointer<CStepBar> pBar = new CStepBar(&parent);
    QCOMPARE(pBar->parentWidget(), &parent);
    QVERIFY(!pBar->isWindow());
    QVERIFY(!m_pBar->parentWidget());
    pBar->addStep(abc);
    QPointer<QCheckBox> pBox = box(*pBar, 1);
    QPointer<QSvgWidget> pArrow = arrow(*pBar, 1);
    QCOMPARE(pBox->parentWidget(), pBar.data());
    QCOMPARE(pArrow->parentWidget(), pBar.data());
    delete pBar;
    QVERIFY(pBox.isNull());
    QVERIFY(pArrow.isNull());
}

void tst_CStepBar::stepsFollowOneAnotherWithAnArrowBeforeEach()
{
    m_pBar->addStep(QStringLiteral("A"));
    QCOMPARE(m_pBar->count(), 1);
    QCOMPARE(arrangement(*m_pBar), QStringLiteral("_ > A _"));
    m_pBar->addStep(QStringLiteral("B"));
    m_pBar->addStep(QStringLiteral("C"));
    QCOMPARE(m_pBar->count(), 3);
    QCOMPARE(stepTexts(*m_pBar), abc);
    QCOMPARE(arrangement(*m_pBar), QStringLiteral("_ > A > B > C _"));
    QCOMPARE(m_pBar->currentIndex(), -1);
}

void tst_CStepBar::aListIsAddedTextByText()
{
    m_pBar->addStep(abc);
    QCOMPARE(stepTexts(*m_pBar), abc);
    QCOMPARE(arrangement(*m_pBar), QStringLiteral("_ > A > B > C _"));
    m_pBar->addStep(QStringList());
    QCOMPARE(stepTexts(*m_pBar), abc);
    m_pBar->addStep(QStringList{QStringLiteral("A"), QString()});
    QCOMPARE(stepTexts(*m_pBar), (abc + QStringList{QStringLiteral("A"), QString()}));
}

void tst_CStepBar::aStepIsInserted_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("arranged");
    QTest::newRow("the lowest number") << INT_MIN << QStringLiteral("_ > X > A > B > C _");
    QTest::newRow("a negative number") << -5 << QStringLiteral("_ > X > A > B > C _");
    QTest::newRow("-1") << -1 << QStringLiteral("_ > X > A > B > C _");
    QTest::newRow("0") << 0 << QStringLiteral("_ > X > A > B > C _");
    QTest::newRow("1") << 1 << QStringLiteral("_ > A > X > B > C _");
    QTest::newRow("2") << 2 << QStringLiteral("_ > A > B > X > C _");
    QTest::newRow("3") << 3 << QStringLiteral("_ > A > B > C > X _");
    QTest::newRow("4") << 4 << QStringLiteral("_ > A > B > C > X _");
    QTest::newRow("a number past the end") << 99 << QStringLiteral("_ > A > B > C > X _");
    QTest::newRow("the highest number") << INT_MAX << QStringLiteral("_ > A > B > C > X _");
}

void tst_CStepBar::aStepIsInserted()
{
    QFETCH(int, index);
    m_pBar->addStep(abc);
    const QCheckBox* const pA = box(*m_pBar, 0);
    const QSvgWidget* const pArrowOfA = arrow(*m_pBar, 0);
    m_pBar->insertStep(index, QStringLiteral("X"));
    QTEST(arrangement(*m_pBar), "arranged");
    QCOMPARE(m_pBar->count(), 4);
    QCOMPARE(m_pBar->stepText(qBound(0, index, 3)), QStringLiteral("X"));
    QCOMPARE(box(*m_pBar, QStringLiteral("A")), pA);
    QCOMPARE(arrow(*m_pBar, index <= 0 ? 1 : 0), pArrowOfA); // an arrow stays with its step
}

void tst_CStepBar::aStepIsRemoved_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("arranged");
    QTest::newRow("the lowest number") << INT_MIN << QStringLiteral("_ > A > B > C _");
    QTest::newRow("-1") << -1 << QStringLiteral("_ > A > B > C _");
    QTest::newRow("0") << 0 << QStringLiteral("_ > B > C _");
    QTest::newRow("1") << 1 << QStringLiteral("_ > A > C _");
    QTest::newRow("2") << 2 << QStringLiteral("_ > A > B _");
    QTest::newRow("3") << 3 << QStringLiteral("_ > A > B > C _");
    QTest::newRow("the highest number") << INT_MAX << QStringLiteral("_ > A > B > C _");
}

void tst_CStepBar::aStepIsRemoved()
{
    QFETCH(int, index);
    m_pBar->addStep(abc);
    m_pBar->remove(index);
    QTEST(arrangement(*m_pBar), "arranged");
    const bool bRemoved = index >= 0 && index < 3;
    QStringList texts = abc;
    if (bRemoved)
        texts.removeAt(index);
    QCOMPARE(m_pBar->count(), texts.size());
    QCOMPARE(stepTexts(*m_pBar), texts);
    QCOMPARE(m_pBar->findChildren<QWidget*>().size(), 2 * texts.size());
}

void tst_CStepBar::aRemovedStepTakesItsTwoWidgetsAlong()
{
    m_pBar->addStep(abc);
    for (const int nIndex : {1, 0, 0}) {
        QPointer<QCheckBox> pBox = box(*m_pBar, nIndex);
        QPointer<QSvgWidget> pArrow = arrow(*m_pBar, nIndex);
        m_pBar->remove(nIndex);
        QVERIFY(pBox.isNull());
        QVERIFY(pArrow.isNull());
    }
    QCOMPARE(m_pBar->count(), 0);
    QCOMPARE(m_pBar->currentIndex(), -1);
    QCOMPARE(arrangement(*m_pBar), QStringLiteral("_ _"));
    m_pBar->remove(0);
    QCOMPARE(arrangement(*m_pBar), QStringLiteral("_ _"));
}

void tst_CStepBar::anEmptiedBarCanBeFilledAgain()
{
    show({QStringLiteral("Old")});
    m_pBar->remove(0);
    m_pBar->addStep(abc);
    QCoreApplication::processEvents();
    QCOMPARE(arrangement(*m_pBar), QStringLiteral("_ > A > B > C _"));
    QCOMPARE(visibleArrows(*m_pBar), QStringLiteral("hss"));
    QCOMPARE(enabledSteps(*m_pBar), QStringLiteral("111"));
    QSignalSpy clicked(m_pBar.data(), &CStepBar::sigStepClicked);
    click(2);
    QCOMPARE(clicked, (QList<QVariantList>{{2}}));
}

void tst_CStepBar::aStepHasItsText_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("a word") << QStringLiteral("Parameters");
    QTest::newRow("none") << QString();
    QTest::newRow("a mnemonic") << QStringLiteral("&Read && write");
    QTest::newRow("Chinese") << QStringLiteral("第一步");
    QTest::newRow("markup") << QStringLiteral("<b>1</b>\n2");
}

void tst_CStepBar::aStepHasItsText()
{
    QFETCH(QString, text);
    m_pBar->addStep({QStringLiteral("A"), text});
    QCOMPARE(m_pBar->stepText(1), text);
    QCOMPARE(m_pBar->findChildren<QCheckBox*>().at(1)->text(), text);
    for (const int nOutside : {INT_MIN, -1, 2, INT_MAX})
        QCOMPARE(m_pBar->stepText(nOutside), QString());
}

void tst_CStepBar::whatAStepIsMadeOf()
{
    m_pBar->addStep(abc);
    for (int i = 0; i < 3; ++i) {
        const QCheckBox* const pBox = box(*m_pBar, i);
        QVERIFY(pBox);
        QCOMPARE(pBox->focusPolicy(), Qt::NoFocus);
        QVERIFY(!pBox->isTristate());
        QVERIFY(!pBox->isChecked());
        QVERIFY(!pBox->isEnabled());
        QVERIFY(pBox->icon().isNull());
        QVERIFY(arrow(*m_pBar, i));
        QVERIFY(!qobject_cast<QCheckBox*>(arrow(*m_pBar, i)));
    }
    QCOMPARE(m_pBar->findChildren<QWidget*>().size(), 6);
}

void tst_CStepBar::noItemStretches()
{
    m_pBar->addStep(abc);
    m_pBar->insertStep(1, QStringLiteral("X"));
    const QBoxLayout* const pLayout = layoutOf(*m_pBar);
    for (int i = 0; i < pLayout->count(); ++i) {
        QCOMPARE(pLayout->stretch(i), 0);
        if (pLayout->itemAt(i)->widget())
            QCOMPARE(pLayout->itemAt(i)->alignment(), Qt::AlignCenter);
    }
    QCOMPARE(pLayout->count(), 10);
}

void tst_CStepBar::theArrowBeforeTheFirstStepAloneIsHidden()
{
    show();
    QCOMPARE(visibleArrows(*m_pBar), QStringLiteral("hss"));
    for (int i = 0; i < 3; ++i)
        QVERIFY(box(*m_pBar, i)->isVisible());

    m_pBar->insertStep(-5, QStringLiteral("X"));
    QCoreApplication::processEvents(); // a layout shows new widgets later
    QCOMPARE(stepTexts(*m_pBar), QStringList{QStringLiteral("X")} + abc);
    QCOMPARE(visibleArrows(*m_pBar), QStringLiteral("hsss"));
    QVERIFY(box(*m_pBar, 0)->isVisible());

    m_pBar->insertStep(1, QStringLiteral("Y"));
    m_pBar->insertStep(99, QStringLiteral("Z"));
    QCoreApplication::processEvents();
    QCOMPARE(visibleArrows(*m_pBar), QStringLiteral("hsssss"));

    m_pBar->remove(0);
    QCOMPARE(m_pBar->stepText(0), QStringLiteral("Y"));
    QCOMPARE(visibleArrows(*m_pBar), QStringLiteral("hssss"));
    m_pBar->remove(1);
    m_pBar->remove(3);
    QCOMPARE(visibleArrows(*m_pBar), QStringLiteral("hss"));
    m_pBar->remove(0);
    m_pBar->remove(0);
    QCOMPARE(visibleArrows(*m_pBar), QStringLiteral("h"));
    m_pBar->insertStep(0, QStringLiteral("First"));
    QCOMPARE(visibleArrows(*m_pBar), QStringLiteral("hs")); // the former first one at once
}

void tst_CStepBar::arrowsAreHiddenBeforeTheBarIsShown()
{
    m_pBar->addStep(abc);
    m_pBar->remove(0);
    m_pBar->insertStep(0, QStringLiteral("X"));
    m_pBar->insertStep(0, QStringLiteral("Y"));
    m_pBar->remove(1);
    QVERIFY(arrow(*m_pBar, 0)->testAttribute(Qt::WA_WState_ExplicitShowHide));
    m_pBar->show();
    QCOMPARE(stepTexts(*m_pBar), (QStringList{QStringLiteral("Y"), QStringLiteral("B"), QStringLiteral("C")}));
    QCOMPARE(visibleArrows(*m_pBar), QStringLiteral("hss"));
}

void tst_CStepBar::otherArrowsAreLeftAsTheyAre()
{
    m_pBar->addStep({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C"), QStringLiteral("D")});
    show({});
    arrow(*m_pBar, 1)->hide();
    arrow(*m_pBar, 2)->hide();
    arrow(*m_pBar, 0)->show();
    QCOMPARE(visibleArrows(*m_pBar), QStringLiteral("shhs"));
    m_pBar->addStep(QStringLiteral("E"));
    QCoreApplication::processEvents();
    QCOMPARE(visibleArrows(*m_pBar), QStringLiteral("hshss"));
    m_pBar->remove(1);
    QCOMPARE(visibleArrows(*m_pBar), QStringLiteral("hsss")); // the third one has become the second
    arrow(*m_pBar, 3)->hide();
    m_pBar->insertStep(0, QStringLiteral("X"));
    QCoreApplication::processEvents();
    QCOMPARE(visibleArrows(*m_pBar), QStringLiteral("hsssh"));
}

void tst_CStepBar::arrowsPointInTheDirection_data()
{
    QTest::addColumn<QBoxLayout::Direction>("direction");
    QTest::addColumn<QString>("arrowPicture");
    QTest::newRow("0") << QBoxLayout::LeftToRight << sForward;
    QTest::newRow("1") << QBoxLayout::RightToLeft << sBack;
    QTest::newRow("2") << QBoxLayout::TopToBottom << sDownward;
    QTest::newRow("3") << QBoxLayout::BottomToTop << sUpward;
}

void tst_CStepBar::arrowsPointInTheDirection()
{
    QFETCH(QBoxLayout::Direction, direction);
    QFETCH(QString, arrowPicture);
    m_pBar->addStep(abc);
    for (int i = 0; i < 3; ++i)
        QCOMPARE(picture(arrow(*m_pBar, i)), sForward);
    m_pBar->setDirection(direction);
    QCOMPARE(layoutOf(*m_pBar)->direction(), direction);
    QCOMPARE(arrangement(*m_pBar), QStringLiteral("_ > A > B > C _"));
    for (int i = 0; i < 3; ++i)
        QCOMPARE(picture(arrow(*m_pBar, i)), arrowPicture); // the hidden one too
    m_pBar->insertStep(1, QStringLiteral("X"));
    QCOMPARE(picture(arrow(*m_pBar, 1)), arrowPicture);

    // Where the steps stand.
    m_pBar->resize(400, 400);
    m_pBar->show();
    const QPoint first = box(*m_pBar, 0)->geometry().center();
    const QPoint pointer = arrow(*m_pBar, 1)->geometry().center();
    const QPoint second = box(*m_pBar, 1)->geometry().center();
    const bool bAcross = direction == QBoxLayout::LeftToRight || direction == QBoxLayout::RightToLeft;
    const bool bReverse = direction == QBoxLayout::RightToLeft || direction == QBoxLayout::BottomToTop;
    const auto place = [&](QPoint point) { return (bAcross ? point.x() : point.y()) * (bReverse ? -1 : 1); };
    QVERIFY(place(first) < place(pointer));
    QVERIFY(place(pointer) < place(second));

    m_pBar->setDirection(QBoxLayout::LeftToRight); // and back
    for (int i = 0; i < 4; ++i)
        QCOMPARE(picture(arrow(*m_pBar, i)), sForward);
}

void tst_CStepBar::arrowsPointTheOtherWayWhereTextRunsFromTheRight_data()
{
    QTest::addColumn<QBoxLayout::Direction>("direction");
    QTest::addColumn<QString>("arrowPicture");
    QTest::addColumn<QPoint>("way"); // from a step to the next
    QTest::newRow("0") << QBoxLayout::LeftToRight << sBack << QPoint(-1, 0);
    QTest::newRow("1") << QBoxLayout::RightToLeft << sForward << QPoint(1, 0);
    QTest::newRow("2") << QBoxLayout::TopToBottom << sDownward << QPoint(0, 1);
    QTest::newRow("3") << QBoxLayout::BottomToTop << sUpward << QPoint(0, -1);
}

void tst_CStepBar::arrowsPointTheOtherWayWhereTextRunsFromTheRight()
{
    QFETCH(QBoxLayout::Direction, direction);
    QFETCH(QString, arrowPicture);
    QFETCH(QPoint, way);
    m_pBar->addStep(QStringLiteral("A")); // before
    m_pBar->setDirection(direction);
    m_pBar->setLayoutDirection(Qt::RightToLeft);
    m_pBar->addStep({QStringLiteral("B"), QStringLiteral("C")}); // and after
    for (int i = 0; i < 3; ++i)
        QCOMPARE(picture(arrow(*m_pBar, i)), arrowPicture); // the hidden one too
    QCOMPARE(layoutOf(*m_pBar)->direction(), direction);

    m_pBar->resize(400, 400);
    m_pBar->show();
    for (int i = 1; i < 3; ++i) {
        const QPoint toArrow = arrow(*m_pBar, i)->geometry().center() - box(*m_pBar, i - 1)->geometry().center();
        const QPoint toStep = box(*m_pBar, i)->geometry().center() - arrow(*m_pBar, i)->geometry().center();
        QVERIFY(QPoint::dotProduct(toArrow, way) > 0);
        QVERIFY(QPoint::dotProduct(toStep, way) > 0);
    }
}

void tst_CStepBar::arrowsFollowTheDirectionOfText()
{
    QWidget window;
    auto* const pBar = new CStepBar(&window);
    pBar->addStep(abc);
    const auto pictures = [&] {
        QStringList all;
        for (int i = 0; i < 3; ++i)
            all << picture(arrow(*pBar, i));
        return all;
    };
    const QStringList forward{sForward, sForward, sForward};
    const QStringList back{sBack, sBack, sBack};
    window.setLayoutDirection(Qt::RightToLeft); // that of the bar's window
    QCOMPARE(pictures(), back);
    window.setLayoutDirection(Qt::LeftToRight);
    QCOMPARE(pictures(), forward);
    window.unsetLayoutDirection();
    QApplication::setLayoutDirection(Qt::RightToLeft); // that of the application
    const QStringList mirrored = pictures();
    CStepBar other;
    other.addStep(QStringLiteral("A"));
    const QString sOther = picture(arrow(other, 0));
    pBar->setDirection(QBoxLayout::TopToBottom);
    pBar->setDirection(QBoxLayout::LeftToRight);
    const QStringList turned = pictures();
    pBar->setLayoutDirection(Qt::LeftToRight); // the bar's own
    const QStringList own = pictures();
    QApplication::setLayoutDirection(Qt::LeftToRight); // and back again
    QCOMPARE(mirrored, back);
    QCOMPARE(sOther, sBack);
    QCOMPARE(turned, back);
    QCOMPARE(own, forward);
    QCOMPARE(pictures(), forward);

    QWidget rightToLeft;
    rightToLeft.setLayoutDirection(Qt::RightToLeft);
    pBar->unsetLayoutDirection();
    pBar->setParent(&rightToLeft); // that of a new parent
    QCOMPARE(pictures(), back);
}

void tst_CStepBar::theSameDirectionReloadsNothing()
{
    m_pBar->addStep(abc);
    const auto loadOther = [&] { arrow(*m_pBar, 1)->load(QStringLiteral(":/svg/primary/arrow-upward.svg")); };
    loadOther();
    m_pBar->setDirection(QBoxLayout::LeftToRight);
    QCOMPARE(picture(arrow(*m_pBar, 1)), sUpward);
    m_pBar->setDirection(QBoxLayout::TopToBottom);
    QCOMPARE(picture(arrow(*m_pBar, 1)), sDownward);
    loadOther();
    m_pBar->setDirection(QBoxLayout::TopToBottom);
    QCOMPARE(picture(arrow(*m_pBar, 1)), sUpward);
    m_pBar->addStep(QStringLiteral("D"));
    m_pBar->remove(0);
    QCOMPARE(picture(arrow(*m_pBar, 0)), sUpward); // nothing but a direction reloads
}

void tst_CStepBar::aChangeOfTheLayoutsOwnDirectionCounts()
{
    m_pBar->addStep(QStringLiteral("A"));
    layoutOf(*m_pBar)->setDirection(QBoxLayout::BottomToTop);
    QCOMPARE(picture(arrow(*m_pBar, 0)), sForward);
    m_pBar->addStep(QStringLiteral("B"));
    QCOMPARE(picture(arrow(*m_pBar, 1)), sUpward);
    m_pBar->setDirection(QBoxLayout::BottomToTop);
    QCOMPARE(picture(arrow(*m_pBar, 0)), sForward);
    m_pBar->setDirection(QBoxLayout::LeftToRight);
    QCOMPARE(picture(arrow(*m_pBar, 1)), sForward);
}

void tst_CStepBar::anUnknownDirectionHasNoArrows()
{
    MessageRecorder log; // Qt tells of pictures that it cannot read
    m_pBar->addStep(abc);
    int nUnknown = QBoxLayout::BottomToTop;
    ++nUnknown;
    m_pBar->setDirection(static_cast<QBoxLayout::Direction>(nUnknown));
    QCOMPARE(int(layoutOf(*m_pBar)->direction()), nUnknown);
    m_pBar->addStep(QStringLiteral("D"));
    for (int i = 0; i < 4; ++i)
        QVERIFY(!arrow(*m_pBar, i)->renderer()->isValid());
    QVERIFY(!log.take().isEmpty());
    m_pBar->setDirection(QBoxLayout::RightToLeft);
    for (int i = 0; i < 4; ++i)
        QCOMPARE(picture(arrow(*m_pBar, i)), sBack);
}

void tst_CStepBar::arrowsAreAsHighAndWideAsTheFirstStep_data()
{
    QTest::addColumn<QBoxLayout::Direction>("direction");
    QTest::newRow("a row") << QBoxLayout::LeftToRight;
    QTest::newRow("a column") << QBoxLayout::TopToBottom;
}

void tst_CStepBar::arrowsAreAsHighAndWideAsTheFirstStep()
{
    QFETCH(QBoxLayout::Direction, direction);
    m_pBar->setDirection(direction);
    show();
    for (const QSize size : {QSize(500, 300), QSize(300, 400)}) {
        m_pBar->resize(size);
        QCoreApplication::processEvents();
        const int nHeight = box(*m_pBar, 0)->height();
        QVERIFY(nHeight > 0);
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(arrow(*m_pBar, i)->minimumSize(), QSize(nHeight, nHeight)); // the hidden one too
            QCOMPARE(arrow(*m_pBar, i)->maximumSize(), QSize(nHeight, nHeight));
        }
        QCOMPARE(arrow(*m_pBar, 1)->size(), QSize(nHeight, nHeight));
        QCOMPARE(arrow(*m_pBar, 2)->size(), QSize(nHeight, nHeight));
    }
}

void tst_CStepBar::theFirstStepAloneTellsTheArrowsSize()
{
    m_pBar->addStep(abc);
    box(*m_pBar, 0)->setFixedHeight(23);
    box(*m_pBar, 1)->setFixedHeight(51);
    show({});
    for (int i = 0; i < 3; ++i)
        QCOMPARE(arrow(*m_pBar, i)->maximumSize(), QSize(23, 23));
    m_pBar->remove(0);
    m_pBar->resize(700, 100);
    for (int i = 0; i < 2; ++i)
        QCOMPARE(arrow(*m_pBar, i)->maximumSize(), QSize(51, 51));

    // With a resize of any kind: narrower, lower, higher.
    int nHeight = 30;
    for (const QSize& size : {QSize(650, 100), QSize(650, 90), QSize(650, 110)}) {
        box(*m_pBar, 0)->setFixedHeight(++nHeight);
        m_pBar->resize(size);
        for (int i = 0; i < 2; ++i)
            QCOMPARE(arrow(*m_pBar, i)->maximumSize(), QSize(nHeight, nHeight));
    }
}

void tst_CStepBar::arrowsGetTheirSizeWithTheNextResize()
{
    show();
    const QSize free = QSvgWidget().maximumSize();
    const QSize before = arrow(*m_pBar, 0)->maximumSize();
    QVERIFY(before != free);
    m_pBar->insertStep(1, QStringLiteral("X"));
    QCOMPARE(arrow(*m_pBar, 1)->maximumSize(), free);
    QCOMPARE(arrow(*m_pBar, 2)->maximumSize(), before);
    m_pBar->resize(m_pBar->width() + 1, m_pBar->height());
    const int nHeight = box(*m_pBar, 0)->height();
    QCOMPARE(arrow(*m_pBar, 1)->maximumSize(), QSize(nHeight, nHeight));
}

void tst_CStepBar::aSqueezedStepDoesNotShrinkTheArrows_data()
{
    QTest::addColumn<QBoxLayout::Direction>("direction");
    QTest::newRow("a row") << QBoxLayout::LeftToRight;
    QTest::newRow("a column") << QBoxLayout::TopToBottom;
}

void tst_CStepBar::aSqueezedStepDoesNotShrinkTheArrows()
{
    QFETCH(QBoxLayout::Direction, direction);
    QWidget window; // without a layout, so that the bar can be smaller than it should be
    auto* const pBar = new CStepBar(&window);
    pBar->setDirection(direction);
    pBar->addStep(abc);
    pBar->resize(400, 400);
    window.show();
    const int nHeight = box(*pBar, 0)->height();
    const QSize needed = pBar->layout()->totalMinimumSize();
    QVERIFY(nHeight > 1);
    for (const QSize& size : {QSize(400, 24), QSize(24, 24), QSize(1, 1), QSize(24, 400)}) {
        pBar->resize(size);
        for (int i = 0; i < 3; ++i)
            QCOMPARE(arrow(*pBar, i)->maximumSize(), QSize(nHeight, nHeight));
        QCOMPARE(pBar->layout()->totalMinimumSize(), needed);
    }
}

void tst_CStepBar::aStepThatIsKeptLowKeepsTheArrowsLow()
{
    m_pBar->addStep(abc);
    box(*m_pBar, 0)->setFixedHeight(7); // less than its text needs
    show({});
    for (int i = 0; i < 3; ++i)
        QCOMPARE(arrow(*m_pBar, i)->maximumSize(), QSize(7, 7));
}

void tst_CStepBar::aScrollAreaComesToRest_data()
{
    QTest::addColumn<QString>("sheet");
    QTest::newRow("the library's sheet") << QString::fromUtf8(
        TestSupport::contentOf(QStringLiteral(":/qss/Tessera.qss")));
    QTest::newRow("larger letters") << QStringLiteral("*{font-size:20pt}");
    QTest::newRow("roomier steps") << QStringLiteral("QCheckBox{padding:8px}");
}

void tst_CStepBar::aScrollAreaComesToRest()
{
    QFETCH(QString, sheet);
    for (int nSteps = 2; nSteps < 6; ++nSteps) {
        for (int nWords = 10; nWords < 70; nWords += 7) {
            NarrowPage page(nSteps, nWords);
            for (const QString& sSheet : {sheet, QString()}) {
                qApp->setStyleSheet(sSheet);
                page.resize(page.width(), page.height() + 10); // while layout is pending
                QCoreApplication::processEvents();
                QVERIFY2(page.takeResizes() < 20,
                         qPrintable(QStringLiteral("%1 steps, %2 words").arg(nSteps).arg(nWords)));
            }
        }
    }
}

void tst_CStepBar::anEmptyBarCanBeResized()
{
    show({});
    m_pBar->resize(100, 100);
    QCoreApplication::processEvents();
    QCOMPARE(m_pBar->size(), QSize(100, 100));
    m_pBar->addStep(abc);
    m_pBar->remove(0);
    m_pBar->remove(0);
    m_pBar->remove(0);
    m_pBar->resize(200, 100);
    QCoreApplication::processEvents();
    QCOMPARE(m_pBar->size(), QSize(200, 100));
}

void tst_CStepBar::stepsCannotBeClickedAtFirst()
{
    m_pBar->addStep(abc);
    QCOMPARE(enabledSteps(*m_pBar), QStringLiteral("000"));
    QVERIFY(m_pBar->isEnabled());
    m_pBar->setStepEnabled(false);
    QCOMPARE(enabledSteps(*m_pBar), QStringLiteral("000"));
}

void tst_CStepBar::stepsAreEnabledTogether()
{
    m_pBar->addStep(abc);
    m_pBar->setStepEnabled(true);
    QCOMPARE(enabledSteps(*m_pBar), QStringLiteral("111"));
    m_pBar->setStepEnabled(1, false);
    m_pBar->setStepEnabled(false);
    QCOMPARE(enabledSteps(*m_pBar), QStringLiteral("000"));
    m_pBar->setStepEnabled(true);
    QCOMPARE(enabledSteps(*m_pBar), QStringLiteral("111"));
}

void tst_CStepBar::newStepsTakeTheFlag()
{
    m_pBar->addStep(QStringLiteral("A"));
    m_pBar->setStepEnabled(true);
    m_pBar->setStepEnabled(0, false);
    m_pBar->insertStep(0, QStringLiteral("B"));
    m_pBar->addStep(QStringLiteral("C"));
    QCOMPARE(enabledSteps(*m_pBar), QStringLiteral("101"));
    m_pBar->setStepEnabled(false);
    m_pBar->insertStep(1, QStringLiteral("D"));
    QCOMPARE(enabledSteps(*m_pBar), QStringLiteral("0000"));
}

void tst_CStepBar::oneStepIsEnabledWhileAllAre_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("enabled");
    QTest::newRow("the lowest number") << INT_MIN << QStringLiteral("111");
    QTest::newRow("-1") << -1 << QStringLiteral("111");
    QTest::newRow("0") << 0 << QStringLiteral("011");
    QTest::newRow("1") << 1 << QStringLiteral("101");
    QTest::newRow("2") << 2 << QStringLiteral("110");
    QTest::newRow("3") << 3 << QStringLiteral("111");
    QTest::newRow("the highest number") << INT_MAX << QStringLiteral("111");
}

void tst_CStepBar::oneStepIsEnabledWhileAllAre()
{
    QFETCH(int, index);
    m_pBar->addStep(abc);
    m_pBar->setStepEnabled(true);
    m_pBar->setStepEnabled(index, false);
    QTEST(enabledSteps(*m_pBar), "enabled");
    m_pBar->setStepEnabled(index, true);
    QCOMPARE(enabledSteps(*m_pBar), QStringLiteral("111"));
}

void tst_CStepBar::oneStepCannotBeEnabledWhileNoneIs()
{
    m_pBar->addStep(abc);
    m_pBar->setStepEnabled(1, true);
    QCOMPARE(enabledSteps(*m_pBar), QStringLiteral("000"));
    m_pBar->setStepEnabled(true);
    m_pBar->setStepEnabled(false);
    m_pBar->setStepEnabled(0, true);
    QCOMPARE(enabledSteps(*m_pBar), QStringLiteral("000"));
    box(*m_pBar, 2)->setEnabled(true); // a host's own doing is not undone either
    m_pBar->setStepEnabled(2, false);
    QCOMPARE(enabledSteps(*m_pBar), QStringLiteral("001"));
}

void tst_CStepBar::theSameFlagAgainChangesNothing()
{
    m_pBar->addStep(abc);
    m_pBar->setStepEnabled(true);
    m_pBar->setStepEnabled(1, false);
    m_pBar->setStepEnabled(true);
    QCOMPARE(enabledSteps(*m_pBar), QStringLiteral("101"));
    m_pBar->setStepEnabled(false);
    box(*m_pBar, 2)->setEnabled(true);
    m_pBar->setStepEnabled(false);
    QCOMPARE(enabledSteps(*m_pBar), QStringLiteral("001"));
}

void tst_CStepBar::aClickIsReportedAndMovesNothing_data()
{
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("clicked");
    for (int nCurrent = -1; nCurrent < 3; ++nCurrent) {
        for (int nClicked = 0; nClicked < 3; ++nClicked)
            QTest::addRow("%d while %d is current", nClicked, nCurrent) << nCurrent << nClicked;
    }
}

void tst_CStepBar::aClickIsReportedAndMovesNothing()
{
    QFETCH(int, current);
    QFETCH(int, clicked);
    show();
    m_pBar->slotSetCurrentStep(current);
    const QString sChecked = checkedSteps(*m_pBar);
    QSignalSpy reports(m_pBar.data(), &CStepBar::sigStepClicked);
    QVERIFY(reports.isValid());
    click(clicked);
    QCOMPARE(reports, (QList<QVariantList>{{clicked}}));
    QCOMPARE(checkedSteps(*m_pBar), sChecked);
    QCOMPARE(m_pBar->currentIndex(), current);
    click(clicked);
    QCOMPARE(reports, (QList<QVariantList>{{clicked}, {clicked}}));
    QCOMPARE(checkedSteps(*m_pBar), sChecked);
    m_pBar->slotSetCurrentStep(clicked);
    QCOMPARE(m_pBar->currentIndex(), clicked);
    m_pBar->slotSetCurrentStep(7);
    QCOMPARE(m_pBar->currentIndex(), -1);
}

void tst_CStepBar::aDisabledStepReportsNothing()
{
    show();
    m_pBar->setStepEnabled(1, false);
    QSignalSpy reports(m_pBar.data(), &CStepBar::sigStepClicked);
    click(1);
    box(*m_pBar, 1)->click();
    QCOMPARE(reports.count(), 0);
    m_pBar->setStepEnabled(false);
    click(0);
    QCOMPARE(reports.count(), 0);
    QCOMPARE(checkedSteps(*m_pBar), QStringLiteral("000"));
    m_pBar->setStepEnabled(true);
    click(1);
    QCOMPARE(reports, (QList<QVariantList>{{1}}));
}

void tst_CStepBar::theCheckIsTurnedBackBeforeTheReport()
{
    show();
    m_pBar->slotSetCurrentStep(0);
    QStringList log;
    connect(m_pBar.data(), &CStepBar::sigStepClicked, this,
            [&](int nIndex) { log << QStringLiteral("%1: %2").arg(nIndex).arg(checkedSteps(*m_pBar)); });
    connect(box(*m_pBar, 2), &QCheckBox::toggled, this, [&](bool bChecked) { log << QString::number(bChecked); });
    click(2);
    QCOMPARE(log, (QStringList{QStringLiteral("1"), QStringLiteral("0"), QStringLiteral("2: 100")}));
    log.clear();
    click(0);
    QCOMPARE(log, QStringList{QStringLiteral("0: 100")});
}

void tst_CStepBar::theHostMayMoveInTheReport()
{
    show();
    connect(m_pBar.data(), &CStepBar::sigStepClicked, m_pBar.data(), &CStepBar::slotSetCurrentStep);
    for (const int nIndex : {1, 2, 2, 0}) {
        click(nIndex);
        QCOMPARE(m_pBar->currentIndex(), nIndex);
        QCOMPARE(checkedSteps(*m_pBar).count(QLatin1Char('1')), 1);
    }
}

void tst_CStepBar::aReportCountsTheStepsAsTheyAre()
{
    show();
    QSignalSpy reports(m_pBar.data(), &CStepBar::sigStepClicked);
    QCheckBox* const pB = box(*m_pBar, QStringLiteral("B"));
    QTest::mouseClick(pB, Qt::LeftButton);
    m_pBar->insertStep(0, QStringLiteral("X"));
    QTest::mouseClick(pB, Qt::LeftButton);
    m_pBar->remove(0);
    m_pBar->remove(0);
    QTest::mouseClick(pB, Qt::LeftButton);
    m_pBar->setDirection(QBoxLayout::BottomToTop);
    QTest::mouseClick(pB, Qt::LeftButton);
    QCOMPARE(reports, (QList<QVariantList>{{1}, {2}, {0}, {0}}));
}

void tst_CStepBar::everyReleaseIsAClick()
{
    show();
    m_pBar->slotSetCurrentStep(0);
    QSignalSpy reports(m_pBar.data(), &CStepBar::sigStepClicked);
    QTest::mousePress(box(*m_pBar, 1), Qt::LeftButton);
    QCOMPARE(reports.count(), 0);
    QTest::mouseRelease(box(*m_pBar, 1), Qt::LeftButton);
    QCOMPARE(reports, (QList<QVariantList>{{1}}));
    QTest::mouseClick(box(*m_pBar, 1), Qt::RightButton);
    QCOMPARE(reports.count(), 1);
    reports.clear();
    box(*m_pBar, 2)->click();
    QCOMPARE(reports.takeLast(), QVariantList{2});
    QTest::keyClick(box(*m_pBar, 2), Qt::Key_Space);
    QCOMPARE(reports.takeLast(), QVariantList{2});
    box(*m_pBar, 0)->animateClick();
    QTRY_COMPARE(reports.count(), 1);
    QCOMPARE(reports.takeLast(), QVariantList{0});
    QCOMPARE(checkedSteps(*m_pBar), QStringLiteral("100"));
}

void tst_CStepBar::aPressThatIsDraggedOffTurnsTheCheckOver()
{
    show();
    m_pBar->slotSetCurrentStep(0);
    QSignalSpy reports(m_pBar.data(), &CStepBar::sigStepClicked);
    QCheckBox* const pBox = box(*m_pBar, 2);
    QTest::mousePress(pBox, Qt::LeftButton, Qt::NoModifier, pBox->rect().center());
    const QPointF outside(-50, -50);
    QMouseEvent away(QEvent::MouseMove, outside, outside, outside, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(pBox, &away);
    QCOMPARE(reports, (QList<QVariantList>{{2}}));
    QCOMPARE(checkedSteps(*m_pBar), QStringLiteral("101"));
    QTest::mouseRelease(pBox, Qt::LeftButton, Qt::NoModifier, QPoint(-50, -50));
    QCOMPARE(reports.count(), 1);
    QCOMPARE(m_pBar->currentIndex(), 0);
}

void tst_CStepBar::aPressThatEndsWithDisablingIsNoClick_data()
{
    QTest::addColumn<QString>("disabled");
    QTest::addColumn<bool>("byKey");
    for (const bool bByKey : {false, true}) {
        for (const QString& sDisabled :
             {QStringLiteral("the step"), QStringLiteral("all steps"), QStringLiteral("the bar")})
            QTest::addRow("%s, %s", qPrintable(sDisabled), bByKey ? "key" : "mouse") << sDisabled << bByKey;
    }
}

void tst_CStepBar::aPressThatEndsWithDisablingIsNoClick()
{
    QFETCH(QString, disabled);
    QFETCH(bool, byKey);
    show();
    m_pBar->slotSetCurrentStep(0);
    QSignalSpy reports(m_pBar.data(), &CStepBar::sigStepClicked);
    QCheckBox* const pBox = box(*m_pBar, 2);
    const auto enable = [&](bool bEnabled) {
        if (disabled == QLatin1String("the step"))
            m_pBar->setStepEnabled(2, bEnabled);
        else if (disabled == QLatin1String("all steps"))
            m_pBar->setStepEnabled(bEnabled);
        else
            m_pBar->setEnabled(bEnabled);
    };
    if (byKey)
        QTest::keyPress(pBox, Qt::Key_Space);
    else
        QTest::mousePress(pBox, Qt::LeftButton);
    QVERIFY(pBox->isDown());
    enable(false);
    QVERIFY(!pBox->isDown());
    QCOMPARE(reports.count(), 0);
    QCOMPARE(checkedSteps(*m_pBar), QStringLiteral("100"));
    if (byKey) {
        MessageRecorder log;
        QTest::keyRelease(pBox, Qt::Key_Space);
        // Qt 6 tells of a key that nobody took.
        const QStringList said = log.take();
        QVERIFY(said.isEmpty() ||
                said == QStringList(QStringLiteral("warning: Keyboard event not accepted by receiving widget")));
    } else {
        QTest::mouseRelease(pBox, Qt::LeftButton);
    }
    QCOMPARE(reports.count(), 0);
    QCOMPARE(checkedSteps(*m_pBar), QStringLiteral("100"));

    enable(true); // and it works again
    click(2);
    QCOMPARE(reports, (QList<QVariantList>{{2}}));
    QCOMPARE(checkedSteps(*m_pBar), QStringLiteral("100"));
}

void tst_CStepBar::aClickMayDisableTheStep_data()
{
    QTest::addColumn<QString>("when");
    QTest::newRow("as it is pressed") << QStringLiteral("pressed"); // Qt's click() goes on all the same
    QTest::newRow("as its check is turned over") << QStringLiteral("toggled");
    QTest::newRow("in the report") << QStringLiteral("report");
}

void tst_CStepBar::aClickMayDisableTheStep()
{
    QFETCH(QString, when);
    show();
    m_pBar->slotSetCurrentStep(0);
    QSignalSpy reports(m_pBar.data(), &CStepBar::sigStepClicked);
    QCheckBox* const pBox = box(*m_pBar, 2);
    const auto disable = [&] { m_pBar->setStepEnabled(false); };
    if (when == QLatin1String("pressed"))
        connect(pBox, &QCheckBox::pressed, this, disable);
    else if (when == QLatin1String("toggled"))
        connect(pBox, &QCheckBox::toggled, this, disable);
    else
        connect(m_pBar.data(), &CStepBar::sigStepClicked, this, disable);
    pBox->click();
    QVERIFY(!pBox->isEnabled());
    QCOMPARE(reports, (QList<QVariantList>{{2}}));
    QCOMPARE(checkedSteps(*m_pBar), QStringLiteral("100"));
}

void tst_CStepBar::aStepsKeyClicksIt()
{
    show({QStringLiteral("&Read"), QStringLiteral("R && &D")});
    m_pBar->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_pBar.data()));
    QSignalSpy reports(m_pBar.data(), &CStepBar::sigStepClicked);
    QTest::keyClick(m_pBar.data(), Qt::Key_D, Qt::AltModifier);
    QTRY_COMPARE(reports, (QList<QVariantList>{{1}}));
    QTest::keyClick(m_pBar.data(), Qt::Key_R, Qt::AltModifier);
    QTRY_COMPARE(reports, (QList<QVariantList>{{1}, {0}}));
    QCOMPARE(m_pBar->stepText(1), QStringLiteral("R && &D"));
    QCOMPARE(checkedSteps(*m_pBar), QStringLiteral("00"));
}

void tst_CStepBar::nothingElseReports()
{
    show();
    QSignalSpy reports(m_pBar.data(), &CStepBar::sigStepClicked);
    m_pBar->slotSetCurrentStep(1);
    m_pBar->addStep(QStringLiteral("D"));
    m_pBar->insertStep(0, QStringLiteral("X"));
    m_pBar->remove(2);
    m_pBar->setStepEnabled(0, false);
    m_pBar->setStepEnabled(false);
    m_pBar->setDirection(QBoxLayout::TopToBottom);
    m_pBar->setAlignment(CStepBar::AlignStart);
    m_pBar->slotSetCurrentStep(-1);
    box(*m_pBar, 0)->setChecked(true);
    box(*m_pBar, 0)->toggle();
    QCOMPARE(reports.count(), 0);
}

void tst_CStepBar::aStepMayBeRemovedWhileItReports()
{
    show();
    connect(m_pBar.data(), &CStepBar::sigStepClicked, m_pBar.data(), &CStepBar::remove);
    click(1);
    QCOMPARE(stepTexts(*m_pBar), (QStringList{QStringLiteral("A"), QStringLiteral("C")}));
    click(0);
    QCOMPARE(stepTexts(*m_pBar), QStringList{QStringLiteral("C")});
    click(0);
    QCOMPARE(m_pBar->count(), 0);
    QCOMPARE(arrangement(*m_pBar), QStringLiteral("_ _"));
}

void tst_CStepBar::theBarMayBeDeletedWhileItReports()
{
    show();
    connect(m_pBar.data(), &CStepBar::sigStepClicked, this, [this] { m_pBar.reset(); });
    box(*m_pBar, 1)->click();
    QVERIFY(m_pBar.isNull());
}

void tst_CStepBar::theHostMakesAStepCurrent_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("checked");
    QTest::newRow("the lowest number") << INT_MIN << QStringLiteral("000");
    QTest::newRow("-1") << -1 << QStringLiteral("000");
    QTest::newRow("0") << 0 << QStringLiteral("100");
    QTest::newRow("1") << 1 << QStringLiteral("010");
    QTest::newRow("2") << 2 << QStringLiteral("001");
    QTest::newRow("3") << 3 << QStringLiteral("000");
    QTest::newRow("7") << 7 << QStringLiteral("000");
    QTest::newRow("the highest number") << INT_MAX << QStringLiteral("000");
}

void tst_CStepBar::theHostMakesAStepCurrent()
{
    QFETCH(int, index);
    QFETCH(QString, checked);
    m_pBar->slotSetCurrentStep(index); // without steps
    QCOMPARE(m_pBar->currentIndex(), -1);
    m_pBar->addStep(abc);
    for (const int nBefore : {-1, 0, 2}) {
        m_pBar->slotSetCurrentStep(nBefore);
        m_pBar->slotSetCurrentStep(index);
        QCOMPARE(checkedSteps(*m_pBar), checked);
        QCOMPARE(m_pBar->currentIndex(), checked.indexOf(QLatin1Char('1')));
    }
}

void tst_CStepBar::theFirstCheckedStepIsTheCurrentOne()
{
    m_pBar->addStep(abc);
    box(*m_pBar, 2)->setChecked(true);
    QCOMPARE(m_pBar->currentIndex(), 2);
    box(*m_pBar, 1)->setChecked(true); // the boxes do not shut one another out
    QCOMPARE(checkedSteps(*m_pBar), QStringLiteral("011"));
    QCOMPARE(m_pBar->currentIndex(), 1);
    m_pBar->slotSetCurrentStep(2);
    QCOMPARE(checkedSteps(*m_pBar), QStringLiteral("001"));
}

void tst_CStepBar::theCurrentStepIsCountedAnewAfterChanges()
{
    m_pBar->addStep(abc);
    m_pBar->slotSetCurrentStep(1);
    m_pBar->insertStep(0, QStringLiteral("X"));
    QCOMPARE(m_pBar->currentIndex(), 2);
    m_pBar->remove(0);
    m_pBar->remove(0);
    QCOMPARE(m_pBar->currentIndex(), 0);
    m_pBar->remove(0);
    QCOMPARE(m_pBar->currentIndex(), -1);
}

void tst_CStepBar::aDisabledStepCanBeCurrent()
{
    m_pBar->addStep(abc);
    m_pBar->slotSetCurrentStep(2);
    QCOMPARE(m_pBar->currentIndex(), 2);
    m_pBar->setStepEnabled(true);
    m_pBar->setStepEnabled(false);
    QCOMPARE(m_pBar->currentIndex(), 2);
}

void tst_CStepBar::theRoomStandsWhereTheAlignmentSays_data()
{
    QTest::addColumn<CStepBar::Alignment>("alignment");
    QTest::addColumn<QString>("arranged");
    QTest::newRow("start") << CStepBar::AlignStart << QStringLiteral("> A > B > C _");
    QTest::newRow("centre") << CStepBar::AlignCenter << QStringLiteral("_ > A > B > C _");
    QTest::newRow("end") << CStepBar::AlignEnd << QStringLiteral("_ > A > B > C");
}

void tst_CStepBar::theRoomStandsWhereTheAlignmentSays()
{
    QFETCH(CStepBar::Alignment, alignment);
    m_pBar->addStep(abc);
    m_pBar->setAlignment(alignment);
    QTEST(arrangement(*m_pBar), "arranged");
    QCOMPARE(stepTexts(*m_pBar), abc);
    for (int i = 0; i < layoutOf(*m_pBar)->count(); ++i)
        QCOMPARE(layoutOf(*m_pBar)->stretch(i), 0);
}

void tst_CStepBar::theStepsStandWhereTheAlignmentSays_data()
{
    QTest::addColumn<CStepBar::Alignment>("alignment");
    QTest::addColumn<QBoxLayout::Direction>("direction");
    QTest::addColumn<QString>("where");
    const QString sLow = QStringLiteral("low");
    const QString sMiddle = QStringLiteral("middle");
    const QString sHigh = QStringLiteral("high");
    QTest::newRow("start, row") << CStepBar::AlignStart << QBoxLayout::LeftToRight << sLow;
    QTest::newRow("centre, row") << CStepBar::AlignCenter << QBoxLayout::LeftToRight << sMiddle;
    QTest::newRow("end, row") << CStepBar::AlignEnd << QBoxLayout::LeftToRight << sHigh;
    QTest::newRow("start, reverse row") << CStepBar::AlignStart << QBoxLayout::RightToLeft << sHigh;
    QTest::newRow("end, reverse row") << CStepBar::AlignEnd << QBoxLayout::RightToLeft << sLow;
    QTest::newRow("start, column") << CStepBar::AlignStart << QBoxLayout::TopToBottom << sLow;
    QTest::newRow("centre, column") << CStepBar::AlignCenter << QBoxLayout::TopToBottom << sMiddle;
    QTest::newRow("end, column") << CStepBar::AlignEnd << QBoxLayout::TopToBottom << sHigh;
    QTest::newRow("start, reverse column") << CStepBar::AlignStart << QBoxLayout::BottomToTop << sHigh;
}

void tst_CStepBar::theStepsStandWhereTheAlignmentSays()
{
    QFETCH(CStepBar::Alignment, alignment);
    QFETCH(QBoxLayout::Direction, direction);
    m_pBar->addStep(abc);
    m_pBar->layout()->setContentsMargins(0, 0, 0, 0);
    m_pBar->setAlignment(alignment);
    m_pBar->setDirection(direction);
    m_pBar->resize(600, 600);
    m_pBar->show();
    m_pBar->resize(601, 601); // now that the arrows have their sizes
    QCoreApplication::processEvents();
    QRect all = box(*m_pBar, 0)->geometry();
    for (int i = 1; i < 3; ++i)
        all |= box(*m_pBar, i)->geometry() | arrow(*m_pBar, i)->geometry();
    const bool bAcross = direction == QBoxLayout::LeftToRight || direction == QBoxLayout::RightToLeft;
    const int nBefore = bAcross ? all.left() : all.top();
    const int nAfter = bAcross ? 600 - all.right() : 600 - all.bottom();
    QString sWhere = QStringLiteral("%1:%2").arg(nBefore).arg(nAfter);
    if (nBefore == 0 && nAfter > 100)
        sWhere = QStringLiteral("low");
    else if (nAfter == 0 && nBefore > 100)
        sWhere = QStringLiteral("high");
    else if (qAbs(nBefore - nAfter) <= 1 && nBefore > 100)
        sWhere = QStringLiteral("middle");
    QTEST(sWhere, "where");
}

void tst_CStepBar::theRoomIsMadeForAnEmptyBarToo_data()
{
    QTest::addColumn<CStepBar::Alignment>("alignment");
    QTest::addColumn<QString>("empty");
    QTest::addColumn<QString>("one");
    QTest::addColumn<QString>("two");
    // A centred bar's places: the first step comes after the room, wherever that should have been.
    QTest::newRow("start") << CStepBar::AlignStart << QStringLiteral("_") << QStringLiteral("_ > A")
                           << QStringLiteral("_ > A > B");
    QTest::newRow("centre") << CStepBar::AlignCenter << QStringLiteral("_ _") << QStringLiteral("_ > A _")
                            << QStringLiteral("_ > A > B _");
    QTest::newRow("end") << CStepBar::AlignEnd << QStringLiteral("_") << QStringLiteral("_ > A")
                         << QStringLiteral("_ > A > B");
}

void tst_CStepBar::theRoomIsMadeForAnEmptyBarToo()
{
    QFETCH(CStepBar::Alignment, alignment);
    m_pBar->setAlignment(alignment);
    QTEST(arrangement(*m_pBar), "empty");
    m_pBar->addStep(QStringLiteral("A"));
    QTEST(arrangement(*m_pBar), "one");
    m_pBar->addStep(QStringLiteral("B"));
    QTEST(arrangement(*m_pBar), "two");
}

void tst_CStepBar::centringDoesNothing()
{
    m_pBar->addStep(abc);
    m_pBar->setAlignment(CStepBar::AlignCenter);
    QCOMPARE(arrangement(*m_pBar), QStringLiteral("_ > A > B > C _"));
    m_pBar->setAlignment(CStepBar::AlignStart);
    m_pBar->setAlignment(CStepBar::AlignCenter);
    QCOMPARE(arrangement(*m_pBar), QStringLiteral("> A > B > C _"));

    CStepBar other;
    other.addStep(abc);
    other.setAlignment(CStepBar::AlignEnd);
    other.setAlignment(CStepBar::AlignCenter);
    QCOMPARE(arrangement(other), QStringLiteral("_ > A > B > C"));
}

void tst_CStepBar::aSecondAlignmentTakesTheOutermostItems_data()
{
    QTest::addColumn<CStepBar::Alignment>("first");
    QTest::addColumn<CStepBar::Alignment>("second");
    QTest::addColumn<QString>("arranged");
    QTest::addColumn<QString>("emptyBar");
    QTest::newRow("start, start") << CStepBar::AlignStart << CStepBar::AlignStart << QStringLiteral("A > B > C _")
                                  << QStringLiteral("_");
    QTest::newRow("start, end") << CStepBar::AlignStart << CStepBar::AlignEnd << QStringLiteral("_ A > B > C")
                                << QStringLiteral("_");
    QTest::newRow("end, start") << CStepBar::AlignEnd << CStepBar::AlignStart << QStringLiteral("> A > B > _")
                                << QStringLiteral("_");
    QTest::newRow("end, end") << CStepBar::AlignEnd << CStepBar::AlignEnd << QStringLiteral("_ > A > B >")
                              << QStringLiteral("_");
}

void tst_CStepBar::aSecondAlignmentTakesTheOutermostItems()
{
    QFETCH(CStepBar::Alignment, first);
    QFETCH(CStepBar::Alignment, second);
    m_pBar->addStep(abc);
    QPointer<QSvgWidget> pFirstArrow = arrow(*m_pBar, 0);
    QPointer<QCheckBox> pLastBox = box(*m_pBar, 2);
    m_pBar->setAlignment(first);
    m_pBar->setAlignment(second);
    QTEST(arrangement(*m_pBar), "arranged");
    // Out of the layout, not out of the bar.
    QVERIFY(pFirstArrow && pLastBox);
    QCOMPARE(stepTexts(*m_pBar), abc);
    m_pBar->slotSetCurrentStep(2);
    QCOMPARE(m_pBar->currentIndex(), 2);

    CStepBar empty;
    empty.setAlignment(first);
    empty.setAlignment(second);
    QTEST(arrangement(empty), "emptyBar");
}

void tst_CStepBar::placesStayThoseOfACentredBar_data()
{
    QTest::addColumn<CStepBar::Alignment>("alignment");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("arranged");
    QTest::newRow("start, 0") << CStepBar::AlignStart << 0 << QStringLiteral("> > X A > B _");
    QTest::newRow("start, 1") << CStepBar::AlignStart << 1 << QStringLiteral("> A > > X B _");
    QTest::newRow("start, 2") << CStepBar::AlignStart << 2 << QStringLiteral("> A > B _ > X");
    QTest::newRow("end, 0") << CStepBar::AlignEnd << 0 << QStringLiteral("_ > X > A > B");
    QTest::newRow("end, 1") << CStepBar::AlignEnd << 1 << QStringLiteral("_ > A > X > B");
    QTest::newRow("end, 2") << CStepBar::AlignEnd << 2 << QStringLiteral("_ > A > B > X");
}

void tst_CStepBar::placesStayThoseOfACentredBar()
{
    QFETCH(CStepBar::Alignment, alignment);
    QFETCH(int, index);
    m_pBar->addStep({QStringLiteral("A"), QStringLiteral("B")});
    m_pBar->setAlignment(alignment);
    m_pBar->insertStep(index, QStringLiteral("X"));
    QTEST(arrangement(*m_pBar), "arranged");
    QCOMPARE(m_pBar->count(), 3);
    QCOMPARE(m_pBar->stepText(index), QStringLiteral("X"));
}

void tst_CStepBar::whatStandsAtARemovedStepsPlaceGoes_data()
{
    QTest::addColumn<CStepBar::Alignment>("alignment");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("arranged");
    QTest::newRow("start, 0") << CStepBar::AlignStart << 0 << QStringLiteral("> B > C _");
    QTest::newRow("start, 1") << CStepBar::AlignStart << 1 << QStringLiteral("> A > C _");
    QTest::newRow("start, 2") << CStepBar::AlignStart << 2 << QStringLiteral("> A > B >"); // the box and the room
    QTest::newRow("end, 0") << CStepBar::AlignEnd << 0 << QStringLiteral("_ > B > C");
    QTest::newRow("end, 2") << CStepBar::AlignEnd << 2 << QStringLiteral("_ > A > B");
}

void tst_CStepBar::whatStandsAtARemovedStepsPlaceGoes()
{
    QFETCH(CStepBar::Alignment, alignment);
    QFETCH(int, index);
    m_pBar->addStep(abc);
    m_pBar->setAlignment(alignment);
    QPointer<QCheckBox> pBox = box(*m_pBar, index);
    m_pBar->remove(index);
    QTEST(arrangement(*m_pBar), "arranged");
    QVERIFY(pBox.isNull());
    QStringList texts = abc;
    texts.removeAt(index);
    QCOMPARE(stepTexts(*m_pBar), texts);
}

void tst_CStepBar::aStepThatLostItsWidgetIsAnEmptyOne()
{
    // The second alignment shifts the places once more, so that removing A deletes B's box.
    m_pBar->addStep(abc);
    m_pBar->setStepEnabled(true);
    m_pBar->setAlignment(CStepBar::AlignStart);
    m_pBar->setAlignment(CStepBar::AlignStart);
    QCOMPARE(arrangement(*m_pBar), QStringLiteral("A > B > C _"));
    QPointer<QCheckBox> pA = box(*m_pBar, 0);
    QPointer<QCheckBox> pB = box(*m_pBar, 1);
    m_pBar->remove(0);
    QCOMPARE(arrangement(*m_pBar), QStringLiteral("A > C _"));
    QVERIFY(pA);
    QVERIFY(pB.isNull());
    QCOMPARE(m_pBar->count(), 2);
    QCOMPARE(stepTexts(*m_pBar), (QStringList{QString(), QStringLiteral("C")}));

    // Nothing that is done to it now does any harm, and the others go on.
    QSignalSpy reports(m_pBar.data(), &CStepBar::sigStepClicked);
    m_pBar->setStepEnabled(0, false);
    m_pBar->setStepEnabled(false);
    m_pBar->setStepEnabled(true);
    m_pBar->slotSetCurrentStep(0);
    QCOMPARE(m_pBar->currentIndex(), -1);
    m_pBar->slotSetCurrentStep(1);
    QCOMPARE(m_pBar->currentIndex(), 1);
    m_pBar->setDirection(QBoxLayout::TopToBottom);
    m_pBar->show();
    m_pBar->resize(300, 301);
    box(*m_pBar, QStringLiteral("C"))->click();
    QCOMPARE(reports, (QList<QVariantList>{{1}}));
    pA->click(); // still there, but no step any more
    QCOMPARE(reports.count(), 1);
    m_pBar->remove(0);
    m_pBar->remove(0);
    QCOMPARE(m_pBar->count(), 0);
}

void tst_CStepBar::anySequenceOfCallsKeepsTheOrder_data()
{
    QTest::addColumn<unsigned>("seed");
    QTest::addColumn<bool>("aligns");
    for (unsigned nSeed = 1; nSeed <= 20; ++nSeed) {
        QTest::addRow("centred, %u", nSeed) << nSeed << false;
        QTest::addRow("aligned, %u", nSeed) << nSeed << true;
    }
}

void tst_CStepBar::anySequenceOfCallsKeepsTheOrder()
{
    QFETCH(unsigned, seed);
    QFETCH(bool, aligns);
    Walk walk(seed, aligns);
    for (int i = 0; i < 150; ++i) {
        walk.step();
        walk.compare();
        if (QTest::currentTestFailed())
            return;
        if (i % 10 == 0)
            QCoreApplication::processEvents();
    }
}

void tst_CStepBar::loadTheSheet() const
{
    TestSupport::expectMessage(QtInfoMsg, QStringLiteral("Successfully to load qss File: \"Tessera.qss\""));
    TesseraGlobal::loadStyleSheet({QStringLiteral("Tessera")}, QString());
}

void tst_CStepBar::theSheetColoursTheSteps()
{
    loadTheSheet();
    const QColor current(0x3c, 0x8c, 0x0e);
    const QColor other(0x13, 0x67, 0x96);
    const QColor pressed(0x9f, 0xdc, 0x65);
    // Blocks, for a letter may be too thin to have a pixel of its pure colour.
    show({QStringLiteral("██"), QStringLiteral("███"), QStringLiteral("████")});
    m_pBar->slotSetCurrentStep(1);
    for (const bool bEnabled : {true, false}) {
        m_pBar->setStepEnabled(bEnabled);
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(shows(box(*m_pBar, i), current), i == 1);
            QCOMPARE(shows(box(*m_pBar, i), other), i != 1);
        }
    }
    m_pBar->setStepEnabled(true);
    for (int i = 0; i < 2; ++i) { // pressed outdoes checked and unchecked
        QTest::mousePress(box(*m_pBar, i), Qt::LeftButton);
        QVERIFY(shows(box(*m_pBar, i), pressed));
        QVERIFY(!shows(box(*m_pBar, i), current));
        QVERIFY(!shows(box(*m_pBar, i), other));
        QTest::mouseRelease(box(*m_pBar, i), Qt::LeftButton);
        QVERIFY(!shows(box(*m_pBar, i), pressed));
    }
    m_pBar->slotSetCurrentStep(2);
    QVERIFY(shows(box(*m_pBar, 1), other));
    QVERIFY(shows(box(*m_pBar, 2), current));

    // No other check box is coloured.
    QCheckBox plain(QStringLiteral("███"));
    plain.show();
    QVERIFY(!shows(&plain, other));
}

void tst_CStepBar::theSheetColoursTheStepUnderTheMouse()
{
    loadTheSheet();
    const QColor hovered(0x61, 0xc3, 0xed);
    show({QStringLiteral("██"), QStringLiteral("███")});
    m_pBar->slotSetCurrentStep(0);
    for (int i = 0; i < 2; ++i) {
        QCheckBox* const pBox = box(*m_pBar, i);
        QVERIFY(!shows(pBox, hovered));
        QTest::mouseMove(pBox, pBox->rect().center());
        QTRY_VERIFY(pBox->underMouse());
        QVERIFY(shows(pBox, hovered)); // whether it is checked or not
        QTest::mousePress(pBox, Qt::LeftButton);
        QVERIFY(shows(pBox, QColor(0x9f, 0xdc, 0x65))); // pressed outdoes it
        QTest::mouseRelease(pBox, Qt::LeftButton);
        QVERIFY(shows(pBox, hovered));
    }
    m_pBar->setStepEnabled(false);
    QVERIFY(!shows(box(*m_pBar, 1), hovered));
}

void tst_CStepBar::theSheetHidesTheChecks()
{
    show();
    const auto part = [this](QStyle::SubElement element) {
        const QCheckBox* const pFirst = box(*m_pBar, 0);
        QStyleOptionButton option;
        option.initFrom(pFirst);
        option.text = pFirst->text();
        return pFirst->style()->subElementRect(element, &option, pFirst);
    };
    QVERIFY(!part(QStyle::SE_CheckBoxIndicator).isEmpty());
    QVERIFY(part(QStyle::SE_CheckBoxContents).left() > 0);
    const int nWidthWithCheck = box(*m_pBar, 0)->sizeHint().width();
    qApp->setStyleSheet(QString::fromUtf8(TestSupport::contentOf(QStringLiteral(":/qss/Tessera.qss"))));
    QCOMPARE(part(QStyle::SE_CheckBoxIndicator).size(), QSize(0, 0));
    QCOMPARE(part(QStyle::SE_CheckBoxContents).left(), 0);
    QVERIFY(box(*m_pBar, 0)->sizeHint().width() < nWidthWithCheck);
    m_pBar->slotSetCurrentStep(0);
    QCheckBox* const pBox = box(*m_pBar, 0);
    const QImage checked = pBox->grab().toImage();
    QVERIFY(pBox->isChecked());

    // But for its colour the current step looks like another one.
    qApp->setStyleSheet(qApp->styleSheet().replace(QLatin1String("#3C8C0E"), QLatin1String("#136796")));
    const QImage checkedInBlue = pBox->grab().toImage();
    QVERIFY(checked != checkedInBlue);
    m_pBar->slotSetCurrentStep(-1);
    QCOMPARE(pBox->grab().toImage(), checkedInBlue);
}

TESSERA_TEST_MAIN(tst_CStepBar)
#include "tst_CStepBar.moc"
