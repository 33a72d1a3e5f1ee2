// SPDX-License-Identifier: MIT
#include "CDigitsEdit.h"

#include "DigitsText_p.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QDragLeaveEvent>
#include <QDropEvent>
#include <QFont>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QTimer>
#include <QToolTip>
#include <QValidator>

#include <algorithm>

namespace nsUI {
namespace {

constexpr int c_nHex = 16;

QChar blank()
{
    return QLatin1Char(' ');
}

//! One group of digits a byte; '>' turns what is typed behind it into upper case.
QString hexMask(int nBytes)
{
    QString sMask = QStringLiteral(" HH").repeated(nBytes);
    sMask[0] = QLatin1Char('>');
    return sMask;
}

QString binMask(int nBytes)
{
    return QStringLiteral(" BBBBBBBB").repeated(nBytes).mid(1);
}

//! Whether no digit is missing: all blanks stand between bytes.
bool isComplete(const QString& sText, int nGroup)
{
    return sText.count(blank()) == sText.size() / (nGroup + 1);
}

//! For a mask every script has digits. This stands behind whatever inserts text, also where code calls it.
class AsciiDigits : public QValidator
{
public:
    AsciiDigits(int nGroup, QObject* pParent)
        : QValidator(pParent)
        , m_nGroup(nGroup)
    {
    }

    State validate(QString& sText, int&) const override
    {
        if (!std::all_of(sText.cbegin(), sText.cend(), [](QChar c) { return c.unicode() < 0x80; }))
            return Invalid;
        return isComplete(sText, m_nGroup) ? Acceptable : Intermediate;
    }

private:
    const int m_nGroup;
};

//! Whether Qt would insert the key's text. Its control characters are keys like Delete; Ctrl and Alt make AltGr.
bool insertsText(const QKeyEvent& event)
{
    const bool isCommand = (event.modifiers() & Qt::ControlModifier) && !(event.modifiers() & Qt::AltModifier);
    return !event.text().isEmpty() && event.text().at(0).category() != QChar::Other_Control && !isCommand;
}

//! What moves the cursor or selects. The rest belongs to a text that is being composed.
QList<QInputMethodEvent::Attribute> selections(const QInputMethodEvent& event)
{
    QList<QInputMethodEvent::Attribute> attributes;
    for (const QInputMethodEvent::Attribute& attribute : event.attributes()) {
        if (attribute.type == QInputMethodEvent::Selection)
            attributes << attribute;
    }
    return attributes;
}

QPoint positionOf(const QDropEvent& event)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return event.position().toPoint();
#else
    return event.pos();
#endif
}

} // namespace

CDigitsEdit::CDigitsEdit(int nBase, QWidget* parent)
    : QLineEdit(parent)
    , m_nBase(nBase)
    , m_nGroup(nBase == c_nHex ? 2 : 8)
{
    // Every font has these digits and sets them side by side, so what Qt does for all other writing is left out: a long
    // text is laid out and painted in two thirds of the time. All else of the font is inherited.
    QFont font;
    font.setStyleStrategy(static_cast<QFont::StyleStrategy>(QFont::PreferNoShaping | QFont::NoFontMerging));
    font.setKerning(false);
    setFont(font);
    setInputMethodHints(Qt::ImhLatinOnly | Qt::ImhNoPredictiveText);
    connect(this, &QLineEdit::textEdited, this, &CDigitsEdit::keepStep);
    connect(this, &QLineEdit::textChanged, this, &CDigitsEdit::followText);
    connect(this, &QLineEdit::cursorPositionChanged, this, &CDigitsEdit::keepPlace);
    connect(this, &QLineEdit::selectionChanged, this, &CDigitsEdit::keepPlace);
}

void CDigitsEdit::setByteCount(int nBytes)
{
    m_nDigits = nBytes * m_nGroup;
    if (!validator())
        setValidator(new AsciiDigits(m_nGroup, this));
    setInputMask(m_nBase == c_nHex ? hexMask(nBytes) : binMask(nBytes));
}

void CDigitsEdit::setDigits(const QString& sText)
{
    setText(sText);
    forgetSteps();
}

CDigitsEdit::Place CDigitsEdit::place() const
{
    const int nCursor = cursorPosition();
    if (!hasSelectedText())
        return {nCursor, nCursor};
    return {nCursor, nCursor == selectionStart() ? selectionEnd() : selectionStart()};
}

