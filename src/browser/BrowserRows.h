// SPDX-License-Identifier: MIT
// The rows of the browser: which pictures of the records there are, in which order, and which of them pass
// the filters. No disk, no widgets; any thread.
#pragma once

#include "browser/CaptionIndex.h"

#include <QSet>
#include <QString>

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

namespace moravel {

/// A picture of the collection.
struct BrowserRow
{
    QString date; ///< As stored; sorts the rows.
    QString file; ///< Full path.
    QString caption; ///< In readable form.
    QString source; ///< Short name; long name in rows of the legacy captions.
    bool operator==(const BrowserRow &) const = default;
};

size_t qHash(const BrowserRow &row, size_t seed = 0);

/// All rows, newest first.
struct BrowserData
{
    std::vector<BrowserRow> rows;
};

/// What the rows are made of.
struct BrowserTexts
{
    QString legacy; ///< The legacy captions.
    std::string_view records; ///< The picture records, UTF-8.
    QString folder; ///< The picture folder, ending in "/".
    std::function<bool(const QString &extension)> isImageExtension;
};

/// Makes the rows of all records that name a picture, also of those that is not there: legacy ones first, each
/// in file order.
std::vector<BrowserRow> recordedRows(const BrowserTexts &texts);

/// Keeps the rows whose picture is among @p files (full paths), sorted by date as text, descending and stable.
BrowserData browserData(std::vector<BrowserRow> recorded, const QSet<QString> &files);

/// What the user wants to see.
struct BrowserFilter
{
    QString text; ///< Shorter than three characters does not filter.
    QString longSource; ///< Empty for all sources.
    QString shortSource;
};

/// Returns the captions of the rows, ready to be searched. Takes about as long as making the rows, and the
/// first screen does not need it.
CaptionIndex captionIndex(const BrowserData &data);

/// Tells whether the text is long enough to filter.
bool filtersCaptions(const BrowserFilter &filter);

/// Returns the positions of the rows that pass, ascending. @p captions may be empty if the text does not filter.
std::vector<int> filteredRows(const BrowserData &data, const CaptionIndex &captions,
                              const BrowserFilter &filter);

/// Some of the rows, as they are shown.
struct ShownRows
{
    std::shared_ptr<const BrowserData> data;
    std::vector<int> rows; ///< Positions in the data, ascending.

    std::size_t size() const { return rows.size(); }

    const BrowserRow &at(std::size_t index) const
    {
        return data->rows[static_cast<std::size_t>(rows[index])];
    }
};

bool operator==(const ShownRows &a, const ShownRows &b);

/// Returns where the rows shown at @p indexes before are shown now; -1 for those that are not.
std::vector<int> placesNow(const ShownRows &before, const std::vector<int> &indexes,
                           const ShownRows &now);

} // namespace moravel
