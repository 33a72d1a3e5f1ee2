// SPDX-License-Identifier: MIT
#pragma once

#include "support/GlobalState.h"

#include "CellModels.h"

#include <QAbstractItemModelTester>
#include <QBrush>
#include <QColor>
#include <QCoreApplication>
#include <QFont>
#include <QIdentityProxyModel>
#include <QPen>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QSortFilterProxyModel>
#include <QtTest>

#include <limits>

Q_DECLARE_METATYPE(CellModels::Answers)

/*!
    What TbModel and TrModel promise alike: what is shown of a cell follows from its kind and its value.

    A test of one class says how a model of it is made, and adds what only that class has.
*/
class ItemModelContract : public QObject
{
    Q_OBJECT

protected:
    using Answers = CellModels::Answers;

    //! A host model of the class under test, two rows and two columns of cells at least.
    virtual CellModels::CellHost* create() const = 0;

private Q_SLOTS:
    void init()
    {
        m_pHost.reset(create());
        m_pTester.reset(
            new QAbstractItemModelTester(m_pHost->model(), QAbstractItemModelTester::FailureReportingMode::Fatal));
    }

    void cleanup()
    {
        m_pTester.reset();
        m_pHost.reset();
    }

    void aCellWithoutKindIsPlain()
    {
        const QVariant kind = shown(Qt::UserRole);
        QCOMPARE(kind.userType(), int(QMetaType::Int));
        QCOMPARE(kind.toInt(), 0);
    }

    void anInvalidIndexHasNoData_data()
    {
        QTest::addColumn<int>("role");
        for (const int nRole : {0, 2, 3, 8, 10, 256, 260, 276})
            QTest::addRow("role %d", nRole) << nRole;
    }
    void anInvalidIndexHasNoData()
    {
        QFETCH(int, role);
        QVERIFY(!m_pHost->model()->data(QModelIndex(), role).isValid());
    }

