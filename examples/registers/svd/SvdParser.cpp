// SPDX-License-Identifier: MIT
#include "svd/SvdParser.h"

#include "svd/SvdNumber.h"
#include "svd/SvdProgressMeter.h"

#include <QIODevice>
#include <QTextCodec>

#include <utility>

namespace registers {

namespace {

constexpr quint32 kTokensPerTick = 512;
constexpr qint64 kHeadSize = 16384;
constexpr qint32 kBitLimit = 64;
constexpr int kUsualTextLength = 1024;

const QString& numberExpected()
{
    static const QString text = QStringLiteral("a number such as 64, 0x40 or #1000000, of at most 64 bits");
    return text;
}

/// Compares keywords without regard to case and to what stands between the words, which vendors mix up. @p folded has lower
/// case letters only.
bool isKeyword(QStringView text, const char* folded)
{
    for (const QChar c : text) {
        if (c == QLatin1Char('-') || c == QLatin1Char('_') || c == QLatin1Char('/') || c.isSpace()) {
            continue;
        }
        if (*folded == '\0' || (c != QLatin1Char(*folded) && c.toLower() != QLatin1Char(*folded))) {
            return false;
        }
        ++folded;
    }
    return *folded == '\0';
}

struct AccessKeyword
{
    const char* folded;
    Access access;
};

// The most frequent one first, and after the schema's own the short forms that are met.
constexpr AccessKeyword kAccessKeywords[] = {
    {"readwrite", Access::ReadWrite},
    {"readonly", Access::ReadOnly},
    {"writeonly", Access::WriteOnly},
    {"writeonce", Access::WriteOnce},
    {"readwriteonce", Access::ReadWriteOnce},
    {"rw", Access::ReadWrite},
    {"ro", Access::ReadOnly},
    {"wo", Access::WriteOnly},
    {"read", Access::ReadOnly},
    {"write", Access::WriteOnly},
};

const char* elementName(NodeKind kind)
{
    switch (kind) {
    case NodeKind::Peripheral:
        return "peripheral";
    case NodeKind::Cluster:
        return "cluster";
    default:
        return "register";
    }
}

/// The position of the first character in @p head that is no white space, from @p start on.
SvdPosition skipSpace(const QByteArray& head, SvdPosition start)
{
    QTextCodec* const latin1 = QTextCodec::codecForName("ISO-8859-1");
    const QString text = QTextCodec::codecForUtfText(head, latin1)->toUnicode(head);
    SvdPosition at{1, 1};
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        const bool isReached = at.line > start.line || (at.line == start.line && at.column >= start.column);
        if (isReached && !c.isSpace()) {
            return at;
        }
        const bool isPair = c == QLatin1Char('\r') && i + 1 < text.size() && text.at(i + 1) == QLatin1Char('\n');
        if (c == QLatin1Char('\n') || (c == QLatin1Char('\r') && !isPair)) {
            at = {at.line + 1, 1};
        } else if (!isPair) {
            ++at.column;
        }
    }
    return start;
}

} // namespace

SvdParser::SvdParser(QIODevice& input, SvdProgressMeter& meter)
    : m_meter(meter)
    , m_head(input.peek(kHeadSize))
{
    m_xml.setDevice(&input);
    // Prefixes mean nothing in this format, and files that use one without declaring it shall be read.
    m_xml.setNamespaceProcessing(false);
    // Without a reservation every QString::resize(0) would give the memory back.
    m_text.reserve(kUsualTextLength);
}

bool SvdParser::parse(SvdDescription* description)
{
    m_out = description;
    findRoot();
    if (!m_isOver) {
        parseDevice();
        readToEnd();
    }
    return !m_isOver;
}

QXmlStreamReader::TokenType SvdParser::advance()
{
    const QXmlStreamReader::TokenType token = m_xml.readNext();
    switch (token) {
    case QXmlStreamReader::StartElement:
        if (++m_depth > kMaxXmlDepth) {
            fail(m_position, QStringLiteral("elements are nested more than %1 deep").arg(kMaxXmlDepth));
        }
        break;
    case QXmlStreamReader::EndElement:
        --m_depth;
        break;
    case QXmlStreamReader::Invalid:
        failInXml();
        break;
    default:
        break;
    }
    if (++m_tokens % kTokensPerTick == 0) {
        tick();
    }
    return token;
}

