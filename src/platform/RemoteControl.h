// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVariantList>

#include <functional>
#include <tl/expected.hpp>

namespace moravel {

/// What other processes of the user ask of the running program: a second start, the actions of its desktop
/// file, the command line. Main thread only.
class RemoteControl
{
public:
    virtual ~RemoteControl() = default;

    /// Brings the program's windows to the front.
    std::function<void()> onActivate;

    /// Carries out the action of that name, or starts to. Its arguments come from outside, unchecked.
    /// What cannot be done gives one sentence for whoever asked.
    std::function<tl::expected<void, QString>(const QString &action, const QVariantList &arguments)>
        onAction;
};

} // namespace moravel
