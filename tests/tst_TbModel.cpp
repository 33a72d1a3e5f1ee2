// SPDX-License-Identifier: MIT
#include "ItemModelContract.h"
#include "support/TestMain.h"

#include <Tessera/views/TbModel.h>

class tst_TbModel : public ItemModelContract
{
    Q_OBJECT

protected:
    CellModels::CellHost* create() const override { return new CellModels::CellTable(3, 2); }

private Q_SLOTS:
    void itIsAPlainTableModelWithoutSignalsOrSlots();
    void itPassesItsParentOn();
};

void tst_TbModel::itIsAPlainTableModelWithoutSignalsOrSlots()
{
    const QMetaObject& meta = nsUI::TbModel::staticMetaObject;
    QCOMPARE(meta.className(), "nsUI::TbModel");
    QCOMPARE(meta.superClass(), &QAbstractTableModel::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.enumeratorCount(), meta.enumeratorOffset());
}

void tst_TbModel::itPassesItsParentOn()
{
    QObject parent;
    const CellModels::CellTable model(1, 1, &parent);
    QCOMPARE(model.QObject::parent(), &parent);
    QCOMPARE(CellModels::CellTable(1, 1).QObject::parent(), nullptr);
}

TESSERA_TEST_MAIN(tst_TbModel)
#include "tst_TbModel.moc"
