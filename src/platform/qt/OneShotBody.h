// SPDX-License-Identifier: MIT
#pragma once

#include <QIODevice>

#include <algorithm>
#include <cstring>

namespace moravel {

/// The body of a request that must not be sent twice: it cannot be rewound. The network layer
/// rewinds a body to repeat a request by itself when a connection dies, and gives up when it
/// cannot. (Not a QBuffer: the network layer recognises that class and reads around reset().)
class OneShotBody : public QIODevice
{
public:
    explicit OneShotBody(const QByteArray &bytes, QObject *parent = nullptr)
        : QIODevice(parent), m_bytes(bytes)
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }

    qint64 size() const override { return m_bytes.size(); }

    bool reset() override { return false; }

    bool seek(qint64 offset) override { return offset == pos() && QIODevice::seek(offset); }

protected:
    qint64 readData(char *data, qint64 maxSize) override
    {
        const qint64 count = std::min(maxSize, m_bytes.size() - m_read);
        if (count <= 0)
            return -1;
        std::memcpy(data, m_bytes.constData() + m_read, size_t(count));
        m_read += count;
        return count;
    }

    qint64 writeData(const char *, qint64) override { return -1; }

private:
    QByteArray m_bytes;
    qint64 m_read = 0;
};

} // namespace moravel
