// SPDX-License-Identifier: MIT
#include "session/Session.h"
#include "support/TestMain.h"
#include "SvdTestSupport.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace registers;
using namespace svdtest;

namespace {

// Rows that follow state what comes in a register R or around it, in lines whose numbers are easy to see.
QByteArray inRegister(const QByteArray& more)
{
    return "<device><name>D</name><peripherals>\n<peripheral><name>P</name><baseAddress>0</baseAddress>\n<registers>"
           "<register>\n<name>R</name><addressOffset>0</addressOffset>\n" +
           more + "\n</register></registers></peripheral></peripherals></device>";
}

} // namespace

class tst_SvdErrors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anErrorSaysWhereAndWhat_data();
    void anErrorSaysWhereAndWhat();
    void aByteThatIsNotUtf8IsFound_data();
    void aByteThatIsNotUtf8IsFound();
    void aByteThatIsNotUtf8MayBelongToAnotherEncoding();
    void anErrorsTextNamesFileLineAndColumn();
    void aFileThatCannotBeOpenedIsAnError();
    void absurdAmountsAreRefused_data();
    void absurdAmountsAreRefused();
    void noTruncatedDescriptionIsRead();
    void damageNeverCrashes();
};

void tst_SvdErrors::anErrorSaysWhereAndWhat_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<int>("line");
    QTest::addColumn<int>("column");
    QTest::addColumn<QStringList>("parts"); // all of them are in the message

    const auto row = [](const char* name, const QByteArray& xml, int line, int column,
                        std::initializer_list<const char*> parts) {
        QStringList texts;
        for (const char* part : parts) {
            texts.append(QString::fromUtf8(part));
        }
        QTest::newRow(name) << xml << line << column << texts;
    };

    // The document.
    row("an empty file", "", 1, 1, {"empty", "expected"});
    row("a file without XML", "hello", 1, 1, {"Start tag expected", "XML"});
    row("a file that is all white space", " \n ", 1, 1, {"no complete <device>"});
    row("tags that do not match", "<device>\n<name>D</nam></device>", 2, 13, {"mismatch", "well-formed XML"});
    row("a file that breaks off", "<device>\n<name>D", 2, 8, {"Premature end", "breaks off"});
    row("a file that breaks off within a tag", "<device><name>D</name><peri", 1, 28, {"Premature end"});
    row("something behind the end", "<device><name>D</name></device><more/>", 1, 38, {"Extra content"});
    row("an entity that is not declared", "<device><name>&nix;</name></device>", 1, 19, {"nix", "XML"});
    row("another root", "<?xml version=\"1.0\"?>\n<!-- c -->\n\n  <package a='1'/>", 4, 3,
        {"<package>", "<device> was expected"});
    row("another root, on the first line", "<html></html>", 1, 1, {"<html>", "<device>"});

    row("a character that may not be", "<device>\n <name>a\x01</name></device>", 2, 9, {"well-formed XML"});
    row("a mistake behind characters of any length",
        "<device>\n<name>\xC3\xB6\xE5\xAF\x84\xF0\x9F\x98\x80</nam></device>", 2, 15, {"mismatch"});
    row("another root behind a comment of any characters", "<!-- \xC3\xB6\xE5\xAF\x84\xF0\x9F\x98\x80 --> <package/>",
        1, 14, {"<package>"});

    // What there must be.
    row("a device without peripherals", "\n\n <device>\n<name>D</name></device>", 3, 2, {"<device>", "<peripheral>"});
    row("a device with an empty list of peripherals", device(""), 1, 1, {"<device>", "<peripheral>"});

    // Sizes.
    row("a register of 65 bits", inRegister("<size>65</size>"), 5, 1, {"\"P.R\"", "65 bits", "1 to 64"});
    row("a size that is wrong where it is inherited from",
        device("<peripheral><name>P</name><baseAddress>0</baseAddress>\n<size>128</size><registers>" + reg("R") +
               "</registers></peripheral>"),
        2, 1, {"\"P.R\"", "128 bits"});

    // References.
    row("clusters that contain each other",
        device(peripheral("P", "<cluster><name>A</name><addressOffset>0</addressOffset>\n"
                               "<cluster derivedFrom=\"P.B\"><name>A1</name></cluster></cluster>"
                               "<cluster><name>B</name><addressOffset>0</addressOffset>\n"
                               "<cluster derivedFrom=\"P.A\"><name>B1</name></cluster></cluster>")),
        2, 1, {"from itself"});
}

