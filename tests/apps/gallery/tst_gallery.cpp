// SPDX-License-Identifier: MIT
#include "cards/Snippets.h"
#include "cards/SnippetView.h"
#include "cards/TextLabel.h"
#include "CommandLine.h"
#include "common/Screenshot.h"
#include "frame/MainWindow.h"
#include "frame/Screenshot.h"
#include "host/Host.h"
#include "host/Names.h"
#include "pages/DialogCatalog.h"
#include "pages/DialogPicture.h"
#include "pages/Page.h"
#include "pages/Pages.h"
#include "samples/CellTable.h"
#include "samples/CellTree.h"
#include "support/TestMain.h"
#include "TestSupport.h"

#include <Tessera/Tessera.h>
#include <Tessera/views/ItemRoles.h>
#include <Tessera/views/TbView.h>
#include <Tessera/widgets/CStepBar.h>

#include <QAbstractItemModelTester>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSettings>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTextDocumentFragment>
#include <QTimer>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>

using namespace gallery;

namespace {

CommandLine parse(const QStringList& arguments)
{
    return parseCommandLine(QStringList{QStringLiteral("tessera-gallery")} + arguments);
}

QStringList split(const char* text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

bool hasHan(const QString& text)
{
    return text.contains(QRegularExpression(QStringLiteral("\\p{Han}")));
}

/// The gallery's window on one page, shown.
std::unique_ptr<MainWindow> shownWindow(const QString& page)
{
    auto window = std::make_unique<MainWindow>();
    window->showPage(page);
    window->show();
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    return window;
}

template <class Widget>
QList<Widget*> visible(const QWidget* parent)
{
    QList<Widget*> all = parent->findChildren<Widget*>();
    all.erase(std::remove_if(all.begin(), all.end(), [](Widget* one) { return !one->isVisible(); }), all.end());
    return all;
}

/// What the text of a widget is short of, in pixels; 0 or less when all of it is seen.
int missingRoom(const QLabel* label)
{
    return label->wordWrap() ? label->heightForWidth(label->width()) - label->height()
                             : label->sizeHint().width() - label->width();
}

int missingRoom(const QAbstractSpinBox* box)
{
    const auto* edit = box->findChild<QLineEdit*>();
    return edit->fontMetrics().horizontalAdvance(edit->text()) - edit->width();
}

int missingRoom(const QAbstractButton* button)
{
    return button->minimumSizeHint().width() - button->width();
}

QStringList clippedTexts(const QWidget* parent)
{
    QStringList clipped;
    for (const QLabel* label : visible<QLabel>(parent)) {
        clipped += missingRoom(label) > 0 ? QStringList(label->text()) : QStringList();
    }
    for (const QAbstractSpinBox* box : visible<QAbstractSpinBox>(parent)) {
        clipped += missingRoom(box) > 0 ? QStringList(box->text()) : QStringList();
    }
    for (const QAbstractButton* button : visible<QAbstractButton>(parent)) {
        clipped += missingRoom(button) > 0 ? QStringList(button->text()) : QStringList();
    }
    return clipped;
}

/// The letters that Alt goes with.
QString mnemonics(const QWidget* parent)
{
    static const QRegularExpression marked(QStringLiteral("&(\\w)"));
    QString letters;
    const auto add = [&letters](const QString& text) {
        const QRegularExpressionMatch match = marked.match(text);
        letters += match.captured(1).toUpper();
    };
    for (const QAbstractButton* button : visible<QAbstractButton>(parent)) {
        add(button->text());
    }
    for (const QLabel* label : visible<QLabel>(parent)) {
        if (label->buddy() && label->textFormat() != Qt::RichText) {
            add(label->text());
        }
    }
    return letters;
}

/// True when a picture shows more than one colour.
bool showsSomething(const QImage& picture)
{
    const QRgb first = picture.pixel(0, 0);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixel(x, y) != first) {
                return true;
            }
        }
    }
    return false;
}

double luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other)
{
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

/// Runs the program as a script does.
class ProgramRun
{
public:
    explicit ProgramRun(const QStringList& arguments)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_config.path());
        m_process.setProcessEnvironment(environment);
        m_process.start(QStringLiteral(GALLERY_PROGRAM), arguments);
        m_process.waitForFinished(120000);
    }

    int exitCode() const { return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1; }
    QString output() { return QString::fromUtf8(m_process.readAllStandardOutput()); }
    QString errors() { return QString::fromUtf8(m_process.readAllStandardError()); }
    QStringList storedFiles() const { return QDir(m_config.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot); }

private:
    QTemporaryDir m_config;
    QProcess m_process;
};

} // namespace

