// SPDX-License-Identifier: MIT
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
#include <Tessera/Tessera.h>

#include <QHash>
#include <QLineEdit>
#include <QPointer>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QtTest>

#include <limits>
#include <type_traits>

using namespace nsUI;
using TestSupport::MessageRecorder;

Q_DECLARE_METATYPE(nsUI::e_ISpx_Type)

namespace {

enum Role { TypeRole = 263, MinimumRole = 264, MaximumRole = 265, PrefixRole = 266, SuffixRole = 267, BaseRole = 268 };

using Settings = QHash<int, QVariant>;

QLineEdit* lineEditOf(QWidget* pBox)
{
    return pBox->findChild<QLineEdit*>();
}

QString textOf(QWidget* pBox)
{
    return qobject_cast<QAbstractSpinBox*>(pBox)->text();
}

//! The decimal text of any of the eight types; QVariant would take 8 bits for a character.
QString decimal(const QVariant& number)
{
    return number.userType() == QMetaType::ULongLong ? QString::number(number.toULongLong())
                                                     : QString::number(number.toLongLong());
}

//! Makes a box and casts it to the class that the test expects; null when it is another one.
template <class Box>
Box* make(QWidget* pParent, const Settings& settings)
{
    return qobject_cast<Box*>(TesseraGlobal::ISP_create(pParent, settings));
}

struct Member
{
    e_ISpx_Type type;
    const char* className;
    int nMetaType;
    QVariant lowest;
    QVariant highest;
};

template <class T>
Member member(e_ISpx_Type type, const char* className)
{
    return {type, className, qMetaTypeId<T>(), QVariant::fromValue<T>(std::numeric_limits<T>::min()),
            QVariant::fromValue<T>(std::numeric_limits<T>::max())};
}

const QVector<Member>& members()
{
    static const QVector<Member> all{
        member<signed char>(e_ISpx_I8, "nsUI::CI8SpinBox"), member<short>(e_ISpx_I16, "nsUI::CI16SpinBox"),
        member<int>(e_ISpx_I32, "nsUI::CI32SpinBox"),       member<qlonglong>(e_ISpx_I64, "nsUI::CI64SpinBox"),
        member<uchar>(e_ISpx_U8, "nsUI::CU8SpinBox"),       member<ushort>(e_ISpx_U16, "nsUI::CU16SpinBox"),
        member<uint>(e_ISpx_U32, "nsUI::CU32SpinBox"),      member<qulonglong>(e_ISpx_U64, "nsUI::CU64SpinBox")};
    return all;
}

//! Deletes a widget in the slot that it offers.
class Deleter : public QObject
{
    Q_OBJECT

public:
    explicit Deleter(QWidget* pVictim)
        : m_pVictim(pVictim)
    {
    }

public Q_SLOTS:
    void deleteNow() { delete m_pVictim; }

private:
    QWidget* m_pVictim;
};

} // namespace

class tst_SpinBoxFactory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void typeCodesAreWidthsWithASign();

    void makesTheClassOfTheTypeCode_data();
    void makesTheClassOfTheTypeCode();
    void makesA32BitSignedBoxOfEveryOtherTypeCode_data();
    void makesA32BitSignedBoxOfEveryOtherTypeCode();
    void makesADefaultBoxOfAnEmptyHash();
    void givesTheBoxToTheParent();

    void setsTheWholeRangeOfEveryType_data();
    void setsTheWholeRangeOfEveryType();
    void setsPrefixSuffixAndBase_data();
    void setsPrefixSuffixAndBase();
    void leavesWhatIsAbsentOrInvalidAtItsDefault_data();
    void leavesWhatIsAbsentOrInvalidAtItsDefault();
    void ignoresOtherRoles();
    void setsTheMinimumBeforeTheMaximum_data();
    void setsTheMinimumBeforeTheMaximum();
    void convertsBoundsToTheExactType_data();
    void convertsBoundsToTheExactType();
    void warnsOfABaseThatTheBoxDoesNotTake_data();
    void warnsOfABaseThatTheBoxDoesNotTake();
    void logsNothingElse();

    void givesTheBoxAToolTipThatFollowsItsText_data();
    void givesTheBoxAToolTipThatFollowsItsText();
    void toolTipShowsPrefixSuffixAndBase();

    void readsTheValueInItsExactType_data();
    void readsTheValueInItsExactType();
    void readsAnUnknownTypeAsInt();
    void readsAnInvalidVariantFromNoEditor_data();
    void readsAnInvalidVariantFromNoEditor();

    void setsTheValueOfEveryType_data();
    void setsTheValueOfEveryType();
    void setsAnUnknownTypeAsInt();
    void convertsTheValueToTheExactType_data();
    void convertsTheValueToTheExactType();
    void bringsTheValueIntoTheRange();
    void knowsNothingOfAWidgetOfAnotherClass_data();
    void knowsNothingOfAWidgetOfAnotherClass();
    void setsNothingWithoutAnEditor_data();
    void setsNothingWithoutAnEditor();
    void selectsTheNumberOnlyWhenAsked();
    void leavesTheSelectionAsItWasOtherwise();
    void survivesASlotThatDeletesTheEditor_data();
    void survivesASlotThatDeletesTheEditor();
};

