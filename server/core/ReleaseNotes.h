// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace moravel::server {

/// The project's release notes: Markdown with headings, paragraphs and lists only.
QString releaseNotes();

} // namespace moravel::server
