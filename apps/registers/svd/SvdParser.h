// SPDX-License-Identifier: MIT
#pragma once

#include "svd/SvdXmlReader.h"

#include <vector>

namespace registers {

/// Reads the XML of a description into raw elements.
class SvdParser : private SvdXmlReader
{
public:
    SvdParser(QIODevice& input, SvdProgressMeter& meter, SvdRemarks& remarks)
        : SvdXmlReader(input, meter, remarks)
    {
    }

    /// False when there was a problem, or when reading was cancelled (then there is no problem).
    bool parse(SvdDescription* description);
    using SvdXmlReader::problem;

private:
    using Children = std::vector<qint32>;

    // The elements.
    void parseDevice();
    void parsePeripherals(Children* peripherals);
    qint32 parseNode(NodeKind kind, qint32 parent, int clusterDepth);
    void parseNodeChild(qint32 id, SvdTag tag, Children* children, int clusterDepth);
    void parseRegisters(qint32 parent, Children* children, int clusterDepth);
    void parseFields(qint32 reg);
    void parseField(qint32 reg);
    bool parseFieldBits(SvdTag tag, RawField* field);
    void parseEnumeration(qint32 field);
    void parseEnumValue();
    bool parseProperty(SvdTag tag, RawProperties* properties);
    bool parseDim(SvdTag tag, qint32* dim);
    RawRange storeChildren(const Children& children);

    SvdDescription* m_out = nullptr;
};

} // namespace registers