class tst_Gallery : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanupTestCase();

    void nothingOpensTheFirstPage();
    void allOptionsAreTaken();
    void wrongArgumentsAreRefused_data();
    void wrongArgumentsAreRefused();
    void helpAndVersionAreTexts();

    void aSnippetIsThePassageBetweenItsMarks();
    void aPageBuildsWhole_data();
    void aPageBuildsWhole();
    void everyTextIsTranslated_data();
    void everyTextIsTranslated();
    void noTextIsClipped_data();
    void noTextIsClipped();
    void mnemonicsAreUnique_data();
    void mnemonicsAreUnique();
    void pagesAreMadeWhenTheyAreWanted();
    void aNarrowPageScrollsSidewards();
    void theTabKeyGoesFromTheTopToTheBottom_data();
    void theTabKeyGoesFromTheTopToTheBottom();

    void theLanguageIsSwitchedAtRunTime();
    void theDirectionSurvivesASwitchOfTheLanguage();
    void theToolBarChangesTheLook();
    void stepsKeepTheirStateAndTheirDirection();
    void coloursReadWellOnTheirGround_data();
    void coloursReadWellOnTheirGround();
    void theHostsResourcesAreThere_data();
    void theHostsResourcesAreThere();
    void aChosenFontComesIntoForce();

    void theTableHasEveryKind();
    void theModelsKeepTheirPromises();
    void aCellTellsOfItsChange();
    void theWheelPassesABoxWithoutTheFocus();

    void everyDialogHasItsPicture_data();
    void everyDialogHasItsPicture();
    void aPictureFollowsTheLanguage();
    void aPictureLacksWhatIsDeletedLater();
    void theProgressDialogTakesKeys();
    void aDialogOpensFromItsCard();

    void theProgramWritesAPicture_data();
    void theProgramWritesAPicture();
    void theProgramRefusesBadUse_data();
    void theProgramRefusesBadUse();
    void theProgramTellsAboutItself();

private:
    std::optional<TestSupport::GlobalState> m_global;
    std::unique_ptr<Host> m_host;
    QTemporaryDir m_folder;
};

void tst_Gallery::initTestCase()
{
    m_global.emplace();
    // The gallery changes sheets all the time, and the library tells of each change; and of the fonts, where there are some.
    TestSupport::allowMessages(QtInfoMsg,
                               QRegularExpression(QStringLiteral("^(Successfully to load|Unused) qss File: ")));
    TestSupport::allowMessages(QtDebugMsg, QRegularExpression(QStringLiteral("QFileInfo\\(:/ttf/.*\\.ttf\\)")));
    QCoreApplication::setApplicationName(QStringLiteral("tessera-gallery"));
    QCoreApplication::setApplicationVersion(QStringLiteral("9.8.7"));
    m_host = std::make_unique<Host>(Look());
}

void tst_Gallery::init()
{
    const Look usual;
    m_host->setLanguage(usual.language);
    m_host->setShade(usual.shade);
    m_host->setSheet(usual.sheet);
    m_host->setDirection(usual.direction);
}

void tst_Gallery::cleanupTestCase()
{
    m_host.reset();
    m_global.reset();
}

void tst_Gallery::nothingOpensTheFirstPage()
{
    const CommandLine commandLine = parse({});
    QCOMPARE(int(commandLine.action), int(CommandLine::Action::Run));
    QCOMPARE(commandLine.page, QStringLiteral("numbers"));
    QVERIFY(commandLine.dialog.isEmpty());
    QVERIFY(commandLine.scale.isEmpty());
    QVERIFY(!commandLine.wantsBatch());
    QVERIFY(commandLine.look.language == Language::English);
    QVERIFY(commandLine.look.shade == Shade::Light);
    QVERIFY(commandLine.look.sheet == Sheet::Gallery);
    QCOMPARE(commandLine.look.direction, Qt::LeftToRight);
}

void tst_Gallery::allOptionsAreTaken()
{
    const CommandLine commandLine = parse(split("--page steps --dialog bit --language zh_CN --palette dark "
                                                "--sheet tessera --direction rtl --scale 1.5 --screenshot=out.png"));
    QCOMPARE(int(commandLine.action), int(CommandLine::Action::Run));
    QCOMPARE(commandLine.page, QStringLiteral("steps"));
    QCOMPARE(commandLine.dialog, QStringLiteral("bit"));
    QCOMPARE(commandLine.scale, QStringLiteral("1.5"));
    QCOMPARE(commandLine.screenshotFile, QStringLiteral("out.png"));
    QVERIFY(commandLine.wantsBatch());
    QVERIFY(commandLine.look.language == Language::Chinese);
    QVERIFY(commandLine.look.shade == Shade::Dark);
    QVERIFY(commandLine.look.sheet == Sheet::Tessera);
    QCOMPARE(commandLine.look.direction, Qt::RightToLeft);
}

