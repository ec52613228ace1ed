#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# panel_pictures.sh FOLDER: puts pictures into FOLDER of what panels of Linux desktops make of the
# program's icon: the panel with the icon, the menu of the icon, and the screen after a left click on
# the icon while the window was hidden. To be looked at. Requires that build/dev is built with its
# database.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh
[ $# = 1 ] || fail "usage: $0 FOLDER"
program=$PWD/build/dev/bin/brevilexicon
[[ -x $program && -f build/dev/bin/Acronyms.dat ]] || fail "build the preset dev first: ./test"
mkdir -p "$1"
out=$(realpath "$1")
need_packages "${display_packages[@]}" "${wayland_packages[@]}" grim waybar xdotool xfce4-panel xfconf
configuration=$(mktemp -d)
trap 'rm -rf "$configuration"' EXIT
export program out XDG_DATA_DIRS=$PWD/build/dev/share:/usr/local/share:/usr/share

step "waybar, on Wayland"
cat >"$configuration/waybar.json" <<END
{"layer": "top", "height": 32, "modules-left": ["tray"], "tray": {"icon-size": 22}}
END
echo '* { font-size: 14px; }' >"$configuration/waybar.css"
BAR="waybar -c $configuration/waybar.json -s $configuration/waybar.css" \
    scripts/with_compositor /usr/bin/python3 - <<'END'
import os, subprocess, sys, time
sys.path.insert(0, 'tests/wayland')
from desktop import MAIN, Program, await_active, await_gone
from seat import LEFT, RIGHT, Seat

def picture(name):
    time.sleep(1)  # until all is drawn
    subprocess.run(['grim', f'{os.environ["out"]}/waybar-{name}.png'], check=True)

seat = Seat()
seat.move(500, 500)
program = Program(os.environ['program'])
await_active(MAIN)
picture('icon')
seat.move(13, 16)
seat.click(RIGHT)
picture('menu')
seat.move(84, 81)  # "Minimize Window"
seat.click(LEFT)
await_gone(MAIN)
seat.move(13, 16)
seat.click(LEFT)
await_active(MAIN)
picture('back')
program.process.terminate()
program.process.wait()
END

step "xfce4-panel, on X11"
mkdir -p "$configuration/xfconf"
cat >"$configuration/xfconf/xfce4-panel.xml" <<'END'
<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array">
    <value type="int" value="1"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="p=6;x=0;y=0"/>
      <property name="length" type="uint" value="100"/>
      <property name="position-locked" type="bool" value="true"/>
      <property name="size" type="uint" value="32"/>
      <property name="plugin-ids" type="array"><value type="int" value="1"/></property>
    </property>
  </property>
  <property name="plugins" type="empty">
    <property name="plugin-1" type="string" value="systray"/>
  </property>
</channel>
END
configuration=$configuration scripts/with_display bash -eu <<'END'
channels=$XDG_CONFIG_HOME/xfce4/xfconf/xfce-perchannel-xml
mkdir -p "$channels"
cp "$configuration/xfconf/xfce4-panel.xml" "$channels"
dbus-update-activation-environment XDG_CONFIG_HOME HOME DISPLAY
picture() { sleep 1; import -window root "$out/xfce-$1.png"; }
xfce4-panel --disable-wm-check >/dev/null 2>&1 &
panel=$!
sleep 3
"$program" & pid=$!
xdotool search --sync --onlyvisible --name '^Brevilexicon \(' >/dev/null
picture icon
xdotool mousemove 16 16 sleep 0.2 click 3
picture menu
xdotool key --delay 100 Down Down Down Return
sleep 1
xdotool mousemove 16 16 sleep 0.2 click 1
picture back
kill $pid $panel
END
echo "the pictures are in $out"
