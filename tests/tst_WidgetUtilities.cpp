// SPDX-License-Identifier: MIT
#include "support/TestMain.h"

#include <Tessera/CISpinBox/CI16SpinBox.h>
#include <Tessera/CISpinBox/CI32SpinBox.h>
#include <Tessera/CISpinBox/CI64SpinBox.h>
#include <Tessera/CISpinBox/CI8SpinBox.h>
#include <Tessera/CISpinBox/CU16SpinBox.h>
#include <Tessera/CISpinBox/CU32SpinBox.h>
#include <Tessera/CISpinBox/CU64SpinBox.h>
#include <Tessera/CISpinBox/CU8SpinBox.h>
#include <Tessera/Tessera.h>
#include <Tessera/widgets/CDataComboBox.h>
#include <Tessera/widgets/CDSpinBox.h>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFontComboBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScopedPointer>
#include <QScreen>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTimeEdit>
#include <QTimer>
#include <QToolButton>
#include <QtTest>

#include <functional>
#include <new>
#include <type_traits>

using namespace nsUI;

namespace {

using Make = std::function<QObject*()>;
using Change = std::function<void(QObject*)>;

TesseraGlobal& global()
{
    return TesseraGlobal::instance();
}

QString toolTipOf(const QObject* pObject)
{
    return pObject->property("toolTip").toString(); // of a widget or an action
}

//! Whether a tool tip is set, and what it is then.
bool track(QObject* pObject)
{
    return global().autoSetToolTips(pObject, QString());
}

template <class Box>
Box* spinBox()
{
    Box* const pBox = new Box;
    pBox->setPrefix(QStringLiteral("<"));
    pBox->setSuffix(QStringLiteral(">"));
    pBox->setValue(7);
    return pBox;
}

template <class Box>
void setEight(QObject* pObject)
{
    qobject_cast<Box*>(pObject)->setValue(8);
}

//! Counts the tool tips that a line edit is given, and who listens to its text.
class CountingLineEdit : public QLineEdit
{
public:
    using QLineEdit::QLineEdit;

    int listeners() const { return receivers(SIGNAL(textChanged(QString))); }
    int destroyedListeners() const { return receivers(SIGNAL(destroyed(QObject*))); }

    int m_nToolTips = 0;

protected:
    bool event(QEvent* pEvent) override
    {
        m_nToolTips += pEvent->type() == QEvent::ToolTipChange ? 1 : 0;
        return QLineEdit::event(pEvent);
    }
};

//! A window without a frame, which no platform moves, that counts how often it is shown and hidden.
class Window : public QWidget
{
public:
    Window()
        : QWidget(nullptr, Qt::FramelessWindowHint)
    {
        setGeometry(20, 30, 300, 200);
    }

    int m_nShown = 0;
    int m_nHidden = 0;

protected:
    void showEvent(QShowEvent*) override { ++m_nShown; }
    void hideEvent(QHideEvent*) override { ++m_nHidden; }
};

QSize screenSize()
{
    return QGuiApplication::primaryScreen()->geometry().size();
}

//! The place of a window of the given size whose centre lies at the given fractions of the screen.
QPoint placed(const QSize& size, double dX, double dY)
{
    return {int(screenSize().width() * dX - size.width() * 0.5), int(screenSize().height() * dY - size.height() * 0.5)};
}

QSize fraction(double dWidth, double dHeight)
{
    return {int(screenSize().width() * dWidth), int(screenSize().height() * dHeight)};
}

struct Fragment
{
    QString sText;
    QColor color;
    bool bBold;
};

bool operator==(const Fragment& a, const Fragment& b)
{
    return a.sText == b.sText && a.color == b.color && a.bBold == b.bBold;
}

QVector<Fragment> fragmentsOf(const QTextBlock& block)
{
    QVector<Fragment> fragments;
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextCharFormat format = it.fragment().charFormat();
        fragments.append({it.fragment().text(), format.foreground().color(), format.fontWeight() > QFont::Normal});
    }
    return fragments;
}

} // namespace

Q_DECLARE_METATYPE(Make)
Q_DECLARE_METATYPE(Change)

