// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QHash>

#include <list>
#include <mutex>
#include <optional>

namespace moravel::server {

/// What was answered lately, up to a number of bytes; the least recently asked for goes first.
/// Thread-safe.
template <typename Value>
class Recent
{
public:
    explicit Recent(qsizetype mostBytes) : m_mostBytes(mostBytes) { }

    std::optional<Value> find(const QByteArray &key)
    {
        const std::lock_guard lock(m_mutex);
        const auto at = m_index.constFind(key);
        if (at == m_index.constEnd())
            return std::nullopt;
        m_entries.splice(m_entries.begin(), m_entries, *at);
        return m_entries.front().value;
    }

    void put(const QByteArray &key, Value value, qsizetype bytes)
    {
        constexpr qsizetype bookkeeping = 200;
        const std::lock_guard lock(m_mutex);
        drop(key);
        m_entries.push_front({key, std::move(value), bytes + key.size() + bookkeeping});
        m_index.insert(key, m_entries.begin());
        m_bytes += m_entries.front().bytes;
        while (m_bytes > m_mostBytes)
            drop(m_entries.back().key);
    }

    void remove(const QByteArray &key)
    {
        const std::lock_guard lock(m_mutex);
        drop(key);
    }

private:
    struct Entry
    {
        QByteArray key;
        Value value;
        qsizetype bytes = 0;
    };

    void drop(QByteArray key) // A copy: it may be the entry's own.
    {
        const auto at = m_index.constFind(key);
        if (at == m_index.constEnd())
            return;
        m_bytes -= (*at)->bytes;
        m_entries.erase(*at);
        m_index.erase(at);
    }

    const qsizetype m_mostBytes;
    qsizetype m_bytes = 0;
    std::mutex m_mutex;
    std::list<Entry> m_entries;
    QHash<QByteArray, typename std::list<Entry>::iterator> m_index;
};

} // namespace moravel::server
