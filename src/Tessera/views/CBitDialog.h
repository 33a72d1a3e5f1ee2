// SPDX-License-Identifier: MIT
#pragma once

#include <Tessera/TesseraExport.h>

#include <QByteArray>
#include <QDialog>
#include <QDialogButtonBox>
#include <QMap>
#include <QString>

#include <memory>

QT_BEGIN_NAMESPACE
class QPushButton;
QT_END_NAMESPACE

namespace nsUI {

/*!
    Edits a byte array three ways at once: as hexadecimal text, as binary text, and bit by bit in a grid where each bit
    can have a description. An edit in one shows in the other two at once. Reset returns to the array last given. A
    click, Space or F2 turns a bit of the grid over; Enter is for OK everywhere.

    Positions count from 0 at the least significant bit of the last byte. A text counts once all its digits are there;
    until then nothing follows it.

    Digits are ASCII characters. What is pasted or dropped into a text may hold blanks, line ends and '_', and the mark
    of the text's own base: 0x before or h behind it, 0b before it. As many digits as the array has replace it all; fewer
    overwrite what stands from the cursor or the selection's start on, and the rest stays. Too many, the other base or
    anything else changes nothing, and a tool tip at the text says why, by signs that need no translation.

    An undo in a text takes back one digit, one deletion or one paste that was made in it. It reaches back to where the
    text was last set from elsewhere: by the other text, the grid, Reset or setByteArray().

    The two texts make sense up to some kilobytes: every one of their digits is a position in an input mask, and a
    change sets and paints them whole. At 1 KiB that is a third of a frame of 16 ms, from 8 KiB on it is a whole frame
    and more, at 64 KiB a tenth of a second. The grid has no such limit.
*/
class TESSERA_EXPORT CBitDialog : public QDialog
{
    Q_OBJECT

public:
    explicit CBitDialog(QWidget* parent = nullptr);
    CBitDialog(const QByteArray& byteArray, const QMap<int, QString>& bitDescMap, QWidget* parent = nullptr);
    ~CBitDialog() override;

    /*!
        Lets the user edit \a byteArray in a modal dialog of half the screen's size, with the descriptions of
        \a bitDescMap by bit position. The answer is the edited array, or a null array on a cancel: test isNull(), an
        empty array is a result. An empty \a title leaves the dialog's own.
    */
    static QByteArray getByteArray(const QByteArray& byteArray, const QMap<int, QString>& bitDescMap,
                                   QWidget* parent = nullptr, const QString& title = QString());

    //! The array to edit, and to return to on Reset. With an empty one both texts are disabled.
    void setByteArray(const QByteArray& byteArray);
    const QByteArray& byteArray() const; //!< as edited so far

    void setBitDescMap(const QMap<int, QString>& bitDescMap);
    const QMap<int, QString>& bitDescMap() const;

    //! \name The dialog's own buttons: OK, Cancel and Reset
    //! @{
    QDialogButtonBox* buttonBox() const;
    QPushButton* button(QDialogButtonBox::StandardButton which) const;      //!< null when there is no such button
    void setBtnEnable(QDialogButtonBox::StandardButton which, bool enable); //!< nothing when there is none
    //! @}

protected:
    void showEvent(QShowEvent* event) override;

private Q_SLOTS:
    void slotUpdateUI(const QByteArray& tByteArray, int nFlag);
    void slotBtnResetClicked();
    void slotTableModelChanged(const QByteArray& tByteArray);
    void slotLEditHexTextChanged(const QString& sText);
    void slotLEditBinTextChanged(const QString& sText);

private:
    struct PrivateData;

    void initUI();
    void initConnect();

    std::unique_ptr<PrivateData> m_pData;
};

} // namespace nsUI
