// SPDX-License-Identifier: MIT
#include "support/TestMain.h"

#include <Tessera/widgets/CScrollWdg.h>

#include <QPointer>
#include <QScopedPointer>
#include <QScrollBar>
#include <QtTest>
#include <QVBoxLayout>

#include <functional>

using nsUI::CScrollWdg;

Q_DECLARE_METATYPE(nsUI::CScrollWdg::e_AdaptiveType)

namespace {

constexpr int nMost = 16777215;
constexpr CScrollWdg::e_AdaptiveType none = CScrollWdg::AdaptiveNone;
constexpr CScrollWdg::e_AdaptiveType viewport = CScrollWdg::AdaptiveViewport;

CScrollWdg::e_AdaptiveType other(int nType)
{
    return static_cast<CScrollWdg::e_AdaptiveType>(nType);
}

//! Lets the sizing be called by itself.
class OpenScrollWdg : public CScrollWdg
{
public:
    using CScrollWdg::adaptiveSize;
};

//! What a content is fixed at, "width x height": the viewport's size is "v", the most is "m", anything else a number.
QString fixedAt(const CScrollWdg& area, const QWidget* pContent)
{
    const auto describe = [](int nMinimum, int nMaximum, int nView) {
        if (nMinimum == nView && nMaximum == nView)
            return QStringLiteral("v");
        if (nMaximum == nMost && nMinimum == 0) // Qt takes so large a minimum for none
            return QStringLiteral("m");
        return QStringLiteral("%1..%2").arg(nMinimum).arg(nMaximum);
    };
    return describe(pContent->minimumWidth(), pContent->maximumWidth(), area.viewport()->width()) +
           QStringLiteral(" x ") +
           describe(pContent->minimumHeight(), pContent->maximumHeight(), area.viewport()->height());
}

//! Limits that no sizing gives, so that one can see whether there was one.
void mark(QWidget* pContent)
{
    pContent->setMinimumSize(11, 12);
    pContent->setMaximumSize(13, 14);
}

const QString sMarked = QStringLiteral("11..13 x 12..14");

} // namespace

class tst_CScrollWdg : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void itDeclaresNothing();
    void itsTypesAreNumbered();
    void aNewAreaAdaptsNothing();
    void anAreaBelongsToItsParent();

    void eachPairOfTypesFixesTheContent_data();
    void eachPairOfTypesFixesTheContent();
    void theSameTypesAgainDoNothing();
    void everySetterWritesBothDimensions();
    void oneTypeForBothIsSetUnlessBothHaveIt();
    void anyOtherTypeCountsAsNone();
    void everyResizeFixesTheContent();
    void aContentThatIsReplacedWaitsForTheNextResize();
    void withoutAContentNothingIsDone();
    void theSizingFollowsTheTypes();

    void anAdaptedWidthNeverScrolls();
    void anAdaptedHeightNeverScrolls();
    void anAdaptedContentFillsTheViewport();
    void aFreeContentFillsTheViewportToo();

private:
    QScopedPointer<OpenScrollWdg> m_pArea;
    QWidget* m_pContent = nullptr;
};

void tst_CScrollWdg::init()
{
    m_pArea.reset(new OpenScrollWdg);
    m_pArea->setWindowFlag(Qt::FramelessWindowHint);
    m_pContent = new QWidget;
    m_pArea->setWidget(m_pContent);
    m_pArea->resize(200, 100);
    m_pArea->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_pArea.data()));
}

void tst_CScrollWdg::cleanup()
{
    m_pArea.reset();
    m_pContent = nullptr;
}

void tst_CScrollWdg::itDeclaresNothing()
{
    const QMetaObject& meta = CScrollWdg::staticMetaObject;
    QCOMPARE(meta.className(), "nsUI::CScrollWdg");
    QCOMPARE(meta.superClass(), &QScrollArea::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.enumeratorCount(), meta.enumeratorOffset());
}

void tst_CScrollWdg::itsTypesAreNumbered()
{
    QCOMPARE(int(CScrollWdg::AdaptiveNone), 0);
    QCOMPARE(int(CScrollWdg::AdaptiveViewport), 1);
}

