// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QFormLayout;
QT_END_NAMESPACE

namespace gallery {

/// Widgets one below the other, each behind its caption: what most samples are.
class Captioned : public QWidget
{
    Q_OBJECT

public:
    explicit Captioned(QWidget* parent = nullptr);

    /// Appends @p widget, which gets the caption for its accessible name. @p caption is marked with QT_TRANSLATE_NOOP("gallery", ...).
    void add(const char* caption, QWidget* widget);
    /// The same with a caption that is the same in all languages.
    void add(const QString& caption, QWidget* widget);

private:
    QFormLayout* m_layout;
};

} // namespace gallery
