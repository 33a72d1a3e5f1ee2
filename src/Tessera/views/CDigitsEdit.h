// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>
#include <QString>

#include <cstddef>
#include <optional>
#include <vector>

namespace nsUI {

/*!
    A line of hexadecimal or binary digits, grouped by bytes, behind an input mask with a place for each of them.

    Of what is typed only ASCII digits and blanks get to the mask; all else is refused and changes nothing. A paste,
    whichever way it comes, is read as a number (DigitsText): as many digits as the whole value has replace it all, fewer
    overwrite what stands from the cursor or the selection's start on. What does not fit changes nothing, and a tool tip
    at the field says why.

    An undo takes back one digit, one deletion or one paste and is sent by textEdited(), as every edit. A text that is
    set by code ends the history, as it does in a QLineEdit.

    QLineEdit's functions that insert, paste and undo are not virtual. Called by code they are Qt's: they fill the mask
    as far as the text goes, and what they do can be taken back here. Qt's own undo knows what was edited since the last
    undo or redo here.

    It has no meta-object of its own: to a host's style sheets it is the QLineEdit that it looks like.
*/
class CDigitsEdit : public QLineEdit
{
public:
    //! \a nBase is 2 or 16.
    explicit CDigitsEdit(int nBase, QWidget* parent = nullptr);

    //! Makes the mask for \a nBytes bytes, 1 at least. Until then this is a line edit for any text.
    void setByteCount(int nBytes);

    //! Shows \a sText, which no undo takes back, not even if it was there before.
    void setDigits(const QString& sText);

    void undo();
    void redo();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    struct Place
    {
        int nCursor = 0;
        int nAnchor = 0; //!< the selection's other end; the cursor where nothing is selected
    };

    //! The text has the mask's length always, so a change is a piece of it before and after.
    struct Step
    {
        int nPos;
        QString sBefore;
        QString sAfter;
        Place before;
        Place after;
    };

    bool takesDigits() const { return m_nDigits > 0 && !isReadOnly(); }
    bool isSeparator(int nPos) const { return nPos % (m_nGroup + 1) == m_nGroup; }
    Place place() const;
    void setPlace(const Place& place) { setSelection(place.nAnchor, place.nCursor - place.nAnchor); }
    void keepPlace() { m_place = place(); }

    void pasteHere(const QString& sText);
    bool pasteAt(const QString& sText, int nPos, const Place& before);
    void showRefusal(const QString& sTip);
    void hideRefusal();

    void keepStep();
    void followText();
    void forgetSteps();
    void apply(int nPos, const QString& sText, const Place& place);
    void replaceText(const QString& sText);
    void write(int nPos, const QString& sText);

    const int m_nBase;
    const int m_nGroup; // digits of a byte
    int m_nDigits = 0;  // of the whole value

    QString m_sKnown;             // the text after the last step
    Place m_place;                // before the edit that is going on
    std::optional<Place> m_start; // before a drag or a press moved the cursor
    std::vector<Step> m_steps;
    std::size_t m_nDone = 0; // steps that an undo takes back; those behind them are for a redo
    QString m_sRefusal;      // the tool tip that tells of one
};

} // namespace nsUI
