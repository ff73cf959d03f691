// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVariantMap>

#include <functional>
#include <tl/expected.hpp>

class QWindow;

namespace moravel {

/// What other processes of the user ask of the running program: a second start, the actions of its desktop
/// file, the command line, programs on the session bus. Main thread only.
class RemoteControl
{
public:
    /// What an action tells, mostly nothing, or one sentence that says why it is refused.
    using Result = tl::expected<QVariantMap, QString>;
    using Answer = std::function<void(const Result &)>;

    virtual ~RemoteControl() = default;

    /// Carries out the action of that name, or starts to, and answers once. Its arguments come from outside,
    /// unchecked.
    std::function<void(const QString &action, const QVariantList &arguments, const Answer &answer)>
        onAction;

    /// Has the desktop let @p window come to the front, with what the asking process was given for that. From
    /// within onAction only.
    virtual void letToFront(QWindow &window) = 0;
};

namespace remoteaction {

/// Brings the main window to the front.
inline const QString Show = QStringLiteral("show");
/// Switches on the sources that the arguments name ("all" for every one).
inline const QString Sources = QStringLiteral("sources");

} // namespace remoteaction

} // namespace moravel