void tst_Gallery::wrongArgumentsAreRefused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, const QStringList& arguments, const char* reason) {
        QTest::newRow(name) << arguments << QString::fromLatin1(reason);
    };
    row("unknown option", split("--pages numbers"), "Unknown option 'pages'");
    row("unknown page", split("--page nothing"), "--page \"nothing\": numbers, services");
    row("page in capitals", split("--page Numbers"), "--page \"Numbers\"");
    row("page without a name", split("--page"), "Missing value");
    row("empty page", {QStringLiteral("--page=")}, "--page needs a value");
    row("page twice", split("--page steps --page items"), "--page may be given only once");
    row("unknown dialog", split("--dialog colour"), "--dialog \"colour\": pen, font");
    row("unknown language", split("--language fr"), "--language \"fr\": en or zh_CN was expected");
    row("unknown palette", split("--palette grey"), "--palette \"grey\": light or dark was expected");
    row("unknown direction", split("--direction up"), "--direction \"up\": ltr or rtl was expected");
    row("unknown sheet", split("--sheet mine"), "--sheet \"mine\": none, tessera or gallery was expected");
    row("scale in words", split("--scale big"), "--scale \"big\": a number from 0.5 to 4");
    row("scale of nothing", split("--scale 0"), "--scale \"0\"");
    row("scale below 0", {QStringLiteral("--scale=-2")}, "--scale \"-2\"");
    row("scale too large", split("--scale 4.1"), "--scale \"4.1\"");
    row("scale without a value", split("--scale nan"), "--scale \"nan\"");
    row("empty screenshot", {QStringLiteral("--screenshot=")}, "--screenshot needs a value");
    row("a file", split("file.svd"), "unexpected argument \"file.svd\"");
}

void tst_Gallery::wrongArgumentsAreRefused()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, reason);
    const CommandLine commandLine = parse(arguments);
    QCOMPARE(int(commandLine.action), int(CommandLine::Action::Fail));
    QVERIFY2(commandLine.text.contains(reason), qPrintable(commandLine.text));
}

void tst_Gallery::helpAndVersionAreTexts()
{
    const CommandLine help = parse(split("--help"));
    QCOMPARE(int(help.action), int(CommandLine::Action::ShowHelp));
    for (const char* option :
         {"--page", "--dialog", "--language", "--palette", "--direction", "--scale", "--sheet", "--screenshot"}) {
        QVERIFY2(help.text.contains(QLatin1String(option)), option);
    }
    const CommandLine version = parse(split("--version"));
    QCOMPARE(int(version.action), int(CommandLine::Action::ShowVersion));
    QCOMPARE(version.text, QStringLiteral("tessera-gallery 9.8.7\n"));
}

void tst_Gallery::aSnippetIsThePassageBetweenItsMarks()
{
    const QString code = codeOf({QStringLiteral("IntegerForms.cpp"), QStringLiteral("wrapping")});
    QVERIFY(code.startsWith(QStringLiteral("auto* phase = new nsUI::CU16SpinBox;\n")));
    QVERIFY(code.endsWith(QStringLiteral("phase->setWrapping(true);")));
    QVERIFY(codeOf({QStringLiteral("IntegerForms.cpp"), QStringLiteral("no such mark")}).isEmpty());
    QVERIFY(codeOf({QStringLiteral("no such file.cpp"), QStringLiteral("wrapping")}).isEmpty());
    // Two passages of one mark, each moved to the margin by itself.
    const QString two = codeOf({QStringLiteral("PenDialog.cpp"), QStringLiteral("pen")});
    QVERIFY(two.contains(QStringLiteral("\n// ... and")));
    QVERIFY(!two.contains(QStringLiteral("[pen]")));
}

namespace {

void addPagesInBothLanguages()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<bool>("inChinese");
    for (const QString& page : pageNames()) {
        QTest::addRow("%s in English", qPrintable(page)) << page << false;
        QTest::addRow("%s in Chinese", qPrintable(page)) << page << true;
    }
}

} // namespace

void tst_Gallery::aPageBuildsWhole_data()
{
    addPagesInBothLanguages();
}

