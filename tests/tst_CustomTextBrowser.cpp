// SPDX-License-Identifier: MIT
#include "support/GlobalState.h"
#include "support/TestMain.h"

#include <Tessera/widgets/CustomTextBrowser.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QPointer>
#include <QScopedPointer>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTimer>
#include <QtTest>

#include <climits>
#include <functional>

using nsUI::CustomTextBrowser;

namespace {

constexpr CustomTextBrowser::eMenuActionFlag clearFlag = CustomTextBrowser::MenuActClear;

CustomTextBrowser::eMenuActionFlag bits(int nBits)
{
    return static_cast<CustomTextBrowser::eMenuActionFlag>(nBits);
}

QFlags<CustomTextBrowser::eMenuActionFlag> flags(int nBits)
{
    return QFlags<CustomTextBrowser::eMenuActionFlag>(QFlag(nBits));
}

//! The paragraphs of a document, each as its runs of one format: "text[#colour,bold]".
QStringList paragraphs(const QTextEdit& edit)
{
    QStringList result;
    for (QTextBlock block = edit.document()->begin(); block.isValid(); block = block.next()) {
        QStringList runs;
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextCharFormat format = it.fragment().charFormat();
            QStringList marks;
            if (format.hasProperty(QTextFormat::ForegroundBrush))
                marks << format.foreground().color().name(QColor::HexArgb);
            if (format.fontWeight() == QFont::Bold)
                marks << QStringLiteral("bold");
            runs << it.fragment().text() + QStringLiteral("[%1]").arg(marks.join(QLatin1Char(',')));
        }
        result << runs.join(QString());
    }
    return result;
}

//! The entries of a menu in order; "-" is a separator.
QStringList entries(const QMenu& menu)
{
    QStringList texts;
    for (const QAction* const pAction : menu.actions())
        texts << (pAction->isSeparator() ? QStringLiteral("-") : QString()) + pAction->text();
    return texts;
}

const QPoint somewhere(60, 70);

/*!
    Asks for the context menu as a right click at \a position of the browser and \a globalPosition of the screen does,
    and lets \a act see it while it is open. Answers the menu, which need not exist any more.
*/
QPointer<QMenu> openMenu(CustomTextBrowser& browser, const std::function<void(QMenu&)>& act,
                         const QPoint& globalPosition = somewhere, const QPoint& position = QPoint(5, 5))
{
    QPointer<QMenu> pMenu;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        auto* const pOpen = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!pOpen)
            return;
        if (!pMenu) {
            pMenu = pOpen;
            act(*pOpen);
        }
        if (pMenu)
            pMenu->close();
    });
    timer.start(1);
    QContextMenuEvent event(QContextMenuEvent::Mouse, position, globalPosition);
    QCoreApplication::sendEvent(browser.viewport(), &event);
    return pMenu;
}

QStringList menuOf(CustomTextBrowser& browser)
{
    QStringList texts;
    openMenu(browser, [&](QMenu& menu) { texts = entries(menu); });
    return texts;
}

//! Chooses an entry as a user does.
void choose(QMenu& menu, const QString& sText)
{
    for (QAction* const pAction : menu.actions()) {
        if (pAction->text() == sText) {
            QTest::mouseClick(&menu, Qt::LeftButton, Qt::NoModifier, menu.actionGeometry(pAction).center());
            return;
        }
    }
    QFAIL("there is no such entry");
}

} // namespace

class tst_CustomTextBrowser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void itDeclaresNothing();
    void aNewBrowserIsEmpty();
    void aBrowserBelongsToItsParent();

    // Appending
    void aColourIsWrittenAroundTheText_data();
    void aColourIsWrittenAroundTheText();
    void theTextIsShownInItsColour();
    void theAlphaIsDropped();
    void withoutAColourTheTextIsAppendedAsItIs_data();
    void withoutAColourTheTextIsAppendedAsItIs();
    void everyCallMakesAParagraph();
    void markupCounts();
    void theViewFollowsTheText();

    // Flags
    void theFlagIsNumbered();
    void flagsAreReplaced();
    void flagsAreSetOneByOne();
    void aTestAsksForAnyBit_data();
    void aTestAsksForAnyBit();

    // The context menu
    void withoutFlagsTheMenuIsTheStandardOne();
    void otherFlagsAddNothing();
    void theClearEntryComesLast();
    void theClearEntryIsOneOfSeveralFlags();
    void theClearEntryIsTranslated();
    void theClearEntryEmptiesTheBrowser();
    void theMenuKnowsTheSelection();
    void theMenuIsAskedForByThePositionOnTheScreen();
    void theMenuOpensWhereTheEventSays();
    void theMenuIsDeletedLater();
    void aBrowserThatCannotBeUsedHasNoMenu();

