#!/bin/sh
# Installs what is missing, builds, installs into dist/, lays down the embedded
# database with demonstration calls on the first run, and opens the Reports Tool. With
# no display it runs one scheduled report and shows the beginning of its file.
#
# TALLIX_DEMO_CALLS   how many calls the first run makes up (5000)
set -eu
cd "$(dirname "$0")/.."

dist=$PWD/dist
home=$dist/Tallix/ReportsTool
export TALLIX_REGISTRY="${TALLIX_REGISTRY:-$dist/settings}"

build_and_install() {
    scripts/deps.sh
    cmake --preset release --log-level=NOTICE
    cmake --build --preset release --parallel "$(nproc)" --target Tallix_Reports Tallix_Setup
    cmake --install build/release --prefix "$dist" >/dev/null
}

set_up() {
    [ -e "$home/tallix.db" ] && return
    mkdir -p "$TALLIX_REGISTRY"
    # A set-up that was broken off must not leave half of a database.
    "$home/Tallix_Setup" --demo "${TALLIX_DEMO_CALLS:-5000}" || {
        rm -f "$home/tallix.db" "$home/tallix.db-wal" "$home/tallix.db-shm"
        exit 1
    }
}

write_schedule() {
    cat >"$1" <<SSR
;Tallix - Scheduled Report
;
[General]
Report=Standard\\$2
User=Administrator
Output=File
OutputLocation=$3\\
Account=
Duration=
Date=
Extension=
Site=ALL
TimeS=
TimeF=
SSR
}

run_one_report() {
    report="STD_All Calls.SRT"
    output=$dist/Output
    schedule="$home/Reports/Scheduled/Demonstration.SSR"
    mkdir -p "$output"
    rm -f "$output"/*.csv # a file of the same day would be kept, and this run's lost
    write_schedule "$schedule" "$report" "$output"
    echo "No display: running the scheduled report \"$report\"."
    "$home/Tallix_Reports" "$schedule"
    for file in "$output"/*.csv; do
        [ -e "$file" ] || { echo "The report left no file in $output." >&2; exit 1; }
        echo "The report is in $file. It begins:"
        head -n 12 "$file" | iconv -f WINDOWS-1252 -t UTF-8
    done
}

build_and_install
set_up
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec "$home/Tallix_Reports"
fi
run_one_report
