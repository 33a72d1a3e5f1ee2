// SPDX-License-Identifier: MIT
#include "GlobalState.h"

#include <QFileInfo>

namespace TestSupport {

namespace {

//! QSettings tells no path, but its file names end in /organization/application.suffix below it.
QString settingsPath(QSettings::Format format, QSettings::Scope scope)
{
    const QSettings probe(format, scope, QStringLiteral("o"), QStringLiteral("a"));
    return QFileInfo(probe.fileName()).dir().filePath(QStringLiteral(".."));
}

//! Takes the override cursors away and returns them, the one that was set first as the first.
QVector<QCursor> takeOverrideCursors()
{
    QVector<QCursor> cursors;
    while (const QCursor* cursor = QApplication::overrideCursor()) {
        cursors.prepend(*cursor);
        QApplication::restoreOverrideCursor();
    }
    return cursors;
}

void setOverrideCursors(const QVector<QCursor>& cursors)
{
    for (const QCursor& cursor : cursors)
        QApplication::setOverrideCursor(cursor);
}

} // namespace

GlobalState::GlobalState()
{
    isolateSettings();
    if (!qobject_cast<QApplication*>(QCoreApplication::instance()))
        return;
    m_look = std::make_unique<Look>();
    m_look->cursors = takeOverrideCursors();
    setOverrideCursors(m_look->cursors);
}

GlobalState::~GlobalState()
{
    removeCatalogues();
    if (m_look)
        restoreLook();
    QLocale::setDefault(m_locale);
    QDir::setCurrent(m_currentFolder);
    restoreSettings();
}

bool GlobalState::install(const QString& catalogue)
{
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(catalogue) || !QCoreApplication::installTranslator(translator.get()))
        return false;
    m_catalogues.push_back(std::move(translator));
    return true;
}

void GlobalState::removeCatalogues()
{
    while (!m_catalogues.empty()) {
        QCoreApplication::removeTranslator(m_catalogues.back().get());
        m_catalogues.pop_back();
    }
}

void GlobalState::isolateSettings()
{
    for (const QSettings::Format format : {QSettings::NativeFormat, QSettings::IniFormat}) {
        for (const QSettings::Scope scope : {QSettings::UserScope, QSettings::SystemScope}) {
            m_locations.append({format, scope, settingsPath(format, scope)});
            const bool isUsers = scope == QSettings::UserScope;
            QSettings::setPath(format, scope,
                               m_folder.filePath(isUsers ? QStringLiteral("user") : QStringLiteral("system")));
        }
    }
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QCoreApplication::setOrganizationName(QStringLiteral("TestOrganization"));
    QCoreApplication::setOrganizationDomain(QString());
    QCoreApplication::setApplicationName(QStringLiteral("TestApplication"));
}

void GlobalState::restoreSettings()
{
    QCoreApplication::setOrganizationName(m_organization);
    QCoreApplication::setOrganizationDomain(m_domain);
    QCoreApplication::setApplicationName(m_application);
    QCoreApplication::setApplicationVersion(m_version);
    QSettings::setDefaultFormat(m_defaultFormat);
    for (const Location& location : qAsConst(m_locations))
        QSettings::setPath(location.format, location.scope, location.path);
}

// Only what differs is set: to set a font or a palette drops those of single classes, and an equal one tells every widget.
void GlobalState::restoreLook()
{
    if (qApp->styleSheet() != m_look->sheet)
        qApp->setStyleSheet(m_look->sheet);
    if (QApplication::palette() != m_look->palette)
        QApplication::setPalette(m_look->palette);
    if (QApplication::font() != m_look->font)
        QApplication::setFont(m_look->font);
    if (QApplication::layoutDirection() != m_look->direction)
        QApplication::setLayoutDirection(m_look->direction);
    if (QApplication::cursorFlashTime() != m_look->flashTime)
        QApplication::setCursorFlashTime(m_look->flashTime);
    takeOverrideCursors();
    setOverrideCursors(m_look->cursors);
}

} // namespace TestSupport
