// SPDX-License-Identifier: MIT
#include "browser/BrowserModel.h"

#include "browser/ThumbnailQueue.h"

namespace moravel {

BrowserModel::BrowserModel(const ThumbnailQueue &thumbnails, QObject *parent)
    : QAbstractListModel(parent), m_thumbnails(thumbnails)
{ }

void BrowserModel::setImages(std::vector<MyImageObject> images)
{
    beginResetModel();
    m_images = std::move(images);
    endResetModel();
}

void BrowserModel::append(const std::vector<MyImageObject> &images)
{
    if (images.empty())
        return;
    const int first = numberOfItemsInImageBrowser();
    beginInsertRows({}, first, first + static_cast<int>(images.size()) - 1);
    m_images.insert(m_images.end(), images.begin(), images.end());
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
    const MyImageObject &item = itemAtIndex(index.row());
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
