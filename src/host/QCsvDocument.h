// SPDX-License-Identifier: MIT
#pragma once

#include "HostExport.h"

#include <QChar>
#include <QString>
#include <QStringList>
#include <QVector>

QT_FORWARD_DECLARE_CLASS(QTextCodec)

namespace nsCsv {

//! How a CSV text is written. The default is RFC 4180: commas, and double quotes around what holds one.
struct TESSERA_HOST_EXPORT tagCsvConf
{
    QChar cSeparator = QLatin1Char(','); //!< between fields; an ASCII character
    QChar cQuote = QLatin1Char('"');     //!< around fields; doubled, it stands for itself; an ASCII character
};

/*!
    A CSV file held in memory as rows of texts.

    Rows end with LF, CRLF or CR, the last row's line end may be missing, and rows may differ in length. Quoted
    fields may hold separators, line ends and doubled quotes. White space belongs to its field. Lines without any
    character are passed over.
*/
class TESSERA_HOST_EXPORT QCsvDocument
{
public:
    explicit QCsvDocument(const tagCsvConf& tConf = tagCsvConf());

    /*!
        Reads the file \a sPath (a resource path will do) in the encoding of \a pCodec, UTF-8 when it is null; a
        byte order mark is not part of the text. The earlier content is dropped.

        False when the file cannot be opened or read, holds bytes that the codec cannot decode, has a quote inside
        an unquoted field or text behind a closing quote, or ends within a quoted field, or when the configuration
        names a character outside ASCII. The document is empty then.
    */
    bool loadFile(const QString& sPath, QTextCodec* pCodec = nullptr);

    int rowCount() const;    //!< rows, the header among them
    int columnCount() const; //!< fields of the longest row

    //! The field at \a nRow, \a nColumn, both from 0; an empty text where the row is shorter or there is none.
    QString cell(int nRow, int nColumn) const;

private:
    tagCsvConf m_tConf;
    QVector<QStringList> m_tRows;
    int m_nColumns = 0;
};

} // namespace nsCsv
