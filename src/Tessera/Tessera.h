// SPDX-License-Identifier: MIT
#pragma once

#include <Tessera/TesseraExport.h>

#include <QColor>
#include <QFont>
#include <QHash>
#include <QList>
#include <QSettings>
#include <QSharedPointer>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <initializer_list>
#include <memory>

QT_BEGIN_NAMESPACE
class QComboBox;
class QObject;
class QTextBrowser;
class QWidget;
QT_END_NAMESPACE

namespace nsUI {

//! The integer spin boxes by type code: the magnitude is the width in bits, the sign tells signed from unsigned.
enum e_ISpx_Type : int {
    e_ISpx_I8 = -8,
    e_ISpx_I16 = -16,
    e_ISpx_I32 = -32,
    e_ISpx_I64 = -64,
    e_ISpx_U8 = 8,
    e_ISpx_U16 = 16,
    e_ISpx_U32 = 32,
    e_ISpx_U64 = 64
};

//! The palette's colour families.
enum e_ColorType : quint8 { e_Primary, e_Success, e_Info, e_Warning, e_Danger };

//! The palette's lightness steps, 100 the lightest.
enum e_ColorLightness : quint8 { e_L100, e_L200, e_L300, e_L400, e_L500, e_L600, e_L700, e_L800, e_L900 };

/*!
    The application font as the user chose it: a plain value, stored as one group of settings.

    The keys are "Familys" (a string list), "PointSize", "Bold" and "Italic"; the first is spelled so in every store
    that exists. Two groups are in use: "Setting_AppFont" holds the user's choice, "AppFont" the font in effect.
*/
struct TESSERA_EXPORT tagAppFont
{
    QStringList families; //!< in order of preference
    int pointSize = 10;   //!< in points
    bool bold = false;
    bool italic = false;

    //! JetBrains Mono, else Arial, at 10 points, neither bold nor italic.
    tagAppFont();

    /*!
        Takes over what \a group of \a settings holds, key by key: a key that is absent leaves its field as it is, so
        a second group can be read over a first. Values of another type convert as QVariant does. \a settings must
        not be null.
    */
    void readSettings(QSharedPointer<QSettings> settings, const QString& group);

    //! Writes all four keys. \a settings must not be null.
    void writeSettings(QSharedPointer<QSettings> settings, const QString& group) const;

    //! The application's font with the first family, if there is one, and this size, weight and style.
    QFont toFont() const;

    //! A style sheet rule for every widget, "*{...}", with all families; it ends with a line feed.
    QString toStyleSheet() const;
};

/*!
    The library's services: spin boxes by type code, style sheets, the application font, the colour palette and small
    helpers for widgets.

    There is one object in a process. Only its creation may happen in any thread; everything else belongs to the
    thread of the GUI.
*/
class TESSERA_EXPORT TesseraGlobal
{
public:
    /*!
        The one object. The first call creates it: it reads the palette, then logs "Tessera Singleton Create Begin",
        registers the host's fonts (initFont()) and logs "Tessera Singleton Create End", both as debug messages. A
        palette that cannot be read is logged before that as a critical message and leaves getColor() without
        colours; nothing stops the creation.

        Called before there is a QApplication, it cannot register fonts, and a warning tells so. The object is good all the
        same, and initFont() registers them later.
    */
    static TesseraGlobal& instance();

    ~TesseraGlobal();

    //! \name Integer spin boxes by type code
    //! @{

    /*!
        A new spin box, owned by \a parent; never null. \a settings is keyed by item data roles:

        | role | meaning                                  | when absent or invalid |
        |------|------------------------------------------|------------------------|
        | 263  | e_ISpx_Type                              | a CI32SpinBox          |
        | 264  | minimum, in the box's value type         | the box's default      |
        | 265  | maximum, in the box's value type         | the box's default      |
        | 266  | prefix                                   | none                   |
        | 267  | suffix                                   | none                   |
        | 268  | display integer base                     | 10                     |

        They are applied in this order. A type code that is not one of the eight makes a CI32SpinBox, a bound that
        does not convert is 0, and other roles are ignored. The box's tool tip is its shown text and follows its
        refreshes, not what is being typed.
    */
    static QWidget* ISP_create(QWidget* parent, const QHash<int, QVariant>& settings);

    /*!
        The value of a box made with \a type, in exactly its value type (a CI8SpinBox answers a signed char); an
        invalid variant when \a editor is null or not of the class that \a type names.
    */
    static QVariant ISP_getData(QWidget* editor, const e_ISpx_Type& type);

