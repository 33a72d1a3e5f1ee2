// SPDX-License-Identifier: MIT
#include "CommandRun.h"
#include "support/TestMain.h"
#include "SvdTestSupport.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>

using namespace registers;
using namespace svdtest;

namespace {

CommandLine parse(const QStringList& arguments)
{
    return parseCommandLine(QStringList{QStringLiteral("tessera-registers")} + arguments);
}

QStringList split(const char* text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

void writeFile(const QString& fileName, const QByteArray& bytes)
{
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

QByteArray readFile(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
}

QByteArray testDevice()
{
    return deviceOf(reg("R", "<size>16</size><resetValue>0x00FF</resetValue>",
                        field("LOW", "<bitRange>[3:0]</bitRange>") +
                            field("RO", "<bitRange>[7:4]</bitRange>", "<access>read-only</access>") +
                            field("OUT", "<bitRange>[19:12]</bitRange>")) +
                    reg("ID", "<access>read-only</access>",
                        field("F") + field("W", "<bitOffset>1</bitOffset>", "<access>read-write</access>")) +
                    reg("CMD", "<access>write-only</access>") + reg("ONCE", "<access>writeOnce</access>") +
                    reg("BIG", "<size>64</size>", field("ALL", "<bitRange>[63:0]</bitRange>")) +
                    "<cluster><name>C[%s]</name><dim>2</dim><dimIncrement>8</dimIncrement><addressOffset>0x20"
                    "</addressOffset><cluster><name>D</name><addressOffset>0</addressOffset>" +
                    reg("S", "", field("F", "<bitRange>[7:0]</bitRange>")) + "</cluster></cluster>");
}

} // namespace

class tst_CommandLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void nothingOpensTheSample();
    void allOptionsAreTaken();
    void batchIsWantedForFilesOnly_data();
    void batchIsWantedForFilesOnly();
    void wrongArgumentsAreRefused_data();
    void wrongArgumentsAreRefused();
    void helpAndVersionAreTexts();
    void aSetTakesEffect_data();
    void aSetTakesEffect();
    void aWrongSetIsRefused_data();
    void aWrongSetIsRefused();
    void setsAreAppliedInTheirOrder();
    void oneWrongSetStopsAll();
    void loadedValuesComeBeforeSets();
    void aFileOfAnotherDeviceIsLoaded();
    void oneFileIsLoadedAndExported();
    void aFileThatCannotBeLoadedIsExplained_data();
    void aFileThatCannotBeLoadedIsExplained();
    void registersWithoutAPlaceAreNamed();
    void ofManyRegistersWithoutAPlaceSomeAreNamed();
    void aSessionHoldsTheSelection();
    void aFailedSessionLeavesTheOldOne();
    void anExportIsWritten();
    void theSampleCanBeExported();
    void aScreenshotComesFromTheRenderer();
    void aWrongCallWritesNothing_data();
    void aWrongCallWritesNothing();
    void aCheckListsAllRemarks();
    void aCheckWithoutRemarksIsSilent();
    void aCheckOfARefusedDescriptionFails_data();
    void aCheckOfARefusedDescriptionFails();
    void aCheckListsManyRemarks();
    void strictRefusesAtTheFirstRemark();
    void strictTakesADescriptionWithoutRemarks();
    void withoutACheckOneLineTellsOfRemarks();
    void aFailureTellsOfRemarksToo();
    void aTerminalIsNotSteered();

private:
    QString path(const char* name) const { return m_dir->filePath(QString::fromUtf8(name)); }
    CommandLine batch(const QStringList& more) const;
    /// Writes a file of @p entries to load; it was made for the device "Dev".
    void writeRegisters(const QByteArray& entries) const;

    std::unique_ptr<QTemporaryDir> m_dir;
};

void tst_CommandLine::initTestCase()
{
    QCoreApplication::setApplicationName(QStringLiteral("tessera-registers"));
    QCoreApplication::setApplicationVersion(QStringLiteral("9.8.7"));
}

void tst_CommandLine::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    writeFile(path("device.svd"), testDevice());
}

