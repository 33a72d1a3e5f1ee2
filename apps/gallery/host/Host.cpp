// SPDX-License-Identifier: MIT
#include "host/Host.h"

#include "host/Palettes.h"

#include <Tessera/Tessera.h>

#include <QApplication>
#include <QLibraryInfo>

// Have to be called from the global namespace; a static library's resources are not there by themselves.
static void initializeResources()
{
    Q_INIT_RESOURCE(gallery);
#ifdef GALLERY_HAS_FONTS
    Q_INIT_RESOURCE(gallery_fonts);
#endif
}

namespace gallery {

namespace {

Host* theHost = nullptr;

/// Some of Qt's own button texts, for systems without Qt's catalogues.
[[maybe_unused]] const char* const kButtonTexts[] = {
    QT_TRANSLATE_NOOP("QPlatformTheme", "OK"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Cancel"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Reset"),
};

QString nameOf(Language language)
{
    return languageNames().at(static_cast<int>(language));
}

/// The folder of Qt's own catalogues.
QString qtCatalogues()
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#else
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#endif
}

} // namespace

Host::Host(const Look& look)
    : m_look(look)
{
    Q_ASSERT(!theHost);
    theHost = this;
    initializeResources();
    nsUI::TesseraGlobal::instance(); // registers the fonts
    installCatalogues();
    applyDirection();
    QApplication::setPalette(paletteOf(m_look.shade));
    reloadSheets();
}

Host::~Host()
{
    theHost = nullptr;
}

Host& Host::instance()
{
    Q_ASSERT(theHost);
    return *theHost;
}

void Host::setLanguage(Language language)
{
    if (language == m_look.language) {
        return;
    }
    m_look.language = language;
    installCatalogues();
    applyDirection(); // Qt takes a direction from a catalogue
    Q_EMIT lookChanged();
}

void Host::setShade(Shade shade)
{
    if (shade == m_look.shade) {
        return;
    }
    m_look.shade = shade;
    QApplication::setPalette(paletteOf(shade));
    reloadSheets(); // some of the gallery's suit one palette only
    Q_EMIT lookChanged();
}

void Host::setSheet(Sheet sheet)
{
    if (sheet == m_look.sheet) {
        return;
    }
    m_look.sheet = sheet;
    reloadSheets();
    Q_EMIT lookChanged();
}

void Host::setDirection(Qt::LayoutDirection direction)
{
    if (direction == m_look.direction) {
        return;
    }
    m_look.direction = direction;
    applyDirection();
    Q_EMIT lookChanged();
}

//! [sheets]
void Host::reloadSheets()
{
    nsUI::TesseraGlobal::loadStyleSheet(sheetFiles(), QString());
}

QStringList Host::sheetFiles() const
{
    switch (m_look.sheet) {
    case Sheet::None:
        break;
    case Sheet::Tessera:
        return {QStringLiteral("Tessera")};
    case Sheet::Gallery:
        return {QStringLiteral("Tessera"), QStringLiteral("Gallery"),
                m_look.shade == Shade::Dark ? QStringLiteral("GalleryDark") : QStringLiteral("GalleryLight")};
    }
    return {};
}
//! [sheets]

//! [catalogues]
void Host::installCatalogues()
{
    const QString language = nameOf(m_look.language);
    for (QTranslator* catalogue : {&m_ownCatalogue, &m_qtCatalogue, &m_libraryCatalogue}) {
        QCoreApplication::removeTranslator(catalogue);
    }
    // English is the language of the sources, so only the library has a catalogue for it.
    if (m_ownCatalogue.load(QStringLiteral(":/qm/gallery_%1.qm").arg(language))) {
        QCoreApplication::installTranslator(&m_ownCatalogue);
    }
    if (m_qtCatalogue.load(QStringLiteral("qtbase_") + language, qtCatalogues())) {
        QCoreApplication::installTranslator(&m_qtCatalogue);
    }
    if (m_libraryCatalogue.load(QStringLiteral(":/qm/Tessera_%1.qm").arg(language))) {
        QCoreApplication::installTranslator(&m_libraryCatalogue);
    }
}
//! [catalogues]

void Host::applyDirection()
{
    QApplication::setLayoutDirection(m_look.direction);
}

QString text(const char* source)
{
    return QCoreApplication::translate("gallery", source);
}

} // namespace gallery
