// SPDX-License-Identifier: MIT
#pragma once

#include "MessageGuard.h"

#include <QApplication>
#include <QCoreApplication>

namespace TestSupport {

//! The place of an application in a test that needs none.
struct NoApplication
{
    NoApplication(int&, char**) {}
};

/*!
    What every test's main() does: the test runs with one message guard around it and around the application. A main()
    with more to do calls it at its end; all others are one of the macros below.
*/
template <class Application, class Test>
int testMain(int argc, char* argv[])
{
    MessageGuard guard;
    int result = 0;
    {
        Application application(argc, argv);
        QCoreApplication::setAttribute(Qt::AA_Use96Dpi); // as QTEST_MAIN does
        Test test;
        result = guard.run(test, argc, argv);
    }
    return guard.exitCode(result);
}

} // namespace TestSupport

//! Instead of QTEST_MAIN, QTEST_GUILESS_MAIN and QTEST_APPLESS_MAIN.
#define TESSERA_TEST_MAIN(Test)                                                                                        \
    int main(int argc, char* argv[])                                                                                   \
    {                                                                                                                  \
        return TestSupport::testMain<QApplication, Test>(argc, argv);                                                  \
    }
#define TESSERA_TEST_GUILESS_MAIN(Test)                                                                                \
    int main(int argc, char* argv[])                                                                                   \
    {                                                                                                                  \
        return TestSupport::testMain<QCoreApplication, Test>(argc, argv);                                              \
    }
#define TESSERA_TEST_APPLESS_MAIN(Test)                                                                                \
    int main(int argc, char* argv[])                                                                                   \
    {                                                                                                                  \
        return TestSupport::testMain<TestSupport::NoApplication, Test>(argc, argv);                                    \
    }
