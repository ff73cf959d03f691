// SPDX-License-Identifier: MIT
#include "mainwindow/PictureSizeText.h"

#include <QCoreApplication>
#include <QStringList>

namespace moravel {

QString prettyFileSize(qint64 bytes)
{
    constexpr float Share = 1.0F / 1024;
    constexpr int Threshold = 1000;
    if (bytes <= 0)
        return {};
    if (bytes < Threshold)
        return QString::asprintf("%lld B", static_cast<long long>(bytes));
    const float kilobytes = static_cast<float>(bytes) * Share;
    if (kilobytes < Threshold)
        return QString::asprintf("%.1f KB", static_cast<double>(kilobytes));
    return QString::asprintf("%.1f MB", static_cast<double>(kilobytes * Share));
}

QString pictureSizeText(const QString &name, QSize pixels, const QString &fileSize)
{
    QStringList parts;
    if (pixels.width() > 0)
        parts += QCoreApplication::translate("moravel", "%1 x %2 pixels")
                     .arg(QString::number(pixels.width()), QString::number(pixels.height()));
    if (!fileSize.isEmpty())
        parts += fileSize;
    if (parts.isEmpty())
        return name;
    return QStringLiteral("%1 (%2)").arg(name, parts.join(QStringLiteral(", ")));
}

} // namespace moravel