void tst_SpinBoxFactory::typeCodesAreWidthsWithASign()
{
    QCOMPARE(int(e_ISpx_I8), -8);
    QCOMPARE(int(e_ISpx_I16), -16);
    QCOMPARE(int(e_ISpx_I32), -32);
    QCOMPARE(int(e_ISpx_I64), -64);
    QCOMPARE(int(e_ISpx_U8), 8);
    QCOMPARE(int(e_ISpx_U16), 16);
    QCOMPARE(int(e_ISpx_U32), 32);
    QCOMPARE(int(e_ISpx_U64), 64);
    QVERIFY((std::is_same<std::underlying_type<e_ISpx_Type>::type, int>::value));
    QVERIFY((std::is_convertible<e_ISpx_Type, int>::value)); // a plain enumeration
}

void tst_SpinBoxFactory::makesTheClassOfTheTypeCode_data()
{
    QTest::addColumn<QVariant>("code");
    QTest::addColumn<QByteArray>("className");

    for (const Member& m : members()) {
        QTest::addRow("%d", int(m.type)) << QVariant(int(m.type)) << QByteArray(m.className);
        QTest::addRow("the text %d", int(m.type)) << QVariant(QString::number(int(m.type))) << QByteArray(m.className);
    }
}

void tst_SpinBoxFactory::makesTheClassOfTheTypeCode()
{
    QFETCH(const QVariant, code);
    QFETCH(const QByteArray, className);
    const QScopedPointer<QWidget> pBox(TesseraGlobal::ISP_create(nullptr, {{TypeRole, code}}));
    QVERIFY(pBox);
    QCOMPARE(QByteArray(pBox->metaObject()->className()), className);
}

void tst_SpinBoxFactory::makesA32BitSignedBoxOfEveryOtherTypeCode_data()
{
    QTest::addColumn<QVariant>("code");

    for (const int nCode : {0, 1, 7, 9, 12, 15, 24, 31, 33, 63, 65, 128, -1, -7, -9, -33, -65, 256 + 8, 65536 - 16}) {
        QTest::addRow("%d", nCode) << QVariant(nCode);
    }
    QTest::newRow("an invalid variant") << QVariant();
    QTest::newRow("a word") << QVariant(QStringLiteral("CU16SpinBox"));
    QTest::newRow("a list") << QVariant(QStringList{QStringLiteral("16"), QStringLiteral("8")});
}

void tst_SpinBoxFactory::makesA32BitSignedBoxOfEveryOtherTypeCode()
{
    QFETCH(const QVariant, code);
    const QScopedPointer<QWidget> pBox(TesseraGlobal::ISP_create(nullptr, {{TypeRole, code}}));
    QVERIFY(pBox);
    QCOMPARE(pBox->metaObject()->className(), "nsUI::CI32SpinBox");
}

void tst_SpinBoxFactory::makesADefaultBoxOfAnEmptyHash()
{
    QWidget parent;
    CI32SpinBox* const pBox = make<CI32SpinBox>(&parent, {});
    QVERIFY(pBox);
    QCOMPARE(pBox->value(), 0);
    QCOMPARE(pBox->minimum(), 0);
    QCOMPARE(pBox->maximum(), 99);
    QCOMPARE(pBox->prefix(), QString());
    QCOMPARE(pBox->suffix(), QString());
    QCOMPARE(pBox->displayIntegerBase(), 10);
    QCOMPARE(pBox->toolTip(), QStringLiteral("0"));
}

