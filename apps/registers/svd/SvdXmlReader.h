// SPDX-License-Identifier: MIT
#pragma once

#include "svd/SvdDescription.h"
#include "svd/SvdTag.h"
#include "svd/SvdText.h"

#include <QXmlStreamReader>

#include <optional>

class QIODevice;

namespace registers {

class SvdProgressMeter;

/// Moves through the XML of a description, and reads the texts of elements that have no children.
///
/// The first problem ends everything: from then on nextChild() finds no more children, so those who read run out by
/// themselves and need not ask after every step.
class SvdXmlReader
{
public:
    const SvdProblem& problem() const { return m_problem; }

protected:
    static constexpr qint32 kBitLimit = 64; ///< bits lie below it

    SvdXmlReader(QIODevice& input, SvdProgressMeter& meter);

    /// True when a problem was found, or reading was cancelled.
    bool isOver() const { return m_isOver; }
    /// The present element.
    SvdTag childTag() const { return svdTag(m_xml.name()); }
    /// Where the present child begins.
    const SvdPosition& childPosition() const { return m_position; }

    // Moving through the XML.
    bool nextChild();
    void skipElement();
    void findRoot();
    void readToEnd();

    // Problems.
    void fail(const SvdPosition& position, const QString& message);
    void failOnText(const QString& expected);
    void requireName(const QString& name, const SvdPosition& position, const char* element);

    // The texts of elements without children.
    QStringView readText();
    /// The text that was read last, once more.
    QString lastText() { return m_strings.string(QStringView(m_text).trimmed()); }
    QString readName();
    QString readDescription();
    QString readReference();
    std::optional<quint64> readNumber();
    std::optional<Access> readAccess();
    std::optional<RawUsage> readUsage();
    bool readBool();
    bool readReadAction();
    qint32 readBit(qint32 limit, const char* meaning);
    void readBitRange(RawBits* bits);

private:
    QXmlStreamReader::TokenType advance();
    SvdPosition position() const;
    void tick();
    void failInXml();

    SvdProgressMeter& m_meter;
    QXmlStreamReader m_xml;
    SvdStrings m_strings;
    QString m_text;         ///< of the element read last; its memory serves again and again
    SvdPosition m_position; ///< where the present child begins
    QByteArray m_head;      ///< the beginning of the input
    SvdProblem m_problem;
    int m_depth = 0;
    quint32 m_tokens = 0;
    bool m_isOver = false; ///< a problem was found, or reading was cancelled
};

} // namespace registers
