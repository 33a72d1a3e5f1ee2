// SPDX-License-Identifier: MIT
#include "svd/SvdText.h"

namespace registers {

namespace {

bool isSpace(QChar c)
{
    const char16_t code = c.unicode();
    return code < 0x80 ? (code == u' ' || (code >= 0x09 && code <= 0x0d)) : c.isSpace();
}

} // namespace

QString SvdStrings::string(QStringView text)
{
    if (text.size() > kLongestKept) {
        return text.toString();
    }
    quint32 hash = quint32(text.size());
    for (const QChar c : text) {
        hash = (hash ^ c.unicode()) * 16777619u;
    }
    QString& kept = m_kept[(hash ^ (hash >> 16)) % kSlotCount];
    if (kept != text) {
        kept = text.toString();
    }
    return kept;
}

QString SvdStrings::simplified(QStringView text)
{
    m_buffer.resize(int(text.size()));
    QChar* const begin = m_buffer.data();
    QChar* end = begin;
    bool spaceIsDue = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (isSpace(c)) {
            spaceIsDue = true;
        } else if (c == QLatin1Char('\\') && i + 1 < text.size() && text.at(i + 1) == QLatin1Char('n')) {
            spaceIsDue = true;
            ++i;
        } else {
            if (spaceIsDue && end != begin) {
                *end++ = QLatin1Char(' ');
            }
            spaceIsDue = false;
            *end++ = c;
        }
    }
    return string(QStringView(begin, end));
}

} // namespace registers
