// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace moravel {

/// How the desktop knows the program: its name on the session bus, and its desktop file without ".desktop".
inline const QString ProgramName = QStringLiteral("org.moravel.Moravel");

/// Where the program's object is on the bus.
inline const QString ProgramPath = QStringLiteral("/org/moravel/Moravel");

/// Name of the program's icon in icon themes.
inline const QString ProgramIcon = QStringLiteral("moravel");

} // namespace moravel
