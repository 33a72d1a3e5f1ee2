// SPDX-License-Identifier: MIT
#include "cards/SnippetView.h"

#include "cards/Theme.h"

#include <QPainter>

namespace gallery {

namespace {

constexpr double kRadius = 4.0;
constexpr int kMargin = 10;

/// Rich text, because a style sheet for all widgets would take a font of the label's own from it. The first choice is a
/// font that shows operators as they are typed.
QString markup(const QString& code)
{
    return QStringLiteral("<pre style=\"white-space:pre-wrap; font-family:'DejaVu Sans Mono','JetBrains Mono',"
                          "monospace\">%1</pre>")
        .arg(code.toHtmlEscaped());
}

} // namespace

SnippetView::SnippetView(const QString& code, QWidget* parent)
    : QLabel(parent)
{
    setLayoutDirection(Qt::LeftToRight);
    setTextFormat(Qt::RichText);
    setText(markup(code));
    setWordWrap(true);
    setMargin(kMargin);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

void SnippetView::paintEvent(QPaintEvent* event)
{
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(codeColor(palette()));
        painter.drawRoundedRect(rect(), kRadius, kRadius);
    }
    QLabel::paintEvent(event);
}

} // namespace gallery
