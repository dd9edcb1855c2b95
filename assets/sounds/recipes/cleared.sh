# shellcheck shell=sh disable=SC2086,SC2154
# The last beam of a puzzle is gone: bells climb through the open fifths of the game's motif and settle in a bright chord.
bell() { # bell NAME PITCH START RING: a struck tone whose overtones die before its ground
    ring "$1a"  "$4" "sine $2"
    ring "$1b"  "$(echo "$4 * 0.6" | bc)" "sine $(echo "$2 * 2.003" | bc)" gain -9
    ring "$1c"  "$(echo "$4 * 0.3" | bc)" "sine $(echo "$2 * 3.011" | bc)" gain -13
    later "$1a" "$3"; later "$1b" "$3"; later "$1c" "$3"
    bells="$bells $1a $1b $1c"
}
bells=''
bell n1 293.66 0.000 1.2
bell n2 440.00 0.120 1.2
bell n3 587.33 0.240 1.2
bell n4 659.26 0.360 1.2
bell n5 880.00 0.480 1.4
bell n6 1174.66 0.620 4.5
bell n7 739.99 0.640 4.5
bell n8 440.00 0.660 4.5
mix $bells