/// Goes to the next child of the present element; false when there are no more.
bool SvdParser::nextChild()
{
    while (!m_isOver) {
        m_position = position();
        const QXmlStreamReader::TokenType token = advance();
        if (token == QXmlStreamReader::StartElement) {
            return !m_isOver;
        }
        if (token == QXmlStreamReader::EndElement) {
            return false;
        }
    }
    return false;
}

void SvdParser::skipElement()
{
    const int outside = m_depth - 1;
    while (!m_isOver && m_depth > outside) {
        advance();
    }
}

/// Where the next token begins.
SvdPosition SvdParser::position() const
{
    // Plain text is known to be over only when the reader has seen the '<' behind it.
    const bool isPastNext = m_xml.tokenType() == QXmlStreamReader::Characters && !m_xml.isCDATA();
    return {qint32(m_xml.lineNumber()), qint32(m_xml.columnNumber() + (isPastNext ? 0 : 1))};
}

void SvdParser::findRoot()
{
    SvdPosition before{1, 1};
    while (!m_isOver && advance() != QXmlStreamReader::StartElement) {
        // Without a declaration the document begins, for the reader, with what comes first.
        const bool isUndeclared = m_xml.isStartDocument() && m_xml.documentVersion().isEmpty();
        before = isUndeclared ? before : position();
    }
    if (m_isOver) {
        return;
    }
    // In front of the root white space is no token, so the root may begin later than the last token ended.
    m_position = skipSpace(m_head, before);
    if (svdTag(m_xml.name()) != SvdTag::Device) {
        fail(m_position,
             QStringLiteral("the root element is <%1>, and <device> was expected").arg(m_xml.name().toString()));
    }
}

void SvdParser::readToEnd()
{
    while (!m_isOver && !m_xml.atEnd()) {
        advance();
    }
}

void SvdParser::tick()
{
    if (!m_meter.parsed(m_xml.characterOffset())) {
        m_isOver = true;
    }
}

void SvdParser::fail(const SvdPosition& position, const QString& message)
{
    if (!m_isOver) {
        m_isOver = true;
        m_problem = {position, message};
    }
}

void SvdParser::failInXml()
{
    if (m_head.isEmpty()) {
        fail({1, 1}, QStringLiteral("the file is empty, and a CMSIS-SVD description was expected"));
        return;
    }
    QString reason = m_xml.errorString();
    while (reason.endsWith(QLatin1Char('.'))) {
        reason.chop(1);
    }
    const QString expected =
        m_xml.error() == QXmlStreamReader::PrematureEndOfDocumentError
            ? (m_depth > 0 ? QStringLiteral("the file breaks off, and the end of every open element was expected")
                           : QStringLiteral("no complete <device> element was found, and one was expected"))
            : QStringLiteral("well-formed XML was expected");
    fail(position(), QStringLiteral("%1: %2").arg(reason, expected));
}

/// The present element's text is not what it ought to be.
void SvdParser::failOnText(const QString& expected)
{
    fail(m_position, QStringLiteral("<%1> is %2, and %3 was expected")
                         .arg(m_xml.name().toString(), quoted(QStringView(m_text).trimmed()), expected));
}

void SvdParser::requireName(const QString& name, const SvdPosition& position, const char* element)
{
    if (name.isEmpty()) {
        fail(position,
             QStringLiteral("this <%1> has no name, and a <name> was expected in it").arg(QLatin1String(element)));
    }
}

/// The text of the present element, which is left behind. It is good until the next text is read.
QStringView SvdParser::readText()
{
    m_text.resize(0);
    const int outside = m_depth - 1;
    while (!m_isOver && m_depth > outside) {
        // Tags within a text are passed over and what they enclose is kept.
        const QXmlStreamReader::TokenType token = advance();
        if (token == QXmlStreamReader::Characters || token == QXmlStreamReader::EntityReference) {
            m_text.append(m_xml.text());
        }
    }
    return m_text;
}

QString SvdParser::readName()
{
    return m_strings.string(readText().trimmed());
}

QString SvdParser::readDescription()
{
    return m_strings.simplified(readText());
}

