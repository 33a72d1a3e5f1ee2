// SPDX-License-Identifier: MIT
#include "QCsvDocument.h"

#include <QFile>
#include <QTextCodec>

#include <csv.h>

#include <algorithm>
#include <memory>

namespace nsCsv {
namespace {

struct Rows
{
    QVector<QStringList> all;
    QStringList current;
};

void endField(void* pText, size_t nSize, void* pRows)
{
    static_cast<Rows*>(pRows)->current.append(
        QString::fromUtf8(static_cast<const char*>(pText), static_cast<int>(nSize)));
}

void endRow(int, void* pRows)
{
    auto& rows = *static_cast<Rows*>(pRows);
    rows.all.append(rows.current);
    rows.current.clear();
}

// White space is part of a field; the parser trims what this calls a space.
int isSpace(unsigned char)
{
    return 0;
}

bool isAscii(QChar c)
{
    return !c.isNull() && c.unicode() < 0x80;
}

// The parser works on bytes and knows ASCII characters only, so it is given UTF-8 whatever the file is written in.
bool decode(const QByteArray& tBytes, QTextCodec* pCodec, QByteArray* pUtf8)
{
    QTextCodec* const pUsed = pCodec != nullptr ? pCodec : QTextCodec::codecForName("UTF-8");
    QTextCodec::ConverterState state;
    *pUtf8 = pUsed->toUnicode(tBytes.constData(), static_cast<int>(tBytes.size()), &state).toUtf8();
    return state.invalidChars == 0 && state.remainingChars == 0;
}

bool parse(const QByteArray& tUtf8, const tagCsvConf& tConf, Rows* pRows)
{
    csv_parser parser;
    if (csv_init(&parser, CSV_STRICT | CSV_STRICT_FINI) != 0)
        return false;
    const std::unique_ptr<csv_parser, void (*)(csv_parser*)> guard(&parser, csv_free);
    csv_set_delim(&parser, static_cast<unsigned char>(tConf.cSeparator.toLatin1()));
    csv_set_quote(&parser, static_cast<unsigned char>(tConf.cQuote.toLatin1()));
    csv_set_space_func(&parser, isSpace);
    const auto nSize = static_cast<size_t>(tUtf8.size());
    return csv_parse(&parser, tUtf8.constData(), nSize, endField, endRow, pRows) == nSize &&
           csv_fini(&parser, endField, endRow, pRows) == 0;
}

} // namespace

QCsvDocument::QCsvDocument(const tagCsvConf& tConf)
    : m_tConf(tConf)
{
}

bool QCsvDocument::loadFile(const QString& sPath, QTextCodec* pCodec)
{
    m_tRows.clear();
    m_nColumns = 0;
    if (!isAscii(m_tConf.cSeparator) || !isAscii(m_tConf.cQuote))
        return false;

    if (sPath.isEmpty()) // QFile refuses it too, but warns
        return false;
    QFile file(sPath);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray tBytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return false;

    Rows rows;
    QByteArray tUtf8;
    if (!decode(tBytes, pCodec, &tUtf8) || !parse(tUtf8, m_tConf, &rows))
        return false;
    m_tRows = rows.all;
    for (const QStringList& tRow : qAsConst(m_tRows))
        m_nColumns = std::max(m_nColumns, static_cast<int>(tRow.size()));
    return true;
}

int QCsvDocument::rowCount() const
{
    return static_cast<int>(m_tRows.size());
}

int QCsvDocument::columnCount() const
{
    return m_nColumns;
}

QString QCsvDocument::cell(int nRow, int nColumn) const
{
    return m_tRows.value(nRow).value(nColumn);
}

} // namespace nsCsv
