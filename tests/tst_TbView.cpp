// SPDX-License-Identifier: MIT
#include "ItemKeyContract.h"
#include "support/TestMain.h"

#include <Tessera/views/TbView.h>

#include <QHeaderView>

class tst_TbView : public ItemKeyContract
{
    Q_OBJECT

protected:
    QAbstractItemView* createView(QWidget* pParent) const override { return new nsUI::TbView(pParent); }
    QAbstractItemView* createQtView() const override { return new QTableView; }
    CellModels::CellHost* createHost() const override { return new CellModels::CellTable(4, 2); }
    void prepare(QAbstractItemView&) const override {}

private Q_SLOTS:
    void itsHeadersAreThoseOfQtsTable();
};

void tst_TbView::itsHeadersAreThoseOfQtsTable()
{
    const nsUI::TbView view;
    const QTableView qtView;
    QCOMPARE(view.metaObject()->className(), "nsUI::TbView");
    QCOMPARE(view.horizontalHeader()->isHidden(), qtView.horizontalHeader()->isHidden());
    QCOMPARE(view.verticalHeader()->isHidden(), qtView.verticalHeader()->isHidden());
    QCOMPARE(view.horizontalHeader()->stretchLastSection(), qtView.horizontalHeader()->stretchLastSection());
}

TESSERA_TEST_MAIN(tst_TbView)
#include "tst_TbView.moc"