class tst_WidgetUtilities : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void setsTheTextAsToolTip_data();
    void setsTheTextAsToolTip();
    void followsChangesOfTrackedClassesOnly_data();
    void followsChangesOfTrackedClassesOnly();
    void setsNothingOnOtherClasses_data();
    void setsNothingOnOtherClasses();
    void setsNothingOnNothing();
    void givesTheItemsOfAComboBoxTheirTexts();
    void followsTheTextAComboBoxIsEditedTo();
    void takesAnActionsTextAsItStands();
    void followsASpinBoxAtChangesOfItsValue();

    void setsAGivenToolTip_data();
    void setsAGivenToolTip();
    void setsNoGivenToolTipOnOtherObjects();
    void countsAnEmptyToolTipAsGiven();
    void replacesAGivenToolTipAtTheNextChangeOfTheText();
    void doesNotTrackWithAGivenToolTip();

    void connectsOnlyOnce();
    void refreshesTheToolTipWhenCalledAgain();
    void survivesTheDestructionOfTrackedObjects();
    void tracksANewObjectAtTheAddressOfADestroyedOne();
    void tracksEachObjectOfAList();
    void answersAnEmptyListWithAnEmptyList();

    void sizesAndPlacesByFractionsOfTheScreen_data();
    void sizesAndPlacesByFractionsOfTheScreen();
    void keepsSizesAsTheFlagsTell_data();
    void keepsSizesAsTheFlagsTell();
    void placesByTheSizeThatTheFlagsLeave();
    void centresAgainWhenSizeLimitsHold_data();
    void centresAgainWhenSizeLimitsHold();
    void doesNothingWithARatioOutOfRange_data();
    void doesNothingWithARatioOutOfRange();
    void takesTheEndsOfTheRatios();
    void hidesAHiddenWidgetAgain();
    void leavesAVisibleWidgetVisible();
    void sizesAChildByTheScreenToo();

    void choosesTheFirstEqualEntry_data();
    void choosesTheFirstEqualEntry();
    void choosesTheFirstEntryEvenIfTheCurrentOneIsEqual();
    void choosesNothingInAnEmptyBox();

    void appendsAParagraphInTheColour_data();
    void appendsAParagraphInTheColour();
    void appendsBehindWhatIsThere();
    void interpretsMarkupInTheText_data();
    void interpretsMarkupInTheText();
};

void tst_WidgetUtilities::setsTheTextAsToolTip_data()
{
    QTest::addColumn<Make>("make");
    QTest::addColumn<Change>("change"); // to another text
    QTest::addColumn<QString>("toolTip");
    QTest::addColumn<QString>("changedToolTip"); // the same where the class is not tracked

    const auto row = [](const char* name, const Make& make, const QString& sToolTip, const Change& change,
                        const QString& sChanged) { QTest::newRow(name) << make << change << sToolTip << sChanged; };
    const QString sOld = QStringLiteral("old");
    const QString sNew = QStringLiteral("new");

    row(
        "QLineEdit", [sOld] { return new QLineEdit(sOld); }, sOld,
        [sNew](QObject* p) { qobject_cast<QLineEdit*>(p)->setText(sNew); }, sNew);
    const Make makeCombo = [sOld, sNew] {
        QComboBox* const pBox = new QComboBox;
        pBox->addItems({sOld, sNew});
        return pBox;
    };
    const Change changeCombo = [](QObject* p) { qobject_cast<QComboBox*>(p)->setCurrentIndex(1); };
    row("QComboBox", makeCombo, sOld, changeCombo, sNew);
    row(
        "CDataComboBox, a QComboBox",
        [sOld, sNew] {
            CDataComboBox* const pBox = new CDataComboBox;
            pBox->addItems({sOld, sNew});
            return pBox;
        },
        sOld, changeCombo, sNew);
    row(
        "QLabel", [sOld] { return new QLabel(sOld); }, sOld,
        [sNew](QObject* p) { qobject_cast<QLabel*>(p)->setText(sNew); }, sOld);
    const Change changeButton = [sNew](QObject* p) { qobject_cast<QAbstractButton*>(p)->setText(sNew); };
    row(
        "QPushButton, a QAbstractButton", [sOld] { return new QPushButton(sOld); }, sOld, changeButton, sOld);
    row(
        "QCheckBox, a QAbstractButton", [sOld] { return new QCheckBox(sOld); }, sOld, changeButton, sOld);
    row(
        "QRadioButton, a QAbstractButton", [sOld] { return new QRadioButton(sOld); }, sOld, changeButton, sOld);
    row(
        "QToolButton, a QAbstractButton",
        [sOld] {
            QToolButton* const pButton = new QToolButton;
            pButton->setText(sOld);
            return pButton;
        },
        sOld, changeButton, sOld);
    row(
        "QAction", [sOld] { return new QAction(sOld); }, sOld,
        [sNew](QObject* p) { qobject_cast<QAction*>(p)->setText(sNew); }, sOld);

    const QString sSeven = QStringLiteral("<7>");
    const QString sEight = QStringLiteral("<8>");
    row("QSpinBox", &spinBox<QSpinBox>, sSeven, &setEight<QSpinBox>, sEight);
    row("QDoubleSpinBox", &spinBox<QDoubleSpinBox>, QStringLiteral("<7.00>"), &setEight<QDoubleSpinBox>,
        QStringLiteral("<8.00>"));
    row("CDSpinBox, a QDoubleSpinBox", &spinBox<CDSpinBox>, QStringLiteral("<7.00>"), &setEight<CDSpinBox>,
        QStringLiteral("<8.00>"));
    row("CI8SpinBox", &spinBox<CI8SpinBox>, sSeven, &setEight<CI8SpinBox>, sEight);
    row("CI16SpinBox", &spinBox<CI16SpinBox>, sSeven, &setEight<CI16SpinBox>, sEight);
    row("CI32SpinBox", &spinBox<CI32SpinBox>, sSeven, &setEight<CI32SpinBox>, sEight);
    row("CI64SpinBox", &spinBox<CI64SpinBox>, sSeven, &setEight<CI64SpinBox>, sEight);
    row("CU8SpinBox", &spinBox<CU8SpinBox>, sSeven, &setEight<CU8SpinBox>, sEight);
    row("CU16SpinBox", &spinBox<CU16SpinBox>, sSeven, &setEight<CU16SpinBox>, sEight);
    row("CU32SpinBox", &spinBox<CU32SpinBox>, sSeven, &setEight<CU32SpinBox>, sEight);
    row("CU64SpinBox", &spinBox<CU64SpinBox>, sSeven, &setEight<CU64SpinBox>, sEight);
}

