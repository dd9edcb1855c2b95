# shellcheck shell=sh disable=SC2086,SC2154
# A click that the game declines: two low buzzes, the second longer and a little lower, like shaking one's head.
layer short   0.21 "square 116.5 square mix 117.9"        lowpass 1100 fade q 0.006 0.21 0.03
layer long    0.38 "square 103.8 square mix 105.2"        lowpass 900  fade q 0.006 0.38 0.16
layer bottom1 0.21 "sine 58.3"                         fade q 0.01 0.21 0.04 gain -3
layer bottom2 0.38 "sine 51.9"                         fade q 0.01 0.38 0.16 gain -3
later long 0.29; later bottom2 0.29
mix short long bottom1 bottom2