QString SvdParser::readReference()
{
    const QXmlStreamAttributes attributes = m_xml.attributes();
    for (const QXmlStreamAttribute& attribute : attributes) {
        if (attribute.name().compare(QLatin1String("derivedFrom"), Qt::CaseInsensitive) == 0) {
            return attribute.value().trimmed().toString();
        }
    }
    return QString();
}

std::optional<quint64> SvdParser::readNumber()
{
    const std::optional<quint64> number = parseSvdNumber(readText());
    if (!number) {
        failOnText(numberExpected());
    }
    return number;
}

// An element that only keywords can fill and that is empty says nothing, as if it were not there.

std::optional<Access> SvdParser::readAccess()
{
    const QStringView text = readText();
    if (text.trimmed().isEmpty()) {
        return std::nullopt;
    }
    for (const AccessKeyword& keyword : kAccessKeywords) {
        if (isKeyword(text, keyword.folded)) {
            return keyword.access;
        }
    }
    failOnText(QStringLiteral("read-only, write-only, read-write, writeOnce or read-writeOnce"));
    return std::nullopt;
}

std::optional<RawUsage> SvdParser::readUsage()
{
    const QStringView text = readText();
    if (isKeyword(text, "read")) {
        return RawUsage::Read;
    }
    if (isKeyword(text, "write")) {
        return RawUsage::Write;
    }
    if (isKeyword(text, "readwrite")) {
        return RawUsage::ReadWrite;
    }
    if (!text.trimmed().isEmpty()) {
        failOnText(QStringLiteral("read, write or read-write"));
    }
    return std::nullopt;
}

bool SvdParser::readBool()
{
    const QStringView text = readText();
    const std::optional<bool> value = parseSvdBool(text);
    if (!value && !text.trimmed().isEmpty()) {
        failOnText(QStringLiteral("true, false, 1 or 0"));
    }
    return value.value_or(false);
}

/// Every kind of read action counts alike, and so does a word that the schema does not know: reading changes
/// something.
bool SvdParser::readReadAction()
{
    const QStringView text = readText();
    return !text.trimmed().isEmpty() && !isKeyword(text, "none");
}

qint32 SvdParser::readBit(qint32 limit, const char* meaning)
{
    const std::optional<quint64> number = parseSvdNumber(readText());
    if (!number || *number > quint64(limit)) {
        failOnText(QStringLiteral("%1 from 0 to %2").arg(QLatin1String(meaning)).arg(limit));
        return -1;
    }
    return qint32(*number);
}

void SvdParser::readBitRange(RawBits* bits)
{
    QStringView text = readText().trimmed();
    if (text.startsWith(QLatin1Char('[')) && text.endsWith(QLatin1Char(']'))) {
        text = text.mid(1, text.size() - 2);
    }
    // Without brackets, and as one bit without a colon, it is met as well, and means one thing only.
    const qsizetype colon = QString::fromRawData(text.data(), int(text.size())).indexOf(QLatin1Char(':'));
    const std::optional<quint64> msb = parseSvdNumber(colon < 0 ? text : text.left(colon));
    const std::optional<quint64> lsb = parseSvdNumber(colon < 0 ? text : text.mid(colon + 1));
    if (msb && lsb && *lsb <= *msb && *lsb < quint64(kBitLimit) && *msb - *lsb < quint64(kBitLimit)) {
        bits->msb = qint32(*msb);
        bits->lsb = qint32(*lsb);
        bits->lsbIsOffset = false;
        return;
    }
    failOnText(QStringLiteral("[msb:lsb] with msb not below lsb, lsb below 64 and at most 64 bits"));
}

void SvdParser::parseDevice()
{
    const SvdPosition begin = m_position;
    Children peripherals;
    while (nextChild()) {
        const SvdTag tag = svdTag(m_xml.name());
        switch (tag) {
        case SvdTag::Name:
            m_out->name = readName();
            break;
        case SvdTag::Description:
            m_out->description = readDescription();
            break;
        case SvdTag::Vendor:
            m_out->vendor = readName();
            break;
        case SvdTag::Version:
            m_out->version = readName();
            break;
        case SvdTag::Peripherals:
            parsePeripherals(&peripherals);
            break;
        default:
            if (!parseProperty(tag, &m_out->properties)) {
                skipElement();
            }
        }
    }
    m_out->peripherals = storeChildren(peripherals);
    requireName(m_out->name, begin, "device");
}

