// SPDX-License-Identifier: MIT
#pragma once

#include "thumb/ThumbView.h"

class QMenu;
class QWidget;

namespace moravel {

/// Makes the context menu of a cell with the commands that can be given now; it deletes itself when it
/// closes. Returns null when there is no such command.
QMenu *makeCellMenu(ThumbView &view, QWidget *parent);

} // namespace moravel
