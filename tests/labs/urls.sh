#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# A desktop whose web browser and mail program only write down the address that they are given.
. "$(dirname "$0")/lab.sh"
display 1
bus
export OPENED=$lab/opened
mkdir -p "$XDG_DATA_HOME/applications"
cat >"$lab/record" <<X
#!/bin/sh
printf '%s\n' "\$1" >>"$OPENED"
X
chmod +x "$lab/record"
cat >"$XDG_DATA_HOME/applications/record.desktop" <<X
[Desktop Entry]
Type=Application
Name=Recorder
Exec=$lab/record %u
MimeType=x-scheme-handler/http;x-scheme-handler/https;x-scheme-handler/mailto;
X
cat >"$XDG_CONFIG_HOME/mimeapps.list" <<X
[Default Applications]
x-scheme-handler/http=record.desktop
x-scheme-handler/https=record.desktop
x-scheme-handler/mailto=record.desktop
X
update-desktop-database "$XDG_DATA_HOME/applications"
# Each desktop has an opener of its own behind xdg-open.
export KDE_SESSION_VERSION=5
for desktop in X-Generic GNOME XFCE KDE; do
  echo "== $desktop"
  : >"$OPENED"
  XDG_CURRENT_DESKTOP=$desktop "$@" || exit 1
done
