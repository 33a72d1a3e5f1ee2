// SPDX-License-Identifier: MIT
#include "svd/SvdInput.h"

#include <algorithm>
#include <cstring>

namespace registers {

namespace {

constexpr quint8 kLowestTail = 0x80;
constexpr quint8 kHighestTail = 0xbf;
constexpr quint64 kEachByte = 0x0101010101010101u;
constexpr quint64 kHighBits = kEachByte * 0x80;
constexpr quint64 kBeyondLineEnds = 0x0e; ///< the bytes from here on end no line

bool isBefore(const SvdPosition& a, const SvdPosition& b)
{
    return a.line < b.line || (a.line == b.line && a.column < b.column);
}

/// True when all of eight bytes are ASCII and none ends a line.
bool isPlain(const char* bytes)
{
    quint64 word = 0;
    std::memcpy(&word, bytes, sizeof word);
    return ((word | (word - kEachByte * kBeyondLineEnds)) & kHighBits) == 0;
}

bool isOtherUnicode(const QByteArray& head)
{
    return head.startsWith("\xFE\xFF") || head.startsWith("\xFF\xFE") || head.startsWith('\0');
}

} // namespace

SvdInput::SvdInput(QIODevice& source)
    : m_source(source)
    , m_isLooking(!isOtherUnicode(source.peek(2)))
{
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

bool SvdInput::atEnd() const
{
    return m_source.atEnd();
}

qint64 SvdInput::bytesAvailable() const
{
    return m_source.bytesAvailable();
}

SvdPosition SvdInput::inCharacters(const SvdPosition& position) const
{
    const auto first = std::lower_bound(m_pairs.cbegin(), m_pairs.cend(), SvdPosition{position.line, 1}, isBefore);
    const auto last = std::lower_bound(first, m_pairs.cend(), position, isBefore);
    return {position.line, position.column - qint32(last - first)};
}

qint64 SvdInput::readData(char* data, qint64 maxSize)
{
    const qint64 size = m_source.read(data, maxSize);
    look(data, size);
    return size;
}

qint64 SvdInput::writeData(const char*, qint64)
{
    return -1;
}

void SvdInput::look(const char* data, qint64 size)
{
    constexpr qint64 kWord = sizeof(quint64);
    qint64 i = 0;
    while (m_isLooking && i < size) {
        if (m_pending.missing == 0 && i + kWord <= size && isPlain(data + i)) {
            m_position.column += qint32(kWord);
            m_isAfterReturn = false;
            m_isAtStart = false;
            i += kWord;
        } else {
            lookAt(quint8(data[i]));
            ++i;
        }
    }
}

void SvdInput::lookAt(quint8 byte)
{
    if (m_pending.missing == 0) {
        begin(byte);
    } else if (byte < m_pending.lowest || byte > m_pending.highest) {
        noteWrong();
    } else {
        m_pending.lowest = kLowestTail;
        m_pending.highest = kHighestTail;
        if (--m_pending.missing == 0) {
            finish();
        }
    }
}

void SvdInput::begin(quint8 byte)
{
    if (byte < 0x80) {
        beginAscii(byte);
        return;
    }
    m_isAfterReturn = false;
    m_pending = {m_position, byte, 0, kLowestTail, kHighestTail};
    // Neither longer forms of what is short, nor halves of pairs, nor what lies behind the last plane.
    if (byte >= 0xc2 && byte <= 0xdf) {
        m_pending.missing = 1;
    } else if (byte >= 0xe0 && byte <= 0xef) {
        m_pending.missing = 2;
        m_pending.lowest = byte == 0xe0 ? 0xa0 : kLowestTail;
        m_pending.highest = byte == 0xed ? 0x9f : kHighestTail;
    } else if (byte >= 0xf0 && byte <= 0xf4) {
        m_pending.missing = 3;
        m_pending.lowest = byte == 0xf0 ? 0x90 : kLowestTail;
        m_pending.highest = byte == 0xf4 ? 0x8f : kHighestTail;
    } else {
        noteWrong();
    }
}

void SvdInput::beginAscii(quint8 byte)
{
    const bool isReturn = byte == '\r';
    if (byte == '\n' && m_isAfterReturn) {
        m_isAfterReturn = false; // one line end with what came before
        return;
    }
    if (isReturn || byte == '\n') {
        m_position = {m_position.line + 1, 1};
    } else {
        ++m_position.column;
    }
    m_isAfterReturn = isReturn;
    m_isAtStart = false;
}

void SvdInput::finish()
{
    constexpr quint8 kLeadOfMark = 0xef;
    const bool isMark = m_isAtStart && m_pending.lead == kLeadOfMark; // a byte order mark takes no place
    m_isAtStart = false;
    if (isMark) {
        return;
    }
    const bool isPair = m_pending.lead >= 0xf0;
    if (isPair) {
        m_pairs.push_back(m_pending.position);
    }
    m_position.column += isPair ? 2 : 1;
}

void SvdInput::noteWrong()
{
    m_wrongByte = WrongByte{inCharacters(m_pending.position), m_pending.lead};
    m_isLooking = false;
}

} // namespace registers
