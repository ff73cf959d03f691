#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# XFCE: settings, window manager and desktop on two screens.
. "$(dirname "$0")/lab.sh"
display 2
export XDG_CURRENT_DESKTOP=XFCE
bus
background settings xfsettingsd --no-daemon --disable-wm-check
background windows xfwm4 --compositor=off
waitfor 10 sh -c 'xprop -root _NET_SUPPORTING_WM_CHECK | grep -q "#"'
background desktop xfdesktop
waitfor 20 sh -c 'xprop -root XFCE_DESKTOP_WINDOW | grep -q "#"'
"$@"