void tst_SvdErrors::anErrorSaysWhereAndWhat()
{
    QFETCH(QByteArray, xml);
    QFETCH(int, line);
    QFETCH(int, column);
    QFETCH(QStringList, parts);
    const SvdResult result = read(xml);
    QVERIFY(!result.isOk());
    QVERIFY(!result.cancelled);
    for (const QString& part : parts) {
        QVERIFY2(result.error.message.contains(part), qPrintable(result.error.text()));
    }
    QVERIFY2(result.error.line == line && result.error.column == column, qPrintable(result.error.text()));
    QCOMPARE(result.error.file, QStringLiteral("test.svd"));
}

void tst_SvdErrors::aByteThatIsNotUtf8IsFound_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("named");

    const QByteArray begin = "<device>\n<name>D</name>\r\n<description>";
    const QByteArray letters = "\xC3\xB6\xE5\xAF\x84\xF0\x9F\x98\x80";
    const auto row = [](const char* name, const QByteArray& before, const char* bytes, const char* named) {
        QTest::newRow(name) << before << QByteArray(bytes) << QString::fromLatin1(named);
    };
    row("a byte that no character has", begin, "\xFF", "0xFF");
    row("a letter of Latin-1", begin + "gr",
        "\xF6\xDF"
        "er",
        "0xF6");
    row("the middle of a character", begin, "\x84", "0x84");
    row("a longer form of a short one", begin, "\xC0\xAF", "0xC0");
    row("half a pair", begin, "\xED\xA0\x80", "0xED");
    row("behind the last plane", begin, "\xF4\x90\x80\x80", "0xF4");
    row("behind characters of any length", begin + letters, "\xFE", "0xFE");
    row("behind a declaration", "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + begin, "\xFF", "0xFF");
    row("behind a byte order mark", "\xEF\xBB\xBF<!-- c -->" + begin, "\xFF", "0xFF");
    row("behind a byte order mark, in one line", "\xEF\xBB\xBF<device><name>", "\xFF", "0xFF");
    row("far behind, in a short line", begin + QByteArray(40000, ' ') + '\n' + letters, "\xFF", "0xFF");
    row("far behind, in a long line", begin + letters + QByteArray(40000, ' '), "\xFF", "0xFF");
}

void tst_SvdErrors::aByteThatIsNotUtf8IsFound()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, named);
    const SvdResult result = read(before + bytes + "</description></device>");
    QVERIFY(!result.isOk());
    const QVector<uint> lastLine = QString::fromUtf8(before.mid(before.lastIndexOf('\n') + 1)).toUcs4();
    const qint64 mark = before.startsWith("\xEF\xBB\xBF") && !before.contains('\n') && lastLine.constFirst() == 0xFEFF;
    QCOMPARE(result.error.line, qint64(before.count('\n') + 1));
    QCOMPARE(result.error.column, qint64(lastLine.size() + 1 - mark));
    QCOMPARE(result.error.message,
             QStringLiteral("the byte %1 does not belong to UTF-8: text in UTF-8, or another encoding in the XML "
                            "declaration, was expected")
                 .arg(named));
}

void tst_SvdErrors::aByteThatIsNotUtf8MayBelongToAnotherEncoding()
{
    const QByteArray latin1 = "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>";
    const SvdResult good = read(latin1 + device(peripheral("P", reg("R", "<description>\xF6</description>"))));
    VERIFY_READ(good);
    QCOMPARE(good.device->registerAt(0).description, QStringLiteral("\u00F6"));

    const SvdResult bad = read(latin1 + "\n<device><name>\xF6\xF0\x9F\x98\x80</nam>");
    QCOMPARE(bad.error.line, qint64(2));
    QCOMPARE(bad.error.column, qint64(25));
    QVERIFY2(bad.error.message.contains(QStringLiteral("mismatch")), qPrintable(bad.error.message));
}

void tst_SvdErrors::anErrorsTextNamesFileLineAndColumn()
{
    const SvdResult result = read("\n  <device><name>D</name></device>");
    QCOMPARE(result.error.text(), QStringLiteral("test.svd:2:3: this <device> has no <peripheral>, and at least one "
                                                 "was expected in it"));
}

void tst_SvdErrors::aFileThatCannotBeOpenedIsAnError()
{
    const SvdResult result = readSvdFile(QStringLiteral("/no/such/device.svd"));
    QVERIFY(!result.isOk());
    QCOMPARE(result.error.line, qint64(0));
    QVERIFY(result.error.text().startsWith(QStringLiteral("/no/such/device.svd: ")));

    QTemporaryDir dir;
    QVERIFY(!readSvdFile(dir.path()).isOk());
}