void tst_WidgetUtilities::setsTheTextAsToolTip()
{
    QFETCH(const Make, make);
    QFETCH(const QString, toolTip);
    const QScopedPointer<QObject> pObject(make());
    QVERIFY(track(pObject.data()));
    QCOMPARE(toolTipOf(pObject.data()), toolTip);
}

void tst_WidgetUtilities::followsChangesOfTrackedClassesOnly_data()
{
    setsTheTextAsToolTip_data();
}

void tst_WidgetUtilities::followsChangesOfTrackedClassesOnly()
{
    QFETCH(const Make, make);
    QFETCH(const Change, change);
    QFETCH(const QString, changedToolTip);
    const QScopedPointer<QObject> pObject(make());
    track(pObject.data());
    change(pObject.data());
    QCOMPARE(toolTipOf(pObject.data()), changedToolTip);
}

void tst_WidgetUtilities::setsNothingOnOtherClasses_data()
{
    QTest::addColumn<Make>("make");

    QTest::newRow("QWidget") << Make([] { return new QWidget; });
    QTest::newRow("QSlider") << Make([] { return new QSlider; });
    QTest::newRow("QTimeEdit, an abstract spin box") << Make([] { return new QTimeEdit; });
    QTest::newRow("QTextBrowser") << Make([] { return new QTextBrowser; });
    QTest::newRow("QTimer") << Make([] { return new QTimer; });
}

void tst_WidgetUtilities::setsNothingOnOtherClasses()
{
    QFETCH(const Make, make);
    const QScopedPointer<QObject> pObject(make());
    QVERIFY(!track(pObject.data()));
    QCOMPARE(toolTipOf(pObject.data()), QString());
}

void tst_WidgetUtilities::setsNothingOnNothing()
{
    QVERIFY(!global().autoSetToolTips(nullptr, QString()));
    QVERIFY(!global().autoSetToolTips(nullptr, QStringLiteral("x")));
}

void tst_WidgetUtilities::givesTheItemsOfAComboBoxTheirTexts()
{
    QComboBox box;
    box.addItems({QStringLiteral("A"), QStringLiteral("B")});
    box.setItemData(1, QStringLiteral("as it was"), Qt::ToolTipRole);
    box.setCurrentIndex(1);
    QVERIFY(track(&box));
    QCOMPARE(box.itemData(0, Qt::ToolTipRole), QVariant(QStringLiteral("A")));
    QCOMPARE(box.itemData(1, Qt::ToolTipRole), QVariant(QStringLiteral("B")));
    QCOMPARE(box.toolTip(), QStringLiteral("B"));

    box.addItem(QStringLiteral("C"));
    QCOMPARE(box.itemData(2, Qt::ToolTipRole), QVariant());
    QVERIFY(track(&box));
    QCOMPARE(box.itemData(2, Qt::ToolTipRole), QVariant(QStringLiteral("C")));
}

void tst_WidgetUtilities::followsTheTextAComboBoxIsEditedTo()
{
    QComboBox box;
    box.setEditable(true);
    box.addItems({QStringLiteral("A"), QStringLiteral("B")});
    QVERIFY(track(&box));
    box.setEditText(QStringLiteral("something else"));
    QCOMPARE(box.toolTip(), QStringLiteral("something else"));
    box.clear();
    QCOMPARE(box.toolTip(), QString());
}

void tst_WidgetUtilities::takesAnActionsTextAsItStands()
{
    QAction action(QStringLiteral("&Open..."));
    QCOMPARE(action.toolTip(), QStringLiteral("Open")); // what Qt makes of the text
    QVERIFY(track(&action));
    QCOMPARE(action.toolTip(), QStringLiteral("&Open..."));
}

