#!/usr/bin/env bash
# Builds the fuzz targets with clang (ASan + UBSan) and runs each for a
# bounded time over a working copy of its checked-in seeds. Exits non-zero
# when any target finds a crash, a leak, undefined behaviour or a broken
# check; the input that did it is kept under build-fuzz/findings.
#
#   scripts/fuzz.sh [SECONDS_PER_TARGET] [TARGET...]
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-10}
shift || true
scripts/setup-debian.sh
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz

targets=("$@")
if [ ${#targets[@]} -eq 0 ]; then
    for seeds in fuzz/corpus/*/; do
        targets+=("$(basename "$seeds")")
    done
fi

mkdir -p build-fuzz/findings build-fuzz/logs
failed=0
printf '%-22s %12s %10s %s\n' target executions exec/s result
for target in "${targets[@]}"; do
    work=build-fuzz/corpus/$target
    mkdir -p "$work"
    log=build-fuzz/logs/$target.log
    status=found
    if build-fuzz/fuzz/"$target" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 \
        -print_final_stats=1 -artifact_prefix="build-fuzz/findings/$target-" \
        "$work" "fuzz/corpus/$target" >"$log" 2>&1; then
        status=clean
    else
        failed=1
    fi
    runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log" | tail -1)
    rate=$(sed -n 's/^stat::average_exec_per_sec: *//p' "$log" | tail -1)
    printf '%-22s %12s %10s %s\n' "$target" "${runs:-?}" "${rate:-?}" "$status"
    if [ "$status" != clean ]; then
        tail -40 "$log"
    fi
done
exit $failed
