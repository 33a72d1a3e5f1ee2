// SPDX-License-Identifier: MIT
#include "Walk.h"

#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOption>
#include <QTabBar>
#include <QTextDocument>
#include <QToolButton>

#include <cmath>

namespace looks {

namespace {

/// A text, the room that it takes and the room that there is.
struct Fit
{
    QString text;
    QSize needed;
    QSize room;
};

QSize sizeOf(const QWidget* widget, const QString& text)
{
    return widget->fontMetrics().size(Qt::TextShowMnemonic, text);
}

/// The style options of buttons and boxes are filled by functions that are protected.
template <class Widget, class Option>
class Opened : public Widget
{
public:
    static Option optionOf(const Widget* widget)
    {
        Option option;
        (widget->*(&Opened::initStyleOption))(&option);
        return option;
    }
};

QVector<Fit> fitsOf(const QLabel* label)
{
    const int indent = std::max(0, label->indent());
    const QSize room = label->contentsRect().size() - QSize(2 * label->margin() + indent, 2 * label->margin());
    const QString text = label->text();
    const bool isRich =
        label->textFormat() == Qt::RichText || (label->textFormat() == Qt::AutoText && Qt::mightBeRichText(text));
    if (isRich) {
        QTextDocument document;
        document.setDefaultFont(label->font());
        document.setDocumentMargin(0);
        document.setHtml(text);
        document.setTextWidth(label->wordWrap() ? room.width() : -1);
        return {{text,
                 QSize(static_cast<int>(std::ceil(document.idealWidth())),
                       static_cast<int>(std::ceil(document.size().height()))),
                 room}};
    }
    const int flags =
        Qt::TextExpandTabs | (label->buddy() ? Qt::TextShowMnemonic : 0) | (label->wordWrap() ? Qt::TextWordWrap : 0);
    return {{text, label->fontMetrics().boundingRect(QRect(QPoint(), QSize(room.width(), 1 << 20)), flags, text).size(),
             room}};
}

QSize withIcon(const QSize& text, const QAbstractButton* button)
{
    constexpr int kGap = 4;
    const QSize icon = button->icon().isNull() ? QSize() : button->iconSize() + QSize(kGap, 0);
    return {text.width() + std::max(0, icon.width()), std::max(text.height(), icon.height())};
}

QVector<Fit> fitsOf(const QPushButton* button)
{
    const auto option = Opened<QPushButton, QStyleOptionButton>::optionOf(button);
    // The text may stand on the padding, above and below, but not on the sides.
    const QRect contents = button->style()->subElementRect(QStyle::SE_PushButtonContents, &option, button);
    return {
        {button->text(), withIcon(sizeOf(button, button->text()), button), QSize(contents.width(), button->height())}};
}

template <class Box>
QVector<Fit> fitsOfBox(const Box* box, QStyle::SubElement element)
{
    const auto option = Opened<Box, QStyleOptionButton>::optionOf(box);
    const QRect contents = box->style()->subElementRect(element, &option, box);
    return {{box->text(), withIcon(sizeOf(box, box->text()), box), contents.size()}};
}

QVector<Fit> fitsOf(const QToolButton* button)
{
    return button->toolButtonStyle() == Qt::ToolButtonIconOnly && !button->icon().isNull()
               ? QVector<Fit>()
               : QVector<Fit>{{button->text(), withIcon(sizeOf(button, button->text()), button), button->size()}};
}

QVector<Fit> fitsOf(const QGroupBox* box)
{
    const auto option = Opened<QGroupBox, QStyleOptionGroupBox>::optionOf(box);
    const QRect label =
        box->style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, box) & box->rect();
    // The style makes the label as high as the font is, rounded in its own way.
    return {{box->title(), QSize(sizeOf(box, box->title()).width(), 0), label.size()}};
}

/// What is typed scrolls; what is offered does not.
QVector<Fit> fitsOf(const QLineEdit* edit)
{
    constexpr int kMargin = 2; // of QLineEdit, on each side of the text
    const auto option = Opened<QLineEdit, QStyleOptionFrame>::optionOf(edit);
    const QMargins margins = edit->textMargins();
    const QSize room = edit->style()->subElementRect(QStyle::SE_LineEditContents, &option, edit).size() -
                       QSize(margins.left() + margins.right() + 2 * kMargin, 0);
    const bool isOfSpinBox = qobject_cast<const QAbstractSpinBox*>(edit->parentWidget()) != nullptr;
    const QString text = edit->text().isEmpty() ? edit->placeholderText() : isOfSpinBox ? edit->text() : QString();
    return {{text, QSize(edit->fontMetrics().horizontalAdvance(text), edit->fontMetrics().height()), room}};
}

QVector<Fit> fitsOf(const QComboBox* box)
{
    if (box->isEditable()) {
        return {};
    }
    const auto option = Opened<QComboBox, QStyleOptionComboBox>::optionOf(box);
    const QRect field = box->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, box);
    constexpr int kGap = 4;
    const int icon = option.currentIcon.isNull() ? 0 : option.iconSize.width() + kGap;
    return {
        {box->currentText(), sizeOf(box, box->currentText()) + QSize(icon, 0), QSize(field.width(), box->height())}};
}

