// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace moravel {

/// The window onto the grid: coordinates run downwards from its upper edge, where a document that is
/// taller than it is anchored. Its grey is the same in light and dark surroundings.
class FlippedClipView : public QWidget
{
    Q_OBJECT

public:
    explicit FlippedClipView(QWidget *parent = nullptr);

    static QColor backgroundColour() { return QColor::fromRgbF(0.93F, 0.93F, 0.93F); }

    /// Colours that stay readable on that grey.
    static QPalette lightPalette();
};

} // namespace moravel
