// SPDX-License-Identifier: MIT
#pragma once

#include "svd/SvdReader.h"

#include <QtGlobal>

class QIODevice;

namespace registers {

/// Turns the steps of reading into one course from 0 to the size of the file, and remembers when it was
/// cancelled.
class SvdProgressMeter
{
public:
    SvdProgressMeter(const QIODevice& input, const SvdProgress& progress);

    /// @p characters of the text are parsed. Returns false once reading is cancelled.
    bool parsed(qint64 characters);
    /// The same after parsing: @p done of @p total steps.
    bool expanded(qint64 done, qint64 total);
    void finished();

    bool isCancelled() const { return m_isCancelled; }

private:
    bool report(qint64 done);

    const QIODevice& m_input;
    const SvdProgress& m_progress;
    const qint64 m_start;
    const qint64 m_total;
    const qint64 m_parsingShare;
    qint64 m_done = 0;
    bool m_isCancelled = false;
};

} // namespace registers