void tst_SpinBoxFactory::givesTheBoxToTheParent()
{
    QPointer<QWidget> pBox;
    {
        QWidget parent;
        pBox = TesseraGlobal::ISP_create(&parent, {{TypeRole, 8}});
        QCOMPARE(pBox->parentWidget(), &parent);
    }
    QVERIFY(!pBox);
}

void tst_SpinBoxFactory::setsTheWholeRangeOfEveryType_data()
{
    QTest::addColumn<e_ISpx_Type>("type");
    QTest::addColumn<QVariant>("lowest");
    QTest::addColumn<QVariant>("highest");

    for (const Member& m : members()) {
        QTest::newRow(m.className) << m.type << m.lowest << m.highest;
    }
}

void tst_SpinBoxFactory::setsTheWholeRangeOfEveryType()
{
    QFETCH(const e_ISpx_Type, type);
    QFETCH(const QVariant, lowest);
    QFETCH(const QVariant, highest);
    const QScopedPointer<QWidget> pBox(
        TesseraGlobal::ISP_create(nullptr, {{TypeRole, int(type)}, {MinimumRole, lowest}, {MaximumRole, highest}}));
    for (const QVariant& bound : {lowest, highest}) {
        QVERIFY(TesseraGlobal::ISP_setData(pBox.data(), type, bound, false));
        QCOMPARE(TesseraGlobal::ISP_getData(pBox.data(), type), bound);
        QCOMPARE(textOf(pBox.data()), decimal(bound));
    }
}

void tst_SpinBoxFactory::setsPrefixSuffixAndBase_data()
{
    QTest::addColumn<e_ISpx_Type>("type");

    for (const Member& m : members()) {
        QTest::newRow(m.className) << m.type;
    }
}

void tst_SpinBoxFactory::setsPrefixSuffixAndBase()
{
    QFETCH(const e_ISpx_Type, type);
    const QScopedPointer<QWidget> pBox(
        TesseraGlobal::ISP_create(nullptr, {{TypeRole, int(type)},
                                            {PrefixRole, QStringLiteral("<")},
                                            {SuffixRole, 7},                    // whatever toString() makes of it
                                            {BaseRole, QStringLiteral("2")}})); // whatever toInt() makes of it
    TesseraGlobal::ISP_setData(pBox.data(), type, 5, false);
    QCOMPARE(textOf(pBox.data()), QStringLiteral("<1017"));
}

void tst_SpinBoxFactory::leavesWhatIsAbsentOrInvalidAtItsDefault_data()
{
    QTest::addColumn<QHash<int, QVariant>>("settings");
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<QString>("prefix");
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<int>("base");

    const QString none;
    QTest::newRow("the type alone") << Settings{{TypeRole, -32}} << 0 << 99 << none << none << 10;
    QTest::newRow("all invalid") << Settings{{TypeRole, -32},           {MinimumRole, QVariant()},
                                             {MaximumRole, QVariant()}, {PrefixRole, QVariant()},
                                             {SuffixRole, QVariant()},  {BaseRole, QVariant()}}
                                 << 0 << 99 << none << none << 10;
    QTest::newRow("the minimum alone") << Settings{{MinimumRole, -5}} << -5 << 99 << none << none << 10;
    QTest::newRow("the maximum alone") << Settings{{MaximumRole, 1000}} << 0 << 1000 << none << none << 10;
    QTest::newRow("the maximum beside an invalid minimum")
        << Settings{{MinimumRole, QVariant()}, {MaximumRole, 1000}} << 0 << 1000 << none << none << 10;
    QTest::newRow("the prefix alone") << Settings{{PrefixRole, QStringLiteral("p")}} << 0 << 99 << QStringLiteral("p")
                                      << none << 10;
    QTest::newRow("the suffix alone") << Settings{{SuffixRole, QStringLiteral("s")}} << 0 << 99 << none
                                      << QStringLiteral("s") << 10;
    QTest::newRow("the base alone") << Settings{{BaseRole, 16}} << 0 << 99 << none << none << 16;
    QTest::newRow("a null text is not an invalid variant")
        << Settings{{PrefixRole, QString()}, {MinimumRole, QString()}} << 0 << 99 << none << none << 10;
}