void tst_Gallery::aPageBuildsWhole()
{
    QFETCH(QString, page);
    QFETCH(bool, inChinese);
    m_host->setLanguage(inChinese ? Language::Chinese : Language::English);
    TestSupport::MessageRecorder log;
    const auto window = shownWindow(page);
    QVERIFY(window->currentPage());
    const QVector<Card*>& cards = window->currentPage()->cards();
    QVERIFY(cards.size() >= 5);
    for (const Card* card : cards) {
        const auto* code = card->findChild<SnippetView*>();
        QVERIFY(code);
        QVERIFY2(!QTextDocumentFragment::fromHtml(code->text()).toPlainText().trimmed().isEmpty(),
                 qPrintable(card->title()));
    }
    QCOMPARE(log.take(), QStringList());
}

void tst_Gallery::everyTextIsTranslated_data()
{
    QTest::addColumn<QString>("page");
    for (const QString& page : pageNames()) {
        QTest::newRow(qPrintable(page)) << page;
    }
}

void tst_Gallery::everyTextIsTranslated()
{
    QFETCH(QString, page);
    m_host->setLanguage(Language::Chinese);
    const auto window = shownWindow(page);
    QVERIFY(hasHan(window->windowTitle()));
    for (const Card* card : window->currentPage()->cards()) {
        const auto labels = card->findChildren<TextLabel*>(QString(), Qt::FindDirectChildrenOnly);
        QVERIFY(labels.size() >= 2); // the title, which names classes, and the description
        for (int i = 1; i < labels.size(); ++i) {
            QVERIFY2(hasHan(labels.at(i)->text()), qPrintable(labels.at(i)->text()));
        }
    }
    for (const QPushButton* button : visible<QPushButton>(window.get())) {
        QVERIFY2(hasHan(button->text()), qPrintable(button->text()));
    }
    for (const QCheckBox* box : visible<QCheckBox>(window.get())) {
        QVERIFY2(hasHan(box->text()), qPrintable(box->text()));
    }
}

void tst_Gallery::noTextIsClipped_data()
{
    addPagesInBothLanguages();
}

void tst_Gallery::noTextIsClipped()
{
    QFETCH(QString, page);
    QFETCH(bool, inChinese);
    m_host->setLanguage(inChinese ? Language::Chinese : Language::English);
    TestSupport::MessageRecorder log;
    const auto window = shownWindow(page);
    QCOMPARE(clippedTexts(window.get()), QStringList());
    QCOMPARE(window->currentPage()->horizontalScrollBar()->maximum(), 0);
}

void tst_Gallery::mnemonicsAreUnique_data()
{
    addPagesInBothLanguages();
}

void tst_Gallery::mnemonicsAreUnique()
{
    QFETCH(QString, page);
    QFETCH(bool, inChinese);
    m_host->setLanguage(inChinese ? Language::Chinese : Language::English);
    TestSupport::MessageRecorder log;
    const auto window = shownWindow(page);
    const QString letters = mnemonics(window.get());
    QVERIFY(letters.size() >= 5); // those of the tool bar
    for (const QChar letter : letters) {
        QVERIFY2(letters.count(letter) == 1, qPrintable(letters));
    }
}

void tst_Gallery::pagesAreMadeWhenTheyAreWanted()
{
    MainWindow window;
    QCOMPARE(window.findChildren<Page*>().size(), 0);
    window.showPage(QStringLiteral("steps"));
    QCOMPARE(window.findChildren<Page*>().size(), 1);
    const Page* steps = window.currentPage();
    window.showPage(QStringLiteral("numbers"));
    QVERIFY(window.currentPage() != steps);
    window.showPage(QStringLiteral("steps"));
    QCOMPARE(window.currentPage(), steps);
    QCOMPARE(window.findChild<QListWidget*>(QStringLiteral("navigation"))->currentRow(), 4);
}

void tst_Gallery::aNarrowPageScrollsSidewards()
{
    const auto window = shownWindow(QStringLiteral("numbers"));
    window->resize(window->minimumSize());
    QCoreApplication::processEvents();
    const Page* page = window->currentPage();
    QVERIFY(page->horizontalScrollBar()->maximum() > 0);
    QVERIFY(page->widget()->width() > page->viewport()->width());
    window->resize(1240, 800);
    QCoreApplication::processEvents();
    QCOMPARE(page->horizontalScrollBar()->maximum(), 0);
    QCOMPARE(page->widget()->width(), page->viewport()->width());
}

void tst_Gallery::theTabKeyGoesFromTheTopToTheBottom_data()
{
    QTest::addColumn<QString>("page");
    for (const QString& page : pageNames()) {
        QTest::newRow(qPrintable(page)) << page;
    }
}

