// SPDX-License-Identifier: MIT
#pragma once

#include <Tessera/TesseraExport.h>

#include <QScrollArea>

namespace nsUI {

/*!
    A scroll area that can keep its content as wide or as high as what is seen of it, so that it scrolls in the other
    direction only: a long form that is never wider than its window, say.

    The sizes are set on the content on every resize of the area and on every change of a type, never by setWidget():
    a content that is replaced gets them with the next resize. Without a content nothing is done.
*/
class TESSERA_EXPORT CScrollWdg : public QScrollArea
{
    Q_OBJECT

public:
    //! What one dimension of the content is fixed at. Any other value counts as AdaptiveNone.
    enum e_AdaptiveType : int {
        AdaptiveNone = 0,    //!< 16777215 pixels, the most a widget can have; Qt takes it as a maximum alone
        AdaptiveViewport = 1 //!< the viewport's size, so that this direction never scrolls
    };

    //! An area without a content, AdaptiveNone both ways, with a resizable widget.
    explicit CScrollWdg(QWidget* parent = nullptr);

    //! Each of these sets both dimensions of the content, and does nothing when the types are those it has already.
    void setWidthAdaptiveType(e_AdaptiveType type);
    void setHeightAdaptiveType(e_AdaptiveType type);
    void setSizeAdaptiveType(e_AdaptiveType type);
    void setSizeAdaptiveType(e_AdaptiveType widthType, e_AdaptiveType heightType);

protected:
    void adaptiveSize(); //!< fixes both dimensions of the content by their types
    void resizeEvent(QResizeEvent* event) override;

private:
    e_AdaptiveType m_nWidthType = AdaptiveNone;
    e_AdaptiveType m_nHeightType = AdaptiveNone;
};

} // namespace nsUI
