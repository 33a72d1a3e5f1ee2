// SPDX-License-Identifier: MIT
#pragma once

#include "svd/SvdReader.h"

#include <QElapsedTimer>
#include <QObject>

namespace registers {

/// Reads a description while the window goes on answering.
class DeviceLoader : public QObject
{
    Q_OBJECT

public:
    explicit DeviceLoader(QObject* parent = nullptr);

    bool isLoading() const { return m_loading; }

    /// Reads @p fileName. The event loop runs meanwhile; during that time a second call is answered with a cancelled
    /// result at once.
    SvdResult load(const QString& fileName);

    /// Ends the reading that is under way.
    void cancel();

Q_SIGNALS:
    /// Reading takes long enough to be worth showing. Not sent for a short one.
    void started(const QString& fileName);
    /// Sent between started() and finished(); @p total may be 0 when it is not known.
    void progressed(qint64 done, qint64 total);
    /// Sent when started() was.
    void finished();

private:
    bool proceed(qint64 done, qint64 total);

    QString m_fileName;
    QElapsedTimer m_sinceStart;
    QElapsedTimer m_sinceEvents;
    bool m_loading = false;
    bool m_cancelled = false;
    bool m_shown = false;
};

} // namespace registers
