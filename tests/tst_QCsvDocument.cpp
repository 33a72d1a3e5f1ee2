// SPDX-License-Identifier: MIT
#include "support/TestMain.h"
#include "TestSupport.h"

#include <QCsvDocument.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QtTest>

using nsCsv::QCsvDocument;
using nsCsv::tagCsvConf;

namespace {

using Rows = QVector<QStringList>;

//! The document as its three operations show it; rows are filled up to the longest one.
Rows rowsOf(const QCsvDocument& document)
{
    Rows rows;
    for (int nRow = 0; nRow < document.rowCount(); ++nRow) {
        QStringList cells;
        for (int nColumn = 0; nColumn < document.columnCount(); ++nColumn) {
            cells << document.cell(nRow, nColumn);
        }
        rows << cells;
    }
    return rows;
}

QStringList row(std::initializer_list<const char*> cells)
{
    QStringList texts;
    for (const char* cell : cells) {
        texts << QString::fromUtf8(cell);
    }
    return texts;
}

} // namespace

class tst_QCsvDocument : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsEmpty();
    void splitsRowsAndFields_data();
    void splitsRowsAndFields();
    void answersEmptyTextsOutsideTheRows();
    void countsTheFieldsOfTheLongestRow();

    void decodesInTheCodecGiven_data();
    void decodesInTheCodecGiven();
    void refusesBytesTheCodecCannotDecode_data();
    void refusesBytesTheCodecCannotDecode();
    void refusesMalformedText_data();
    void refusesMalformedText();
    void refusesFilesItCannotOpen_data();
    void refusesFilesItCannotOpen();

    void takesSeparatorAndQuoteFromItsConfiguration_data();
    void takesSeparatorAndQuoteFromItsConfiguration();
    void refusesACharacterOutsideAscii_data();
    void refusesACharacterOutsideAscii();

    void dropsTheEarlierContent();
    void copiesAreIndependent();
    void readsAResource();
    void readsManyRows();

private:
    QString write(const QByteArray& content);

    QTemporaryDir m_folder;
    int m_nFiles = 0;
};

QString tst_QCsvDocument::write(const QByteArray& content)
{
    QFile file(m_folder.filePath(QStringLiteral("%1.csv").arg(++m_nFiles)));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        return {};
    }
    return file.fileName();
}

void tst_QCsvDocument::startsEmpty()
{
    const QCsvDocument document{tagCsvConf()};
    QCOMPARE(document.rowCount(), 0);
    QCOMPARE(document.columnCount(), 0);
    QCOMPARE(document.cell(0, 0), QString());
    QCOMPARE(tagCsvConf().cSeparator, QLatin1Char(','));
    QCOMPARE(tagCsvConf().cQuote, QLatin1Char('"'));
}

