// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace moravel::server {

/// Text for HTML content and quoted attributes.
QString escaped(const QString &text);

/// The text on one line: control characters and runs of white space become one blank, ends are
/// trimmed, and what exceeds @p longest characters is cut.
QString oneLine(const QString &text, qsizetype longest);

/// Whether @p host is a plain "name", "name:port" or "[ipv6]:port" that may be put into a link.
bool isPlainHost(const QByteArray &host);

} // namespace moravel::server
