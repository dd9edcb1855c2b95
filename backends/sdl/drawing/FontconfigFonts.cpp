// Fonts from fontconfig. Its substitutes for two families that are often missing are poor, so better ones are named
// here.
#include "backends/sdl/drawing/FontFinder.h"

#include <SDL_rwops.h>
#include <fontconfig/fontconfig.h>
#include <array>

#include <string>
#include <string_view>

namespace prismfall {

namespace {

struct StandIn {
    std::string_view family;
    const char* used;
};

constexpr std::array<StandIn, 2> kStandIns = {{
    {"MS Sans Serif", "Liberation Sans"},
    {"Felix Titling", "Liberation Serif"},
}};

std::string FamilyFor(std::string_view family) {
    for (const StandIn& standIn : kStandIns)
        if (standIn.family == family) return standIn.used;
    return std::string(family);
}

}  // namespace

struct FontFinder::System {
    FcConfig* config = nullptr;  // read when the first font is needed, since that is slow
};

FontFinder::FontFinder() : system(std::make_unique<System>()) {}

FontFinder::~FontFinder() {
    if (system->config != nullptr) FcConfigDestroy(system->config);
}

FontFile FontFinder::Find(const Font& font) {
    if (system->config == nullptr) system->config = FcInitLoadConfigAndFonts();
    FontFile file;
    FcPattern* wanted = FcPatternCreate();
    const std::string family = FamilyFor(font.family);
    FcPatternAddString(wanted, FC_FAMILY, reinterpret_cast<const FcChar8*>(family.c_str()));
    FcPatternAddInteger(wanted, FC_WEIGHT, font.bold ? FC_WEIGHT_BOLD : FC_WEIGHT_REGULAR);
    FcPatternAddInteger(wanted, FC_SLANT, font.italic ? FC_SLANT_ITALIC : FC_SLANT_ROMAN);
    FcPatternAddBool(wanted, FC_SCALABLE, FcTrue);
    FcConfigSubstitute(system->config, wanted, FcMatchPattern);
    FcDefaultSubstitute(wanted);
    FcResult outcome = FcResultNoMatch;
    if (FcPattern* found = FcFontMatch(system->config, wanted, &outcome); found != nullptr) {
        FcChar8* path = nullptr;
        int index = 0;
        int weight = FC_WEIGHT_REGULAR;
        int slant = FC_SLANT_ROMAN;
        if (FcPatternGetString(found, FC_FILE, 0, &path) == FcResultMatch)
            file.stream = SDL_RWFromFile(reinterpret_cast<const char*>(path), "rb");
        FcPatternGetInteger(found, FC_INDEX, 0, &index);
        FcPatternGetInteger(found, FC_WEIGHT, 0, &weight);
        FcPatternGetInteger(found, FC_SLANT, 0, &slant);
        // The upper 16 bits select an instance of a variable font, which SDL_ttf does not support.
        file.face = index & 0xFFFF;
        file.bold = weight > FC_WEIGHT_MEDIUM;
        file.italic = slant != FC_SLANT_ROMAN;
        FcPatternDestroy(found);
    }
    FcPatternDestroy(wanted);
    return file;
}

}  // namespace prismfall
