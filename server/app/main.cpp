// SPDX-License-Identifier: MIT
#include "server/app/Activation.h"
#include "server/app/CommandLine.h"
#include "server/app/ComputedSources.h"
#include "server/app/NetworkSources.h"
#include "server/core/ComputedPictures.h"
#include "server/core/Lane.h"
#include "server/core/Service.h"
#include "server/http/HttpServer.h"
#include "server/sources/folder/FolderSource.h"

#include <QCoreApplication>
#include <QStandardPaths>

#include <csignal>
#include <cstdio>
#include <future>
#include <malloc.h>
#include <thread>
#include <unistd.h>

using namespace moravel::server;

namespace {

/// Answers in progress at the end get this long; a slow client must not hold the machine's shutdown
/// up.
constexpr auto graceAtEnd = std::chrono::seconds(4);

constexpr int textThreads = 4;
constexpr int pictureThreads = 28; ///< Most of them wait for their turn to draw.
constexpr std::size_t mostWaiting = 4096;

/// To be called before there are threads.
void limitMemory()
{
    // There will be many threads, few of them busy: what one gives back is to be of use to the others.
    constexpr int pools = 2;
    ::mallopt(M_ARENA_MAX, pools);
    // Pictures and the like are given back at once, instead of being kept for the next ones.
    constexpr int large = 1 << 18;
    ::mallopt(M_MMAP_THRESHOLD, large);
    // A small file of the progressive kind may want gigabytes; this is enough for 100 megapixels.
    qputenv("JPEGMEM", "512M");
}

int fail(const QString &text, int status)
{
    std::fputs(qPrintable(text), status == 0 ? stdout : stderr);
    return status;
}

/// The signals that end the program are blocked in all threads and taken by main() alone.
sigset_t blockEndSignals()
{
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGTERM);
    sigaddset(&signals, SIGINT);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    return signals;
}

/// Adds all sources that the configuration wants; the error names one that cannot be.
tl::expected<void, QString> addSources(SourceList &list, const Config &config, RenderCache &cache)
{
    QHash<QString, bool> switches = config.computedSources;
    for (auto &source : computedSources()) {
        if (switches.take(source->shortName())
            || !config.computedSources.contains(source->shortName()))
            list.add(std::make_unique<ComputedPictures>(std::move(source), cache), true);
    }
    if (!switches.isEmpty())
        return tl::unexpected(QStringLiteral("\"computedSources\": there is no \"%1\"")
                                  .arg(switches.keys().constFirst()));
    for (const FolderSetup &folder : config.folderSources) {
        if (!list.add(std::make_unique<FolderSource>(folder, cache), true))
            return tl::unexpected(
                QStringLiteral("the short name \"%1\" is used twice").arg(folder.shortName));
    }
    return {};
}

QString hostFor(const QString &address, int port)
{
    // Links to "any address" would lead nowhere.
    const QString host = address == u"0.0.0.0" ? QStringLiteral("127.0.0.1")
        : address == u"::"                     ? QStringLiteral("::1")
                                               : address;
    return (host.contains(u':') ? QStringLiteral("[%1]:%2") : QStringLiteral("%1:%2"))
        .arg(host)
        .arg(port);
}

QString cacheFolder()
{
    const QString managed = qEnvironmentVariable("CACHE_DIRECTORY").section(u':', 0, 0);
    return managed.isEmpty()
        ? QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation)
            + QLatin1StringView("/moravel-service")
        : managed;
}

/// The socket that the service manager listens on for us, else one of our own.
tl::expected<int, QString> listen(HttpServer &server, const Config &config)
{
    const int handed = takeActivatedSocket();
    return handed >= 0 ? server.adopt(handed) : server.bind(config.bind, config.port);
}

int serve(HttpServer &server, RenderCache &cache, NetworkSources &network, const sigset_t &signals)
{
    std::promise<bool> ended;
    std::thread serving([&] {
        ended.set_value(server.run());
        ::kill(::getpid(), SIGTERM); // Wakes main() when the service ended by itself.
    });
    int received = 0;
    sigwait(&signals, &received);
    cache.stop();
    server.stop();
    network.stop();
    auto end = ended.get_future();
    if (end.wait_for(graceAtEnd) != std::future_status::ready)
        ::_exit(0);
    serving.join();
    return end.get() ? 0
                     : fail(QStringLiteral("moravel-service: the listening socket failed\n"), 1);
}

} // namespace

int main(int argc, char **argv)
{
    limitMemory();
    const sigset_t signals = blockEndSignals();
    std::signal(SIGPIPE, SIG_IGN);
    const QCoreApplication app(argc, argv); // Finds the plugins for picture formats.
    const auto config = readCommandLine(QCoreApplication::arguments());
    if (!config)
        return fail(config.error().text, config.error().status);
    const auto folder = std::make_shared<CacheFolder>(cacheFolder(), config->cacheBytes);
    RenderCache cache(folder, {});
    Metrics metrics;
    const Service *answering = nullptr;
    HttpServer server(
        [&](const Request &request, const Answer &answer) { answering->handle(request, answer); });
    NetworkSources network(*config, metrics);
    SourceList sources;
    auto added = addSources(sources, *config, cache);
    if (added)
        added = network.addTo(sources, folder);
    if (!added)
        return fail(QStringLiteral("moravel-service: %1\n").arg(added.error()), 2);
    // After the server: what they still do when it ends is answered to it.
    Lane texts(textThreads, mostWaiting);
    Lane pictures(pictureThreads, mostWaiting);
    Service service(sources,
                    {config->newsFile, {}, {}, &texts, &pictures, &metrics, config->publicUrl});
    answering = &service;
    const auto port = listen(server, *config);
    if (!port)
        return fail(QStringLiteral("moravel-service: %1\n").arg(port.error()), 1);
    const QString host = hostFor(config->bind, *port);
    service.setBoundHost(host.toLatin1());
    std::printf("moravel-service: listening on http://%s/potd\n", qPrintable(host));
    std::fflush(stdout);
    return serve(server, cache, network, signals);
}