void tst_SpinBoxFactory::leavesWhatIsAbsentOrInvalidAtItsDefault()
{
    QFETCH(const Settings, settings);
    QFETCH(const int, minimum);
    QFETCH(const int, maximum);
    QFETCH(const QString, prefix);
    QFETCH(const QString, suffix);
    QFETCH(const int, base);
    QWidget parent;
    const CI32SpinBox* const pBox = make<CI32SpinBox>(&parent, settings);
    QVERIFY(pBox);
    QCOMPARE(pBox->minimum(), minimum);
    QCOMPARE(pBox->maximum(), maximum);
    QCOMPARE(pBox->prefix(), prefix);
    QCOMPARE(pBox->suffix(), suffix);
    QCOMPARE(pBox->displayIntegerBase(), base);
}

void tst_SpinBoxFactory::ignoresOtherRoles()
{
    Settings settings;
    for (int nRole = 250; nRole <= 280; ++nRole) {
        if (nRole < TypeRole || nRole > BaseRole) {
            settings.insert(nRole, 16);
        }
    }
    for (const int nRole : {-1, 0, 7, 8, 263 + 256}) {
        settings.insert(nRole, 16);
    }
    QWidget parent;
    const CI32SpinBox* const pBox = make<CI32SpinBox>(&parent, settings);
    QVERIFY(pBox);
    QCOMPARE(pBox->minimum(), 0);
    QCOMPARE(pBox->maximum(), 99);
    QCOMPARE(pBox->value(), 0);
    QCOMPARE(pBox->singleStep(), 1);
    QCOMPARE(pBox->displayIntegerBase(), 10);
    QCOMPARE(pBox->text(), QStringLiteral("0"));
}

void tst_SpinBoxFactory::setsTheMinimumBeforeTheMaximum_data()
{
    QTest::addColumn<QHash<int, QVariant>>("settings");
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("value");

    QTest::newRow("a minimum above the default maximum takes it along")
        << Settings{{MinimumRole, 200}} << 200 << 200 << 200;
    QTest::newRow("a maximum then opens the range")
        << Settings{{MinimumRole, 200}, {MaximumRole, 300}} << 200 << 300 << 200;
    QTest::newRow("a maximum below that minimum takes the minimum back")
        << Settings{{MinimumRole, 200}, {MaximumRole, 150}} << 150 << 150 << 150;
    QTest::newRow("crossed bounds within the default range")
        << Settings{{MinimumRole, 50}, {MaximumRole, 20}} << 20 << 20 << 20;
    QTest::newRow("a negative range") << Settings{{MinimumRole, -50}, {MaximumRole, -20}} << -50 << -20 << -20;
}

void tst_SpinBoxFactory::setsTheMinimumBeforeTheMaximum()
{
    QFETCH(const Settings, settings);
    QFETCH(const int, minimum);
    QFETCH(const int, maximum);
    QFETCH(const int, value);
    QWidget parent;
    const CI32SpinBox* const pBox = make<CI32SpinBox>(&parent, settings);
    QVERIFY(pBox);
    QCOMPARE(pBox->minimum(), minimum);
    QCOMPARE(pBox->maximum(), maximum);
    QCOMPARE(pBox->value(), value);
    QCOMPARE(pBox->toolTip(), QString::number(value));
}

void tst_SpinBoxFactory::convertsBoundsToTheExactType_data()
{
    QTest::addColumn<e_ISpx_Type>("type");
    QTest::addColumn<QVariant>("minimum");
    QTest::addColumn<QVariant>("maximum");
    QTest::addColumn<QVariant>("lowest");  // what a very small value is brought to
    QTest::addColumn<QVariant>("highest"); // and a very large one

    const QVariant word(QStringLiteral("abc"));
    QTest::newRow("an unconvertible minimum is 0")
        << e_ISpx_U8 << word << QVariant(200) << QVariant::fromValue<uchar>(0) << QVariant::fromValue<uchar>(200);
    QTest::newRow("an unconvertible minimum is 0, signed")
        << e_ISpx_I16 << word << QVariant(200) << QVariant::fromValue<short>(0) << QVariant::fromValue<short>(200);
    QTest::newRow("an unconvertible maximum is 0") << e_ISpx_I32 << QVariant(-9) << word << QVariant(-9) << QVariant(0);
    QTest::newRow("an unconvertible maximum above nothing")
        << e_ISpx_U16 << QVariant(5) << word << QVariant::fromValue<ushort>(0) << QVariant::fromValue<ushort>(0);
    QTest::newRow("numbers as text") << e_ISpx_I16 << QVariant(QStringLiteral("-300"))
                                     << QVariant(QStringLiteral("300")) << QVariant::fromValue<short>(-300)
                                     << QVariant::fromValue<short>(300);
    QTest::newRow("another integer type")
        << e_ISpx_U64 << QVariant(3) << QVariant(ushort(7)) << QVariant(qulonglong(3)) << QVariant(qulonglong(7));
    QTest::newRow("the exact type keeps all 64 bits")
        << e_ISpx_U64 << QVariant(std::numeric_limits<qulonglong>::max() - 1)
        << QVariant(std::numeric_limits<qulonglong>::max()) << QVariant(std::numeric_limits<qulonglong>::max() - 1)
        << QVariant(std::numeric_limits<qulonglong>::max());
    QTest::newRow("large numbers as text")
        << e_ISpx_U64 << QVariant(QStringLiteral("18446744073709551600"))
        << QVariant(QStringLiteral("18446744073709551615")) << QVariant(qulonglong(18446744073709551600ULL))
        << QVariant(qulonglong(18446744073709551615ULL));
    QTest::newRow("a boolean") << e_ISpx_I8 << QVariant(false) << QVariant(true) << QVariant::fromValue<signed char>(0)
                               << QVariant::fromValue<signed char>(1);
}

