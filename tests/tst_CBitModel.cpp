// SPDX-License-Identifier: MIT
//
// The grid is internal to the library and not exported, so its source is part of this test.
#include "CellModels.h"
#include "support/GlobalState.h"
#include "support/TestMain.h"

#include <Tessera/views/CBitModel.h>

#include <QAbstractItemModelTester>
#include <QColor>
#include <QCoreApplication>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QtTest>

using CellModels::identical;
using CellModels::spelled;
using nsUI::CBitModel;

namespace {

QByteArray bytesOf(int nSize)
{
    return QByteArray(nSize, '\0');
}

//! Every signal of a model, in order, with what it carries.
class Journal
{
public:
    explicit Journal(CBitModel& model)
    {
        QObject::connect(&model, &CBitModel::sigByteArrayChanged, &m_context, [this](const QByteArray& bytes) {
            m_lines << QStringLiteral("bytes ") + QString::fromLatin1(bytes.toHex());
        });
        QObject::connect(&model, &QAbstractItemModel::dataChanged, &m_context,
                         [this](const QModelIndex& from, const QModelIndex& to, const QVector<int>& roles) {
                             m_lines << QStringLiteral("data %1,%2 to %3,%4, %5 roles")
                                            .arg(from.row())
                                            .arg(from.column())
                                            .arg(to.row())
                                            .arg(to.column())
                                            .arg(roles.size());
                         });
        QObject::connect(&model, &QAbstractItemModel::modelAboutToBeReset, &m_context,
                         [this] { m_lines << QStringLiteral("begin reset"); });
        QObject::connect(&model, &QAbstractItemModel::modelReset, &m_context,
                         [this] { m_lines << QStringLiteral("end reset"); });
    }

    QStringList take()
    {
        QStringList lines;
        lines.swap(m_lines);
        return lines;
    }

private:
    QObject m_context;
    QStringList m_lines;
};

const QStringList c_aReset{QStringLiteral("begin reset"), QStringLiteral("end reset")};

} // namespace

class tst_CBitModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void itIsATableModelWithOneSignal();
    void aNewModelIsEmpty();
    void theGridFollowsFromTheSize_data();
    void theGridFollowsFromTheSize();
    void aGridHasNothingBelowItsCells();
    void theSameBytesAgainDoNothing();
    void otherBytesResetTheModelAndSayNothingElse();
    void descriptionsResetTheModelEveryTime();
    void positionsRunFromTheLastByteUp_data();
    void positionsRunFromTheLastByteUp();
    void everyBitOfEveryByteHasItsCell();
    void theExampleOfTwoBytes();
    void eachFieldAnswersItsRoles_data();
    void eachFieldAnswersItsRoles();
    void aDescriptionBelongsToItsPosition();
    void aDescriptionBeyondTheBytesIsNotShown();
    void cellsWithoutByteAreEmpty();
    void anIndexOfLongerBytesIsEmpty();
    void theColoursAlternateByBytes_data();
    void theColoursAlternateByBytes();
    void theColourFollowsWhatTheModelAnswers();
    void onlyValuesAreMoreThanSelectable();
    void flippingABitTellsTheBytesThenTheCell();
    void aBitThatIsWrittenAsItIsIsToldAllTheSame();
    void everyBitOfEveryByteCanBeSetAndCleared();
    void onlyAValueUnderTheEditRoleIsWritten_data();
    void onlyAValueUnderTheEditRoleIsWritten();
    void aSlotThatReadsTheModelSeesTheNewBytes();
    void theHeadersRepeatByGroups();
    void theRowsAreNumbered();
    void theHeadersAreTranslatedWhenTheModelIsMade();

private:
    QVariant at(int nRow, int nColumn, int nRole = Qt::DisplayRole) const
    {
        return m_pModel->data(m_pModel->index(nRow, nColumn), nRole);
    }

    QScopedPointer<CBitModel> m_pModel;
    QScopedPointer<QAbstractItemModelTester> m_pTester;
};

