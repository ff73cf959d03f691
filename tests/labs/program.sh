#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# A bare X screen with a window manager and no tray, for the whole program. The service is not there.
. "$(dirname "$0")/lab.sh"
. "$(dirname "$0")/bus.sh"
display 1
closed_bus
background windows openbox
waitfor 10 sh -c 'xprop -root _NET_SUPPORTING_WM_CHECK | grep -q "#"'
"$@"