CommandLine tst_CommandLine::batch(const QStringList& more) const
{
    return parse(QStringList{path("device.svd"), QStringLiteral("--export"), path("out.json")} + more);
}

void tst_CommandLine::writeRegisters(const QByteArray& entries) const
{
    writeFile(path("in.json"), R"({"device": "Dev", "registers": [)" + entries + "]}");
}

void tst_CommandLine::nothingOpensTheSample()
{
    const CommandLine commandLine = parse({});
    QCOMPARE(int(commandLine.action), int(CommandLine::Action::Run));
    QCOMPARE(commandLine.descriptionFile(), QStringLiteral(":/registers/sample.svd"));
    QVERIFY(QFile::exists(commandLine.descriptionFile()));
    QVERIFY(!commandLine.wantsBatch());
}

void tst_CommandLine::allOptionsAreTaken()
{
    const CommandLine commandLine =
        parse(split("--set A.B=1 dev.svd --load in.json --set A.B.C=0x2 --export out.json --screenshot=out.png "
                    "--select A.B"));
    QCOMPARE(int(commandLine.action), int(CommandLine::Action::Run));
    QCOMPARE(commandLine.descriptionFile(), QStringLiteral("dev.svd"));
    QCOMPARE(commandLine.loadFile, QStringLiteral("in.json"));
    QCOMPARE(commandLine.sets.size(), 2);
    QCOMPARE(commandLine.sets.at(0).path, QStringLiteral("A.B"));
    QCOMPARE(commandLine.sets.at(0).number, QStringLiteral("1"));
    QCOMPARE(commandLine.sets.at(1).path, QStringLiteral("A.B.C"));
    QCOMPARE(commandLine.sets.at(1).number, QStringLiteral("0x2"));
    QCOMPARE(commandLine.exportFile, QStringLiteral("out.json"));
    QCOMPARE(commandLine.screenshotFile, QStringLiteral("out.png"));
    QCOMPARE(commandLine.selectPath, QStringLiteral("A.B"));
}

void tst_CommandLine::batchIsWantedForFilesOnly_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<bool>("expected");

    QTest::newRow("a file to open") << QStringLiteral("dev.svd") << false;
    QTest::newRow("values and a selection") << QStringLiteral("--set A.B=1 --select A.B") << false;
    QTest::newRow("a file to load") << QStringLiteral("--load in.json") << false;
    QTest::newRow("an export") << QStringLiteral("--export out.json") << true;
    QTest::newRow("a screenshot") << QStringLiteral("--screenshot out.png") << true;
}

void tst_CommandLine::batchIsWantedForFilesOnly()
{
    QFETCH(QString, arguments);
    QFETCH(bool, expected);
    QCOMPARE(parse(arguments.split(QLatin1Char(' '))).wantsBatch(), expected);
}

void tst_CommandLine::wrongArgumentsAreRefused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("part");

    const auto row = [](const char* name, const QStringList& arguments, const char* part) {
        QTest::newRow(name) << arguments << QString::fromLatin1(part);
    };
    row("an unknown option", split("--fast"), "fast");
    row("an unknown short option", split("-x"), "x");
    row("two files", split("a.svd b.svd"), "b.svd");
    row("an option without its value", split("--export"), "export");
    row("an empty file name", {QStringLiteral("--export"), QString()}, "--export");
    row("an export given twice", split("--export a --export b"), "only once");
    row("two files to load", split("--load a --load b"), "only once");
    row("no file to load", {QStringLiteral("--load"), QString()}, "--load");
    row("a set without a number", split("--set A.B"), "PATH=NUMBER");
    row("a set without a path", split("--set =1"), "PATH=NUMBER");
    row("a check that writes", split("--check --export a"), "--check");
    row("a check that draws", split("--check --screenshot a"), "--check");
    row("a check that sets", split("--check --set A.B=1"), "--check");
    row("a check that loads", split("--check --load a"), "--check");
    row("a check that selects", split("--check --select A.B"), "--check");
    row("one file for both", split("--export a/../x --screenshot ./x"), "one file");
}

