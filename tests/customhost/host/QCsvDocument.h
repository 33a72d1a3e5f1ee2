// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

QT_FORWARD_DECLARE_CLASS(QTextCodec)

namespace nsCsv {

struct tagCsvConf
{
};

//! A document that can load nothing.
class QCsvDocument
{
public:
    explicit QCsvDocument(const tagCsvConf& tConf);
    bool loadFile(const QString& sPath, QTextCodec* pCodec);
    int rowCount() const;
    int columnCount() const;
    QString cell(int nRow, int nColumn) const;
};

} // namespace nsCsv