void tst_SpinBoxFactory::convertsBoundsToTheExactType()
{
    QFETCH(const e_ISpx_Type, type);
    QFETCH(const QVariant, minimum);
    QFETCH(const QVariant, maximum);
    QFETCH(const QVariant, lowest);
    QFETCH(const QVariant, highest);
    const QScopedPointer<QWidget> pBox(
        TesseraGlobal::ISP_create(nullptr, {{TypeRole, int(type)}, {MinimumRole, minimum}, {MaximumRole, maximum}}));
    for (const Member& m : members()) {
        if (m.type == type) {
            TesseraGlobal::ISP_setData(pBox.data(), type, m.lowest, false);
            QCOMPARE(TesseraGlobal::ISP_getData(pBox.data(), type), lowest);
            TesseraGlobal::ISP_setData(pBox.data(), type, m.highest, false);
            QCOMPARE(TesseraGlobal::ISP_getData(pBox.data(), type), highest);
        }
    }
}

void tst_SpinBoxFactory::warnsOfABaseThatTheBoxDoesNotTake_data()
{
    QTest::addColumn<QVariant>("base");
    QTest::addColumn<int>("read");

    QTest::newRow("one") << QVariant(1) << 1;
    QTest::newRow("thirty-seven") << QVariant(37) << 37;
    QTest::newRow("a word is 0") << QVariant(QStringLiteral("hex")) << 0;
}

void tst_SpinBoxFactory::warnsOfABaseThatTheBoxDoesNotTake()
{
    QFETCH(const QVariant, base);
    QFETCH(const int, read);
    QWidget parent;
    TestSupport::expectMessage(QtWarningMsg,
                               QStringLiteral("CU16SpinBox::setDisplayIntegerBase: Invalid base (%1)").arg(read));
    const CU16SpinBox* const pBox = make<CU16SpinBox>(&parent, {{TypeRole, 16}, {BaseRole, base}});
    QVERIFY(pBox);
    QCOMPARE(pBox->displayIntegerBase(), 10);
}

void tst_SpinBoxFactory::logsNothingElse()
{
    MessageRecorder log;
    QWidget parent;
    QWidget* const pBox = TesseraGlobal::ISP_create(
        &parent, {{TypeRole, QStringLiteral("x")}, {MinimumRole, QStringLiteral("x")}, {MaximumRole, 5}});
    TesseraGlobal::ISP_setData(pBox, e_ISpx_I32, QStringLiteral("x"), true);
    TesseraGlobal::ISP_setData(nullptr, e_ISpx_I32, 1, true);
    TesseraGlobal::ISP_getData(nullptr, e_ISpx_I32);
    QCOMPARE(log.take(), QStringList());
}

void tst_SpinBoxFactory::givesTheBoxAToolTipThatFollowsItsText_data()
{
    setsPrefixSuffixAndBase_data();
}

void tst_SpinBoxFactory::givesTheBoxAToolTipThatFollowsItsText()
{
    QFETCH(const e_ISpx_Type, type);
    const QScopedPointer<QWidget> pBox(TesseraGlobal::ISP_create(nullptr, {{TypeRole, int(type)}}));
    QCOMPARE(pBox->toolTip(), QStringLiteral("0"));
    TesseraGlobal::ISP_setData(pBox.data(), type, 42, false);
    QCOMPARE(pBox->toolTip(), QStringLiteral("42"));
    QTest::keyClick(pBox.data(), Qt::Key_Up);
    QCOMPARE(pBox->toolTip(), QStringLiteral("43"));
}

