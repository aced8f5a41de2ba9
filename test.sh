#!/usr/bin/env bash
# Builds everything and runs all tests: on the embedded engine always, and on a private PostgreSQL that is started in a temporary
# folder and stopped again. The targets of fuzz/ are among the tests, for 20 seconds each.
set -euo pipefail
cd "$(dirname "$0")"
source scripts/packages.sh

install_packages "${build_packages[@]}" "${test_packages[@]}"
[ -f build/dev/build.ninja ] || cmake --preset dev >/dev/null
cmake --build --preset dev
[ -f build/fuzz/build.ninja ] || cmake --preset fuzz >/dev/null
cmake --build --preset fuzz

cluster=$(mktemp -d)
stop_cluster() {
    scripts/pg-cluster.sh stop "$cluster" >/dev/null 2>&1 || true
    rm -rf "$cluster"
}
trap stop_cluster EXIT
if started=$(scripts/pg-cluster.sh start "$cluster"); then
    export "${started?}"
    echo "PostgreSQL: a private cluster ($started)"
else
    echo "PostgreSQL: could not be started, so its tests are skipped"
fi
echo "SQL Server: no server here; its statements are tested up to the wire"

export QT_QPA_PLATFORM=offscreen
ctest --preset dev --parallel "$(nproc)" "$@"
