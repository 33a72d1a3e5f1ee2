// SPDX-License-Identifier: MIT
#pragma once

#include "host/Look.h"

#include <QCoreApplication>
#include <QObject>
#include <QTranslator>

namespace gallery {

/// What an application does for the library: it holds the resources, installs the catalogues and chooses palette,
/// style sheets and layout direction. There is one, made after QApplication and before the first widget.
class Host : public QObject
{
    Q_OBJECT

public:
    explicit Host(const Look& look);
    ~Host() override;

    /// The one that there is.
    static Host& instance();

    const Look& look() const { return m_look; }

    void setLanguage(Language language);
    void setShade(Shade shade);
    void setSheet(Sheet sheet);
    void setDirection(Qt::LayoutDirection direction);

    /// Loads the style sheets again, headed by the font that the user has chosen meanwhile.
    void reloadSheets();

    /// The names that reloadSheets() asks the library for.
    QStringList sheetFiles() const;

Q_SIGNALS:
    /// Something about look() has changed, and is in force.
    void lookChanged();

private:
    void installCatalogues();
    void applyDirection();

    Look m_look;
    QTranslator m_qtCatalogue;
    QTranslator m_libraryCatalogue;
    QTranslator m_ownCatalogue;
};

/// Words::tr("...") is text(QT_TRANSLATE_NOOP("gallery", "...")).
class Words
{
    Q_DECLARE_TR_FUNCTIONS(gallery)
};

/// A text of the gallery in the language that is in force. @p source is marked with QT_TRANSLATE_NOOP("gallery", ...).
QString text(const char* source);

} // namespace gallery
