// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopLook.h"

#include <QVariantMap>

#include <optional>

namespace moravel {

/// What the places say in which desktops keep how programs should look; a place that is not there says
/// nothing.
struct LookReading
{
    std::optional<bool> gnomeAnimations;
    std::optional<QString> gnomeScheme; ///< "prefer-dark", "prefer-light" or "default"
    std::optional<QString> kdeFactor; ///< Of the length of animations; "0" is none.
    QMap<QString, QVariantMap> portal; ///< Namespace, key, value.
};

/// Any place that wants no motion is heeded; of light and dark, the portal knows best.
DesktopLook lookFrom(const LookReading &reading);

} // namespace moravel
