// SPDX-License-Identifier: MIT
#include "StyledItemDelegate.h"

#include <Tessera/Tessera.h>
#include <Tessera/views/ItemRoles.h>
#include <Tessera/widgets/CDataComboBox.h>
#include <Tessera/widgets/CDSpinBox.h>

#include <QAbstractItemModel>
#include <QAbstractItemView>
#include <QApplication>
#include <QLineEdit>
#include <QPainter>
#include <QPersistentModelIndex>
#include <QRegularExpression>
#include <QRegularExpressionValidator>
#include <QSvgRenderer>

#include <algorithm>

namespace nsUI {
namespace {

int kindOf(const QModelIndex& index)
{
    return index.data(e_Role_ItemType).toInt();
}

e_ISpx_Type spinBoxType(const QModelIndex& index)
{
    return static_cast<e_ISpx_Type>(index.data(e_Role_ISpxType).toInt());
}

//! The editor's tool tip is its own text.
template <class Editor>
Editor* withToolTip(Editor* pEditor)
{
    TesseraGlobal::instance().autoSetToolTips(pEditor, QString());
    return pEditor;
}

QWidget* createComboBox(QWidget* parent, const QModelIndex& index)
{
    auto* const pComboBox = new QComboBox(parent);
    pComboBox->addItems(index.data(e_Role_Texts).toStringList());
    return withToolTip(pComboBox);
}

//! Null when texts and data do not go together.
QWidget* createDataComboBox(QWidget* parent, const QModelIndex& index)
{
    auto* const pComboBox = new CDataComboBox(parent);
    const QStringList texts = index.data(e_Role_DataTexts).toStringList();
    const QVariantList data = index.data(e_Role_Data).toList();
    if (texts.size() != data.size()) {
        pComboBox->deleteLater();
        return nullptr;
    }
    for (int i = 0; i < texts.size(); ++i)
        pComboBox->addItem(texts.at(i), data.at(i));
    return withToolTip(pComboBox);
}

QWidget* createIntegerBox(QWidget* parent, const QModelIndex& index)
{
    QHash<int, QVariant> settings;
    for (const int nRole : {e_Role_ISpxType, e_Role_ISpxMinimum, e_Role_ISpxMaximum, e_Role_ISpxPrefix,
                            e_Role_ISpxSuffix, e_Role_ISpxBase}) {
        settings.insert(nRole, index.data(nRole));
    }
    return TesseraGlobal::ISP_create(parent, settings);
}

//! A view places the editor, and so opens the list, before it loads the value: what the list stands on follows.
void moveOpenList(const QComboBox* pComboBox)
{
    const QWidget* const pPopup = QApplication::activePopupWidget();
    if (pPopup != nullptr && pPopup->parentWidget() == pComboBox && pComboBox->currentIndex() >= 0)
        pComboBox->view()->setCurrentIndex(pComboBox->model()->index(pComboBox->currentIndex(), 0));
}

bool isWithin(const QModelIndex& index, const QModelIndex& topLeft, const QModelIndex& bottomRight)
{
    const QModelIndex parent = index.parent();
    return parent == topLeft.parent() && parent == bottomRight.parent() && topLeft.row() <= index.row() &&
           index.row() <= bottomRight.row() && topLeft.column() <= index.column() &&
           index.column() <= bottomRight.column();
}

// The cell may move or go away while its editor is open: what is captured follows it, and is invalid after it.
void writeAtOnce(CDSpinBox* pBox, QAbstractItemModel* pModel, const QPersistentModelIndex& cell)
{
    QObject::connect(pBox, qOverload<double>(&QDoubleSpinBox::valueChanged), pModel, [pModel, cell](double val) {
        if (cell.isValid())
            pModel->setData(cell, QVariant(val), Qt::EditRole);
    });
}

void followStep(CDSpinBox* pBox, const QAbstractItemModel* pModel, const QPersistentModelIndex& cell)
{
    QObject::connect(pModel, &QAbstractItemModel::dataChanged, pBox,
                     [pBox, cell](const QModelIndex& topLeft, const QModelIndex& bottomRight) {
                         if (cell.isValid() && isWithin(cell, topLeft, bottomRight))
                             pBox->setSingleStep(cell.data(e_Role_DSpxStep).toDouble());
                     });
}

void applyOptions(CDSpinBox* pBox, quint64 nOptions, const QModelIndex& index)
{
    if (index.model() == nullptr)
        return;
    if ((nOptions & e_DSpx_WriteAtOnce) != 0)
        writeAtOnce(pBox, const_cast<QAbstractItemModel*>(index.model()), index);
    if ((nOptions & e_DSpx_FollowStep) != 0)
        followStep(pBox, index.model(), index);
}

QWidget* createDoubleBox(QWidget* parent, const QModelIndex& index)
{
    auto* const pBox = new CDSpinBox(parent);
    if (const QVariant tData = index.data(e_Role_DSpxMinimum); tData.isValid())
        pBox->setMinimum(tData.toDouble());
    if (const QVariant tData = index.data(e_Role_DSpxMaximum); tData.isValid())
        pBox->setMaximum(tData.toDouble());
    if (const QVariant tData = index.data(e_Role_DSpxDecimals); tData.isValid())
        pBox->setDecimals(tData.toInt());
    if (const QVariant tData = index.data(e_Role_DSpxFormat); tData.isValid())
        pBox->setFmtChar(tData.toChar());
    if (const QVariant tData = index.data(e_Role_DSpxStep); tData.isValid())
        pBox->setSingleStep(tData.toDouble());
    if (const QVariant tData = index.data(e_Role_DSpxOptions); tData.isValid())
        applyOptions(pBox, tData.toULongLong(), index);
    return withToolTip(pBox);
}

QWidget* createLineEdit(QWidget* parent, const QModelIndex& index)
{
    auto* const pEdit = new QLineEdit(parent);
    if (const QVariant tData = index.data(e_Role_Pattern); tData.isValid())
        pEdit->setValidator(new QRegularExpressionValidator(QRegularExpression(tData.toString()), pEdit));
    return withToolTip(pEdit);
}

//! The largest rectangle of the picture's proportions, in the middle of \a rect; margins are whole pixels.
QRectF fitted(const QSizeF& tPicture, const QRect& rect)
{
    const double scale = std::min(rect.height() / tPicture.height(), rect.width() / tPicture.width());
    const int nX = static_cast<int>((rect.width() - tPicture.width() * scale) / 2);
    const int nY = static_cast<int>((rect.height() - tPicture.height() * scale) / 2);
    return rect.adjusted(nX, nY, -nX, -nY);
}

void paintPicture(QPainter* painter, const QRect& rect, const QModelIndex& index)
{
    const int nPicture = index.data(Qt::EditRole).toBool() ? 0 : 1;
    QStringList paths = index.data(e_Role_Pictures).toStringList();
    if (!index.flags().testFlag(Qt::ItemIsEnabled)) {
        if (const QVariant tData = index.data(e_Role_DisabledPictures); tData.isValid())
            paths = tData.toStringList();
    }
    if (nPicture >= paths.size())
        return;
    QSvgRenderer renderer(paths.at(nPicture));
    if (!rect.isEmpty() && renderer.isValid() && !renderer.viewBoxF().isEmpty())
        renderer.render(painter, fitted(renderer.viewBoxF().size(), rect));
}

} // namespace

StyledItemDelegate::StyledItemDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
{
}

void StyledItemDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    if (kindOf(index) == e_Item_BoolPicture)
        paintPicture(painter, option.rect, index);
    else
        QStyledItemDelegate::paint(painter, option, index);
}

