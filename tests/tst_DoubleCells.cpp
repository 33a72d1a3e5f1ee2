// SPDX-License-Identifier: MIT
#include "CellModels.h"
#include "support/TestMain.h"

#include <Tessera/views/StyledItemDelegate.h>
#include <Tessera/views/TbView.h>
#include <Tessera/widgets/CDSpinBox.h>

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QPointer>
#include <QScopedPointer>
#include <QSignalBlocker>
#include <QTimer>
#include <QtTest>

#include <cstring>
#include <functional>
#include <limits>

using CellModels::Answers;
using CellModels::CellTable;
using nsUI::CDSpinBox;
using nsUI::StyledItemDelegate;

namespace {

constexpr double c_fFine = 1.23456789; // two decimals show 1.23

bool sameBits(double first, double second)
{
    return std::memcmp(&first, &second, sizeof(double)) == 0;
}

//! A table that does with a value what a device does.
class DeviceTable : public CellTable
{
public:
    using CellTable::CellTable;

    //! What is stored of a value that is written.
    std::function<double(double)> convert = [](double val) { return val; };
    bool storesLater = false;  //!< setData() answers true, the value is there with the report
    bool reportsLater = false; //!< the value is there at once

    bool setData(const QModelIndex& index, const QVariant& value, int role) override
    {
        m_writes << CellModels::spelled(value);
        const QVariant stored(convert(value.toDouble()));
        if (!storesLater)
            cell(index.row(), index.column()).answers[role] = stored;
        const auto report = [this, index = QPersistentModelIndex(index), role, stored] {
            if (storesLater)
                cell(index.row(), index.column()).answers[role] = stored;
            Q_EMIT dataChanged(index, index, {role});
        };
        if (storesLater || reportsLater)
            QTimer::singleShot(0, this, report);
        else
            report();
        return true;
    }
};

} // namespace

//! What passes between a double cell and its editor, in both directions.
class tst_DoubleCells : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    // Untouched
    void anEditorThatIsOpenedAndClosedLeavesTheValueBitByBit_data();
    void anEditorThatIsOpenedAndClosedLeavesTheValueBitByBit();
    void whatIsNoDoubleBecomesOne();
    void anUntouchedBoxOfTheHostsOwnLeavesTheValueToo();
    void aValueGoesBackOnlyToTheCellItIsFrom();

    // Touched
    void whatIsTypedIsWritten_data();
    void whatIsTypedIsWritten();
    void whatIsStepped_data();
    void whatIsStepped();
    void whatIsTypedIsReadByABoxThatReadsLate();
    void aPasteOfWhatIsShownIsAChange();
    void aValueThatIsSetIsWritten();
    void aBoxThatWasNeverFilledIsRead();

    // At once
    void fillingWritesNothing_data() { options(); }
    void fillingWritesNothing();
    void typingIsWrittenAtOnceAndStaysAsItIsTyped_data();
    void typingIsWrittenAtOnceAndStaysAsItIsTyped();
    void whatAModelMakesOfAValueIsShown();
    void aRefusedValueStaysInTheEditor();
    void aChangeBySomebodyElseIsShown_data();
    void aChangeBySomebodyElseIsShown();
    void aStepThatChangesLeavesWhatIsBeingTyped();
    void aCellOfAnotherKindIsNotWritten();
    void theToolTipFollowsFillingAndTyping_data() { options(); }
    void theToolTipFollowsFillingAndTyping();

    void aBoxMayBeDeletedWhileItIsFilled();
    void aModelMayBeDeletedByAWrite();