void tst_Gallery::theTabKeyGoesFromTheTopToTheBottom()
{
    QFETCH(QString, page);
    const auto window = shownWindow(page);
    QWidget* const first = window->findChild<QComboBox*>(QStringLiteral("language"));
    QVERIFY(first);
    const QVector<Card*>& cards = window->currentPage()->cards();
    // The tool bar is at place 0, the navigation at 1, the page at 2 and its cards behind that.
    const auto placeOf = [&](const QWidget* stop) {
        for (int i = 0; i < cards.size(); ++i) {
            if (cards.at(i)->isAncestorOf(stop)) {
                return 3 + i;
            }
        }
        return stop == window->currentPage() ? 2 : qobject_cast<const QListWidget*>(stop) ? 1 : 0;
    };
    QVector<int> places{placeOf(first)};
    for (QWidget* next = first->nextInFocusChain(); next != first; next = next->nextInFocusChain()) {
        if (next->isVisible() && next->isEnabled() && (next->focusPolicy() & Qt::TabFocus) && !next->focusProxy()) {
            places.append(placeOf(next));
        }
    }
    QVERIFY(places.contains(1) && places.contains(2));
    QVERIFY(std::is_sorted(places.begin(), places.end()));
}

void tst_Gallery::theLanguageIsSwitchedAtRunTime()
{
    const auto window = shownWindow(QStringLiteral("items"));
    const auto* view = window->findChild<nsUI::TbView*>();
    const auto shown = [view](int row) { return view->model()->index(row, CellTable::ValueColumn).data().toString(); };
    const auto* open = window->findChild<QPushButton*>(QStringLiteral("open_bit"));
    QCOMPARE(window->windowTitle(), QStringLiteral("Tessera Gallery"));
    QCOMPARE(shown(2), QStringLiteral("True"));
    QCOMPARE(shown(4), QStringLiteral("Medium"));

    m_host->setLanguage(Language::Chinese);
    QCoreApplication::processEvents();
    QCOMPARE(window->windowTitle(), QStringLiteral("Tessera 示例库"));
    QCOMPARE(window->findChild<QListWidget*>()->item(2)->text(), QStringLiteral("单元格与位"));
    QCOMPARE(window->findChild<QCheckBox*>(QStringLiteral("dark"))->text(), QStringLiteral("深色(&D)"));
    QCOMPARE(open->text(), QStringLiteral("打开位对话框(&B)…"));
    QCOMPARE(shown(2), QStringLiteral("是")); // from the library's catalogue
    QCOMPARE(shown(4), QStringLiteral("中"));
    QVERIFY(hasHan(view->model()->headerData(0, Qt::Horizontal).toString()));

    m_host->setLanguage(Language::English);
    QCoreApplication::processEvents();
    QCOMPARE(window->windowTitle(), QStringLiteral("Tessera Gallery"));
    QCOMPARE(open->text(), QStringLiteral("Open the &bit dialog…"));
    QCOMPARE(shown(2), QStringLiteral("True"));
}

void tst_Gallery::theDirectionSurvivesASwitchOfTheLanguage()
{
    m_host->setDirection(Qt::RightToLeft);
    m_host->setLanguage(Language::Chinese);
    QCoreApplication::processEvents();
    QCOMPARE(QApplication::layoutDirection(), Qt::RightToLeft);
    const auto window = shownWindow(QStringLiteral("numbers"));
    QCOMPARE(window->layoutDirection(), Qt::RightToLeft);
    QCOMPARE(window->findChild<SnippetView*>()->layoutDirection(), Qt::LeftToRight);
}

void tst_Gallery::theToolBarChangesTheLook()
{
    const auto window = shownWindow(QStringLiteral("services"));
    auto* dark = window->findChild<QCheckBox*>(QStringLiteral("dark"));
    auto* mirrored = window->findChild<QCheckBox*>(QStringLiteral("mirrored"));
    auto* sheet = window->findChild<QComboBox*>(QStringLiteral("sheet"));
    auto* language = window->findChild<QComboBox*>(QStringLiteral("language"));

    dark->click();
    QVERIFY(m_host->look().shade == Shade::Dark);
    QVERIFY(QApplication::palette().color(QPalette::Window).lightness() < 128);
    QCOMPARE(m_host->sheetFiles().last(), QStringLiteral("GalleryDark"));
    mirrored->click();
    QCOMPARE(window->layoutDirection(), Qt::RightToLeft);

    sheet->setFocus();
    QTest::keyClick(sheet, Qt::Key_Home);
    QVERIFY(m_host->look().sheet == Sheet::None);
    QVERIFY(qApp->styleSheet().startsWith(QStringLiteral("*{")));
    QVERIFY(!qApp->styleSheet().contains(QStringLiteral("CStepBar")));
    QTest::keyClick(sheet, Qt::Key_Down);
    QVERIFY(m_host->look().sheet == Sheet::Tessera);
    QVERIFY(qApp->styleSheet().contains(QStringLiteral("nsUI--CStepBar")));

    language->setFocus();
    QTest::keyClick(language, Qt::Key_End);
    QVERIFY(m_host->look().language == Language::Chinese);
    QCOMPARE(language->currentText(), QStringLiteral("简体中文"));

    m_host->setShade(Shade::Light); // the bar follows
    QVERIFY(!dark->isChecked());
}

