#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# A bare X screen with the bus of the assistive tools, as a screen reader finds it.
. "$(dirname "$0")/lab.sh"
. "$(dirname "$0")/bus.sh"
display 1
closed_bus
unset NO_AT_BRIDGE
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 QT_ACCESSIBILITY=1
background windows openbox
background speech "$(libexec at-spi-bus-launcher)" --launch-immediately
waitfor 10 owned org.a11y.Bus
waitfor 10 window_manager
"$@"