private:
    static void options()
    {
        QTest::addColumn<quint64>("options");
        for (const int nOptions : {0, 1, 2, 3})
            QTest::addRow("%d", nOptions) << quint64(nOptions);
    }

    //! The editor of the cell (1, 1), open in a shown view.
    CDSpinBox* opened(const Answers& answers)
    {
        m_pTable->answer(1, 1, answers);
        m_pTable->cell(1, 1).answers[Qt::UserRole] = 7;
        m_pView.reset(new nsUI::TbView);
        m_pView->setModel(m_pTable.data());
        m_pView->setItemDelegate(new StyledItemDelegate(m_pView.data()));
        m_pView->setEditTriggers(QAbstractItemView::DoubleClicked); // not already when the focus comes
        m_pView->show();
        if (!QTest::qWaitForWindowActive(m_pView.data()))
            return nullptr;
        m_pView->setCurrentIndex(m_pTable->at(1, 1));
        m_pView->edit(m_pTable->at(1, 1));
        m_pBox = qobject_cast<CDSpinBox*>(m_pView->indexWidget(m_pTable->at(1, 1)));
        return m_pBox;
    }
    CDSpinBox* openedAtOnce(double val) { return opened({{Qt::EditRole, val}, {270, 1000.0}, {274, quint64(1)}}); }

    void commit() { Q_EMIT m_pView->itemDelegate()->commitData(m_pBox); }
    double value() { return m_pTable->value(1, 1).toDouble(); }

    static QStringList written(const QVector<double>& values)
    {
        QStringList texts;
        for (const double val : values)
            texts << CellModels::spelled(val);
        return texts;
    }

    StyledItemDelegate m_delegate;
    QScopedPointer<DeviceTable> m_pTable;
    QScopedPointer<nsUI::TbView> m_pView;
    QPointer<CDSpinBox> m_pBox;
};

Q_DECLARE_METATYPE(CellModels::Answers)

void tst_DoubleCells::init()
{
    m_pTable.reset(new DeviceTable(3, 3));
}

void tst_DoubleCells::cleanup()
{
    m_pView.reset();
    m_pTable.reset();
}

// Untouched

void tst_DoubleCells::anEditorThatIsOpenedAndClosedLeavesTheValueBitByBit_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<Answers>("settings");
    QTest::addColumn<int>("key");
    using Limits = std::numeric_limits<double>;
    const struct
    {
        const char* pName;
        double fValue;
        Answers settings;
    } cells[] = {
        {"decimals", c_fFine, {}},
        {"halfway", 0.125, {}},
        {"nearly nothing", 1e-9, {}},
        {"negative nothing", -0.0, {{269, -5.0}}},
        {"many decimals", 0.1 + 0.2, {{271, 3}}},
        {"above the range", 1234.5678, {}},
        {"below the range", -0.001, {}},
        {"a range below nothing", -7.654321, {{269, -9.0}, {270, -5.0}}},
        {"the largest", Limits::max(), {}},
        {"the smallest", Limits::denorm_min(), {}},
        {"infinity", Limits::infinity(), {}},
        {"no number", Limits::quiet_NaN(), {}},
        {"a rounded exponent", 1234.5678, {{270, 1e9}, {272, QChar(QLatin1Char('e'))}}},
        {"an exponent", 123456.789, {{270, 1e9}, {272, QChar(QLatin1Char('g'))}, {271, 10}}},
    };
    for (const auto& cell : cells) {
        for (const int nOptions : {0, 1, 2, 3}) {
            Answers settings = cell.settings;
            settings[274] = quint64(nOptions);
            for (const int nKey : {int(Qt::Key_Return), int(Qt::Key_Tab), 0})
                QTest::addRow("%s, options %d, %s", cell.pName, nOptions,
                              nKey == 0 ? "focus" : qPrintable(QKeySequence(nKey).toString()))
                    << cell.fValue << settings << nKey;
        }
    }
}

void tst_DoubleCells::anEditorThatIsOpenedAndClosedLeavesTheValueBitByBit()
{
    QFETCH(double, value);
    QFETCH(Answers, settings);
    QFETCH(int, key);
    settings[Qt::EditRole] = value;
    QVERIFY(opened(settings));
    QCOMPARE(m_pTable->takeWrites(), QStringList());
    if (key != 0)
        QTest::keyClick(m_pBox, static_cast<Qt::Key>(key));
    else
        m_pView->setFocus();
    QTRY_VERIFY(!m_pBox);
    QCOMPARE(m_pTable->takeWrites(), written({value})); // once, by the commit
    QCOMPARE(m_pTable->value(1, 1).userType(), int(QMetaType::Double));
    QVERIFY(sameBits(this->value(), value));
}

void tst_DoubleCells::whatIsNoDoubleBecomesOne()
{
    const QVector<QPair<QVariant, double>> cells{
        {QVariant(3), 3.0}, {QVariant(QStringLiteral("1.23456")), 1.23456}, {QVariant(), 0.0}};
    for (const auto& cell : cells) {
        QVERIFY(opened({{Qt::EditRole, cell.first}}));
        commit();
        QCOMPARE(m_pTable->takeWrites(), written({cell.second}));
        QVERIFY(sameBits(value(), cell.second));
    }
}

