#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Budgie's window manager, which paints the picture, on two screens.
. "$(dirname "$0")/lab.sh"
display 2
export XDG_CURRENT_DESKTOP=Budgie:GNOME GSETTINGS_BACKEND=dconf LIBGL_ALWAYS_SOFTWARE=1
bus
system_bus
gsettings set org.gnome.desktop.interface enable-animations false
background shell budgie-wm --x11
waitfor 60 owner org.budgie_desktop.BudgieWM
waitfor 20 side_by_side

restart() {
  local before; before=$(owner org.budgie_desktop.BudgieWM)
  budgie-wm --x11 --replace >>"$LAB/shell.log" 2>&1 &
  waitfor 60 another_owner org.budgie_desktop.BudgieWM "$before"
  waitfor 20 side_by_side
}
export -f restart side_by_side waitfor owner another_owner
"$@"