void tst_WidgetUtilities::followsASpinBoxAtChangesOfItsValue()
{
    QSpinBox box;
    box.setValue(1);
    QVERIFY(track(&box));
    box.setPrefix(QStringLiteral("#"));
    QCOMPARE(box.toolTip(), QStringLiteral("1")); // the value is what it was
    box.setValue(3);
    QCOMPARE(box.toolTip(), QStringLiteral("#3"));

    CI32SpinBox own; // its text alone is enough
    QVERIFY(track(&own));
    own.setPrefix(QStringLiteral("#"));
    QCOMPARE(own.toolTip(), QStringLiteral("#0"));
}

void tst_WidgetUtilities::setsAGivenToolTip_data()
{
    QTest::addColumn<Make>("make");

    QTest::newRow("QWidget") << Make([] { return new QWidget; });
    QTest::newRow("QSlider") << Make([] { return new QSlider; });
    QTest::newRow("QLabel") << Make([] { return new QLabel(QStringLiteral("its text")); });
    QTest::newRow("QLineEdit") << Make([] { return new QLineEdit(QStringLiteral("its text")); });
    QTest::newRow("CU64SpinBox") << Make([] { return new CU64SpinBox; });
    QTest::newRow("QAction") << Make([] { return new QAction(QStringLiteral("its text")); });
}

void tst_WidgetUtilities::setsAGivenToolTip()
{
    QFETCH(const Make, make);
    const QScopedPointer<QObject> pObject(make());
    QVERIFY(global().autoSetToolTips(pObject.data(), QStringLiteral("x")));
    QCOMPARE(toolTipOf(pObject.data()), QStringLiteral("x"));
}

void tst_WidgetUtilities::setsNoGivenToolTipOnOtherObjects()
{
    QTimer timer;
    QVERIFY(!global().autoSetToolTips(&timer, QStringLiteral("x")));
    QObject object;
    QVERIFY(!global().autoSetToolTips(&object, QStringLiteral("")));
}

void tst_WidgetUtilities::countsAnEmptyToolTipAsGiven()
{
    QLineEdit edit(QStringLiteral("text"));
    QVERIFY(track(&edit));
    QCOMPARE(edit.toolTip(), QStringLiteral("text"));
    QVERIFY(global().autoSetToolTips(&edit, QStringLiteral("")));
    QCOMPARE(edit.toolTip(), QString());
    edit.setText(QStringLiteral("texts"));
    QCOMPARE(edit.toolTip(), QStringLiteral("texts"));

    QWidget plain;
    plain.setToolTip(QStringLiteral("old"));
    QVERIFY(global().autoSetToolTips(&plain, QStringLiteral("")));
    QCOMPARE(plain.toolTip(), QString());
}

void tst_WidgetUtilities::replacesAGivenToolTipAtTheNextChangeOfTheText()
{
    QLineEdit edit(QStringLiteral("text"));
    QVERIFY(track(&edit));
    QVERIFY(global().autoSetToolTips(&edit, QStringLiteral("given")));
    QCOMPARE(edit.toolTip(), QStringLiteral("given"));
    edit.setText(QStringLiteral("text")); // no change
    QCOMPARE(edit.toolTip(), QStringLiteral("given"));
    edit.setText(QStringLiteral("other"));
    QCOMPARE(edit.toolTip(), QStringLiteral("other"));
}

void tst_WidgetUtilities::doesNotTrackWithAGivenToolTip()
{
    CountingLineEdit edit;
    QVERIFY(global().autoSetToolTips(&edit, QStringLiteral("given")));
    edit.setText(QStringLiteral("text"));
    QCOMPARE(edit.toolTip(), QStringLiteral("given"));
    QCOMPARE(edit.listeners(), CountingLineEdit().listeners());

    QComboBox box;
    box.addItem(QStringLiteral("A"));
    QVERIFY(global().autoSetToolTips(&box, QStringLiteral("given")));
    QCOMPARE(box.itemData(0, Qt::ToolTipRole), QVariant());
}

void tst_WidgetUtilities::connectsOnlyOnce()
{
    CountingLineEdit edit;
    const int nListeners = edit.listeners();
    const int nDestroyedListeners = edit.destroyedListeners();
    QVERIFY(track(&edit));
    QVERIFY(track(&edit));
    QVERIFY(global().autoSetToolTips(&edit, QStringLiteral("given")));
    QVERIFY(track(&edit));
    QCOMPARE(edit.listeners(), nListeners + 1);
    QCOMPARE(edit.destroyedListeners(), nDestroyedListeners + 1);

    edit.m_nToolTips = 0;
    QTest::keyClicks(&edit, QStringLiteral("abc"));
    QCOMPARE(edit.toolTip(), QStringLiteral("abc"));
    QCOMPARE(edit.m_nToolTips, 3);
}

