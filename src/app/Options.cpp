// SPDX-License-Identifier: MIT
#include "app/Options.h"

#include "platform/Texts.h"

#include <QHash>

namespace moravel {

namespace {

// The commands, and what each must be followed by.
const QHash<QString, QStringList> &commands()
{
    static const QHash<QString, QStringList> table{
        {QStringLiteral("next"), {}},
        {QStringLiteral("previous"), {}},
        {QStringLiteral("hold"), {}},
        {QStringLiteral("current"), {}},
        {QStringLiteral("set"), {Texts::tr("the path of a picture")}},
        {QStringLiteral("show"), {}},
        {QStringLiteral("large"), {}},
        {QStringLiteral("browser"), {}},
        {QStringLiteral("quit"), {}},
    };
    return table;
}

// Takes the option at @p i, and its value. Returns what is wrong, or "".
QString takeOption(Options &options, const QStringList &arguments, qsizetype &i)
{
    const QString name = arguments[i].section(u'=', 0, 0);
    if (name == u"--version") {
        options.action = Options::Action::PrintVersion;
    } else if (name == u"--help" || name == u"-h") {
        options.action = Options::Action::PrintHelp;
    } else if (name == u"--json") {
        options.json = true;
    } else if (name == u"--hidden") {
        options.hidden = true;
    } else if (name == u"--sources") {
        const bool inOne = arguments[i].contains(u'=');
        const QString value = inOne ? arguments[i].section(u'=', 1) : arguments.value(++i);
        if (value.isEmpty())
            return Texts::tr("--sources needs \"all\" or a list of source names");
        options.sources = value.split(u',', Qt::SkipEmptyParts);
        for (QString &source : *options.sources)
            source = source.trimmed();
    } else {
        return Texts::tr("unknown option: %1").arg(arguments[i]);
    }
    return {};
}

// Takes the words that are no options. Returns what is wrong, or "".
QString takeWords(Options &options, QStringList words)
{
    if (words.isEmpty())
        return options.json ? Texts::tr("--json goes with the command current") : QString();
    const QString command = words.takeFirst();
    const auto known = commands().constFind(command);
    if (known == commands().cend())
        return Texts::tr("unknown command: %1").arg(command);
    if (options.sources || (options.json && command != u"current"))
        return Texts::tr("%1 does not go with the command %2")
            .arg(options.sources ? QStringLiteral("--sources") : QStringLiteral("--json"), command);
    if (words.size() < known->size())
        return Texts::tr("%1 needs %2").arg(command, known->at(words.size()));
    if (words.size() > known->size())
        return Texts::tr("%1 cannot take: %2").arg(command, words.at(known->size()));
    options.command = command;
    options.arguments = words;
    if (options.action == Options::Action::Run)
        options.action = Options::Action::Command;
    return {};
}

} // namespace

tl::expected<Options, QString> parseOptions(const QStringList &arguments)
{
    Options options;
    QStringList words;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        if (arguments[i] == u"--") {
            words += arguments.mid(i + 1);
            break;
        }
        if (!arguments[i].startsWith(u'-') || arguments[i] == u"-")
            words.append(arguments[i]);
        else if (const QString wrong = takeOption(options, arguments, i); !wrong.isEmpty())
            return tl::unexpected(wrong);
    }
    if (const QString wrong = takeWords(options, words); !wrong.isEmpty())
        return tl::unexpected(wrong);
    return options;
}

QString helpText()
{
    return Texts::tr(R"(Usage: moravel [--sources LIST] [--hidden]
  or:  moravel COMMAND
Shows the pictures of the day of many sources and keeps them in your Pictures folder.

Options:
  --sources LIST  switch these sources on and remember it: long names with commas between,
                  or all
  --hidden        start without the window, in the tray (minimised where there is none)
  --json          with current: answer in JSON
  -h, --help      show this text
  --version       show the version and the address of the service

Commands for the running program:
  next            change the desktop picture
  previous        go back to the desktop picture before
  hold            keep the desktop picture for an hour
  current         tell source, date, caption, file and page of the desktop picture
  set FILE        make a picture file the desktop
  show            bring the window to the front
  large           show a picture large: the desktop's, as a rule
  browser         open the browser of the collection
  quit            end the program

Started a second time without a command, the program brings its window to the front and hands
the sources over.

Exit codes: 0 done; 1 refused or no answer; 2 wrong arguments; 3 not running (commands only).
)");
}

} // namespace moravel