void tst_CScrollWdg::aNewAreaAdaptsNothing()
{
    OpenScrollWdg area;
    QVERIFY(area.widgetResizable());
    QVERIFY(!area.widget());
    auto* const pContent = new QWidget;
    area.setWidget(pContent);
    mark(pContent);
    area.setWidthAdaptiveType(none); // what it has already
    area.setHeightAdaptiveType(none);
    area.setSizeAdaptiveType(none);
    area.setSizeAdaptiveType(none, none);
    QCOMPARE(fixedAt(area, pContent), sMarked);
    area.adaptiveSize();
    QCOMPARE(fixedAt(area, pContent), QStringLiteral("m x m"));
}

void tst_CScrollWdg::anAreaBelongsToItsParent()
{
    QWidget parent;
    QPointer<CScrollWdg> pArea = new CScrollWdg(&parent);
    QCOMPARE(pArea->parentWidget(), &parent);
    QVERIFY(!m_pArea->parentWidget());
}

void tst_CScrollWdg::eachPairOfTypesFixesTheContent_data()
{
    QTest::addColumn<CScrollWdg::e_AdaptiveType>("width");
    QTest::addColumn<CScrollWdg::e_AdaptiveType>("height");
    QTest::addColumn<QString>("fixed");
    QTest::newRow("none") << none << none << QStringLiteral("m x m");
    QTest::newRow("the width") << viewport << none << QStringLiteral("v x m");
    QTest::newRow("the height") << none << viewport << QStringLiteral("m x v");
    QTest::newRow("both") << viewport << viewport << QStringLiteral("v x v");
}

void tst_CScrollWdg::eachPairOfTypesFixesTheContent()
{
    QFETCH(CScrollWdg::e_AdaptiveType, width);
    QFETCH(CScrollWdg::e_AdaptiveType, height);
    QFETCH(QString, fixed);
    m_pArea->setSizeAdaptiveType(width, height);
    m_pArea->resize(230, 130);
    QCOMPARE(fixedAt(*m_pArea, m_pContent), fixed);

    m_pArea->setSizeAdaptiveType(none);
    m_pArea->setWidthAdaptiveType(width);
    m_pArea->setHeightAdaptiveType(height);
    QCOMPARE(fixedAt(*m_pArea, m_pContent), fixed);
    m_pArea->resize(220, 110);
    QCOMPARE(fixedAt(*m_pArea, m_pContent), fixed);
    QVERIFY(m_pArea->viewport()->width() < 221);
}

void tst_CScrollWdg::theSameTypesAgainDoNothing()
{
    m_pArea->setSizeAdaptiveType(viewport);
    QCOMPARE(fixedAt(*m_pArea, m_pContent), QStringLiteral("v x v"));
    mark(m_pContent);
    m_pArea->setSizeAdaptiveType(viewport);
    m_pArea->setSizeAdaptiveType(viewport, viewport);
    m_pArea->setWidthAdaptiveType(viewport);
    m_pArea->setHeightAdaptiveType(viewport);
    QCOMPARE(fixedAt(*m_pArea, m_pContent), sMarked);

    m_pArea->setSizeAdaptiveType(none, viewport);
    QCOMPARE(fixedAt(*m_pArea, m_pContent), QStringLiteral("m x v"));
    mark(m_pContent);
    m_pArea->setSizeAdaptiveType(none, viewport);
    m_pArea->setWidthAdaptiveType(none);
    m_pArea->setHeightAdaptiveType(viewport);
    QCOMPARE(fixedAt(*m_pArea, m_pContent), sMarked);
}

