#!/bin/sh
# Builds TARVO with its tests (Release) and runs every test; then runs them again in a build with
# AddressSanitizer and UndefinedBehaviorSanitizer (optimized lightly so it builds and runs quickly).
set -e
root=$(cd "$(dirname "$0")/.." && pwd)
sh "$root/scripts/setup.sh" tests
cmake -S "$root" -B "$root/build/test" -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build "$root/build/test" -j2
(cd "$root/build/test" && ctest --output-on-failure -j2)
cmake -S "$root" -B "$root/build/asan" -DCMAKE_BUILD_TYPE=None -DCMAKE_CXX_FLAGS=-O1 \
  -DTARVO_SANITIZE=ON -DTARVO_BENCH=OFF >/dev/null
cmake --build "$root/build/asan" -j2
cd "$root/build/asan"
ctest --output-on-failure -j2
