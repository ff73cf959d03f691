#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# KDE Plasma with its Wayland compositor, without hardware, on the screens Virtual-0 and Virtual-1.
. "$(dirname "$0")/lab.sh"
. "$(dirname "$0")/plasma-shell.sh"
export XDG_SESSION_TYPE=wayland KWIN_SCREENSHOT_NO_PERMISSION_CHECKS=1
# Installed, it asks for a capability that a container may not have; a copy does not.
cp "$(command -v kwin_wayland)" "$lab/kwin_wayland"
background windows "$lab/kwin_wayland" --virtual --width 800 --height 600 --output-count 2 --socket lab \
  --no-lockscreen --no-global-shortcuts
waitfor 60 test -S "$XDG_RUNTIME_DIR/lab"
export WAYLAND_DISPLAY=lab QT_QPA_PLATFORM=wayland GDK_BACKEND=wayland
start_shell
"$@"
