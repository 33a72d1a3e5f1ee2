// SPDX-License-Identifier: MIT
#include "cards/RoomKeeper.h"

#include "host/ChangeWatcher.h"

#include <QAbstractSpinBox>
#include <QStyle>
#include <QStyleOptionSpinBox>

namespace gallery {

namespace {

constexpr int kAroundText = 8; // the line edit's margins and its cursor

QSize sizeFor(const QAbstractSpinBox* box, const QString& widest)
{
    QStyleOptionSpinBox option;
    option.initFrom(box);
    option.frame = box->hasFrame();
    option.subControls =
        QStyle::SC_SpinBoxEditField | QStyle::SC_SpinBoxUp | QStyle::SC_SpinBoxDown | QStyle::SC_SpinBoxFrame;
    option.buttonSymbols = box->buttonSymbols();
    const QFontMetrics metrics(box->font());
    const QSize text(metrics.horizontalAdvance(widest) + kAroundText, metrics.height());
    return box->style()->sizeFromContents(QStyle::CT_SpinBox, &option, text, box);
}

} // namespace

void keepRoom(QAbstractSpinBox* box, const QString& widest)
{
    const auto apply = [box, widest] {
        box->ensurePolished();
        box->setMinimumWidth(sizeFor(box, widest).width());
    };
    apply();
    ChangeWatcher::watch(box, {QEvent::FontChange, QEvent::StyleChange, QEvent::Show}, apply);
}

} // namespace gallery
