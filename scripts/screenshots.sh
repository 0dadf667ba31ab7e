#!/bin/sh
# Takes the pictures in docs/screenshots from the built program, on a display of its
# own (Xvfb). With an argument the pictures go to that folder instead.
#
# TALLIX_BUILD   the build folder (build/release)
set -eu
cd "$(dirname "$0")/.."

if [ "${INSIDE_XVFB:-}" != yes ]; then
    INSIDE_XVFB=yes exec xvfb-run -a -s "-screen 0 1280x900x24" "$0" "$@"
fi

pictures=${1:-docs/screenshots}
program=${TALLIX_BUILD:-build/release}/src/Tallix_Reports
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$pictures" "$work/home/Reports/Standard" "$work/home/Company Docs" "$work/settings"
export TALLIX_HOME="$work/home" TALLIX_REGISTRY="$work/settings" TALLIX_STEP_MS=1000
cat >"$work/settings/HKLM.reg" <<REG
[Software\\Quillmere Software\\Tallix]
"DBType"="1"
"DBIP"="sqlite:$work/home/tallix.db"
REG

# The root window is black, so that trimming it leaves the window alone.
picture() {
    import -window root "$work/root.png"
    convert "$work/root.png" -trim +repage "$pictures/$1.png"
}

"$program" &
splash=$!
sleep "${TALLIX_WAIT:-4.6}"
picture splash
wait "$splash"
