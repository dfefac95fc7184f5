#!/usr/bin/env bash
# Opens the console on a simulated device in this terminal. Installs the packages that this needs
# and builds first.
set -euo pipefail

help() {
    cat <<'END'
Usage: ./demo.sh [--state DIR] [--idle MS] [--trace FILE] [--web-root DIR] [--help]

Opens the Dravikon console on a simulated truck controller, in this terminal. On
Debian 12 or 13 it first installs the packages that the build needs (with sudo when
you are not root), and builds the demo and dravikon-menu-check in build/release.

  --state DIR  keep the device's state in DIR and continue from there next time;
               without it each session starts with a fresh device
  --trace FILE
               write each run of the backend tool to FILE, a JSON object a line
  --idle MS    end after MS milliseconds without a key (default 180000)
  --web-root DIR
               preview the menu definition in DIR instead, on a device made from
               it; the other options of dravikon-preview are taken, too
  -h, --help   show this help

Keys in the menu
  Up, Down, PgUp, PgDn   move the selection
  Return                 open or close a screen "->", change a value "*",
                         show an interface "$"; nothing on "-" and "#"
  q, Q                   end (only here, not in a dialog); so does F2 on many
                         terminals, as its sequence ends with Q
  "+" marks the first line of an opened screen.

Keys in a dialog
  Up, Down               choose from a list
  Left, Right            move the slider, or the cursor in a text
  Backspace              erase the character before the cursor, at the start of
                         a text the first one
  Return                 write the value to the device
  Esc Esc                leave without a change

A text is green when it is accepted and red when it is not. Return on red closes
the dialog and writes nothing. "Enter new Value 10" means up to 10
characters; with 0 nothing can be entered. Press no other special keys: Delete,
End or a function key can leave characters in the text.

Keys on an interface screen
  PgUp, PgDn             previous, next interface
  any other key          fresh values
  Esc Esc                leave

Ctrl-C ends the session at any time. Values are read when a screen is opened.

A tour
  Lists, on and off      Parameters, Display and sound: Volume unit, Night mode
  A slider               Parameters, Display and sound: Brightness
  A text                 Parameters, Delivery tickets: Header line 1
  A number               Parameters, Limits: Flow in l/min; above 2500 it is red
  A refused value        the same with 1300: it is green, but the device takes no
                         more than 1200, so the dialog stays open; Esc Esc
  The seal               Electronic seal: set Seal closed to false; the settings
                         below, and many others, then have "*"
  A page that scrolls    Service, Event log: PgDn, PgUp
  Live values            Service, Diagnose, SPD interfaces: press any key
  A faulty module        Service, Diagnose, IO interfaces: PgDn
  "Not Available"        Service, Diagnose, IO interfaces: PgDn to 4/4
  An unknown code        Parameters, Compartments, Compartment 5: the product is
                         a code that the menu does not list, so none is shown

Some fields have "*" but cannot be changed. Those whose rule only browsers know
(Interfaces, Network: Address; Limits: Density) show "Enter new Value 0", others
are always red (Limits: Pressure code). Service, Function tests cannot be
written at all: the dialog stays open after Return, as after a refusal.

The state
  DIR/state.json         all values of the device, written by its backend tool
  DIR/DBusController     the backend tool that the console runs; try
                         DIR/DBusController get_menu truck_setup

Umlauts
The console reads and writes Latin-1, like the terminals used at the truck. In a
UTF-8 terminal demo.sh runs it under luit, which converts, if luit is installed;
otherwise umlauts are missing, and a typed one is stored as two characters.
END
}

fail() {
    echo "demo.sh: $1, see ./demo.sh --help" >&2
    exit 2
}

options=("$@")
while (($#)); do
    case $1 in
    -h | --help)
        help | ${PAGER:-pager}
        exit
        ;;
    --state) [[ ${2-} ]] || fail "--state needs a directory" ;;
    --idle) [[ ${2-} =~ ^[1-9][0-9]{0,8}$ ]] || fail "--idle needs a number of milliseconds" ;;
    --web-root | --trace | --tool | --compartments | --meters | --seal)
        [[ ${2-} ]] || fail "$1 needs a value"
        ;;
    *) fail "unknown option $1" ;;
    esac
    shift 2
done

root=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
"$root/cmake/install-missing.sh" g++ cmake ninja-build qtbase5-dev qtscript5-dev rapidjson-dev
(
    cd "$root"
    cmake --preset release --log-level=WARNING
    cmake --build --preset release --target dravikon-demo dravikon-menu-check
)

converter=()
if [[ -t 0 && -t 1 && -t 2 && $(locale charmap) == UTF-8 ]] && command -v luit >/dev/null; then
    converter=(luit -encoding "ISO 8859-1" --)
fi
exec "${converter[@]}" "$root/build/release/demo/dravikon-demo" "${options[@]}"
