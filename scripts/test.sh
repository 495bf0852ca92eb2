#!/bin/sh
# Builds TARVO with its tests (Release) and runs every test.
set -e
root=$(cd "$(dirname "$0")/.." && pwd)
sh "$root/scripts/setup.sh" tests
cmake -S "$root" -B "$root/build/test" -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build "$root/build/test" -j2
cd "$root/build/test"
ctest --output-on-failure -j2