void tst_Gallery::stepsKeepTheirStateAndTheirDirection()
{
    const auto window = shownWindow(QStringLiteral("steps"));
    auto* bar = window->currentPage()->cards().at(1)->findChild<nsUI::CStepBar*>();
    const auto leftOf = [&bar](int step) { return bar->findChildren<QCheckBox*>().at(step)->x(); };
    QTest::mouseClick(bar->findChildren<QCheckBox*>().at(2), Qt::LeftButton);
    QCOMPARE(bar->currentIndex(), 2);
    QTest::mouseClick(bar->findChildren<QCheckBox*>().at(3), Qt::LeftButton); // not enabled
    QCOMPARE(bar->currentIndex(), 2);
    QVERIFY(leftOf(0) < leftOf(1));

    m_host->setLanguage(Language::Chinese);
    m_host->setDirection(Qt::RightToLeft);
    QCoreApplication::processEvents();
    QCOMPARE(bar->currentIndex(), 2);
    QCOMPARE(bar->stepText(0), QStringLiteral("连接"));
    QVERIFY(leftOf(0) > leftOf(1));
    bar = window->currentPage()->cards().last()->findChild<nsUI::CStepBar*>(); // has a direction of its own
    QVERIFY(leftOf(0) < leftOf(1));
}

void tst_Gallery::coloursReadWellOnTheirGround_data()
{
    QTest::addColumn<bool>("isDark");
    QTest::newRow("light") << false;
    QTest::newRow("dark") << true;
}

void tst_Gallery::coloursReadWellOnTheirGround()
{
    QFETCH(bool, isDark);
    m_host->setShade(isDark ? Shade::Dark : Shade::Light);
    const QPalette palette = QApplication::palette();
    const struct
    {
        QPalette::ColorRole text;
        QPalette::ColorRole ground;
    } pairs[] = {
        {QPalette::WindowText, QPalette::Window},
        {QPalette::Text, QPalette::Base},
        {QPalette::Text, QPalette::AlternateBase},
        {QPalette::ButtonText, QPalette::Button},
        {QPalette::ToolTipText, QPalette::ToolTipBase},
        {QPalette::HighlightedText, QPalette::Highlight},
        {QPalette::Link, QPalette::Window},
        {QPalette::PlaceholderText, QPalette::Base},
    };
    for (const auto& pair : pairs) {
        const double ratio = contrast(palette.color(pair.text), palette.color(pair.ground));
        QVERIFY2(ratio >= 4.5, qPrintable(QStringLiteral("%1 on %2: %3").arg(pair.text).arg(pair.ground).arg(ratio)));
    }
    // A step that is current, and one that is not, on the ground of a card.
    const auto window = shownWindow(QStringLiteral("steps"));
    auto* bar = window->findChild<nsUI::CStepBar*>();
    const QImage picture = window->currentPage()->cards().first()->grab().toImage();
    const QColor ground = picture.pixelColor(picture.width() / 2, 6);
    for (const QCheckBox* step : bar->findChildren<QCheckBox*>()) {
        const double ratio = contrast(step->palette().color(QPalette::WindowText), ground);
        QVERIFY2(ratio >= 4.5, qPrintable(QString::number(ratio)));
    }
}

void tst_Gallery::theHostsResourcesAreThere_data()
{
    QTest::addColumn<QString>("path");
    for (const char* icon :
         {"arrow-forward", "arrow-back", "arrow-downward", "arrow-upward", "plus", "minus", "text"}) {
        QTest::newRow(icon) << QStringLiteral(":/svg/primary/%1.svg").arg(QLatin1String(icon));
    }
}

void tst_Gallery::theHostsResourcesAreThere()
{
    QFETCH(QString, path);
    const QImage icon(path);
    QVERIFY(!icon.isNull());
    QVERIFY(showsSomething(icon));
}

void tst_Gallery::aChosenFontComesIntoForce()
{
    const auto window = shownWindow(QStringLiteral("services"));
    const QString before = qApp->styleSheet();
    QTimer::singleShot(0, this, [] {
        QWidget* dialog = QApplication::activeModalWidget();
        dialog->findChild<QSpinBox*>(QStringLiteral("pISpxSize"))->setValue(14);
        dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    });
    window->findChild<QPushButton*>(QStringLiteral("font"))->click();
    QVERIFY(qApp->styleSheet() != before);
    QVERIFY(qApp->styleSheet().contains(QStringLiteral("font-size:14pt;")));
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    QCOMPARE(clippedTexts(window.get()), QStringList());

    QSettings().clear();
    m_host->reloadSheets();
    QCOMPARE(qApp->styleSheet(), before);
}

