// SPDX-License-Identifier: MIT
#include "platform/linux/TrashInfo.h"

#include <QList>

namespace moravel {

namespace {

const QByteArray group("[Trash Info]");
const QByteArray pathKey("Path=");
const QByteArray dateKey("DeletionDate=");
constexpr qsizetype longestName = 230; // bytes: 255 less a number and ".trashinfo"

// Cuts UTF-8 between characters.
QByteArray cut(QByteArray text, qsizetype length)
{
    if (text.size() <= length)
        return text;
    while (length > 0 && (text.at(length) & 0xC0) == 0x80)
        --length;
    return text.first(length);
}

bool isDate(const QByteArray &text)
{
    return QDateTime::fromString(QString::fromLatin1(text), Qt::ISODate).isValid();
}

} // namespace

QByteArray trashInfoText(const QByteArray &path, const QDateTime &deletionDate)
{
    const QByteArray date = deletionDate.toString(QStringLiteral("yyyy-MM-ddThh:mm:ss")).toLatin1();
    return group + '\n' + pathKey + path.toPercentEncoding("/") + '\n' + dateKey + date + '\n';
}

std::optional<TrashInfo> parsedTrashInfo(const QByteArray &text)
{
    TrashInfo info;
    bool isInGroup = false;
    for (const QByteArray &line : text.split('\n')) {
        if (line.startsWith('[')) {
            isInGroup = line.trimmed() == group;
        } else if (isInGroup && info.path.isEmpty() && line.startsWith(pathKey)) {
            info.path = QByteArray::fromPercentEncoding(line.sliced(pathKey.size()));
        } else if (isInGroup && info.deletionDate.isEmpty() && line.startsWith(dateKey)) {
            const QByteArray date = line.sliced(dateKey.size()).trimmed();
            info.deletionDate = isDate(date) ? date.left(19) : QByteArray();
        }
    }
    if (info.path.isEmpty() || info.path.contains('\0'))
        return std::nullopt;
    return info;
}

QByteArray trashName(const QByteArray &name, int attempt)
{
    const qsizetype dot = name.lastIndexOf('.');
    const bool hasExtension = dot > 0 && name.size() - dot <= 16;
    const QByteArray extension = hasExtension ? name.sliced(dot) : QByteArray();
    const QByteArray number = attempt == 0 ? QByteArray() : '.' + QByteArray::number(attempt + 1);
    const QByteArray stem = name.chopped(extension.size());
    return cut(stem, longestName - extension.size() - number.size()) + number + extension;
}

} // namespace moravel