void tst_SpinBoxFactory::toolTipShowsPrefixSuffixAndBase()
{
    QWidget parent;
    CU8SpinBox* const pBox = make<CU8SpinBox>(&parent, {{TypeRole, 8},
                                                        {MinimumRole, 3},
                                                        {PrefixRole, QStringLiteral("R")},
                                                        {SuffixRole, QStringLiteral("!")},
                                                        {BaseRole, 2}});
    QVERIFY(pBox);
    QCOMPARE(pBox->toolTip(), QStringLiteral("R11!"));
    pBox->setSuffix(QStringLiteral("?"));
    QCOMPARE(pBox->toolTip(), QStringLiteral("R11?"));
    pBox->setValue(4);
    QCOMPARE(pBox->toolTip(), QStringLiteral("R100?"));
    pBox->setDisplayIntegerBase(10);
    QCOMPARE(pBox->toolTip(), QStringLiteral("R4?"));
}

void tst_SpinBoxFactory::readsTheValueInItsExactType_data()
{
    QTest::addColumn<e_ISpx_Type>("type");
    QTest::addColumn<int>("metaType");
    QTest::addColumn<QVariant>("lowest");
    QTest::addColumn<QVariant>("highest");

    for (const Member& m : members()) {
        QTest::newRow(m.className) << m.type << m.nMetaType << m.lowest << m.highest;
    }
}

void tst_SpinBoxFactory::readsTheValueInItsExactType()
{
    QFETCH(const e_ISpx_Type, type);
    QFETCH(const int, metaType);
    QFETCH(const QVariant, lowest);
    QFETCH(const QVariant, highest);
    const QScopedPointer<QWidget> pBox(
        TesseraGlobal::ISP_create(nullptr, {{TypeRole, int(type)}, {MinimumRole, lowest}, {MaximumRole, highest}}));
    for (const QVariant& value : {lowest, highest}) {
        TesseraGlobal::ISP_setData(pBox.data(), type, value, false);
        const QVariant read = TesseraGlobal::ISP_getData(pBox.data(), type);
        QCOMPARE(read.userType(), metaType);
        QCOMPARE(read, value);
        QCOMPARE(decimal(read), decimal(value));
    }
}

void tst_SpinBoxFactory::readsAnUnknownTypeAsInt()
{
    for (const int nType : {0, 12, 128, -1}) {
        QWidget parent;
        CI32SpinBox* const pBox = make<CI32SpinBox>(&parent, {{TypeRole, nType}});
        QVERIFY(pBox);
        pBox->setValue(77);
        const QVariant read = TesseraGlobal::ISP_getData(pBox, e_ISpx_Type(nType));
        QCOMPARE(read.userType(), int(QMetaType::Int));
        QCOMPARE(read.toInt(), 77);
    }
}

void tst_SpinBoxFactory::readsAnInvalidVariantFromNoEditor_data()
{
    QTest::addColumn<int>("type");

    for (const Member& m : members()) {
        QTest::newRow(m.className) << int(m.type);
    }
    QTest::newRow("an unknown type") << 12;
}

void tst_SpinBoxFactory::readsAnInvalidVariantFromNoEditor()
{
    QFETCH(const int, type);
    QVERIFY(!TesseraGlobal::ISP_getData(nullptr, e_ISpx_Type(type)).isValid());
}

void tst_SpinBoxFactory::setsTheValueOfEveryType_data()
{
    setsPrefixSuffixAndBase_data();
}

void tst_SpinBoxFactory::setsTheValueOfEveryType()
{
    QFETCH(const e_ISpx_Type, type);
    const QScopedPointer<QWidget> pBox(TesseraGlobal::ISP_create(nullptr, {{TypeRole, int(type)}}));
    QVERIFY(TesseraGlobal::ISP_setData(pBox.data(), type, 42, false));
    QCOMPARE(textOf(pBox.data()), QStringLiteral("42"));
    QVERIFY(TesseraGlobal::ISP_setData(pBox.data(), type, 42, true)); // the same again is no failure
    QCOMPARE(textOf(pBox.data()), QStringLiteral("42"));
}