void SvdParser::parsePeripherals(Children* peripherals)
{
    while (nextChild()) {
        if (svdTag(m_xml.name()) == SvdTag::Peripheral) {
            peripherals->push_back(parseNode(NodeKind::Peripheral, -1, 0));
        } else {
            skipElement();
        }
    }
}

qint32 SvdParser::parseNode(NodeKind kind, qint32 parent, int clusterDepth)
{
    const qint32 id = qint32(m_out->nodes.size());
    RawNode& node = m_out->nodes.emplace_back();
    node.kind = kind;
    node.parent = parent;
    node.position = m_position;
    node.derivedFrom = readReference();
    node.fields.first = qint32(m_out->fieldIds.size());
    if (clusterDepth > kMaxClusterDepth) {
        fail(m_position, QStringLiteral("clusters are nested more than %1 deep").arg(kMaxClusterDepth));
    }
    Children children;
    while (nextChild()) {
        parseNodeChild(id, svdTag(m_xml.name()), &children, clusterDepth);
    }
    node.children = storeChildren(children);
    if (kind == NodeKind::Register) {
        node.fields.count = qint32(m_out->fieldIds.size()) - node.fields.first;
    }
    requireName(node.name, node.position, elementName(kind));
    return id;
}

void SvdParser::parseNodeChild(qint32 id, SvdTag tag, Children* children, int clusterDepth)
{
    RawNode& node = m_out->node(id);
    const bool isGroup = node.kind != NodeKind::Register;
    if (tag == SvdTag::Name) {
        node.name = readName();
    } else if (tag == SvdTag::DisplayName) {
        node.displayName = readName();
    } else if (tag == SvdTag::Description) {
        node.description = readDescription();
    } else if (tag == SvdTag::BaseAddress || tag == SvdTag::AddressOffset) {
        node.offset = readNumber();
    } else if (tag == SvdTag::ReadAction && !isGroup) {
        node.hasReadAction = readReadAction();
    } else if (tag == SvdTag::Fields && !isGroup) {
        parseFields(id);
    } else if (tag == SvdTag::Registers && isGroup) {
        parseRegisters(id, children, clusterDepth);
    } else if (tag == SvdTag::Register && node.kind == NodeKind::Cluster) {
        children->push_back(parseNode(NodeKind::Register, id, clusterDepth));
    } else if (tag == SvdTag::Cluster && node.kind == NodeKind::Cluster) {
        children->push_back(parseNode(NodeKind::Cluster, id, clusterDepth + 1));
    } else if (!parseProperty(tag, &node.properties) && !parseDim(tag, &node.dim)) {
        skipElement();
    }
}

void SvdParser::parseRegisters(qint32 parent, Children* children, int clusterDepth)
{
    while (nextChild()) {
        const SvdTag tag = svdTag(m_xml.name());
        if (tag == SvdTag::Register) {
            children->push_back(parseNode(NodeKind::Register, parent, clusterDepth));
        } else if (tag == SvdTag::Cluster) {
            children->push_back(parseNode(NodeKind::Cluster, parent, clusterDepth + 1));
        } else {
            skipElement();
        }
    }
}

void SvdParser::parseFields(qint32 reg)
{
    while (nextChild()) {
        if (svdTag(m_xml.name()) == SvdTag::Field) {
            parseField(reg);
        } else {
            skipElement();
        }
    }
}

void SvdParser::parseField(qint32 reg)
{
    const qint32 id = qint32(m_out->fields.size());
    RawField& field = m_out->fields.emplace_back();
    m_out->fieldIds.push_back(id);
    field.reg = reg;
    field.position = m_position;
    field.derivedFrom = readReference();
    field.enumerations.first = qint32(m_out->enumerations.size());
    while (nextChild()) {
        const SvdTag tag = svdTag(m_xml.name());
        switch (tag) {
        case SvdTag::Name:
            field.name = readName();
            break;
        case SvdTag::Description:
            field.description = readDescription();
            break;
        case SvdTag::Access:
            field.access = readAccess();
            break;
        case SvdTag::ReadAction:
            field.hasReadAction = readReadAction();
            break;
        case SvdTag::EnumeratedValues:
            parseEnumeration(id);
            break;
        default:
            if (!parseFieldBits(tag, &field.bits) && !parseDim(tag, &field.dim)) {
                skipElement();
            }
        }
    }
    field.enumerations.count = qint32(m_out->enumerations.size()) - field.enumerations.first;
    requireName(field.name, field.position, "field");
}

