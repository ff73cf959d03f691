// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

namespace moravel {

/// Where the two passes stand. Both walk the cells with the one index, never at the same time.
struct PassState
{
    enum class Pass { None, Thumbs, Pictures };

    int thumbIndex = 0; ///< The next cell to handle.
    std::optional<QDateTime> lastDataCheck; ///< When the last full thumbnail pass ended.
    QString currentLongSource; ///< The source being handled, for status texts.
    Pass pass = Pass::None; ///< Which pass the index belongs to.
    bool heldThumbs = false; ///< The hourly pass was due and had to wait.
    bool heldPictures = false; ///< The pass of the large pictures had to stop.
};

} // namespace moravel
