// SPDX-License-Identifier: MIT
#include "ModalDriver.h"
#include "support/TestMain.h"

#include <Tessera/widgets/CMessageDlg.h>
#include <Tessera/widgets/CustomTextBrowser.h>

#include <QCloseEvent>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QPointer>
#include <QPushButton>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QtTest>
#include <QUrl>
#include <QVBoxLayout>

using nsUI::CMessageDlg;
using nsUI::CustomTextBrowser;

namespace {

//! A host's dialog that does not let itself be closed.
class StayingDialog : public CMessageDlg
{
public:
    int nCloseEvents = 0;

protected:
    void closeEvent(QCloseEvent* event) override
    {
        ++nCloseEvents;
        event->ignore();
    }
};

//! Takes what would go to the desktop's own browser.
class LinkCatcher : public QObject
{
    Q_OBJECT

public:
    LinkCatcher()
    {
        for (const QString& sScheme : schemes())
            QDesktopServices::setUrlHandler(sScheme, this, "take");
    }
    ~LinkCatcher() override
    {
        for (const QString& sScheme : schemes())
            QDesktopServices::unsetUrlHandler(sScheme);
    }

    QList<QUrl> links;

public Q_SLOTS:
    void take(const QUrl& url) { links << url; }

private:
    static QStringList schemes() { return {QStringLiteral("https"), QStringLiteral("file"), QString()}; }
};

} // namespace

class tst_CMessageDlg : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void itDeclaresNothing();
    void itIsBuiltOfTextAndButtons();
    void itIsMadeHidden();
    void theTitleBarHasNeitherCloseNorHelpButton();
    void aDialogBelongsToItsParent();

    void textIsAppendedInItsColour();
    void theTextIsKeptWhenItCloses();
    void aLinkOpensNothing_data();
    void aLinkOpensNothing();

    void itNeverAccepts_data();
    void itNeverAccepts();
    void okClosesTheWindow();
    void aHostMayRefuseTheClose();

    void aButtonIsEnabledAndDisabled();
    void aButtonThatIsMissing_data();
    void aButtonThatIsMissing();

private:
    QScopedPointer<CMessageDlg> m_pDialog;
};

void tst_CMessageDlg::init()
{
    m_pDialog.reset(new CMessageDlg);
}

void tst_CMessageDlg::cleanup()
{
    m_pDialog.reset();
}

void tst_CMessageDlg::itDeclaresNothing()
{
    const QMetaObject& meta = CMessageDlg::staticMetaObject;
    QCOMPARE(meta.className(), "nsUI::CMessageDlg");
    QCOMPARE(meta.superClass(), &QDialog::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.enumeratorCount(), meta.enumeratorOffset());
}

void tst_CMessageDlg::itIsBuiltOfTextAndButtons()
{
    auto* const pLayout = qobject_cast<QVBoxLayout*>(m_pDialog->layout());
    QVERIFY(pLayout);
    QVERIFY(m_pDialog->textBrowser() && m_pDialog->buttonBox());
    QCOMPARE(pLayout->count(), 2);
    QCOMPARE(pLayout->itemAt(0)->widget(), m_pDialog->textBrowser());
    QCOMPARE(pLayout->itemAt(1)->widget(), m_pDialog->buttonBox());
    QCOMPARE(pLayout->stretch(0), 1);
    QCOMPARE(pLayout->stretch(1), 0);
    QCOMPARE(m_pDialog->textBrowser()->parentWidget(), m_pDialog.data());
    QCOMPARE(m_pDialog->buttonBox()->parentWidget(), m_pDialog.data());
    QCOMPARE(m_pDialog->findChildren<CustomTextBrowser*>().size(), 1);

    QCOMPARE(m_pDialog->buttonBox()->standardButtons(), QDialogButtonBox::Ok);
    QCOMPARE(m_pDialog->buttonBox()->buttons().size(), 1);
    QVERIFY(m_pDialog->button(QDialogButtonBox::Ok));
    QCOMPARE(m_pDialog->button(QDialogButtonBox::Ok), m_pDialog->buttonBox()->button(QDialogButtonBox::Ok));
    QCOMPARE(m_pDialog->textBrowser()->toPlainText(), QString());
    QCOMPARE(int(m_pDialog->textBrowser()->menuActFlags()), 0);
}

void tst_CMessageDlg::itIsMadeHidden()
{
    QVERIFY(m_pDialog->isHidden());
    QVERIFY(m_pDialog->testAttribute(Qt::WA_WState_ExplicitShowHide));
    QVERIFY(!m_pDialog->isModal());
    QVERIFY(!m_pDialog->testAttribute(Qt::WA_DeleteOnClose));
}

