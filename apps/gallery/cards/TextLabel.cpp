// SPDX-License-Identifier: MIT
#include "cards/TextLabel.h"

#include "host/Host.h"

#include <QEvent>

namespace gallery {

namespace {

/// As rich text, which takes its direction from its own letters and its size from the label's font, whatever style
/// sheet sets that.
QString markup(const QString& text, TextLabel::Style style)
{
    const QString escaped = text.toHtmlEscaped();
    switch (style) {
    case TextLabel::Title:
        return QStringLiteral("<span style=\"font-size:large; font-weight:600\">%1</span>").arg(escaped);
    case TextLabel::Note:
        return QStringLiteral("<b>%1</b> %2").arg(TextLabel::tr("For the host:").toHtmlEscaped(), escaped);
    case TextLabel::Plain:
    case TextLabel::Wrapped:
        break;
    }
    return QStringLiteral("<span>%1</span>").arg(escaped);
}

} // namespace

TextLabel::TextLabel(const char* source, Style style, QWidget* parent)
    : QLabel(parent)
    , m_source(source)
    , m_style(style)
{
    init();
}

TextLabel::TextLabel(const QString& fixed, Style style, QWidget* parent)
    : QLabel(parent)
    , m_fixed(fixed)
    , m_style(style)
{
    init();
}

void TextLabel::setFixedText(const QString& fixed)
{
    m_source = nullptr;
    m_fixed = fixed;
    updateText();
}

void TextLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        updateText();
    } else if (event->type() == QEvent::LayoutDirectionChange) {
        updateAlignment();
    }
}

void TextLabel::init()
{
    setTextFormat(Qt::RichText);
    setWordWrap(m_style == Wrapped || m_style == Note);
    updateText();
    updateAlignment();
}

void TextLabel::updateText()
{
    setText(markup(m_source ? gallery::text(m_source) : m_fixed, m_style));
}

void TextLabel::updateAlignment()
{
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    setAlignment((mirrored ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute | Qt::AlignVCenter);
}

} // namespace gallery
