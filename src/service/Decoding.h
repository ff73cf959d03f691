// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace moravel {

/// Decodes strict UTF-8; nothing when the bytes are not.
std::optional<QString> decodedUtf8(const QByteArray &bytes);

} // namespace moravel