void tst_CBitModel::init()
{
    m_pModel.reset(new CBitModel);
    m_pTester.reset(
        new QAbstractItemModelTester(m_pModel.data(), QAbstractItemModelTester::FailureReportingMode::Fatal));
}

void tst_CBitModel::cleanup()
{
    m_pTester.reset();
    m_pModel.reset();
}

void tst_CBitModel::itIsATableModelWithOneSignal()
{
    const QMetaObject& meta = CBitModel::staticMetaObject;
    QCOMPARE(meta.className(), "nsUI::CBitModel");
    QCOMPARE(meta.superClass(), &nsUI::TbModel::staticMetaObject);
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    const QMetaMethod signal = meta.method(meta.methodOffset());
    QCOMPARE(signal.methodType(), QMetaMethod::Signal);
    QCOMPARE(signal.methodSignature(), QByteArray("sigByteArrayChanged(QByteArray)"));
    QCOMPARE(signal.parameterNames(), QList<QByteArray>{"tByteArray"});

    QObject parent;
    QCOMPARE((new CBitModel(&parent))->QObject::parent(), &parent);
}

void tst_CBitModel::aNewModelIsEmpty()
{
    QCOMPARE(m_pModel->rowCount(), 0);
    QCOMPARE(m_pModel->columnCount(), 0);
    QVERIFY(m_pModel->byteArray().isEmpty());
    QVERIFY(m_pModel->bitDescMap().isEmpty());
}

void tst_CBitModel::theGridFollowsFromTheSize_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<QSize>("expected"); // columns by rows
    QTest::newRow("0") << 0 << QSize(3, 0);
    QTest::newRow("1") << 1 << QSize(3, 8);
    QTest::newRow("2") << 2 << QSize(6, 8);
    QTest::newRow("3") << 3 << QSize(6, 16);
    QTest::newRow("4") << 4 << QSize(6, 16);
    QTest::newRow("5") << 5 << QSize(12, 16);
    QTest::newRow("6") << 6 << QSize(12, 16);
    QTest::newRow("7") << 7 << QSize(12, 16);
    QTest::newRow("8") << 8 << QSize(12, 16);
    QTest::newRow("9") << 9 << QSize(12, 24);
    QTest::newRow("12") << 12 << QSize(12, 24);
    QTest::newRow("13") << 13 << QSize(12, 32);
    QTest::newRow("1 MiB") << (1 << 20) << QSize(12, 2 << 20);
}

void tst_CBitModel::theGridFollowsFromTheSize()
{
    QFETCH(int, size);
    if (size > 1000)
        m_pTester.reset();               // it looks at every cell
    m_pModel->setByteArray(bytesOf(20)); // no size may depend on the one before
    m_pModel->setByteArray(bytesOf(size));
    QTEST(QSize(m_pModel->columnCount(), m_pModel->rowCount()), "expected");
    QCOMPARE(m_pModel->byteArray(), bytesOf(size));
}

void tst_CBitModel::aGridHasNothingBelowItsCells()
{
    m_pModel->setByteArray(bytesOf(2));
    const QAbstractItemModel& model = *m_pModel;
    QVERIFY(!model.hasChildren(model.index(0, 0)));
    QCOMPARE(m_pModel->rowCount(m_pModel->index(0, 0)), 0);
    QCOMPARE(m_pModel->columnCount(m_pModel->index(0, 0)), 0);
}

void tst_CBitModel::theSameBytesAgainDoNothing()
{
    Journal journal(*m_pModel);
    m_pModel->setByteArray(QByteArray());
    m_pModel->setByteArray(QByteArray(""));
    QCOMPARE(journal.take(), QStringList());
    m_pModel->setByteArray(QByteArray("AB"));
    QCOMPARE(journal.take(), c_aReset);
    m_pModel->setByteArray(QByteArray("AB"));
    QCOMPARE(journal.take(), QStringList());
}

