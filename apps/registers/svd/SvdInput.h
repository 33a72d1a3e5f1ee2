// SPDX-License-Identifier: MIT
#pragma once

#include "svd/SvdDescription.h"

#include <QIODevice>

#include <optional>
#include <vector>

namespace registers {

/// Hands on the bytes of a description, and notes in them what the reader of its XML does not tell: which byte is not
/// UTF-8, and which characters count twice because UTF-16 needs two units for them. Both mean something only where the
/// description is in UTF-8.
class SvdInput : public QIODevice
{
public:
    struct WrongByte
    {
        SvdPosition position;
        quint8 value = 0;
    };

    explicit SvdInput(QIODevice& source);

    bool isSequential() const override { return true; }
    bool atEnd() const override;
    qint64 bytesAvailable() const override;

    /// The first byte that does not belong to UTF-8, if it has been read.
    const std::optional<WrongByte>& wrongByte() const { return m_wrongByte; }
    bool hasPairs() const { return !m_pairs.empty(); }
    /// @p position, whose column counts units of UTF-16, with characters counted.
    SvdPosition inCharacters(const SvdPosition& position) const;

protected:
    qint64 readData(char* data, qint64 maxSize) override;
    qint64 writeData(const char* data, qint64 size) override;

private:
    /// A character that is not complete yet.
    struct Pending
    {
        SvdPosition position;
        quint8 lead = 0;
        int missing = 0;      ///< bytes to come
        quint8 lowest = 0x80; ///< what the next may be
        quint8 highest = 0xbf;
    };

    void look(const char* data, qint64 size);
    void lookAt(quint8 byte);
    void begin(quint8 byte);
    void beginAscii(quint8 byte);
    void finish();
    void noteWrong();

    QIODevice& m_source;
    std::optional<WrongByte> m_wrongByte;
    std::vector<SvdPosition> m_pairs; ///< the characters of two units, in their order
    Pending m_pending;
    SvdPosition m_position{1, 1}; ///< of what comes next
    bool m_isLooking = true;
    bool m_isAfterReturn = false;
    bool m_isAtStart = true;
};

} // namespace registers
