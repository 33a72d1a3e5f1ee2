// SPDX-License-Identifier: MIT
#pragma once

#include <Tessera/TesseraExport.h>

#include <QColor>
#include <QFlags>
#include <QString>
#include <QTextBrowser>

namespace nsUI {

/*!
    A text browser for a log in colours, with a context menu to which an entry "Clear" can be added.

    A link in the text is followed as in every QTextBrowser, which loses the log: call setOpenLinks(false) where text can
    hold one, and connect anchorClicked() where it is to be opened.
*/
class TESSERA_EXPORT CustomTextBrowser : public QTextBrowser
{
    Q_OBJECT

public:
    //! What the context menu offers besides the standard entries. Other bits are kept, and mean nothing.
    enum eMenuActionFlag : int {
        MenuActClear = 0x1 //!< "Clear", which empties the browser, at the end
    };

    explicit CustomTextBrowser(QWidget* parent = nullptr);

    /*!
        Appends \a text as a paragraph of its own in \a color, or in the browser's usual colour when that is invalid.
        The alpha of \a color is dropped. Markup in \a text counts as such: escape what is not meant to
        (QString::toHtmlEscaped()).
    */
    void appendColorText(const QString& text, const QColor& color);

    QFlags<eMenuActionFlag> menuActFlags() const; //!< none in a new browser
    void setMenuActFlags(QFlags<eMenuActionFlag> flags);
    void setMenuActFlag(eMenuActionFlag flag, bool on);
    bool testMenuActFlag(eMenuActionFlag flag) const; //!< whether any of the bits of \a flag is set

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    QFlags<eMenuActionFlag> m_nMenuActFlags;
};

} // namespace nsUI
