// SPDX-License-Identifier: MIT
#include "mainwindow/FlippedClipView.h"

#include "mainwindow/Contrast.h"

#include <QGuiApplication>
#include <QPalette>

namespace moravel {

FlippedClipView::FlippedClipView(QWidget *parent) : QWidget(parent)
{
    setAutoFillBackground(true);
}

QPalette FlippedClipView::lightPalette()
{
    const QColor grey = backgroundColour();
    const QColor text(0x1f, 0x1f, 0x22);
    QPalette palette(grey);
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        palette.setColor(role, text);
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(0x66, 0x66, 0x6a));
    palette.setColor(QPalette::Window, grey);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Button, QColor(0xe9, 0xe9, 0xe9));
    const QPalette desktop = QGuiApplication::palette();
    const QColor highlight = desktop.color(QPalette::Highlight);
    palette.setColor(QPalette::Highlight, highlight);
    palette.setColor(QPalette::HighlightedText,
                     readableOn(highlight, desktop.color(QPalette::HighlightedText)));
    palette.setColor(QPalette::Link, readableOn(grey, desktop.color(QPalette::Link)));
    return palette;
}

} // namespace moravel
