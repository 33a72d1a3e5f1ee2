// SPDX-License-Identifier: MIT
#include "look/Icons.h"

#include "common/Theme.h"
#include "look/PaintedIconEngine.h"
#include "look/Theme.h"

#include <QApplication>
#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

// Has to be called from the global namespace; a static library's resources are not there by themselves.
static void initializeIcons()
{
    Q_INIT_RESOURCE(registers_icons);
}

namespace registers {

namespace {

constexpr double kNormalShare = 0.85;
constexpr double kDisabledShare = 0.38;
constexpr double kFaintShare = 0.3;

QByteArray readIcon(const QString& name)
{
    initializeIcons();
    QFile file(QStringLiteral(":/registers/icons/%1.svg").arg(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString fileNameOf(LineIcon icon)
{
    switch (icon) {
    case LineIcon::Open:
        return QStringLiteral("open");
    case LineIcon::Load:
        return QStringLiteral("load");
    case LineIcon::Export:
        return QStringLiteral("export");
    case LineIcon::Undo:
        return QStringLiteral("undo");
    case LineIcon::Redo:
        return QStringLiteral("redo");
    case LineIcon::Reset:
        return QStringLiteral("reset");
    case LineIcon::ResetAll:
        return QStringLiteral("reset-all");
    case LineIcon::Bits:
        return QStringLiteral("bits");
    case LineIcon::Changes:
        return QStringLiteral("changes");
    case LineIcon::Search:
        break;
    }
    return QStringLiteral("search");
}

QColor colorOf(QIcon::Mode mode)
{
    const QPalette palette = QApplication::palette();
    if (mode == QIcon::Selected) {
        return palette.color(QPalette::HighlightedText);
    }
    const double share = mode == QIcon::Disabled ? kDisabledShare : kNormalShare;
    return apps::tinted(palette, palette.color(QPalette::Window), share);
}

/// Draws an icon whose strokes are of "currentColor" in the colour that palette and mode ask for.
class LineIconEngine : public PaintedIconEngine
{
public:
    explicit LineIconEngine(const QByteArray& svg)
        : m_svg(svg)
    {
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        setColor(colorOf(mode));
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        m_renderer.render(painter, rect);
        painter->restore();
    }

    QIconEngine* clone() const override { return new LineIconEngine(m_svg); }

private:
    /// The tree draws an icon in every row, so it is not read anew for each.
    void setColor(const QColor& color)
    {
        if (color != m_color) {
            QByteArray svg = m_svg;
            m_renderer.load(svg.replace("currentColor", color.name().toLatin1()));
            m_color = color;
        }
    }

    QByteArray m_svg;
    QSvgRenderer m_renderer;
    QColor m_color; ///< that the renderer draws in; invalid at first
};

} // namespace

QIcon lineIcon(LineIcon icon)
{
    return QIcon(new LineIconEngine(readIcon(fileNameOf(icon))));
}

QIcon applicationIcon()
{
    const QColor accent = accentColor(QPalette(Qt::white), Accent::Changed);
    QByteArray svg = readIcon(QStringLiteral("application"));
    svg.replace("currentColor", accent.name().toLatin1());
    svg.replace("faintColor", apps::blended(accent, Qt::white, kFaintShare).name().toLatin1());
    QSvgRenderer renderer(svg);
    QIcon icon;
    for (const int side : {16, 24, 32, 48, 64, 128}) {
        QPixmap pixmap(side, side);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        renderer.render(&painter);
        icon.addPixmap(pixmap);
    }
    return icon;
}

} // namespace registers