void tst_CBitModel::otherBytesResetTheModelAndSayNothingElse()
{
    Journal journal(*m_pModel);
    for (const QByteArray& bytes : {QByteArray("A"), QByteArray("B"), QByteArray("\0\0\0", 3), QByteArray()}) {
        m_pModel->setByteArray(bytes);
        QCOMPARE(journal.take(), c_aReset);
        QCOMPARE(m_pModel->byteArray(), bytes);
    }
}

void tst_CBitModel::descriptionsResetTheModelEveryTime()
{
    m_pModel->setByteArray(bytesOf(1));
    Journal journal(*m_pModel);
    const QMap<int, QString> map{{0, QStringLiteral("ready")}};
    m_pModel->setBitDescMap(map);
    QCOMPARE(journal.take(), c_aReset);
    m_pModel->setBitDescMap(map);
    QCOMPARE(journal.take(), c_aReset);
    QCOMPARE(m_pModel->bitDescMap(), map);
    m_pModel->setBitDescMap({});
    QCOMPARE(journal.take(), c_aReset);
    QVERIFY(m_pModel->bitDescMap().isEmpty());
}

void tst_CBitModel::positionsRunFromTheLastByteUp_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<QPoint>("cell"); // column, row
    QTest::addColumn<int>("position");
    QTest::newRow("1, top") << 1 << QPoint(0, 0) << 0;
    QTest::newRow("1, bottom") << 1 << QPoint(0, 7) << 7;
    QTest::newRow("2, right group") << 2 << QPoint(3, 0) << 8;
    QTest::newRow("2, right bottom") << 2 << QPoint(3, 7) << 15;
    QTest::newRow("3, second block") << 3 << QPoint(0, 8) << 16;
    QTest::newRow("4, last") << 4 << QPoint(3, 15) << 31;
    QTest::newRow("5, first block, last group") << 5 << QPoint(9, 0) << 24;
    QTest::newRow("5, second block") << 5 << QPoint(0, 9) << 33;
    QTest::newRow("8, last") << 8 << QPoint(9, 15) << 63;
    QTest::newRow("9, third block") << 9 << QPoint(0, 16) << 64;
}

void tst_CBitModel::positionsRunFromTheLastByteUp()
{
    QFETCH(int, size);
    QFETCH(QPoint, cell);
    QFETCH(int, position);
    m_pModel->setByteArray(bytesOf(size));
    QVERIFY(identical(at(cell.y(), cell.x()), position));
}

void tst_CBitModel::everyBitOfEveryByteHasItsCell()
{
    for (int nSize = 1; nSize <= 13; ++nSize) {
        const int nPerRow = nSize < 2 ? 1 : nSize > 4 ? 4 : 2;
        for (int nPosition = 0; nPosition < nSize * 8; ++nPosition) {
            QByteArray bytes = bytesOf(nSize);
            bytes[nSize - 1 - nPosition / 8] = static_cast<char>(1 << (nPosition % 8));
            m_pModel->setByteArray(bytes);
            // Just this one bit of the whole grid is 1.
            const int nByte = nPosition / 8;
            const int nRow = nByte / nPerRow * 8 + nPosition % 8;
            const int nColumn = nByte % nPerRow * 3 + 1;
            int nOnes = 0;
            for (int r = 0; r < m_pModel->rowCount(); ++r) {
                for (int c = 1; c < m_pModel->columnCount(); c += 3)
                    nOnes += at(r, c).toInt();
            }
            QCOMPARE(nOnes, 1);
            QCOMPARE(at(nRow, nColumn).toInt(), 1);
            QCOMPARE(at(nRow, nColumn - 1).toInt(), nPosition);
        }
    }
}

