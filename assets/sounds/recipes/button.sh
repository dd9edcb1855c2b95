# shellcheck shell=sh disable=SC2086,SC2154
# A button is pressed: a soft click, more felt than heard.
ring click  0.036 "sine 1350/640"
ring knock  0.07 "sine 260/180"                   gain -4
ring touch  0.012 "pinknoise"                      highpass 1500 lowpass 6000 gain -12
mix click knock touch
