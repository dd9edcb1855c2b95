#include "game/LogoFlicker.h"

#include "audio/SoundEffects.h"
#include "platform/Numbers.h"

namespace prismfall {

namespace {

constexpr double kLongestDark = 10000;  // milliseconds
constexpr double kLongestLit = 1000;

}  // namespace

void TimerA_Timer(VMain& main) {
    const double longest = main.ImageA.visible ? kLongestDark : kLongestLit;
    main.ImageA.visible = !main.ImageA.visible;
    main.platform.SetTimerInterval(Timer::TimerA, Rounded(longest * main.platform.Random()));
    main.platform.LetEventsRun();
    PlaySound2(main.audio, Sound::Flicker, true);
}

}  // namespace prismfall
