// SPDX-License-Identifier: MIT
#pragma once

#include "mainwindow/AboutBox.h"

#include <QMenu>

#include <functional>

namespace moravel {

/// What the commands of the Help menu do.
struct HelpMenuPorts
{
    std::function<void()> showHome; ///< The home page of the service.
    std::function<void()> showNews;
    std::function<void()> releaseNotes;
    std::function<void()> bugReport;
    std::function<AboutText()> about; ///< What the about box says now.
};

/// Fills the Help menu of @p window, which owns the items.
void fillHelpMenu(QMenu &menu, QWidget &window, const HelpMenuPorts &ports);

} // namespace moravel
