// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace moravel {

/// The general clipboard. Main thread only.
class Clipboard
{
public:
    virtual ~Clipboard() = default;

    /// Replaces what the clipboard holds by a plain text.
    virtual void setText(const QString &text) = 0;
};

} // namespace moravel
