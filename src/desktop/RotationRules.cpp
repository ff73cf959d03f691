// SPDX-License-Identifier: MIT
#include "desktop/RotationRules.h"

#include <QCoreApplication>

#include <cmath>

namespace moravel {

namespace {

QString translated(const char *text)
{
    return QCoreApplication::translate("moravel", text);
}

QString timeLeft(double minutes)
{
    const double wholeHours = std::ceil(minutes / 60.0);
    if (wholeHours > 1)
        return translated("New desktop in %1 hours").arg(QString::number(wholeHours, 'f', 0));
    const double wholeMinutes = std::ceil(minutes);
    if (wholeMinutes > 1)
        return translated("New desktop in %1 minutes").arg(QString::number(wholeMinutes, 'f', 0));
    return translated("New desktop in about 1 minute");
}

} // namespace

std::optional<QString> fallbackEntry(const QStringList &listing, std::uint32_t number)
{
    if (listing.size() < 2)
        return std::nullopt;
    return listing.at(static_cast<qsizetype>(number) % (listing.size() - 1));
}

QString rotateInfoText(const std::optional<QDateTime> &nextDesktopRotate, const QDateTime &now,
                       bool folderShown)
{
    constexpr double MsPerMinute = 60'000.0;
    if (nextDesktopRotate)
        return timeLeft(static_cast<double>(now.msecsTo(*nextDesktopRotate)) / MsPerMinute);
    return folderShown ? translated("Desktop set by System Prefs")
                       : translated("No desktop change scheduled");
}

bool keepButtonVisible(int rotateFrequency, bool scheduled)
{
    constexpr int Hour = 60;
    return rotateFrequency < Hour && scheduled;
}

} // namespace moravel
