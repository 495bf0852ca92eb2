#!/bin/sh
# Builds TARVO (Release) and runs it on a bundled example in a fresh working directory.
# Usage: run-example.sh [example-name]   (default lands3; see examples/)
set -e
root=$(cd "$(dirname "$0")/.." && pwd)
name=${1:-lands3}
sh "$root/scripts/setup.sh"
cmake -S "$root" -B "$root/build/release" -DCMAKE_BUILD_TYPE=Release -DTARVO_TESTS=OFF \
  -DTARVO_BENCH=OFF >/dev/null
cmake --build "$root/build/release" --target tarvo -j2 >/dev/null
work=$(mktemp -d "${TMPDIR:-/tmp}/tarvo-$name.XXXXXX")
if [ -f "$root/examples/$name/MODEL.COR" ]; then
  cp "$root/examples/$name"/MODEL.* "$root/examples/$name"/SIMPLEX.SPC "$work"
  cd "$work"
  "$root/build/release/tarvo" </dev/null
else
  # Files under their own names (examples/dakota): run by path.
  core=$(ls "$root/examples/$name"/*.cor)
  cd "$work"
  "$root/build/release/tarvo" "${core%.cor}"
fi
echo
echo "== $work/MODEL.SOL"
cat MODEL.SOL
echo
echo "Reports are in $work (MODEL.SOL solution, MODEL.SCR screen log, MODEL.ERR errors)."