void tst_CMessageDlg::theTitleBarHasNeitherCloseNorHelpButton()
{
    const QDialog plain;
    Qt::WindowFlags expected = plain.windowFlags();
    QVERIFY(expected & Qt::WindowCloseButtonHint);
    expected &= ~Qt::WindowContextHelpButtonHint;
    expected &= ~Qt::WindowCloseButtonHint;
    QCOMPARE(m_pDialog->windowFlags(), expected);
    m_pDialog->show();
    QCOMPARE(m_pDialog->windowFlags(), expected);
}

void tst_CMessageDlg::aDialogBelongsToItsParent()
{
    QWidget parent;
    QPointer<CMessageDlg> pDialog = new CMessageDlg(&parent);
    QCOMPARE(pDialog->parentWidget(), &parent);
    QVERIFY(pDialog->isWindow());
    QVERIFY(!m_pDialog->parentWidget());
    parent.show();
    QVERIFY(!pDialog->isVisible());
}

void tst_CMessageDlg::textIsAppendedInItsColour()
{
    CustomTextBrowser expected;
    const QList<QPair<QString, QColor>> lines{{QStringLiteral("done"), Qt::red},
                                              {QStringLiteral("<b>plain</b>"), QColor()},
                                              {QStringLiteral("half %1 <i>blue</i>"), QColor(0, 0, 255, 0x80)}};
    for (const auto& line : lines) {
        m_pDialog->appendColorText(line.first, line.second);
        expected.appendColorText(line.first, line.second);
    }
    QCOMPARE(m_pDialog->textBrowser()->toPlainText(), QStringLiteral("done\nplain\nhalf %1 blue"));
    QCOMPARE(m_pDialog->textBrowser()->toHtml(), expected.toHtml());
    QVERIFY(!m_pDialog->isVisible());
}