void tst_CommandLine::wrongArgumentsAreRefused()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, part);
    const CommandLine commandLine = parse(arguments);
    QCOMPARE(int(commandLine.action), int(CommandLine::Action::Fail));
    QVERIFY2(commandLine.text.contains(part), qPrintable(commandLine.text));
}

void tst_CommandLine::helpAndVersionAreTexts()
{
    const CommandLine help = parse(split("--help"));
    QCOMPARE(int(help.action), int(CommandLine::Action::ShowHelp));
    for (const char* part : {"--load", "--set", "--export", "--screenshot", "--select", "--check", "--strict",
                             "FILE.svd", "PATH=NUMBER"}) {
        QVERIFY(help.text.contains(QLatin1String(part)));
    }
    const CommandLine version = parse(split("--version"));
    QCOMPARE(int(version.action), int(CommandLine::Action::ShowVersion));
    QCOMPARE(version.text, QStringLiteral("tessera-registers 9.8.7\n"));
}

void tst_CommandLine::aSetTakesEffect_data()
{
    QTest::addColumn<QString>("request");
    QTest::addColumn<QString>("registerPath");
    QTest::addColumn<quint64>("expected");

    const auto row = [](const char* name, const char* request, const char* registerPath, quint64 expected) {
        QTest::newRow(name) << QString::fromLatin1(request) << QString::fromLatin1(registerPath) << expected;
    };
    row("a register, decimal", "P.R=258", "P.R", 0x0102);
    row("a register, hexadecimal", "P.R=0xFFFF", "P.R", 0xFFFF);
    row("a register, binary", "P.R=0b101", "P.R", 5);
    row("a field changes its bits only", "P.R.LOW=0", "P.R", 0x00F0);
    row("a field's largest value", "P.R.LOW=15", "P.R", 0x00FF);
    row("a field that reaches beyond its register", "P.R.OUT=0xF", "P.R", 0xF0FF);
    row("a writable field of a read-only register", "P.ID.W=1", "P.ID", 2);
    row("a write-only register", "P.CMD=7", "P.CMD", 7);
    row("a register to write once", "P.ONCE=7", "P.ONCE", 7);
    row("all 64 bits", "P.BIG=18446744073709551615", "P.BIG", ~quint64(0));
    row("all 64 bits of a field", "P.BIG.ALL=0xFEDCBA9876543210", "P.BIG", 0xFEDCBA9876543210);
    row("a register in nested clusters", "P.C[1].D.S=3", "P.C[1].D.S", 3);
    row("a field in nested clusters", "P.C[0].D.S.F=4", "P.C[0].D.S", 4);
}

void tst_CommandLine::aSetTakesEffect()
{
    QFETCH(QString, request);
    QFETCH(QString, registerPath);
    QFETCH(quint64, expected);
    const CommandLine commandLine = parse({path("device.svd"), QStringLiteral("--set"), request});
    Session session;
    QString error;
    QVERIFY2(openSession(commandLine, &session, &error), qPrintable(error));
    QCOMPARE(session.state->value(session.device->findRegister(registerPath)), expected);
}

