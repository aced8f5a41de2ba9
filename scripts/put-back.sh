#!/usr/bin/env bash
# Puts known faults back, one at a time, and asks whether the tests still catch each: what thins the tests must lose none.
#   scripts/put-back.sh [NAME...]     all of tests/put-back.txt, or those named
# Works in a copy of the tree (build/put-back), on the embedded engine. Ends with the number that slipped through.
set -euo pipefail
cd "$(dirname "$0")/.."
list=$PWD/tests/put-back.txt
copy=$PWD/build/put-back
mkdir -p "$copy"
git ls-files -z | tar --null -T - -cf - | tar -C "$copy" -xf -
cd "$copy"
[ -f build/dev/build.ninja ] || cmake --preset dev >/dev/null
export QT_QPA_PLATFORM=offscreen
unset ORVANE_TEST_PG

slipped=0
# One fault a line: name | file | sed expression | suites that may catch it
while IFS='|' read -r name file change suites <&3; do
    name=${name//[[:space:]]/}
    [ -n "$name" ] && [ "${name:0:1}" != '#' ] || continue
    [ $# -eq 0 ] || [[ " $* " == *" $name "* ]] || continue
    read -r file <<<"$file"
    change=${change# } change=${change% }
    cp -p "$file" "$file.sound"
    sed -i "$change" "$file"
    if cmp -s "$file" "$file.sound"; then
        echo "$name: the line is not there any more"
        slipped=$((slipped + 1))
    else
        caught=
        for suite in $suites; do
            cmake --build --preset dev --target "tests_$suite" >build/put-back.log 2>&1 || { caught="the compiler"; break; }
            build/dev/tests/tests_"$suite" --gtest_brief=1 --gtest_fail_fast >build/put-back.log 2>&1 ||
                { caught="$suite: $(grep -m1 -o 'FAILED  \] [^ ,]*' build/put-back.log | cut -c10-)"; break; }
        done
        echo "$name: ${caught:-slipped through}"
        [ -n "$caught" ] || slipped=$((slipped + 1))
    fi
    mv "$file.sound" "$file"
    touch "$file"
done 3<"$list"
echo "$slipped slipped through"
[ "$slipped" -eq 0 ]
