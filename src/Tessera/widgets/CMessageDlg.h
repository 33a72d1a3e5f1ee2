// SPDX-License-Identifier: MIT
#pragma once

#include <Tessera/TesseraExport.h>

#include <QColor>
#include <QDialog>
#include <QDialogButtonBox>
#include <QString>

QT_BEGIN_NAMESPACE
class QPushButton;
QT_END_NAMESPACE

namespace nsUI {

class CustomTextBrowser;

/*!
    A dialog that shows a log in colours, the outcome of a long operation say, until the user dismisses it. It is made
    hidden: append the text, then call show() or exec().

    OK closes the dialog and does not accept it, so exec() answers QDialog::Rejected. Closing keeps the text, and the
    dialog can be shown again. The title bar has neither a close nor a help button; the Escape key closes, as in every
    QDialog.

    A link in the text opens nothing, for a log may come from anywhere, and a browser that followed it would lose the
    log. A host that trusts its links connects textBrowser()'s anchorClicked(), to QDesktopServices::openUrl() say.
*/
class TESSERA_EXPORT CMessageDlg : public QDialog
{
    Q_OBJECT

public:
    explicit CMessageDlg(QWidget* parent = nullptr);

    //! \name The dialog's own widgets
    //! @{
    CustomTextBrowser* textBrowser();
    QDialogButtonBox* buttonBox();                               //!< OK alone, at first
    QPushButton* button(QDialogButtonBox::StandardButton which); //!< null when there is no such button
    //! @}

    //! Nothing happens when there is no such button.
    void setBtnEnable(QDialogButtonBox::StandardButton which, bool enable);

    //! Appends a paragraph, as CustomTextBrowser::appendColorText() does.
    void appendColorText(const QString& text, const QColor& color);

private:
    void initUI();
    void initConnect();

    CustomTextBrowser* m_pTextBrowser = nullptr;
    QDialogButtonBox* m_pBtnBox = nullptr;
};

} // namespace nsUI
