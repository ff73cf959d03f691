// SPDX-License-Identifier: MIT
#include "platform/linux/session/TrayLabel.h"

namespace moravel {

namespace {

constexpr qsizetype Longest = 100; // characters

QString shortLine(const QString &title)
{
    const QString line = title.left(8 * Longest).simplified();
    if (line.size() <= Longest)
        return line;
    const qsizetype end = Longest - 1;
    return line.left(line.at(end - 1).isHighSurrogate() ? end - 1 : end) + QChar(0x2026);
}

} // namespace

QString trayLabel(const QString &title, TrayKind kind)
{
    QString label = shortLine(title);
    if (label.isEmpty())
        return QStringLiteral(" "); // an action without a text would look like a separator
    if (kind == TrayKind::Embedded)
        return label.replace(u'&', QLatin1String("&&"));
    // On the bus the mark is an underscore, and Qt turns the first ampersand alone into one, unless it
    // is the last character; so that one is written twice and takes itself as the mark.
    label.replace(u'_', QLatin1String("__"));
    const qsizetype first = label.indexOf(u'&');
    if (first >= 0 && first < label.size() - 1)
        label.insert(first, u'&');
    return label;
}

} // namespace moravel