void tst_SpinBoxFactory::setsAnUnknownTypeAsInt()
{
    QWidget parent;
    CI32SpinBox* const pBox = make<CI32SpinBox>(&parent, {{TypeRole, 12}, {MaximumRole, 1 << 30}});
    QVERIFY(pBox);
    QVERIFY(TesseraGlobal::ISP_setData(pBox, e_ISpx_Type(12), 1 << 29, false));
    QCOMPARE(pBox->value(), 1 << 29);
}

void tst_SpinBoxFactory::convertsTheValueToTheExactType_data()
{
    QTest::addColumn<e_ISpx_Type>("type");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QVariant>("stored"); // in a box of its type's whole range that held 7

    QTest::newRow("text") << e_ISpx_I16 << QVariant(QStringLiteral("-1234")) << QVariant::fromValue<short>(-1234);
    QTest::newRow("a word is 0") << e_ISpx_I16 << QVariant(QStringLiteral("abc")) << QVariant::fromValue<short>(0);
    QTest::newRow("an invalid variant is 0") << e_ISpx_U8 << QVariant() << QVariant::fromValue<uchar>(0);
    QTest::newRow("a list is 0") << e_ISpx_U32 << QVariant(QVariantList{1, 2}) << QVariant(0U);
    QTest::newRow("a floating-point number is rounded") << e_ISpx_I32 << QVariant(2.75) << QVariant(3);
    QTest::newRow("too wide a number keeps its low byte")
        << e_ISpx_U8 << QVariant(0x1234) << QVariant::fromValue<uchar>(0x34);
    QTest::newRow("a signed number in an unsigned box") << e_ISpx_U32 << QVariant(-1) << QVariant(0xFFFFFFFFU);
    QTest::newRow("64 bits as text") << e_ISpx_I64 << QVariant(QStringLiteral("-9223372036854775808"))
                                     << QVariant(std::numeric_limits<qlonglong>::min());
}

void tst_SpinBoxFactory::convertsTheValueToTheExactType()
{
    QFETCH(const e_ISpx_Type, type);
    QFETCH(const QVariant, value);
    QFETCH(const QVariant, stored);
    for (const Member& m : members()) {
        if (m.type == type) {
            const QScopedPointer<QWidget> pBox(TesseraGlobal::ISP_create(
                nullptr, {{TypeRole, int(type)}, {MinimumRole, m.lowest}, {MaximumRole, m.highest}}));
            TesseraGlobal::ISP_setData(pBox.data(), type, 7, false);
            QVERIFY(TesseraGlobal::ISP_setData(pBox.data(), type, value, false));
            QCOMPARE(TesseraGlobal::ISP_getData(pBox.data(), type), stored);
        }
    }
}

void tst_SpinBoxFactory::bringsTheValueIntoTheRange()
{
    QWidget parent;
    CI32SpinBox* const pBox = make<CI32SpinBox>(&parent, {{MinimumRole, -5}, {MaximumRole, 5}});
    QVERIFY(pBox);
    QSignalSpy spy(pBox, &CI32SpinBox::valueChanged);
    QVERIFY(spy.isValid());
    QVERIFY(TesseraGlobal::ISP_setData(pBox, e_ISpx_I32, 100, false));
    QVERIFY(TesseraGlobal::ISP_setData(pBox, e_ISpx_I32, -100, false));
    QVERIFY(TesseraGlobal::ISP_setData(pBox, e_ISpx_I32, -7, false)); // already there: no signal
    QCOMPARE(spy, (QList<QList<QVariant>>{{5}, {-5}}));
}

void tst_SpinBoxFactory::setsNothingWithoutAnEditor_data()
{
    readsAnInvalidVariantFromNoEditor_data();
}

void tst_SpinBoxFactory::setsNothingWithoutAnEditor()
{
    QFETCH(const int, type);
    QVERIFY(!TesseraGlobal::ISP_setData(nullptr, e_ISpx_Type(type), 1, true));
    QVERIFY(!TesseraGlobal::ISP_setData(nullptr, e_ISpx_Type(type), QVariant(), false));
}

void tst_SpinBoxFactory::knowsNothingOfAWidgetOfAnotherClass_data()
{
    readsAnInvalidVariantFromNoEditor_data();
}

