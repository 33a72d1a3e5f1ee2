// SPDX-License-Identifier: MIT
#include "common/QtArguments.h"

#include <QtGlobal>

namespace apps {

namespace {

/// QApplication's own options that take a value.
const QStringList& valuedOptions()
{
    static const QStringList options =
        QStringLiteral("platform platformpluginpath platformtheme plugin style stylesheet qwindowgeometry geometry "
                       "qwindowtitle qwindowicon display session")
            .split(QLatin1Char(' '));
    return options;
}

/// What stands behind the one or two dashes of an option; empty for any other argument.
QString optionName(const QString& argument)
{
    if (!argument.startsWith(QLatin1Char('-'))) {
        return QString();
    }
    return argument.mid(argument.startsWith(QLatin1String("--")) ? 2 : 1);
}

} // namespace

QtArguments::QtArguments(const QStringList& arguments)
    : m_others(arguments.mid(0, 1))
    , m_choosesPlatform(!qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
    , m_choosesStyle(!qEnvironmentVariableIsEmpty("QT_STYLE_OVERRIDE"))
{
    for (int i = 1; i < arguments.size(); ++i) {
        const QString name = optionName(arguments.at(i));
        if (valuedOptions().contains(name)) {
            m_choosesPlatform = m_choosesPlatform || name == QLatin1String("platform");
            m_choosesStyle = m_choosesStyle || name == QLatin1String("style");
            ++i;
        } else if (name != QLatin1String("reverse")) {
            m_others.append(arguments.at(i));
        }
    }
}

bool hasDisplay()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
#else
    return true;
#endif
}

} // namespace apps