void tst_SvdErrors::absurdAmountsAreRefused_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<QString>("part");

    const QByteArray wide = "<dim>1000</dim><dimIncrement>4</dimIncrement><addressOffset>0</addressOffset>";
    QTest::newRow("a dim of a billion")
        << deviceOf("<register><name>R%s</name><dim>1000000000</dim><dimIncrement>4</dimIncrement><addressOffset>0"
                    "</addressOffset></register>")
        << QStringLiteral("at most 1000000");
    QTest::newRow("arrays within arrays")
        << deviceOf("<cluster><name>A%s</name>" + wide + "<cluster><name>B%s</name>" + wide +
                    "<register><name>R%s</name>" + wide + "</register></cluster></cluster>")
        << QStringLiteral("at most 1000000");
    QTest::newRow("arrays of groups without registers")
        << deviceOf("<cluster><name>A%s</name>" + wide + "<cluster><name>B%s</name>" + wide + "</cluster></cluster>")
        << QStringLiteral("at most 1000000");
    QTest::newRow("too many fields")
        << deviceOf("<cluster><name>A%s</name>" + wide + "<register><name>R%s</name>" +
                    "<dim>100</dim><dimIncrement>4</dimIncrement><addressOffset>0</addressOffset><fields>"
                    "<field><name>F%s</name><dim>16</dim><bitOffset>0</bitOffset></field></fields></register>"
                    "</cluster>")
        << QStringLiteral("at most 1000000");

    QByteArray doubling = "<cluster><name>C0</name><addressOffset>0</addressOffset>" + reg("R") + "</cluster>";
    for (int i = 1; i < 40; ++i) {
        const QByteArray base = "P.C" + QByteArray::number(i - 1);
        doubling += "<cluster><name>C" + QByteArray::number(i) + "</name><addressOffset>0</addressOffset>" +
                    "<cluster derivedFrom=\"" + base + "\"><name>X</name></cluster>" + "<cluster derivedFrom=\"" +
                    base + "\"><name>Y</name></cluster></cluster>";
    }
    QTest::newRow("clusters that double and double again") << deviceOf(doubling) << QStringLiteral("at most 1000000");

    QByteArray nested;
    for (int i = 0; i < 65; ++i) {
        nested += "<cluster><name>C</name><addressOffset>0</addressOffset>";
    }
    for (int i = 0; i < 65; ++i) {
        nested += "</cluster>";
    }
    QTest::newRow("65 nested clusters") << deviceOf(nested) << QStringLiteral("nested more than 64");

    QByteArray chain;
    for (int i = 0; i < 5000; ++i) {
        chain +=
            "<cluster><name>C" + QByteArray::number(i) + "</name><addressOffset>0</addressOffset>" +
            (i + 1 < 5000 ? "<cluster derivedFrom=\"P.C" + QByteArray::number(i + 1) + "\"><name>X</name></cluster>"
                          : QByteArray()) +
            "</cluster>";
    }
    QTest::newRow("clusters nested 5000 deep by derivation")
        << deviceOf(chain) << QStringLiteral("nested more than 64");

    QByteArray tags = "<device><name>D</name>";
    for (int i = 0; i < 100000; ++i) {
        tags += "<x>";
    }
    QTest::newRow("100000 nested tags") << tags << QStringLiteral("nested more than");
}

void tst_SvdErrors::absurdAmountsAreRefused()
{
    QFETCH(QByteArray, xml);
    QFETCH(QString, part);
    const SvdResult result = read(xml);
    QVERIFY(!result.isOk());
    QVERIFY2(result.error.message.contains(part), qPrintable(result.error.text()));
    QVERIFY(result.error.line > 0);
}

void tst_SvdErrors::noTruncatedDescriptionIsRead()
{
    QFile file(sampleFileName());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray whole = file.readAll().trimmed();
    const SvdResult complete = read(whole);
    VERIFY_READ(complete);
    for (int size = 0; size < whole.size(); size += 211) {
        const SvdResult result = read(whole.left(size));
        QVERIFY(!result.isOk());
        QVERIFY(result.error.line > 0 && result.error.column > 0);
        QVERIFY(!result.error.message.isEmpty());
    }
}

void tst_SvdErrors::damageNeverCrashes()
{
    QFile file(sampleFileName());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray whole = file.readAll();
    quint32 random = 12345;
    int readable = 0;
    for (int round = 0; round < 300; ++round) {
        QByteArray damaged = whole;
        for (int i = 0; i < 3; ++i) {
            random = random * 1664525u + 1013904223u;
            const int place = int((random >> 4) % quint32(whole.size()));
            damaged[place] = char(' ' + int((random >> 20) % 95));
        }
        const SvdResult result = read(damaged);
        readable += result.isOk() ? 1 : 0;
        QVERIFY(result.isOk() != (result.error.line > 0));
    }
    // Much of it hits remarks and blanks, much of it does not.
    QVERIFY(readable > 0 && readable < 300);
}

TESSERA_TEST_GUILESS_MAIN(tst_SvdErrors)
#include "tst_svderrors.moc"
