// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

#include <optional>

namespace moravel::server {

/// Undoes percent escapes; none when an escape is broken or the result is not UTF-8 or holds a
/// control character.
std::optional<QString> percentDecoded(const QByteArray &text);

/// The fields of "a=1&b=2"; none when a field does not decode, when a key comes twice, or when
/// there are over 16 fields.
std::optional<QHash<QString, QString>> parseForm(const QByteArray &text);

} // namespace moravel::server
