#!/bin/sh
# How long zarvo-import takes against a bare count of line ends over the same list:
#
#   bench/bench_import.sh build/release/zarvo-import list.xml
set -eu

if [ $# -ne 2 ]; then
  echo "Usage: bench/bench_import.sh ZARVO-IMPORT LIST" >&2
  exit 2
fi

# The shortest of seven runs, in milliseconds.
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

bare=$(shortest wc -l "$2")
import=$(shortest "$1" --quiet --arcade --years 1975-1999 "$2")
awk -v bare="$bare" -v import="$import" 'BEGIN {
  printf "import %.1f ms, bare pass %.1f ms, ratio %.1f (target 5)\n",
         import / 100, bare / 100, import / bare
}'
