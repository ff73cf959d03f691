// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractNativeEventFilter>

#include <cstdint>
#include <functional>

namespace moravel {

/// Looks for a tray that embeds windows (X11's _NET_SYSTEM_TRAY selection). Other platforms have none.
class EmbeddingTray : public QAbstractNativeEventFilter
{
public:
    /// Calls @p appeared each time such a tray takes its place.
    explicit EmbeddingTray(std::function<void()> appeared);
    ~EmbeddingTray() override;
    Q_DISABLE_COPY_MOVE(EmbeddingTray)

    /// Tells whether there is one now. One round trip to the X server.
    bool isThere() const;

    bool nativeEventFilter(const QByteArray &type, void *event, qintptr *result) override;

private:
    std::function<void()> m_appeared;
    std::uint32_t m_manager = 0; ///< Atoms; 0 on other platforms.
    std::uint32_t m_selection = 0;
};

} // namespace moravel
