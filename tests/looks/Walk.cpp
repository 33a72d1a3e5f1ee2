// SPDX-License-Identifier: MIT
#include "Walk.h"

#include "Contrast.h"
#include "DrawnTexts.h"

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QImage>
#include <QMenu>
#include <QPixmap>
#include <QSizeGrip>
#include <QSplitterHandle>
#include <QWidget>

#include <algorithm>

namespace looks {

namespace {

QString textOf(const QRect& rect)
{
    return QStringLiteral("%1x%2+%3+%4").arg(rect.width()).arg(rect.height()).arg(rect.x()).arg(rect.y());
}

/// Handles and grips lie over their neighbours so that they are easily caught.
bool isStackedByDesign(const QWidget* widget)
{
    return qobject_cast<const QSplitterHandle*>(widget) || qobject_cast<const QSizeGrip*>(widget);
}

QVector<QWidget*> visibleChildren(const QWidget* parent)
{
    QVector<QWidget*> children;
    for (QObject* child : parent->children()) {
        auto* widget = qobject_cast<QWidget*>(child);
        if (widget && widget->isVisible() && !widget->isWindow() && !widget->geometry().isEmpty()) {
            children.append(widget);
        }
    }
    return children;
}

bool saysSomething(const QString& text)
{
    return std::any_of(text.cbegin(), text.cend(), [](QChar letter) { return letter.isLetterOrNumber(); });
}

/// True for what can be used, be it a widget, a cell or an action of a menu.
bool isEnabled(const QWidget* widget, const QRect& place)
{
    if (const auto* menu = qobject_cast<const QMenu*>(widget)) {
        const QAction* action = menu->actionAt(place.center());
        return action && action->isEnabled();
    }
    const auto* view = qobject_cast<const QAbstractItemView*>(widget->parentWidget());
    if (view && view->viewport() == widget) {
        const QModelIndex index = view->indexAt(place.center());
        return widget->isEnabled() && (!index.isValid() || (index.flags() & Qt::ItemIsEnabled));
    }
    return widget->isEnabled();
}

/// @p rect, which is one of the window, in the pixels of its picture.
QRect inPixels(const QRect& rect, qreal ratio)
{
    return QRectF(rect.x() * ratio, rect.y() * ratio, rect.width() * ratio, rect.height() * ratio).toAlignedRect();
}

} // namespace

QVector<QWidget*> visibleWidgets(QWidget* window)
{
    QVector<QWidget*> widgets{window};
    for (int i = 0; i < widgets.size(); ++i) {
        widgets += visibleChildren(widgets.at(i));
    }
    return widgets;
}

QString pathOf(const QWidget* widget)
{
    QStringList parts;
    for (const QWidget* one = widget; one; one = one->isWindow() ? nullptr : one->parentWidget()) {
        parts.prepend(one->objectName().isEmpty() ? QString::fromLatin1(one->metaObject()->className())
                                                  : one->objectName());
    }
    return parts.join(QLatin1Char('/'));
}

QStringList overlappingWidgets(QWidget* window)
{
    QStringList found;
    const QVector<QWidget*> parents = visibleWidgets(window);
    for (const QWidget* parent : parents) {
        const QVector<QWidget*> children = visibleChildren(parent);
        for (int i = 0; i < children.size(); ++i) {
            for (int j = i + 1; j < children.size(); ++j) {
                const QRect common = children.at(i)->geometry() & children.at(j)->geometry();
                if (!common.isEmpty() && !isStackedByDesign(children.at(i)) && !isStackedByDesign(children.at(j))) {
                    found.append(QStringLiteral("overlap: %1 and %2: %3")
                                     .arg(pathOf(children.at(i)), pathOf(children.at(j)), textOf(common)));
                }
            }
        }
    }
    return found;
}

QStringList faintTexts(QWidget* window)
{
    QStringList found;
    const QPixmap pixmap = window->grab();
    const QImage picture = pixmap.toImage().convertToFormat(QImage::Format_RGB32);
    const QVector<QWidget*> widgets = visibleWidgets(window);
    for (QWidget* widget : widgets) {
        const QRect seen = widget->visibleRegion().boundingRect();
        const QRegion hidden = widget->childrenRegion();
        const QVector<DrawnText> texts = drawnTexts(widget);
        for (const DrawnText& drawn : texts) {
            const QRect place = drawn.place & seen;
            // Of a line that is cut by the end of what scrolls there may be too little to tell, and of one that is
            // behind an editor nothing.
            if (hidden.intersects(place) || place.height() < drawn.place.height() ||
                place.width() < drawn.place.width() / 2 || !saysSomething(drawn.text) || !isEnabled(widget, place)) {
                continue;
            }
            const QRect inWindow(widget->mapTo(window, place.topLeft()), place.size());
            const TextColors colors = colorsOfText(picture, inPixels(inWindow, pixmap.devicePixelRatioF()));
            if (colors.contrast() < kLeastContrast) {
                found.append(QStringLiteral("faint: %1: \"%2\" at %3: %4 on %5, %6:1")
                                 .arg(pathOf(widget), drawn.text, textOf(inWindow), colors.text.name(),
                                      colors.ground.name(), QString::number(colors.contrast(), 'f', 2)));
            }
        }
    }
    found.removeDuplicates(); // a selected text is written twice
    return found;
}

QStringList findings(QWidget* window, QVector<Exemption>* exemptions)
{
    QStringList left = clippedTexts(window) + overlappingWidgets(window) + faintTexts(window);
    const auto isExempt = [exemptions](const QString& finding) {
        const auto it = std::find_if(exemptions->begin(), exemptions->end(), [&finding](const Exemption& exemption) {
            return exemption.finding.match(finding).hasMatch();
        });
        if (it == exemptions->end()) {
            return false;
        }
        ++it->uses;
        return true;
    };
    if (exemptions) {
        left.erase(std::remove_if(left.begin(), left.end(), isExempt), left.end());
    }
    return left;
}

} // namespace looks
