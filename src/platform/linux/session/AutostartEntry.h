// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Autostart.h"

#include <QStringList>

namespace moravel {

/// The program's entry in the folders of what starts with the session. The user's own entry counts before
/// one that was installed for all users.
class AutostartEntry : public Autostart
{
public:
    /// @param command the program and its arguments.
    /// @param folders the user's, then those of the system; empty stands for the standard ones.
    explicit AutostartEntry(QStringList command, QStringList folders = {});

    bool isOn() const override;
    void setOn(bool on, std::function<void(const tl::expected<void, QString> &)> done) override;

private:
    QString systemEntry() const;

    QStringList m_command;
    QStringList m_folders;
};

/// The command that starts this very program again, with @p arguments: by its name alone where the search
/// path leads to it, so that it survives an update that moves it.
QStringList commandOfThisProgram(const QStringList &arguments);

} // namespace moravel
