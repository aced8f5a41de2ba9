#!/usr/bin/env bash
# Builds the client and starts it on a demonstration hospital. Without a display it runs the tour instead.
# usage: ./run.sh [--home DIR] [--user NAME] [--tour]
set -euo pipefail
cd "$(dirname "$0")"
source scripts/packages.sh

home=var/demo
user=()
tour=no
while [ $# -gt 0 ]; do
    case "$1" in
        --home) home="$2"; shift 2 ;;
        --user) user=(--user "$2"); shift 2 ;;
        --tour) tour=yes; shift ;;
        *) echo "usage: ./run.sh [--home DIR] [--user NAME] [--tour]" >&2; exit 2 ;;
    esac
done

install_packages "${build_packages[@]}"
[ -f build/release/build.ninja ] || cmake --preset release >/dev/null
cmake --build --preset release --target orvane-billing orvane-db

if [ "$tour" = no ] && [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    echo "There is no display: running the tour instead."
    tour=yes
fi

# The tour writes visits, so it has a hospital of its own, made anew each time on a fixed day.
if [ "$tour" = yes ]; then
    rm -rf var/tour
    mkdir -p var/tour
    build/release/orvane-db demo --home var/tour/home --patients 60 --days 5 --seed 1 --until 2026-03-13
    QT_QPA_PLATFORM=offscreen build/release/orvane-billing --home var/tour/home --window --out var/tour --play demo/tour.play
    echo "The pictures of every screen and the receipts as PDF are in var/tour."
    exit 0
fi

if [ ! -f "$home/made.sys" ]; then
    echo "Making the demonstration hospital in $home ..."
    build/release/orvane-db demo --home "$home"
fi
exec build/release/orvane-billing --home "$home" "${user[@]}"
