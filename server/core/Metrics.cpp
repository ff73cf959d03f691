// SPDX-License-Identifier: MIT
#include "server/core/Metrics.h"

namespace moravel::server {

void Metrics::add(const QByteArray &name, double amount)
{
    const std::lock_guard lock(m_mutex);
    m_counts[name] += amount;
}

QByteArray Metrics::text() const
{
    const std::lock_guard lock(m_mutex);
    QByteArray text;
    QByteArray family;
    for (auto at = m_counts.begin(); at != m_counts.end(); ++at) {
        const QByteArray name = "moravel_" + at.key();
        const QByteArray itsFamily =
            name.left(name.indexOf('{') < 0 ? name.size() : name.indexOf('{'));
        if (itsFamily != family)
            text += "# TYPE " + itsFamily + " counter\n";
        family = itsFamily;
        text += name + ' ' + QByteArray::number(at.value(), 'g', 15) + '\n';
    }
    return text;
}

} // namespace moravel::server
