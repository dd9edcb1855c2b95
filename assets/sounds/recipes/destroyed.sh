# shellcheck shell=sh disable=SC2086,SC2154
# Two beams of one colour meet and burst: a zap that falls through four octaves, and splinters above it.
ring zap    0.55 "sawtooth 3200-190"              highpass 250 gain -5
ring edge   0.30 "square 4800-600"                highpass 1500 gain -14
ring burst  0.40 "whitenoise"                     highpass 3200 gain -8
ring chip1  0.80 "sine 2793"                      gain -12
ring chip2  0.70 "sine 4186"                      gain -13
ring chip3  0.60 "sine 5919"                      gain -14
ring chip4  0.50 "sine 7902"                      gain -16
later chip2 0.022; later chip3 0.045; later chip4 0.081
mix zap edge burst chip1 chip2 chip3 chip4