    /*!
        Sets the value of a box made with \a type, and selects its number if \a selectAll. A \a value that does not
        convert is set as 0. False, and nothing is set, when \a editor is null or not of the class that \a type names.
    */
    static bool ISP_setData(QWidget* editor, const e_ISpx_Type& type, const QVariant& value, bool selectAll);

    //! @}
    //! \name Style sheet and application font
    //! @{

    /*!
        Replaces the application's style sheet: the rule of the application font first, then the wanted sheets.

        \a names are file names of the resource folder ":/qss", with or without the suffix ".qss". The sheets follow
        one another as QDir lists the folder, by file name, whatever the order of \a names, and are read as UTF-8. Up to four
        messages tell, each with the names: wanted sheets that are missing and sheets that cannot be read (warnings),
        sheets that nobody asked for and sheets that were taken (information). With none of them the font rule is
        still applied.

        The font is the stored choice ("Setting_AppFont") over the font last in effect ("AppFont"), and is stored
        back as the latter.

        A \a dirPath that is not empty never applies a sheet at once: it names a folder to be polled, and is only
        looked at while polling is under way.
    */
    static void loadStyleSheet(const QStringList& names, const QString& dirPath);

    /*!
        Registers the host's fonts, the files "*.ttf" of ":/ttf", and logs their list as a debug message. Where there are
        some and no QGuiApplication yet, it registers none and logs a warning: call it again when there is one.
    */
    static void initFont();

    //! The font last put into effect by loadStyleSheet(), in this run or an earlier one; else the defaults.
    QFont getCurrentAppFont() const;

    //! @}
    //! \name Colours
    //! @{

    //! A colour of the palette; an invalid colour where the palette has none.
    QColor getColor(e_ColorType type, e_ColorLightness lightness) const;

    //! Black or white, whichever reads better on \a background (relative luminance of WCAG 2.0; alpha is ignored).
    static QColor getAdaptiveTextColor(const QColor& background);

    /*!
        The next of 510 opaque colours, none black or white, in an order that is shuffled once in a process; after
        the last comes the first again.
    */
    QColor getRandColor() const;

    //! @}
    //! \name Widgets
    //! @{

    /*!
        Gives \a object a tool tip. False when nothing was set.

        With a \a toolTip that is not null (it may be empty) that text is set on a widget or an action. With a null
        one the tool tip is the object's own text, for line edits, combo boxes (and their items), labels, buttons,
        actions and every spin box; for line edits and combo boxes it then follows every change of the text, for
        Qt's spin boxes every change of the value and for the integer boxes every refresh (not what is being typed),
        for as long as the object lives. A tool tip given as text does not end that: the next change replaces
        it.
    */
    bool autoSetToolTips(QObject* object, const QString& toolTip);

    //! The tool tip of each object from its own text; one answer for each, in order.
    QList<bool> autoSetToolTips(std::initializer_list<QObject*> objects);

    /*!
        Sizes and places a window by fractions of the primary screen's size.

        \a widthRatio and \a heightRatio give the size, \a xRatio and \a yRatio the centre. Bits of \a flags keep
        what is there: 0x20 the current width if it is larger, else 0x10 if it is smaller; 0x02 the current height
        if it is larger, else 0x01 if it is smaller. The position is counted from (0, 0), not from the screen's
        origin. The widget's own size limits hold, and it is centred with the size that results. A hidden widget is
        shown for the purpose and hidden again.

        A ratio outside 0.0 to 1.0 makes the call do nothing. \a widget must not be null.
    */
    static void resize(QWidget* widget, double widthRatio, double heightRatio, int flags = 0, double xRatio = 0.5,
                       double yRatio = 0.5);

    /*!
        Makes the first item whose data for \a role equals \a data the current one. False, and no change, when there
        is none. \a comboBox must not be null.
    */
    static bool setCbxCurrentData(QComboBox* comboBox, const QVariant& data, int role = Qt::UserRole);

    //! Appends a paragraph in \a color. Markup in \a text counts as such. \a browser must not be null.
    static void appendTextBrowserColor(QTextBrowser* browser, const QString& text, const QColor& color);

    //! @}

private:
    class PrivateData;

    TesseraGlobal();
    Q_DISABLE_COPY(TesseraGlobal)

    std::unique_ptr<PrivateData> m_pData;
};

} // namespace nsUI
