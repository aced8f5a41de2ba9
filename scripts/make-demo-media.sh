#!/usr/bin/env bash
# Draws the receipt pictures and sounds the bell of the demonstration hospital into demo/home. The results are committed; this is run
# again only to change them. Needs ImageMagick and Python 3.
set -euo pipefail
cd "$(dirname "$0")/../demo/home"

# draw_picture FILE COLOUR CAPTION: a cross in a shield beside the hospital's name.
draw_picture() {
    convert -size 480x120 xc:white \
        -fill "$2" -draw "roundrectangle 12,12 108,108 18,18" \
        -fill white -draw "rectangle 50,28 70,92" -draw "rectangle 28,50 92,70" \
        -fill "$2" -font DejaVu-Sans-Bold -pointsize 30 -annotate +128+62 "HALDEN HOSPITAL" \
        -fill '#555555' -font DejaVu-Sans -pointsize 18 -annotate +129+90 "$3" \
        -strip -quality 85 "$1"
}
draw_picture RctPix.JPG '#1f6f8b' "Main Clinic"
draw_picture RctPixLab.JPG '#7b3f8c' "Laboratory"
draw_picture RctPixDen.JPG '#2e7d4f' "Dental Clinic"

# Two struck notes, each fading away.
python3 - <<'PY'
import math, struct, wave
rate = 11025
samples = []
for frequency, seconds in ((880.0, 0.35), (659.3, 0.65)):
    for i in range(int(rate * seconds)):
        t = i / rate
        tone = math.sin(2 * math.pi * frequency * t) + 0.4 * math.sin(4 * math.pi * frequency * t)
        samples.append(int(15000 * tone / 1.4 * math.exp(-5 * t)))
with wave.open("ring1.wav", "wb") as sound:
    sound.setnchannels(1)
    sound.setsampwidth(2)
    sound.setframerate(rate)
    sound.writeframes(struct.pack("<%dh" % len(samples), *samples))
PY
