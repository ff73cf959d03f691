// SPDX-License-Identifier: MIT
#include "browser/BrowserModel.h"

#include "browser/ThumbnailQueue.h"

#include <algorithm>

namespace moravel {

BrowserModel::BrowserModel(const ThumbnailQueue &thumbnails, QObject *parent)
    : QAbstractListModel(parent), m_thumbnails(thumbnails)
{ }

const BrowserRow *BrowserModel::rowAt(int index) const
{
    const auto at = static_cast<std::size_t>(index);
    return at < m_rows.size() ? &m_rows.at(at) : nullptr;
}

MyImageObject BrowserModel::itemAtIndex(int index) const
{
    if (const BrowserRow *row = rowAt(index))
        return MyImageObject(row->file, row->caption);
    return m_added.at(static_cast<std::size_t>(index) - m_rows.size());
}

void BrowserModel::setRows(ShownRows rows)
{
    beginResetModel();
    m_rows = std::move(rows);
    m_added.clear();
    endResetModel();
}

void BrowserModel::remove(const QList<int> &ascending)
{
    beginResetModel();
    int index = 0;
    const auto isTaken = [&](const auto &) {
        return std::binary_search(ascending.begin(), ascending.end(), index++);
    };
    m_rows.rows.erase(std::remove_if(m_rows.rows.begin(), m_rows.rows.end(), isTaken),
                      m_rows.rows.end());
    m_added.erase(std::remove_if(m_added.begin(), m_added.end(), isTaken), m_added.end());
    endResetModel();
}

void BrowserModel::append(const std::vector<MyImageObject> &images)
{
    if (images.empty())
        return;
    const int first = numberOfItemsInImageBrowser();
    beginInsertRows({}, first, first + static_cast<int>(images.size()) - 1);
    m_added.insert(m_added.end(), images.begin(), images.end());
    endInsertRows();
}

int BrowserModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : numberOfItemsInImageBrowser();
}

QVariant BrowserModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const MyImageObject item = itemAtIndex(index.row());
    const auto thumbnail = [&] { return m_thumbnails.thumbnail(item.imageRepresentation()); };
    switch (role) {
    case Qt::DisplayRole:
        return item.imageTitle();
    case Qt::DecorationRole:
        return thumbnail() ? QVariant(thumbnail()->image) : QVariant();
    case FailedRole:
        return thumbnail() && thumbnail()->image.isNull();
    case Qt::ToolTipRole:
        return toolTip ? QVariant(toolTip(index.row())) : QVariant();
    case Qt::AccessibleTextRole:
        return accessibleText ? accessibleText(index.row()) : item.imageTitle();
    default:
        return {};
    }
}

} // namespace moravel
