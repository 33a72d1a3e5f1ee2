// SPDX-License-Identifier: MIT
#include "ItemModelContract.h"
#include "support/TestMain.h"

#include <Tessera/views/TrModel.h>

class tst_TrModel : public ItemModelContract
{
    Q_OBJECT

protected:
    CellModels::CellHost* create() const override { return new CellModels::CellTree(3, 2); }

private Q_SLOTS:
    void itIsAPlainItemModelWithoutSignalsOrSlots();
    void itPassesItsParentOn();
    void aBranchIsACellAsAnyOther();
};

void tst_TrModel::itIsAPlainItemModelWithoutSignalsOrSlots()
{
    const QMetaObject& meta = nsUI::TrModel::staticMetaObject;
    QCOMPARE(meta.className(), "nsUI::TrModel");
    QCOMPARE(meta.superClass(), &QAbstractItemModel::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.enumeratorCount(), meta.enumeratorOffset());
}

void tst_TrModel::itPassesItsParentOn()
{
    QObject parent;
    const CellModels::CellTree model(1, 1, &parent);
    QCOMPARE(model.QObject::parent(), &parent);
    QCOMPARE(CellModels::CellTree(1, 1).QObject::parent(), nullptr);
}

void tst_TrModel::aBranchIsACellAsAnyOther()
{
    auto& tree = static_cast<CellModels::CellTree&>(*m_pHost);
    tree.branchCell(0, 1).answers = {{Qt::UserRole, 2}, {Qt::EditRole, true}};
    QCOMPARE(tree.branch(0, 1).data().toString(), QStringLiteral("True"));
    QCOMPARE(int(tree.flags(tree.branch(0, 1))), 33);
    QCOMPARE(int(tree.flags(tree.branch(1, 1))), 35);
}

TESSERA_TEST_MAIN(tst_TrModel)
#include "tst_TrModel.moc"