void tst_CBitModel::theExampleOfTwoBytes()
{
    m_pModel->setByteArray(QByteArray("\x01\x80", 2));
    QCOMPARE(at(7, 1).toInt(), 1);
    QCOMPARE(at(7, 0).toInt(), 7);
    QCOMPARE(at(0, 4).toInt(), 1);
    QCOMPARE(at(0, 3).toInt(), 8);
    QCOMPARE(at(0, 1).toInt(), 0);
}

void tst_CBitModel::eachFieldAnswersItsRoles_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("role");
    QTest::addColumn<QVariant>("expected");
    // Two bytes, 0x03 0x01: row 0 has a set bit in both groups, row 1 in the right one only.
    const auto row = [](const QByteArray& name, int nColumn, int nRole, const QVariant& expected) {
        QTest::newRow(name.constData()) << nColumn << nRole << expected;
    };
    for (const int nGroup : {0, 3}) {
        const bool isRight = nGroup == 3;
        const QByteArray side = isRight ? "right " : "left ";
        row(side + "position, text", nGroup, Qt::DisplayRole, isRight ? 9 : 1);
        row(side + "position, tool tip", nGroup, Qt::ToolTipRole, isRight ? 9 : 1);
        row(side + "position, alignment", nGroup, Qt::TextAlignmentRole, 130);
        row(side + "position, value", nGroup, Qt::EditRole, QVariant());
        row(side + "position, kind", nGroup, 256, 0);
        row(side + "position, mark", nGroup, 257, QVariant());
        row(side + "value, value", nGroup + 1, Qt::EditRole, isRight);
        row(side + "value, text", nGroup + 1, Qt::DisplayRole, int(isRight));
        row(side + "value, tool tip", nGroup + 1, Qt::ToolTipRole, int(isRight));
        row(side + "value, alignment", nGroup + 1, Qt::TextAlignmentRole, 132);
        row(side + "value, kind", nGroup + 1, 256, 2);
        row(side + "value, mark", nGroup + 1, 257, true);
        row(side + "value, check state", nGroup + 1, Qt::CheckStateRole, QVariant());
        row(side + "value, font", nGroup + 1, Qt::FontRole, QVariant());
        const QString sText = isRight ? QStringLiteral("nine") : QString();
        row(side + "description, text", nGroup + 2, Qt::DisplayRole, sText);
        row(side + "description, tool tip", nGroup + 2, Qt::ToolTipRole, sText);
        row(side + "description, alignment", nGroup + 2, Qt::TextAlignmentRole, QVariant());
        row(side + "description, value", nGroup + 2, Qt::EditRole, QVariant());
        row(side + "description, kind", nGroup + 2, 256, 0);
        row(side + "description, mark", nGroup + 2, 257, QVariant());
    }
}

void tst_CBitModel::eachFieldAnswersItsRoles()
{
    QFETCH(int, column);
    QFETCH(int, role);
    QFETCH(QVariant, expected);
    m_pModel->setByteArray(QByteArray("\x03\x01", 2));
    m_pModel->setBitDescMap({{9, QStringLiteral("nine")}});
    const QVariant answer = at(1, column, role);
    QVERIFY2(identical(answer, expected), qPrintable(spelled(answer)));
    QVERIFY(!m_pModel->data(QModelIndex(), role).isValid());
}

void tst_CBitModel::aDescriptionBelongsToItsPosition()
{
    m_pModel->setByteArray(bytesOf(3));
    QMap<int, QString> map;
    for (int nPosition = -1; nPosition <= 24; ++nPosition)
        map.insert(nPosition, QStringLiteral("bit %1").arg(nPosition));
    m_pModel->setBitDescMap(map);
    QCOMPARE(at(0, 2).toString(), QStringLiteral("bit 0"));
    QCOMPARE(at(7, 2).toString(), QStringLiteral("bit 7"));
    QCOMPARE(at(0, 5).toString(), QStringLiteral("bit 8"));
    QCOMPARE(at(15, 2).toString(), QStringLiteral("bit 23"));
    QVERIFY(!at(8, 5).isValid());
}