private:
    QScopedPointer<CustomTextBrowser> m_pBrowser;
};

void tst_CustomTextBrowser::init()
{
    m_pBrowser.reset(new CustomTextBrowser);
}

void tst_CustomTextBrowser::cleanup()
{
    m_pBrowser.reset();
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_CustomTextBrowser::itDeclaresNothing()
{
    const QMetaObject& meta = CustomTextBrowser::staticMetaObject;
    QCOMPARE(meta.className(), "nsUI::CustomTextBrowser");
    QCOMPARE(meta.superClass(), &QTextBrowser::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.enumeratorCount(), meta.enumeratorOffset());
}

void tst_CustomTextBrowser::aNewBrowserIsEmpty()
{
    QCOMPARE(m_pBrowser->toPlainText(), QString());
    QVERIFY(m_pBrowser->isReadOnly());
    QCOMPARE(int(m_pBrowser->menuActFlags()), 0);
    QVERIFY(!m_pBrowser->testMenuActFlag(clearFlag));
}

void tst_CustomTextBrowser::aBrowserBelongsToItsParent()
{
    QWidget parent;
    QPointer<CustomTextBrowser> pBrowser = new CustomTextBrowser(&parent);
    QCOMPARE(pBrowser->parentWidget(), &parent);
    QVERIFY(!m_pBrowser->parentWidget());
}

void tst_CustomTextBrowser::aColourIsWrittenAroundTheText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QString>("markup");
    const QColor red(Qt::red);
    QTest::newRow("done in red") << QStringLiteral("done") << red << QStringLiteral("<font color=#ff0000>done</font>");
    QTest::newRow("black") << QStringLiteral("done") << QColor(Qt::black)
                           << QStringLiteral("<font color=#000000>done</font>");
    QTest::newRow("half transparent") << QStringLiteral("done") << QColor(255, 0, 0, 0x80)
                                      << QStringLiteral("<font color=#ff0000>done</font>");
    QTest::newRow("transparent") << QStringLiteral("done") << QColor(Qt::transparent)
                                 << QStringLiteral("<font color=#000000>done</font>");
    QTest::newRow("by hue") << QStringLiteral("done") << QColor::fromHsv(120, 255, 255)
                            << QStringLiteral("<font color=#00ff00>done</font>");
    QTest::newRow("by name") << QStringLiteral("done") << QColor(QStringLiteral("steelblue"))
                             << QStringLiteral("<font color=#4682b4>done</font>");
    QTest::newRow("nothing") << QString() << red << QStringLiteral("<font color=#ff0000></font>");
    QTest::newRow("markup") << QStringLiteral("a<b>c</b>") << red
                            << QStringLiteral("<font color=#ff0000>a<b>c</b></font>");
    QTest::newRow("entities") << QStringLiteral("a &lt; b &amp; c") << red
                              << QStringLiteral("<font color=#ff0000>a &lt; b &amp; c</font>");
    QTest::newRow("what looks like a tag")
        << QStringLiteral("<none> x") << red << QStringLiteral("<font color=#ff0000><none> x</font>");
    QTest::newRow("an end of the colour")
        << QStringLiteral("a</font>b") << red << QStringLiteral("<font color=#ff0000>a</font>b</font>");
    QTest::newRow("place markers") << QStringLiteral("100%1 of %2") << red
                                   << QStringLiteral("<font color=#ff0000>100%1 of %2</font>");
    QTest::newRow("line breaks") << QStringLiteral("a\n  b\tc") << red
                                 << QStringLiteral("<font color=#ff0000>a\n  b\tc</font>");
    QTest::newRow("Chinese") << QStringLiteral("完成") << red << QStringLiteral("<font color=#ff0000>完成</font>");
}

