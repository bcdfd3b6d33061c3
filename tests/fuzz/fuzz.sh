#!/bin/sh
# Runs every fuzz target of a build made with -DVORLEX_BUILD_FUZZ=ON, one
# after the other, each on its corpus in BUILD/fuzz/corpus/NAME (begun from
# its seeds, kept between runs so that a campaign goes on where the last one
# stopped). An input that crashes a target is kept as
# BUILD/fuzz/artifacts/NAME-crash-... and the script fails.
#
#   sh tests/fuzz/fuzz.sh BUILD --runs N        N inputs per target (CI)
#   sh tests/fuzz/fuzz.sh BUILD --seconds S     S seconds per target, at the
#                                               lowest priority (a campaign)
#   ... [TARGET...]                             only the targets named
#
# VORLEX_FUZZ_CORPUS=DIR takes the corpora from DIR/NAME instead, so that a
# campaign of a faster build can be replayed here with --runs 0 (each input
# of the corpus once).
set -eu
if [ $# -lt 3 ]; then
  echo "usage: sh tests/fuzz/fuzz.sh BUILD --runs N | --seconds S [TARGET...]" >&2
  exit 2
fi
build=$1
case "$2" in
--runs) limit="-runs=$3 -seed=1" priority="" timeout=60 ;;
# At the lowest priority on a busy machine an input's wall time can be many
# times its processor time: a hang is still told apart at two minutes.
--seconds) limit="-max_total_time=$3" priority="nice -n 19" timeout=120 ;;
*) echo "fuzz.sh: --runs N or --seconds S, not $2" >&2; exit 2 ;;
esac
shift 3
targets="$*"
if [ -z "$targets" ]; then
  for seeds in "$build"/fuzz/seeds/*; do
    targets="$targets $(basename "$seeds")"
  done
fi

export ASAN_OPTIONS="${ASAN_OPTIONS:-detect_leaks=1}"
export UBSAN_OPTIONS="${UBSAN_OPTIONS:-print_stacktrace=1}"
mkdir -p "$build/fuzz/artifacts" "$build/fuzz/logs"
failed=""
for name in $targets; do
  corpus="${VORLEX_FUZZ_CORPUS:-$build/fuzz/corpus}/$name"
  if [ ! -d "$corpus" ]; then
    mkdir -p "$corpus"
    while IFS= read -r seed; do
      [ -n "$seed" ] && cp "$seed" "$corpus/"
    done <"$build/fuzz/seeds/$name"
  fi
  log="$build/fuzz/logs/$name.log"
  # shellcheck disable=SC2086
  if $priority "$build/bin/fuzz_$name" $limit -timeout=$timeout -rss_limit_mb=2048 -print_final_stats=1 \
    -artifact_prefix="$build/fuzz/artifacts/$name-" "$corpus" >"$log" 2>&1; then
    outcome=passed
  else
    outcome=FAILED
    failed="$failed $name"
  fi
  runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log" | tail -n 1)
  echo "fuzz_$name: ${runs:-?} inputs, $(find "$corpus" -type f | wc -l) in its corpus, $outcome"
  if [ "$outcome" = FAILED ]; then
    grep -E "ERROR|SUMMARY|runtime error|Test unit written|terminate" "$log" | head -n 20 >&2
  fi
done
if [ -n "$failed" ]; then
  echo "fuzz.sh: failed:$failed (logs in $build/fuzz/logs)" >&2
  exit 1
fi
