// SPDX-License-Identifier: MIT
#pragma once

#include <QMutex>
#include <QObject>
#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QtGlobal>
#include <QVector>

namespace TestSupport {

//! Whether a warning comes from where the tests run, the offscreen platform or the machine, and from nothing they test.
bool isPlatformNoise(QtMsgType level, const QString& text);

/*!
    Announces one message that the present test function is going to cause: it is swallowed, and the function fails when it
    does not come. It takes the place of QTest::ignoreMessage(), which tells nobody else of what it expects.
*/
void expectMessage(QtMsgType level, const QString& text);
void expectMessage(QtMsgType level, const QRegularExpression& pattern);

/*!
    From here on to the end of the program, messages of this level and pattern may come any number of times, or not at all:
    for a test of an application that tells of its work, whose log is not what most of its functions are about.
*/
void allowMessages(QtMsgType level, const QRegularExpression& pattern);

/*!
    Fails the run on every message that nobody expects: the test function in which it comes, or the program, where no
    function runs or another thread speaks. A message is expected when a MessageRecorder takes it, when expectMessage()
    announced it, when allowMessages() lets it pass, or when any test may cause it: the platform's noise, and the debug
    messages by which the library's global object tells of its creation.

    Warnings and worse count whoever sends them; of the others only those without a logging category, since a category
    may have been switched on from outside. There is one guard in a program, made before the application: see TestMain.h.
*/
class MessageGuard
{
public:
    MessageGuard();
    ~MessageGuard();

    //! Runs the test as QTest::qExec() does, with the guard before QTest's own handler; returns what that returns.
    int run(QObject& test, int argc, char* argv[]);

    //! What main() returns: \a result, or failure if there was a message that no test function has failed by. Tells them.
    int exitCode(int result) const;

private:
    Q_DISABLE_COPY(MessageGuard)
    friend void expectMessage(QtMsgType level, const QRegularExpression& pattern);

    friend void allowMessages(QtMsgType level, const QRegularExpression& pattern);

    struct Allowed
    {
        QtMsgType level;
        QRegularExpression pattern;
    };
    struct Expected
    {
        QString function; //!< with the row of its data: an announcement ends with the function
        QtMsgType level;
        QRegularExpression pattern;
    };

    static void handle(QtMsgType level, const QMessageLogContext& context, const QString& text);
    bool isAllowed(QtMsgType level, const QString& text) const;
    bool takeExpected(QtMsgType level, const QString& text);
    void complain(QtMsgType level, const QMessageLogContext& context, const QString& text);

    const Qt::HANDLE m_thread;
    QtMessageHandler m_outer = nullptr;  //!< the one before main()
    QtMessageHandler m_behind = nullptr; //!< where messages go on to: QTest's own while tests run
    mutable QMutex m_mutex;
    QVector<Allowed> m_allowed;
    QVector<Expected> m_expected;
    QStringList m_untold; //!< what no test function has failed by
};

} // namespace TestSupport
