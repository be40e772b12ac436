# SPDX-License-Identifier: Apache-2.0
# shellcheck shell=bash
# Sourced by ./run, ./test and ./package: steps whose many lines go into a log, which is shown where one fails.
#
#     configure PRESET [OPTION...]
#     build PRESET [OPTION...]
#     logged NAME COMMAND...         the log is build/log/NAME.log

logs=build/log

# The last lines of a log, where the reason mostly stands.
show_log() {
  echo "... the end of $1:" >&2
  tail -n 60 "$1" >&2
}

logged() {
  local log=$logs/$1.log
  shift
  mkdir -p "$logs"
  "$@" >"$log" 2>&1 && return 0
  show_log "$log"
  return 1
}

configure() {
  local preset=$1
  shift
  logged "configure-$preset" cmake --preset "$preset" "$@" && return 0
  hint_packages
  return 1
}

# On a terminal ninja shows how far it is, in one line that it writes over.
build() {
  local preset=$1
  shift
  if [ -t 1 ]; then
    cmake --build --preset "$preset" "$@"
  else
    logged "build-$preset" cmake --build --preset "$preset" "$@"
  fi
}
