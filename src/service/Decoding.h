// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace moravel {

/// Decodes strict UTF-8; nothing when the bytes are not.
std::optional<QString> decodedUtf8(const QByteArray &bytes);

/// Returns the link that an answer of one line holds. "" when that is not plain ASCII, or has control
/// characters: it becomes a field of a record.
QString linkFromAnswer(const QByteArray &answer);

} // namespace moravel
