// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <optional>
#include <tl/expected.hpp>

namespace moravel {

/// What the command line asks for.
struct Options
{
    enum class Action { Run, PrintVersion, PrintHelp, Command };

    Action action = Action::Run;
    /// Sources to switch on, by long name; one entry "all" means every source.
    std::optional<QStringList> sources;
    bool hidden = false; ///< Start without the window, in the tray.
    QString command; ///< For the running program.
    QStringList arguments; ///< Of the command.
    bool json = false; ///< The command's answer as JSON.
};

/// Reads the arguments (without the program's name). The error is one line for standard error.
tl::expected<Options, QString> parseOptions(const QStringList &arguments);

/// Text of --help.
QString helpText();

} // namespace moravel
