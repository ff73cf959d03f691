#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# A desktop whose web browser and mail program only write down the address that they are given.
. "$(dirname "$0")/lab.sh"
display 1
bus
export OPENED=$lab/opened
# For all users: the test has a home of its own.
export XDG_DATA_DIRS=$lab/share:$XDG_DATA_DIRS XDG_CONFIG_DIRS=$lab/etc:$XDG_CONFIG_DIRS
mkdir -p "$lab/share/applications" "$lab/etc"
cat >"$lab/record" <<X
#!/bin/sh
printf '%s\n' "\$1" >>"$OPENED"
X
chmod +x "$lab/record"
cat >"$lab/share/applications/record.desktop" <<X
[Desktop Entry]
Type=Application
Name=Recorder
Exec=$lab/record %u
MimeType=x-scheme-handler/http;x-scheme-handler/https;x-scheme-handler/mailto;
X
cat >"$lab/etc/mimeapps.list" <<X
[Default Applications]
x-scheme-handler/http=record.desktop
x-scheme-handler/https=record.desktop
x-scheme-handler/mailto=record.desktop
X
# XFCE looks for programs of its own list.
mkdir -p "$lab/share/xfce4/helpers" "$lab/etc/xfce4"
for kind in WebBrowser MailReader; do
  cat >"$lab/share/xfce4/helpers/record-$kind.desktop" <<X
[Desktop Entry]
Type=X-XFCE-Helper
Version=1.0
Name=Recorder
X-XFCE-Category=$kind
X-XFCE-Binaries=record;
X-XFCE-Commands=$lab/record;
X-XFCE-CommandsWithParameter=$lab/record "%s";
X
  echo "$kind=record-$kind" >>"$lab/etc/xfce4/helpers.rc"
done
update-desktop-database "$lab/share/applications"
# Each desktop has an opener of its own behind xdg-open.
export KDE_SESSION_VERSION=5
for desktop in X-Generic GNOME XFCE KDE; do
  echo "== $desktop"
  : >"$OPENED"
  XDG_CURRENT_DESKTOP=$desktop "$@" || exit 1
done
