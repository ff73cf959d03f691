// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

namespace moravel {

/// How far a download is. Lengths are in bytes; kilobytes are whole ones of 1024.
struct DownloadProgress
{
    QString source; ///< Long source name; null when it is not known.
    qint64 bytesReceived = 0;
    qint64 bytesExpected = -1; ///< -1 when the server does not tell.

    qint64 kbExpected() const { return bytesExpected / 1024; }

    /// Whole kilobytes so far, at most the expected ones.
    qint64 kbReceived() const;
    /// Per cent of the expected bytes; nothing when the length is not known.
    std::optional<float> percent() const;
};

/// The status line: "Downloading pic from S: n of m KB".
QString downloadStatusText(const DownloadProgress &progress);

/// The large picture window: the same, but "Saving pic from S..." when all is there.
QString downloadWindowText(const DownloadProgress &progress);

} // namespace moravel
