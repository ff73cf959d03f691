// SPDX-License-Identifier: MIT
#include "mainwindow/PictureSizeText.h"

#include "platform/Texts.h"

namespace moravel {

QString prettyFileSize(qint64 bytes)
{
    constexpr float Share = 1.0F / 1024;
    constexpr int Threshold = 1000;
    if (bytes <= 0)
        return {};
    if (bytes < Threshold)
        return Texts::tr("%1 B").arg(Texts::number(bytes));
    const float kilobytes = static_cast<float>(bytes) * Share;
    if (kilobytes < Threshold)
        return Texts::tr("%1 KB").arg(Texts::number(static_cast<double>(kilobytes), 1));
    return Texts::tr("%1 MB").arg(Texts::number(static_cast<double>(kilobytes * Share), 1));
}

QString pictureSizeText(const QString &name, QSize pixels, const QString &fileSize)
{
    const QString width = Texts::number(pixels.width());
    const QString height = Texts::number(pixels.height());
    if (pixels.width() > 0)
        return fileSize.isEmpty()
            ? Texts::tr("%1 (%2 x %3 pixels)").arg(name, width, height)
            : Texts::tr("%1 (%2 x %3 pixels, %4)").arg(name, width, height, fileSize);
    return fileSize.isEmpty() ? name : Texts::tr("%1 (%2)").arg(name, fileSize);
}

} // namespace moravel
