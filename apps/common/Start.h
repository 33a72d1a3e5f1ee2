// SPDX-License-Identifier: MIT
#pragma once

namespace apps {

/// A batch run has one thing to say, if anything: what went wrong. Progress messages of the library and notes of the
/// platform are not part of it, and are dropped from now on.
void reportFailuresOnly();

/// What Qt wants to know before the application's object is made. Without a display the offscreen platform is taken,
/// and for a batch run as well: it opens no window, so a display that cannot be reached must not stop it. A platform
/// that somebody has chosen stays.
void prepareScreen(bool isPlatformChosen, bool isBatch);

/// Without a desktop nobody has chosen a font, and Qt's own is large.
void useLibraryFontSize();

} // namespace apps