    void theTextFollowsFromKindAndValue_data()
    {
        QTest::addColumn<Answers>("answers");
        QTest::addColumn<QVariant>("expected");

        const auto row = [](const char* name, int nKind, const QVariant& value, const QVariant& expected,
                            Answers answers = {}) {
            answers[Qt::UserRole] = nKind;
            answers[Qt::EditRole] = value;
            QTest::newRow(name) << answers << expected;
        };
        const QString sText = QStringLiteral("text");
        const QString sUndefined = QStringLiteral("Undefined");

        row("0, a text", 0, sText, sText);
        row("0, a number", 0, quint32(0xFFFFFFFF), quint32(0xFFFFFFFF));
        row("0, nothing", 0, QVariant(), QVariant());
        row("13 is as 0", 13, 1.5, 1.5);
        row("-1 is as 0", -1, sText, sText);
        row("the largest code is as 0", std::numeric_limits<int>::max(), sText, sText);
        row("the smallest code is as 0", std::numeric_limits<int>::min(), sText, sText);

        row("1, true", 1, true, QVariant());
        row("1, a text", 1, sText, QVariant());

        row("2, true", 2, true, QStringLiteral("True"));
        row("2, false", 2, false, QStringLiteral("False"));
        row("2, nothing", 2, QVariant(), QStringLiteral("False"));
        row("2, the number 5", 2, 5, QStringLiteral("True"));
        row("2, the text false", 2, QStringLiteral("false"), QStringLiteral("False"));

        row("3, true", 3, true, true);
        row("3, false", 3, false, false);
        row("6, an unsigned byte", 6, QVariant::fromValue(uchar(255)), QVariant::fromValue(uchar(255)));
        row("6, the largest number", 6, std::numeric_limits<quint64>::max(), std::numeric_limits<quint64>::max());
        row("7, a double", 7, 0.1, 0.1);
        row("8, a text", 8, sText, sText);
        const QFont font(QStringLiteral("Arial"), 17);
        row("10, a font", 10, font, font);

        const Answers texts{{260, QStringList{QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"),
                                              QStringLiteral("d"), QStringLiteral("e")}}};
        row("4, the first", 4, 0, QStringLiteral("a"), texts);
        row("4, the last", 4, 4, QStringLiteral("e"), texts);
        row("4, one behind the last", 4, 5, sUndefined, texts);
        row("4, far behind the last", 4, 7, sUndefined, texts);
        row("4, before the first", 4, -1, sUndefined, texts);
        row("4, a number as text", 4, QStringLiteral("1"), QStringLiteral("b"), texts);
        row("4, no number counts as 0", 4, QStringLiteral("x"), QStringLiteral("a"), texts);
        row("4, no texts", 4, 0, sUndefined);

        const Answers pairs{{261, QStringList{QStringLiteral("ten"), QStringLiteral("twenty"),
                                              QStringLiteral("ten again"), QStringLiteral("name")}},
                            {262, QVariantList{10, 20, 10, QStringLiteral("id")}}};
        row("5, a value", 5, 20, QStringLiteral("twenty"), pairs);
        row("5, a text", 5, QStringLiteral("id"), QStringLiteral("name"), pairs);
        row("5, a value that stands twice", 5, 10, QStringLiteral("ten"), pairs);
        row("5, a value of another type that is equal", 5, QStringLiteral("20"), QStringLiteral("twenty"), pairs);
        row("5, no such value", 5, 11, sUndefined, pairs);
        row("5, nothing", 5, QVariant(), sUndefined, pairs);
        row("5, no lists", 5, 10, sUndefined);
        const Answers few{{261, QStringList{QStringLiteral("ten")}}, {262, QVariantList{10, 20}}};
        row("5, a value within too few texts", 5, 10, QStringLiteral("ten"), few);
        row("5, a value beyond the texts", 5, 20, sUndefined, few);
        const Answers many{{261, QStringList{QStringLiteral("ten"), QStringLiteral("twenty")}},
                           {262, QVariantList{10}}};
        row("5, too many texts", 5, 10, QStringLiteral("ten"), many);
        row("5, a text without value", 5, 20, sUndefined, many);

        row("9, a colour", 9, QColor(Qt::red), QVariant());
        row("9, the name of a colour", 9, QStringLiteral("red"), QVariant());

        row("11, blue, 2.25, solid", 11, QPen(Qt::blue, 2.25), QStringLiteral("#0000ff;2.25;SolidLine"));
        row("11, width 1", 11, QPen(Qt::red, 1.0, Qt::DashLine), QStringLiteral("#ff0000;1;DashLine"));
        row("11, width 1.5", 11, QPen(Qt::red, 1.5, Qt::DotLine), QStringLiteral("#ff0000;1.5;DotLine"));
        row("11, width 0", 11, QPen(Qt::black, 0.0, Qt::NoPen), QStringLiteral("#000000;0;NoPen"));
        row("11, a width of many digits", 11, QPen(Qt::black, 1234567.0),
            QStringLiteral("#000000;1.23457e+06;SolidLine"));
        row("11, a tiny width", 11, QPen(Qt::black, 0.0000001), QStringLiteral("#000000;1e-07;SolidLine"));
        row("11, an own pattern", 11, QPen(Qt::white, 1, Qt::CustomDashLine), QStringLiteral("#ffffff;1;Undefine"));
        row("11, a colour that lets through", 11, QPen(QColor(1, 2, 3, 4), 1), QStringLiteral("#010203;1;SolidLine"));
        row("11, nothing", 11, QVariant(), QStringLiteral("#000000;1;SolidLine"));

        row("12, two bytes", 12, QByteArray("\x12\xAB"), QStringLiteral("0x12AB"));
        row("12, a zero", 12, QByteArray("\0", 1), QStringLiteral("0x00"));
        row("12, no byte", 12, QByteArray(""), QStringLiteral("0x"));
        row("12, nothing", 12, QVariant(), QStringLiteral("0x"));
    }
    void theTextFollowsFromKindAndValue()
    {
        QFETCH(Answers, answers);
        QFETCH(QVariant, expected);
        m_pHost->answer(1, 1, answers);
        const QVariant text = m_pHost->at(1, 1).data(Qt::DisplayRole);
        QVERIFY2(CellModels::identical(text, expected), qPrintable(CellModels::spelled(text)));
    }

