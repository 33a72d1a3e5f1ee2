// SPDX-License-Identifier: MIT
#include "CellKinds_p.h"

#include "DoubleCell_p.h"

#include <Tessera/Tessera.h>
#include <Tessera/views/ItemRoles.h>
#include <Tessera/widgets/CDataComboBox.h>

#include <QAbstractItemModel>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QRegularExpression>
#include <QRegularExpressionValidator>
#include <QSvgRenderer>

#include <algorithm>

namespace nsUI {
namespace {

void placeInCell(QWidget* pEditor, const QRect& rect)
{
    pEditor->setGeometry(rect);
}

// Combo boxes

QWidget* makeComboBox(QWidget* pParent, const QModelIndex& index)
{
    auto* const pComboBox = new QComboBox(pParent);
    pComboBox->addItems(index.data(e_Role_Texts).toStringList());
    TesseraGlobal::instance().autoSetToolTips(pComboBox, QString());
    return pComboBox;
}

//! Null when texts and data do not go together.
QWidget* makeDataComboBox(QWidget* pParent, const QModelIndex& index)
{
    auto* const pComboBox = new CDataComboBox(pParent);
    const QStringList texts = index.data(e_Role_DataTexts).toStringList();
    const QVariantList data = index.data(e_Role_Data).toList();
    if (texts.size() != data.size()) {
        pComboBox->deleteLater();
        return nullptr;
    }
    for (int i = 0; i < texts.size(); ++i)
        pComboBox->addItem(texts.at(i), data.at(i));
    TesseraGlobal::instance().autoSetToolTips(pComboBox, QString());
    return pComboBox;
}

//! A view places the editor, and so opens the list, before it loads the value: what the list stands on follows.
void moveOpenList(const QComboBox* pComboBox)
{
    const QWidget* const pPopup = QApplication::activePopupWidget();
    if (pPopup != nullptr && pPopup->parentWidget() == pComboBox && pComboBox->currentIndex() >= 0)
        pComboBox->view()->setCurrentIndex(pComboBox->model()->index(pComboBox->currentIndex(), 0));
}

bool fillComboBox(QWidget* pEditor, const QModelIndex& index)
{
    auto* const pComboBox = qobject_cast<QComboBox*>(pEditor);
    if (pComboBox == nullptr)
        return false;
    pComboBox->setCurrentIndex(index.data(Qt::EditRole).toInt());
    moveOpenList(pComboBox);
    return true;
}

bool fillDataComboBox(QWidget* pEditor, const QModelIndex& index)
{
    auto* const pComboBox = qobject_cast<CDataComboBox*>(pEditor);
    if (pComboBox == nullptr)
        return false;
    pComboBox->setCurrentData(index.data(Qt::EditRole), Qt::UserRole);
    moveOpenList(pComboBox);
    return true;
}

std::optional<QVariant> takeRow(const QWidget* pEditor, const QModelIndex&)
{
    const auto* const pComboBox = qobject_cast<const QComboBox*>(pEditor);
    return pComboBox != nullptr ? std::optional(QVariant(pComboBox->currentIndex())) : std::nullopt;
}

//! The data may be an invalid variant, and is written all the same.
std::optional<QVariant> takeData(const QWidget* pEditor, const QModelIndex&)
{
    const auto* const pComboBox = qobject_cast<const CDataComboBox*>(pEditor);
    return pComboBox != nullptr ? std::optional(pComboBox->currentData(Qt::UserRole)) : std::nullopt;
}

//! One click or key is enough to choose.
void placeAndOpen(QWidget* pEditor, const QRect& rect)
{
    placeInCell(pEditor, rect);
    if (auto* const pComboBox = qobject_cast<QComboBox*>(pEditor))
        pComboBox->showPopup();
}

// Integers of exact width

e_ISpx_Type spinBoxType(const QModelIndex& index)
{
    return static_cast<e_ISpx_Type>(index.data(e_Role_ISpxType).toInt());
}

QWidget* makeIntegerBox(QWidget* pParent, const QModelIndex& index)
{
    QHash<int, QVariant> settings;
    for (const int nRole : {e_Role_ISpxType, e_Role_ISpxMinimum, e_Role_ISpxMaximum, e_Role_ISpxPrefix,
                            e_Role_ISpxSuffix, e_Role_ISpxBase}) {
        settings.insert(nRole, index.data(nRole));
    }
    return TesseraGlobal::ISP_create(pParent, settings);
}

bool fillIntegerBox(QWidget* pEditor, const QModelIndex& index)
{
    return TesseraGlobal::ISP_setData(pEditor, spinBoxType(index), index.data(Qt::EditRole), true);
}

std::optional<QVariant> takeInteger(const QWidget* pEditor, const QModelIndex& index)
{
    const QVariant tValue = TesseraGlobal::ISP_getData(const_cast<QWidget*>(pEditor), spinBoxType(index));
    return tValue.isValid() ? std::optional(tValue) : std::nullopt;
}

//! The cell may have become one of another integer type.
bool fitsInteger(const QWidget* pEditor, const QModelIndex& index)
{
    return takeInteger(pEditor, index).has_value();
}

// Texts with a pattern

QWidget* makeLineEdit(QWidget* pParent, const QModelIndex& index)
{
    auto* const pEdit = new QLineEdit(pParent);
    if (const QVariant tData = index.data(e_Role_Pattern); tData.isValid())
        pEdit->setValidator(new QRegularExpressionValidator(QRegularExpression(tData.toString()), pEdit));
    TesseraGlobal::instance().autoSetToolTips(pEdit, QString());
    return pEdit;
}

bool fillLineEdit(QWidget* pEditor, const QModelIndex& index)
{
    auto* const pEdit = qobject_cast<QLineEdit*>(pEditor);
    if (pEdit == nullptr)
        return false;
    pEdit->setText(index.data(Qt::EditRole).toString());
    pEdit->selectAll();
    return true;
}

std::optional<QVariant> takeText(const QWidget* pEditor, const QModelIndex&)
{
    const auto* const pEdit = qobject_cast<const QLineEdit*>(pEditor);
    return pEdit != nullptr ? std::optional(QVariant(pEdit->text())) : std::nullopt;
}

// Booleans as pictures

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

// The kinds, by e_ItemType

// clang-format off
constexpr CellKind c_kinds[] = {
    // make             fill             take        fits        place        paint
    {nullptr,          nullptr,          nullptr,     nullptr,     nullptr,      nullptr},      // e_Item_Plain
    {nullptr,          nullptr,          nullptr,     nullptr,     nullptr,      nullptr},      // e_Item_CheckBox
    {nullptr,          nullptr,          nullptr,     nullptr,     nullptr,      nullptr},      // e_Item_BoolText
    {nullptr,          nullptr,          nullptr,     nullptr,     nullptr,      paintPicture}, // e_Item_BoolPicture
    {makeComboBox,     fillComboBox,     takeRow,     nullptr,     placeAndOpen, nullptr},      // e_Item_ComboBox
    {makeDataComboBox, fillDataComboBox, takeData,    nullptr,     placeAndOpen, nullptr},      // e_Item_DataComboBox
    {makeIntegerBox,   fillIntegerBox,   takeInteger, fitsInteger, placeInCell,  nullptr},      // e_Item_ISpinBox
    {makeDoubleBox,    fillDoubleBox,    takeDouble,  nullptr,     placeInCell,  nullptr},      // e_Item_DSpinBox
    {makeLineEdit,     fillLineEdit,     takeText,    nullptr,     placeInCell,  nullptr},      // e_Item_LineEdit
    {nullptr,          nullptr,          nullptr,     nullptr,     nullptr,      nullptr},      // e_Item_Color
    {nullptr,          nullptr,          nullptr,     nullptr,     nullptr,      nullptr},      // e_Item_Font
    {nullptr,          nullptr,          nullptr,     nullptr,     nullptr,      nullptr},      // e_Item_Pen
    {nullptr,          nullptr,          nullptr,     nullptr,     nullptr,      nullptr},      // e_Item_ByteArray
};
// clang-format on
static_assert(sizeof(c_kinds) / sizeof(CellKind) == e_Item_ByteArray + 1);

} // namespace

const CellKind& CellKind::of(const QModelIndex& index)
{
    const int nKind = index.data(e_Role_ItemType).toInt();
    return c_kinds[nKind >= e_Item_Plain && nKind <= e_Item_ByteArray ? nKind : e_Item_Plain];
}

} // namespace nsUI
