// SPDX-License-Identifier: MIT
#pragma once

#include "browser/BrowserLook.h"

#include <QAbstractItemDelegate>
#include <QFont>

namespace moravel {

/// Paints an item of the image browser: the picture in its frame, the title in one line below it.
class ImageDelegate : public QAbstractItemDelegate
{
    Q_OBJECT

public:
    explicit ImageDelegate(const BrowserLook &look, QObject *parent = nullptr);

    void setCellTitleFont(const QFont &font) { m_font = font; }

    int titleHeight() const;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    void paintTitle(QPainter *painter, const QStyleOptionViewItem &option,
                    const QString &title) const;
    void paintMissing(QPainter *painter, const QRect &frame, const QColor &colour,
                      bool failed) const;

    BrowserLook m_look;
    QFont m_font;
};

} // namespace moravel
