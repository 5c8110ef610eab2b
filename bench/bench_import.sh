#!/bin/sh
# How long zarvo-import takes against a bare pass of expat over the same list:
#
#   bench/bench_import.sh build/bench/zarvo-import build/bench/bare_expat list.xml
set -eu

if [ $# -ne 3 ]; then
  echo "Usage: bench/bench_import.sh ZARVO-IMPORT BARE-EXPAT LIST" >&2
  exit 2
fi

# The shortest of seven runs, in hundredths of a millisecond.
shortest() {
  best=
  for run in 1 2 3 4 5 6 7; do
    begin=$(date +%s%N)
    "$@" > /dev/null
    took=$((($(date +%s%N) - begin) / 10000))
    if [ -z "$best" ] || [ "$took" -lt "$best" ]; then best=$took; fi
  done
  echo "$best"
}

bare=$(shortest "$2" "$3")
import=$(shortest "$1" --quiet --arcade --years 1975-1999 "$3")
awk -v bare="$bare" -v import="$import" 'BEGIN {
  ratio = import / bare
  printf "import %.0f ms, bare pass %.0f ms, ratio %.2f (target 1.5)\n",
         import / 100, bare / 100, ratio
  exit ratio > 1.5
}'