void tst_WidgetUtilities::refreshesTheToolTipWhenCalledAgain()
{
    QLineEdit edit(QStringLiteral("text"));
    QVERIFY(track(&edit));
    edit.setToolTip(QStringLiteral("set by somebody"));
    QVERIFY(track(&edit));
    QCOMPARE(edit.toolTip(), QStringLiteral("text"));

    QLabel label(QStringLiteral("old"));
    QVERIFY(track(&label));
    label.setText(QStringLiteral("new"));
    QVERIFY(track(&label));
    QCOMPARE(label.toolTip(), QStringLiteral("new"));
}

void tst_WidgetUtilities::survivesTheDestructionOfTrackedObjects()
{
    for (int n = 0; n < 100; ++n) {
        QWidget parent;
        QLineEdit* const pEdit = new QLineEdit(&parent);
        CI32SpinBox* const pBox = new CI32SpinBox(&parent);
        QVERIFY(track(pEdit) && track(pBox));
        pEdit->setText(QString::number(n));
        QCOMPARE(pEdit->toolTip(), QString::number(n));
    }
}

void tst_WidgetUtilities::tracksANewObjectAtTheAddressOfADestroyedOne()
{
    std::aligned_union<0, CountingLineEdit, QSpinBox>::type storage;
    for (int n = 0; n < 3; ++n) {
        CountingLineEdit* const pEdit = new (&storage) CountingLineEdit;
        const int nListeners = pEdit->listeners();
        const bool bSet = track(pEdit);
        const int nListenersAfter = pEdit->listeners();
        pEdit->setText(QStringLiteral("text %1").arg(n));
        const QString sToolTip = pEdit->toolTip();
        pEdit->~CountingLineEdit();
        QVERIFY(bSet);
        QCOMPARE(nListenersAfter, nListeners + 1);
        QCOMPARE(sToolTip, QStringLiteral("text %1").arg(n));

        QSpinBox* const pBox = new (&storage) QSpinBox; // of another class too
        const bool bBoxSet = track(pBox);
        pBox->setValue(n + 1);
        const QString sBoxToolTip = pBox->toolTip();
        pBox->~QSpinBox();
        QVERIFY(bBoxSet);
        QCOMPARE(sBoxToolTip, QString::number(n + 1));
    }
}

void tst_WidgetUtilities::tracksEachObjectOfAList()
{
    QLineEdit edit(QStringLiteral("edit"));
    QWidget plain;
    QLabel label(QStringLiteral("label"));
    QTimer timer;
    QAction action(QStringLiteral("action"));
    const QList<bool> results =
        global().autoSetToolTips({&edit, &plain, nullptr, &label, static_cast<QObject*>(&timer), &action, &edit});
    QCOMPARE(results, (QList<bool>{true, false, false, true, false, true, true}));
    QCOMPARE(edit.toolTip(), QStringLiteral("edit"));
    QCOMPARE(plain.toolTip(), QString());
    QCOMPARE(label.toolTip(), QStringLiteral("label"));
    QCOMPARE(action.toolTip(), QStringLiteral("action"));
    edit.setText(QStringLiteral("edited"));
    QCOMPARE(edit.toolTip(), QStringLiteral("edited"));
}

void tst_WidgetUtilities::answersAnEmptyListWithAnEmptyList()
{
    QCOMPARE(global().autoSetToolTips(std::initializer_list<QObject*>{}), QList<bool>());
}

void tst_WidgetUtilities::sizesAndPlacesByFractionsOfTheScreen_data()
{
    QTest::addColumn<double>("widthRatio");
    QTest::addColumn<double>("heightRatio");
    QTest::addColumn<double>("xRatio");
    QTest::addColumn<double>("yRatio");
    QTest::addColumn<bool>("visible");

    for (const bool bVisible : {true, false}) {
        const char* const state = bVisible ? "visible" : "hidden";
        QTest::addRow("half the screen, centred, %s", state) << 0.5 << 0.5 << 0.5 << 0.5 << bVisible;
        QTest::addRow("wide, %s", state) << 0.75 << 0.25 << 0.5 << 0.5 << bVisible;
        QTest::addRow("high, off the centre, %s", state) << 0.3 << 0.6 << 0.4 << 0.65 << bVisible;
        QTest::addRow("fractions of pixels, %s", state) << 0.3333 << 0.4444 << 0.5 << 0.5 << bVisible;
        QTest::addRow("the whole screen, %s", state) << 1.0 << 1.0 << 0.5 << 0.5 << bVisible;
        QTest::addRow("beyond the left upper corner, %s", state) << 0.3333 << 0.4444 << 0.0 << 0.0 << bVisible;
        QTest::addRow("beyond the right lower corner, %s", state) << 0.3333 << 0.4444 << 1.0 << 1.0 << bVisible;
    }
}

void tst_WidgetUtilities::sizesAndPlacesByFractionsOfTheScreen()
{
    QFETCH(const double, widthRatio);
    QFETCH(const double, heightRatio);
    QFETCH(const double, xRatio);
    QFETCH(const double, yRatio);
    QFETCH(const bool, visible);
    Window window;
    window.setVisible(visible);
    TesseraGlobal::resize(&window, widthRatio, heightRatio, 0, xRatio, yRatio);
    const QSize size = fraction(widthRatio, heightRatio);
    QCOMPARE(window.geometry(), QRect(placed(size, xRatio, yRatio), size));
    QCOMPARE(window.isVisible(), visible);
}