void tst_CommandLine::aWrongSetIsRefused_data()
{
    QTest::addColumn<QString>("request");
    QTest::addColumn<QString>("part");

    const auto row = [](const char* name, const char* request, const char* part) {
        QTest::newRow(name) << QString::fromLatin1(request) << QString::fromLatin1(part);
    };
    row("an unknown peripheral", "X.R=1", "no peripheral \"X\"");
    row("an unknown register", "P.X=1", "no register or cluster \"X\"");
    row("an unknown field", "P.R.X=1", "no field \"X\"");
    row("a peripheral", "P=1", "is a peripheral");
    row("a read-only register", "P.ID=1", "\"P.ID\" is read-only");
    row("a read-only field", "P.R.RO=1", "\"P.R.RO\" is read-only");
    row("a field that inherits read-only", "P.ID.F=1", "\"P.ID.F\" is read-only");
    row("no number", "P.R=", "not a number");
    row("a word", "P.R=on", "not a number");
    row("a negative number", "P.R=-1", "not a number");
    row("a scaled number", "P.R=1k", "not a number");
    row("more than 64 bits", "P.BIG=18446744073709551616", "64 bits");
    row("too large for the register", "P.R=0x10000", "does not fit");
    row("too large for the field", "P.R.LOW=16", "does not fit");
    row("too large for the part of the field in the register", "P.R.OUT=0x10", "does not fit");
}

void tst_CommandLine::aWrongSetIsRefused()
{
    QFETCH(QString, request);
    QFETCH(QString, part);
    const SvdResult result = read(testDevice());
    VERIFY_READ(result);
    DeviceState state(result.device);
    QString error;
    const CommandLine commandLine = parse({QStringLiteral("--set"), request});
    QVERIFY(!applySets(*result.device, state, commandLine.sets, &error));
    QVERIFY2(error.contains(part), qPrintable(error));
    QCOMPARE(state.modifiedCount(), 0);
}

void tst_CommandLine::setsAreAppliedInTheirOrder()
{
    const SvdResult result = read(testDevice());
    VERIFY_READ(result);
    DeviceState state(result.device);
    QString error;
    const CommandLine commandLine = parse(split("--set P.R.LOW=1 --set P.R=0xABCD --set P.R.LOW=2"));
    QVERIFY(applySets(*result.device, state, commandLine.sets, &error));
    QCOMPARE(state.value(0), quint64(0xABC2));
}

void tst_CommandLine::oneWrongSetStopsAll()
{
    const SvdResult result = read(testDevice());
    VERIFY_READ(result);
    DeviceState state(result.device);
    QString error;
    const CommandLine commandLine = parse(split("--set P.R=1 --set P.ID=1"));
    QVERIFY(!applySets(*result.device, state, commandLine.sets, &error));
    QCOMPARE(state.value(0), quint64(0x00FF));
}

void tst_CommandLine::loadedValuesComeBeforeSets()
{
    writeRegisters(R"({"path": "P.R", "value": "0x1234"}, {"path": "P.CMD", "value": "0x9"})");
    Session session;
    QString error;
    const CommandLine commandLine =
        batch({QStringLiteral("--set"), QStringLiteral("P.R.LOW=0xF"), QStringLiteral("--load"), path("in.json")});
    QVERIFY2(openSession(commandLine, &session, &error), qPrintable(error));
    QCOMPARE(session.state->value(0), quint64(0x123F));
    QCOMPARE(session.state->value(2), quint64(9));
    QCOMPARE(session.state->modifiedCount(), 2);
}

void tst_CommandLine::aFileOfAnotherDeviceIsLoaded()
{
    writeFile(path("in.json"), R"({"device": "Other", "registers": [{"path": "P.R", "value": 7}]})");
    Session session;
    QString error;
    QVERIFY2(openSession(batch({QStringLiteral("--load"), path("in.json")}), &session, &error), qPrintable(error));
    QCOMPARE(session.state->value(0), quint64(7));
}

void tst_CommandLine::oneFileIsLoadedAndExported()
{
    QString messages;
    QTextStream errors(&messages);
    QCOMPARE(runBatch(batch(split("--set P.R=0xABCD --set P.ID.W=1 --set P.BIG=0xFFFFFFFFFFFFFFFF")), errors), kExitOk);
    const QByteArray first = readFile(path("out.json"));
    QVERIFY(first.contains("\"value\": \"0xABCD\""));

    QCOMPARE(runBatch(batch({QStringLiteral("--load"), path("out.json")}), errors), kExitOk);
    QCOMPARE(readFile(path("out.json")), first);
    QCOMPARE(messages, QString());
}

