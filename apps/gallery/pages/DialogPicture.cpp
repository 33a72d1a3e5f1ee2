// SPDX-License-Identifier: MIT
#include "pages/DialogPicture.h"

#include "cards/Theme.h"
#include "common/Screenshot.h"
#include "common/Theme.h"
#include "pages/DialogCatalog.h"

#include <QDialog>
#include <QEvent>
#include <QPainter>
#include <QScopedPointer>

namespace gallery {

namespace {

constexpr int kTitlePadding = 6;
constexpr int kFrame = 1;

} // namespace

DialogPicture::DialogPicture(const QString& name, QWidget* parent)
    : QWidget(parent)
    , m_name(name)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_retake.setSingleShot(true);
    m_retake.setInterval(0);
    connect(&m_retake, &QTimer::timeout, this, &DialogPicture::takePicture);
    takePicture();
}

QSize DialogPicture::sizeHint() const
{
    const QSize picture = m_picture.size() / m_picture.devicePixelRatioF();
    return picture + QSize(2 * kFrame, titleHeight() + 2 * kFrame);
}

QSize DialogPicture::minimumSizeHint() const
{
    return sizeHint();
}

void DialogPicture::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    switch (event->type()) {
    case QEvent::LanguageChange:
    case QEvent::FontChange:
    case QEvent::PaletteChange:
    case QEvent::StyleChange:
    case QEvent::LayoutDirectionChange:
        m_retake.start();
        break;
    default:
        break;
    }
}

void DialogPicture::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (m_picture.devicePixelRatioF() != devicePixelRatioF()) {
        m_retake.start(); // another screen
    }
}

void DialogPicture::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), apps::lineColor(palette()));
    const QRect title(kFrame, kFrame, width() - 2 * kFrame, titleHeight() - kFrame);
    painter.fillRect(title, codeColor(palette()));
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(title, Qt::AlignCenter, m_title);
    painter.drawPixmap(kFrame, kFrame + titleHeight(), m_picture);
}

void DialogPicture::takePicture()
{
    const QScopedPointer<QDialog> dialog(dialogNamed(m_name).make(nullptr));
    m_picture = apps::pictureOf(dialog.data());
    m_title = dialog->windowTitle();
    setAccessibleName(m_title);
    updateGeometry();
    update();
}

int DialogPicture::titleHeight() const
{
    return fontMetrics().height() + 2 * kTitlePadding;
}

} // namespace gallery