void tst_QCsvDocument::splitsRowsAndFields_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<Rows>("rows");

    const auto add = [](const char* name, const char* content, const Rows& rows) {
        QTest::newRow(name) << QByteArray(content) << rows;
    };
    add("an empty file", "", {});
    add("one field", "a", {row({"a"})});
    add("one row", "a,b,c\n", {row({"a", "b", "c"})});
    add("line feeds", "a,b\nc,d\n", {row({"a", "b"}), row({"c", "d"})});
    add("carriage returns and line feeds", "a,b\r\nc,d\r\n", {row({"a", "b"}), row({"c", "d"})});
    add("carriage returns", "a,b\rc,d\r", {row({"a", "b"}), row({"c", "d"})});
    add("mixed line ends", "a\nb\r\nc\rd", {row({"a"}), row({"b"}), row({"c"}), row({"d"})});
    add("no line end after the last row", "a,b\nc,d", {row({"a", "b"}), row({"c", "d"})});
    add("no line end after CRLF rows", "a,b\r\nc,d", {row({"a", "b"}), row({"c", "d"})});
    add("empty fields", ",a,,b,\n", {row({"", "a", "", "b", ""})});
    add("empty fields only", ",,\n,\n", {row({"", "", ""}), row({"", "", ""})});
    add("a separator at the end of the file", "a,", {row({"a", ""})});
    add("ragged rows", "a\nb,c,d\ne,f\n", {row({"a", "", ""}), row({"b", "c", "d"}), row({"e", "f", ""})});
    add("empty lines are passed over", "\na\n\n\nb\n\n", {row({"a"}), row({"b"})});
    add("empty CRLF lines are passed over", "\r\na\r\n\r\nb", {row({"a"}), row({"b"})});
    add("empty lines only", "\n\r\n\r", {});
    add("white space belongs to its field", " a , b\t\n  \n", {row({" a ", " b\t"}), row({"  ", ""})});
    add("quotes are taken off", "\"a\",b,\"c\"\n", {row({"a", "b", "c"})});
    add("a quoted separator", "\"a,b\",c\n", {row({"a,b", "c"})});
    add("a quoted line feed", "\"a\nb\",c\nd", {row({"a\nb", "c"}), row({"d", ""})});
    add("a quoted CRLF", "\"a\r\nb\",c\r\nd", {row({"a\r\nb", "c"}), row({"d", ""})});
    add("a quoted carriage return", "\"a\rb\"", {row({"a\rb"})});
    add("a quoted empty line", "\"a\n\nb\"", {row({"a\n\nb"})});
    add("a doubled quote", "\"a\"\"b\",\"\"\"\"\n", {row({"a\"b", "\""})});
    add("doubled quotes at the ends", "\"\"\"a\"\"\"\n", {row({"\"a\""})});
    add("an empty quoted field is a row", "\"\"\n", {row({""})});
    add("an empty quoted field at the end of the file", "a,\"\"", {row({"a", ""})});
    add("a quoted field at the end of the file", "a\n\"b\"", {row({"a"}), row({"b"})});
    add("quoted white space", "\" a \"\n", {row({" a "})});
    add("text in UTF-8", "Größe,字号\n€,😀\n", {row({"Größe", "字号"}), row({"€", "😀"})});
    add("a byte order mark",
        "\xEF\xBB\xBF"
        "a,b\n",
        {row({"a", "b"})});
    add("a byte order mark before a quote",
        "\xEF\xBB\xBF"
        "\"a,b\"\n",
        {row({"a,b"})});
    add("a byte order mark alone", "\xEF\xBB\xBF", {});
    add("a semicolon is text", "a;b,c\n", {row({"a;b", "c"})});
    add("an apostrophe is text", "'a,b'\n", {row({"'a", "b'"})});
}

void tst_QCsvDocument::splitsRowsAndFields()
{
    QFETCH(const QByteArray, content);
    QFETCH(const Rows, rows);
    QCsvDocument document;
    QVERIFY(document.loadFile(write(content)));
    QCOMPARE(rowsOf(document), rows);
    QCOMPARE(document.rowCount(), rows.size());
}

void tst_QCsvDocument::answersEmptyTextsOutsideTheRows()
{
    QCsvDocument document;
    QVERIFY(document.loadFile(write("a,b\nc\n")));
    QCOMPARE(document.cell(0, 1), QStringLiteral("b"));
    QCOMPARE(document.cell(1, 1), QString());
    for (const int nOutside : {-1, 2, 1000}) {
        QCOMPARE(document.cell(nOutside, 0), QString());
        QCOMPARE(document.cell(0, nOutside), QString());
        QCOMPARE(document.cell(nOutside, nOutside), QString());
    }
}

void tst_QCsvDocument::countsTheFieldsOfTheLongestRow()
{
    QCsvDocument document;
    QVERIFY(document.loadFile(write("a\nb,c,d\ne,f\n")));
    QCOMPARE(document.rowCount(), 3);
    QCOMPARE(document.columnCount(), 3);
    QVERIFY(document.loadFile(write("a\n")));
    QCOMPARE(document.columnCount(), 1);
    QVERIFY(document.loadFile(write("")));
    QCOMPARE(document.columnCount(), 0);
}

void tst_QCsvDocument::decodesInTheCodecGiven_data()
{
    QTest::addColumn<QByteArray>("codec"); // empty: none is given
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("text"); // of the first of two fields

    const QString sSize = QStringLiteral("Größe");
    QTest::newRow("none") << QByteArray() << QByteArray("Größe,b") << sSize;
    QTest::newRow("UTF-8") << QByteArray("UTF-8") << QByteArray("Größe,b") << sSize;
    QTest::newRow("Latin-1") << QByteArray("ISO-8859-1")
                             << QByteArray("Gr\xF6\xDF"
                                           "e,b")
                             << sSize;
    QTest::newRow("Latin-1 read from UTF-8 bytes")
        << QByteArray("ISO-8859-1") << QByteArray("\xC3\xB6,b") << QStringLiteral("Ã¶");
    for (const char* name : {"UTF-16LE", "UTF-16BE", "UTF-32LE", "GB18030", "Shift_JIS"}) {
        QTextCodec* const pCodec = QTextCodec::codecForName(name);
        if (pCodec) {
            const QString sText = QStringLiteral("字A");
            QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
            const QString sContent = sText + QStringLiteral(",b\r\nc");
            QTest::newRow(name) << QByteArray(name)
                                << pCodec->fromUnicode(sContent.constData(), static_cast<int>(sContent.size()), &state)
                                << sText;
        }
    }
    QTextCodec* const pUtf16 = QTextCodec::codecForName("UTF-16");
    QVERIFY(pUtf16);
    QTest::newRow("UTF-16 with a byte order mark")
        << QByteArray("UTF-16") << pUtf16->fromUnicode(QStringLiteral("字A,b")) << QStringLiteral("字A");
}

