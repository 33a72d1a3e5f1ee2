// SPDX-License-Identifier: MIT
#include "support/TestMain.h"

#include <Tessera/widgets/CAutoCursor.h>

#include <QCursor>
#include <QGuiApplication>
#include <QPixmap>
#include <QScopedPointer>
#include <QtTest>

#include <stdexcept>
#include <type_traits>

using nsUI::CAutoCursor;

namespace {

//! The shapes of the override cursors from the top down, which takes them all off and puts them back.
QList<int> shapes()
{
    QList<QCursor> cursors;
    while (QGuiApplication::overrideCursor()) {
        cursors << *QGuiApplication::overrideCursor();
        QGuiApplication::restoreOverrideCursor();
    }
    QList<int> result;
    for (const QCursor& cursor : qAsConst(cursors))
        result << int(cursor.shape());
    while (!cursors.isEmpty())
        QGuiApplication::setOverrideCursor(cursors.takeLast());
    return result;
}

} // namespace

class tst_CAutoCursor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void itIsAPlainValueThatCopies();
    void itShowsACursorWhileItLives_data();
    void itShowsACursorWhileItLives();
    void itShowsAnyCursor();
    void itBringsBackTheFormerCursor();
    void everyWayOutBringsTheFormerCursorBack();
    void itIsDisabledAndEnabledAgain();
    void theSameStateAgainDoesNothing();
    void aDisabledOneRestoresNothing();
    void nestedOnesRestoreInReverseOrder();
    void oneThatGoesOutOfOrderTakesTheTop();
    void restoringFromAnEmptyStackDoesNoHarm();

    void aCopyShowsNothingAndRestores();
    void aCopyOfADisabledOneRestoresNothing();
    void aCopyCarriesTheCursor();
    void anAssignmentShowsAndRestoresNothing();
    void anAssignmentCarriesStateAndCursor_data();
    void anAssignmentCarriesStateAndCursor();
    void anAssignmentToItselfChangesNothing();
    void assignmentsCanBeChained();
};

void tst_CAutoCursor::cleanup()
{
    const QList<int> left = shapes();
    while (QGuiApplication::overrideCursor())
        QGuiApplication::restoreOverrideCursor();
    QCOMPARE(left, QList<int>());
}

void tst_CAutoCursor::itIsAPlainValueThatCopies()
{
    QVERIFY((std::is_constructible<CAutoCursor, QCursor>::value));
    QVERIFY((std::is_constructible<CAutoCursor, Qt::CursorShape>::value));
    QVERIFY(std::is_copy_constructible<CAutoCursor>::value);
    QVERIFY(std::is_copy_assignable<CAutoCursor>::value);
    QVERIFY(!std::is_polymorphic<CAutoCursor>::value);
    QVERIFY((!std::is_base_of<QObject, CAutoCursor>::value));
    QVERIFY(std::is_standard_layout<CAutoCursor>::value);
}

void tst_CAutoCursor::itShowsACursorWhileItLives_data()
{
    QTest::addColumn<int>("shape");
    QTest::newRow("arrow") << int(Qt::ArrowCursor);
    QTest::newRow("wait") << int(Qt::WaitCursor);
    QTest::newRow("busy") << int(Qt::BusyCursor);
    QTest::newRow("blank") << int(Qt::BlankCursor);
    QTest::newRow("the last shape") << int(Qt::LastCursor);
}

void tst_CAutoCursor::itShowsACursorWhileItLives()
{
    QFETCH(int, shape);
    QVERIFY(!QGuiApplication::overrideCursor());
    {
        const CAutoCursor byShape(static_cast<Qt::CursorShape>(shape));
        QVERIFY(QGuiApplication::overrideCursor());
        QCOMPARE(shapes(), QList<int>{shape});
    }
    QVERIFY(!QGuiApplication::overrideCursor());
    {
        const CAutoCursor byCursor(QCursor(static_cast<Qt::CursorShape>(shape)));
        QCOMPARE(shapes(), QList<int>{shape});
    }
    QVERIFY(!QGuiApplication::overrideCursor());
}

void tst_CAutoCursor::itShowsAnyCursor()
{
    QPixmap picture(16, 16);
    picture.fill(Qt::red);
    const QCursor cursor(picture, 3, 4);
    const CAutoCursor autoCursor(cursor);
    QCOMPARE(*QGuiApplication::overrideCursor(), cursor);
    QCOMPARE(QGuiApplication::overrideCursor()->hotSpot(), QPoint(3, 4));
}

