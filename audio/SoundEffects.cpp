#include "audio/SoundEffects.h"

#include "audio/SoundResources.h"

namespace prismfall {

namespace {

constexpr std::int32_t kFirstResource = 101;  // a sound's number is added to it

}  // namespace

void PlaySound2(const VMain& main, std::int32_t eName, Boolean sync) {
    if (!main.SoundEffects) return;
    const int id = eName + kFirstResource;
    main.platform.PlayWave({id, LoadSoundResource(id)}, sync);
}

void SetSoundEffects(VMain& main, Boolean value) { main.SoundEffects = value; }

}  // namespace prismfall
