// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <string_view>

/// The Mac OS Roman character set: one byte a character, every byte a character of its own.
namespace moravel::macroman {

QString decode(std::string_view bytes);

/// Returns nothing when a character is not in the set.
std::optional<QByteArray> encode(const QString &text);

} // namespace moravel::macroman
