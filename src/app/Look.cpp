// SPDX-License-Identifier: MIT
#include "app/Look.h"

#include "mainwindow/Spinner.h"

#include <QApplication>
#include <QPalette>

namespace moravel {

namespace {

bool isDark(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightness() < 128;
}

QPalette darkPalette()
{
    const QColor text(0xf0, 0xf0, 0xf2);
    QPalette palette(QColor(0x36, 0x36, 0x3a), QColor(0x2b, 0x2b, 0x2e));
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        palette.setColor(role, text);
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(0x96, 0x96, 0x9a));
    palette.setColor(QPalette::Base, QColor(0x1e, 0x1e, 0x21));
    palette.setColor(QPalette::AlternateBase, QColor(0x28, 0x28, 0x2b));
    palette.setColor(QPalette::PlaceholderText, QColor(0x9a, 0x9a, 0x9e));
    palette.setColor(QPalette::ToolTipBase, QColor(0x46, 0x46, 0x4a));
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::Highlight, QColor(0x2a, 0x66, 0xb4));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0x7a, 0xb4, 0xff));
    palette.setColor(QPalette::LinkVisited, QColor(0xb9, 0xa0, 0xf0));
    return palette;
}

} // namespace

void applyLook(const DesktopLook &look)
{
    static bool ours = false; // whether the dark palette is the one from here
    Spinner::setMotionAllowed(!look.reducesMotion);
    const bool wanted = look.dark.value_or(false);
    if (wanted && !isDark(QApplication::palette())) {
        QApplication::setPalette(darkPalette());
        ours = true;
    } else if (!wanted && ours) {
        QApplication::setPalette(QPalette());
        ours = false;
    }
}

} // namespace moravel