void tst_CommandLine::aFileThatCannotBeLoadedIsExplained_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("expected"); // behind the file's name

    const auto row = [](const char* name, const char* json, const char* expected) {
        QTest::newRow(name) << QByteArray(json) << QString::fromLatin1(expected);
    };
    row("an empty file", "", ": is empty; ");
    row("no JSON", "{\"registers\":\n oops}", ":2:");
    row("no list of registers", "{}", ": holds no list \"registers\"; ");
    row("an unknown register", R"({"registers": [{"path": "P.X", "value": "1"}]})",
        ": 1 of its registers cannot be loaded:\nP.X: ");
    row("one good register and one without a value",
        R"({"registers": [{"path": "P.R", "value": "1"}, {"path": "P.BIG"}]})",
        ": 1 of its registers cannot be loaded:\nP.BIG: has no value\n");
}

void tst_CommandLine::aFileThatCannotBeLoadedIsExplained()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, expected);
    writeFile(path("in.json"), json);
    QString messages;
    QTextStream errors(&messages);
    QCOMPARE(runBatch(batch({QStringLiteral("--load"), path("in.json")}), errors), kExitBadUse);
    QVERIFY2(messages.startsWith(QStringLiteral("tessera-registers: ") + path("in.json") + expected),
             qPrintable(messages));
    QVERIFY(!QFile::exists(path("out.json")));
}

void tst_CommandLine::registersWithoutAPlaceAreNamed()
{
    writeRegisters(R"({"path": "P.X", "value": 1}, {"path": "P.R", "value": 1}, {"path": "P.ID", "value": 1}, 5)");
    const SvdResult result = read(testDevice());
    VERIFY_READ(result);
    DeviceState state(result.device);
    QString error;
    QVERIFY(!applyLoad(state, path("in.json"), &error));
    const QStringList lines = error.split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 4);
    QCOMPARE(lines.at(0), path("in.json") + QStringLiteral(": 3 of its registers cannot be loaded:"));
    QVERIFY(lines.at(1).startsWith(QStringLiteral("P.X: ")));
    QVERIFY(lines.at(2).startsWith(QStringLiteral("P.ID: ")));
    QVERIFY(lines.at(3).startsWith(QStringLiteral("register 4 of the file: ")));
    QCOMPARE(state.modifiedCount(), 0);
}

void tst_CommandLine::ofManyRegistersWithoutAPlaceSomeAreNamed()
{
    QByteArray entries;
    for (int i = 1; i <= 21; ++i) {
        entries += QByteArray(i > 1 ? "," : "") + R"({"path": "P.X)" + QByteArray::number(i) + R"(", "value": 1})";
    }
    writeRegisters(entries);
    const SvdResult result = read(testDevice());
    VERIFY_READ(result);
    DeviceState state(result.device);
    QString error;
    QVERIFY(!applyLoad(state, path("in.json"), &error));
    const QStringList lines = error.split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 22);
    QVERIFY(lines.at(0).endsWith(QStringLiteral("21 of its registers cannot be loaded:")));
    QVERIFY(lines.at(20).startsWith(QStringLiteral("P.X20: ")));
    QCOMPARE(lines.at(21), QStringLiteral("and 1 more"));
}

void tst_CommandLine::aSessionHoldsTheSelection()
{
    Session session;
    QString error;
    QVERIFY(openSession(parse({path("device.svd")}), &session, &error));
    QVERIFY(!session.selection.isValid());
    const QStringList selecting{path("device.svd"), QStringLiteral("--select"), QStringLiteral("P.R.RO")};
    QVERIFY(openSession(parse(selecting), &session, &error));
    QCOMPARE(session.selection.registerIndex, 0);
    QCOMPARE(session.selection.fieldIndex, 1);
}

