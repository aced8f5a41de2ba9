#!/usr/bin/env bash
# Runs targets of fuzz/ over their corpora and goes on with inputs of its own making, one target after the other.
#   scripts/fuzz.sh [--built] [SECONDS [TARGET...]]      20 seconds each; translator, csv, script and report
# --built: builds nothing, goes over the corpora alone, so that every run has the same outcome, and ends with 77 when
# there is nothing built; what does not hold ends with 1, since libFuzzer's own 77 would pass for that. Inputs that reach something new are kept in
# build/fuzz/corpus, those for which something does not hold in build/fuzz/found.
set -euo pipefail
cd "$(dirname "$0")/.."

built=no
[ "${1:-}" != --built ] || { built=yes; shift; }
seconds=${1:-20}
targets=("${@:2}")
[ ${#targets[@]} -gt 0 ] || targets=(translator csv script report)
further=(-max_total_time="$seconds")
[ $built = no ] || further=(-runs=0)

if [ $built = no ]; then
    source scripts/packages.sh
    install_packages "${build_packages[@]}" "${fuzz_packages[@]}"
    [ -f build/fuzz/build.ninja ] || cmake --preset fuzz >/dev/null
    cmake --build --preset fuzz
fi

for target in "${targets[@]}"; do
    program=build/fuzz/fuzz/fuzz_$target
    [ -x "$program" ] || { echo "$program is not built"; exit 77; }
    mkdir -p "build/fuzz/corpus/$target" build/fuzz/found
    "$program" "${further[@]}" -error_exitcode=1 -timeout=120 -rss_limit_mb=4096 -max_len=4096 -print_final_stats=1 \
        -dict="fuzz/$target.dict" -artifact_prefix="build/fuzz/found/$target-" \
        "build/fuzz/corpus/$target" "fuzz/corpus/$target" 2>&1 | grep -v -E '^#[0-9]+\s+(NEW|REDUCE|pulse|RELOAD)'
done
