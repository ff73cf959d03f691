// SPDX-License-Identifier: MIT
#include "mainwindow/FlippedClipView.h"

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
        palette.setColor(QPalette::Disabled, role, QColor(0x8a, 0x8a, 0x8e));
    palette.setColor(QPalette::Window, grey);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Button, QColor(0xe9, 0xe9, 0xe9));
    for (const auto role : {QPalette::Highlight, QPalette::HighlightedText, QPalette::Link})
        palette.setColor(role, QGuiApplication::palette().color(role));
    return palette;
}

} // namespace moravel
