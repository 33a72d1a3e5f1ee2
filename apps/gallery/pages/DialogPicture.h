// SPDX-License-Identifier: MIT
#pragma once

#include <QPixmap>
#include <QString>
#include <QTimer>
#include <QWidget>

namespace gallery {

/// A picture of a dialog as it opens, with its title. It is taken anew when the language, the font, the palette, the
/// style or the layout direction changes, and never while painting.
class DialogPicture : public QWidget
{
    Q_OBJECT

public:
    /// @p name is one of dialogNames().
    explicit DialogPicture(const QString& name, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void takePicture();
    int titleHeight() const;

    QString m_name;
    QString m_title;
    QPixmap m_picture;
    QTimer m_retake; ///< one picture for all changes that come together
};

} // namespace gallery
