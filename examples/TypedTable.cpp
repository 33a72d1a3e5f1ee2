// c++ -std=c++17 -fPIC TypedTable.cpp -o TypedTable $(pkg-config --cflags --libs Tessera)
// SPDX-License-Identifier: MIT
// A typed table: each cell says of which kind it is, and gets its editor, its look and its clicks from that.
#include <Tessera/views/ItemRoles.h>
#include <Tessera/views/TbModel.h>
#include <Tessera/views/TbView.h>

#include <QApplication>
#include <QTimer>
#include <QVector>

class Parameters : public nsUI::TbModel
{
public:
    int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : int(m_values.size()); }
    int columnCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : 1; }

    QVariant data(const QModelIndex& index, int role) const override
    {
        if (role == nsUI::e_Role_ItemType) {
            return int(m_kinds.at(index.row()));
        }
        return role == Qt::EditRole ? m_values.at(index.row()) : TbModel::data(index, role);
    }

    bool setData(const QModelIndex& index, const QVariant& value, int role) override
    {
        if (role != Qt::EditRole) {
            return TbModel::setData(index, value, role);
        }
        m_values[index.row()] = value;
        Q_EMIT dataChanged(index, index);
        return true;
    }

private:
    QVector<nsUI::e_ItemType> m_kinds{nsUI::e_Item_CheckBox, nsUI::e_Item_ISpinBox, nsUI::e_Item_Color};
    QVector<QVariant> m_values{true, 42, QColor(Qt::darkCyan)};
};

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    Parameters model;
    nsUI::TbView view;
    view.setModel(&model);
    view.show();
    if (app.arguments().contains(QStringLiteral("--once"))) {
        const bool isChanged = model.setData(model.index(0, 0), Qt::Unchecked, Qt::CheckStateRole);
        const bool isOff = !model.index(0, 0).data(Qt::EditRole).toBool();
        QTimer::singleShot(0, &app, [isChanged, isOff] { QCoreApplication::exit(isChanged && isOff ? 0 : 1); });
    }
    return QApplication::exec();
}
