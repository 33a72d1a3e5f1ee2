// SPDX-License-Identifier: MIT
#include "GuiTestSupport.h"
#include "support/TestMain.h"

#include "session/DeviceEdits.h"

#include <QSignalSpy>

#include <memory>

using namespace GuiTestSupport;

Q_DECLARE_METATYPE(registers::PathTarget)

class tst_DeviceEdits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void anEditIsUndoneAndRedone();
    void aFieldIsEditedWithoutItsNeighbours();
    void whatChangesNothingLeavesNoTrace();
    void bitsBeyondTheSizeAreDropped();
    void editsOfOneGestureAreOne();
    void anotherTargetBeginsAnotherEdit();
    void anEndedGestureBeginsAnotherEdit();
    void anUndoneEditTakesInNoOther();
    void typingBackToTheOldValueLeavesNoTrace();
    void aResetIsAnEditOfItsOwn();
    void allRegistersAreResetAtOnce();
    void manyValuesAreOneEdit();
    void everyStepTellsWhatItChanged();
    void editsNameTheirTarget();

private:
    int count() { return m_edits->history().count(); }

    std::unique_ptr<DeviceState> m_state;
    std::unique_ptr<DeviceEdits> m_edits;
};

void tst_DeviceEdits::initTestCase()
{
    qRegisterMetaType<PathTarget>("PathTarget");
}

void tst_DeviceEdits::init()
{
    Register first = makeRegister(QStringLiteral("FIRST"), 8,
                                  {makeField(QStringLiteral("LOW"), 0, 4), makeField(QStringLiteral("HIGH"), 4, 4)});
    first.resetValue = 0x5A;
    m_edits.reset();
    m_state = std::make_unique<DeviceState>(makeDevice({first, makeRegister(QStringLiteral("SECOND"), 32)}));
    m_edits = std::make_unique<DeviceEdits>(*m_state);
}

void tst_DeviceEdits::anEditIsUndoneAndRedone()
{
    m_edits->setRegister(1, 7);
    QCOMPARE(m_state->value(1), quint64(7));
    m_edits->history().undo();
    QCOMPARE(m_state->value(1), quint64(0));
    m_edits->history().redo();
    QCOMPARE(m_state->value(1), quint64(7));
}

void tst_DeviceEdits::aFieldIsEditedWithoutItsNeighbours()
{
    m_edits->setField(0, 1, 0xF);
    QCOMPARE(m_state->value(0), quint64(0xFA));
    m_edits->history().undo();
    QCOMPARE(m_state->value(0), quint64(0x5A));
}

void tst_DeviceEdits::whatChangesNothingLeavesNoTrace()
{
    m_edits->setRegister(0, 0x5A);
    m_edits->setField(0, 0, 0xA);
    m_edits->reset(0);
    m_edits->resetAll();
    m_edits->setAll({{0, 0x5A}, {1, 0}}, QStringLiteral("a file"));
    QCOMPARE(count(), 0);
}

void tst_DeviceEdits::bitsBeyondTheSizeAreDropped()
{
    m_edits->setRegister(0, 0xF5A);
    QCOMPARE(count(), 0);
    m_edits->setField(0, 0, 0x13);
    QCOMPARE(m_state->value(0), quint64(0x53));
}

void tst_DeviceEdits::editsOfOneGestureAreOne()
{
    for (const quint64 typed : {1U, 12U, 123U}) {
        m_edits->setRegister(1, typed);
    }
    QCOMPARE(count(), 1);
    m_edits->history().undo();
    QCOMPARE(m_state->value(1), quint64(0));
    m_edits->history().redo();
    QCOMPARE(m_state->value(1), quint64(123));
}

void tst_DeviceEdits::anotherTargetBeginsAnotherEdit()
{
    m_edits->setField(0, 0, 1);
    m_edits->setField(0, 1, 1);
    m_edits->setRegister(0, 2);
    m_edits->setRegister(1, 2);
    QCOMPARE(count(), 4);
    m_edits->history().setIndex(1);
    QCOMPARE(m_state->value(0), quint64(0x51));
    QCOMPARE(m_state->value(1), quint64(0));
}