void tst_DoubleCells::anUntouchedBoxOfTheHostsOwnLeavesTheValueToo()
{
    CDSpinBox box;
    for (const double val : {c_fFine, 2.718281828, 1e6}) { // as a mapper goes from row to row
        m_pTable->answer(0, 0, {{Qt::UserRole, 7}, {Qt::EditRole, val}});
        m_delegate.setEditorData(&box, m_pTable->at(0, 0));
        m_delegate.setModelData(&box, m_pTable.data(), m_pTable->at(0, 0));
        QVERIFY(sameBits(m_pTable->value(0, 0).toDouble(), val));
    }
    m_delegate.setEditorData(&box, m_pTable->at(0, 0));
    box.setValue(5.0);
    m_delegate.setModelData(&box, m_pTable.data(), m_pTable->at(0, 0));
    QVERIFY(sameBits(m_pTable->value(0, 0).toDouble(), 5.0));
}

void tst_DoubleCells::aValueGoesBackOnlyToTheCellItIsFrom()
{
    for (const int nRow : {0, 1})
        m_pTable->answer(nRow, 0, {{Qt::UserRole, 7}, {Qt::EditRole, c_fFine + nRow}});
    CDSpinBox box;
    m_delegate.setEditorData(&box, m_pTable->at(0, 0));
    m_delegate.setModelData(&box, m_pTable.data(), m_pTable->at(1, 0));
    QCOMPARE(m_pTable->value(1, 0), QVariant(1.23));
}

// Touched

void tst_DoubleCells::whatIsTypedIsWritten_data()
{
    QTest::addColumn<quint64>("options");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<double>("expected");
    for (const int nOptions : {0, 1, 3}) {
        QTest::addRow("another number, %d", nOptions) << quint64(nOptions) << QStringLiteral("2.5") << 2.5;
        QTest::addRow("what is shown, %d", nOptions) << quint64(nOptions) << QStringLiteral("1.23") << 1.23;
    }
}

void tst_DoubleCells::whatIsTypedIsWritten()
{
    QFETCH(quint64, options);
    QFETCH(QString, keys);
    QFETCH(double, expected);
    QVERIFY(opened({{Qt::EditRole, c_fFine}, {274, options}}));
    QCOMPARE(m_pBox->text(), QStringLiteral("1.23"));
    QTest::keyClicks(m_pBox, keys);
    QTest::keyClick(m_pBox, Qt::Key_Return);
    QTRY_VERIFY(!m_pBox);
    QVERIFY(sameBits(value(), expected));
}

void tst_DoubleCells::whatIsTypedIsReadByABoxThatReadsLate()
{
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Return}) {
        QVERIFY(opened({{Qt::EditRole, c_fFine}}));
        m_pBox->setKeyboardTracking(false);
        QTest::keyClicks(m_pBox, QStringLiteral("7"));
        QTest::keyClick(m_pBox, key);
        QTRY_VERIFY(!m_pBox);
        QVERIFY(sameBits(value(), 7.0));
    }
}

void tst_DoubleCells::whatIsStepped_data()
{
    options();
}

void tst_DoubleCells::whatIsStepped()
{
    QFETCH(quint64, options);
    QVERIFY(opened({{Qt::EditRole, c_fFine}, {273, 0.5}, {274, options}}));
    QTest::keyClick(m_pBox, Qt::Key_Up);
    QTest::keyClick(m_pBox, Qt::Key_Down); // even back to what was shown
    commit();
    QVERIFY(sameBits(value(), 1.23));
    QCOMPARE(m_pTable->takeWrites(), (options & 1) != 0 ? written({1.73, 1.23, 1.23}) : written({1.23}));
}

void tst_DoubleCells::aPasteOfWhatIsShownIsAChange()
{
    QVERIFY(opened({{Qt::EditRole, c_fFine}}));
    QApplication::clipboard()->setText(QStringLiteral("1.23"));
    QTest::keySequence(m_pBox, QKeySequence(QKeySequence::Paste));
    QCOMPARE(m_pBox->text(), QStringLiteral("1.23"));
    commit();
    QVERIFY(sameBits(value(), 1.23));
}

