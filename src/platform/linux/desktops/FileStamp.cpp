// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/FileStamp.h"

#include <QDateTime>
#include <QFileInfo>

namespace moravel {

QByteArray fileStamp(const QString &path)
{
    const QFileInfo info(path);
    const QFileDevice::FileTime times[] = {QFileDevice::FileModificationTime,
                                           QFileDevice::FileMetadataChangeTime};
    QByteArray stamp = QByteArray::number(info.size());
    for (const auto time : times)
        stamp += ' ' + QByteArray::number(info.fileTime(time).toMSecsSinceEpoch());
    return stamp + ' ' + path.toUtf8();
}

} // namespace moravel