void tst_CustomTextBrowser::aColourIsWrittenAroundTheText()
{
    QFETCH(QString, text);
    QFETCH(QColor, color);
    QFETCH(QString, markup);
    QTextBrowser expected;
    for (int i = 0; i < 2; ++i) { // the first paragraph and one after another
        m_pBrowser->appendColorText(text, color);
        expected.append(markup);
        QCOMPARE(m_pBrowser->toPlainText(), expected.toPlainText());
        QCOMPARE(paragraphs(*m_pBrowser), paragraphs(expected));
        QCOMPARE(m_pBrowser->toHtml(), expected.toHtml());
    }
}

void tst_CustomTextBrowser::theTextIsShownInItsColour()
{
    m_pBrowser->appendColorText(QStringLiteral("done"), Qt::red);
    QCOMPARE(m_pBrowser->toPlainText(), QStringLiteral("done"));
    QCOMPARE(paragraphs(*m_pBrowser), QStringList{QStringLiteral("done[#ffff0000]")});
    m_pBrowser->appendColorText(QStringLiteral("100%1 <b>done</b>"), QColor(1, 2, 3));
    QCOMPARE(paragraphs(*m_pBrowser).at(1), QStringLiteral("100%1 [#ff010203]done[#ff010203,bold]"));
}

void tst_CustomTextBrowser::theAlphaIsDropped()
{
    CustomTextBrowser opaque;
    opaque.appendColorText(QStringLiteral("done"), QColor(10, 20, 30));
    for (const int nAlpha : {0, 1, 0x80, 255}) {
        CustomTextBrowser browser;
        browser.appendColorText(QStringLiteral("done"), QColor(10, 20, 30, nAlpha));
        QCOMPARE(browser.toHtml(), opaque.toHtml());
        QCOMPARE(paragraphs(browser), QStringList{QStringLiteral("done[#ff0a141e]")});
    }
}

void tst_CustomTextBrowser::withoutAColourTheTextIsAppendedAsItIs_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("result");
    QTest::newRow("plain") << QStringLiteral("done") << QStringList{QStringLiteral("done[]")};
    QTest::newRow("markup") << QStringLiteral("<b>done</b>") << QStringList{QStringLiteral("done[bold]")};
    QTest::newRow("two lines") << QStringLiteral("a\n  b")
                               << QStringList{QStringLiteral("a[]"), QStringLiteral("  b[]")};
    QTest::newRow("signs") << QStringLiteral("a < b && c %1") << QStringList{QStringLiteral("a < b && c %1[]")};
}

void tst_CustomTextBrowser::withoutAColourTheTextIsAppendedAsItIs()
{
    QFETCH(QString, text);
    m_pBrowser->appendColorText(text, QColor());
    QTEST(paragraphs(*m_pBrowser), "result");
    QTextBrowser expected;
    expected.append(text);
    QCOMPARE(m_pBrowser->toHtml(), expected.toHtml());
}

void tst_CustomTextBrowser::everyCallMakesAParagraph()
{
    m_pBrowser->appendColorText(QStringLiteral("one"), Qt::red);
    m_pBrowser->appendColorText(QStringLiteral("two"), QColor(0, 0, 255));
    m_pBrowser->appendColorText(QStringLiteral("three"), Qt::red);
    QCOMPARE(paragraphs(*m_pBrowser), (QStringList{QStringLiteral("one[#ffff0000]"), QStringLiteral("two[#ff0000ff]"),
                                                   QStringLiteral("three[#ffff0000]")}));
    QCOMPARE(m_pBrowser->toPlainText(), QStringLiteral("one\ntwo\nthree"));
}

