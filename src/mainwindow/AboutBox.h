// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QStringList>
#include <QWidget>

namespace moravel {

/// What the about box says beyond its fixed words.
struct AboutText
{
    QIcon icon;
    QString version;
    QString service; ///< Address of the service.
    QStringList sources; ///< Long names of the sources, to whom the pictures belong.
};

/// Opens the about box of @p window, or brings the open one to the front.
void showAbout(QWidget *window, const AboutText &text);

} // namespace moravel