void tst_CMessageDlg::theTextIsKeptWhenItCloses()
{
    m_pDialog->appendColorText(QStringLiteral("one"), Qt::red);
    m_pDialog->show();
    QTest::mouseClick(m_pDialog->button(QDialogButtonBox::Ok), Qt::LeftButton);
    QVERIFY(!m_pDialog->isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    m_pDialog->appendColorText(QStringLiteral("two"), Qt::red);
    m_pDialog->show();
    QVERIFY(m_pDialog->isVisible());
    QCOMPARE(m_pDialog->textBrowser()->toPlainText(), QStringLiteral("one\ntwo"));
    QTest::mouseClick(m_pDialog->button(QDialogButtonBox::Ok), Qt::LeftButton);
    QVERIFY(!m_pDialog->isVisible());
}

void tst_CMessageDlg::aLinkOpensNothing_data()
{
    QTest::addColumn<QString>("link");
    QTest::addColumn<bool>("byKey");
    for (const QString& sLink : {QStringLiteral("https://example.org/"), QStringLiteral("page.html"),
                                 QStringLiteral("file:///etc/hostname"), QStringLiteral("#place")}) {
        QTest::addRow("%s, mouse", qPrintable(sLink)) << sLink << false;
        QTest::addRow("%s, key", qPrintable(sLink)) << sLink << true;
    }
}

void tst_CMessageDlg::aLinkOpensNothing()
{
    QFETCH(QString, link);
    QFETCH(bool, byKey);
    CustomTextBrowser* const pBrowser = m_pDialog->textBrowser();
    m_pDialog->appendColorText(QStringLiteral("<a href=\"%1\">link</a>").arg(link), Qt::red);
    m_pDialog->appendColorText(QStringLiteral("the log goes on"), Qt::red);
    m_pDialog->show();
    QVERIFY(QTest::qWaitForWindowActive(m_pDialog.data()));
    const QString sLog = pBrowser->toHtml();
    LinkCatcher catcher;
    QSignalSpy clicked(pBrowser, &QTextBrowser::anchorClicked);
    if (byKey) {
        pBrowser->setFocus(Qt::TabFocusReason);
        QTest::keyClick(pBrowser, Qt::Key_Tab); // on to the link
        QTest::keyClick(pBrowser, Qt::Key_Return);
    } else {
        const QRect place = pBrowser->cursorRect(QTextCursor(pBrowser->document()));
        QTest::mouseClick(pBrowser->viewport(), Qt::LeftButton, Qt::NoModifier, place.center() + QPoint(3, 0));
    }
    QCOMPARE(clicked, (QList<QVariantList>{{QUrl(link)}})); // the host hears of it
    QCOMPARE(pBrowser->toHtml(), sLog);
    QCOMPARE(pBrowser->source(), QUrl());
    QCOMPARE(catcher.links, QList<QUrl>());
    QVERIFY(m_pDialog->isVisible());
}

void tst_CMessageDlg::itNeverAccepts_data()
{
    QTest::addColumn<QString>("action");
    QTest::newRow("OK") << QStringLiteral("ok");
    QTest::newRow("Return") << QStringLiteral("return");
    QTest::newRow("Escape") << QStringLiteral("escape");
    QTest::newRow("closing the window") << QStringLiteral("close");
}

void tst_CMessageDlg::itNeverAccepts()
{
    QFETCH(QString, action);
    QSignalSpy accepted(m_pDialog.data(), &QDialog::accepted);
    QSignalSpy finished(m_pDialog.data(), &QDialog::finished);
    const ModalDriver driver([&](QDialog& dialog) {
        QPushButton* const pOk = m_pDialog->button(QDialogButtonBox::Ok);
        if (action == QLatin1String("ok"))
            QTest::mouseClick(pOk, Qt::LeftButton);
        else if (action == QLatin1String("return"))
            QTest::keyClick(&dialog, Qt::Key_Return);
        else if (action == QLatin1String("escape"))
            QTest::keyClick(&dialog, Qt::Key_Escape);
        else
            dialog.close();
        QVERIFY(!dialog.isVisible());
    });
    QCOMPARE(m_pDialog->exec(), int(QDialog::Rejected));
    QVERIFY(driver.hasActed());
    QCOMPARE(accepted.count(), 0);
    QCOMPARE(finished, (QList<QVariantList>{{int(QDialog::Rejected)}}));
}

void tst_CMessageDlg::okClosesTheWindow()
{
    m_pDialog->show();
    QSignalSpy rejected(m_pDialog.data(), &QDialog::rejected);
    Q_EMIT m_pDialog->buttonBox()->accepted();
    QVERIFY(!m_pDialog->isVisible());
    QCOMPARE(rejected.count(), 1);
    m_pDialog->show();
    Q_EMIT m_pDialog->buttonBox()->rejected(); // no button asks for that, and nothing is connected
    QVERIFY(m_pDialog->isVisible());
}

void tst_CMessageDlg::aHostMayRefuseTheClose()
{
    StayingDialog dialog;
    dialog.show();
    QTest::mouseClick(dialog.button(QDialogButtonBox::Ok), Qt::LeftButton);
    QCOMPARE(dialog.nCloseEvents, 1);
    QVERIFY(dialog.isVisible());
}

void tst_CMessageDlg::aButtonIsEnabledAndDisabled()
{
    m_pDialog->setBtnEnable(QDialogButtonBox::Ok, false);
    QVERIFY(!m_pDialog->button(QDialogButtonBox::Ok)->isEnabled());
    m_pDialog->setBtnEnable(QDialogButtonBox::Ok, true);
    QVERIFY(m_pDialog->button(QDialogButtonBox::Ok)->isEnabled());
    QPushButton* const pHelp = m_pDialog->buttonBox()->addButton(QDialogButtonBox::Help);
    QCOMPARE(m_pDialog->button(QDialogButtonBox::Help), pHelp);
    m_pDialog->setBtnEnable(QDialogButtonBox::Help, false);
    QVERIFY(!pHelp->isEnabled());
    QVERIFY(m_pDialog->button(QDialogButtonBox::Ok)->isEnabled());
}

void tst_CMessageDlg::aButtonThatIsMissing_data()
{
    QTest::addColumn<int>("which");
    QTest::newRow("Cancel") << int(QDialogButtonBox::Cancel);
    QTest::newRow("Close") << int(QDialogButtonBox::Close);
    QTest::newRow("none") << int(QDialogButtonBox::NoButton);
}

void tst_CMessageDlg::aButtonThatIsMissing()
{
    QFETCH(int, which);
    const auto button = static_cast<QDialogButtonBox::StandardButton>(which);
    QVERIFY(!m_pDialog->button(button));
    m_pDialog->setBtnEnable(button, false);
    m_pDialog->setBtnEnable(button, true);
    QVERIFY(!m_pDialog->button(button));
    QVERIFY(m_pDialog->button(QDialogButtonBox::Ok)->isEnabled());
}

TESSERA_TEST_MAIN(tst_CMessageDlg)
#include "tst_CMessageDlg.moc"