void tst_CustomTextBrowser::markupCounts()
{
    m_pBrowser->appendColorText(QStringLiteral("a<br>b"), Qt::red);
    QCOMPARE(m_pBrowser->toPlainText(), QStringLiteral("a\nb"));
    m_pBrowser->clear();
    m_pBrowser->appendColorText(QStringLiteral("<font color=#0000ff>blue</font> and red"), Qt::red);
    QCOMPARE(paragraphs(*m_pBrowser), QStringList{QStringLiteral("blue[#ff0000ff] and red[#ffff0000]")});
    m_pBrowser->clear();
    m_pBrowser->appendColorText(QStringLiteral("<1>").toHtmlEscaped(), Qt::red);
    QCOMPARE(m_pBrowser->toPlainText(), QStringLiteral("<1>"));
}

void tst_CustomTextBrowser::theViewFollowsTheText()
{
    m_pBrowser->resize(200, 100);
    m_pBrowser->show();
    QScrollBar* const pBar = m_pBrowser->verticalScrollBar();
    for (int i = 0; i < 40; ++i)
        m_pBrowser->appendColorText(QString::number(i), Qt::red);
    QVERIFY(pBar->maximum() > 0);
    QCOMPARE(pBar->value(), pBar->maximum());
    pBar->setValue(3); // who has scrolled up stays there
    m_pBrowser->appendColorText(QStringLiteral("more"), Qt::red);
    QCOMPARE(pBar->value(), 3);
}

void tst_CustomTextBrowser::theFlagIsNumbered()
{
    QCOMPARE(int(CustomTextBrowser::MenuActClear), 0x1);
}

void tst_CustomTextBrowser::flagsAreReplaced()
{
    m_pBrowser->setMenuActFlags(clearFlag);
    QCOMPARE(int(m_pBrowser->menuActFlags()), 0x1);
    m_pBrowser->setMenuActFlags(flags(0x6));
    QCOMPARE(int(m_pBrowser->menuActFlags()), 0x6);
    QVERIFY(!m_pBrowser->testMenuActFlag(clearFlag));
    m_pBrowser->setMenuActFlags(flags(-1));
    QCOMPARE(int(m_pBrowser->menuActFlags()), -1);
    m_pBrowser->setMenuActFlags({});
    QCOMPARE(int(m_pBrowser->menuActFlags()), 0);
}

void tst_CustomTextBrowser::flagsAreSetOneByOne()
{
    m_pBrowser->setMenuActFlag(bits(0x4), true);
    m_pBrowser->setMenuActFlag(clearFlag, true);
    m_pBrowser->setMenuActFlag(clearFlag, true);
    QCOMPARE(int(m_pBrowser->menuActFlags()), 0x5);
    m_pBrowser->setMenuActFlag(bits(0x8), false);
    QCOMPARE(int(m_pBrowser->menuActFlags()), 0x5);
    m_pBrowser->setMenuActFlag(clearFlag, false);
    QCOMPARE(int(m_pBrowser->menuActFlags()), 0x4);
    m_pBrowser->setMenuActFlag(clearFlag, false);
    QCOMPARE(int(m_pBrowser->menuActFlags()), 0x4);
    m_pBrowser->setMenuActFlag(bits(0x3), true); // several bits at a time
    QCOMPARE(int(m_pBrowser->menuActFlags()), 0x7);
    m_pBrowser->setMenuActFlag(bits(0x6), false);
    QCOMPARE(int(m_pBrowser->menuActFlags()), 0x1);
}

void tst_CustomTextBrowser::aTestAsksForAnyBit_data()
{
    QTest::addColumn<int>("stored");
    QTest::addColumn<int>("tested");
    QTest::addColumn<bool>("result");
    QTest::newRow("none in none") << 0x0 << 0x0 << false;
    QTest::newRow("none in some") << 0x5 << 0x0 << false;
    QTest::newRow("one in none") << 0x0 << 0x1 << false;
    QTest::newRow("one in itself") << 0x1 << 0x1 << true;
    QTest::newRow("one in another") << 0x2 << 0x1 << false;
    QTest::newRow("one in several") << 0x7 << 0x2 << true;
    QTest::newRow("several in one of them") << 0x1 << 0x3 << true;
    QTest::newRow("several in another") << 0x4 << 0x3 << false;
    QTest::newRow("several that overlap") << 0x6 << 0x3 << true;
    QTest::newRow("all in one") << 0x4 << -1 << true;
    QTest::newRow("all in none") << 0x0 << -1 << false;
    QTest::newRow("the highest in itself") << INT_MIN << INT_MIN << true; // the sign of the number
    QTest::newRow("the highest in all") << -1 << INT_MIN << true;
    QTest::newRow("all in the highest") << INT_MIN << -1 << true;
    QTest::newRow("the highest in all others") << INT_MAX << INT_MIN << false;
}

