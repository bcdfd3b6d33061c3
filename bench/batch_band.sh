#!/bin/sh
# A batch of many runs: N copies of the example moth (1000 by default), each
# run for 60 days through `vorlex batch` with an export of the total size on
# day 60 and a band, timed REPEAT times (3 by default). The machine may be
# busy with other work, so the script prints every repetition and the
# fastest and the median of them.
#
#   sh bench/batch_band.sh [VORLEX] [N] [REPEAT] [JOBS]
#
# VORLEX defaults to build/bin/vorlex, JOBS to the number of processors.
set -eu
top="$(cd "$(dirname "$0")/.." && pwd)"
vorlex="${1:-$top/build/bin/vorlex}"
count="${2:-1000}"
repeat="${3:-3}"
jobs="${4:-$(nproc)}"

work="$(mktemp -d "${TMPDIR:-/tmp}/vorlex-batch-bench-XXXXXX")"
trap 'rm -rf "$work"' EXIT
mkdir "$work/tables"
i=1
while [ "$i" -le "$count" ]; do
  cp "$top/examples/moth.txt" "$work/tables/moth-$(printf %04d "$i").txt"
  i=$((i + 1))
done
# The data files alone: their outputs go beside them.
ls "$work/tables"/moth-????.txt > "$work/list"

echo "$count runs of the example at 60 days, $jobs jobs, export and band"
times=""
r=1
while [ "$r" -le "$repeat" ]; do
  start=$(date +%s.%N)
  # shellcheck disable=SC2046
  "$vorlex" batch $(cat "$work/list") --sim-time 60 --jobs "$jobs" \
    --export "total:60:$work/total-60.txt" --band "$work/band.csv" > "$work/out" 2>&1
  end=$(date +%s.%N)
  took=$(awk "BEGIN { printf \"%.3f\", $end - $start }")
  # Processor time of the batch and its runs so far (user + system), from
  # the second line of `times`: what the runs cost whatever else the
  # machine is doing.
  times > "$work/times"
  cpu=$(sed -n 2p "$work/times" | awk '{ n = 0; for (i = 1; i <= NF; ++i) { split($i, p, "m"); n += p[1] * 60 + p[2] } printf "%.3f", n }')
  echo "  repetition $r: $took s wall, $(awk "BEGIN { printf \"%.3f\", $cpu - ${spent:-0} }") s processor time"
  spent=$cpu
  times="$times $took"
  r=$((r + 1))
done
lines=$(wc -l < "$work/total-60.txt")
echo "  export lines: $((lines - 2)), band rows: $(($(wc -l < "$work/band.csv") - 1))"
echo "$times" | tr ' ' '\n' | sed '/^$/d' | sort -n | awk '
  { t[NR] = $1 }
  END { printf "  fastest %.2f s, median %.2f s\n", t[1], t[int((NR + 1) / 2)] }'
