// SPDX-License-Identifier: MIT
#include "app/Options.h"

namespace moravel {

tl::expected<Options, QString> parseOptions(const QStringList &arguments)
{
    Options options;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString name = arguments[i].section(u'=', 0, 0);
        if (name == u"--version") {
            options.action = Options::Action::PrintVersion;
        } else if (name == u"--help" || name == u"-h") {
            options.action = Options::Action::PrintHelp;
        } else if (name == u"--sources") {
            const bool inOne = arguments[i].contains(u'=');
            if (!inOne && i + 1 >= arguments.size())
                return tl::unexpected(
                    QStringLiteral("--sources needs \"all\" or a list of source names"));
            const QString value = inOne ? arguments[i].section(u'=', 1) : arguments[++i];
            options.sources = value.split(u',', Qt::SkipEmptyParts);
            for (QString &source : *options.sources)
                source = source.trimmed();
        } else {
            return tl::unexpected(QStringLiteral("unknown argument: %1").arg(arguments[i]));
        }
    }
    return options;
}

QString helpText()
{
    return QStringLiteral(
        "Usage: moravel [--sources all | --sources \"Long name,Long name\"] [--version] [--help]\n"
        "\n"
        "Shows the pictures of the day of many sources and keeps them in your Pictures folder.\n"
        "\n"
        "  --sources LIST  switches these sources on (and remembers it); \"all\" means every "
        "source\n"
        "  --version       prints the version and the address of the service\n"
        "  -h, --help      prints this text\n");
}

} // namespace moravel
