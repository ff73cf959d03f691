// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace moravel {

class ThumbView;

/// What a cell tells of its picture.
enum class CellState {
    Waiting, ///< Nobody has looked for its picture yet.
    Looking,
    Shown,
    Earlier, ///< The day that was asked for has no picture: that of an earlier one is shown.
    EarlierUnasked, ///< The same, as the service did not answer for that day.
    Nothing, ///< No day that was tried has a picture.
    Failed, ///< The service did not answer.
    Unreadable, ///< The picture is known, but cannot be fetched or is none.
    Deleted
};

CellState cellState(const ThumbView &cell);

/// Tells whether the cell shows a picture of its source.
bool hasPicture(const ThumbView &cell);

/// Says the state in the user's words; empty where the cell says it otherwise: by its picture, by its
/// caption, or as there is nothing to say.
QString stateText(const ThumbView &cell);

/// Returns what stands below the picture: the caption, unless it speaks of a search that has ended.
QString shownCaption(const ThumbView &cell);

/// Returns the day that the cell speaks of. One that was not answered for is not the last that was tried.
QString shownDate(const ThumbView &cell);

/// Says everything in one line, for those who hear the cell.
QString spokenText(const ThumbView &cell);

} // namespace moravel
