// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QDialog>
#include <QTimer>

#include <functional>
#include <utility>

/*!
    Acts on the next modal dialog as a user would, while the call that opened it is still running: as soon as a dialog
    is the active modal widget, the given function gets it, once. A dialog that is still open some time after that is
    rejected, so that a failed check ends the test instead of hanging it.
*/
class ModalDriver
{
public:
    explicit ModalDriver(std::function<void(QDialog&)> act)
        : m_act(std::move(act))
    {
        m_timer.setInterval(1);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { look(); });
        m_timer.start();
    }

    bool hasActed() const { return m_hasActed; }

private:
    Q_DISABLE_COPY(ModalDriver)

    void look()
    {
        auto* const pDialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!pDialog || !pDialog->isVisible())
            return;
        if (!m_hasActed) {
            m_hasActed = true;
            m_timer.setInterval(2000);
            m_act(*pDialog);
        } else {
            m_timer.setInterval(1);
            pDialog->reject();
        }
    }

    QTimer m_timer;
    std::function<void(QDialog&)> m_act;
    bool m_hasActed = false;
};
