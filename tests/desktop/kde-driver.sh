#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# A person at the KDE Plasma desktop of tests/desktop/kde-session.sh (verbs: the top of
# tests/platform/desktop-checks.sh); input, screenshots and windows by $KDE_DESKTOP_DRIVER.
set -euo pipefail
call() { dbus-send --session --print-reply=literal --dest="$1" "$2" "$3" "${@:4}"; }
case $1 in
# The paste target is the desktop's colour: it fills the screen.
background) call org.vantle.PasteTarget / org.vantle.PasteTarget.SetColor "string:$2" >/dev/null ;;
# No Plasma panel in this session: no tray icon is drawn.
tray-icons) ;;
# KWin's picker is on screen from the portal's call to org.kde.kwin.ColorPicker until its answer
# (the session logs both with dbus-monitor).
picker-shown)
    awk '/^method call.*member=pick$/ { match($0, /sender=[^ ]*/); who = substr($0, RSTART + 7, RLENGTH - 7)
             match($0, / serial=[0-9]*/); open = who " " substr($0, RSTART + 8, RLENGTH - 8) }
         /^(method return|error)/ { match($0, /destination=[^ ]*/); to = substr($0, RSTART + 12, RLENGTH - 12)
             match($0, /reply_serial=[0-9]*/); if (to " " substr($0, RSTART + 13, RLENGTH - 13) == open) open = "" }
         END { exit open == "" }' "$XDG_RUNTIME_DIR/logs/pickers.log" ;;
# kglobalaccel keeps a portal session's shortcuts as a component; it spells Alt+Shift+C as the
# Qt key code 0x0A000043.
shortcut-bound)
    code=$(awk -v combo="${2,,}" 'BEGIN { n = split(combo, keys, "+"); split("shift ctrl alt", mods, " ")
        for (i = 1; i < n; i++) for (m = 1; m <= 3; m++) if (keys[i] == mods[m]) code += 2 ^ (24 + m)
        print code + index("abcdefghijklmnopqrstuvwxyz", keys[n]) + 64 }')
    for component in $(call org.kde.kglobalaccel /kglobalaccel org.kde.KGlobalAccel.allComponents); do
        call org.kde.kglobalaccel "$component" org.kde.kglobalaccel.Component.allShortcutInfos | grep -qw "$code" && exit 0
    done
    exit 1 ;;
*) exec "${KDE_DESKTOP_DRIVER:?}" "$@" ;;
esac