void tst_CBitModel::aDescriptionBeyondTheBytesIsNotShown()
{
    m_pModel->setByteArray(bytesOf(2));
    m_pModel->setBitDescMap({{20, QStringLiteral("beyond")}});
    for (int nRow = 0; nRow < m_pModel->rowCount(); ++nRow) {
        QVERIFY(identical(at(nRow, 2), QString()));
        QVERIFY(identical(at(nRow, 5), QString()));
    }
    QCOMPARE(m_pModel->bitDescMap().value(20), QStringLiteral("beyond"));
}

void tst_CBitModel::cellsWithoutByteAreEmpty()
{
    m_pModel->setByteArray(bytesOf(3));
    m_pModel->setBitDescMap({{24, QStringLiteral("beyond")}});
    Journal journal(*m_pModel);
    for (int nRow = 8; nRow < 16; ++nRow) {
        for (int nColumn = 3; nColumn < 6; ++nColumn) {
            const QModelIndex index = m_pModel->index(nRow, nColumn);
            QVERIFY(index.isValid());
            QCOMPARE(int(m_pModel->flags(index)), 0);
            for (int nRole = 0; nRole < 280; ++nRole)
                QVERIFY(!m_pModel->data(index, nRole).isValid());
            QVERIFY(!m_pModel->setData(index, true, Qt::EditRole));
        }
        QVERIFY(at(nRow, 0).isValid());
    }
    QCOMPARE(journal.take(), QStringList());
    QCOMPARE(m_pModel->byteArray(), bytesOf(3));
}

void tst_CBitModel::anIndexOfLongerBytesIsEmpty()
{
    m_pModel->setByteArray(bytesOf(9));
    const QModelIndex last = m_pModel->index(16, 1);
    m_pModel->setByteArray(bytesOf(1));
    QVERIFY(!m_pModel->data(last, Qt::DisplayRole).isValid());
    QCOMPARE(int(m_pModel->flags(last)), 0);
    QVERIFY(!m_pModel->setData(last, true, Qt::EditRole));
    QCOMPARE(m_pModel->byteArray(), bytesOf(1));
    QVERIFY(!m_pModel->setData(QModelIndex(), true, Qt::EditRole));
    QCOMPARE(int(m_pModel->flags(QModelIndex())), 0);
}

void tst_CBitModel::theColoursAlternateByBytes_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<QByteArray>("lightness"); // by byte number, 1 or 2 hundred
    QTest::newRow("1") << 1 << QByteArray("2");
    QTest::newRow("2") << 2 << QByteArray("12");
    QTest::newRow("3") << 3 << QByteArray("112");
    QTest::newRow("4") << 4 << QByteArray("2112");
    QTest::newRow("5") << 5 << QByteArray("11212");
    QTest::newRow("6") << 6 << QByteArray("211212");
    QTest::newRow("8") << 8 << QByteArray("21211212");
    QTest::newRow("9") << 9 << QByteArray("221211212");
}

void tst_CBitModel::theColoursAlternateByBytes()
{
    QFETCH(int, size);
    QFETCH(QByteArray, lightness);
    m_pModel->setByteArray(QByteArray(size, '\x0F')); // the upper four rows are set
    const int nPerRow = m_pModel->columnCount() / 3;
    for (int nByte = 0; nByte < size; ++nByte) {
        const bool isLight = lightness.at(nByte) == '1';
        const QColor plain(isLight ? 0xCEF4F9 : 0x9FE5F4);
        const QColor set(isLight ? 0xE7F9CC : 0xCCF39B);
        for (int nBit = 0; nBit < 8; ++nBit) {
            const int nRow = nByte / nPerRow * 8 + nBit;
            const int nColumn = nByte % nPerRow * 3;
            QVERIFY(identical(at(nRow, nColumn, Qt::BackgroundRole), plain));
            QVERIFY(identical(at(nRow, nColumn + 1, Qt::BackgroundRole), nBit < 4 ? set : plain));
            QVERIFY(identical(at(nRow, nColumn + 2, Qt::BackgroundRole), plain));
        }
    }
}