void tst_CScrollWdg::everySetterWritesBothDimensions()
{
    const QList<std::function<void()>> setters{
        [this] { m_pArea->setWidthAdaptiveType(viewport); },  [this] { m_pArea->setHeightAdaptiveType(viewport); },
        [this] { m_pArea->setWidthAdaptiveType(none); },      [this] { m_pArea->setHeightAdaptiveType(none); },
        [this] { m_pArea->setSizeAdaptiveType(viewport); },   [this] { m_pArea->setSizeAdaptiveType(viewport, none); },
        [this] { m_pArea->setSizeAdaptiveType(none, none); },
    };
    const QStringList fixed{QStringLiteral("v x m"), QStringLiteral("v x v"), QStringLiteral("m x v"),
                            QStringLiteral("m x m"), QStringLiteral("v x v"), QStringLiteral("v x m"),
                            QStringLiteral("m x m")};
    for (int i = 0; i < setters.size(); ++i) {
        mark(m_pContent);
        setters.at(i)();
        QCOMPARE(fixedAt(*m_pArea, m_pContent), fixed.at(i));
    }
}

void tst_CScrollWdg::oneTypeForBothIsSetUnlessBothHaveIt()
{
    m_pArea->setWidthAdaptiveType(viewport);
    m_pArea->setSizeAdaptiveType(viewport);
    QCOMPARE(fixedAt(*m_pArea, m_pContent), QStringLiteral("v x v"));
    m_pArea->setHeightAdaptiveType(none);
    m_pArea->setSizeAdaptiveType(none);
    QCOMPARE(fixedAt(*m_pArea, m_pContent), QStringLiteral("m x m"));
    m_pArea->setHeightAdaptiveType(viewport);
    m_pArea->setSizeAdaptiveType(viewport);
    QCOMPARE(fixedAt(*m_pArea, m_pContent), QStringLiteral("v x v"));
    m_pArea->setSizeAdaptiveType(viewport, none);
    QCOMPARE(fixedAt(*m_pArea, m_pContent), QStringLiteral("v x m"));
    m_pArea->setSizeAdaptiveType(none, viewport);
    QCOMPARE(fixedAt(*m_pArea, m_pContent), QStringLiteral("m x v"));
}

void tst_CScrollWdg::anyOtherTypeCountsAsNone()
{
    for (const int nType : {2, -1, 3, 1000}) {
        m_pArea->setSizeAdaptiveType(viewport);
        m_pArea->setWidthAdaptiveType(other(nType));
        QCOMPARE(fixedAt(*m_pArea, m_pContent), QStringLiteral("m x v"));
        m_pArea->setHeightAdaptiveType(other(nType));
        QCOMPARE(fixedAt(*m_pArea, m_pContent), QStringLiteral("m x m"));
        mark(m_pContent);
        m_pArea->setSizeAdaptiveType(none); // another type all the same
        QCOMPARE(fixedAt(*m_pArea, m_pContent), QStringLiteral("m x m"));
    }
}

void tst_CScrollWdg::everyResizeFixesTheContent()
{
    mark(m_pContent);
    m_pArea->resize(300, 200);
    QCOMPARE(fixedAt(*m_pArea, m_pContent), QStringLiteral("m x m"));
    m_pArea->setSizeAdaptiveType(viewport);
    for (const QSize& size : {QSize(310, 200), QSize(310, 90), QSize(150, 210)}) {
        m_pArea->resize(size);
        QCOMPARE(fixedAt(*m_pArea, m_pContent), QStringLiteral("v x v"));
        QCOMPARE(m_pContent->size(), m_pArea->viewport()->size());
    }
}

void tst_CScrollWdg::aContentThatIsReplacedWaitsForTheNextResize()
{
    m_pArea->setSizeAdaptiveType(viewport);
    auto* const pNext = new QWidget;
    mark(pNext);
    m_pArea->setWidget(pNext);
    QCOMPARE(fixedAt(*m_pArea, pNext), sMarked);
    m_pArea->setSizeAdaptiveType(viewport);
    QCOMPARE(fixedAt(*m_pArea, pNext), sMarked);
    m_pArea->resize(201, 100);
    QCOMPARE(fixedAt(*m_pArea, pNext), QStringLiteral("v x v"));
}

