// SPDX-License-Identifier: MIT
#include <Tessera/CISpinBox/CI16SpinBox.h>
#include <Tessera/CISpinBox/CI32SpinBox.h>
#include <Tessera/CISpinBox/CI64SpinBox.h>
#include <Tessera/CISpinBox/CI8SpinBox.h>
#include <Tessera/CISpinBox/CU16SpinBox.h>
#include <Tessera/CISpinBox/CU32SpinBox.h>
#include <Tessera/CISpinBox/CU64SpinBox.h>
#include <Tessera/CISpinBox/CU8SpinBox.h>
#include <Tessera/Tessera.h>

#include <QPointer>

#include <type_traits>

namespace nsUI {
namespace {

enum Role { RoleType = 263, RoleMinimum, RoleMaximum, RolePrefix, RoleSuffix, RoleBase };

//! Calls \a action with a null pointer of the box class that \a nType names; CI32SpinBox is the fallback.
template <class Action>
auto withBoxClass(int nType, Action action)
{
    switch (nType) {
    case e_ISpx_I8:
        return action(static_cast<CI8SpinBox*>(nullptr));
    case e_ISpx_I16:
        return action(static_cast<CI16SpinBox*>(nullptr));
    case e_ISpx_I64:
        return action(static_cast<CI64SpinBox*>(nullptr));
    case e_ISpx_U8:
        return action(static_cast<CU8SpinBox*>(nullptr));
    case e_ISpx_U16:
        return action(static_cast<CU16SpinBox*>(nullptr));
    case e_ISpx_U32:
        return action(static_cast<CU32SpinBox*>(nullptr));
    case e_ISpx_U64:
        return action(static_cast<CU64SpinBox*>(nullptr));
    default:
        return action(static_cast<CI32SpinBox*>(nullptr));
    }
}

template <class Box>
using ValueOf = decltype(std::declval<Box>().value());

template <class Box>
Box* create(QWidget* parent, const QHash<int, QVariant>& settings)
{
    using T = ValueOf<Box>;
    auto* const pBox = new Box(parent);
    // value(), not constFind(): an invalid variant counts as absent.
    if (const QVariant tData = settings.value(RoleMinimum); tData.isValid())
        pBox->setMinimum(tData.value<T>());
    if (const QVariant tData = settings.value(RoleMaximum); tData.isValid())
        pBox->setMaximum(tData.value<T>());
    if (const QVariant tData = settings.value(RolePrefix); tData.isValid())
        pBox->setPrefix(tData.toString());
    if (const QVariant tData = settings.value(RoleSuffix); tData.isValid())
        pBox->setSuffix(tData.toString());
    if (const QVariant tData = settings.value(RoleBase); tData.isValid())
        pBox->setDisplayIntegerBase(tData.toInt());
    return pBox;
}

} // namespace

QWidget* TesseraGlobal::ISP_create(QWidget* parent, const QHash<int, QVariant>& settings)
{
    QWidget* const pBox = withBoxClass(settings.value(RoleType).toInt(), [&](auto* pClass) -> QWidget* {
        return create<std::remove_pointer_t<decltype(pClass)>>(parent, settings);
    });
    instance().autoSetToolTips(pBox, QString());
    return pBox;
}

QVariant TesseraGlobal::ISP_getData(QWidget* editor, const e_ISpx_Type& type)
{
    return withBoxClass(type, [editor](auto* pClass) {
        const auto* const pBox = qobject_cast<decltype(pClass)>(editor);
        return pBox != nullptr ? QVariant::fromValue(pBox->value()) : QVariant();
    });
}

bool TesseraGlobal::ISP_setData(QWidget* editor, const e_ISpx_Type& type, const QVariant& value, bool selectAll)
{
    return withBoxClass(type, [&](auto* pClass) {
        using Box = std::remove_pointer_t<decltype(pClass)>;
        const QPointer<Box> pBox = qobject_cast<Box*>(editor);
        if (pBox.isNull())
            return false;
        pBox->setValue(value.value<ValueOf<Box>>());
        if (selectAll && !pBox.isNull()) // a slot may have deleted it
            pBox->selectAll();
        return true;
    });
}

} // namespace nsUI
