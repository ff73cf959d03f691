// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace moravel {

/// Hands addresses to the user's own programs: the web browser and the mail program. Main thread only;
/// nothing waits for them.
class UrlOpener
{
public:
    virtual ~UrlOpener() = default;

    /// Opens @p url, ASCII with percent escapes, of the scheme http, https or mailto. What cannot be opened
    /// is logged and otherwise ignored.
    virtual void open(const QString &url) = 0;
};

} // namespace moravel
