// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace gallery {

/// A text of the gallery that follows the language. It stands at the side where the window's direction begins, but
/// runs in the direction of its own script: a full stop ends an English sentence in a mirrored window too.
class TextLabel : public QLabel
{
    Q_OBJECT

public:
    enum Style {
        Plain,
        Wrapped, ///< on as many lines as it takes
        Title,   ///< larger and bold
        Note     ///< wrapped, and headed as advice to the host
    };

    /// @p source is marked with QT_TRANSLATE_NOOP("gallery", ...).
    explicit TextLabel(const char* source, Style style = Plain, QWidget* parent = nullptr);
    /// A text that is the same in all languages.
    explicit TextLabel(const QString& fixed, Style style = Plain, QWidget* parent = nullptr);

    /// Shows another text, which is the same in all languages.
    void setFixedText(const QString& fixed);

protected:
    void changeEvent(QEvent* event) override;

private:
    void init();
    void updateText();
    void updateAlignment();

    const char* m_source = nullptr;
    QString m_fixed;
    Style m_style;
};

} // namespace gallery
