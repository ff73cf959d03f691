// SPDX-License-Identifier: MIT
#include "server/sources/net/Adapters.h"

namespace moravel::server {

const std::vector<KnownSource> &knownSources()
{
    static const std::vector<KnownSource> sources{
        {"Wiki", "Wikimedia Commons", makeCommons}, // The application knows this one by name.
        {"Apod", "Astronomy Picture of the Day", makeApod},
        {"Earth", "NASA Earth Observatory", makeEarthObservatory},
        {"Hubble", "ESA/Hubble", makeEsaHubble},
        {"Met", "The Met", makeMet},
        {"Artic", "Art Institute of Chicago", makeArtic},
        {"Epod", "Earth Science Picture of the Day", makeEpod},
        {"Bing", "Bing", makeBing},
    };
    return sources;
}

} // namespace moravel::server
