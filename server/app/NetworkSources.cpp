// SPDX-License-Identifier: MIT
#include "server/app/NetworkSources.h"

#include "server/network/PostgresStore.h"
#include "server/network/SqliteStore.h"
#include "server/sources/net/Adapters.h"

#include <QDir>
#include <QRandomGenerator>

#include <algorithm>

namespace moravel::server {

namespace {

constexpr int lookUpThreads = 4;
constexpr std::size_t mostWaiting = 4096;

/// Where a service manager wants it, else where a user's programs keep what may not be lost.
QString usualStore()
{
    const QString managed = qEnvironmentVariable("STATE_DIRECTORY").section(u':', 0, 0);
    if (!managed.isEmpty())
        return managed + QLatin1StringView("/answers.sqlite");
    const QString state = qEnvironmentVariable("XDG_STATE_HOME");
    return (state.startsWith(u'/') ? state : QDir::homePath() + QLatin1StringView("/.local/state"))
        + QLatin1StringView("/moravel-service/answers.sqlite");
}

PictureSizes sizesOf(const Config &config)
{
    PictureSizes sizes;
    sizes.thumb = config.proxySizes.value(QStringLiteral("thumb"), sizes.thumb);
    sizes.normal = config.proxySizes.value(QStringLiteral("normal"), sizes.normal);
    sizes.full = config.proxySizes.value(QStringLiteral("full"), sizes.full);
    return sizes;
}

const KnownSource *knownSource(const QString &shortName)
{
    const auto &all = knownSources();
    const auto at = std::find_if(all.begin(), all.end(), [&](const KnownSource &it) {
        return shortName == QLatin1StringView(it.shortName);
    });
    return at == all.end() ? nullptr : &*at;
}

} // namespace

NetworkSources::NetworkSources(const Config &config, Metrics &metrics)
    : m_config(config)
    , m_metrics(metrics)
    , m_curl(config.contact.isEmpty() ? QStringLiteral(MORAVEL_CONTACT) : config.contact)
    , m_lookUps(lookUpThreads, mostWaiting)
{ }

NetworkSources::~NetworkSources() = default;

void NetworkSources::stop()
{
    m_curl.stop();
    for (RemoteSource *source : m_sources)
        source->stop();
    m_lookUps.end();
}

tl::expected<void, QString> NetworkSources::openStore()
{
    if (isDatabase(m_config.store)) {
        m_store = std::make_unique<PostgresStore>(m_config.store);
        return {};
    }
    const QString path = m_config.store.isEmpty() ? usualStore() : m_config.store;
    auto store = SqliteStore::open(path);
    if (!store)
        return tl::unexpected(
            QStringLiteral("cannot keep answers in %1: %2").arg(path, store.error()));
    m_store = *std::move(store);
    return {};
}

bool NetworkSources::add(SourceList &list, const NetworkSetup &setup, const QString &longName,
                         std::unique_ptr<Adapter> adapter,
                         const std::shared_ptr<CacheFolder> &cache)
{
    const BookSetup book{*m_store,
                         m_http,
                         m_lookUps,
                         m_alarms,
                         m_metrics,
                         [] { return QDateTime::currentDateTimeUtc(); },
                         [] { return QRandomGenerator::global()->generateDouble(); }};
    auto source = std::make_unique<RemoteSource>(
        RemoteSetup{setup.shortName, longName, setup.isPrivate, setup.proxy, sizesOf(m_config)},
        std::move(adapter), book, cache);
    RemoteSource *added = source.get();
    if (!list.add(std::move(source)))
        return false;
    m_sources.push_back(added);
    return true;
}

tl::expected<void, QString> NetworkSources::addTo(SourceList &list,
                                                  const std::shared_ptr<CacheFolder> &cache)
{
    const auto isOn = [](const NetworkSetup &setup) { return setup.isOn; };
    for (const NetworkSetup &setup : m_config.networkSources) {
        if (!knownSource(setup.shortName))
            return tl::unexpected(
                QStringLiteral("\"networkSources\": there is no \"%1\"").arg(setup.shortName));
    }
    if (m_config.feedSources.isEmpty()
        && std::none_of(m_config.networkSources.begin(), m_config.networkSources.end(), isOn))
        return {};
    if (const auto opened = openStore(); !opened)
        return opened;
    const auto taken = [](const NetworkSetup &setup) {
        return tl::unexpected(
            QStringLiteral("the short name \"%1\" is used twice").arg(setup.shortName));
    };
    for (const NetworkSetup &setup : m_config.networkSources) {
        const KnownSource *known = knownSource(setup.shortName);
        const AdapterSetup adapter{setup.address, setup.key, setup.market, setup.credit};
        if (setup.isOn
            && !add(list, setup, QString::fromLatin1(known->longName), known->make(adapter), cache))
            return taken(setup);
    }
    for (const NetworkSetup &setup : m_config.feedSources) {
        if (!add(list, setup, setup.longName, makeFeed({setup.address, {}, {}, setup.credit}),
                 cache))
            return taken(setup);
    }
    return {};
}

} // namespace moravel::server