void tst_CAutoCursor::itBringsBackTheFormerCursor()
{
    QGuiApplication::setOverrideCursor(Qt::CrossCursor);
    {
        const CAutoCursor cursor(Qt::WaitCursor);
        QCOMPARE(shapes(), (QList<int>{Qt::WaitCursor, Qt::CrossCursor}));
    }
    QCOMPARE(shapes(), QList<int>{Qt::CrossCursor});
    QGuiApplication::restoreOverrideCursor();
}

void tst_CAutoCursor::everyWayOutBringsTheFormerCursorBack()
{
    const auto work = [](bool bFails) {
        const CAutoCursor cursor(Qt::WaitCursor);
        if (bFails)
            throw std::runtime_error("failed");
        return shapes();
    };
    QCOMPARE(work(false), QList<int>{Qt::WaitCursor});
    QCOMPARE(shapes(), QList<int>());
    QVERIFY_EXCEPTION_THROWN(work(true), std::runtime_error);
    QCOMPARE(shapes(), QList<int>());
}

void tst_CAutoCursor::itIsDisabledAndEnabledAgain()
{
    QGuiApplication::setOverrideCursor(Qt::CrossCursor);
    {
        CAutoCursor cursor(Qt::WaitCursor);
        cursor.setEnable(false);
        QCOMPARE(shapes(), QList<int>{Qt::CrossCursor});
        cursor.setEnable(true);
        QCOMPARE(shapes(), (QList<int>{Qt::WaitCursor, Qt::CrossCursor}));
    }
    QCOMPARE(shapes(), QList<int>{Qt::CrossCursor});
    QGuiApplication::restoreOverrideCursor();
}

void tst_CAutoCursor::theSameStateAgainDoesNothing()
{
    QGuiApplication::setOverrideCursor(Qt::CrossCursor);
    CAutoCursor cursor(Qt::WaitCursor);
    cursor.setEnable(true);
    QCOMPARE(shapes(), (QList<int>{Qt::WaitCursor, Qt::CrossCursor}));
    cursor.setEnable(false);
    cursor.setEnable(false);
    QCOMPARE(shapes(), QList<int>{Qt::CrossCursor});
    QGuiApplication::restoreOverrideCursor();
}

void tst_CAutoCursor::aDisabledOneRestoresNothing()
{
    QGuiApplication::setOverrideCursor(Qt::CrossCursor);
    {
        CAutoCursor cursor(Qt::WaitCursor);
        cursor.setEnable(false);
    }
    QCOMPARE(shapes(), QList<int>{Qt::CrossCursor});
    QGuiApplication::restoreOverrideCursor();
}

void tst_CAutoCursor::nestedOnesRestoreInReverseOrder()
{
    const CAutoCursor outer(Qt::WaitCursor);
    {
        const CAutoCursor inner(Qt::CrossCursor);
        {
            const CAutoCursor innermost(Qt::WaitCursor);
            QCOMPARE(shapes(), (QList<int>{Qt::WaitCursor, Qt::CrossCursor, Qt::WaitCursor}));
        }
        QCOMPARE(shapes(), (QList<int>{Qt::CrossCursor, Qt::WaitCursor}));
    }
    QCOMPARE(shapes(), QList<int>{Qt::WaitCursor});
}

void tst_CAutoCursor::oneThatGoesOutOfOrderTakesTheTop()
{
    QScopedPointer<CAutoCursor> pOuter(new CAutoCursor(Qt::WaitCursor));
    CAutoCursor inner(Qt::CrossCursor);
    pOuter.reset();
    QCOMPARE(shapes(), QList<int>{Qt::WaitCursor});
    inner.setEnable(false);
    QCOMPARE(shapes(), QList<int>());
}

void tst_CAutoCursor::restoringFromAnEmptyStackDoesNoHarm()
{
    CAutoCursor cursor(Qt::WaitCursor);
    QGuiApplication::restoreOverrideCursor();
    QCOMPARE(shapes(), QList<int>());
    cursor.setEnable(false);
    QCOMPARE(shapes(), QList<int>());
    cursor.setEnable(true);
    QCOMPARE(shapes(), QList<int>{Qt::WaitCursor});
}

void tst_CAutoCursor::aCopyShowsNothingAndRestores()
{
    QGuiApplication::setOverrideCursor(Qt::CrossCursor);
    {
        const CAutoCursor cursor(Qt::WaitCursor);
        {
            const CAutoCursor copy(cursor);
            QCOMPARE(shapes(), (QList<int>{Qt::WaitCursor, Qt::CrossCursor}));
        }
        QCOMPARE(shapes(), QList<int>{Qt::CrossCursor}); // the copy restored what it had not shown
    }
    QCOMPARE(shapes(), QList<int>()); // and so one cursor too many is gone
}