void tst_CBitModel::theColourFollowsWhatTheModelAnswers()
{
    class Inverted : public CBitModel
    {
    public:
        QVariant data(const QModelIndex& index, int role) const override
        {
            const QVariant answer = CBitModel::data(index, role);
            return role == Qt::EditRole && answer.isValid() ? QVariant(!answer.toBool()) : answer;
        }
    };
    Inverted model;
    model.setByteArray(QByteArray("\x01", 1));
    QCOMPARE(model.index(0, 1).data(Qt::BackgroundRole).value<QColor>(), QColor(0x9FE5F4));
    QCOMPARE(model.index(1, 1).data(Qt::BackgroundRole).value<QColor>(), QColor(0xCCF39B));
    QCOMPARE(model.index(1, 0).data(Qt::BackgroundRole).value<QColor>(), QColor(0x9FE5F4));
}

void tst_CBitModel::onlyValuesAreMoreThanSelectable()
{
    m_pModel->setByteArray(bytesOf(5));
    for (int nColumn = 0; nColumn < 12; ++nColumn)
        QCOMPARE(int(m_pModel->flags(m_pModel->index(3, nColumn))), 33);
}

void tst_CBitModel::flippingABitTellsTheBytesThenTheCell()
{
    m_pModel->setByteArray(bytesOf(2));
    Journal journal(*m_pModel);
    QVERIFY(m_pModel->setData(m_pModel->index(1, 4), true, Qt::EditRole)); // position 9
    QCOMPARE(m_pModel->byteArray(), QByteArray("\x02\x00", 2));
    QCOMPARE(journal.take(), (QStringList{QStringLiteral("bytes 0200"), QStringLiteral("data 1,4 to 1,4, 0 roles")}));
    QVERIFY(m_pModel->setData(m_pModel->index(1, 4), 0, Qt::EditRole));
    QCOMPARE(m_pModel->byteArray(), bytesOf(2));
    QCOMPARE(journal.take(), (QStringList{QStringLiteral("bytes 0000"), QStringLiteral("data 1,4 to 1,4, 0 roles")}));
}

void tst_CBitModel::aBitThatIsWrittenAsItIsIsToldAllTheSame()
{
    m_pModel->setByteArray(QByteArray("\x80", 1));
    Journal journal(*m_pModel);
    QVERIFY(m_pModel->setData(m_pModel->index(7, 1), true, Qt::EditRole));
    QVERIFY(m_pModel->setData(m_pModel->index(0, 1), false, Qt::EditRole));
    QCOMPARE(journal.take(), (QStringList{QStringLiteral("bytes 80"), QStringLiteral("data 7,1 to 7,1, 0 roles"),
                                          QStringLiteral("bytes 80"), QStringLiteral("data 0,1 to 0,1, 0 roles")}));
}

void tst_CBitModel::everyBitOfEveryByteCanBeSetAndCleared()
{
    for (const char fill : {'\x00', '\xFF'}) {
        const bool isSet = fill != 0;
        const QByteArray before(7, fill);
        m_pModel->setByteArray(before);
        for (int nPosition = 0; nPosition < 56; ++nPosition) {
            const int nByte = nPosition / 8;
            const QModelIndex index = m_pModel->index(nByte / 4 * 8 + nPosition % 8, nByte % 4 * 3 + 1);
            QByteArray expected = before;
            expected[6 - nByte] = static_cast<char>(expected.at(6 - nByte) ^ (1 << (nPosition % 8)));
            QVERIFY(m_pModel->setData(index, !isSet, Qt::EditRole));
            QCOMPARE(m_pModel->byteArray(), expected);
            QVERIFY(m_pModel->setData(index, isSet, Qt::EditRole));
            QCOMPARE(m_pModel->byteArray(), before);
        }
    }
}

