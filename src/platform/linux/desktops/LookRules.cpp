// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/LookRules.h"

namespace moravel {

namespace {

bool isZero(const QString &number)
{
    bool ok = false;
    return number.toDouble(&ok) == 0 && ok;
}

} // namespace

DesktopLook lookFrom(const LookReading &reading)
{
    const auto portal = [&](const char *space, const char *key) {
        return reading.portal.value(QLatin1String(space)).value(QLatin1String(key));
    };
    const QVariant gnome = portal("org.gnome.desktop.interface", "enable-animations");
    const QVariant kde = portal("org.kde.kdeglobals.KDE", "AnimationDurationFactor");
    DesktopLook look;
    look.reducesMotion = !reading.gnomeAnimations.value_or(true)
        || isZero(reading.kdeFactor.value_or(QString())) || (gnome.isValid() && !gnome.toBool())
        || isZero(kde.toString())
        || portal("org.freedesktop.appearance", "reduced-motion").toUInt() == 1;
    const QVariant scheme = portal("org.freedesktop.appearance", "color-scheme");
    if (const uint wish = scheme.toUInt(); wish == 1 || wish == 2)
        look.dark = wish == 1;
    else if (!scheme.isValid() && reading.gnomeScheme)
        look.dark = *reading.gnomeScheme == QLatin1String("prefer-dark");
    return look;
}

} // namespace moravel
