// SPDX-License-Identifier: MIT
#include "DrawnTexts.h"

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QWidget>

namespace looks {

namespace {

/// Keeps what is written and where, and draws nothing.
class TextEngine : public QPaintEngine
{
public:
    TextEngine()
        : QPaintEngine(AllFeatures)
    {
    }

    bool begin(QPaintDevice*) override
    {
        setActive(true);
        return true;
    }
    bool end() override
    {
        setActive(false);
        return true;
    }
    void updateState(const QPaintEngineState&) override {}
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
    void drawPolygon(const QPoint*, int, PolygonDrawMode) override {}
    void drawPath(const QPainterPath&) override {}
    void drawImage(const QRectF&, const QImage&, const QRectF&, Qt::ImageConversionFlags) override {}
    void drawTiledPixmap(const QRectF&, const QPixmap&, const QPointF&) override {}
    Type type() const override { return User; }

    void drawTextItem(const QPointF& position, const QTextItem& item) override
    {
        QRectF place(position.x(), position.y() - item.ascent(), item.width(), item.ascent() + item.descent());
        if (painter()->hasClipping()) {
            const QRectF seen = place & painter()->clipBoundingRect();
            if (seen.width() < place.width() / 2) {
                return; // such as a bar's text on its other ground
            }
            place = seen;
        }
        texts.append({item.text(), painter()->combinedTransform().mapRect(place).toAlignedRect()});
    }

    QVector<DrawnText> texts;
};

/// As large as a widget, and with its resolution.
class TextDevice : public QPaintDevice
{
public:
    explicit TextDevice(const QWidget* widget)
        : m_widget(widget)
    {
    }

    QPaintEngine* paintEngine() const override { return &m_engine; }
    const QVector<DrawnText>& texts() const { return m_engine.texts; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
            return m_widget->width();
        case PdmHeight:
            return m_widget->height();
        case PdmWidthMM:
            return m_widget->widthMM();
        case PdmHeightMM:
            return m_widget->heightMM();
        case PdmDpiX:
        case PdmPhysicalDpiX:
            return m_widget->logicalDpiX();
        case PdmDpiY:
        case PdmPhysicalDpiY:
            return m_widget->logicalDpiY();
        case PdmDepth:
            return m_widget->depth();
        case PdmNumColors:
            return m_widget->colorCount();
        case PdmDevicePixelRatio:
            return 1; // places are those of the widget
        case PdmDevicePixelRatioScaled:
            return static_cast<int>(devicePixelRatioFScale());
        default:
            return QPaintDevice::metric(metric);
        }
    }

private:
    const QWidget* m_widget;
    mutable TextEngine m_engine;
};

} // namespace

QVector<DrawnText> drawnTexts(QWidget* widget)
{
    TextDevice device(widget);
    {
        QPainter painter(&device);
        painter.setLayoutDirection(widget->layoutDirection()); // which render() does not
        widget->render(&painter, QPoint(), QRegion(), QWidget::RenderFlags());
    }
    return device.texts();
}

} // namespace looks
