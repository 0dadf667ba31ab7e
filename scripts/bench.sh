#!/bin/bash
# Measures the program's long jobs against the bare database clients and prints a table.
#
#   scripts/bench.sh [CALLS] [ENGINE]...     1000000 calls on sqlite, mariadb and postgres
#   scripts/bench.sh 100000                  the gate: a few minutes, with the same limits
#
# Builds the release preset, starts throw-away servers on loopback and lays down the same
# seeded calls on each engine. A job over its limit is measured again, twice at most. Ends with
# status 1 when it stays over its limit.
set -euo pipefail
cd "$(dirname "$0")/.."

calls=${1:-1000000}
shift || true
engines=("$@")
[ ${#engines[@]} -gt 0 ] || engines=(sqlite mariadb postgres)

scripts/deps.sh
cmake --preset release >/dev/null
cmake --build --preset release --target tallix_bench >/dev/null

work=$(mktemp -d "${TMPDIR:-/tmp}/tallix-bench-XXXXXX")
chmod 0755 "$work"
stop() {
  [ ! -d "$work/servers" ] || scripts/servers.sh stop "$work/servers" || true
  rm -rf "$work"
}
trap stop EXIT

if [[ " ${engines[*]} " =~ mariadb|postgres ]]; then
  scripts/servers.sh start "$work/servers"
  # shellcheck disable=SC1091
  . "$work/servers/env"
fi

arguments=()
for engine in "${engines[@]}"; do
  case $engine in
    sqlite) arguments+=(sqlite 1 "sqlite:$work/tallix.db" "" "") ;;
    mariadb) arguments+=(mariadb 1 "$MARIADB_ADDRESS" "$SERVER_USER" "$SERVER_PASSWORD") ;;
    postgres) arguments+=(postgres 3 "$POSTGRES_ADDRESS" "$SERVER_USER" "$SERVER_PASSWORD") ;;
    *) echo "bench.sh: unknown engine $engine" >&2; exit 2 ;;
  esac
done
QT_QPA_PLATFORM=offscreen build/release/bench/tallix_bench "$work" "$calls" "${arguments[@]}"
