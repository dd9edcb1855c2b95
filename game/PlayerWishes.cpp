#include "game/PlayerWishes.h"

#include <array>

#include "game/Modes.h"
#include "game/Scoring.h"
#include "screens/Extras.h"
#include "simulation/Palette.h"
#include "simulation/Playfield.h"

namespace prismfall {

namespace {

constexpr int kFullPace = 100;

struct ColourRow {
    const std::array<Colour, 5>& painted;
    const std::array<Colour, 4>& clear;
};

constexpr std::array<ColourRow, 3> kColourRows = {
    {{LineColors, kClearColors}, {LineColorsUpper, kClearColorsUpper}, {LineColorsLower, kClearColorsLower}}};

// By beam colour. The field's lines and the previews' frames are painted in the same blue as beams, so blue is solid.
constexpr std::array<Pattern, 4> kPatterns = {Pattern::Solid, Pattern::Dashes, Pattern::Dots, Pattern::DashDots};

std::vector<Recolouring> RecolouringsOf(const Extras& extras) {
    std::vector<Recolouring> recolourings;
    if (extras.Palette == 0 && extras.Patterns == 0) return recolourings;
    for (const ColourRow& row : kColourRows)
        for (std::size_t color = 0; color < kPatterns.size(); ++color)
            recolourings.push_back({.painted = row.painted[color],
                                    .shown = extras.Palette != 0 ? row.clear[color] : row.painted[color],
                                    .pattern = extras.Patterns != 0 ? kPatterns[color] : Pattern::Solid});
    return recolourings;
}

}  // namespace

void ApplyExtras(VMain& main) {
    const Extras& extras = main.settings.extras;
    ShowWayToLevel(main);
    main.platform.SetComfort({.recolourings = RecolouringsOf(extras),
                              .ringsAtPointer = extras.Rings != 0,
                              .isLively = extras.Lively != 0,
                              .keys = extras.Keys,
                              .musicPercent = extras.Mute != 0 ? 0 : extras.MusicVolume,
                              .effectsPercent = extras.Mute != 0 ? 0 : extras.EffectsVolume});
}

void BeginAtPace(VMain& main) {
    main.IsPlayedOn = false;
    main.EntersTable = main.settings.extras.Pace == kFullPace;
    main.platform.SetPace(main.settings.extras.Pace);
}

void Form_Command(VMain& main, Key key) {
    if (key == Key::F1)
        ShowExtras(main.dialogs, main.VExtras, main.settings.extras, [&main] {
            ApplyExtras(main);
            ShowPaceNote(main);
        });
    if (key != Key::M) return;
    main.settings.extras.Mute = main.settings.extras.Mute == 0 ? 1 : 0;
    ApplyExtras(main);
}

}  // namespace prismfall