void tst_DeviceEdits::anEndedGestureBeginsAnotherEdit()
{
    m_edits->setRegister(1, 1);
    m_edits->endGesture();
    m_edits->setRegister(1, 2);
    QCOMPARE(count(), 2);
    m_edits->history().undo();
    QCOMPARE(m_state->value(1), quint64(1));
}

void tst_DeviceEdits::anUndoneEditTakesInNoOther()
{
    m_edits->setRegister(1, 1);
    m_edits->setRegister(0, 1);
    m_edits->history().undo();
    m_edits->setRegister(1, 2);
    QCOMPARE(count(), 2);
    m_edits->history().undo();
    QCOMPARE(m_state->value(1), quint64(1));
}

void tst_DeviceEdits::typingBackToTheOldValueLeavesNoTrace()
{
    m_edits->setRegister(1, 5);
    m_edits->setRegister(1, 0);
    QCOMPARE(count(), 0);
    QVERIFY(!m_edits->history().canUndo());
    QCOMPARE(m_state->value(1), quint64(0));
}

void tst_DeviceEdits::aResetIsAnEditOfItsOwn()
{
    m_edits->setRegister(0, 1);
    m_edits->reset(0);
    m_edits->setRegister(0, 2);
    QCOMPARE(count(), 3);
    m_edits->history().undo();
    QCOMPARE(m_state->value(0), quint64(0x5A));
    m_edits->history().undo();
    QCOMPARE(m_state->value(0), quint64(1));
}

void tst_DeviceEdits::allRegistersAreResetAtOnce()
{
    m_edits->setRegister(0, 1);
    m_edits->setRegister(1, 2);
    m_edits->resetAll();
    QCOMPARE(m_state->modifiedCount(), 0);
    m_edits->history().undo();
    QCOMPARE(m_state->value(0), quint64(1));
    QCOMPARE(m_state->value(1), quint64(2));
}

void tst_DeviceEdits::manyValuesAreOneEdit()
{
    QSignalSpy all(m_state.get(), &DeviceState::allChanged);
    m_edits->setAll({{0, 3}, {1, 4}}, QStringLiteral("a.json"));
    QCOMPARE(count(), 1);
    QCOMPARE(all.size(), 1);
    QVERIFY(m_edits->history().undoText().contains(QStringLiteral("a.json")));
    m_edits->history().undo();
    QCOMPARE(m_state->value(0), quint64(0x5A));
    QCOMPARE(m_state->value(1), quint64(0));
}

void tst_DeviceEdits::everyStepTellsWhatItChanged()
{
    QVector<PathTarget> told;
    connect(m_edits.get(), &DeviceEdits::stepped, this, [&](const PathTarget& target) { told.append(target); });
    m_edits->setField(0, 1, 1);
    m_edits->resetAll();
    QCOMPARE(told.size(), 0); // the edit itself is no step
    m_edits->history().undo();
    QVERIFY(!told.constLast().isValid());
    m_edits->history().undo();
    m_edits->history().redo();
    QCOMPARE(told.size(), 3);
    QCOMPARE(told.constLast().registerIndex, 0);
    QCOMPARE(told.constLast().fieldIndex, 1);
}

void tst_DeviceEdits::editsNameTheirTarget()
{
    m_edits->setField(0, 1, 1);
    QVERIFY(m_edits->history().undoText().contains(QStringLiteral("BLOCK.FIRST.HIGH")));
    m_edits->setRegister(1, 1);
    QVERIFY(m_edits->history().undoText().endsWith(QStringLiteral("BLOCK.SECOND")));
}

TESSERA_TEST_GUILESS_MAIN(tst_DeviceEdits)
#include "tst_deviceedits.moc"