void tst_DoubleCells::aValueThatIsSetIsWritten()
{
    for (const bool isBlocked : {false, true}) {
        QVERIFY(opened({{Qt::EditRole, c_fFine}}));
        {
            const QSignalBlocker blocker(isBlocked ? m_pBox.data() : nullptr);
            m_pBox->setValue(4.5);
        }
        commit();
        QVERIFY(sameBits(value(), 4.5));
    }
}

void tst_DoubleCells::aBoxThatWasNeverFilledIsRead()
{
    m_pTable->answer(0, 0, {{Qt::UserRole, 7}, {Qt::EditRole, c_fFine}, {274, quint64(1)}});
    QWidget parent;
    auto* const pBox =
        qobject_cast<CDSpinBox*>(m_delegate.createEditor(&parent, QStyleOptionViewItem(), m_pTable->at(0, 0)));
    QVERIFY(pBox);
    pBox->setValue(7.0);
    QCOMPARE(m_pTable->takeWrites(), written({7.0}));
    const CDSpinBox other;
    m_delegate.setModelData(const_cast<CDSpinBox*>(&other), m_pTable.data(), m_pTable->at(0, 0));
    QCOMPARE(m_pTable->takeWrites(), written({0.0}));
}

// At once

void tst_DoubleCells::fillingWritesNothing()
{
    QFETCH(quint64, options);
    QVERIFY(opened({{Qt::EditRole, c_fFine}, {274, options}}));
    QCOMPARE(m_pBox->text(), QStringLiteral("1.23"));
    m_pTable->change(1, 1, Qt::EditRole, 8.7654321);
    QCOMPARE(m_pBox->text(), QStringLiteral("8.77"));
    m_pTable->change(1, 1, 273, 0.5);
    QTest::keyClick(m_pBox, Qt::Key_Escape);
    QTRY_VERIFY(!m_pBox);
    QCOMPARE(m_pTable->takeWrites(), QStringList());
    QVERIFY(sameBits(value(), 8.7654321));
}

void tst_DoubleCells::typingIsWrittenAtOnceAndStaysAsItIsTyped_data()
{
    QTest::addColumn<quint64>("options");
    QTest::addColumn<bool>("storesLater");
    QTest::addColumn<bool>("reportsLater");
    QTest::addColumn<bool>("keepsFloats");
    QTest::addColumn<bool>("waits"); // for what comes later, after each key
    for (const int nOptions : {1, 3}) {
        QTest::addRow("at once, %d", nOptions) << quint64(nOptions) << false << false << false << false;
        QTest::addRow("floats, %d", nOptions) << quint64(nOptions) << false << false << true << false;
        for (const bool waits : {false, true}) {
            const char* const pHow = waits ? "slow" : "fast";
            QTest::addRow("reported later, %s, %d", pHow, nOptions)
                << quint64(nOptions) << false << true << false << waits;
            QTest::addRow("stored later, %s, %d", pHow, nOptions)
                << quint64(nOptions) << true << false << false << waits;
            QTest::addRow("floats stored later, %s, %d", pHow, nOptions)
                << quint64(nOptions) << true << false << true << waits;
        }
    }
}

void tst_DoubleCells::typingIsWrittenAtOnceAndStaysAsItIsTyped()
{
    QFETCH(quint64, options);
    QFETCH(bool, storesLater);
    QFETCH(bool, reportsLater);
    QFETCH(bool, keepsFloats);
    QFETCH(bool, waits);
    m_pTable->storesLater = storesLater;
    m_pTable->reportsLater = reportsLater;
    if (keepsFloats)
        m_pTable->convert = [](double val) { return double(float(val)); };
    QVERIFY(opened({{Qt::EditRole, c_fFine}, {270, 1000.0}, {273, 0.5}, {274, options}}));
    auto* const pEdit = m_pBox->findChild<QLineEdit*>();
    QCOMPARE(pEdit->selectedText(), QStringLiteral("1.23"));
    const QString sKeys = QStringLiteral("123.4");
    for (int i = 0; i < sKeys.size(); ++i) {
        QTest::keyClick(m_pBox, sKeys.at(i).toLatin1());
        if (waits)
            QTest::qWait(1);
        QCOMPARE(pEdit->text(), sKeys.left(i + 1));
        QCOMPARE(pEdit->cursorPosition(), i + 1);
        QVERIFY(!pEdit->hasSelectedText());
    }
    QTest::qWait(1);
    QCOMPARE(pEdit->text(), sKeys);
    QCOMPARE(pEdit->cursorPosition(), 5);
    QCOMPARE(m_pTable->takeWrites(), written({1.0, 12.0, 123.0, 123.4}));
    QCOMPARE(float(value()), 123.4f);

    QTest::keyClick(m_pBox, Qt::Key_Return);
    QTRY_VERIFY(!m_pBox);
    QTest::qWait(1);
    QCOMPARE(float(value()), 123.4f);
}

