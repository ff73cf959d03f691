// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>
#include <tl/expected.hpp>

namespace moravel {

/// Whether the desktop starts the program, without its window, at the start of each session. Main thread
/// only.
class Autostart
{
public:
    virtual ~Autostart() = default;

    /// Tells what the desktop would do at the next start of a session. Cheap enough for a menu that opens.
    virtual bool isOn() const = 0;

    /// Has the program started or not from the next session on. Calls @p done once, perhaps later (a
    /// sandbox asks the user first), with one sentence for the user on what failed.
    virtual void setOn(bool on, std::function<void(const tl::expected<void, QString> &)> done) = 0;
};

} // namespace moravel