void tst_CustomTextBrowser::aTestAsksForAnyBit()
{
    QFETCH(int, stored);
    QFETCH(int, tested);
    m_pBrowser->setMenuActFlags(flags(stored));
    QTEST(m_pBrowser->testMenuActFlag(bits(tested)), "result");
}

void tst_CustomTextBrowser::withoutFlagsTheMenuIsTheStandardOne()
{
    m_pBrowser->append(QStringLiteral("text"));
    QTextBrowser plain;
    plain.append(QStringLiteral("text"));
    const QScopedPointer<QMenu> pStandard(plain.createStandardContextMenu(somewhere));
    const QStringList standard = entries(*pStandard);
    QVERIFY(standard.size() >= 2);
    QCOMPARE(menuOf(*m_pBrowser), standard + QStringList{QStringLiteral("-")}); // a line that nobody sees
    m_pBrowser->setMenuActFlag(clearFlag, true);
    m_pBrowser->setMenuActFlag(clearFlag, false);
    QCOMPARE(menuOf(*m_pBrowser), standard + QStringList{QStringLiteral("-")});
}

void tst_CustomTextBrowser::otherFlagsAddNothing()
{
    const QStringList without = menuOf(*m_pBrowser);
    m_pBrowser->setMenuActFlags(flags(~0x1));
    QCOMPARE(menuOf(*m_pBrowser), without);
}

void tst_CustomTextBrowser::theClearEntryComesLast()
{
    const QStringList without = menuOf(*m_pBrowser);
    m_pBrowser->setMenuActFlag(clearFlag, true);
    QCOMPARE(menuOf(*m_pBrowser), without + QStringList{QStringLiteral("Clear")});
    m_pBrowser->setMenuActFlags(flags(-1));
    QCOMPARE(menuOf(*m_pBrowser), without + QStringList{QStringLiteral("Clear")});
    const auto checkEntry = [](QMenu& menu) {
        const QAction* const pClear = menu.actions().last();
        QVERIFY(pClear->isEnabled());
        QVERIFY(pClear->isVisible());
        QVERIFY(!pClear->isCheckable());
        QVERIFY(pClear->icon().isNull());
        QVERIFY(pClear->shortcut().isEmpty());
    };
    QVERIFY(openMenu(*m_pBrowser, checkEntry));
}

void tst_CustomTextBrowser::theClearEntryIsOneOfSeveralFlags()
{
    const QStringList without = menuOf(*m_pBrowser);
    const QStringList with = without + QStringList{QStringLiteral("Clear")};
    m_pBrowser->setMenuActFlag(bits(0x7), true);
    QCOMPARE(menuOf(*m_pBrowser), with);
    m_pBrowser->setMenuActFlag(bits(0x6), false);
    QCOMPARE(menuOf(*m_pBrowser), with);
    m_pBrowser->setMenuActFlag(bits(0x3), false);
    QCOMPARE(menuOf(*m_pBrowser), without);
    QVERIFY(!m_pBrowser->testMenuActFlag(bits(-1)));
}

void tst_CustomTextBrowser::theClearEntryIsTranslated()
{
    m_pBrowser->setMenuActFlag(clearFlag, true);
    TestSupport::GlobalState global;
    QVERIFY(global.install(QStringLiteral(":/qm/Tessera_en.qm")));
    QCOMPARE(menuOf(*m_pBrowser).last(), QStringLiteral("Clear"));
    QVERIFY(global.install(QStringLiteral(":/qm/Tessera_zh_CN.qm")));
    const QString sTranslated = menuOf(*m_pBrowser).last(); // even one that was made before
    QCOMPARE(sTranslated, QStringLiteral("清除"));
}

