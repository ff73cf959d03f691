// SPDX-License-Identifier: MIT
// Every adapter with a source that says anything: the first byte chooses the adapter (or, for all
// inputs, MORAVEL_FUZZ_ADAPTER, a number), zero bytes part the answers to its requests.
#include "server/network/UpstreamHttp.h"
#include "server/sources/net/Adapters.h"

#include <cstdint>
#include <cstdlib>

using namespace moravel::server;

namespace {

constexpr unsigned char picture[] = {0x89, 'P', 'N', 'G', 0x0d, 0x0a, 0x1a, 0x0a, 0,    0,    0,
                                     13,   'I', 'H', 'D', 'R',  0,    0,    0,    1,    0,    0,
                                     0,    1,   8,   2,   0,    0,    0,    0x90, 0x77, 0x53, 0xde};

class AnyUpstream : public UpstreamHttp
{
public:
    explicit AnyUpstream(const QByteArray &data) : m_answers(data.split('\0')) { }

    tl::expected<Fetched, QString> get(const FetchRequest &request) override
    {
        Fetched answer;
        answer.status = 200;
        answer.url = request.url;
        if (request.beginningOnly) {
            answer.type = "image/png";
            answer.body = QByteArray(reinterpret_cast<const char *>(picture), sizeof picture);
        } else {
            answer.body = m_answers.value(m_next++ % m_answers.size());
        }
        return answer;
    }

private:
    QList<QByteArray> m_answers;
    qsizetype m_next = 0;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size < 2)
        return 0;
    AnyUpstream upstream(
        QByteArray(reinterpret_cast<const char *>(data + 1), static_cast<qsizetype>(size - 1)));
    const AdapterSetup setup{{}, QStringLiteral("k"), {}, {}};
    const auto &known = knownSources();
    static const char *const only = std::getenv("MORAVEL_FUZZ_ADAPTER");
    const std::size_t wanted = only ? std::strtoul(only, nullptr, 10) : data[0];
    const std::size_t which = wanted % (known.size() + 1);
    const AdapterSetup feed{QUrl(QStringLiteral("https://a.org/f")), {}, {}, {}};
    const auto adapter = which < known.size() ? known[which].make(setup) : makeFeed(feed);
    Asking asking({upstream, QDateTime(QDate(2024, 1, 15), QTime(12, 0), Qt::UTC), {}, true});
    try {
        const QByteArray text = toJson(checked(adapter->ask({2024, 1, 14}, asking)));
        const auto again = outcomeFrom(text);
        if (!again || toJson(*again) != text)
            std::abort();
    } catch (const std::exception &) { // The book catches these.
    }
    return 0;
}
