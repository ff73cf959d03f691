#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# KDE Plasma on X, on two screens.
. "$(dirname "$0")/lab.sh"
display 2
. "$(dirname "$0")/plasma-shell.sh"
background windows kwin_x11
waitfor 60 window_manager
start_shell
"$@"