void CDigitsEdit::keyPressEvent(QKeyEvent* event)
{
    if (!takesDigits())
        return QLineEdit::keyPressEvent(event);
    if (event->matches(QKeySequence::Paste)) {
        // The third key of the X11 schemes is for what is selected, not for what was copied.
        const bool isSelection =
            event->modifiers() == (Qt::ControlModifier | Qt::ShiftModifier) && event->key() == Qt::Key_Insert;
        pasteHere(QApplication::clipboard()->text(isSelection ? QClipboard::Selection : QClipboard::Clipboard));
    } else if (event->matches(QKeySequence::Undo)) {
        undo();
    } else if (event->matches(QKeySequence::Redo)) {
        redo();
    } else if (insertsText(*event) && !DigitsText::isTyped(event->text(), m_nBase)) {
        Q_EMIT inputRejected();
    } else {
        return QLineEdit::keyPressEvent(event);
    }
    event->accept();
}

void CDigitsEdit::inputMethodEvent(QInputMethodEvent* event)
{
    if (isReadOnly()) // Qt 6.4 leaves that to the input method
        return event->ignore();
    if (!takesDigits())
        return QLineEdit::inputMethodEvent(event);
    event->accept();
    const QString& sCommit = event->commitString();
    if (sCommit.size() > 1)
        return pasteHere(sCommit);
    if (!DigitsText::isTyped(sCommit, m_nBase)) {
        Q_EMIT inputRejected();
        return;
    }
    // What is being composed is not shown: for it Qt would remove what is selected, and it may be refused yet.
    QInputMethodEvent committed(QString(), selections(*event));
    committed.setCommitString(sCommit, event->replacementStart(), event->replacementLength());
    const Place before = m_place;
    const std::size_t nDone = m_nDone;
    QLineEdit::inputMethodEvent(&committed);
    if (m_nDone > nDone)
        m_steps[m_nDone - 1].before = before; // Qt moves the cursor before it tells of the edit
}

void CDigitsEdit::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::MiddleButton)
        m_start = place();
    QLineEdit::mousePressEvent(event);
}

void CDigitsEdit::mouseReleaseEvent(QMouseEvent* event)
{
    const Place before = m_start.value_or(place());
    m_start.reset();
    const QClipboard* const pClipboard = QApplication::clipboard();
    if (event->button() == Qt::MiddleButton && takesDigits() && pClipboard->supportsSelection())
        pasteAt(pClipboard->text(QClipboard::Selection), cursorPosition(), before);
    else
        QLineEdit::mouseReleaseEvent(event);
}

void CDigitsEdit::contextMenuEvent(QContextMenuEvent* event)
{
    enum { UndoAction = 0, RedoAction = 1, PasteAction = 5 }; // Qt's order is all that tells them apart

    QMenu* const pMenu = createStandardContextMenu();
    pMenu->setAttribute(Qt::WA_DeleteOnClose);
    if (takesDigits()) {
        const auto rewire = [this, pMenu](int nAction, auto act) {
            QAction* const pAction = pMenu->actions().at(nAction);
            pAction->disconnect(this);
            connect(pAction, &QAction::triggered, this, act);
            return pAction;
        };
        rewire(UndoAction, [this] { undo(); })->setEnabled(m_nDone > 0);
        rewire(RedoAction, [this] { redo(); })->setEnabled(m_nDone < m_steps.size());
        rewire(PasteAction, [this] { pasteHere(QApplication::clipboard()->text()); });
    }
    pMenu->popup(event->globalPos());
}

void CDigitsEdit::dragEnterEvent(QDragEnterEvent* event)
{
    m_start = place();
    QLineEdit::dragEnterEvent(event);
}

void CDigitsEdit::dropEvent(QDropEvent* event)
{
    const Place before = m_start.value_or(place());
    m_start.reset();
    if (!takesDigits() || !event->mimeData()->hasText())
        return QLineEdit::dropEvent(event);
    QDragLeaveEvent leave; // a drag shows the cursor without the focus
    QLineEdit::dragLeaveEvent(&leave);
    if (pasteAt(event->mimeData()->text(), cursorPositionAt(positionOf(*event)), before))
        event->acceptProposedAction();
    else
        event->ignore();
}

void CDigitsEdit::pasteHere(const QString& sText)
{
    pasteAt(sText, hasSelectedText() ? selectionStart() : cursorPosition(), place());
}