void tst_WidgetUtilities::keepsSizesAsTheFlagsTell_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<bool>("widthIsLarger"); // the widget's, than half of the screen's
    QTest::addColumn<bool>("heightIsLarger");
    QTest::addColumn<bool>("keepsWidth");
    QTest::addColumn<bool>("keepsHeight");

    for (const bool bWide : {false, true}) {
        for (const bool bHigh : {false, true}) {
            const char* const wide = bWide ? "wide" : "narrow";
            const char* const high = bHigh ? "high" : "low";
            const auto row = [=](int nFlags, bool bKeepsWidth, bool bKeepsHeight) {
                QTest::addRow("0x%02x, %s and %s", uint(nFlags), wide, high)
                    << nFlags << bWide << bHigh << bKeepsWidth << bKeepsHeight;
            };
            row(0x00, false, false);
            row(0x20, bWide, false);
            row(0x10, !bWide, false);
            row(0x30, bWide, false);
            row(0x02, false, bHigh);
            row(0x01, false, !bHigh);
            row(0x03, false, bHigh);
            row(0x22, bWide, bHigh);
            row(0x21, bWide, !bHigh);
            row(0x12, !bWide, bHigh);
            row(0x11, !bWide, !bHigh);
            row(0x33, bWide, bHigh);
            row(0xCC, false, false);
            row(~0x33, false, false);
        }
    }
}

void tst_WidgetUtilities::keepsSizesAsTheFlagsTell()
{
    QFETCH(const int, flags);
    QFETCH(const bool, widthIsLarger);
    QFETCH(const bool, heightIsLarger);
    QFETCH(const bool, keepsWidth);
    QFETCH(const bool, keepsHeight);
    const QSize half = fraction(0.5, 0.5);
    const QSize own(half.width() + (widthIsLarger ? 33 : -33), half.height() + (heightIsLarger ? 44 : -44));
    for (const bool bVisible : {true, false}) {
        Window window;
        window.resize(own);
        window.setVisible(bVisible);
        TesseraGlobal::resize(&window, 0.5, 0.5, flags, 0.5, 0.5);
        const QSize expected(keepsWidth ? own.width() : half.width(), keepsHeight ? own.height() : half.height());
        QCOMPARE(window.geometry(), QRect(placed(expected, 0.5, 0.5), expected));
    }
}

void tst_WidgetUtilities::placesByTheSizeThatTheFlagsLeave()
{
    Window window;
    window.resize(401, 51);
    TesseraGlobal::resize(&window, 0.25, 0.25, 0x20 | 0x01, 0.75, 0.25);
    QCOMPARE(window.geometry(), QRect(placed(QSize(401, 51), 0.75, 0.25), QSize(401, 51)));
}