void tst_CommandLine::aFailedSessionLeavesTheOldOne()
{
    Session session;
    QString error;
    QVERIFY(openSession(parse({path("device.svd")}), &session, &error));
    const DevicePtr before = session.device;
    QVERIFY(!openSession(parse({path("none.svd")}), &session, &error));
    QVERIFY(error.startsWith(path("none.svd")));
    QVERIFY(session.device == before);
    QVERIFY(session.state != nullptr);

    error.clear();
    QVERIFY(!openSession(parse({}), &session, &error, [](qint64, qint64) { return false; }));
    QVERIFY(error.contains(QStringLiteral("cancelled")));
}

void tst_CommandLine::anExportIsWritten()
{
    QString messages;
    QTextStream errors(&messages);
    QCOMPARE(runBatch(batch(split("--set P.R.LOW=0b1 --select P.R")), errors), kExitOk);
    QVERIFY(messages.isEmpty());
    const QJsonObject exported = QJsonDocument::fromJson(readFile(path("out.json"))).object();
    QCOMPARE(exported[QLatin1String("device")].toString(), QStringLiteral("Dev"));
    const QJsonArray list = exported[QLatin1String("registers")].toArray();
    QCOMPARE(list.size(), 7);
    QCOMPARE(list[0].toObject()[QLatin1String("value")].toString(), QStringLiteral("0x00F1"));
    QCOMPARE(list[0].toObject()[QLatin1String("reset")].toString(), QStringLiteral("0x00FF"));
}

void tst_CommandLine::theSampleCanBeExported()
{
    QString messages;
    QTextStream errors(&messages);
    QCOMPARE(runBatch(parse({QStringLiteral("--export"), path("sample.json")}), errors), kExitOk);
    QVERIFY(
        QJsonDocument::fromJson(readFile(path("sample.json"))).object()[QLatin1String("registers")].toArray().size() >
        100);
}

void tst_CommandLine::aScreenshotComesFromTheRenderer()
{
    const CommandLine commandLine =
        batch({QStringLiteral("--screenshot"), path("out.png"), QStringLiteral("--select"), QStringLiteral("P.CMD")});
    QString messages;
    QTextStream errors(&messages);
    const auto draws = [](const Session& session, QByteArray* png, QString*) {
        *png = "picture of " + QByteArray::number(session.selection.registerIndex);
        return true;
    };
    QCOMPARE(runBatch(commandLine, errors, draws), kExitOk);
    QCOMPARE(readFile(path("out.png")), QByteArray("picture of 2"));
    QVERIFY(QFile::exists(path("out.json")));

    QVERIFY(QFile::remove(path("out.json")));
    const auto fails = [](const Session&, QByteArray*, QString* error) {
        *error = QStringLiteral("no ink");
        return false;
    };
    QCOMPARE(runBatch(commandLine, errors, fails), kExitBadUse);
    QVERIFY(messages.contains(QStringLiteral("no ink")));
    QVERIFY(!QFile::exists(path("out.json")));
    QCOMPARE(runBatch(commandLine, errors), kExitBadUse);
    QVERIFY(!QFile::exists(path("out.json")));
}

void tst_CommandLine::aWrongCallWritesNothing_data()
{
    QTest::addColumn<QByteArray>("description");
    QTest::addColumn<QString>("more");
    QTest::addColumn<QString>("part");

    const auto row = [](const char* name, const QByteArray& description, const char* more, const char* part) {
        QTest::newRow(name) << description << QString::fromLatin1(more) << QString::fromLatin1(part);
    };
    row("a description that is no XML", "hello", "", "device.svd:1:1: ");
    row("a description without peripherals", "\n <device><name>D</name></device>", "", "device.svd:2:2: ");
    row("an unknown path to set", testDevice(), "--set P.X=1", "unknown path \"P.X\"");
    row("an unknown path to select", testDevice(), "--select P.R.X", "unknown path \"P.R.X\"");
    row("a group to select", testDevice(), "--select P.C[0]", "is a cluster");
    row("a read-only target", testDevice(), "--set P.R=1 --set P.ID=1", "read-only");
    row("a number that does not fit", testDevice(), "--set P.R=65536", "does not fit");
}