//! Takes \a sText at \a nPos, or tells why not. \a before is the place to return to: from a refusal, and by an undo.
bool CDigitsEdit::pasteAt(const QString& sText, int nPos, const Place& before)
{
    if (sText.isEmpty())
        return false;
    const DigitsText::Field field{m_nBase, m_nDigits, nPos - nPos / (m_nGroup + 1)};
    const DigitsText::Reading reading = DigitsText::read(sText, field);
    if (reading.verdict != DigitsText::Verdict::Fits) {
        setPlace(before);
        showRefusal(DigitsText::refusal(sText, field, reading));
        return false;
    }
    {
        // What is selected begins an undo step in Qt's own history. One digit will do, for it is overwritten.
        const QSignalBlocker blocker(this);
        setSelection(reading.nFrom + reading.nFrom / m_nGroup, 1);
    }
    m_place = before;
    insert(reading.sDigits);
    return true;
}

void CDigitsEdit::showRefusal(const QString& sTip)
{
    constexpr int c_nSettled = 100; // ms
    const auto show = [this] {
        QToolTip::showText(mapToGlobal(QPoint(cursorRect().left(), rect().center().y())), m_sRefusal, this);
    };
    m_sRefusal = sTip;
    show();
    // A menu or a drag that ends gives the focus back, and that takes every tool tip away.
    QTimer::singleShot(c_nSettled, this, [this, show] {
        if (!m_sRefusal.isEmpty() && isVisible() && !QToolTip::isVisible())
            show();
    });
}

void CDigitsEdit::hideRefusal()
{
    if (!m_sRefusal.isEmpty() && QToolTip::text() == m_sRefusal)
        QToolTip::hideText();
}

void CDigitsEdit::undo()
{
    if (m_nDone == 0)
        return;
    const Step step = m_steps[--m_nDone];
    apply(step.nPos, step.sBefore, step.before);
}

void CDigitsEdit::redo()
{
    if (m_nDone == m_steps.size())
        return;
    const Step step = m_steps[m_nDone++];
    apply(step.nPos, step.sAfter, step.after);
}

void CDigitsEdit::apply(int nPos, const QString& sText, const Place& place)
{
    QString sWhole = m_sKnown;
    m_sKnown = sWhole.replace(nPos, static_cast<int>(sText.size()), sText);
    if (isComplete(sWhole, m_nGroup))
        replaceText(sWhole);
    else
        write(nPos, sText);
    setPlace(place);
    keepPlace();
}

//! Sets a whole text as an edit. An insertion would be two commands a digit in Qt's own history, time after time.
void CDigitsEdit::replaceText(const QString& sText)
{
    {
        const QSignalBlocker blocker(this);
        setText(sText);
    }
    Q_EMIT textEdited(sText);
    Q_EMIT textChanged(sText);
}

/*!
    Writes a piece of a text that lacks digits, as one edit for whoever listens. Qt takes no blank in the place of a
    digit, so what is there and what is missing go in turn.
*/
void CDigitsEdit::write(int nPos, const QString& sText)
{
    const int nSize = static_cast<int>(sText.size());
    QSignalBlocker blocker(this);
    for (int nFrom = 0, nTo = 0; nFrom < nSize; nFrom = nTo) {
        const bool isMissing = sText.at(nFrom) == blank();
        while (nTo < nSize && (isSeparator(nPos + nTo) || (sText.at(nTo) == blank()) == isMissing))
            ++nTo;
        setSelection(nPos + nFrom, isMissing ? nTo - nFrom : 1);
        if (nTo == nSize)
            blocker.unblock();
        if (isMissing)
            del();
        else
            insert(sText.mid(nFrom, nTo - nFrom));
    }
}

void CDigitsEdit::keepStep()
{
    hideRefusal();
    const QString sNow = displayText();
    if (sNow.size() != m_sKnown.size())
        return forgetSteps();
    const auto first = std::mismatch(sNow.cbegin(), sNow.cend(), m_sKnown.cbegin());
    if (first.first == sNow.cend())
        return;
    const auto last = std::mismatch(sNow.crbegin(), sNow.crend(), m_sKnown.crbegin());
    const int nFrom = static_cast<int>(first.first - sNow.cbegin());
    const int nLength = static_cast<int>(last.first.base() - first.first);
    m_steps.resize(m_nDone);
    m_steps.push_back({nFrom, m_sKnown.mid(nFrom, nLength), sNow.mid(nFrom, nLength), m_place, place()});
    ++m_nDone;
    m_sKnown = sNow;
}

void CDigitsEdit::followText()
{
    if (displayText() != m_sKnown)
        forgetSteps();
}

void CDigitsEdit::forgetSteps()
{
    m_steps.clear();
    m_nDone = 0;
    m_sKnown = displayText();
}

} // namespace nsUI
