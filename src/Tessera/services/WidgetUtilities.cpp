// SPDX-License-Identifier: MIT
#include "TesseraGlobal_p.h"

#include <Tessera/CISpinBox/CI16SpinBox.h>
#include <Tessera/CISpinBox/CI32SpinBox.h>
#include <Tessera/CISpinBox/CI64SpinBox.h>
#include <Tessera/CISpinBox/CI8SpinBox.h>
#include <Tessera/CISpinBox/CU16SpinBox.h>
#include <Tessera/CISpinBox/CU32SpinBox.h>
#include <Tessera/CISpinBox/CU64SpinBox.h>
#include <Tessera/CISpinBox/CU8SpinBox.h>

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QSpinBox>
#include <QTextBrowser>

#include <algorithm>

namespace nsUI {
namespace {

//! What autoSetToolTips() does with an object of one class.
struct ToolTipRule
{
    //! Sets the tool tip; false when the object is of another class.
    bool (*apply)(QObject* object);
    //! Makes the tool tip follow the text; null for a class that is not tracked.
    QMetaObject::Connection (*track)(QObject* object);
};

template <class Class>
bool setFromText(QObject* object)
{
    auto* const pObject = qobject_cast<Class*>(object);
    if (pObject == nullptr)
        return false;
    pObject->setToolTip(pObject->text());
    return true;
}

bool setFromComboBox(QObject* object)
{
    auto* const pComboBox = qobject_cast<QComboBox*>(object);
    if (pComboBox == nullptr)
        return false;
    pComboBox->setToolTip(pComboBox->currentText());
    for (int i = 0; i < pComboBox->count(); ++i)
        pComboBox->setItemData(i, pComboBox->itemText(i), Qt::ToolTipRole);
    return true;
}

template <class Class, void (Class::*textSignal)(const QString&)>
QMetaObject::Connection track(QObject* object)
{
    auto* const pObject = static_cast<Class*>(object);
    return QObject::connect(pObject, textSignal, pObject, &QWidget::setToolTip);
}

template <class Box>
constexpr ToolTipRule integerBox()
{
    return {setFromText<Box>, track<Box, &Box::textChanged>};
}

//! The first rule that fits an object counts.
constexpr ToolTipRule c_toolTipRules[] = {
    {setFromText<QLineEdit>, track<QLineEdit, &QLineEdit::textChanged>},
    {setFromComboBox, track<QComboBox, &QComboBox::currentTextChanged>},
    {setFromText<QLabel>, nullptr},
    {setFromText<QAbstractButton>, nullptr},
    {setFromText<QAction>, nullptr},
    {setFromText<QSpinBox>, track<QSpinBox, &QSpinBox::textChanged>},
    {setFromText<QDoubleSpinBox>, track<QDoubleSpinBox, &QDoubleSpinBox::textChanged>},
    integerBox<CI8SpinBox>(),
    integerBox<CI16SpinBox>(),
    integerBox<CI32SpinBox>(),
    integerBox<CI64SpinBox>(),
    integerBox<CU8SpinBox>(),
    integerBox<CU16SpinBox>(),
    integerBox<CU32SpinBox>(),
    integerBox<CU64SpinBox>(),
};

bool setGivenToolTip(QObject* object, const QString& toolTip)
{
    if (auto* const pWidget = qobject_cast<QWidget*>(object))
        pWidget->setToolTip(toolTip);
    else if (auto* const pAction = qobject_cast<QAction*>(object))
        pAction->setToolTip(toolTip);
    else
        return false;
    return true;
}

bool isRatio(double ratio)
{
    return ratio >= 0.0 && ratio <= 1.0;
}

//! The current extent, the larger or the smaller of the two, or the wanted one, by two bits of resize()'s flags.
int keptExtent(int nCurrent, int nWanted, bool larger, bool smaller)
{
    if (larger)
        return std::max(nCurrent, nWanted);
    return smaller ? std::min(nCurrent, nWanted) : nWanted;
}

QPoint centredAt(const QSize& tScreen, double xRatio, double yRatio, const QSize& tSize)
{
    return QPoint(static_cast<int>(tScreen.width() * xRatio - tSize.width() * 0.5),
                  static_cast<int>(tScreen.height() * yRatio - tSize.height() * 0.5));
}

} // namespace

bool TesseraGlobal::autoSetToolTips(QObject* object, const QString& toolTip)
{
    if (object == nullptr)
        return false;
    if (!toolTip.isNull())
        return setGivenToolTip(object, toolTip);

    const auto* const pRule = std::find_if(std::begin(c_toolTipRules), std::end(c_toolTipRules),
                                           [object](const ToolTipRule& rule) { return rule.apply(object); });
    if (pRule == std::end(c_toolTipRules))
        return false;
    auto& connections = m_pData->tToolTipConnections;
    if (pRule->track != nullptr && !connections.contains(object)) {
        connections.insert(object, pRule->track(object));
        // Direct: the entry must be gone before another object can take the address.
        QObject::connect(
            object, &QObject::destroyed, m_pData.get(),
            [pData = m_pData.get()](QObject* pGone) { pData->tToolTipConnections.remove(pGone); },
            Qt::DirectConnection);
    }
    return true;
}

QList<bool> TesseraGlobal::autoSetToolTips(std::initializer_list<QObject*> objects)
{
    QList<bool> results;
    for (QObject* const object : objects)
        results.append(autoSetToolTips(object, QString()));
    return results;
}

void TesseraGlobal::resize(QWidget* widget, double widthRatio, double heightRatio, int flags, double xRatio,
                           double yRatio)
{
    if (!isRatio(xRatio) || !isRatio(yRatio) || !isRatio(widthRatio) || !isRatio(heightRatio))
        return;
    const bool wasVisible = widget->isVisible();
    if (!wasVisible)
        widget->show();

    const QSize tScreen = QGuiApplication::primaryScreen()->geometry().size();
    const QSize tWanted(static_cast<int>(tScreen.width() * widthRatio),
                        static_cast<int>(tScreen.height() * heightRatio));
    const QSize tSize(keptExtent(widget->width(), tWanted.width(), (flags & 0x20) != 0, (flags & 0x10) != 0),
                      keptExtent(widget->height(), tWanted.height(), (flags & 0x02) != 0, (flags & 0x01) != 0));
    widget->setGeometry(QRect(centredAt(tScreen, xRatio, yRatio, tSize), tSize));

    // The widget's own size limits may have changed the size.
    const QSize tResult = widget->geometry().size();
    widget->setGeometry(QRect(centredAt(tScreen, xRatio, yRatio, tResult), tResult));
    widget->setVisible(wasVisible);
}

bool TesseraGlobal::setCbxCurrentData(QComboBox* comboBox, const QVariant& data, int role)
{
    for (int i = 0; i < comboBox->count(); ++i) {
        if (comboBox->itemData(i, role) == data) {
            comboBox->setCurrentIndex(i);
            return true;
        }
    }
    return false;
}

void TesseraGlobal::appendTextBrowserColor(QTextBrowser* browser, const QString& text, const QColor& color)
{
    browser->append(QStringLiteral("<font color=%1>%2</font>").arg(color.name(), text));
}

} // namespace nsUI
