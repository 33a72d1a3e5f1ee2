// SPDX-License-Identifier: MIT
#include "Contrast.h"
#include "Setting.h"
#include "support/TestMain.h"
#include "Walk.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTabBar>
#include <QTest>
#include <QToolBar>
#include <QTreeWidget>

#include <functional>
#include <memory>

using namespace looks;

using Maker = std::function<QWidget*()>;
Q_DECLARE_METATYPE(Maker)

namespace {

constexpr QSize kWindowSize(400, 300);
constexpr QSize kRoom(200, 40);
constexpr QSize kTooLittle(30, 40);

const QString& words()
{
    static const QString text = QStringLiteral("Baud rate");
    return text;
}

/// A window with one child, made by @p make and as large as @p size.
std::unique_ptr<QWidget> windowWith(QWidget* child, const QSize& size)
{
    auto window = std::make_unique<QWidget>();
    window->resize(kWindowSize);
    child->setParent(window.get());
    child->setGeometry(QRect(QPoint(10, 10), size));
    window->show();
    QCoreApplication::processEvents();
    return window;
}

template <class Widget>
QWidget* withText()
{
    auto* widget = new Widget;
    widget->setText(words());
    return widget;
}

QWidget* wrappedLabel()
{
    auto* label = new QLabel(QStringLiteral("A sentence that goes on, and on, and on, and on"));
    label->setWordWrap(true);
    return label;
}

QWidget* placeholder()
{
    auto* edit = new QLineEdit;
    edit->setPlaceholderText(words());
    return edit;
}

QWidget* comboBox()
{
    auto* box = new QComboBox;
    box->addItem(words());
    return box;
}

QWidget* spinBox()
{
    auto* box = new QSpinBox;
    box->setRange(0, 100000000);
    box->setValue(100000000);
    return box;
}

QWidget* tabBar()
{
    auto* bar = new QTabBar;
    bar->addTab(words());
    return bar;
}

} // namespace

/// What finds faults in looks finds them, and nothing else.
class tst_Looks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aTextThatDoesNotFitIsReported_data();
    void aTextThatDoesNotFitIsReported();
    void aHeaderThatIsTooNarrowIsReported();
    void aTextThatEndsWithItsParentIsReported();
    void aCellThatEndsInDotsIsNotReported();
    void aToolBarThatHidesToolsIsReported();
    void overlappingWidgetsAreReported();
    void contrastIsThatOfWcag();
    void aFaintTextIsReported_data();
    void aFaintTextIsReported();
    void aFaintCellIsReported();
    void aTextBehindAnEditorIsNotReported();
    void anExemptionTakesAwayItsFindingOnly();
};

void tst_Looks::initTestCase()
{
    const QString missing = pinLooks();
    QVERIFY2(missing.isEmpty(), qPrintable(missing));
}

void tst_Looks::aTextThatDoesNotFitIsReported_data()
{
    QTest::addColumn<Maker>("make");
    QTest::newRow("label") << Maker(withText<QLabel>);
    QTest::newRow("wrapped label") << Maker(wrappedLabel);
    QTest::newRow("rich label") << Maker([] { return new QLabel(QStringLiteral("<b>%1</b>").arg(words())); });
    QTest::newRow("button") << Maker(withText<QPushButton>);
    QTest::newRow("check box") << Maker(withText<QCheckBox>);
    QTest::newRow("group box") << Maker([] { return new QGroupBox(words()); });
    QTest::newRow("placeholder") << Maker(placeholder);
    QTest::newRow("combo box") << Maker(comboBox);
    QTest::newRow("spin box") << Maker(spinBox);
    QTest::newRow("tab") << Maker(tabBar);
}

void tst_Looks::aTextThatDoesNotFitIsReported()
{
    QFETCH(Maker, make);
    QCOMPARE(clippedTexts(windowWith(make(), kRoom).get()), QStringList());
    const QStringList found = clippedTexts(windowWith(make(), kTooLittle).get());
    QCOMPARE(found.size(), 1);
    QVERIFY2(found.first().startsWith(QLatin1String("clipped: ")), qPrintable(found.first()));
}

void tst_Looks::aHeaderThatIsTooNarrowIsReported()
{
    auto* view = new QTreeWidget;
    view->setHeaderLabels({words(), QString()});
    const auto window = windowWith(view, QSize(300, 100));
    QCOMPARE(clippedTexts(window.get()), QStringList());
    view->header()->resizeSection(0, 40);
    const QStringList found = clippedTexts(window.get());
    QCOMPARE(found.size(), 1);
    QVERIFY2(found.first().contains(QLatin1String("QHeaderView: \"Baud rate\"")), qPrintable(found.first()));
}

void tst_Looks::aTextThatEndsWithItsParentIsReported()
{
    auto* frame = new QWidget;
    auto* label = new QLabel(words(), frame);
    label->resize(label->sizeHint());
    const auto window = windowWith(frame, kRoom);
    QCOMPARE(clippedTexts(window.get()), QStringList());
    label->move(kRoom.width() - label->width() + 1, 0);
    QCOMPARE(clippedTexts(window.get()),
             QStringList(QStringLiteral("clipped: QWidget/QWidget/QLabel: \"Baud rate\" ends where a parent does")));
}

void tst_Looks::aCellThatEndsInDotsIsNotReported()
{
    auto* list = new QListWidget;
    list->addItem(QStringLiteral("A text that is far too long for the list that it is in"));
    QCOMPARE(clippedTexts(windowWith(list, QSize(80, 100)).get()), QStringList());
}

