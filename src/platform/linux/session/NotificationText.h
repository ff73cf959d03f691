// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace moravel {

/// Whether the notification service reads the body as markup.
enum class BodyFormat { Plain, Markup };

/// One line of plain text of at most 200 characters.
QString notificationTitle(const QString &text);

/// At most 10 lines and 1000 characters of text, without control characters and blank lines; with
/// `&`, `<` and `>` escaped for BodyFormat::Markup.
QString notificationBody(const QString &text, BodyFormat format);

} // namespace moravel
