#include "audio/SoundEffects.h"

#include "audio/SoundResources.h"

namespace prismfall {

void PlaySound2(const Audio& audio, Sound eName, bool sync) {
    if (!audio.settings.SoundEffects) return;
    const int id = Wave::kFirstId + static_cast<int>(eName) - 1;
    audio.player.PlayWave({id, LoadSoundResource(id)}, sync);
}

}  // namespace prismfall