void tst_CBitModel::onlyAValueUnderTheEditRoleIsWritten_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("role");
    QTest::newRow("a position") << 0 << int(Qt::EditRole);
    QTest::newRow("a description") << 2 << int(Qt::EditRole);
    QTest::newRow("a position of the right group") << 3 << int(Qt::EditRole);
    QTest::newRow("a value's text") << 1 << int(Qt::DisplayRole);
    QTest::newRow("a value's check state") << 1 << int(Qt::CheckStateRole);
    QTest::newRow("a value's kind") << 1 << 256;
}

void tst_CBitModel::onlyAValueUnderTheEditRoleIsWritten()
{
    QFETCH(int, column);
    QFETCH(int, role);
    m_pModel->setByteArray(bytesOf(2));
    Journal journal(*m_pModel);
    QVERIFY(!m_pModel->setData(m_pModel->index(0, column), 2, role));
    QCOMPARE(journal.take(), QStringList());
    QCOMPARE(m_pModel->byteArray(), bytesOf(2));
}

void tst_CBitModel::aSlotThatReadsTheModelSeesTheNewBytes()
{
    m_pModel->setByteArray(bytesOf(2));
    const QByteArray held = m_pModel->byteArray(); // a copy must not change with the model
    QList<QByteArray> seen;
    connect(m_pModel.data(), &CBitModel::sigByteArrayChanged, this,
            [this, &seen](const QByteArray& bytes) { seen << bytes << m_pModel->byteArray(); });
    m_pModel->setData(m_pModel->index(0, 1), true, Qt::EditRole);
    QCOMPARE(seen, (QList<QByteArray>{QByteArray("\x00\x01", 2), QByteArray("\x00\x01", 2)}));
    QCOMPARE(held, bytesOf(2));
}

void tst_CBitModel::theHeadersRepeatByGroups()
{
    const QStringList texts{QStringLiteral("Bit Position"), QStringLiteral("Bit Value"), QStringLiteral("Description")};
    for (const int nSize : {1, 2, 5}) {
        m_pModel->setByteArray(bytesOf(nSize));
        for (int nSection = 0; nSection < m_pModel->columnCount(); ++nSection) {
            QVERIFY(identical(m_pModel->headerData(nSection, Qt::Horizontal, Qt::DisplayRole), texts.at(nSection % 3)));
            QVERIFY(!m_pModel->headerData(nSection, Qt::Horizontal, Qt::ToolTipRole).isValid());
            QVERIFY(!m_pModel->headerData(nSection, Qt::Horizontal, Qt::EditRole).isValid());
        }
    }
}

void tst_CBitModel::theRowsAreNumbered()
{
    m_pModel->setByteArray(bytesOf(9));
    for (int nSection = 0; nSection < 24; ++nSection)
        QVERIFY(identical(m_pModel->headerData(nSection, Qt::Vertical, Qt::DisplayRole), nSection + 1));
}

void tst_CBitModel::theHeadersAreTranslatedWhenTheModelIsMade()
{
    TestSupport::GlobalState global;
    QVERIFY(global.install(QStringLiteral(":/qm/Tessera_zh_CN.qm")));
    CBitModel model;
    QCOMPARE(m_pModel->headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(), QStringLiteral("Bit Value"));
    global.removeCatalogues();
    const QStringList texts{QStringLiteral("位序号"), QStringLiteral("位值"), QStringLiteral("描述")};
    for (int nSection = 0; nSection < 3; ++nSection)
        QCOMPARE(model.headerData(nSection, Qt::Horizontal, Qt::DisplayRole).toString(), texts.at(nSection));
}

TESSERA_TEST_MAIN(tst_CBitModel)
#include "tst_CBitModel.moc"