void tst_WidgetUtilities::centresAgainWhenSizeLimitsHold_data()
{
    QTest::addColumn<QSize>("minimum");
    QTest::addColumn<QSize>("maximum");

    const QSize none(0, 0);
    const QSize any(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    const QSize half = fraction(0.5, 0.5);
    QTest::newRow("a minimum above the fractions") << half + QSize(51, 71) << any;
    QTest::newRow("a minimum width above the fraction") << QSize(half.width() + 51, 0) << any;
    QTest::newRow("a maximum below the fractions") << none << half - QSize(51, 71);
    QTest::newRow("a maximum height below the fraction") << none << QSize(QWIDGETSIZE_MAX, half.height() - 71);
    QTest::newRow("a fixed size") << QSize(123, 77) << QSize(123, 77);
}

void tst_WidgetUtilities::centresAgainWhenSizeLimitsHold()
{
    QFETCH(const QSize, minimum);
    QFETCH(const QSize, maximum);
    const QSize expected = fraction(0.5, 0.5).expandedTo(minimum).boundedTo(maximum);
    for (const bool bVisible : {true, false}) {
        Window window;
        window.setMinimumSize(minimum);
        window.setMaximumSize(maximum);
        window.setVisible(bVisible);
        TesseraGlobal::resize(&window, 0.5, 0.5, 0, 0.4, 0.6);
        QCOMPARE(window.geometry(), QRect(placed(expected, 0.4, 0.6), expected));
    }
}

void tst_WidgetUtilities::doesNothingWithARatioOutOfRange_data()
{
    QTest::addColumn<double>("widthRatio");
    QTest::addColumn<double>("heightRatio");
    QTest::addColumn<double>("xRatio");
    QTest::addColumn<double>("yRatio");

    for (const double dBad : {1.5, 1.0001, -0.0001, -3.0}) {
        QTest::addRow("width %g", dBad) << dBad << 0.5 << 0.5 << 0.5;
        QTest::addRow("height %g", dBad) << 0.5 << dBad << 0.5 << 0.5;
        QTest::addRow("x %g", dBad) << 0.5 << 0.5 << dBad << 0.5;
        QTest::addRow("y %g", dBad) << 0.5 << 0.5 << 0.5 << dBad;
    }
}

void tst_WidgetUtilities::doesNothingWithARatioOutOfRange()
{
    QFETCH(const double, widthRatio);
    QFETCH(const double, heightRatio);
    QFETCH(const double, xRatio);
    QFETCH(const double, yRatio);
    for (const bool bVisible : {true, false}) {
        Window window;
        window.setVisible(bVisible);
        const QRect before = window.geometry();
        const int nShown = window.m_nShown;
        TesseraGlobal::resize(&window, widthRatio, heightRatio, 0, xRatio, yRatio);
        QCOMPARE(window.geometry(), before);
        QCOMPARE(window.isVisible(), bVisible);
        QCOMPARE(window.m_nShown, nShown);
        QCOMPARE(window.m_nHidden, 0);
    }
}

void tst_WidgetUtilities::takesTheEndsOfTheRatios()
{
    Window window;
    window.setMinimumSize(10, 10);
    TesseraGlobal::resize(&window, 0.0, 1.0, 0, 1.0, 0.0);
    const QSize size(10, screenSize().height());
    QCOMPARE(window.geometry(), QRect(placed(size, 1.0, 0.0), size));
}

void tst_WidgetUtilities::hidesAHiddenWidgetAgain()
{
    Window window;
    TesseraGlobal::resize(&window, 0.5, 0.5, 0, 0.5, 0.5);
    QVERIFY(!window.isVisible());
    QCOMPARE(window.m_nShown, 1);
    QCOMPARE(window.m_nHidden, 1);
    QCOMPARE(window.size(), fraction(0.5, 0.5));
}

void tst_WidgetUtilities::leavesAVisibleWidgetVisible()
{
    Window window;
    window.show();
    TesseraGlobal::resize(&window, 0.5, 0.5, 0, 0.5, 0.5);
    QVERIFY(window.isVisible());
    QCOMPARE(window.m_nShown, 1);
    QCOMPARE(window.m_nHidden, 0);
}

void tst_WidgetUtilities::sizesAChildByTheScreenToo()
{
    Window window;
    QWidget* const pChild = new QWidget(&window);
    window.show();
    for (const bool bVisible : {true, false}) {
        pChild->setGeometry(1, 2, 3, 4);
        pChild->setVisible(bVisible);
        TesseraGlobal::resize(pChild, 0.5, 0.25, 0, 0.5, 0.5);
        const QSize size = fraction(0.5, 0.25);
        QCOMPARE(pChild->geometry(), QRect(placed(size, 0.5, 0.5), size));
        QCOMPARE(pChild->isVisible(), bVisible);
    }
}

void tst_WidgetUtilities::choosesTheFirstEqualEntry_data()
{
    QTest::addColumn<int>("current");
    QTest::addColumn<QVariant>("data");
    QTest::addColumn<int>("role");
    QTest::addColumn<bool>("found");
    QTest::addColumn<int>("chosen");
    QTest::addColumn<int>("signalled");

    const int nUser = Qt::UserRole;
    QTest::newRow("the only one") << 0 << QVariant(3) << nUser << true << 2 << 1;
    QTest::newRow("the first of two") << 0 << QVariant(2) << nUser << true << 1 << 1;
    QTest::newRow("the current one") << 2 << QVariant(3) << nUser << true << 2 << 0;
    QTest::newRow("from none") << -1 << QVariant(1) << nUser << true << 0 << 1;
    QTest::newRow("none equal") << 2 << QVariant(9) << nUser << false << 2 << 0;
    QTest::newRow("none equal, from none") << -1 << QVariant(9) << nUser << false << -1 << 0;
    QTest::newRow("another role") << 0 << QVariant(QStringLiteral("Three")) << int(Qt::DisplayRole) << true << 2 << 1;
    QTest::newRow("not in that role") << 0 << QVariant(3) << nUser + 1 << false << 0 << 0;
    QTest::newRow("an equal variant of another type") << 0 << QVariant(3U) << nUser << true << 2 << 1;
    QTest::newRow("no data in a role without data") << 2 << QVariant() << nUser + 1 << true << 0 << 1;
}

void tst_WidgetUtilities::choosesTheFirstEqualEntry()
{
    QFETCH(const int, current);
    QFETCH(const QVariant, data);
    QFETCH(const int, role);
    QFETCH(const bool, found);
    QFETCH(const int, chosen);
    QFETCH(const int, signalled);
    QComboBox box;
    box.addItem(QStringLiteral("One"), 1);
    box.addItem(QStringLiteral("Two"), 2);
    box.addItem(QStringLiteral("Three"), 3);
    box.addItem(QStringLiteral("Two again"), 2);
    box.setCurrentIndex(current);
    QSignalSpy spy(&box, qOverload<int>(&QComboBox::currentIndexChanged));
    QVERIFY(spy.isValid());
    QCOMPARE(TesseraGlobal::setCbxCurrentData(&box, data, role), found);
    QCOMPARE(box.currentIndex(), chosen);
    QCOMPARE(spy.count(), signalled);
}

void tst_WidgetUtilities::choosesTheFirstEntryEvenIfTheCurrentOneIsEqual()
{
    QComboBox box;
    box.addItem(QStringLiteral("A"), 5);
    box.addItem(QStringLiteral("B"), 5);
    box.setCurrentIndex(1);
    QVERIFY(TesseraGlobal::setCbxCurrentData(&box, 5, Qt::UserRole));
    QCOMPARE(box.currentIndex(), 0);
}

void tst_WidgetUtilities::choosesNothingInAnEmptyBox()
{
    QComboBox box;
    QVERIFY(!TesseraGlobal::setCbxCurrentData(&box, 5, Qt::UserRole));
    QVERIFY(!TesseraGlobal::setCbxCurrentData(&box, QVariant(), Qt::UserRole));
    QCOMPARE(box.currentIndex(), -1);
}

void tst_WidgetUtilities::appendsAParagraphInTheColour_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QString>("shown");

    QTest::newRow("red") << QColor(Qt::red) << QStringLiteral("#ff0000");
    QTest::newRow("any colour") << QColor(0x13, 0x67, 0x96) << QStringLiteral("#136796");
    QTest::newRow("without its alpha") << QColor(0x13, 0x67, 0x96, 0x40) << QStringLiteral("#ff136796");
}