QSize StyledItemDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    return QStyledItemDelegate::sizeHint(option, index);
}

QWidget* StyledItemDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                          const QModelIndex& index) const
{
    QWidget* pEditor = nullptr;
    switch (kindOf(index)) {
    case e_Item_ComboBox:
        return createComboBox(parent, index);
    case e_Item_DataComboBox:
        pEditor = createDataComboBox(parent, index);
        break;
    case e_Item_ISpinBox:
        return createIntegerBox(parent, index);
    case e_Item_DSpinBox:
        return createDoubleBox(parent, index);
    case e_Item_LineEdit:
        return createLineEdit(parent, index);
    default:
        break;
    }
    return pEditor != nullptr ? pEditor : QStyledItemDelegate::createEditor(parent, option, index);
}

// The editor's class is tested besides the cell's kind: a cell can have got the default editor, and it can have changed
// its kind since its editor was opened.
void StyledItemDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    switch (kindOf(index)) {
    case e_Item_ComboBox:
        if (auto* const pComboBox = qobject_cast<QComboBox*>(editor)) {
            pComboBox->setCurrentIndex(index.data(Qt::EditRole).toInt());
            moveOpenList(pComboBox);
            return;
        }
        break;
    case e_Item_DataComboBox:
        if (auto* const pComboBox = qobject_cast<CDataComboBox*>(editor)) {
            pComboBox->setCurrentData(index.data(Qt::EditRole), Qt::UserRole);
            moveOpenList(pComboBox);
            return;
        }
        break;
    case e_Item_ISpinBox:
        if (TesseraGlobal::ISP_setData(editor, spinBoxType(index), index.data(Qt::EditRole), true))
            return;
        break;
    case e_Item_DSpinBox:
        if (auto* const pBox = qobject_cast<CDSpinBox*>(editor)) {
            pBox->setValue(index.data(Qt::EditRole).toDouble());
            pBox->selectAll();
            return;
        }
        break;
    case e_Item_LineEdit:
        if (auto* const pEdit = qobject_cast<QLineEdit*>(editor)) {
            pEdit->setText(index.data(Qt::EditRole).toString());
            pEdit->selectAll();
            return;
        }
        break;
    default:
        break;
    }
    QStyledItemDelegate::setEditorData(editor, index);
}

void StyledItemDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    QVariant tValue;
    switch (kindOf(index)) {
    case e_Item_ComboBox:
        if (auto* const pComboBox = qobject_cast<QComboBox*>(editor))
            tValue = pComboBox->currentIndex();
        break;
    case e_Item_DataComboBox:
        // Data may be an invalid variant and is written all the same.
        if (auto* const pComboBox = qobject_cast<CDataComboBox*>(editor)) {
            model->setData(index, pComboBox->currentData(Qt::UserRole), Qt::EditRole);
            return;
        }
        break;
    case e_Item_ISpinBox:
        tValue = TesseraGlobal::ISP_getData(editor, spinBoxType(index));
        break;
    case e_Item_DSpinBox:
        if (auto* const pBox = qobject_cast<CDSpinBox*>(editor))
            tValue = pBox->value();
        break;
    case e_Item_LineEdit:
        if (auto* const pEdit = qobject_cast<QLineEdit*>(editor))
            tValue = pEdit->text();
        break;
    default:
        break;
    }
    if (tValue.isValid())
        model->setData(index, tValue, Qt::EditRole);
    else
        QStyledItemDelegate::setModelData(editor, model, index);
}

void StyledItemDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                              const QModelIndex& index) const
{
    const int nKind = kindOf(index);
    if (nKind < e_Item_ComboBox || nKind > e_Item_LineEdit) {
        QStyledItemDelegate::updateEditorGeometry(editor, option, index);
        return;
    }
    if (editor == nullptr)
        return;
    editor->setGeometry(option.rect);
    if (nKind == e_Item_ComboBox || nKind == e_Item_DataComboBox) {
        if (auto* const pComboBox = qobject_cast<QComboBox*>(editor))
            pComboBox->showPopup(); // one click or key is enough to choose
    }
}

} // namespace nsUI
