#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# A bare X display with two screens and no desktop.
. "$(dirname "$0")/lab.sh"
display 2
bus
"$@"