    void theToolTipIsTheTextButTheBitsOfBytes_data()
    {
        QTest::addColumn<Answers>("answers");
        QTest::addColumn<QVariant>("expected");

        const auto row = [](const char* name, int nKind, const QVariant& value, const QVariant& expected) {
            QTest::newRow(name) << Answers{{Qt::UserRole, nKind}, {Qt::EditRole, value}} << expected;
        };
        row("0", 0, QStringLiteral("text"), QStringLiteral("text"));
        row("1", 1, true, QVariant());
        row("2", 2, true, QStringLiteral("True"));
        row("3", 3, true, true);
        row("4", 4, 1, QStringLiteral("Undefined"));
        row("5", 5, 1, QStringLiteral("Undefined"));
        row("6", 6, 7, 7);
        row("7", 7, 7.5, 7.5);
        row("8", 8, QStringLiteral("A"), QStringLiteral("A"));
        row("9", 9, QColor(Qt::red), QVariant());
        row("10", 10, QFont(), QFont());
        row("11", 11, QPen(Qt::red), QStringLiteral("#ff0000;1;SolidLine"));
        row("12", 12, QByteArray("\x12\xAB"), QStringLiteral("0b00010010 10101011"));
        row("12, one byte", 12, QByteArray("\x80"), QStringLiteral("0b10000000"));
        row("12, no byte", 12, QByteArray(), QStringLiteral("0b"));
        row("13", 13, 5, 5);
    }
    void theToolTipIsTheTextButTheBitsOfBytes()
    {
        QFETCH(Answers, answers);
        QFETCH(QVariant, expected);
        m_pHost->answer(1, 1, answers);
        const QVariant text = m_pHost->at(1, 1).data(Qt::ToolTipRole);
        QVERIFY2(CellModels::identical(text, expected), qPrintable(CellModels::spelled(text)));
    }

