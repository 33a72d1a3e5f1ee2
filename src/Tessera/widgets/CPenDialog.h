// SPDX-License-Identifier: MIT
#pragma once

#include <Tessera/TesseraExport.h>

#include <QColor>
#include <QDialog>
#include <QDialogButtonBox>
#include <QPen>
#include <QString>

QT_BEGIN_NAMESPACE
class QDoubleSpinBox;
class QPushButton;
QT_END_NAMESPACE

namespace nsUI {

class CDataComboBox;

/*!
    A dialog for a pen's colour, width and line style. Everything else about the pen (cap and join style, brush
    pattern, cosmetic flag) passes through as it was given. A custom dash pattern is no choice of the dialog: the
    style that the dialog shows takes its place.

    The dialog knows two pens: currentPen(), which it was given, and selectedPen(), which its widgets show. Accepting
    does not turn the one into the other.

    The width field holds 0 to 99.99 in hundredths. A pen that is accepted has been cut off and rounded to that, even where
    the user has left its width alone: a host whose pens are wider or finer has to look after their widths itself.
*/
class TESSERA_EXPORT CPenDialog : public QDialog
{
    Q_OBJECT

public:
    explicit CPenDialog(QWidget* parent = nullptr);
    CPenDialog(const QPen& pen, QWidget* parent);
    ~CPenDialog() override;

    /*!
        Lets the user edit \a initial in a modal dialog. The answer is the chosen pen, which is at most 99.99 wide, or
        \a initial on a cancel; \a ok, unless null, tells which. An empty \a title leaves the dialog's own.
    */
    static QPen getPen(bool* ok, const QPen& initial, QWidget* parent, const QString& title);

    //! The name of a line style in the language of the application; "Undefine" for a style without one.
    static QString getPenStyleDesc(Qt::PenStyle style);

    QPen currentPen() const;  //!< the pen that the dialog was given
    QPen selectedPen() const; //!< the pen that the widgets show

    //! \name The dialog's own buttons: OK, Cancel and Reset
    //! @{
    QDialogButtonBox* buttonBox() const;
    QPushButton* button(QDialogButtonBox::StandardButton which) const;      //!< null when there is no such button
    void setBtnEnable(QDialogButtonBox::StandardButton which, bool enable); //!< nothing when there is none
    //! @}

    //! Gives the dialog another pen, and shows it. Nothing happens when it is the same.
    void setCurrentPen(const QPen& pen);

private Q_SLOTS:
    void slotBtnColorClicked();

private:
    void initUI();
    void initConnect();
    QColor getBtnColor() const;
    void setBtnColor(const QColor& color);
    void updateUI(const QPen& pen);

    CDataComboBox* m_pCbxStyle = nullptr;
    QPushButton* m_pBtnColor = nullptr; // its palette holds the colour
    QDoubleSpinBox* m_pDSpxWidth = nullptr;
    QDialogButtonBox* m_pBtnBox = nullptr;
    QPen m_tCurrentPen;
};

} // namespace nsUI
