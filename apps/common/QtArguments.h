// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace apps {

/// Tells the arguments that QApplication takes for itself, such as "-platform NAME", from all others.
class QtArguments
{
public:
    explicit QtArguments(const QStringList& arguments);

    const QStringList& others() const { return m_others; }

    /// True when the arguments, or the environment, name a platform.
    bool choosesPlatform() const { return m_choosesPlatform; }
    /// The same for the widget style.
    bool choosesStyle() const { return m_choosesStyle; }

private:
    QStringList m_others;
    bool m_choosesPlatform;
    bool m_choosesStyle;
};

/// True when the environment names an X11 or Wayland display, or the system always has one.
bool hasDisplay();

} // namespace apps