void tst_Gallery::theTableHasEveryKind()
{
    const CellTable table;
    QVector<int> kinds;
    for (int row = 0; row < table.rowCount(); ++row) {
        const QModelIndex cell = table.index(row, CellTable::ValueColumn);
        kinds.append(cell.data(nsUI::e_Role_ItemType).toInt());
    }
    QCOMPARE(kinds, (QVector<int>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 3}));
    QCOMPARE(table.index(13, CellTable::ValueColumn).flags(), Qt::NoItemFlags);
    QCOMPARE(table.index(6, CellTable::ValueColumn).data().toString(), QStringLiteral("0x1D0F"));
    QCOMPARE(table.index(12, CellTable::ValueColumn).data().toString(), QStringLiteral("0x8011"));
}

void tst_Gallery::theModelsKeepTheirPromises()
{
    CellTable table;
    const QAbstractItemModelTester ofTable(&table, QAbstractItemModelTester::FailureReportingMode::QtTest);
    CellTree tree;
    const QAbstractItemModelTester ofTree(&tree, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QCOMPARE(tree.rowCount(), 4);
    table.retranslate();
    tree.retranslate();
}

void tst_Gallery::aCellTellsOfItsChange()
{
    CellTable table;
    int changes = 0;
    connect(&table, &CellTable::dataChanged, this, [&changes] { ++changes; });
    const QModelIndex check = table.index(1, CellTable::ValueColumn);
    QVERIFY(table.setData(check, Qt::Unchecked, Qt::CheckStateRole));
    QCOMPARE(check.data(Qt::EditRole), QVariant(false));
    const QModelIndex number = table.index(6, CellTable::ValueColumn);
    QVERIFY(table.setData(number, 0xBEEF, Qt::EditRole));
    QCOMPARE(number.data().toString(), QStringLiteral("0xBEEF"));
    QCOMPARE(changes, 2);
    QVERIFY(!table.setData(table.index(6, CellTable::KindColumn), 1, Qt::EditRole));

    CellTree tree;
    const QModelIndex pin = tree.index(2, CellTree::ValueColumn, tree.index(1, 0)); // there are two choices
    QVERIFY(!pin.isValid());
    const QModelIndex text = tree.index(2, CellTree::ValueColumn, tree.index(2, 0));
    QVERIFY(tree.setData(text, QStringLiteral("UART"), Qt::EditRole));
    QCOMPARE(text.data().toString(), QStringLiteral("UART"));
}

void tst_Gallery::theWheelPassesABoxWithoutTheFocus()
{
    const auto window = shownWindow(QStringLiteral("numbers"));
    auto* box = window->currentPage()->findChild<QAbstractSpinBox*>();
    const auto turn = [box] {
        const QPointF middle = box->rect().center();
        QWheelEvent event(middle, box->mapToGlobal(middle.toPoint()), QPoint(), QPoint(0, -120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(box, &event);
    };
    const QString before = box->text();
    turn();
    QCOMPARE(box->text(), before);
    QVERIFY(window->currentPage()->verticalScrollBar()->value() > 0);
    box->setFocus();
    QVERIFY(box->hasFocus());
    turn();
    QVERIFY(box->text() != before);
}

void tst_Gallery::everyDialogHasItsPicture_data()
{
    QTest::addColumn<QString>("dialog");
    for (const QString& dialog : dialogNames()) {
        QTest::newRow(qPrintable(dialog)) << dialog;
    }
}

void tst_Gallery::everyDialogHasItsPicture()
{
    QFETCH(QString, dialog);
    QCOMPARE(QString::fromLatin1(dialogNamed(dialog).name), dialog);
    const QImage english = pictureOfDialog(dialog).toImage();
    QVERIFY(showsSomething(english));
    m_host->setLanguage(Language::Chinese);
    QVERIFY(pictureOfDialog(dialog).toImage() != english);
    QVERIFY(!QApplication::activeModalWidget());
}

void tst_Gallery::aPictureFollowsTheLanguage()
{
    const auto window = shownWindow(QStringLiteral("dialogs"));
    const QList<DialogPicture*> pictures = window->findChildren<DialogPicture*>();
    QCOMPARE(pictures.size(), 5);
    QCOMPARE(pictures.first()->accessibleName(), QStringLiteral("Pen Settings"));
    m_host->setLanguage(Language::Chinese);
    QCoreApplication::processEvents();
    QTRY_COMPARE(pictures.first()->accessibleName(), QStringLiteral("画笔设置"));
}

void tst_Gallery::aPictureLacksWhatIsDeletedLater()
{
    QWidget window;
    window.setStyleSheet(QStringLiteral("background: white"));
    window.resize(40, 40);
    const QImage empty = apps::pictureOf(&window).toImage();

    auto* leftover = new QWidget(&window);
    const QPointer<QLabel> inside = new QLabel(QStringLiteral("gone"), leftover); // goes before its turn comes
    QVERIFY(apps::pictureOf(&window).toImage() != empty);
    leftover->deleteLater();
    QCOMPARE(apps::pictureOf(&window).toImage(), empty);
    QVERIFY(!inside);
}

void tst_Gallery::theProgressDialogTakesKeys()
{
    const DialogEntry& entry = dialogNamed(QStringLiteral("progress"));
    const std::unique_ptr<QDialog> dialog(entry.make(nullptr));
    dialog->show();
    QTest::keyClick(dialog.get(), Qt::Key_A); // would never come back from a plain one
    QTest::keyClick(dialog.get(), Qt::Key_Escape);
    QVERIFY(dialog->isVisible());
    int result = -1;
    connect(dialog.get(), &QDialog::finished, this, [&result](int code) { result = code; });
    entry.start(dialog.get());
    QTRY_COMPARE_WITH_TIMEOUT(result, int(QDialog::Accepted), 20000);
}

void tst_Gallery::aDialogOpensFromItsCard()
{
    const auto window = shownWindow(QStringLiteral("dialogs"));
    auto* open = window->findChild<QPushButton*>(QStringLiteral("open_pen"));
    bool wasOpen = false;
    QTimer::singleShot(0, this, [&wasOpen] {
        if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            wasOpen = true;
            dialog->accept();
        }
    });
    open->click();
    QVERIFY(wasOpen);
    const auto* outcome = open->parentWidget()->findChild<TextLabel*>();
    QVERIFY2(outcome->text().contains(QStringLiteral("#dd7308, 2.5, DashLine")), qPrintable(outcome->text()));
}

void tst_Gallery::theProgramWritesAPicture_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("width");
    QTest::newRow("a page") << split("--page steps") << 1240;
    QTest::newRow("a page in everything else")
        << split("--page items --language zh_CN --palette dark --direction rtl --sheet none") << 1240;
    QTest::newRow("a page, doubled") << split("--page steps --scale 2") << 2480;
    QTest::newRow("a dialog") << split("--dialog font --palette dark") << 625;
}

void tst_Gallery::theProgramWritesAPicture()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, width);
    const QString file = m_folder.filePath(QStringLiteral("picture.png"));
    ProgramRun run(arguments + QStringList{QStringLiteral("--screenshot"), file});
    QCOMPARE(run.errors(), QString());
    QCOMPARE(run.output(), QString());
    QCOMPARE(run.exitCode(), kExitOk);
    QCOMPARE(run.storedFiles(), QStringList()); // a batch run leaves the user's settings alone
    const QImage picture(file);
    QCOMPARE(picture.width(), width);
    QVERIFY(showsSomething(picture));
}

