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

    /// Opens @p url of the scheme http, https or mailto; its percent escapes stay, and what an address
    /// cannot hold is escaped. What cannot be opened is logged and otherwise ignored.
    virtual void open(const QString &url) = 0;
};

} // namespace moravel
