// SPDX-License-Identifier: MIT
#include "device/DeviceState.h"
#include "support/TestMain.h"
#include "SvdTestSupport.h"

#include <QSignalSpy>
#include <QTest>

using namespace registers;
using namespace svdtest;

class tst_DeviceState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void everyRegisterStartsAtItsResetValue();
    void aValueIsMaskedToTheSize();
    void onlyARealChangeIsTold();
    void aFieldChangesItsBitsOnly();
    void aFieldBeyondTheRegisterChangesNothingOutside();
    void modificationsAreCounted();
    void aResetBringsTheResetValueBack();
    void oneFieldCanBeReset();
    void allRegistersCanBeReset();
    void allBitsOf64AreKept();

private:
    DevicePtr m_device;
};

void tst_DeviceState::init()
{
    const SvdResult result =
        read(deviceOf(reg("A", "<size>8</size><resetValue>0x5A</resetValue><resetMask>0x0F</resetMask>",
                          field("L", "<bitRange>[3:0]</bitRange>") + field("H", "<bitRange>[7:4]</bitRange>") +
                              field("X", "<bitRange>[9:6]</bitRange>")) +
                      reg("B", "<size>64</size>", field("ALL", "<bitRange>[63:0]</bitRange>"))));
    VERIFY_READ(result);
    m_device = result.device;
}

void tst_DeviceState::everyRegisterStartsAtItsResetValue()
{
    const DeviceState state(m_device);
    QCOMPARE(state.value(0), quint64(0x5A)); // the reset mask takes nothing away
    QCOMPARE(state.value(1), quint64(0));
    QCOMPARE(state.fieldValue(0, 1), quint64(5));
    QCOMPARE(state.modifiedCount(), 0);
}

void tst_DeviceState::aValueIsMaskedToTheSize()
{
    DeviceState state(m_device);
    QVERIFY(state.setValue(0, 0x1234));
    QCOMPARE(state.value(0), quint64(0x34));
}

void tst_DeviceState::onlyARealChangeIsTold()
{
    DeviceState state(m_device);
    QSignalSpy changed(&state, &DeviceState::registerChanged);
    QVERIFY(state.setValue(0, 0x11));
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.at(0).at(0).toInt(), 0);
    QVERIFY(!state.setValue(0, 0x11));
    QVERIFY(!state.setValue(0, 0xF11));
    QVERIFY(!state.setField(0, 0, 1));
    QCOMPARE(changed.size(), 1);
    QVERIFY(state.setValue(1, 1));
    QCOMPARE(changed.at(1).at(0).toInt(), 1);
}

void tst_DeviceState::aFieldChangesItsBitsOnly()
{
    DeviceState state(m_device);
    QVERIFY(state.setField(0, 0, 0x1F3));
    QCOMPARE(state.value(0), quint64(0x53));
    QVERIFY(state.setField(0, 1, 0));
    QCOMPARE(state.value(0), quint64(0x03));
}

void tst_DeviceState::aFieldBeyondTheRegisterChangesNothingOutside()
{
    DeviceState state(m_device);
    QVERIFY(state.setField(0, 2, 0xF));
    QCOMPARE(state.value(0), quint64(0xDA));
    QCOMPARE(state.fieldValue(0, 2), quint64(3));
}

void tst_DeviceState::modificationsAreCounted()
{
    DeviceState state(m_device);
    state.setValue(0, 0x5B);
    state.setValue(1, 7);
    QCOMPARE(state.modifiedCount(), 2);
    QVERIFY(state.isModified(0));
    QVERIFY(state.isFieldModified(0, 0));
    QVERIFY(!state.isFieldModified(0, 1));
    state.setValue(1, 8);
    QCOMPARE(state.modifiedCount(), 2);
    state.setValue(0, 0x5A);
    QCOMPARE(state.modifiedCount(), 1);
    QVERIFY(!state.isModified(0));
}

void tst_DeviceState::aResetBringsTheResetValueBack()
{
    DeviceState state(m_device);
    QVERIFY(!state.reset(0));
    state.setValue(0, 1);
    QSignalSpy changed(&state, &DeviceState::registerChanged);
    QVERIFY(state.reset(0));
    QCOMPARE(state.value(0), quint64(0x5A));
    QCOMPARE(changed.size(), 1);
    QCOMPARE(state.modifiedCount(), 0);
}

void tst_DeviceState::oneFieldCanBeReset()
{
    DeviceState state(m_device);
    state.setValue(0, 0);
    QVERIFY(state.resetField(0, 1));
    QCOMPARE(state.value(0), quint64(0x50));
    QVERIFY(!state.resetField(0, 1));
}

void tst_DeviceState::allRegistersCanBeReset()
{
    DeviceState state(m_device);
    QSignalSpy all(&state, &DeviceState::allChanged);
    QSignalSpy changed(&state, &DeviceState::registerChanged);
    state.resetAll();
    QCOMPARE(all.size(), 0); // there was nothing to do
    state.setValue(0, 1);
    state.setValue(1, 1);
    changed.clear();
    state.resetAll();
    QCOMPARE(all.size(), 1);
    QCOMPARE(changed.size(), 0);
    QCOMPARE(state.value(0), quint64(0x5A));
    QCOMPARE(state.value(1), quint64(0));
    QCOMPARE(state.modifiedCount(), 0);
}

void tst_DeviceState::allBitsOf64AreKept()
{
    DeviceState state(m_device);
    QVERIFY(state.setField(1, 0, ~quint64(0)));
    QCOMPARE(state.value(1), ~quint64(0));
    QVERIFY(state.setValue(1, 0x8000000000000001));
    QCOMPARE(state.fieldValue(1, 0), quint64(0x8000000000000001));
}

TESSERA_TEST_GUILESS_MAIN(tst_DeviceState)
#include "tst_devicestate.moc"
