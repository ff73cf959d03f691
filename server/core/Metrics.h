// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QMap>

#include <mutex>

namespace moravel::server {

/// Counts what happens, for the operator. Thread-safe.
class Metrics
{
public:
    /// Adds to the count of @p name with its labels, as in: requests_total{status="200"}.
    void add(const QByteArray &name, double amount = 1);

    /// All counts in the text form of Prometheus.
    QByteArray text() const;

private:
    mutable std::mutex m_mutex;
    QMap<QByteArray, double> m_counts;
};

} // namespace moravel::server
