// SPDX-License-Identifier: MIT
#include "cards/Snippets.h"

#include <QFile>
#include <QStringList>

#include <algorithm>

namespace gallery {

namespace {

int indentOf(const QString& line)
{
    const auto isText = [](QChar letter) { return !letter.isSpace(); };
    return static_cast<int>(std::find_if(line.begin(), line.end(), isText) - line.begin());
}

QStringList withoutIndent(QStringList lines)
{
    int indent = -1;
    for (const QString& line : qAsConst(lines)) {
        if (!line.isEmpty()) {
            indent = indent < 0 ? indentOf(line) : std::min(indent, indentOf(line));
        }
    }
    for (QString& line : lines) {
        line.remove(0, std::max(indent, 0));
    }
    return lines;
}

/// The lines between the first and the second line that is @p mark; lines that are the same mark again start and end
/// further passages. Each passage is moved to the left margin by itself.
QStringList passagesOf(const QStringList& lines, const QString& mark)
{
    QStringList all;
    QStringList passage;
    bool isInside = false;
    for (const QString& line : lines) {
        if (line.trimmed() != mark) {
            passage.append(line);
            continue;
        }
        all += isInside ? withoutIndent(passage) : QStringList();
        passage.clear();
        isInside = !isInside;
    }
    return all;
}

} // namespace

QString codeOf(const Snippet& snippet)
{
    QFile file(QStringLiteral(":/gallery/samples/") + snippet.file);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        return QString();
    }
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    return passagesOf(lines, QStringLiteral("//! [%1]").arg(snippet.mark)).join(QLatin1Char('\n'));
}

} // namespace gallery
