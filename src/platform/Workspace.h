// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

namespace moravel {

/// Other programs of the user's desktop. Main thread only; nothing waits for them.
class Workspace
{
public:
    virtual ~Workspace() = default;

    /// Opens the desktop's own settings of the desktop picture. Calls @p done once, never from within:
    /// with an empty text, or with one sentence for the user on what failed.
    virtual void openDesktopSettings(std::function<void(const QString &error)> done) = 0;

    /// Shows the file at @p path (absolute) in its folder in the file manager.
    virtual void revealInFileManager(const QString &path) = 0;
};

} // namespace moravel
