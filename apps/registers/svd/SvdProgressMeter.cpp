// SPDX-License-Identifier: MIT
#include "svd/SvdProgressMeter.h"

#include <QIODevice>

#include <algorithm>

namespace registers {

namespace {

// Parsing takes most of the time.
constexpr qint64 kParsingPercent = 85;

} // namespace

SvdProgressMeter::SvdProgressMeter(const QIODevice& input, const SvdProgress& progress)
    : m_input(input)
    , m_progress(progress)
    , m_start(input.isSequential() ? 0 : input.pos())
    , m_total(input.isSequential() ? 0 : std::max(qint64(0), input.size() - m_start))
    , m_parsingShare(m_total * kParsingPercent / 100)
{
}

bool SvdProgressMeter::parsed(qint64 characters)
{
    if (m_total == 0) {
        return report(characters);
    }
    const qint64 bytes = std::min(m_input.pos() - m_start, m_total);
    return report(bytes * kParsingPercent / 100);
}

bool SvdProgressMeter::expanded(qint64 done, qint64 total)
{
    if (m_total == 0 || total <= 0) {
        return report(m_done);
    }
    const double part = double(std::min(done, total)) / double(total);
    return report(m_parsingShare + qint64(part * double(m_total - m_parsingShare)));
}

void SvdProgressMeter::finished()
{
    report(m_total == 0 ? m_done : m_total);
}

bool SvdProgressMeter::report(qint64 done)
{
    // The steps overlap a little; a progress bar shall still never run backwards.
    m_done = std::max(m_done, done);
    if (!m_isCancelled && m_progress && !m_progress(m_done, m_total)) {
        m_isCancelled = true;
    }
    return !m_isCancelled;
}

} // namespace registers