void tst_DoubleCells::whatAModelMakesOfAValueIsShown()
{
    for (const bool storesLater : {false, true}) {
        m_pTable->storesLater = storesLater;
        m_pTable->convert = [](double val) { return qBound(10.0625, val, 100.0); };
        QVERIFY(openedAtOnce(20.0));
        QTest::keyClicks(m_pBox, QStringLiteral("4"));
        QTRY_COMPARE(m_pBox->text(), QStringLiteral("10.06"));
        commit();
        QTest::qWait(1);
        QVERIFY(sameBits(value(), 10.0625));
    }
}

void tst_DoubleCells::aRefusedValueStaysInTheEditor()
{
    CellTable table(2, 2);
    table.answer(0, 0, {{Qt::UserRole, 7}, {Qt::EditRole, c_fFine}, {274, quint64(1)}});
    QWidget parent;
    auto* const pBox =
        qobject_cast<CDSpinBox*>(m_delegate.createEditor(&parent, QStyleOptionViewItem(), table.at(0, 0)));
    QVERIFY(pBox);
    m_delegate.setEditorData(pBox, table.at(0, 0));
    table.cell(0, 0).refuses = true;
    pBox->stepUp();
    QCOMPARE(pBox->text(), QStringLiteral("2.23"));
    QCOMPARE(table.takeWrites().size(), 1);
    // Until the cell is reported, with the value that it still has; that is then untouched.
    m_delegate.setEditorData(pBox, table.at(0, 0));
    QCOMPARE(pBox->text(), QStringLiteral("1.23"));
    table.cell(0, 0).refuses = false;
    m_delegate.setModelData(pBox, &table, table.at(0, 0));
    QVERIFY(sameBits(table.value(0, 0).toDouble(), c_fFine));
}

void tst_DoubleCells::aChangeBySomebodyElseIsShown_data()
{
    QTest::addColumn<quint64>("options");
    QTest::addColumn<bool>("reportsLater");
    QTest::addColumn<double>("change");
    for (const int nOptions : {0, 1, 2, 3}) {
        for (const bool reportsLater : {false, true}) {
            const char* const pHow = reportsLater ? ", reported later" : "";
            QTest::addRow("a new value, %d%s", nOptions, pHow) << quint64(nOptions) << reportsLater << 55.0;
            QTest::addRow("the value from the start, %d%s", nOptions, pHow)
                << quint64(nOptions) << reportsLater << c_fFine;
            QTest::addRow("one that was typed through, %d%s", nOptions, pHow)
                << quint64(nOptions) << reportsLater << 4.0;
        }
    }
}

void tst_DoubleCells::aChangeBySomebodyElseIsShown()
{
    QFETCH(quint64, options);
    QFETCH(bool, reportsLater);
    QFETCH(double, change);
    m_pTable->reportsLater = reportsLater;
    QVERIFY(opened({{Qt::EditRole, c_fFine}, {270, 1000.0}, {273, 0.5}, {274, options}}));
    QTest::keyClicks(m_pBox, QStringLiteral("42"));
    QTest::qWait(1);
    QCOMPARE(m_pBox->text(), QStringLiteral("42"));
    m_pTable->takeWrites();

    m_pTable->change(1, 1, Qt::EditRole, change);
    QCOMPARE(m_pBox->text(), QString::number(change, 'f', 2));
    QCOMPARE(m_pBox->findChild<QLineEdit*>()->selectedText(), m_pBox->text());
    QCOMPARE(m_pTable->takeWrites(), QStringList());
    commit();
    QVERIFY(sameBits(value(), change));
    QTest::keyClicks(m_pBox, QStringLiteral("42"));
    QCOMPARE(m_pBox->text(), QStringLiteral("42"));
}

