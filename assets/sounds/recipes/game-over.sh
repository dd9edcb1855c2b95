# shellcheck shell=sh disable=SC2086,SC2154
# A beam has reached the ground: three strings slide down together and lose their light on the way, over a deep stroke.
# The darkening is a cross-fade between three filterings of the same slide.
layer bright 1.02 "sawtooth 523.3-98 sawtooth mix 440-82.4 sawtooth mix 311.1-77.8"  lowpass 7000 fade q 0.004 0.34 0.30
layer middle 1.02 "sawtooth 523.3-98 sawtooth mix 440-82.4 sawtooth mix 311.1-77.8"  lowpass 1500 fade q 0.10 0.74 0.42 gain -1
layer dark   1.02 "sawtooth 523.3-98 sawtooth mix 440-82.4 sawtooth mix 311.1-77.8"  lowpass 420 lowpass 420 fade q 0.35 1.01 0.45 gain 2
ring stroke 1.3 "sine 130/41"                    gain -2
ring dust   0.9 "brownnoise"                     highpass 40 lowpass 1800 gain -8
mix bright middle dark stroke dust
