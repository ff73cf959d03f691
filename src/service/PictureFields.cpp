// SPDX-License-Identifier: MIT
#include "service/PictureFields.h"

namespace moravel {

bool sufficientData(const QStringList &list)
{
    if (list.size() < 7)
        return false;
    if (list[0].isEmpty() || list[0].startsWith(QLatin1String("Error")))
        return false;
    if (list[1].isEmpty() || list[1].startsWith(QLatin1String("No caption")))
        return false;
    if (list[2].isEmpty() && list[3].isEmpty())
        return false;
    if (list[3].isEmpty() && list[4].isEmpty())
        return false;
    return list[4].isEmpty() || list[4].startsWith(QLatin1String("http"));
}

namespace {

// Reads the number that a text begins with, as far as it goes; 0 when it begins with none.
double leadingNumber(const QString &text)
{
    const QString trimmed = text.trimmed();
    qsizetype end = 0;
    while (end < trimmed.size()
           && (trimmed[end].isDigit() || QStringView(u"+-.").contains(trimmed[end])))
        ++end;
    return trimmed.left(end).toDouble();
}

} // namespace

QString chosenPictureLink(const QStringList &lines)
{
    constexpr double LargestFullSize = 3.0; // megabytes
    const QStringList values = lines[5].split(u',');
    if (values.size() >= 3 && leadingNumber(values[2]) > LargestFullSize)
        return lines[3];
    return lines[4].startsWith(QLatin1String("http")) ? lines[4] : lines[3];
}

QString cleanedInfoText(QString text)
{
    text.replace(u'\r', u' ').replace(u'\n', u' ').remove(QLatin1String("  "));
    return text.trimmed();
}

} // namespace moravel
