# SPDX-License-Identifier: Apache-2.0
# shellcheck shell=bash
# The names of run's folders come from run; a place is two words; what stands behind || ends the run.
# shellcheck disable=SC2154,SC2086,SC2015
# Sourced by run: what a learner does with the program and its packages.

plays=0
scene() { echo "-- $1"; plays=$((plays + 1)); }
fails() { echo "$1"; shot failed; exit 1; }
# expect NUMBER OPERATOR NUMBER WHAT
expect() { test "$1" "$2" "$3" || fails "$4: $1, not $2 $3 in a thousand pixels"; }

# The places that are looked at and clicked, on the bench and in the strip.
bench_left=430x710+0+85
cable_plug="58 122"
scr_row=250x18+446+115
hints=500x400+620+500
settings_label="700 40"
navigator_label="1225 40"
close_box="1272 9"
# In the windows of their own, counted from their corners.
scr_value="76 31"
hint_box="39 87"
save_button="94 423"
close_settings="814 423"

# start COMMAND...: the program, until its last window is there and the start panel has gone.
start() {
  "$@" >"$work/program.log" 2>&1 &
  program=$!
  await "VRB-TS"
  await "Register Window"
  sleep 6
}
# Ends the program as a learner does.
quit() {
  click $close_box
  await "VRBTS終了確認"
  key Return
  for _ in $(seq 200); do kill -0 "$program" 2>/dev/null || break; sleep 0.05; done
  kill -0 "$program" 2>/dev/null && fails "The program doesn't end"
  wait "$program" || fails "The program ended with $?"
}
# The hint window is no longer to open at the start.
save_settings() {
  click $settings_label
  await "システムデフォルト設定"
  click_in "システムデフォルト設定" $hint_box
  click_in "システムデフォルト設定" $save_button
  click_in "システムデフォルト設定" $close_settings
  await_none "システムデフォルト設定"
}
# no_hints NAME BEFORE: the hint window, which lies inside the main one, is not there any more.
no_hints() { expect "$(differ "$1" "$2" $hints)" -gt 500 "$1: the hint window gone"; }
saved() { [ -f "$1" ] && grep -q '^OPENWINDOW2=0' "$1" || fails "Nothing was saved in ${1:-the folder of the user}"; }

# play NAME SETTINGS COMMAND...: a whole lesson.
play() {
  local name=$1 settings=$2
  shift 2
  start "$@"
  shot "$name-1-started"
  click $cable_plug
  sleep 1
  shot "$name-2-cable"
  click $cable_plug
  click_in "Register Window" $scr_value --repeat 2 --delay 60
  await "Register Write"
  keys 0002
  key Return
  await_none "Register Write"
  shot "$name-3-register"
  save_settings
  saved "$settings"
  double_click $navigator_label
  await "Navigator List"
  key Return
  await "Navigation"
  sleep 1
  shot "$name-4-tour"
  quit
  start "$@"
  shot "$name-5-again"
  no_hints "$name-5-again" "$name-1-started"
  quit
}

# The moments of NAME beside those of this machine's program.
compare_with_here() {
  expect "$(differ "$1-1-started" "$1-2-cable" 64x250+0+85)" -gt 20 "$1: a pulled cable changes the picture"
  expect "$(differ "$1-1-started" "$1-3-register" $scr_row)" -gt 5 "$1: a register written changes its row"
  expect "$(differ "$1-1-started" here-1-started $bench_left)" -lt 20 "$1: the bench, unlike here"
  expect "$(differ "$1-2-cable" here-2-cable 64x250+0+85)" -lt 20 "$1: the pulled cable, unlike here"
}

# start_time COMMAND...: milliseconds until the main window shows its tool windows, the median of five.
start_time() {
  local times=() begin
  for _ in 1 2 3 4 5; do
    begin=$(date +%s%3N)
    "$@" >/dev/null 2>&1 &
    program=$!
    until seen "Register Window"; do sleep 0.01; done
    times+=($(($(date +%s%3N) - begin)))
    sleep 5
    quit
  done
  printf '%s\n' "${times[@]}" | sort -n | sed -n 3p
}

roaming() { find "$WINEPREFIX/drive_c/users" -path '*/AppData/Roaming/VRB-TS/VRB_TS2.INI'; }
read_only() {
  if [ "$(id -u)" -eq 0 ]; then mount --bind "$1" "$1" && mount -o remount,ro,bind "$1"; else chmod -R a-w "$1"; fi
}

play_everything() {
  local packages=build/packages-windows here=$work/here portable="$work/実習 ベンチ/第1室" setup installed menu
  scene "the program for this machine, for the pictures beside"
  cp -r build/release/bin "$here"
  play here "$here/VRB_TS2.INI" "$here/vrb-ts"
  frame=(4 19)

  scene "the portable folder under a Japanese name"
  mkdir -p "$portable"
  unzip -q "$packages"/*.zip -d "$portable"
  portable=$(echo "$portable"/*)
  play windows "$portable/VRB_TS2.INI" on_wine "$portable/vrb-ts.exe"
  compare_with_here windows
  [ -z "$(roaming)" ] || fails "The portable program wrote into the user's folder"

  scene "from a folder that can't be written"
  unzip -q "$packages"/*.zip -d "$work/locked"
  portable=$(echo "$work/locked"/*)
  wineserver -k || true  # it opens the files, and is to see the folder as it is now
  wineserver -w
  read_only "$portable"
  start on_wine "$portable/vrb-ts.exe"
  save_settings
  saved "$(roaming)"
  quit
  rm "$(roaming)"

  scene "installed, used, installed again, removed"
  setup=$(echo "$packages"/*-setup.exe)
  on_wine "$setup" /S
  installed=$(find "$WINEPREFIX/drive_c/users" -path '*/Programs/VRB-TS' -type d)
  menu=$(find "$WINEPREFIX/drive_c/users" -name VRB-TS.lnk)
  [ -n "$installed" ] && [ -n "$menu" ] || fails "Nothing was installed"
  diff -r --exclude=Uninstall.exe "$portable" "$installed" || fails "The installer has other files than the folder"
  start on_wine start /wait /unix "$menu"
  shot windows-6-installed
  save_settings
  saved "$(roaming)"
  quit
  on_wine "$setup" /S
  start on_wine start /wait /unix "$menu"
  shot windows-7-installed-anew
  no_hints windows-7-installed-anew windows-6-installed
  quit
  on_wine "$installed/Uninstall.exe" /S
  for _ in $(seq 200); do [ -e "$installed" ] || break; sleep 0.1; done
  [ ! -e "$installed" ] && [ ! -e "$menu" ] || fails "Something was not removed: $(ls -R "$installed")"
  [ -s "$(roaming)" ] || fails "The learner's settings are gone"

  local there
  frame=(0 0)
  here=$(start_time "$here/vrb-ts")
  there=$(start_time on_wine "$work/実習 ベンチ/第1室"/*/vrb-ts.exe)
  echo "Start until the register window shows: here $here ms, under Wine $there ms: $(awk -v a="$there" -v b="$here" 'BEGIN { printf "%.1f", a / b }') times"
}