void tst_SpinBoxFactory::knowsNothingOfAWidgetOfAnotherClass()
{
    QFETCH(const int, type);
    const auto code = e_ISpx_Type(type);
    QLineEdit edit(QStringLiteral("text"));
    QVERIFY(!TesseraGlobal::ISP_getData(&edit, code).isValid());
    QVERIFY(!TesseraGlobal::ISP_setData(&edit, code, 5, true));
    QCOMPARE(edit.text(), QStringLiteral("text"));
    QVERIFY(!edit.hasSelectedText());

    // Nor does a box of one class pass for one of another.
    const QScopedPointer<QWidget> pOwn(TesseraGlobal::ISP_create(nullptr, {{TypeRole, type}}));
    for (const Member& m : members()) {
        const QScopedPointer<QWidget> pBox(TesseraGlobal::ISP_create(nullptr, {{TypeRole, int(m.type)}}));
        const bool isOwn = pBox->metaObject() == pOwn->metaObject();
        TesseraGlobal::ISP_setData(pBox.data(), m.type, 7, false);
        QCOMPARE(TesseraGlobal::ISP_getData(pBox.data(), code).isValid(), isOwn);
        QCOMPARE(TesseraGlobal::ISP_setData(pBox.data(), code, 9, true), isOwn);
        QCOMPARE(textOf(pBox.data()), isOwn ? QStringLiteral("9") : QStringLiteral("7"));
        QCOMPARE(lineEditOf(pBox.data())->hasSelectedText(), isOwn);
    }
}

void tst_SpinBoxFactory::selectsTheNumberOnlyWhenAsked()
{
    for (const Member& m : members()) {
        const QScopedPointer<QWidget> pBox(TesseraGlobal::ISP_create(
            nullptr, {{TypeRole, int(m.type)}, {PrefixRole, QStringLiteral("<")}, {SuffixRole, QStringLiteral(">")}}));
        TesseraGlobal::ISP_setData(pBox.data(), m.type, 41, false);
        QCOMPARE(lineEditOf(pBox.data())->selectedText(), QString());
        TesseraGlobal::ISP_setData(pBox.data(), m.type, 42, true);
        QCOMPARE(lineEditOf(pBox.data())->selectedText(), QStringLiteral("42"));
    }
}

void tst_SpinBoxFactory::leavesTheSelectionAsItWasOtherwise()
{
    for (const Member& m : members()) {
        const QScopedPointer<QWidget> pBox(TesseraGlobal::ISP_create(nullptr, {{TypeRole, int(m.type)}}));
        TesseraGlobal::ISP_setData(pBox.data(), m.type, 42, false);
        QLineEdit* const pEdit = lineEditOf(pBox.data());

        pEdit->setSelection(1, 1);
        TesseraGlobal::ISP_setData(pBox.data(), m.type, 42, false);
        QCOMPARE(pEdit->selectedText(), QStringLiteral("2"));
        QCOMPARE(pEdit->selectionStart(), 1);

        pEdit->deselect();
        TesseraGlobal::ISP_setData(pBox.data(), m.type, 42, false);
        QVERIFY(!pEdit->hasSelectedText());
    }
}

void tst_SpinBoxFactory::survivesASlotThatDeletesTheEditor_data()
{
    QTest::addColumn<e_ISpx_Type>("type");
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<bool>("withItsParent");

    for (const Member& m : members()) {
        for (const bool bParent : {false, true}) {
            const char* const victim = bParent ? "its parent" : "itself";
            const QByteArray sType = QMetaType(m.nMetaType).name();
            QTest::addRow("%s, textChanged, %s", m.className, victim)
                << m.type << QByteArray(SIGNAL(textChanged(QString))) << bParent;
            QTest::addRow("%s, valueChanged, %s", m.className, victim)
                << m.type << QByteArray("2valueChanged(" + sType + ')') << bParent;
        }
    }
}

void tst_SpinBoxFactory::survivesASlotThatDeletesTheEditor()
{
    QFETCH(const e_ISpx_Type, type);
    QFETCH(const QByteArray, signal);
    QFETCH(const bool, withItsParent);
    const QPointer<QWidget> pParent = new QWidget;
    const QPointer<QWidget> pBox = TesseraGlobal::ISP_create(pParent, {{TypeRole, int(type)}});
    Deleter deleter(withItsParent ? pParent : pBox);
    QVERIFY(connect(pBox, signal.constData(), &deleter, SLOT(deleteNow())));
    QVERIFY(TesseraGlobal::ISP_setData(pBox, type, 42, true));
    QVERIFY(pBox.isNull());
    delete pParent.data();
}

TESSERA_TEST_MAIN(tst_SpinBoxFactory)
#include "tst_SpinBoxFactory.moc"
