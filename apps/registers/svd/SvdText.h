// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>

#include <array>

namespace registers {

/// Makes strings of texts. Short ones are kept for a while, so that a name or a remark that comes again and
/// again, such as "Enabled", is held once.
class SvdStrings
{
public:
    QString string(QStringView text);
    /// @p text with each run of white space, or of "\n" written as two characters, made one space.
    QString simplified(QStringView text);

private:
    static constexpr int kLongestKept = 32;
    static constexpr size_t kSlotCount = 2048;

    std::array<QString, kSlotCount> m_kept;
    QString m_buffer;
};

} // namespace registers
