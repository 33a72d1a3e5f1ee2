// SPDX-License-Identifier: MIT
#include "QCsvDocument.h"

namespace nsCsv {

QCsvDocument::QCsvDocument(const tagCsvConf&) {}

bool QCsvDocument::loadFile(const QString&, QTextCodec*)
{
    return false;
}

int QCsvDocument::rowCount() const
{
    return 2;
}

int QCsvDocument::columnCount() const
{
    return 2;
}

QString QCsvDocument::cell(int, int) const
{
    return QStringLiteral("#123456");
}

} // namespace nsCsv
