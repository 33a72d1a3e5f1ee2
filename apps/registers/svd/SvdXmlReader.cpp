// SPDX-License-Identifier: MIT
#include "svd/SvdXmlReader.h"

#include "svd/SvdNumber.h"
#include "svd/SvdProgressMeter.h"
#include "svd/SvdWords.h"
#include "text/Quoted.h"

#include <QIODevice>

#include <algorithm>
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#include <QTextCodec>
#else
#include <QStringDecoder>
#endif

namespace registers {

namespace {

constexpr quint32 kTokensPerTick = 512;
constexpr qint64 kHeadSize = 16384;
constexpr int kUsualTextLength = 1024;

const QString& numberExpected()
{
    static const QString text = QStringLiteral("a number such as 64, 0x40 or #1000000, of at most 64 bits");
    return text;
}

/// A text in the encoding that its byte order mark names, or else UTF-8 or one character a byte.
QString decoded(const QByteArray& bytes, bool isUtf8)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    const char* const otherwise = isUtf8 ? "UTF-8" : "ISO-8859-1";
    return QTextCodec::codecForUtfText(bytes, QTextCodec::codecForName(otherwise))->toUnicode(bytes);
#else
    const QStringConverter::Encoding otherwise = isUtf8 ? QStringConverter::Utf8 : QStringConverter::Latin1;
    return QStringDecoder(QStringConverter::encodingForData(bytes).value_or(otherwise)).decode(bytes);
#endif
}

/// The position of the first character in @p text that is no white space, from @p start on.
SvdPosition skipSpace(const QString& text, SvdPosition start)
{
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

SvdXmlReader::SvdXmlReader(QIODevice& input, SvdProgressMeter& meter, SvdRemarks& remarks)
    : m_meter(meter)
    , m_remarks(remarks)
    , m_head(input.peek(kHeadSize))
    , m_input(input)
{
    m_xml.setDevice(&m_input);
    // Prefixes mean nothing in this format, and files that use one without declaring it shall be read.
    m_xml.setNamespaceProcessing(false);
    // Without a reservation every QString::resize(0) would give the memory back.
    m_text.reserve(kUsualTextLength);
}

QXmlStreamReader::TokenType SvdXmlReader::advance()
{
    const QXmlStreamReader::TokenType token = m_xml.readNext();
    switch (token) {
    case QXmlStreamReader::StartDocument:
        noteEncoding();
        break;
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
bool SvdXmlReader::nextChild()
{
    while (!m_isOver) {
        m_position = inCharacters(position());
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

void SvdXmlReader::skipElement()
{
    const int outside = m_depth - 1;
    while (!m_isOver && m_depth > outside) {
        advance();
    }
}

/// Whether the encoding that the XML declaration names, if any, is UTF-8.
void SvdXmlReader::noteEncoding()
{
    const auto declared = m_xml.documentEncoding();
    m_isUtf8 = declared.isEmpty() || declared.compare(QLatin1String("utf-8"), Qt::CaseInsensitive) == 0;
}

SvdPosition SvdXmlReader::inCharacters(const SvdPosition& position) const
{
    return m_input.hasPairs() && m_isUtf8 ? m_input.inCharacters(position) : position;
}

/// Where the next token begins, in units of UTF-16.
SvdPosition SvdXmlReader::position() const
{
    // Plain text is known to be over only when the reader has seen the '<' behind it.
    const bool isPastNext = m_xml.tokenType() == QXmlStreamReader::Characters && !m_xml.isCDATA();
    return {qint32(m_xml.lineNumber()), qint32(m_xml.columnNumber() + (isPastNext ? 0 : 1))};
}

void SvdXmlReader::findRoot()
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
    m_position = inCharacters(skipSpace(decoded(m_head, m_isUtf8), before));
    if (svdTag(m_xml.name()) != SvdTag::Device) {
        fail(m_position,
             QStringLiteral("the root element is <%1>, and <device> was expected").arg(m_xml.name().toString()));
    }
}

void SvdXmlReader::readToEnd()
{
    while (!m_isOver && !m_xml.atEnd()) {
        advance();
    }
}

void SvdXmlReader::tick()
{
    if (!m_meter.parsed(m_xml.characterOffset())) {
        m_isOver = true;
    }
}

void SvdXmlReader::fail(const SvdPosition& position, const QString& message)
{
    if (!m_isOver) {
        m_isOver = true;
        m_problem = {position, message};
    }
}

void SvdXmlReader::failInXml()
{
    if (m_head.isEmpty()) {
        fail({1, 1}, QStringLiteral("the file is empty, and a CMSIS-SVD description was expected"));
        return;
    }
    const std::optional<SvdInput::WrongByte>& wrong = m_input.wrongByte();
    if (wrong && m_isUtf8) {
        // The reader gives up on all the bytes that it has taken at once.
        fail(wrong->position,
             QStringLiteral("the byte 0x%1 does not belong to UTF-8: text in UTF-8, or another encoding "
                            "in the XML declaration, was expected")
                 .arg(QString::number(uint(wrong->value), 16).toUpper()));
        return;
    }
    QString reason = m_xml.errorString();
    while (reason.endsWith(QLatin1Char('.'))) {
        reason.chop(1);
    }
    // At an error the reader stands behind the character that it cannot take, at the end before the one that is missing.
    const bool isEnd = m_xml.error() == QXmlStreamReader::PrematureEndOfDocumentError;
    const qint32 column = qint32(m_xml.columnNumber()) + (isEnd ? 1 : 0);
    const SvdPosition place = inCharacters({qint32(m_xml.lineNumber()), std::max(column, 1)});
    const QString expected =
        isEnd ? (m_depth > 0 ? QStringLiteral("the file breaks off, and the end of every open element was expected")
                             : QStringLiteral("no complete <device> element was found, and one was expected"))
              : QStringLiteral("well-formed XML was expected");
    fail(place, QStringLiteral("%1: %2").arg(reason, expected));
}

void SvdXmlReader::remark(const SvdPosition& position, const QString& found, const char* taken)
{
    if (!m_isOver) {
        m_remarks.add(position, found, taken, m_node);
    }
}

/// The present element's text is not what it ought to be.
void SvdXmlReader::remarkOnText(const QString& expected, const char* taken)
{
    remark(m_position,
           QStringLiteral("<%1> is %2, and %3 was expected")
               .arg(m_xml.name().toString(), quoted(QStringView(m_text).trimmed()), expected),
           taken);
}

/// The text of the present element, which is left behind. It is good until the next text is read.
QStringView SvdXmlReader::readText()
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

QString SvdXmlReader::readName()
{
    return m_strings.string(readText().trimmed());
}

QString SvdXmlReader::readDescription()
{
    return m_strings.simplified(readText());
}

QString SvdXmlReader::readReference()
{
    const QXmlStreamAttributes attributes = m_xml.attributes();
    for (const QXmlStreamAttribute& attribute : attributes) {
        if (attribute.name().compare(QLatin1String("derivedFrom"), Qt::CaseInsensitive) == 0) {
            return attribute.value().trimmed().toString();
        }
    }
    return QString();
}

std::optional<quint64> SvdXmlReader::readNumber(const char* taken, quint64 least)
{
    std::optional<quint64> number = parseSvdNumber(readText());
    if (!number) {
        remarkOnText(numberExpected(), taken);
    } else if (*number < least) {
        remarkOnText(QStringLiteral("a number of at least %1").arg(least), taken);
        number.reset();
    }
    return number;
}

// An element that only words can fill and that is empty says nothing, as if it were not there.

std::optional<Access> SvdXmlReader::readAccess()
{
    return readWord(parseSvdAccess, "read-only, write-only, read-write, writeOnce or read-writeOnce", kInherited);
}

std::optional<RawUsage> SvdXmlReader::readUsage()
{
    return readWord(parseSvdUsage, "read, write or read-write", kNotSaid);
}

bool SvdXmlReader::readBool()
{
    return readWord(parseSvdBool, "true, false, 1 or 0", kNotSaid).value_or(false);
}

bool SvdXmlReader::readReadAction()
{
    return readWord(parseSvdReadAction, "clear, set, modify or modifyExternal", kNotSaid).value_or(false);
}

/// A bit from 0 to @p limit.
qint32 SvdXmlReader::readBit(qint32 limit)
{
    return readSmall(0, limit, "a bit");
}

qint32 SvdXmlReader::readWidth()
{
    return readSmall(1, kBitLimit, "a width");
}

qint32 SvdXmlReader::readSmall(qint32 least, qint32 most, const char* meaning)
{
    const std::optional<quint64> number = parseSvdNumber(readText());
    if (number && *number >= quint64(least) && *number <= quint64(most)) {
        return qint32(*number);
    }
    remarkOnText(QStringLiteral("%1 from %2 to %3").arg(QLatin1String(meaning)).arg(least).arg(most), kFieldLeftOut);
    return -1;
}

bool SvdXmlReader::readBitRange(RawBits* bits)
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
        return true;
    }
    remarkOnText(QStringLiteral("[msb:lsb] with msb not below lsb, lsb below 64 and at most 64 bits"), kFieldLeftOut);
    return false;
}

} // namespace registers
