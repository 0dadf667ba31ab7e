#!/bin/sh
# Installs what is missing, builds, and runs every test. Arguments go to ctest, as in
# scripts/test.sh -L unit
set -eu
cd "$(dirname "$0")/.."

scripts/deps.sh
cmake --preset release --log-level=NOTICE
cmake --build --preset release --parallel "$(nproc)"
ctest --preset release --parallel "$(nproc)" "$@"
