// SPDX-License-Identifier: MIT
#pragma once

#include <Tessera/TesseraExport.h>

#include <QDialog>
#include <QDialogButtonBox>
#include <QString>

#include <memory>

QT_BEGIN_NAMESPACE
class QLabel;
class QProgressBar;
class QPushButton;
namespace Ui {
class CProgressDlg;
}
QT_END_NAMESPACE

namespace nsUI {

/*!
    An application-modal dialog with a line of text, a progress bar and a Cancel button, driven by the host's own work
    loop. It is made hidden: set the range, call show(), then setValue() or addValue() as the work goes on.

    When it ends is the host's decision alone. The title bar has neither a close nor a help button, the Escape key does
    nothing, and Cancel is connected to nothing: connect button(QDialogButtonBox::Cancel) or the signals of
    buttonBox().

    The dialog works no events off. What is set shows when the loop returns to the event loop, or calls
    QCoreApplication::processEvents() itself; see keyPressEvent() before doing that.
*/
class TESSERA_EXPORT CProgressDlg : public QDialog
{
    Q_OBJECT

public:
    explicit CProgressDlg(QWidget* parent = nullptr);
    ~CProgressDlg() override;

    //! \name The dialog's own widgets
    //! @{
    QLabel* label();
    QProgressBar* bar();
    QDialogButtonBox* buttonBox();                               //!< Cancel alone, at first
    QPushButton* button(QDialogButtonBox::StandardButton which); //!< null when there is no such button
    //! @}

    void setText(const QString& text);
    void setFormat(const QString& format); //!< as QProgressBar's; "%p%" in a new dialog

    //! The bar's range; 0 to 100 in a new dialog. Equal ends of 0 make a busy indicator.
    void setMinimum(int value);
    void setMaximum(int value);

    //! A value outside the range is ignored.
    void setValue(int value);
    void addValue(int delta); //!< sets the sum of value() and \a delta
    int value() const;        //!< -1 in a new dialog, so set a value before adding to it

    //! Nothing happens when there is no such button.
    void setBtnEnable(QDialogButtonBox::StandardButton which, bool enable);
    bool btnEnable(QDialogButtonBox::StandardButton which); //!< false when there is no such button

protected:
    /*!
        Escape (QKeySequence::Cancel) closes nothing; the event is left ignored, for whoever else may want it.

        Every other key that reaches the dialog is handed back to this function as a virtual call. In a plain
        CProgressDlg that call arrives here once more, and so on without end: the application stops responding (or
        uses up its stack, where the compiler has not made a jump of the call). Keys that the Cancel button takes for
        itself never come here.

        A host that shows the dialog to someone with a keyboard therefore either derives from it, with an override that
        passes on Escape alone and handles the rest itself or by QDialog::keyPressEvent(), or installs an event filter
        on the dialog that keeps the other key presses from it.
    */
    void keyPressEvent(QKeyEvent* event) override;

private:
    std::unique_ptr<Ui::CProgressDlg> m_pUi;
};

} // namespace nsUI
