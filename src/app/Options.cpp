// SPDX-License-Identifier: MIT
#include "app/Options.h"

namespace moravel {

namespace {

QString missingValue(const QString &name)
{
    return name == u"--sources"
        ? QStringLiteral("--sources needs \"all\" or a list of source names")
        : QStringLiteral("--command needs next, previous or hold");
}

void take(Options &options, const QString &name, const QString &value)
{
    if (name == u"--command") {
        options.action = Options::Action::Command;
        options.command = value;
        return;
    }
    options.sources = value.split(u',', Qt::SkipEmptyParts);
    for (QString &source : *options.sources)
        source = source.trimmed();
}

} // namespace

tl::expected<Options, QString> parseOptions(const QStringList &arguments)
{
    Options options;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString name = arguments[i].section(u'=', 0, 0);
        if (name == u"--version") {
            options.action = Options::Action::PrintVersion;
        } else if (name == u"--help" || name == u"-h") {
            options.action = Options::Action::PrintHelp;
        } else if (name == u"--hidden") {
            options.hidden = true;
        } else if (name == u"--sources" || name == u"--command") {
            const bool inOne = arguments[i].contains(u'=');
            const QString value = inOne ? arguments[i].section(u'=', 1) : arguments.value(++i);
            if (value.isEmpty())
                return tl::unexpected(missingValue(name));
            take(options, name, value);
        } else {
            return tl::unexpected(QStringLiteral("unknown argument: %1").arg(arguments[i]));
        }
    }
    return options;
}

QString helpText()
{
    return QStringLiteral(
        "Usage: moravel [--sources all | --sources \"Long name,Long name\"]\n"
        "       moravel --hidden\n"
        "       moravel --command next|previous|hold\n"
        "       moravel --version | --help\n"
        "\n"
        "Shows the pictures of the day of many sources and keeps them in your Pictures folder.\n"
        "\n"
        "  --sources LIST  switches these sources on (and remembers it); \"all\" means every "
        "source\n"
        "  --hidden        starts without the window, in the tray (minimised where there is none)\n"
        "  --command NAME  asks the running program: next changes the desktop picture, previous "
        "goes\n"
        "                  back to the one before, hold keeps it for an hour\n"
        "  --version       prints the version and the address of the service\n"
        "  -h, --help      prints this text\n"
        "\n"
        "Started a second time, the program brings its window to the front and hands the sources "
        "over.\n"
        "Exit codes: 0 done; 1 refused or no answer; 2 wrong arguments; 3 not running "
        "(--command).\n");
}

} // namespace moravel
