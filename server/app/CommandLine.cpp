// SPDX-License-Identifier: MIT
#include "server/app/CommandLine.h"

#include "server/core/Version.h"

#include <QCommandLineParser>

namespace moravel::server {

namespace {

EarlyEnd misuse(const QString &what)
{
    return {QStringLiteral("moravel-service: %1\nTry 'moravel-service --help'.\n").arg(what), 2};
}

/// The port that a text names; none when it names none.
std::optional<int> portFrom(const QString &text)
{
    constexpr int highest = 65535;
    bool ok = false;
    const int port = text.toInt(&ok);
    if (!ok || port < 0 || port > highest)
        return std::nullopt;
    return port;
}

tl::expected<void, EarlyEnd> override(Config &config, const QCommandLineParser &parser)
{
    if (parser.isSet(QStringLiteral("port"))) {
        const auto port = portFrom(parser.value(QStringLiteral("port")));
        if (!port)
            return tl::unexpected(
                misuse(QStringLiteral("the port must be a number from 0 to 65535")));
        config.port = *port;
    }
    if (parser.isSet(QStringLiteral("bind")))
        config.bind = parser.value(QStringLiteral("bind"));
    if (!isNumericAddress(config.bind))
        return tl::unexpected(
            misuse(QStringLiteral("the address to bind must be numeric, as 127.0.0.1")));
    return {};
}

} // namespace

tl::expected<Config, EarlyEnd> readCommandLine(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Serves pictures of the day to Moravel over HTTP."));
    parser.addOptions({
        {{QStringLiteral("c"), QStringLiteral("config")},
         QStringLiteral("Read the configuration from <file>."),
         QStringLiteral("file")},
        {{QStringLiteral("p"), QStringLiteral("port")},
         QStringLiteral("Listen on <port>; 0 takes any free one. Default: 8642."),
         QStringLiteral("port")},
        {{QStringLiteral("b"), QStringLiteral("bind")},
         QStringLiteral("Listen at the numeric <address>. Default: 127.0.0.1."),
         QStringLiteral("address")},
        {{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Show this help.")},
        {{QStringLiteral("v"), QStringLiteral("version")}, QStringLiteral("Show the version.")},
    });
    if (!parser.parse(arguments))
        return tl::unexpected(misuse(parser.errorText()));
    if (parser.isSet(QStringLiteral("help")))
        return tl::unexpected(EarlyEnd{parser.helpText(), 0});
    if (parser.isSet(QStringLiteral("version")))
        return tl::unexpected(
            EarlyEnd{QStringLiteral("moravel-service %1\n").arg(versionText()), 0});
    if (!parser.positionalArguments().isEmpty())
        return tl::unexpected(misuse(QStringLiteral("unexpected argument '%1'")
                                         .arg(parser.positionalArguments().constFirst())));
    Config config;
    if (parser.isSet(QStringLiteral("config"))) {
        const auto read = readConfig(parser.value(QStringLiteral("config")));
        if (!read)
            return tl::unexpected(
                EarlyEnd{QStringLiteral("moravel-service: %1\n").arg(read.error()), 2});
        config = *read;
    }
    if (const auto ok = override(config, parser); !ok)
        return tl::unexpected(ok.error());
    return config;
}

} // namespace moravel::server
