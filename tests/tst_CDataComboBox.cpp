// SPDX-License-Identifier: MIT
#include "support/TestMain.h"

#include <Tessera/widgets/CDataComboBox.h>

#include <QMetaMethod>
#include <QSignalSpy>
#include <QtTest>

using nsUI::CDataComboBox;

namespace {

constexpr int nOtherRole = Qt::UserRole + 7;

//! Red, Green, Blue, Green again: 1, 2, 3, 2 under the user role and "r", "g", "b", "g" under another.
void fill(QComboBox* pBox)
{
    const QList<QPair<int, QString>> items{
        {1, QStringLiteral("r")}, {2, QStringLiteral("g")}, {3, QStringLiteral("b")}, {2, QStringLiteral("g")}};
    for (const auto& item : items) {
        pBox->addItem(item.second.toUpper(), item.first);
        pBox->setItemData(pBox->count() - 1, item.second, nOtherRole);
    }
}

QList<int> indexesOf(const QSignalSpy& spy)
{
    QList<int> indexes;
    for (const QList<QVariant>& arguments : spy) {
        indexes << arguments.at(0).toInt();
    }
    return indexes;
}

} // namespace

class tst_CDataComboBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isAQComboBoxWithOneSlotInTwoEntries();
    void belongsToItsParent();
    void choosesTheFirstItemWithTheData_data();
    void choosesTheFirstItemWithTheData();
    void staysSilentWhenTheCurrentItemHasTheDataAlready();
    void keepsALaterItemThatHasTheData();
    void takesTheUserRoleWithOneArgument();
    void doesNothingWithoutItems();
    void takesInvalidDataForThatOfNoCurrentItem();
    void canBeInvokedInEitherForm();
};

void tst_CDataComboBox::isAQComboBoxWithOneSlotInTwoEntries()
{
    const QMetaObject& meta = CDataComboBox::staticMetaObject;
    QCOMPARE(meta.className(), "nsUI::CDataComboBox");
    QCOMPARE(meta.superClass(), &QComboBox::staticMetaObject);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.enumeratorCount(), meta.enumeratorOffset());

    QCOMPARE(meta.methodCount() - meta.methodOffset(), 2);
    const QMetaMethod both = meta.method(meta.methodOffset());
    QCOMPARE(both.methodSignature(), QByteArray("setCurrentData(QVariant,int)"));
    QCOMPARE(both.parameterNames(), (QList<QByteArray>{"tData", "nRole"}));
    QCOMPARE(both.methodType(), QMetaMethod::Slot);
    QCOMPARE(both.access(), QMetaMethod::Public);
    QVERIFY(!(both.attributes() & QMetaMethod::Cloned));

    const QMetaMethod one = meta.method(meta.methodOffset() + 1);
    QCOMPARE(one.methodSignature(), QByteArray("setCurrentData(QVariant)"));
    QCOMPARE(one.parameterNames(), QList<QByteArray>{"tData"});
    QCOMPARE(one.methodType(), QMetaMethod::Slot);
    QCOMPARE(one.access(), QMetaMethod::Public);
    QVERIFY(one.attributes() & QMetaMethod::Cloned);
}

void tst_CDataComboBox::belongsToItsParent()
{
    QWidget parent;
    const CDataComboBox* const pBox = new CDataComboBox(&parent);
    QCOMPARE(pBox->parentWidget(), &parent);
    const CDataComboBox orphan;
    QVERIFY(!orphan.parentWidget());
    QCOMPARE(orphan.count(), 0);
}

void tst_CDataComboBox::choosesTheFirstItemWithTheData_data()
{
    QTest::addColumn<int>("current");
    QTest::addColumn<QVariant>("data");
    QTest::addColumn<int>("role");
    QTest::addColumn<QList<int>>("signalled"); // the indexes told by currentIndexChanged
    QTest::addColumn<int>("chosen");

    const int nUser = Qt::UserRole;
    QTest::newRow("the only match") << 0 << QVariant(3) << nUser << QList<int>{2} << 2;
    QTest::newRow("the first of two matches") << 0 << QVariant(2) << nUser << QList<int>{1} << 1;
    QTest::newRow("backwards") << 2 << QVariant(1) << nUser << QList<int>{0} << 0;
    QTest::newRow("from no current item") << -1 << QVariant(3) << nUser << QList<int>{2} << 2;
    QTest::newRow("no match") << 2 << QVariant(9) << nUser << QList<int>{} << 2;
    QTest::newRow("no match from no current item") << -1 << QVariant(9) << nUser << QList<int>{} << -1;
    QTest::newRow("invalid data matches none") << 2 << QVariant() << nUser << QList<int>{} << 2;
    QTest::newRow("another role") << 0 << QVariant(QStringLiteral("b")) << nOtherRole << QList<int>{2} << 2;
    QTest::newRow("another role, first of two")
        << 0 << QVariant(QStringLiteral("g")) << nOtherRole << QList<int>{1} << 1;
    QTest::newRow("data of another role") << 0 << QVariant(QStringLiteral("b")) << nUser << QList<int>{} << 0;
    QTest::newRow("the display role") << 0 << QVariant(QStringLiteral("B")) << int(Qt::DisplayRole) << QList<int>{2}
                                      << 2;
    QTest::newRow("a role without data") << 0 << QVariant(3) << nUser + 1 << QList<int>{} << 0;
    QTest::newRow("an equal variant of another type") << 0 << QVariant(3LL) << nUser << QList<int>{2} << 2;
    QTest::newRow("a text that spells the number") << 0 << QVariant(QStringLiteral("3")) << nUser << QList<int>{2} << 2;
    QTest::newRow("texts differ by case") << 0 << QVariant(QStringLiteral("G")) << nOtherRole << QList<int>{} << 0;
}

