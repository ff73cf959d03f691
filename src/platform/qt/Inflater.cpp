// SPDX-License-Identifier: MIT
#include "platform/qt/Inflater.h"

#include <zlib.h>

namespace moravel {

namespace {

// The largest window, and 32 to tell gzip and zlib apart by their heads.
constexpr int WindowBits = MAX_WBITS + 32;

} // namespace

Inflater::Inflater() : m_stream(std::make_unique<z_stream_s>())
{
    if (inflateInit2(m_stream.get(), WindowBits) != Z_OK)
        qFatal("out of memory");
}

Inflater::~Inflater()
{
    inflateEnd(m_stream.get());
}

void Inflater::feed(const QByteArray &packed)
{
    m_input = packed;
    m_used = 0;
}

std::optional<QByteArray> Inflater::next(qsizetype most)
{
    QByteArray out(most, Qt::Uninitialized);
    m_stream->next_out = reinterpret_cast<Bytef *>(out.data());
    m_stream->avail_out = static_cast<uInt>(most);
    m_stream->next_in = reinterpret_cast<Bytef *>(m_input.data()) + m_used;
    m_stream->avail_in = static_cast<uInt>(m_input.size() - m_used);
    while (m_stream->avail_in > 0 && m_stream->avail_out > 0) {
        if (m_between)
            inflateReset(m_stream.get()); // gzip data may be several streams in a row
        const int result = inflate(m_stream.get(), Z_NO_FLUSH);
        m_between = result == Z_STREAM_END;
        if (result != Z_OK && result != Z_STREAM_END)
            return std::nullopt;
    }
    m_used = m_input.size() - qsizetype(m_stream->avail_in);
    out.truncate(most - qsizetype(m_stream->avail_out));
    return out;
}

} // namespace moravel
