#!/bin/sh
# Takes the pictures in docs/screenshots from the built program, on a display of its
# own. With an argument the pictures go to that folder instead.
#
# TALLIX_BUILD   the build folder (build/release)
set -eu
cd "$(dirname "$0")/.."

build=$(realpath "${TALLIX_BUILD:-build/release}")
pictures=${1:-docs/screenshots}
mkdir -p "$pictures"
pictures=$(realpath "$pictures")
driver=$(realpath scripts/screenshots.py)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/home" "$work/temp"
for part in schema reference Reports "Company Docs"; do cp -r "data/$part" "$work/home"; done
# Nobody listens there: the pictures are the same with and without a network.
printf '[Web]\r\nManifest=HTTP://127.0.0.1:9/\r\n' >"$work/home/Site.ini"
export QT_LOGGING_RULES="*.info=false;*.debug=false"
export TALLIX_HOME="$work/home" TALLIX_REGISTRY="$work/settings" Temp="$work/temp"

cd "$work/home"
/usr/bin/python3 "$driver" first_run "$pictures" "$build/programs/reports_tool/Tallix_Reports"
"$build/programs/setup/Tallix_Setup" --demo 300000 --admin-password Larkfield7 >/dev/null
sed -i "s|sqlite:$work/home/|sqlite:|" "$TALLIX_REGISTRY/HKLM.reg" # an address that fits on its line
/usr/bin/python3 "$driver" session "$pictures" "$build/programs/reports_tool/Tallix_Reports"
/usr/bin/python3 "$driver" long_run "$pictures" "$build/programs/reports_tool/Tallix_Reports"
/usr/bin/python3 "$driver" statistics "$pictures" "$build/tests/show_form" Form18
/usr/bin/python3 "$driver" cost_map "$pictures" "$build/tests/show_form" Form19