//! A step may follow from the value that was just written.
void tst_DoubleCells::aStepThatChangesLeavesWhatIsBeingTyped()
{
    QVERIFY(opened({{Qt::EditRole, c_fFine}, {270, 1000.0}, {273, 1.0}, {274, quint64(3)}}));
    m_pTable->convert = [this](double val) {
        m_pTable->cell(1, 1).answers[273] = val / 10;
        return val;
    };
    auto* const pEdit = m_pBox->findChild<QLineEdit*>();
    QTest::keyClicks(m_pBox, QStringLiteral("125."));
    QCOMPARE(m_pBox->singleStep(), 12.5);
    QCOMPARE(pEdit->text(), QStringLiteral("125."));
    QCOMPARE(pEdit->cursorPosition(), 4);
    pEdit->setSelection(3, -2); // backwards
    m_pTable->change(1, 1, 273, 0.25);
    QCOMPARE(m_pBox->singleStep(), 0.25);
    QCOMPARE(pEdit->selectedText(), QStringLiteral("25"));
    QCOMPARE(pEdit->cursorPosition(), 1);
    QTest::keyClicks(m_pBox, QStringLiteral("8"));
    QCOMPARE(pEdit->text(), QStringLiteral("18."));
    QCOMPARE(value(), 18.0);
    QCOMPARE(m_pBox->singleStep(), 1.8);
}

void tst_DoubleCells::aCellOfAnotherKindIsNotWritten()
{
    QVERIFY(openedAtOnce(5.0));
    m_pTable->cell(1, 1).answers[Qt::UserRole] = 0;
    QTest::keyClick(m_pBox, Qt::Key_Up);
    QCOMPARE(m_pTable->takeWrites(), QStringList());
}

void tst_DoubleCells::theToolTipFollowsFillingAndTyping()
{
    QFETCH(quint64, options);
    QVERIFY(opened({{Qt::EditRole, c_fFine}, {270, 1000.0}, {273, 1.0}, {274, options}}));
    QCOMPARE(m_pBox->toolTip(), QStringLiteral("1.23"));
    m_pTable->change(1, 1, Qt::EditRole, 7.5);
    QCOMPARE(m_pBox->toolTip(), QStringLiteral("7.50"));
    QTest::keyClicks(m_pBox, QStringLiteral("123"));
    QCOMPARE(m_pBox->toolTip(), QStringLiteral("123"));
    QTest::keyClick(m_pBox, Qt::Key_Up);
    QCOMPARE(m_pBox->toolTip(), QStringLiteral("124.00"));
}

void tst_DoubleCells::aBoxMayBeDeletedWhileItIsFilled()
{
    m_pTable->answer(0, 0, {{Qt::UserRole, 7}, {Qt::EditRole, c_fFine}});
    QPointer<CDSpinBox> pBox = new CDSpinBox;
    connect(pBox.data(), qOverload<double>(&QDoubleSpinBox::valueChanged), this, [&pBox] { delete pBox; });
    m_delegate.setEditorData(pBox, m_pTable->at(0, 0));
    QVERIFY(!pBox);
}

void tst_DoubleCells::aModelMayBeDeletedByAWrite()
{
    class ShortLived : public CellTable
    {
    public:
        using CellTable::CellTable;
        bool setData(const QModelIndex&, const QVariant&, int) override
        {
            delete this;
            return true;
        }
    };
    QPointer<CellTable> pTable = new ShortLived(1, 1);
    pTable->answer(0, 0, {{Qt::UserRole, 7}, {Qt::EditRole, 5.0}, {274, quint64(1)}});
    QWidget parent;
    auto* const pBox =
        qobject_cast<CDSpinBox*>(m_delegate.createEditor(&parent, QStyleOptionViewItem(), pTable->at(0, 0)));
    QVERIFY(pBox);
    m_delegate.setEditorData(pBox, pTable->at(0, 0));
    QVERIFY(pTable);
    pBox->stepUp();
    QVERIFY(!pTable);
    pBox->stepUp();
    QCOMPARE(pBox->value(), 7.0);
}

TESSERA_TEST_MAIN(tst_DoubleCells)
#include "tst_DoubleCells.moc"