void tst_CAutoCursor::aCopyOfADisabledOneRestoresNothing()
{
    QGuiApplication::setOverrideCursor(Qt::CrossCursor);
    CAutoCursor cursor(Qt::WaitCursor);
    cursor.setEnable(false);
    {
        CAutoCursor copy(cursor);
        copy.setEnable(false);
        QCOMPARE(shapes(), QList<int>{Qt::CrossCursor});
    }
    QCOMPARE(shapes(), QList<int>{Qt::CrossCursor});
    QGuiApplication::restoreOverrideCursor();
}

void tst_CAutoCursor::aCopyCarriesTheCursor()
{
    CAutoCursor cursor(Qt::SizeAllCursor);
    CAutoCursor copy(cursor);
    copy.setEnable(true); // it believes it is
    QCOMPARE(shapes(), QList<int>{Qt::SizeAllCursor});
    copy.setEnable(false);
    QCOMPARE(shapes(), QList<int>());
    copy.setEnable(true);
    QCOMPARE(shapes(), QList<int>{Qt::SizeAllCursor});
    cursor.setEnable(false);
    QCOMPARE(shapes(), QList<int>());
    copy.setEnable(false);
}

void tst_CAutoCursor::anAssignmentShowsAndRestoresNothing()
{
    CAutoCursor first(Qt::WaitCursor);
    CAutoCursor second(Qt::CrossCursor);
    const QList<int> both{Qt::CrossCursor, Qt::WaitCursor};
    first = second;
    QCOMPARE(shapes(), both);
    second.setEnable(false);
    QCOMPARE(shapes(), QList<int>{Qt::WaitCursor});
    first = second; // disabled from now on: what it showed itself stays
    QCOMPARE(shapes(), QList<int>{Qt::WaitCursor});
    first.setEnable(false);
    QCOMPARE(shapes(), QList<int>{Qt::WaitCursor});
    QGuiApplication::restoreOverrideCursor();
}

void tst_CAutoCursor::anAssignmentCarriesStateAndCursor_data()
{
    QTest::addColumn<bool>("targetEnabled");
    QTest::addColumn<bool>("sourceEnabled");
    QTest::newRow("disabled to disabled") << false << false;
    QTest::newRow("disabled to enabled") << true << false;
    QTest::newRow("enabled to disabled") << false << true;
    QTest::newRow("enabled to enabled") << true << true;
}

void tst_CAutoCursor::anAssignmentCarriesStateAndCursor()
{
    QFETCH(bool, targetEnabled);
    QFETCH(bool, sourceEnabled);
    // Enough below, so that everybody finds something to take.
    for (int i = 0; i < 3; ++i)
        QGuiApplication::setOverrideCursor(Qt::ForbiddenCursor);
    {
        CAutoCursor target(Qt::WaitCursor);
        CAutoCursor source(Qt::CrossCursor);
        target.setEnable(targetEnabled);
        source.setEnable(sourceEnabled);
        target = source;
        const QList<int> before = shapes();
        target.setEnable(sourceEnabled);
        QCOMPARE(shapes(), before);
        target.setEnable(true);
        target.setEnable(false);
        target.setEnable(true);
        QCOMPARE(shapes().value(0), int(Qt::CrossCursor));
    }
    // The target takes back its own last cursor; an enabled source has made the two of them take one each besides.
    const int nShown = (targetEnabled ? 1 : 0) + (sourceEnabled ? 1 : 0);
    const int nTaken = sourceEnabled ? 2 : 0;
    QCOMPARE(shapes().size(), 3 + nShown - nTaken);
    while (QGuiApplication::overrideCursor())
        QGuiApplication::restoreOverrideCursor();
}

void tst_CAutoCursor::anAssignmentToItselfChangesNothing()
{
    CAutoCursor cursor(Qt::WaitCursor);
    const CAutoCursor& alias = cursor;
    cursor = alias;
    QCOMPARE(shapes(), QList<int>{Qt::WaitCursor});
    cursor.setEnable(false);
    QCOMPARE(shapes(), QList<int>());
}

void tst_CAutoCursor::assignmentsCanBeChained()
{
    CAutoCursor first(Qt::WaitCursor);
    CAutoCursor second(Qt::CrossCursor);
    CAutoCursor third(Qt::BusyCursor);
    third.setEnable(false);
    QCOMPARE(&(first = second = third), &first);
    QCOMPARE(shapes(), (QList<int>{Qt::CrossCursor, Qt::WaitCursor}));
    first.setEnable(true);
    QCOMPARE(shapes().value(0), int(Qt::BusyCursor));
    first.setEnable(false);
    QGuiApplication::restoreOverrideCursor();
    QGuiApplication::restoreOverrideCursor();
}

TESSERA_TEST_MAIN(tst_CAutoCursor)
#include "tst_CAutoCursor.moc"