void tst_CDataComboBox::choosesTheFirstItemWithTheData()
{
    QFETCH(const int, current);
    QFETCH(const QVariant, data);
    QFETCH(const int, role);
    QFETCH(const QList<int>, signalled);
    QFETCH(const int, chosen);
    CDataComboBox box;
    fill(&box);
    box.setCurrentIndex(current);
    QSignalSpy spy(&box, qOverload<int>(&CDataComboBox::currentIndexChanged));
    QVERIFY(spy.isValid());
    box.setCurrentData(data, role);
    QCOMPARE(box.currentIndex(), chosen);
    QCOMPARE(indexesOf(spy), signalled);
}

void tst_CDataComboBox::staysSilentWhenTheCurrentItemHasTheDataAlready()
{
    CDataComboBox box;
    fill(&box);
    box.setCurrentIndex(2);
    QSignalSpy indexSpy(&box, qOverload<int>(&CDataComboBox::currentIndexChanged));
    QSignalSpy textSpy(&box, &CDataComboBox::currentTextChanged);
    QVERIFY(indexSpy.isValid() && textSpy.isValid());
    box.setCurrentData(3);
    QCOMPARE(box.currentIndex(), 2);
    QCOMPARE(indexSpy.count(), 0);
    QCOMPARE(textSpy.count(), 0);
}

void tst_CDataComboBox::keepsALaterItemThatHasTheData()
{
    CDataComboBox box;
    fill(&box);
    box.setCurrentIndex(3);
    QSignalSpy spy(&box, qOverload<int>(&CDataComboBox::currentIndexChanged));
    QVERIFY(spy.isValid());
    box.setCurrentData(2); // the item at 1 has it too
    QCOMPARE(box.currentIndex(), 3);
    box.setCurrentData(QStringLiteral("g"), nOtherRole);
    QCOMPARE(box.currentIndex(), 3);
    QCOMPARE(spy.count(), 0);
}

void tst_CDataComboBox::takesTheUserRoleWithOneArgument()
{
    CDataComboBox box;
    fill(&box);
    box.setItemData(0, 30, nOtherRole);
    box.setItemData(3, 30, Qt::UserRole);
    box.setCurrentIndex(1);
    box.setCurrentData(30);
    QCOMPARE(box.currentIndex(), 3);
}

void tst_CDataComboBox::doesNothingWithoutItems()
{
    CDataComboBox box;
    QSignalSpy spy(&box, qOverload<int>(&CDataComboBox::currentIndexChanged));
    QVERIFY(spy.isValid());
    box.setCurrentData(1);
    box.setCurrentData(QVariant());
    QCOMPARE(box.currentIndex(), -1);
    QCOMPARE(spy.count(), 0);
}

void tst_CDataComboBox::takesInvalidDataForThatOfNoCurrentItem()
{
    CDataComboBox box;
    box.addItem(QStringLiteral("without data"));
    box.addItem(QStringLiteral("with data"), 1);

    box.setCurrentIndex(-1);
    box.setCurrentData(QVariant()); // no current item has no data either: already right
    QCOMPARE(box.currentIndex(), -1);

    box.setCurrentIndex(1);
    box.setCurrentData(QVariant()); // now the item without data is the first match
    QCOMPARE(box.currentIndex(), 0);
}

void tst_CDataComboBox::canBeInvokedInEitherForm()
{
    CDataComboBox box;
    fill(&box);
    QVERIFY(QMetaObject::invokeMethod(&box, "setCurrentData", Q_ARG(QVariant, QVariant(3))));
    QCOMPARE(box.currentIndex(), 2);
    QVERIFY(QMetaObject::invokeMethod(&box, "setCurrentData", Q_ARG(QVariant, QVariant(QStringLiteral("g"))),
                                      Q_ARG(int, nOtherRole)));
    QCOMPARE(box.currentIndex(), 1);
}

TESSERA_TEST_MAIN(tst_CDataComboBox)
#include "tst_CDataComboBox.moc"
