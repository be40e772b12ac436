# SPDX-License-Identifier: Apache-2.0
# shellcheck shell=bash
# The names of run's folders come from run.
# shellcheck disable=SC2154
# Sourced by run: a virtual screen with a window manager, and the hands and eyes of whoever sits before it. Places are pixels of
# a screen of 1280 x 1024.

screen_pids=()
screen_up() {
  exec 8<>"$work/display"
  Xvfb -displayfd 8 -screen 0 1280x1024x24 -nolisten tcp >"$work/xvfb.log" 2>&1 &
  screen_pids+=($!)
  for _ in $(seq 100); do [ -s "$work/display" ] && break; sleep 0.1; done
  DISPLAY=:$(tail -n 1 "$work/display")
  export DISPLAY
  openbox >"$work/openbox.log" 2>&1 &
  screen_pids+=($!)
  sleep 1
}
screen_down() { [ ${#screen_pids[@]} -eq 0 ] || kill "${screen_pids[@]}" 2>/dev/null || true; }

seen() { xdotool search --onlyvisible --name "^$1\$" >/dev/null 2>&1; }
# await TITLE: until a window with this title shows. await_none TITLE: until none does.
await() {
  for _ in $(seq 600); do if seen "$1"; then return; fi; sleep 0.05; done
  shot failed
  echo "No window \"$1\" came; the screen is in $pictures/failed.png"
  exit 1
}
await_none() {
  for _ in $(seq 600); do if ! seen "$1"; then return; fi; sleep 0.05; done
  shot failed
  echo "The window \"$1\" stays; the screen is in $pictures/failed.png"
  exit 1
}
click() { xdotool mousemove "$1" "$2"; sleep 0.2; xdotool click 1; sleep 0.5; }
double_click() { xdotool mousemove "$1" "$2"; sleep 0.2; xdotool click --repeat 2 --delay 60 1; sleep 0.5; }
# click_in TITLE X Y [OPTION...]: counted from the corner of the window's inside. Wine draws the frames of dialogs itself, so they
# belong to the window: $frame is how wide and high they are.
frame=(0 0)
click_in() {
  xdotool mousemove --window "$(xdotool search --onlyvisible --name "^$1\$" | head -n 1)" $(($2 + frame[0])) $(($3 + frame[1]))
  sleep 0.2
  xdotool click "${@:4}" 1
  sleep 0.5
}
keys() { xdotool type --delay 60 "$1"; sleep 0.3; }
key() { xdotool key "$1"; sleep 0.5; }
shot() { import -silent -window root "$pictures/$1.png"; }

# How many pixels in a thousand differ in a part of two pictures: differ NAME NAME WIDTHxHEIGHT+X+Y
differ() {
  local size=${3%%+*} count
  count=$(compare -metric AE -fuzz 15% -extract "$3" "$pictures/$1.png" "$pictures/$2.png" null: 2>&1 || true)
  awk -v count="$count" -v all="$((${size%x*} * ${size#*x}))" 'BEGIN { printf "%d", 1000 * count / all }'
}
