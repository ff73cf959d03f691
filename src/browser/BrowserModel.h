// SPDX-License-Identifier: MIT
#pragma once

#include "browser/MyImageObject.h"

#include <QAbstractListModel>

#include <functional>
#include <vector>

namespace moravel {

class ThumbnailQueue;

/// The items that the image browser shows. Nothing that is asked of it touches the disk.
class BrowserModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role {
        FailedRole = Qt::UserRole ///< True when the file is known to be no picture.
    };

    explicit BrowserModel(const ThumbnailQueue &thumbnails, QObject *parent = nullptr);

    int numberOfItemsInImageBrowser() const { return static_cast<int>(m_images.size()); }

    const MyImageObject &itemAtIndex(int index) const
    {
        return m_images.at(static_cast<std::size_t>(index));
    }

    void setImages(std::vector<MyImageObject> images);
    void append(const std::vector<MyImageObject> &images);

    int rowCount(const QModelIndex &parent = {}) const override;
    /// Title; thumbnail, when it has arrived; and what toolTip and accessibleText say.
    QVariant data(const QModelIndex &index, int role) const override;

    std::function<QString(int index)> toolTip;
    std::function<QString(int index)> accessibleText;

private:
    const ThumbnailQueue &m_thumbnails;
    std::vector<MyImageObject> m_images;
};

} // namespace moravel
