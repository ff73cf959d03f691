// SPDX-License-Identifier: MIT
#pragma once

#include "browser/BrowserRows.h"
#include "browser/MyImageObject.h"

#include <QAbstractListModel>

#include <functional>
#include <vector>

namespace moravel {

class ThumbnailQueue;

/// The items that the image browser shows: rows of the collection, then files that were dropped. Nothing that
/// is asked of it touches the disk.
class BrowserModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role {
        FailedRole = Qt::UserRole ///< True when the file is known to be no picture.
    };

    explicit BrowserModel(const ThumbnailQueue &thumbnails, QObject *parent = nullptr);

    int numberOfItemsInImageBrowser() const
    {
        return static_cast<int>(m_rows.size() + m_added.size());
    }

    /// Made when asked for: a hundred thousand at every keystroke would take longer than the search.
    MyImageObject itemAtIndex(int index) const;

    /// Returns the row of an item, null for a file that was dropped.
    const BrowserRow *rowAt(int index) const;

    const ShownRows &rows() const { return m_rows; }

    /// Shows rows in place of all items.
    void setRows(ShownRows rows);

    /// Puts rows that say the same in the place of those that are shown.
    void renewRows(ShownRows rows) { m_rows = std::move(rows); }

    void append(const std::vector<MyImageObject> &images);
    void remove(const QList<int> &ascending);

    int rowCount(const QModelIndex &parent = {}) const override;
    /// Title; thumbnail, when it has arrived; and what toolTip and accessibleText say.
    QVariant data(const QModelIndex &index, int role) const override;

    std::function<QString(int index)> toolTip;
    std::function<QString(int index)> accessibleText;

private:
    const ThumbnailQueue &m_thumbnails;
    ShownRows m_rows;
    std::vector<MyImageObject> m_added;
};

} // namespace moravel
