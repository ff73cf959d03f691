// SPDX-License-Identifier: MIT
#include "desktop/RotationRules.h"

#include "platform/Texts.h"

#include <cmath>

namespace moravel {

namespace {

QString timeLeft(double minutes)
{
    const double wholeHours = std::ceil(minutes / 60.0);
    if (wholeHours > 1)
        return Texts::tr("New desktop in %n hours", nullptr, static_cast<int>(wholeHours));
    const double wholeMinutes = std::ceil(minutes);
    if (wholeMinutes > 1)
        return Texts::tr("New desktop in %n minutes", nullptr, static_cast<int>(wholeMinutes));
    return Texts::tr("New desktop in about 1 minute");
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
    return folderShown ? Texts::tr("Desktop set by System Prefs")
                       : Texts::tr("No desktop change scheduled");
}

bool keepButtonVisible(int rotateFrequency, bool scheduled)
{
    constexpr int Hour = 60;
    return rotateFrequency < Hour && scheduled;
}

} // namespace moravel
