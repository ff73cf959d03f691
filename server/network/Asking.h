// SPDX-License-Identifier: MIT
#pragma once

#include "server/network/Outcome.h"
#include "server/network/UpstreamHttp.h"

#include <nlohmann/json_fwd.hpp>

namespace moravel::server {

/// What the beginning of a picture file tells.
struct PictureFacts
{
    QSize size; ///< Empty when it lies further on.
    double megabytes = 0; ///< 0 when unknown.
};

/// One question to a source, which may take several requests, until a deadline.
class Asking
{
public:
    struct Setup
    {
        UpstreamHttp &http;
        QDateTime now;
        std::chrono::steady_clock::time_point deadline;
        bool mayBePrivate = false;
    };

    explicit Asking(const Setup &setup) : m_setup(setup) { }

    QDateTime now() const { return m_setup.now; }

    /// What lies at an address; else what its absence says of the source. An answer of at most
    /// @p reuseSeconds will do.
    tl::expected<Fetched, Outcome> get(const QUrl &url, int reuseSeconds = 0,
                                       std::vector<QByteArray> headers = {});
    tl::expected<nlohmann::json, Outcome> json(const QUrl &url, int reuseSeconds = 0,
                                               std::vector<QByteArray> headers = {});

    /// What the file at an address tells of itself; NotAPicture when it is not there or nothing that
    /// can be shown, whatever it is called; else why that cannot be seen now.
    tl::expected<PictureFacts, Outcome> probe(const QUrl &url);

private:
    Setup m_setup;
};

/// A network source: tells of the picture of a day.
class Adapter
{
public:
    virtual ~Adapter() = default;

    /// Called from one thread at a time.
    virtual Outcome ask(QDate date, Asking &asking) const = 0;
};

/// What an answer without the thing that was asked for says of the source.
Outcome outcomeOf(const Fetched &answer, const QDateTime &now);

/// The status of an answer that only says that a day has nothing.
bool isMissing(const Outcome &outcome);

/// The facts of a picture of which @p answer is the beginning; none when it is no JPEG, PNG or WebP
/// that can be shown.
std::optional<PictureFacts> pictureFacts(const Fetched &answer);

} // namespace moravel::server
