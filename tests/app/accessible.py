#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Walks through the program as a screen reader does. Prints the windows that it has read, and on standard
error each control that says nothing of use, with status 1."""
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402

R, S = Atspi.Role, Atspi.StateType
SPEAKS = {R.PUSH_BUTTON, R.CHECK_BOX, R.RADIO_BUTTON, R.TOGGLE_BUTTON, R.COMBO_BOX, R.SLIDER, R.SPIN_BUTTON,
          R.MENU_ITEM, R.CHECK_MENU_ITEM, R.MENU, R.LIST_ITEM, R.IMAGE, R.ANIMATION}
USELESS = {R.INVALID, R.UNKNOWN, R.FILLER, R.PANEL}
MOST = 400  # of the children of one object


def program(name):
    for _ in range(100):
        desktop = Atspi.get_desktop(0)
        for i in range(desktop.get_child_count()):
            one = desktop.get_child_at_index(i)
            if one and one.get_name() == name:
                return one
        time.sleep(0.1)
    sys.exit("no such program: " + name)


def walk(node, path, faults, counts):
    role, states = node.get_role(), node.get_state_set()
    shown = states.contains(S.SHOWING)
    name = (node.get_name() or "").strip()
    path = f"{path}/{node.get_role_name()} {name[:30]}"
    focusable = states.contains(S.FOCUSABLE) and shown
    if not name and (shown and role in SPEAKS or focusable and role in USELESS):
        faults.append(path)
    if focusable and role in USELESS:
        faults.append("role of " + path)
    counts[role] = counts.get(role, 0) + 1
    for i in range(min(node.get_child_count(), MOST)):
        if child := node.get_child_at_index(i):
            walk(child, path, faults, counts)


faults = []
app = program(sys.argv[1])
for i in range(app.get_child_count()):
    counts = {}
    window = app.get_child_at_index(i)
    walk(window, "", faults, counts)
    print(window.get_name(), sum(counts.values()), counts.get(R.LIST_ITEM, 0), sep="\t")
print("\n".join(faults), file=sys.stderr)
sys.exit(bool(faults))
