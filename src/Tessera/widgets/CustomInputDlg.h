// SPDX-License-Identifier: MIT
#pragma once

#include <Tessera/TesseraExport.h>

#include <QDialog>
#include <QDialogButtonBox>
#include <QString>

QT_BEGIN_NAMESPACE
class QFormLayout;
class QPushButton;
QT_END_NAMESPACE

namespace nsUI {

/*!
    An empty dialog for a form: the host adds labelled rows, which stand at the top in the order they came, and the
    buttons it needs, which stand at the bottom. Nothing is connected; the host connects the button box's signals.
*/
class TESSERA_EXPORT CustomInputDlg : public QDialog
{
    Q_OBJECT

public:
    //! There is no help button in the title bar unless \a flags asks for one.
    CustomInputDlg(QWidget* parent, Qt::WindowFlags flags);

    /*!
        Appends a row. The dialog becomes the parent of \a field; a null one leaves the row with its label alone. The
        first field that can have the focus has it when the dialog opens: the button box is older than all of them.
    */
    void addRow(const QString& label, QWidget* field);

    QDialogButtonBox* buttonBox() const; //!< the dialog's own, without any buttons at first

    QPushButton* button(QDialogButtonBox::StandardButton which) const;      //!< null when there is no such button
    void setBtnEnable(QDialogButtonBox::StandardButton which, bool enable); //!< nothing when there is none

protected:
    bool focusNextPrevChild(bool next) override; //!< Tab goes round all fields and buttons

private:
    void initUI();

    QFormLayout* m_pFormLayout = nullptr;
    QDialogButtonBox* m_pBtnBox = nullptr;
};

} // namespace nsUI