void tst_CScrollWdg::withoutAContentNothingIsDone()
{
    delete m_pArea->takeWidget();
    m_pArea->setSizeAdaptiveType(viewport);
    m_pArea->setWidthAdaptiveType(none);
    m_pArea->adaptiveSize();
    m_pArea->resize(300, 300);
    QVERIFY(!m_pArea->widget());
    auto* const pContent = new QWidget; // but the types are kept
    m_pArea->setWidget(pContent);
    m_pArea->adaptiveSize();
    QCOMPARE(fixedAt(*m_pArea, pContent), QStringLiteral("m x v"));
}

void tst_CScrollWdg::theSizingFollowsTheTypes()
{
    m_pArea->setSizeAdaptiveType(viewport, none);
    mark(m_pContent);
    m_pArea->adaptiveSize();
    QCOMPARE(fixedAt(*m_pArea, m_pContent), QStringLiteral("v x m"));
    m_pArea->setSizeAdaptiveType(none, viewport);
    mark(m_pContent);
    m_pArea->adaptiveSize();
    QCOMPARE(fixedAt(*m_pArea, m_pContent), QStringLiteral("m x v"));
}

void tst_CScrollWdg::anAdaptedWidthNeverScrolls()
{
    auto* const pInner = new QWidget;
    pInner->setMinimumSize(900, 900);
    (new QVBoxLayout(m_pContent))->addWidget(pInner);
    QTRY_VERIFY(m_pArea->horizontalScrollBar()->maximum() > 0);
    m_pArea->setWidthAdaptiveType(viewport);
    m_pArea->resize(240, 120);
    QCoreApplication::processEvents();
    QCOMPARE(m_pArea->horizontalScrollBar()->maximum(), 0);
    QVERIFY(m_pArea->verticalScrollBar()->maximum() > 0);
    QCOMPARE(m_pContent->width(), m_pArea->viewport()->width());
    QVERIFY(m_pArea->viewport()->width() < 240); // the other scroll bar takes its share
    QVERIFY(m_pContent->height() >= 900);
    QCOMPARE(m_pContent->maximumHeight(), nMost);
}

void tst_CScrollWdg::anAdaptedHeightNeverScrolls()
{
    auto* const pInner = new QWidget;
    pInner->setMinimumSize(900, 900);
    (new QVBoxLayout(m_pContent))->addWidget(pInner);
    m_pArea->setHeightAdaptiveType(viewport);
    m_pArea->resize(240, 120);
    QCoreApplication::processEvents();
    QCOMPARE(m_pArea->verticalScrollBar()->maximum(), 0);
    QVERIFY(m_pArea->horizontalScrollBar()->maximum() > 0);
    QCOMPARE(m_pContent->height(), m_pArea->viewport()->height());
    QCOMPARE(m_pContent->maximumWidth(), nMost);
}

void tst_CScrollWdg::anAdaptedContentFillsTheViewport()
{
    auto* const pInner = new QWidget;
    pInner->setMinimumSize(900, 900);
    (new QVBoxLayout(m_pContent))->addWidget(pInner);
    m_pArea->setSizeAdaptiveType(viewport);
    for (const QSize& size : {QSize(240, 120), QSize(1000, 1000), QSize(90, 90)}) {
        m_pArea->resize(size);
        QCoreApplication::processEvents();
        QCOMPARE(m_pContent->size(), m_pArea->viewport()->size());
        QCOMPARE(m_pArea->verticalScrollBar()->maximum(), 0);
        QCOMPARE(m_pArea->horizontalScrollBar()->maximum(), 0);
    }
}

void tst_CScrollWdg::aFreeContentFillsTheViewportToo()
{
    for (const QSize& size : {QSize(240, 120), QSize(1000, 1000), QSize(90, 90)}) {
        m_pArea->resize(size);
        QCOMPARE(m_pContent->size(), m_pArea->viewport()->size());
        QCOMPARE(m_pArea->viewport()->width(), size.width() - 2 * m_pArea->frameWidth());
    }
}

TESSERA_TEST_MAIN(tst_CScrollWdg)
#include "tst_CScrollWdg.moc"