void tst_CustomTextBrowser::theClearEntryEmptiesTheBrowser()
{
    m_pBrowser->setMenuActFlag(clearFlag, true);
    m_pBrowser->show();
    m_pBrowser->appendColorText(QStringLiteral("one"), Qt::red);
    m_pBrowser->append(QStringLiteral("two"));
    QVERIFY(openMenu(*m_pBrowser, [](QMenu& menu) { menu.actions().first()->trigger(); }));
    QCOMPARE(m_pBrowser->toPlainText(), QStringLiteral("one\ntwo"));
    QVERIFY(openMenu(*m_pBrowser, [](QMenu& menu) { choose(menu, QStringLiteral("Clear")); }));
    QCOMPARE(m_pBrowser->toPlainText(), QString());
    QVERIFY(m_pBrowser->testMenuActFlag(clearFlag));
    m_pBrowser->append(QStringLiteral("three"));
    QCOMPARE(m_pBrowser->toPlainText(), QStringLiteral("three"));
}

void tst_CustomTextBrowser::theMenuKnowsTheSelection()
{
    const auto copies = [this] {
        bool bEnabled = false;
        openMenu(*m_pBrowser, [&](QMenu& menu) { bEnabled = menu.actions().first()->isEnabled(); });
        return bEnabled;
    };
    m_pBrowser->append(QStringLiteral("text"));
    QVERIFY(!copies());
    m_pBrowser->selectAll();
    QVERIFY(copies());
}

void tst_CustomTextBrowser::theMenuIsAskedForByThePositionOnTheScreen()
{
    // The entry that copies a link counts where the click is on the screen as a place in the text.
    m_pBrowser->resize(300, 200);
    m_pBrowser->show();
    m_pBrowser->append(QStringLiteral("<a href=\"x\">link</a><br>no link"));
    const QRect link = m_pBrowser->cursorRect(QTextCursor(m_pBrowser->document()));
    const QPoint onLink = link.center() + QPoint(3, 0);
    QCOMPARE(m_pBrowser->anchorAt(onLink), QStringLiteral("x"));
    const QPoint offLink(250, 150);
    const auto linkEntryAt = [this](const QPoint& position, const QPoint& globalPosition) {
        bool bEnabled = false;
        openMenu(
            *m_pBrowser,
            [&](QMenu& menu) {
                QVERIFY(menu.actions().at(1)->text().contains(QLatin1String("Link")));
                bEnabled = menu.actions().at(1)->isEnabled();
            },
            globalPosition, position);
        return bEnabled;
    };
    QVERIFY(linkEntryAt(offLink, onLink));
    QVERIFY(!linkEntryAt(onLink, offLink));
}

void tst_CustomTextBrowser::theMenuOpensWhereTheEventSays()
{
    for (const QPoint& point : {QPoint(60, 70), QPoint(130, 20)}) {
        QPoint position;
        openMenu(
            *m_pBrowser, [&](QMenu& menu) { position = menu.pos(); }, point);
        QCOMPARE(position, point);
    }
}

void tst_CustomTextBrowser::theMenuIsDeletedLater()
{
    m_pBrowser->setMenuActFlag(clearFlag, true);
    const QPointer<QMenu> pFirst = openMenu(*m_pBrowser, [](QMenu& menu) { QVERIFY(menu.isVisible()); });
    QVERIFY(pFirst);
    QVERIFY(!pFirst->isVisible());
    const QPointer<QMenu> pSecond = openMenu(*m_pBrowser, [](QMenu&) {});
    QVERIFY(pFirst != pSecond);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(pFirst.isNull());
    QVERIFY(pSecond.isNull());
}

void tst_CustomTextBrowser::aBrowserThatCannotBeUsedHasNoMenu()
{
    m_pBrowser->setTextInteractionFlags(Qt::NoTextInteraction);
    m_pBrowser->setMenuActFlag(clearFlag, true);
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), somewhere);
    QCoreApplication::sendEvent(m_pBrowser->viewport(), &event);
    QVERIFY(m_pBrowser->findChildren<QMenu*>().isEmpty());
}

TESSERA_TEST_MAIN(tst_CustomTextBrowser)
#include "tst_CustomTextBrowser.moc"
