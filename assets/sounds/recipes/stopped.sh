# shellcheck shell=sh disable=SC2086,SC2154
# A beam runs into another colour and stops: the thud of something heavy, with glass that rings in it for a moment.
ring thud   0.62 "sine 165/74"
ring knock  0.09 "pinknoise"                      lowpass 900  gain -4
ring glass1 0.34 "sine 618"                       gain -10
ring glass2 0.26 "sine 1427"                      gain -15
ring glass3 0.16 "sine 2390"                      gain -20
mix thud knock glass1 glass2 glass3
