// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QCursor>
#include <QDir>
#include <QFont>
#include <QLocale>
#include <QPalette>
#include <QSettings>
#include <QString>
#include <QTemporaryDir>
#include <QTranslator>
#include <QVector>

#include <memory>
#include <vector>

namespace TestSupport {

/*!
    What belongs to the whole program and what a test may change: everything is at its end as it was at its beginning.

    - the application's style sheet, palette, font, layout direction, cursor flash time and override cursors
    - the default locale and the current folder
    - the catalogues that were installed by install()
    - the names of organization and application, and where and how QSettings stores; for as long as the object lives the
      settings are an empty store of its own, INI files in a temporary folder

    The library's global object keeps nothing beside these that a test could change: the font in effect and the choice of
    it are settings. Without a QApplication all but the first are looked at. Objects may be nested.
*/
class GlobalState
{
public:
    GlobalState();
    ~GlobalState();

    //! Loads a catalogue and installs it; false if one of both fails.
    bool install(const QString& catalogue);
    //! Takes the catalogues away that install() has installed, the last one first.
    void removeCatalogues();

    //! The folder that the user's settings files lie in.
    QString settingsFolder() const { return m_folder.filePath(QStringLiteral("user")); }

private:
    Q_DISABLE_COPY(GlobalState)

    struct Location
    {
        QSettings::Format format;
        QSettings::Scope scope;
        QString path;
    };

    //! Of a QApplication.
    struct Look
    {
        QString sheet = qApp->styleSheet();
        QPalette palette = QApplication::palette();
        QFont font = QApplication::font();
        Qt::LayoutDirection direction = QApplication::layoutDirection();
        int flashTime = QApplication::cursorFlashTime();
        QVector<QCursor> cursors;
    };

    void isolateSettings();
    void restoreSettings();
    void restoreLook();

    QTemporaryDir m_folder;
    QVector<Location> m_locations;
    QSettings::Format m_defaultFormat = QSettings::defaultFormat();
    QString m_organization = QCoreApplication::organizationName();
    QString m_domain = QCoreApplication::organizationDomain();
    QString m_application = QCoreApplication::applicationName();
    QString m_version = QCoreApplication::applicationVersion();
    QLocale m_locale;
    QString m_currentFolder = QDir::currentPath();
    std::unique_ptr<Look> m_look;
    std::vector<std::unique_ptr<QTranslator>> m_catalogues;
};

} // namespace TestSupport
