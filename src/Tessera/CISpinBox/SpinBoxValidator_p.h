// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringBuilder>
#include <QValidator>

namespace nsUI {

/*!
    What the line edit of an integer spin box asks at every change. It answers as the box's own validate() does, but for
    two things that a line edit has to know and validate() does not tell:

    - where the box put its prefix before the text, the cursor moves along with what was typed;
    - what the box itself shows is no wrong text, even where it cannot be read back. A line edit rolls a refused key
      back only from a text that was not refused before.
*/
template <class Box>
class SpinBoxValidator : public QValidator
{
public:
    SpinBoxValidator(const Box& box, QObject* pParent)
        : QValidator(pParent)
        , m_box(box)
    {
    }

    State validate(QString& sInput, int& nPos) const override
    {
        const QString sSpecial = m_box.specialValueText();
        if (!sSpecial.isEmpty() && sInput == sSpecial)
            return Acceptable;

        const QString sGiven = sInput;
        const int nGiven = nPos;
        const State state = m_box.validate(sInput, nPos);
        if (state == Invalid) {
            if (!isShown(sGiven))
                return Invalid;
            sInput = sGiven;
            nPos = nGiven;
            return Acceptable;
        }
        const QString sPrefix = m_box.prefix();
        if (!sGiven.startsWith(sPrefix) && sInput.startsWith(sPrefix))
            nPos += static_cast<int>(sPrefix.size());
        return state;
    }

    void fixup(QString& sInput) const override { m_box.fixup(sInput); }

private:
    bool isShown(const QString& sText) const
    {
        return sText == m_box.prefix() % m_box.textFromValue(m_box.value()) % m_box.suffix();
    }

    const Box& m_box;
};

} // namespace nsUI