void tst_Looks::aToolBarThatHidesToolsIsReported()
{
    auto* bar = new QToolBar;
    for (int i = 0; i < 3; ++i) {
        bar->addAction(words());
    }
    const auto window = windowWith(bar, QSize(380, 40));
    QCOMPARE(clippedTexts(window.get()), QStringList());
    bar->resize(120, 40);
    QCoreApplication::processEvents();
    QCOMPARE(clippedTexts(window.get()),
             QStringList(QStringLiteral("clipped: QWidget/QToolBar/qt_toolbar_ext_button: tools are hidden")));
}

void tst_Looks::overlappingWidgetsAreReported()
{
    auto* frame = new QWidget;
    auto* one = new QPushButton(frame);
    auto* other = new QPushButton(frame);
    one->setGeometry(0, 0, 50, 20);
    other->setGeometry(50, 0, 50, 20);
    const auto window = windowWith(frame, kRoom);
    QCOMPARE(overlappingWidgets(window.get()), QStringList());
    other->move(49, 0);
    QCOMPARE(
        overlappingWidgets(window.get()),
        QStringList(QStringLiteral("overlap: QWidget/QWidget/QPushButton and QWidget/QWidget/QPushButton: 1x20+49+0")));
    one->hide();
    QCOMPARE(overlappingWidgets(window.get()), QStringList());
}

void tst_Looks::contrastIsThatOfWcag()
{
    QCOMPARE(contrast(Qt::black, Qt::white), 21.0);
    QCOMPARE(contrast(Qt::white, Qt::black), 21.0);
    QCOMPARE(contrast(Qt::red, Qt::red), 1.0);
    // The lightest grey that can be read on white, and the next.
    QVERIFY(contrast(QColor(0x76, 0x76, 0x76), Qt::white) >= kLeastContrast);
    QVERIFY(contrast(QColor(0x77, 0x77, 0x77), Qt::white) < kLeastContrast);
}

void tst_Looks::aFaintTextIsReported_data()
{
    QTest::addColumn<QColor>("text");
    QTest::addColumn<bool>("isEnabled");
    QTest::addColumn<int>("count");
    QTest::newRow("black") << QColor(Qt::black) << true << 0;
    QTest::newRow("as light as can be") << QColor(0x70, 0x70, 0x70) << true << 0;
    QTest::newRow("grey on grey") << QColor(0x90, 0x90, 0x90) << true << 1;
    QTest::newRow("grey on grey, disabled") << QColor(0x90, 0x90, 0x90) << false << 0;
}

void tst_Looks::aFaintTextIsReported()
{
    QFETCH(QColor, text);
    QFETCH(bool, isEnabled);
    QFETCH(int, count);
    auto* label = new QLabel(words());
    QPalette palette;
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Window, QColor(0xf8, 0xf8, 0xf8));
    label->setPalette(palette);
    label->setAutoFillBackground(true);
    label->setEnabled(isEnabled);
    const QStringList found = faintTexts(windowWith(label, kRoom).get());
    QVERIFY2(found.size() == count, qPrintable(found.join(QLatin1Char('\n'))));
    if (count > 0) {
        QVERIFY2(found.first().contains(QLatin1String("\"Baud rate\"")), qPrintable(found.first()));
        QVERIFY2(found.first().contains(QLatin1String("#909090 on #f8f8f8, 3.01:1")), qPrintable(found.first()));
    }
}

void tst_Looks::aFaintCellIsReported()
{
    auto* list = new QListWidget;
    for (int i = 0; i < 2; ++i) {
        auto* item = new QListWidgetItem(QStringLiteral("Item %1").arg(i), list);
        item->setForeground(Qt::yellow);
    }
    list->item(1)->setFlags(Qt::NoItemFlags);
    const QStringList found = faintTexts(windowWith(list, QSize(200, 100)).get());
    QCOMPARE(found.size(), 1);
    QVERIFY2(found.first().contains(QLatin1String("\"Item 0\"")), qPrintable(found.first()));
}

void tst_Looks::aTextBehindAnEditorIsNotReported()
{
    auto* list = new QListWidget;
    list->setTextElideMode(Qt::ElideNone);
    auto* item = new QListWidgetItem(words(), list);
    item->setForeground(Qt::yellow);
    const auto window = windowWith(list, QSize(200, 100));
    QCOMPARE(faintTexts(window.get()).size(), 1);
    item->setFlags(item->flags() | Qt::ItemIsEditable);
    list->openPersistentEditor(item);
    list->findChild<QLineEdit*>()->deselect(); // Fusion's own selection is faint
    QCOMPARE(faintTexts(window.get()), QStringList());
}

void tst_Looks::anExemptionTakesAwayItsFindingOnly()
{
    auto* frame = new QWidget;
    const auto addLabel = [frame](const char* name, int x) {
        auto* label = new QLabel(words(), frame);
        label->setObjectName(QLatin1String(name));
        label->setGeometry(x, 0, 20, 20);
    };
    addLabel("one", 0);
    addLabel("other", 50);
    const auto window = windowWith(frame, kRoom);
    QCOMPARE(findings(window.get()).size(), 2);
    QVector<Exemption> exemptions{{QRegularExpression(QStringLiteral("^clipped: .*/one: ")), "for the test"},
                                  {QRegularExpression(QStringLiteral("^clipped: .*/none: ")), "for the test"}};
    const QStringList left = findings(window.get(), &exemptions);
    QCOMPARE(exemptions.at(0).uses, 1);
    QCOMPARE(exemptions.at(1).uses, 0);
    QCOMPARE(left.size(), 1);
    QVERIFY2(left.first().contains(QLatin1String("/other: ")), qPrintable(left.first()));
}

int main(int argc, char* argv[])
{
    prepareApplication();
    return TestSupport::testMain<QApplication, tst_Looks>(argc, argv);
}

#include "tst_Looks.moc"
