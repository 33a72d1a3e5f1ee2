// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace gallery {

/// A passage of one of the gallery's own sources, between two lines "//! [mark]". The sources are resources too, so
/// the code that a card shows is the code that was compiled.
struct Snippet
{
    QString file; ///< in the folder samples
    QString mark;
};

/// The lines of @p snippet, moved to the left margin; empty when there is no such passage.
QString codeOf(const Snippet& snippet);

} // namespace gallery
