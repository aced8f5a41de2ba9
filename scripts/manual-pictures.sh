#!/usr/bin/env bash
# Takes the pictures of the user's manual anew from a tour that was just played (./run.sh --tour).
# usage: scripts/manual-pictures.sh [TOUR_FOLDER]
set -euo pipefail
cd "$(dirname "$0")/.."
tour=${1:-var/tour}
pictures=docs/manual/pictures
rm -rf "$pictures"
mkdir -p "$pictures"
grep -oh 'pictures/[^)]*[.]png' docs/manual/*.md | sort -u | while read -r picture; do
    cp "$tour/${picture#pictures/}" "$pictures/"
done