    void theBackgroundIsTheColourOfAColourCell_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QColor>("expected");
        QTest::newRow("a colour") << QVariant(QColor(1, 2, 3, 4)) << QColor(1, 2, 3, 4);
        QTest::newRow("an invalid colour") << QVariant(QColor()) << QColor();
        QTest::newRow("a colour not of RGB")
            << QVariant(QColor::fromHsvF(0.25, 0.5, 0.75)) << QColor::fromHsvF(0.25, 0.5, 0.75);
        QTest::newRow("a name") << QVariant(QStringLiteral("red")) << QColor(Qt::red);
        QTest::newRow("a number sign") << QVariant(QStringLiteral("#80112233")) << QColor(0x11, 0x22, 0x33, 0x80);
        QTest::newRow("a brush") << QVariant(QBrush(Qt::blue)) << QColor(Qt::blue);
        QTest::newRow("no colour's name") << QVariant(QStringLiteral("nonsense")) << QColor();
        QTest::newRow("a number") << QVariant(5) << QColor();
        QTest::newRow("nothing") << QVariant() << QColor();
    }
    void theBackgroundIsTheColourOfAColourCell()
    {
        QFETCH(QVariant, value);
        QFETCH(QColor, expected);
        m_pHost->answer(0, 1, {{Qt::UserRole, 9}, {Qt::EditRole, value}});
        const QVariant background = m_pHost->at(0, 1).data(Qt::BackgroundRole);
        QCOMPARE(background.userType(), int(QMetaType::QColor));
        QCOMPARE(qvariant_cast<QColor>(background), expected);
        QCOMPARE(qvariant_cast<QColor>(background).spec(), expected.spec());
    }

    void onlyAColourCellHasABackground_data() { everyKindBut({9}); }
    void onlyAColourCellHasABackground()
    {
        QFETCH(int, kind);
        m_pHost->answer(0, 0, {{Qt::UserRole, kind}, {Qt::EditRole, QColor(Qt::red)}});
        QVERIFY(!shown(Qt::BackgroundRole).isValid());
    }

    void theCheckStateIsTheBoolOfACheckBox_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<int>("expected");
        QTest::newRow("true") << QVariant(true) << 2;
        QTest::newRow("false") << QVariant(false) << 0;
        QTest::newRow("1 is true, not half") << QVariant(1) << 2;
        QTest::newRow("0") << QVariant(0) << 0;
        QTest::newRow("the text true") << QVariant(QStringLiteral("true")) << 2;
        QTest::newRow("nothing") << QVariant() << 0;
    }
    void theCheckStateIsTheBoolOfACheckBox()
    {
        QFETCH(QVariant, value);
        QFETCH(int, expected);
        m_pHost->answer(0, 0, {{Qt::UserRole, 1}, {Qt::EditRole, value}});
        const QVariant state = shown(Qt::CheckStateRole);
        QCOMPARE(state.userType(), int(QMetaType::Int));
        QCOMPARE(state.toInt(), expected);
    }

    void onlyACheckBoxHasACheckState_data() { everyKindBut({1}); }
    void onlyACheckBoxHasACheckState()
    {
        QFETCH(int, kind);
        m_pHost->answer(0, 0, {{Qt::UserRole, kind}, {Qt::EditRole, true}});
        QVERIFY(!shown(Qt::CheckStateRole).isValid());
    }

    void allOtherRolesAreLeftToTheHost_data() { everyKindBut({}); }
    void allOtherRolesAreLeftToTheHost()
    {
        QFETCH(int, kind);
        m_pHost->answer(0, 0, {{Qt::UserRole, kind}});
        for (int nRole = 0; nRole <= 300; ++nRole) {
            if (nRole == 0 || nRole == 3 || nRole == 8 || nRole == 10 || nRole == Qt::UserRole)
                continue;
            QVERIFY2(!shown(nRole).isValid(), qPrintable(QString::number(nRole)));
        }
    }

    void theFlagsFollowFromTheKind_data()
    {
        QTest::addColumn<QVariant>("kind");
        QTest::addColumn<int>("expected");
        const int aFlags[] = {35, 49, 33, 33, 35, 35, 35, 35, 35, 33, 33, 33, 33};
        for (int nKind = 0; nKind <= 12; ++nKind)
            QTest::addRow("%d", nKind) << QVariant(nKind) << aFlags[nKind];
        QTest::newRow("13") << QVariant(13) << 35;
        QTest::newRow("-1") << QVariant(-1) << 35;
        QTest::newRow("256") << QVariant(256) << 35;
        QTest::newRow("no kind") << QVariant() << 35;
        QTest::newRow("a kind as text") << QVariant(QStringLiteral("2")) << 33;
    }
    void theFlagsFollowFromTheKind()
    {
        QFETCH(QVariant, kind);
        QFETCH(int, expected);
        if (kind.isValid())
            m_pHost->answer(1, 0, {{Qt::UserRole, kind}});
        QCOMPARE(int(m_pHost->model()->flags(m_pHost->at(1, 0))), expected);
    }

    void anInvalidIndexHasNoFlags() { QCOMPARE(int(m_pHost->model()->flags(QModelIndex())), 0); }

    void aCheckBoxIsWrittenAsABool_data()
    {
        QTest::addColumn<QVariant>("state");
        QTest::addColumn<bool>("expected");
        QTest::newRow("checked") << QVariant(int(Qt::Checked)) << true;
        QTest::newRow("unchecked") << QVariant(int(Qt::Unchecked)) << false;
        QTest::newRow("half is not checked") << QVariant(int(Qt::PartiallyChecked)) << false;
        QTest::newRow("true is the number 1") << QVariant(true) << false;
        QTest::newRow("3") << QVariant(3) << false;
        QTest::newRow("2 as text") << QVariant(QStringLiteral("2")) << true;
        QTest::newRow("nothing") << QVariant() << false;
    }
    void aCheckBoxIsWrittenAsABool()
    {
        QFETCH(QVariant, state);
        QFETCH(bool, expected);
        m_pHost->answer(1, 1, {{Qt::UserRole, 1}, {Qt::EditRole, !expected}});
        QSignalSpy spy(m_pHost->model(), &QAbstractItemModel::dataChanged);
        QVERIFY(spy.isValid());

        QVERIFY(m_pHost->model()->setData(m_pHost->at(1, 1), state, Qt::CheckStateRole));
        const QStringList writes = m_pHost->takeWrites();
        QCOMPARE(writes.size(), 2);
        QCOMPARE(writes.at(0), QStringLiteral("1,1 10 ") + CellModels::spelled(state));
        QCOMPARE(writes.at(1), QStringLiteral("1,1 2 ") + CellModels::spelled(expected));
        QVERIFY(CellModels::identical(m_pHost->value(1, 1), expected));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(m_pHost->at(1, 1).data(Qt::CheckStateRole).toInt(), expected ? 2 : 0);
    }

    void aCheckBoxThatTheHostRefusesStaysAsItIs()
    {
        m_pHost->answer(0, 0, {{Qt::UserRole, 1}, {Qt::EditRole, false}});
        m_pHost->cell(0, 0).refuses = true;
        QVERIFY(!m_pHost->model()->setData(m_pHost->at(0, 0), int(Qt::Checked), Qt::CheckStateRole));
        QCOMPARE(m_pHost->takeWrites().size(), 2);
        QCOMPARE(shown(Qt::CheckStateRole).toInt(), 0);
    }

    void onlyACheckBoxTakesACheckState_data() { everyKindBut({1}); }
    void onlyACheckBoxTakesACheckState()
    {
        QFETCH(int, kind);
        m_pHost->answer(0, 0, {{Qt::UserRole, kind}, {Qt::EditRole, false}});
        QVERIFY(!m_pHost->model()->setData(m_pHost->at(0, 0), int(Qt::Checked), Qt::CheckStateRole));
        QCOMPARE(m_pHost->takeWrites(), QStringList{QStringLiteral("0,0 10 QVariant(int, 2)")});
        QVERIFY(CellModels::identical(m_pHost->value(0, 0), false));
    }

    void everyOtherRoleIsRefused()
    {
        m_pHost->answer(0, 0, {{Qt::UserRole, 1}, {Qt::EditRole, false}});
        QSignalSpy spy(m_pHost->model(), &QAbstractItemModel::dataChanged);
        for (int nRole = 0; nRole <= 280; ++nRole) {
            if (nRole == Qt::EditRole || nRole == Qt::CheckStateRole)
                continue;
            QVERIFY(!m_pHost->model()->setData(m_pHost->at(0, 0), 2, nRole));
            QCOMPARE(m_pHost->takeWrites().size(), 1); // what came in, and nothing after it
        }
        QCOMPARE(spy.count(), 0);
    }

    void nothingIsWrittenToAnInvalidIndex()
    {
        for (const int nRole : {0, 2, 10, 256}) {
            QVERIFY(!m_pHost->model()->setData(QModelIndex(), 2, nRole));
            QCOMPARE(m_pHost->takeWrites().size(), 1);
        }
    }

    void theAnswersOfTheHostCountEverywhere()
    {
        // The tool tip is made of the host's own text, the text of the host's own value.
        m_pHost->answer(0, 0, {{Qt::UserRole, 6}, {Qt::EditRole, 5}, {Qt::DisplayRole, QStringLiteral("five")}});
        QCOMPARE(shown(Qt::ToolTipRole).toString(), QStringLiteral("five"));

        // A kind that changes changes everything that follows from it.
        m_pHost->answer(0, 0, {{Qt::UserRole, 2}, {Qt::EditRole, 5}});
        QCOMPARE(shown(Qt::DisplayRole).toString(), QStringLiteral("True"));
        m_pHost->answer(0, 0, {{Qt::UserRole, 1}, {Qt::EditRole, 5}});
        QVERIFY(!shown(Qt::DisplayRole).isValid());
        QCOMPARE(shown(Qt::CheckStateRole).toInt(), 2);
        QCOMPARE(int(m_pHost->model()->flags(m_pHost->at(0, 0))), 49);
    }

    void aProxyShowsTheSame()
    {
        m_pHost->answer(0, 0, {{Qt::UserRole, 12}, {Qt::EditRole, QByteArray("\x01")}});
        m_pHost->answer(1, 0, {{Qt::UserRole, 1}, {Qt::EditRole, false}});
        QSortFilterProxyModel sorted;
        sorted.setSourceModel(m_pHost->model());
        QAbstractItemModelTester tester(&sorted, QAbstractItemModelTester::FailureReportingMode::Fatal);
        const QModelIndex first = sorted.mapFromSource(m_pHost->at(0, 0));
        const QModelIndex second = sorted.mapFromSource(m_pHost->at(1, 0));

        QCOMPARE(first.data(Qt::DisplayRole).toString(), QStringLiteral("0x01"));
        QCOMPARE(first.data(Qt::ToolTipRole).toString(), QStringLiteral("0b00000001"));
        QCOMPARE(int(sorted.flags(second)), 49);
        QVERIFY(sorted.setData(second, int(Qt::Checked), Qt::CheckStateRole));
        QCOMPARE(m_pHost->takeWrites(), (QStringList{QStringLiteral("1,0 10 QVariant(int, 2)"),
                                                     QStringLiteral("1,0 2 QVariant(bool, true)")}));
    }

    void theWordsAreTranslated()
    {
        m_pHost->answer(0, 0, {{Qt::UserRole, 2}, {Qt::EditRole, true}});
        m_pHost->answer(0, 1, {{Qt::UserRole, 2}, {Qt::EditRole, false}});
        m_pHost->answer(1, 0, {{Qt::UserRole, 4}, {Qt::EditRole, 3}});
        m_pHost->answer(1, 1, {{Qt::UserRole, 5}, {Qt::EditRole, 3}});
        const auto words = [this] {
            return QStringList{m_pHost->at(0, 0).data().toString(), m_pHost->at(0, 1).data().toString(),
                               m_pHost->at(1, 0).data().toString(), m_pHost->at(1, 1).data().toString()};
        };

        TestSupport::GlobalState global;
        QVERIFY(global.install(QStringLiteral(":/qm/Tessera_zh_CN.qm")));
        const QStringList translated = words();
        global.removeCatalogues();
        QCOMPARE(translated, (QStringList{QStringLiteral("是"), QStringLiteral("否"), QStringLiteral("未定义"),
                                          QStringLiteral("未定义")}));
        QCOMPARE(words(), (QStringList{QStringLiteral("True"), QStringLiteral("False"), QStringLiteral("Undefined"),
                                       QStringLiteral("Undefined")}));
    }

    void aTextOfTheHostsIsNeverTakenForAPlaceholder()
    {
        m_pHost->answer(0, 0, {{Qt::UserRole, 4}, {Qt::EditRole, 0}, {260, QStringList{QStringLiteral("%1 of %2")}}});
        QCOMPARE(shown(Qt::DisplayRole).toString(), QStringLiteral("%1 of %2"));
    }

protected:
    QVariant shown(int nRole) const { return m_pHost->at(0, 0).data(nRole); }

    static void everyKindBut(const QList<int>& kinds)
    {
        QTest::addColumn<int>("kind");
        for (int nKind = -1; nKind <= 13; ++nKind) {
            if (!kinds.contains(nKind))
                QTest::addRow("%d", nKind) << nKind;
        }
    }

    QScopedPointer<CellModels::CellHost> m_pHost;
    QScopedPointer<QAbstractItemModelTester> m_pTester;
};
