// SPDX-License-Identifier: MIT
#pragma once

#include "svd/SvdDescription.h"
#include "svd/SvdTag.h"
#include "svd/SvdText.h"

#include <QXmlStreamReader>

#include <optional>
#include <vector>

class QIODevice;

namespace registers {

class SvdProgressMeter;

/// Reads the XML of a description into raw elements.
///
/// The first problem ends everything: from then on nextChild() finds no more children, so the functions below
/// run out by themselves and need not ask after every step.
class SvdParser
{
public:
    SvdParser(QIODevice& input, SvdProgressMeter& meter);

    /// False when there was a problem, or when reading was cancelled (then there is no problem).
    bool parse(SvdDescription* description);
    const SvdProblem& problem() const { return m_problem; }

private:
    using Children = std::vector<qint32>;

    // Moving through the XML.
    QXmlStreamReader::TokenType advance();
    bool nextChild();
    void skipElement();
    SvdPosition position() const;
    void findRoot();
    void readToEnd();
    void tick();

    // Problems.
    void fail(const SvdPosition& position, const QString& message);
    void failInXml();
    void failOnText(const QString& expected);
    void requireName(const QString& name, const SvdPosition& position, const char* element);

    // The texts of elements without children.
    QStringView readText();
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

    // The elements.
    void parseDevice();
    void parsePeripherals(Children* peripherals);
    qint32 parseNode(NodeKind kind, qint32 parent, int clusterDepth);
    void parseNodeChild(qint32 id, SvdTag tag, Children* children, int clusterDepth);
    void parseRegisters(qint32 parent, Children* children, int clusterDepth);
    void parseFields(qint32 reg);
    void parseField(qint32 reg);
    bool parseFieldBits(SvdTag tag, RawBits* bits);
    void parseEnumeration(qint32 field);
    void parseEnumValue();
    bool parseProperty(SvdTag tag, RawProperties* properties);
    bool parseDim(SvdTag tag, qint32* dim);
    RawRange storeChildren(const Children& children);

    SvdProgressMeter& m_meter;
    QXmlStreamReader m_xml;
    SvdDescription* m_out = nullptr;
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