bool SvdParser::parseFieldBits(SvdTag tag, RawBits* bits)
{
    switch (tag) {
    case SvdTag::BitOffset:
        bits->lsb = readBit(kBitLimit - 1, "a bit");
        bits->lsbIsOffset = true;
        return true;
    case SvdTag::Lsb:
        bits->lsb = readBit(kBitLimit - 1, "a bit");
        bits->lsbIsOffset = false;
        return true;
    case SvdTag::Msb:
        bits->msb = readBit(2 * kBitLimit - 2, "a bit");
        return true;
    case SvdTag::BitWidth:
        bits->width = readBit(kBitLimit, "a width");
        return true;
    case SvdTag::BitRange:
        readBitRange(bits);
        return true;
    default:
        return false;
    }
}

void SvdParser::parseEnumeration(qint32 field)
{
    RawEnumeration& enumeration = m_out->enumerations.emplace_back();
    enumeration.field = field;
    enumeration.position = m_position;
    enumeration.derivedFrom = readReference();
    enumeration.values.first = qint32(m_out->enumValues.size());
    while (nextChild()) {
        switch (svdTag(m_xml.name())) {
        case SvdTag::Name:
            enumeration.name = readName();
            break;
        case SvdTag::Usage:
            enumeration.usage = readUsage();
            break;
        case SvdTag::EnumeratedValue:
            parseEnumValue();
            break;
        default:
            skipElement();
        }
    }
    enumeration.values.count = qint32(m_out->enumValues.size()) - enumeration.values.first;
}

void SvdParser::parseEnumValue()
{
    EnumValue entry;
    entry.hasValue = false;
    QString valueText;
    while (nextChild()) {
        switch (svdTag(m_xml.name())) {
        case SvdTag::Name:
            entry.name = readName();
            break;
        case SvdTag::Description:
            entry.description = readDescription();
            break;
        case SvdTag::IsDefault:
            entry.isDefault = readBool();
            break;
        case SvdTag::Value: {
            const std::optional<MaskedNumber> number = parseSvdMaskedNumber(readText());
            if (!number) {
                failOnText(QStringLiteral("a number such as 2, 0x2, #10 or #1x"));
                break;
            }
            entry.hasValue = true;
            entry.value = number->value;
            entry.mask = number->mask;
            valueText = m_strings.string(QStringView(m_text).trimmed());
            break;
        }
        default:
            skipElement();
        }
    }
    // Vendors list reserved values without saying which they are: such an entry names nothing.
    if (!entry.hasValue && !entry.isDefault) {
        return;
    }
    if (entry.name.isEmpty()) {
        entry.name = entry.hasValue ? valueText : QStringLiteral("default");
    }
    m_out->enumValues.push_back(std::move(entry));
}

bool SvdParser::parseProperty(SvdTag tag, RawProperties* properties)
{
    switch (tag) {
    case SvdTag::Size:
        properties->sizePosition = m_position;
        properties->size = readNumber();
        return true;
    case SvdTag::Access:
        properties->access = readAccess();
        return true;
    case SvdTag::ResetValue:
        properties->resetValue = readNumber();
        return true;
    case SvdTag::ResetMask:
        properties->resetMask = readNumber();
        return true;
    default:
        return false;
    }
}

bool SvdParser::parseDim(SvdTag tag, qint32* dim)
{
    if (tag != SvdTag::Dim && tag != SvdTag::DimIncrement && tag != SvdTag::DimIndex) {
        return false;
    }
    if (*dim < 0) {
        *dim = qint32(m_out->dims.size());
        m_out->dims.emplace_back();
    }
    RawDim& raw = m_out->dim(*dim);
    raw.position = m_position;
    if (tag == SvdTag::Dim) {
        raw.count = readNumber();
    } else if (tag == SvdTag::DimIncrement) {
        raw.increment = readNumber();
    } else {
        raw.index = readName();
    }
    return true;
}

RawRange SvdParser::storeChildren(const Children& children)
{
    const RawRange range{qint32(m_out->childIds.size()), qint32(children.size())};
    m_out->childIds.insert(m_out->childIds.end(), children.cbegin(), children.cend());
    return range;
}

} // namespace registers
