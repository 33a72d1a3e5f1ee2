// SPDX-License-Identifier: MIT
#pragma once

#include "svd/SvdDescription.h"
#include "svd/SvdInput.h"
#include "svd/SvdRemarks.h"
#include "svd/SvdTag.h"
#include "svd/SvdText.h"

#include <QXmlStreamReader>

#include <optional>

class QIODevice;

namespace registers {

class SvdProgressMeter;

/// Moves through the XML of a description, and reads the texts of elements that have no children.
///
/// What leaves the rest readable is a remark. The first problem ends everything: from then on nextChild() finds no more children, so those who read run out by
/// themselves and need not ask after every step.
class SvdXmlReader
{
public:
    const SvdProblem& problem() const { return m_problem; }

protected:
    static constexpr qint32 kBitLimit = 64; ///< bits lie below it

    SvdXmlReader(QIODevice& input, SvdProgressMeter& meter, SvdRemarks& remarks);

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
    void remark(const SvdPosition& position, const QString& found, const char* taken);
    void remarkOnText(const QString& expected, const char* taken);
    /// The node that is being read, which remarks concern.
    qint32 presentNode() const { return m_node; }
    void setPresentNode(qint32 id) { m_node = id; }

    // The texts of elements without children.
    QStringView readText();
    /// The text that was read last, once more.
    QString lastText() { return m_strings.string(QStringView(m_text).trimmed()); }
    QString readName();
    QString readDescription();
    QString readReference();
    std::optional<quint64> readNumber(const char* taken, quint64 least = 0);
    std::optional<Access> readAccess();
    std::optional<RawUsage> readUsage();
    bool readBool();
    bool readReadAction();
    qint32 readBit(qint32 limit);
    qint32 readWidth();
    bool readBitRange(RawBits* bits);

private:
    QXmlStreamReader::TokenType advance();
    void noteEncoding();
    SvdPosition inCharacters(const SvdPosition& position) const;
    SvdPosition position() const;
    void tick();
    void failInXml();
    qint32 readSmall(qint32 least, qint32 most, const char* meaning);

    /// A word that @p parse understands, or nothing where there is none.
    template <typename Meaning>
    std::optional<Meaning> readWord(std::optional<Meaning> (*parse)(QStringView), const char* expected,
                                    const char* taken)
    {
        const QStringView text = readText();
        const std::optional<Meaning> meaning = parse(text);
        if (!meaning && !text.trimmed().isEmpty()) {
            remarkOnText(QString::fromLatin1(expected), taken);
        }
        return meaning;
    }

    SvdProgressMeter& m_meter;
    SvdRemarks& m_remarks;
    QByteArray m_head; ///< the beginning of the input
    SvdInput m_input;
    QXmlStreamReader m_xml;
    SvdStrings m_strings;
    QString m_text;         ///< of the element read last; its memory serves again and again
    SvdPosition m_position; ///< where the present child begins
    SvdProblem m_problem;
    qint32 m_node = kNoNode;
    int m_depth = 0;
    quint32 m_tokens = 0;
    bool m_isUtf8 = true;
    bool m_isOver = false; ///< a problem was found, or reading was cancelled
};

} // namespace registers
