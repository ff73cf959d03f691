// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QStringList>

#include <cstdint>
#include <functional>
#include <optional>
#include <utility>

namespace moravel {

using RandomNumber = std::function<std::uint32_t()>;

/// Shuffles a sequence in place, each order equally likely, with one number an element.
template <typename Array>
Array &shuffleArray(Array &array, const RandomNumber &random)
{
    const auto n = static_cast<std::uint32_t>(array.size());
    for (std::uint32_t i = 0; i < n; ++i) {
        const std::uint32_t j = i + random() % (n - i);
        using std::swap;
        swap(array[static_cast<typename Array::size_type>(i)],
             array[static_cast<typename Array::size_type>(j)]);
    }
    return array;
}

/// Picks an entry of a folder's listing by a random number; never the last one, and nothing from a
/// listing of fewer than two.
std::optional<QString> fallbackEntry(const QStringList &listing, std::uint32_t number);

/// Tells when the desktop changes next, in rounded-up hours or minutes.
/// @param folderShown the desktop itself takes its pictures from a folder.
QString rotateInfoText(const std::optional<QDateTime> &nextDesktopRotate, const QDateTime &now,
                       bool folderShown);

/// Keeping the desktop for an hour makes sense while it would change sooner.
bool keepButtonVisible(int rotateFrequency, bool scheduled);

} // namespace moravel