QVector<Fit> fitsOf(const QTabBar* bar)
{
    QVector<Fit> fits;
    for (int i = 0; i < bar->count(); ++i) {
        fits.append({bar->tabText(i), sizeOf(bar, bar->tabText(i)), (bar->tabRect(i) & bar->rect()).size()});
    }
    return fits;
}

QVector<Fit> fitsOf(const QHeaderView* header)
{
    QVector<Fit> fits;
    const bool isHorizontal = header->orientation() == Qt::Horizontal;
    const int count = header->model() ? header->count() : 0;
    for (int i = 0; i < count; ++i) {
        const QString text = header->model()->headerData(i, header->orientation()).toString();
        if (header->isSectionHidden(i) || text.isEmpty()) {
            continue;
        }
        const int margin = header->style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, header);
        const int length = header->sectionSize(i) - 2 * margin;
        fits.append({text, sizeOf(header, text),
                     isHorizontal ? QSize(length, header->height()) : QSize(header->width(), header->sectionSize(i))});
    }
    return fits;
}

QVector<Fit> fitsOf(const QProgressBar* bar)
{
    const QString text = bar->isTextVisible() ? bar->text() : QString();
    return {{text, sizeOf(bar, text), bar->size()}};
}

QVector<Fit> fitsOf(const QMenuBar* bar)
{
    QVector<Fit> fits;
    const QList<QAction*> actions = bar->actions();
    for (QAction* action : actions) {
        fits.append({action->text(), sizeOf(bar, action->text()), (bar->actionGeometry(action) & bar->rect()).size()});
    }
    return fits;
}

QVector<Fit> allFitsOf(const QWidget* widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(widget)) {
        return fitsOf(label);
    }
    if (const auto* button = qobject_cast<const QPushButton*>(widget)) {
        return fitsOf(button);
    }
    if (const auto* box = qobject_cast<const QCheckBox*>(widget)) {
        return fitsOfBox(box, QStyle::SE_CheckBoxContents);
    }
    if (const auto* button = qobject_cast<const QRadioButton*>(widget)) {
        return fitsOfBox(button, QStyle::SE_RadioButtonContents);
    }
    if (const auto* button = qobject_cast<const QToolButton*>(widget)) {
        return fitsOf(button);
    }
    if (const auto* box = qobject_cast<const QGroupBox*>(widget)) {
        return fitsOf(box);
    }
    if (const auto* edit = qobject_cast<const QLineEdit*>(widget)) {
        return fitsOf(edit);
    }
    if (const auto* box = qobject_cast<const QComboBox*>(widget)) {
        return fitsOf(box);
    }
    if (const auto* bar = qobject_cast<const QTabBar*>(widget)) {
        return fitsOf(bar);
    }
    if (const auto* header = qobject_cast<const QHeaderView*>(widget)) {
        return fitsOf(header);
    }
    if (const auto* bar = qobject_cast<const QProgressBar*>(widget)) {
        return fitsOf(bar);
    }
    if (const auto* bar = qobject_cast<const QMenuBar*>(widget)) {
        return fitsOf(bar);
    }
    return {};
}

/// True when a part of @p widget lies outside of a parent. What lies in something that scrolls can be reached.
bool isCutByParent(const QWidget* widget)
{
    QRect place = widget->rect();
    for (const QWidget* one = widget; !one->isWindow(); one = one->parentWidget()) {
        const auto* area = qobject_cast<const QAbstractScrollArea*>(one->parentWidget()->parentWidget());
        if (area && area->viewport() == one->parentWidget()) {
            return false;
        }
        place.translate(one->pos());
        if (!one->parentWidget()->rect().contains(place)) {
            return true;
        }
    }
    return false;
}

/// A tool bar that has too many tools hides some behind this button.
bool isOverflow(const QWidget* widget)
{
    return widget->objectName() == QLatin1String("qt_toolbar_ext_button");
}

} // namespace

QStringList clippedTexts(QWidget* window)
{
    QStringList found;
    const QVector<QWidget*> widgets = visibleWidgets(window);
    for (const QWidget* widget : widgets) {
        const QVector<Fit> fits = allFitsOf(widget);
        for (const Fit& fit : fits) {
            if (fit.text.isEmpty()) {
                continue;
            }
            if (fit.needed.width() > fit.room.width() || fit.needed.height() > fit.room.height()) {
                found.append(QStringLiteral("clipped: %1: \"%2\" takes %3x%4 and has %5x%6")
                                 .arg(pathOf(widget), fit.text)
                                 .arg(fit.needed.width())
                                 .arg(fit.needed.height())
                                 .arg(fit.room.width())
                                 .arg(fit.room.height()));
            } else if (isCutByParent(widget)) {
                found.append(
                    QStringLiteral("clipped: %1: \"%2\" ends where a parent does").arg(pathOf(widget), fit.text));
            }
        }
        if (isOverflow(widget)) {
            found.append(QStringLiteral("clipped: %1: tools are hidden").arg(pathOf(widget)));
        }
    }
    return found;
}

} // namespace looks
