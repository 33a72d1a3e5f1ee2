// SPDX-License-Identifier: MIT
#pragma once

#include <Tessera/TesseraExport.h>

#include <QBoxLayout>
#include <QList>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QCheckBox;
class QSvgWidget;
QT_END_NAMESPACE

namespace nsUI {

/*!
    A row or column of named steps with arrows between them, for pages that are gone through in order.

    The current step is the one whose box is checked; the library's style sheet hides the boxes themselves and tells
    the steps apart by colour. The bar never moves by itself: it reports a click with sigStepClicked(), and the host
    decides whether to call slotSetCurrentStep(). In a new bar the steps cannot be clicked at all.

    The host's resources hold the arrows, ":/svg/primary/arrow-forward.svg", "arrow-back.svg", "arrow-downward.svg" and
    "arrow-upward.svg" beside it. An arrow stands before its step and is as high and wide as the first step, from the
    next resize on; in a bar that is too small for its steps, as the first step should be.

    Steps are counted from 0. An ampersand in a step's text marks the letter behind it as the step's key with Alt, as
    in every button's text; "&&" shows one.
*/
class TESSERA_EXPORT CStepBar : public QWidget
{
    Q_OBJECT

public:
    //! Where the steps stand in the bar, from its start to its end in its direction.
    enum Alignment : int {
        AlignStart = 0,  //!< the room that is left comes after the steps
        AlignCenter = 1, //!< before and after them
        AlignEnd = 2     //!< before them
    };

    //! An empty bar, from left to right, centred, whose steps cannot be clicked.
    explicit CStepBar(QWidget* parent = nullptr);
    ~CStepBar() override;

    void addStep(const QString& text);
    void addStep(const QStringList& texts); //!< one step for each text, in order

    //! Puts a step before the one at \a index: at the front when that is negative, at the end when it is too large.
    void insertStep(int index, const QString& text);

    //! Deletes a step and its arrow; an \a index outside the steps is ignored. See setAlignment().
    void remove(int index);

    int count() const;
    int currentIndex();                //!< the first checked step; -1 when none is
    QString stepText(int index) const; //!< empty when \a index is outside the steps

    //! Whether steps can be clicked, for all steps and for those to come. Does nothing when that is so already.
    void setStepEnabled(bool enabled);

    //! The same for one step, as long as steps can be clicked; ignored otherwise, as is an \a index outside the steps.
    void setStepEnabled(int index, bool enabled);

    /*!
        Lays the steps out in \a direction, with arrows that point there. Where text runs from the right (layoutDirection()),
        Qt mirrors a row, and LeftToRight has the first step on the right; the arrows show that, and follow when it changes.
    */
    void setDirection(QBoxLayout::Direction direction);

    /*!
        Rearranges the room around the steps. Call it once, after all steps are in.

        The bar goes on counting places as in a centred one. So AlignCenter, which it believes to have, does nothing;
        after AlignStart a step that is inserted comes one place too far back, and one that is removed takes the next
        step's arrow along in the place of its own; and after any other alignment than AlignCenter, a second call
        takes the outermost two things out of the layout, whatever they are.
    */
    void setAlignment(Alignment alignment);

    //! Checks the step at \a index and no other; none at all when \a index is outside the steps. Signals nothing.
    void slotSetCurrentStep(int index);

Q_SIGNALS:
    /*!
        The step at \a nIndex was clicked. Its check, which the click has turned over, is turned back before. A press
        that is dragged off the step counts as well; nothing has turned its check over then, but this does. A step that
        is disabled while it is pressed is not clicked.
    */
    void sigStepClicked(int nIndex);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void slotStepClicked();
    QString getCurIconPath() const;
    void updateIcon();
    void updateIconVisible();
    int layoutIndex(int nStep) const;

    // Guarded: what the layout holds at a step's place can be another step's widget.
    QList<QPointer<QCheckBox>> m_tBoxes;
    QList<QPointer<QSvgWidget>> m_tIcons; // the arrow before each box
    QBoxLayout* m_pLayout = nullptr;
    const Alignment m_nAlignment = AlignCenter; // what places are counted by, whatever setAlignment() made of it
    bool m_bStepEnabled = false;
};

} // namespace nsUI
