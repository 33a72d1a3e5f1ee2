// SPDX-License-Identifier: MIT
#include "window/Settings.h"

#include <CCommon.h>

#include <Tessera/Tessera.h>
#include <Tessera/widgets/FontSettingDlg.h>

#include <QApplication>
#include <QSettings>

namespace registers {

namespace {

QString geometryKey()
{
    return QStringLiteral("Window/Geometry");
}

QString splitterKey()
{
    return QStringLiteral("Window/Splitter");
}

QString fieldBaseKey()
{
    return QStringLiteral("Window/FieldBase");
}

/// Where the library's font dialog keeps the choice.
QString fontGroup()
{
    return QStringLiteral("Setting_AppFont");
}

} // namespace

Settings::Settings()
    : m_store(CCommon::instance().getSettings(QString()))
{
}

QByteArray Settings::windowGeometry() const
{
    return m_store->value(geometryKey()).toByteArray();
}

void Settings::setWindowGeometry(const QByteArray& geometry)
{
    m_store->setValue(geometryKey(), geometry);
}

QByteArray Settings::splitterState() const
{
    return m_store->value(splitterKey()).toByteArray();
}

void Settings::setSplitterState(const QByteArray& state)
{
    m_store->setValue(splitterKey(), state);
}

std::optional<QFont> Settings::chosenFont() const
{
    if (!m_store->childGroups().contains(fontGroup())) {
        return std::nullopt;
    }
    nsUI::tagAppFont chosen;
    chosen.readSettings(m_store, fontGroup());
    QFont font = chosen.toFont();
    font.setFamilies(chosen.families);
    return font;
}

NumberBase Settings::fieldBase() const
{
    switch (m_store->value(fieldBaseKey()).toInt()) {
    case static_cast<int>(NumberBase::Binary):
        return NumberBase::Binary;
    case static_cast<int>(NumberBase::Decimal):
        return NumberBase::Decimal;
    default:
        return NumberBase::Hexadecimal;
    }
}

void Settings::setFieldBase(NumberBase base)
{
    m_store->setValue(fieldBaseKey(), static_cast<int>(base));
}

void useChosenFont()
{
    if (const std::optional<QFont> font = Settings().chosenFont()) {
        QApplication::setFont(*font);
    }
}

void chooseFont(QWidget* parent)
{
    nsUI::FontSettingDlg dialog(parent);
    if (dialog.exec() == QDialog::Accepted) {
        useChosenFont();
    }
}

} // namespace registers
