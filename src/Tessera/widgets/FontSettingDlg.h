// SPDX-License-Identifier: MIT
#pragma once

#include <Tessera/TesseraExport.h>

#include <QDialog>
#include <QDialogButtonBox>
#include <QPointer>
#include <QStringList>

#include <memory>

QT_BEGIN_NAMESPACE
class QPushButton;
class QVBoxLayout;
namespace Ui {
class FontSettingDlg;
}
QT_END_NAMESPACE

namespace nsUI {

struct tagAppFont;

/*!
    Lets the user choose the application font: families in order of preference, a size from 1 to 99 points, bold and
    italic, with an example that follows at once.

    The dialog starts with the stored choice (group "Setting_AppFont" of the host's settings). OK stores all of the
    choice there and accepts; Cancel stores nothing. The running application is left as it is: its font changes with
    the next TesseraGlobal::loadStyleSheet().

    The plus button puts the family that was picked in the combo box at the top of the list, and takes away an older
    entry of the same name; while none was picked it takes the application's own, not the first family of the list that
    the box starts with. A name that is typed is picked when the box finds it in its own list, with Qt 6 letter by letter.
    The minus button removes the current family, or the last one when none is current. An empty list is a choice too: it
    leaves the family to the application.

    Its icons, ":/svg/primary/text.svg", "plus.svg" and "minus.svg", are the host's. The two check boxes have a dynamic
    property "qssIconName" with the value "Switch", by which a host's style sheet can draw them as switches.

    A dialog is meant for one exec(). After a Cancel it still shows what was edited.
*/
class TESSERA_EXPORT FontSettingDlg : public QDialog
{
    Q_OBJECT

public:
    explicit FontSettingDlg(QWidget* parent = nullptr);
    ~FontSettingDlg() override;

    /*!
        Shows the example in \a widget from now on: its style sheet becomes the rule of the chosen font, for itself
        and all of its children, with every change. The dialog takes \a widget over, and deletes the former example
        later, when control returns to the event loop. A null \a widget and the one that is there are ignored.
    */
    void setExampleWdg(QWidget* widget);

    //! \name The dialog's own buttons: OK and Cancel
    //! @{
    QDialogButtonBox* buttonBox() const;
    QPushButton* button(QDialogButtonBox::StandardButton which) const;      //!< null when there is no such button
    void setBtnEnable(QDialogButtonBox::StandardButton which, bool enable); //!< nothing when there is none
    //! @}

private:
    void initUI();
    void initConnect();
    QStringList updateListWdg();
    void slotBtnAddClicked();
    void slotBtnDelClicked();
    void slotUpdateExample();
    void slotAccept();
    void styleExample();

    std::unique_ptr<Ui::FontSettingDlg> m_pUi;
    QVBoxLayout* m_pExampleLayout = nullptr;
    QPointer<QWidget> m_pExampleWdg; // guarded: a host may delete the one that it gave
    std::unique_ptr<tagAppFont> m_pFont;
};

} // namespace nsUI
