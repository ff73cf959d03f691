// SPDX-License-Identifier: MIT
#pragma once

#include "server/network/Asking.h"

#include <memory>

namespace moravel::server {

/// What an operator may say of a source beside switching it on.
struct AdapterSetup
{
    QUrl address; ///< Where it lies; the public one when empty.
    QString key; ///< For sources that want one.
    QString market; ///< For sources that differ by market, as "en-US".
    QString credit; ///< For feeds: who made the pictures.
};

std::unique_ptr<Adapter> makeApod(const AdapterSetup &setup);
std::unique_ptr<Adapter> makeCommons(const AdapterSetup &setup);
std::unique_ptr<Adapter> makeBing(const AdapterSetup &setup);
std::unique_ptr<Adapter> makeEarthObservatory(const AdapterSetup &setup);
std::unique_ptr<Adapter> makeEpod(const AdapterSetup &setup);
std::unique_ptr<Adapter> makeEsaHubble(const AdapterSetup &setup);
std::unique_ptr<Adapter> makeMet(const AdapterSetup &setup);
std::unique_ptr<Adapter> makeArtic(const AdapterSetup &setup);
std::unique_ptr<Adapter> makeFeed(const AdapterSetup &setup);

/// A source that this service has an adapter for.
struct KnownSource
{
    const char *shortName;
    const char *longName;
    std::unique_ptr<Adapter> (*make)(const AdapterSetup &);
};

/// All of them but feeds, in the order in which they are listed.
const std::vector<KnownSource> &knownSources();

} // namespace moravel::server