void tst_WidgetUtilities::appendsAParagraphInTheColour()
{
    QFETCH(const QColor, color);
    QFETCH(const QString, shown);
    QTextBrowser browser;
    TesseraGlobal::appendTextBrowserColor(&browser, QStringLiteral("ok"), color);
    QCOMPARE(browser.toPlainText(), QStringLiteral("ok"));
    QCOMPARE(browser.document()->blockCount(), 1);
    QCOMPARE(fragmentsOf(browser.document()->firstBlock()),
             (QVector<Fragment>{{QStringLiteral("ok"), QColor(shown), false}}));

    // The same as appending the markup itself.
    QTextBrowser reference;
    reference.append(QStringLiteral("<font color=%1>ok</font>").arg(color.name()));
    QCOMPARE(browser.toHtml(), reference.toHtml());
}

void tst_WidgetUtilities::appendsBehindWhatIsThere()
{
    QTextBrowser browser;
    browser.setPlainText(QStringLiteral("first"));
    TesseraGlobal::appendTextBrowserColor(&browser, QStringLiteral("second"), Qt::blue);
    TesseraGlobal::appendTextBrowserColor(&browser, QStringLiteral("third"), Qt::red);
    QCOMPARE(browser.toPlainText(), QStringLiteral("first\nsecond\nthird"));
    const QTextBlock second = browser.document()->findBlockByNumber(1);
    const QTextBlock third = browser.document()->findBlockByNumber(2);
    QCOMPARE(fragmentsOf(second), (QVector<Fragment>{{QStringLiteral("second"), QColor(Qt::blue), false}}));
    QCOMPARE(fragmentsOf(third), (QVector<Fragment>{{QStringLiteral("third"), QColor(Qt::red), false}}));
}

void tst_WidgetUtilities::interpretsMarkupInTheText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("plain");

    QTest::newRow("a tag") << QStringLiteral("<b>bold</b>") << QStringLiteral("bold");
    QTest::newRow("an entity") << QStringLiteral("1 &lt; 2 &amp; 3") << QStringLiteral("1 < 2 & 3");
    QTest::newRow("a line break") << QStringLiteral("one<br>two") << QStringLiteral("one\ntwo");
    QTest::newRow("the end of the font tag") << QStringLiteral("in</font>out") << QStringLiteral("inout");
    QTest::newRow("place markers are text") << QStringLiteral("%1 and %2") << QStringLiteral("%1 and %2");
    QTest::newRow("nothing") << QString() << QString();
}

void tst_WidgetUtilities::interpretsMarkupInTheText()
{
    QFETCH(const QString, text);
    QFETCH(const QString, plain);
    QTextBrowser browser;
    TesseraGlobal::appendTextBrowserColor(&browser, text, QColor(0, 0, 0x80));
    QCOMPARE(browser.toPlainText(), plain);
    QTextBrowser reference;
    reference.append(QStringLiteral("<font color=#000080>") + text + QStringLiteral("</font>"));
    QCOMPARE(browser.toHtml(), reference.toHtml());
}

TESSERA_TEST_MAIN(tst_WidgetUtilities)
#include "tst_WidgetUtilities.moc"
