#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# sway without hardware: outputs HEADLESS-1 and HEADLESS-2.
. "$(dirname "$0")/lab.sh"
bus
export WLR_BACKENDS=headless WLR_LIBINPUT_NO_DEVICES=1 WLR_RENDERER=pixman WLR_HEADLESS_OUTPUTS=2
export XDG_SESSION_TYPE=wayland XDG_CURRENT_DESKTOP=sway
cat >"$lab/sway.conf" <<X
xwayland disable
output HEADLESS-1 resolution 800x600 position 0,0
output HEADLESS-2 resolution 800x600 position 800,0
exec env >$lab/sway.env
X
# sway refuses the superuser: a name space with one user keeps the files' owner. Some containers have none.
as_user=()
if [ "$(id -u)" -eq 0 ]; then
  as_user=(unshare -U --map-user=1000 --map-group=1000)
  "${as_user[@]}" true 2>/dev/null || {
    as_user=(setpriv --reuid=nobody --regid=nogroup --clear-groups)
    chown -R nobody "$lab"
  }
fi
background sway "${as_user[@]}" sway -c "$lab/sway.conf"
waitfor 10 grep -q ^SWAYSOCK= "$lab/sway.env"
export $(grep -E '^(WAYLAND_DISPLAY|SWAYSOCK)=' "$lab/sway.env") QT_QPA_PLATFORM=wayland LAB_SHOT=grim
"$@"
