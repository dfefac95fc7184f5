#!/usr/bin/env bash
# Opens the console on a simulated device in this terminal, after installing and building what is
# missing for that.
set -euo pipefail

help() {
    cat <<'END'
Usage: ./demo.sh [--state DIR] [--idle MS] [--help]

Opens the Dravikon console on a simulated truck controller, in this terminal. On
Debian 12 it first installs the packages that are missing for the build (with
sudo when you are not root) and builds the demo in build/release.

  --state DIR  keep the device's state in DIR and go on from there next time;
               without it the device starts afresh and is forgotten at the end
  --idle MS    end after MS milliseconds without a key (180000)

Keys in the menu
  Up, Down, PgUp, PgDn   move the selection
  Return                 "->" opens or closes, " *" changes a value,
                         " $" shows an interface
  q, Q                   end

Keys in a dialog
  Up, Down               choose from a list
  Left, Right            move the slider, or the cursor in a text
  Return                 write the value to the device
  Esc Esc                leave without a change

Keys on an interface screen
  PgUp, PgDn             previous, next interface
  any other key          fresh values
  Esc Esc                leave

The state
  DIR/state.json         all values of the device, written by its backend tool
  DIR/DBusController     the backend tool that the console runs; try
                         DIR/DBusController get_menu truck_setup
  DIR/calls.log          if you create it, one line for each run of the tool

Settings marked for the open seal cannot be changed before "Seal closed" under
"Electronic seal" is false. The device refuses what is beyond its own limits,
for instance a flow above 1200 l/min: the dialog then stays open.

The console writes Latin-1, as the terminals at the truck expect it. A UTF-8
terminal leaves out the umlauts that some of the device's texts contain.
END
}

for option in "$@"; do
    if [[ $option == --help ]]; then
        help
        exit 0
    fi
done

root=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
"$root/cmake/install-missing.sh" g++ cmake ninja-build qtbase5-dev qtscript5-dev rapidjson-dev
(
    cd "$root"
    cmake --preset release --log-level=WARNING
    cmake --build --preset release --target dravikon-demo dravikon-demo-tool
)
exec "$root/build/release/demo/dravikon-demo" "$@"
