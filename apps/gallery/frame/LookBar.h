// SPDX-License-Identifier: MIT
#pragma once

#include <QToolBar>

QT_BEGIN_NAMESPACE
class QCheckBox;
class QComboBox;
class QHBoxLayout;
class QPushButton;
QT_END_NAMESPACE

namespace gallery {

/// The tool bar by which the look of the whole gallery is changed while it runs.
class LookBar : public QToolBar
{
    Q_OBJECT

public:
    explicit LookBar(QWidget* parent = nullptr);

Q_SIGNALS:
    /// The user wants to choose the application's font.
    void fontRequested();

protected:
    void changeEvent(QEvent* event) override;

private:
    void initUI();
    void initConnect();
    void addBox(QHBoxLayout* layout, QComboBox* box, const char* caption);
    void updateTexts();
    void showLook();

    QComboBox* m_language;
    QComboBox* m_sheet;
    QCheckBox* m_dark;
    QCheckBox* m_mirrored;
    QPushButton* m_font;
};

} // namespace gallery