void tst_QCsvDocument::decodesInTheCodecGiven()
{
    QFETCH(const QByteArray, codec);
    QFETCH(const QByteArray, content);
    QFETCH(const QString, text);
    QCsvDocument document;
    QVERIFY(document.loadFile(write(content), codec.isEmpty() ? nullptr : QTextCodec::codecForName(codec)));
    QCOMPARE(document.cell(0, 0), text);
    QCOMPARE(document.columnCount(), 2);
}

void tst_QCsvDocument::refusesBytesTheCodecCannotDecode_data()
{
    QTest::addColumn<QByteArray>("codec");
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("Latin-1 bytes as UTF-8") << QByteArray()
                                            << QByteArray("a,Gr\xF6\xDF"
                                                          "e\n");
    QTest::newRow("an overlong form") << QByteArray("UTF-8") << QByteArray("a\xC0\x80");
    QTest::newRow("a character cut off at the end") << QByteArray() << QByteArray("a,b\xE2\x82");
    QTest::newRow("half a character of UTF-16") << QByteArray("UTF-16LE") << QByteArray("a\0b", 3);
}

void tst_QCsvDocument::refusesBytesTheCodecCannotDecode()
{
    QFETCH(const QByteArray, codec);
    QFETCH(const QByteArray, content);
    QCsvDocument document;
    QVERIFY(document.loadFile(write("a,b\n")));
    QVERIFY(!document.loadFile(write(content), codec.isEmpty() ? nullptr : QTextCodec::codecForName(codec)));
    QCOMPARE(document.rowCount(), 0);
    QCOMPARE(document.columnCount(), 0);
    QCOMPARE(document.cell(0, 0), QString());
}

void tst_QCsvDocument::refusesMalformedText_data()
{
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("a quote inside an unquoted field") << QByteArray("a\"b,c\n");
    QTest::newRow("a quote at the end of an unquoted field") << QByteArray("a\"\n");
    QTest::newRow("quotes behind white space") << QByteArray("a, \"b\"\n");
    QTest::newRow("text behind a closing quote") << QByteArray("\"a\"b,c\n");
    QTest::newRow("white space behind a closing quote") << QByteArray("\"a\" ,c\n");
    QTest::newRow("a quoted field without end") << QByteArray("a,\"b\nc,d\n");
    QTest::newRow("a single quote") << QByteArray("\"");
    QTest::newRow("a quote opened at the very end") << QByteArray("a\nb,\"");
    QTest::newRow("a doubled quote without end") << QByteArray("\"a\"\"");
    QTest::newRow("an error in the last row") << QByteArray("a,b\nc,d\ne\"f");
}

void tst_QCsvDocument::refusesMalformedText()
{
    QFETCH(const QByteArray, content);
    QCsvDocument document;
    QVERIFY(document.loadFile(write("a,b\n")));
    QVERIFY(!document.loadFile(write(content)));
    QCOMPARE(document.rowCount(), 0);
    QCOMPARE(document.columnCount(), 0);
    QCOMPARE(document.cell(0, 0), QString());

    QVERIFY(document.loadFile(write("a,b\n"))); // and it is good for another file
    QCOMPARE(rowsOf(document), Rows{row({"a", "b"})});
}

void tst_QCsvDocument::refusesFilesItCannotOpen_data()
{
    QTest::addColumn<QString>("path");

    QTest::newRow("a file that is not there") << QStringLiteral("/nonexistent/file.csv");
    QTest::newRow("a resource that is not there") << QStringLiteral(":/nonexistent.csv");
    QTest::newRow("a folder") << QDir::tempPath();
    QTest::newRow("no name") << QString();
}

void tst_QCsvDocument::refusesFilesItCannotOpen()
{
    QFETCH(const QString, path);
    QCsvDocument document;
    QVERIFY(document.loadFile(write("a,b\n")));
    QVERIFY(!document.loadFile(path));
    QCOMPARE(document.rowCount(), 0);
    QCOMPARE(document.columnCount(), 0);
    QCOMPARE(document.cell(0, 0), QString());
}

