#!/usr/bin/env bash
# A screen of its own with one program on it, and keys, mouse and pictures as a person has them: sourced by
# the scripts that use the real window. They wait for what can be seen, never for a time alone; what does
# not come ends the script and leaves a picture of the screen. Nothing outside the folder of the screen is
# written, settings and caches included.

# Seconds after which something that was waited for is missing.
patience=${KOV_PATIENCE:-120}
screen_folder=$(mktemp -d)
screen_pid=
program_pid=
trap leave_screen EXIT

leave_screen() {
  local pid
  for pid in $program_pid $screen_pid; do
    kill "$pid" 2>/dev/null || true
    wait "$pid" 2>/dev/null || true
  done
  rm -rf "$screen_folder"
}

# give_up WHAT: a last picture helps to see what was there instead.
give_up() {
  local picture=${TMPDIR:-/tmp}/kov-window-$$.png
  printf '%s: %s\n' "$(basename "$0")" "$1" >&2
  if [[ -n ${DISPLAY-} ]] && import -window root "$picture" 2>/dev/null; then
    printf 'The screen then: %s\n' "$picture" >&2
  fi
  cat "$screen_folder/program.err" >&2 2>/dev/null || true
  exit 1
}

# until_true WHAT COMMAND...
until_true() {
  local what=$1 deadline=$((SECONDS + patience))
  shift
  until "$@"; do
    ((SECONDS < deadline)) || give_up "waited in vain: $what"
    sleep 0.05
  done
}

screen_has_number() {
  local number
  read -r number <"$screen_folder/number" && export DISPLAY=:$number
}

# start_screen WIDTHxHEIGHT
start_screen() {
  : >"$screen_folder/number"
  Xvfb -displayfd 3 -screen 0 "$1x24" -dpi 96 -nolisten tcp 3>"$screen_folder/number" 2>"$screen_folder/screen.err" &
  screen_pid=$!
  until_true 'a screen' screen_has_number
  export HOME=$screen_folder/home XDG_RUNTIME_DIR=$screen_folder/run
  export XDG_CONFIG_HOME=$HOME/.config XDG_CACHE_HOME=$HOME/.cache XDG_DATA_HOME=$HOME/.local/share
  unset XDG_CURRENT_DESKTOP KDE_SESSION_VERSION QT_QPA_PLATFORM QT_QPA_PLATFORMTHEME QT_STYLE_OVERRIDE WAYLAND_DISPLAY
  mkdir -p "$XDG_CONFIG_HOME"
  mkdir -m 700 "$XDG_RUNTIME_DIR"
}

stop_screen() {
  kill "$screen_pid"
  wait "$screen_pid" || true
  screen_pid=
}

# start_program PROGRAM ARGUMENT...: returns when its main window can be seen, whose id is main then.
start_program() {
  "$@" >"$screen_folder/program.out" 2>"$screen_folder/program.err" &
  program_pid=$!
  wait_for_window '(^| - )kov( |$)'
  main=$window
}

# The exit status of the program, which has to end by itself.
program_ends() {
  local status=0
  until_true 'the end of the program' program_has_ended
  wait "$program_pid" || status=$?
  program_pid=
  return "$status"
}

# A process that has ended and is not waited for yet has no command line.
program_has_ended() {
  [[ -z $(tr -d '\0' 2>/dev/null <"/proc/$program_pid/cmdline") ]]
}

stop_program() {
  kill "$program_pid"
  wait "$program_pid" || true
  program_pid=
}

# is_shown TITLE: an extended regular expression; sets window.
is_shown() {
  window=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | head -n 1)
  [[ -n $window ]]
}

is_gone() {
  ! xdotool search --onlyvisible --name "$1" >"$screen_folder/found" 2>/dev/null
}

# wait_for_window TITLE: sets window to its id.
wait_for_window() {
  until_true "a window $1" is_shown "$1"
}

has_title() {
  [[ $(xdotool getwindowname "$main") =~ $1 ]]
}

# wait_for_title PATTERN: of the main window.
wait_for_title() {
  until_true "the title $1, not $(xdotool getwindowname "$main")" has_title "$1"
}

# There is no window manager that would give the keys to a window.
has_keys() {
  xdotool windowfocus "$1" 2>/dev/null || return 1
  [[ $(xdotool getwindowfocus -f 2>/dev/null) == "$1" ]]
}

give_keys() {
  until_true "window $1 has the keys" has_keys "$1"
}

# press KEY...: in the main window.
press() {
  give_keys "$main"
  xdotool key --delay 30 "$@"
}

# type_text TEXT: in the main window.
type_text() {
  give_keys "$main"
  xdotool type --delay 30 "$1"
}

# answer TITLE TEXT: types into the input dialog of this title, in place of what is preset there.
answer() {
  wait_for_window "$1"
  give_keys "$window"
  xdotool type --delay 30 "$2"
  xdotool key --delay 30 Return
  until_true "dialog $1 is closed" is_gone "$1"
}

# click X Y [BUTTON]: in the main window.
click() {
  xdotool mousemove --window "$main" "$1" "$2" click "${3:-1}"
}

# picture FILE [GEOMETRY]: of the screen, or of a part of it.
picture() {
  import -window root ${2:+-crop "$2" +repage} "$1"
}

# What tells two pictures apart.
picture_hash() {
  import -window root ${1:+-crop "$1" +repage} "$screen_folder/now.png"
  identify -format '%#' "$screen_folder/now.png"
}

differs_from() {
  [[ $(picture_hash "$2") != "$1" ]]
}