void tst_CommandLine::aWrongCallWritesNothing()
{
    QFETCH(QByteArray, description);
    QFETCH(QString, more);
    QFETCH(QString, part);
    writeFile(path("device.svd"), description);
    writeFile(path("out.json"), "old");

    QString messages;
    QTextStream errors(&messages);
    const CommandLine commandLine = batch(more.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    QCOMPARE(int(commandLine.action), int(CommandLine::Action::Run));
    QCOMPARE(runBatch(commandLine, errors), kExitBadUse);
    QVERIFY2(messages.startsWith(QStringLiteral("tessera-registers: ")) && messages.contains(part),
             qPrintable(messages));
    QCOMPARE(readFile(path("out.json")), QByteArray("old"));
    QCOMPARE(QDir(m_dir->path()).entryList(QDir::Files),
             (QStringList{QStringLiteral("device.svd"), QStringLiteral("out.json")}));
}

namespace {

QByteArray remarkedDevice()
{
    return deviceOf("\n " + reg("R", "<access>read/clear</access>") +
                    "\n<register><name>S</name><addressOffset>here</addressOffset></register>");
}

/// What the program answers with.
struct Answer
{
    int exitCode = -1;
    QString output;
    QString errors;
};

Answer check(const QStringList& arguments)
{
    const CommandLine commandLine = parse(QStringList{QStringLiteral("--check")} + arguments);
    Answer answer;
    QTextStream output(&answer.output);
    QTextStream errors(&answer.errors);
    answer.exitCode = runCheck(commandLine, output, errors);
    return answer;
}

Answer runInBatch(const CommandLine& commandLine)
{
    Answer answer;
    QTextStream errors(&answer.errors);
    answer.exitCode = runBatch(commandLine, errors);
    return answer;
}

} // namespace

void tst_CommandLine::aCheckListsAllRemarks()
{
    writeFile(path("device.svd"), remarkedDevice());
    const Answer answer = check({path("device.svd")});
    QCOMPARE(answer.errors, QString());
    QCOMPARE(answer.output,
             QStringLiteral("%1:2:58: <access> is \"read/clear\", and read-only, write-only, read-write, writeOnce or "
                            "read-writeOnce was expected; it counts as not said, so what stands above holds\n"
                            "%1:3:25: <addressOffset> is \"here\", and a number such as 64, 0x40 or #1000000, of at "
                            "most 64 bits was expected; the register is left out\n")
                 .arg(path("device.svd")));
    QCOMPARE(answer.exitCode, 1);
}

void tst_CommandLine::aCheckWithoutRemarksIsSilent()
{
    for (const QStringList& arguments : {QStringList{path("device.svd")}, QStringList()}) {
        const Answer answer = check(arguments);
        QCOMPARE(answer.output + answer.errors, QString());
        QCOMPARE(answer.exitCode, 0);
    }
}

void tst_CommandLine::aCheckOfARefusedDescriptionFails_data()
{
    QTest::addColumn<QByteArray>("description");
    QTest::addColumn<QString>("expected"); // behind the file's name

    QTest::newRow("no device") << QByteArray("<package/>") << QStringLiteral(":1:1: the root element is <package>, ");
    QTest::newRow("no peripherals") << device("") << QStringLiteral(":1:1: this <device> has no <peripheral>, ");
    QTest::newRow("no end, behind a remark") << remarkedDevice().chopped(9) << QStringLiteral(":3:");
}

void tst_CommandLine::aCheckOfARefusedDescriptionFails()
{
    QFETCH(QByteArray, description);
    QFETCH(QString, expected);
    writeFile(path("device.svd"), description);
    const Answer answer = check({path("device.svd")});
    QCOMPARE(answer.output, QString());
    QVERIFY2(answer.errors.startsWith(QStringLiteral("tessera-registers: ") + path("device.svd") + expected),
             qPrintable(answer.errors));
    QCOMPARE(answer.exitCode, 2);
}

void tst_CommandLine::aCheckListsManyRemarks()
{
    writeFile(path("device.svd"), deviceOf(QByteArray("<register/>\n").repeated(10007)));
    const Answer answer = check({path("device.svd")});
    QCOMPARE(answer.output.count(QLatin1Char('\n')), 10001);
    QVERIFY(answer.output.endsWith(QLatin1Char('\n') + path("device.svd") + QStringLiteral(": and 7 more\n")));
    QCOMPARE(answer.exitCode, 1);
}

void tst_CommandLine::strictRefusesAtTheFirstRemark()
{
    writeFile(path("device.svd"), remarkedDevice());
    writeFile(path("out.json"), "old");
    const QString expected = QStringLiteral("tessera-registers: %1:2:58: <access> is ").arg(path("device.svd"));
    const QStringList strict{QStringLiteral("--strict")};
    for (const Answer& answer : {runInBatch(batch(strict)), check(strict + QStringList{path("device.svd")})}) {
        QVERIFY2(answer.errors.startsWith(expected), qPrintable(answer.errors));
        QCOMPARE(answer.errors.count(QLatin1Char('\n')), 1);
        QCOMPARE(answer.output, QString());
        QCOMPARE(answer.exitCode, 2);
    }
    QCOMPARE(readFile(path("out.json")), QByteArray("old"));
}

void tst_CommandLine::strictTakesADescriptionWithoutRemarks()
{
    const Answer answer = runInBatch(batch({QStringLiteral("--strict")}));
    QCOMPARE(answer.errors, QString());
    QCOMPARE(answer.exitCode, 0);
    QVERIFY(QFile::exists(path("out.json")));
}

void tst_CommandLine::withoutACheckOneLineTellsOfRemarks()
{
    writeFile(path("device.svd"), remarkedDevice());
    const Answer several = runInBatch(batch({}));
    QCOMPARE(several.errors, path("device.svd") + QStringLiteral(": 2 remarks; --check lists them\n"));
    QCOMPARE(several.exitCode, 0);
    QVERIFY(readFile(path("out.json")).contains("P.R"));

    writeFile(path("device.svd"), deviceOf(reg("R", "<size>?</size>")));
    QCOMPARE(runInBatch(batch({})).errors, path("device.svd") + QStringLiteral(": 1 remark; --check lists it\n"));
}

void tst_CommandLine::aFailureTellsOfRemarksToo()
{
    writeFile(path("device.svd"), remarkedDevice());
    const Answer answer = runInBatch(batch(split("--set P.S=1")));
    const QStringList lines = answer.errors.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 2);
    QVERIFY2(lines.at(0).startsWith(QStringLiteral("tessera-registers: unknown path \"P.S\"")),
             qPrintable(lines.at(0)));
    QCOMPARE(lines.at(1), path("device.svd") + QStringLiteral(": 2 remarks; --check lists them"));
    QCOMPARE(answer.exitCode, 2);
}

void tst_CommandLine::aTerminalIsNotSteered()
{
    const QString odd = path("a\u001B[31m\u202E.svd");
    writeFile(odd, deviceOf(reg("R", "<size>\xC2\x9B"
                                     "31m</size>")));
    const QString shown = path("a\\u001B[31m\\u202E.svd");
    QVERIFY(check({odd}).output.startsWith(shown + QStringLiteral(":1:")));
    QVERIFY(check({odd}).output.contains(QStringLiteral("<size> is \"\\u009B31m\", ")));
    const Answer missing = runInBatch(batch({QStringLiteral("--set"), QStringLiteral("P.\u009B=1")}));
    QVERIFY2(missing.errors.contains(QStringLiteral("\"P.\\u009B\"")), qPrintable(missing.errors));
}

TESSERA_TEST_GUILESS_MAIN(tst_CommandLine)
#include "tst_commandline.moc"
