// SPDX-License-Identifier: MIT
#include "ItemKeyContract.h"
#include "support/TestMain.h"

#include <Tessera/views/TrView.h>

#include <QTreeView>

class tst_TrView : public ItemKeyContract
{
    Q_OBJECT

protected:
    QAbstractItemView* createView(QWidget* pParent) const override { return new nsUI::TrView(pParent); }
    QAbstractItemView* createQtView() const override { return new QTreeView; }
    CellModels::CellHost* createHost() const override
    {
        auto* const pTree = new CellModels::CellTree(4, 2);
        pTree->branchCell(0).answers[Qt::UserRole] = 2; // becomes current with the focus
        return pTree;
    }
    void prepare(QAbstractItemView& view) const override { static_cast<QTreeView&>(view).expandAll(); }

private Q_SLOTS:
    void aBranchIsClickedAsAnyOtherCell();
};

void tst_TrView::aBranchIsClickedAsAnyOtherCell()
{
    auto& tree = static_cast<CellModels::CellTree&>(*m_pHost);
    QCOMPARE(m_pView->metaObject()->className(), "nsUI::TrView");
    tree.branchCell(1, 1).answers = {{Qt::UserRole, 2}, {Qt::EditRole, true}};
    show();
    QTest::mouseClick(m_pView->viewport(), Qt::LeftButton, Qt::NoModifier,
                      m_pView->visualRect(tree.branch(1, 1)).center());
    QCOMPARE(m_pHost->takeWrites(), QStringList{written(1, 1, false)});
    QCOMPARE(tree.branch(1, 1).data().toString(), QStringLiteral("False"));
}

TESSERA_TEST_MAIN(tst_TrView)
#include "tst_TrView.moc"
