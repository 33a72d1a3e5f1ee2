// SPDX-License-Identifier: MIT
#include "gui/QtArguments.h"

#include <QtGlobal>

namespace registers {

namespace {

const QStringList& optionsWithValue()
{
    static const QStringList options{
        QStringLiteral("platform"),        QStringLiteral("platformpluginpath"),
        QStringLiteral("platformtheme"),   QStringLiteral("plugin"),
        QStringLiteral("style"),           QStringLiteral("stylesheet"),
        QStringLiteral("qwindowgeometry"), QStringLiteral("geometry"),
        QStringLiteral("display"),
    };
    return options;
}

/// The name of an option that is QApplication's own; empty for any other argument.
QString ownOption(const QString& argument)
{
    if (!argument.startsWith(QLatin1Char('-'))) {
        return QString();
    }
    const QString name = argument.mid(argument.startsWith(QLatin1String("--")) ? 2 : 1);
    return name == QLatin1String("reverse") || optionsWithValue().contains(name) ? name : QString();
}

} // namespace

QtArguments::QtArguments(const QStringList& arguments)
    : m_choosesPlatform(!qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
{
    for (int i = 0; i < arguments.size(); ++i) {
        const QString option = i == 0 ? QString() : ownOption(arguments.at(i));
        if (option.isEmpty()) {
            m_others.append(arguments.at(i));
            continue;
        }
        m_choosesPlatform = m_choosesPlatform || option == QLatin1String("platform");
        i += optionsWithValue().contains(option) ? 1 : 0;
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

} // namespace registers
