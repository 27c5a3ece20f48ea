#!/bin/sh
# Compares the adapter's reading of menus with libatspi's blocking calls, on a display, session bus and accessibility
# bus of its own, for Kate (Qt) and Geany (GTK 3): bench/harvest_compare.sh [folder with harvest_compare] [runs]
set -eu

programs=$(realpath "${1:-build/bench}")
runs=${2:-20}

if [ -z "${HARVEST_COMPARE_INSIDE:-}" ]; then
    work=$(mktemp -d)
    mkdir -m 700 "$work/home" "$work/run"
    mkfifo "$work/display"
    Xvfb -displayfd 3 -noreset -screen 0 1440x900x24 3>"$work/display" >/dev/null 2>&1 &
    server=$!
    trap 'kill "$server" 2>/dev/null; wait "$server" 2>/dev/null || true; sleep 1; rm -rf "$work"' EXIT
    trap 'exit 1' INT TERM
    read -r number <"$work/display"
    env -u AT_SPI_BUS_ADDRESS -u XDG_CONFIG_HOME -u XDG_CACHE_HOME -u XDG_DATA_HOME -u WAYLAND_DISPLAY \
        HOME="$work/home" XDG_RUNTIME_DIR="$work/run" DISPLAY=":$number" LC_ALL=C.UTF-8 HARVEST_COMPARE_INSIDE=1 \
        dbus-run-session -- "$0" "$programs" "$runs" 2>"$work/errors" || {
        cat "$work/errors" >&2
        exit 1
    }
    exit
fi

children=
stop_children() {
    for child in $children; do kill "$child" 2>/dev/null || true; done
}
trap stop_children EXIT
trap 'exit 1' INT TERM

openbox >/dev/null 2>&1 &
children="$children $!"
dbus-send --session --print-reply --dest=org.a11y.Bus /org/a11y/bus org.freedesktop.DBus.Properties.Set \
    string:org.a11y.Status string:IsEnabled variant:boolean:true >/dev/null
# A Qt application does not register itself while the registry is not running yet.
address=$(dbus-send --session --print-reply=literal --dest=org.a11y.Bus /org/a11y/bus org.a11y.Bus.GetAddress)
dbus-send --bus="${address#"${address%%[! ]*}"}" --print-reply --dest=org.a11y.atspi.Registry \
    /org/a11y/atspi/registry org.a11y.atspi.Registry.GetRegisteredEvents >/dev/null

failed=0
text="$HOME/text.txt"
echo "A text" >"$text"

# compare <name> <command...>
compare() {
    name=$1
    shift
    "$@" >/dev/null 2>&1 &
    application=$!
    children="$children $application"
    # The search fails outright when a window goes away under it, as a splash screen does.
    tries=0
    until timeout 30 xdotool search --sync --onlyvisible --pid "$application" >/dev/null 2>&1; do
        tries=$((tries + 1))
        [ "$tries" -lt 5 ] || {
            echo "$name: no window" >&2
            failed=1
            return
        }
    done
    timeout 600 "$programs/harvest_compare" "$name" "$application" "$runs" || failed=1
    echo
    kill "$application" 2>/dev/null || true
}

echo "$(nproc) processors, load $(cut -d' ' -f1-3 /proc/loadavg)"
compare "Kate (Qt)" kate -n "$text"
compare "Geany (GTK 3)" geany -i "$text"
echo "load afterwards $(cut -d' ' -f1-3 /proc/loadavg)"
exit "$failed"
