# shellcheck shell=sh disable=SC2086,SC2154
# A neon tube strikes, fails and strikes again: bursts of mains buzz with a tick at each start. The tube hums on the left
# and crackles on the right, so that the two channels differ.
burst() { # burst NAME START LENGTH LEVEL
    layer "$1h" "$3" "sawtooth 100 square mix 200.7"      highpass 180 lowpass 5200 fade q 0.002 "$3" 0.006 gain "$4"
    ring "$1c"  "$3" "whitenoise"                     bandpass 4300 1500 gain "$4" gain -3
    ring "$1t"  0.012 "sine 3300/1500"                 gain "$4" gain -2
    later "$1h" "$2"; later "$1c" "$2"; later "$1t" "$2"
    hum="$hum $1h $1t"; crackle="$crackle $1c $1t"
}
hum='' crackle=''
burst b1 0.004 0.048 -4
burst b2 0.084 0.028 -8
burst b3 0.142 0.080 -2
burst b4 0.251 0.022 -9
burst b5 0.296 0.272 -3
mix $hum
sox "$work/mixed.wav" "$work/left.wav" remix 1v0.85 1v0.5
mix $crackle
sox "$work/mixed.wav" "$work/right.wav" remix 1v0.25 1v0.7
mix left right