void tst_Gallery::theProgramRefusesBadUse_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("reason");
    QTest::newRow("a page that is none") << split("--page none") << QStringLiteral("--page \"none\"");
    QTest::newRow("a scale that is none") << split("--scale x") << QStringLiteral("--scale \"x\"");
    QTest::newRow("a file that cannot be written")
        << split("--page steps --screenshot /nowhere/at/all.png") << QStringLiteral("/nowhere/at/all.png: ");
}

void tst_Gallery::theProgramRefusesBadUse()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, reason);
    ProgramRun run(arguments);
    QCOMPARE(run.exitCode(), kExitBadUse);
    QCOMPARE(run.output(), QString());
    const QString errors = run.errors();
    QVERIFY2(errors.startsWith(QStringLiteral("tessera-gallery: ")), qPrintable(errors));
    QVERIFY2(errors.contains(reason), qPrintable(errors));
}

void tst_Gallery::theProgramTellsAboutItself()
{
    ProgramRun help({QStringLiteral("--help")});
    QCOMPARE(help.exitCode(), kExitOk);
    QVERIFY(help.output().contains(QStringLiteral("--screenshot")));
    ProgramRun version({QStringLiteral("--version")});
    QCOMPARE(version.exitCode(), kExitOk);
    QVERIFY(version.output().startsWith(QStringLiteral("tessera-gallery ")));
}

TESSERA_TEST_MAIN(tst_Gallery)

#include "tst_gallery.moc"
