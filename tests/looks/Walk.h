// SPDX-License-Identifier: MIT
#pragma once

#include <QRegularExpression>
#include <QStringList>
#include <QVector>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

/// What can be wrong with how a window looks. Each finding is one line: what it is, the widget's place in the window, and
/// what it is about.
namespace looks {

/// Something that has to stay as it is. Its findings match @p finding.
struct Exemption
{
    QRegularExpression finding;
    const char* reason;
    int uses = 0; ///< so far
};

/// All visible widgets of a window, itself first; other windows not.
QVector<QWidget*> visibleWidgets(QWidget* window);

/// "QDialog/QGroupBox/nameLabel": names where there are some, otherwise classes.
QString pathOf(const QWidget* widget);

/// Texts that are wider or higher than what their widget has for them, or that end where a parent does. Cells, which
/// end in dots by design, and what scrolls are left out.
QStringList clippedTexts(QWidget* window);

/// Widgets that lie over a widget of the same parent.
QStringList overlappingWidgets(QWidget* window);

/// Texts that stand out less from their ground than WCAG wants. It exempts what is disabled.
QStringList faintTexts(QWidget* window);

/// All of the above, without those that are exempt.
QStringList findings(QWidget* window, QVector<Exemption>* exemptions = nullptr);

} // namespace looks
