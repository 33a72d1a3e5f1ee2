// SPDX-License-Identifier: MIT
#pragma once

#include "cards/Snippets.h"

#include <QWidget>

namespace gallery {

/// What is said about one entry of the gallery.
struct CardText
{
    QString title;           ///< the names of its classes or functions
    const char* description; ///< what it does; marked with QT_TRANSLATE_NOOP("gallery", ...)
    Snippet snippet;
    const char* note = nullptr; ///< how a host gets the best of it; may be null
};

/// One entry of the gallery: a title, what it does, the thing itself and the code that makes it.
class Card : public QWidget
{
    Q_OBJECT

public:
    /// Where the code stands.
    enum Arrangement { CodeBeside, CodeBelow };

    /// Takes @p sample over. An entry that is code alone has none, and its code below.
    Card(const CardText& text, QWidget* sample, Arrangement arrangement, QWidget* parent = nullptr);

    QString title() const { return m_title; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_title;
};

} // namespace gallery
