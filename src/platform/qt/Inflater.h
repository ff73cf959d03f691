// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <memory>
#include <optional>

struct z_stream_s;

namespace moravel {

/// Unpacks gzip and zlib data as it arrives, a bounded block at a time.
///
/// The network layer has a decoder too, but takes an answer that was cut off for a complete one.
class Inflater
{
public:
    Inflater();
    ~Inflater();

    /// Tells whether next() has used up what it was fed.
    bool needsInput() const { return m_used == m_input.size(); }

    /// Gives it the next packed bytes; only when it needs them.
    void feed(const QByteArray &packed);

    /// Unpacks at most @p most bytes. Empty when more input is needed; nothing when the data is damaged.
    std::optional<QByteArray> next(qsizetype most);

    /// Tells whether everything fed so far is whole (no data at all is).
    bool isComplete() const { return m_between && needsInput(); }

private:
    std::unique_ptr<z_stream_s> m_stream;
    QByteArray m_input;
    qsizetype m_used = 0;
    bool m_between = true; ///< Before the first stream, or after the end of one.
};

} // namespace moravel