void tst_QCsvDocument::takesSeparatorAndQuoteFromItsConfiguration_data()
{
    QTest::addColumn<char>("separator");
    QTest::addColumn<char>("quote");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<Rows>("rows");

    QTest::newRow("semicolons") << ';' << '"' << QByteArray("a,b;\"c;d\"\n") << Rows{row({"a,b", "c;d"})};
    QTest::newRow("tabs") << '\t' << '"' << QByteArray("a\tb c\n") << Rows{row({"a", "b c"})};
    QTest::newRow("a space") << ' ' << '"' << QByteArray("a \"b c\"\n") << Rows{row({"a", "b c"})};
    QTest::newRow("apostrophes") << ',' << '\'' << QByteArray("'a,b','c''d',\"e\n") << Rows{row({"a,b", "c'd", "\"e"})};
    QTest::newRow("both") << '|' << '\'' << QByteArray("'a|b'|c,\"d\n") << Rows{row({"a|b", "c,\"d"})};
}

void tst_QCsvDocument::takesSeparatorAndQuoteFromItsConfiguration()
{
    QFETCH(const char, separator);
    QFETCH(const char, quote);
    QFETCH(const QByteArray, content);
    QFETCH(const Rows, rows);
    tagCsvConf conf;
    conf.cSeparator = QLatin1Char(separator);
    conf.cQuote = QLatin1Char(quote);
    QCsvDocument document(conf);
    conf = tagCsvConf(); // the document has its own
    QVERIFY(document.loadFile(write(content)));
    QCOMPARE(rowsOf(document), rows);
}

void tst_QCsvDocument::refusesACharacterOutsideAscii_data()
{
    QTest::addColumn<QChar>("separator");
    QTest::addColumn<QChar>("quote");

    QTest::newRow("separator") << QChar(0x00B7) << QChar(QLatin1Char('"'));
    QTest::newRow("separator whose low byte is a comma") << QChar(0x012C) << QChar(QLatin1Char('"'));
    QTest::newRow("quote") << QChar(QLatin1Char(',')) << QChar(0x201C);
}

void tst_QCsvDocument::refusesACharacterOutsideAscii()
{
    QFETCH(const QChar, separator);
    QFETCH(const QChar, quote);
    tagCsvConf conf;
    conf.cSeparator = separator;
    conf.cQuote = quote;
    QCsvDocument document(conf);
    QVERIFY(!document.loadFile(write("a,b\n")));
    QCOMPARE(document.rowCount(), 0);
}

void tst_QCsvDocument::dropsTheEarlierContent()
{
    QCsvDocument document;
    QVERIFY(document.loadFile(write("a,b,c\nd,e,f\n")));
    QVERIFY(document.loadFile(write("x\n")));
    QCOMPARE(rowsOf(document), Rows{row({"x"})});
    QCOMPARE(document.columnCount(), 1);
    QCOMPARE(document.cell(1, 1), QString());
}

void tst_QCsvDocument::copiesAreIndependent()
{
    QCsvDocument document;
    QVERIFY(document.loadFile(write("a,b\n")));
    const QCsvDocument copy = document;
    QVERIFY(document.loadFile(write("x\n")));
    QCOMPARE(rowsOf(copy), Rows{row({"a", "b"})});
}

void tst_QCsvDocument::readsAResource()
{
    const TestSupport::HostResources host(TestSupport::contentOf(QStringLiteral(CSV_RESOURCES)));
    QVERIFY(host.isRegistered());
    QCsvDocument document;
    QVERIFY(document.loadFile(QStringLiteral(":/csv/table.csv")));
    QCOMPARE(rowsOf(document), (Rows{row({"name", "value"}), row({"a, b", "1"})}));
}

void tst_QCsvDocument::readsManyRows()
{
    QByteArray content;
    for (int n = 0; n < 20000; ++n) {
        content += QByteArray::number(n) + ",\"quoted, " + QByteArray::number(n) + "\"\r\n";
    }
    QCsvDocument document;
    QVERIFY(document.loadFile(write(content)));
    QCOMPARE(document.rowCount(), 20000);
    QCOMPARE(document.columnCount(), 2);
    for (const int n : {0, 1, 9999, 19999}) {
        QCOMPARE(document.cell(n, 0), QString::number(n));
        QCOMPARE(document.cell(n, 1), QStringLiteral("quoted, %1").arg(n));
    }
}

TESSERA_TEST_GUILESS_MAIN(tst_QCsvDocument)
#include "tst_QCsvDocument.moc"
