// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QWidget>

namespace moravel::testing {

/// A painted landscape.
QImage picture(QSize size, int hue);

/// Saves what @p window shows, a little later, as @p name.png.
void save(QWidget &window, const QString &name);

/// Saves the states of the large picture window.
void shootLargePic(const QString &prefix);

} // namespace moravel::testing
