// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QIcon>
#include <QPalette>
#include <QPixmap>

#include <functional>

namespace moravel {

/// The look of the program, lent by the main window's side. Names are those of its line icons.
struct BrowserLook
{
    std::function<QIcon(const QString &name)> icon;
    std::function<QPixmap(const QString &name, int points, const QColor &colour, qreal scale)>
        pixmap;
    std::function<QPalette()> lightPalette; ///< Readable on the light grey.
};

} // namespace moravel
