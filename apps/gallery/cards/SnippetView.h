// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace gallery {

/// Code: in a fixed pitch, from left to right in every language, and to be selected.
class SnippetView : public QLabel
{
    Q_OBJECT

public:
    explicit SnippetView(const QString& code, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace gallery
