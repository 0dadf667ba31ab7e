#!/bin/bash
# Runs the gates that a change has to pass, the quick ones first, and stops at the first
# failure. A gate is quiet unless it fails; its output is kept in build/gates/GATE.log.
#
#   scripts/gates.sh [GATE]...     all of them without an argument
#
# Gates: format, shell, clazy, tests, bench, sanitizers, tidy.
set -euo pipefail
cd "$(dirname "$0")/.."

readonly JOBS=${TALLIX_JOBS:-$(nproc)}
readonly LOGS=build/gates
readonly GATES=(format shell clazy tests bench sanitizers tidy)

sources() {
  git ls-files -- '*.cpp' '*.h'
}

# clang-format leaves no file different.
gate_format() {
  sources | xargs clang-format --dry-run -Werror
}

# No finding of shellcheck in the scripts.
gate_shell() {
  git ls-files -- '*.sh' .ci/run | xargs shellcheck
}

# The compile commands without precompiled headers, for the tools that read the sources.
describe_compilation() {
  cmake --preset tidy --log-level=NOTICE
}

# clazy, level 1, on everything that includes Qt. Findings are errors.
gate_clazy() {
  describe_compilation
  git ls-files -- 'src/toolkit/*.cpp' 'src/windows/*.cpp' 'programs/reports_tool/*.cpp' |
    xargs -P "$JOBS" -n 4 clazy-standalone -checks=level1 -header-filter='/(src|programs)/' -p build/tidy 2>&1 |
    awk '{ print } /Wclazy-|error:/ { found = 1 } END { exit found }'
}

# clang-tidy with the rules of .clang-tidy. Findings are errors.
gate_tidy() {
  describe_compilation
  run-clang-tidy -quiet -j "$JOBS" -p build/tidy "^$PWD/(src/(engine|toolkit)|programs|bench)/"
}

gate_tests() {
  cmake --preset release --log-level=NOTICE
  cmake --build --preset release --parallel "$JOBS"
  ctest --preset release --parallel "$JOBS"
}

gate_bench() {
  scripts/bench.sh 100000 sqlite
}

# The engine's tests and those of the windows under the address and undefined-behaviour
# sanitizers.
gate_sanitizers() {
  cmake --preset asan --log-level=NOTICE
  cmake --build --preset asan --parallel "$JOBS" --target unit_tests window_tests
  ctest --preset asan --parallel "$JOBS" -L '^(unit|window)$'
}

run_gate() {
  local gate=$1 log=$LOGS/$1.log begin=$SECONDS
  set +e
  (set -e; "gate_$gate") >"$log" 2>&1
  local status=$?
  set -e
  if [ "$status" != 0 ]; then
    tail -n 200 "$log"
    echo "gates.sh: $gate failed after $((SECONDS - begin)) s, all of its output is in $log" >&2
    exit 1
  fi
  echo "$gate: passed in $((SECONDS - begin)) s"
}

[ $# -gt 0 ] || set -- "${GATES[@]}"
for gate in "$@"; do
  declare -F "gate_$gate" >/dev/null || { echo "gates.sh: no gate $gate, there are: ${GATES[*]}" >&2; exit 2; }
done
mkdir -p "$LOGS"
for gate in "$@"; do
  run_gate "$gate"
done
