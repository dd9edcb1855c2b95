// Fonts from GDI, which gives us the file of the font that it would draw with.
#include "backends/sdl/drawing/FontFinder.h"

#include <SDL_rwops.h>
#include <windows.h>
#include <array>

#include <map>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace prismfall {

namespace {

struct Family {
    std::string_view name;
    const wchar_t* used;  // the outline family that replaces a bitmap one, or the family itself
    DWORD kind;           // what to look for if there is no such family
};

constexpr std::array<Family, 4> kFamilies = {{
    {"Arial", L"Arial", FF_SWISS},
    {"MS Sans Serif", L"Microsoft Sans Serif", FF_SWISS},
    {"Times New Roman", L"Times New Roman", FF_ROMAN},
    {"Felix Titling", L"Felix Titling", FF_ROMAN},
}};

const Family& FamilyOf(std::string_view name) {
    for (const Family& family : kFamilies)
        if (family.name == name) return family;
    return kFamilies.front();
}

std::vector<char> BytesOf(const Font& font) {
    const Family& family = FamilyOf(font.family);
    HDC context = CreateCompatibleDC(nullptr);
    HFONT handle = CreateFontW(0, 0, 0, 0, font.bold ? FW_BOLD : FW_NORMAL, font.italic ? TRUE : FALSE, FALSE, FALSE,
                               ANSI_CHARSET, OUT_TT_ONLY_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                               VARIABLE_PITCH | family.kind, family.used);
    const HGDIOBJ former = SelectObject(context, handle);
    std::vector<char> bytes;
    if (const DWORD size = GetFontData(context, 0, 0, nullptr, 0); size != GDI_ERROR) {
        bytes.resize(size);
        if (GetFontData(context, 0, 0, bytes.data(), size) != size) bytes.clear();
    }
    SelectObject(context, former);
    DeleteObject(handle);
    DeleteDC(context);
    return bytes;
}

}  // namespace

struct FontFinder::System {
    std::map<std::tuple<std::string, bool, bool>, std::vector<char>> files;
};

FontFinder::FontFinder() : system(std::make_unique<System>()) {}

FontFinder::~FontFinder() = default;

FontFile FontFinder::Find(const Font& font) {
    const auto [entry, isNew] = system->files.try_emplace({std::string(font.family), font.bold, font.italic});
    std::vector<char>& bytes = entry->second;
    if (isNew) bytes = BytesOf(font);
    FontFile file;
    if (!bytes.empty()) file.stream = SDL_RWFromConstMem(bytes.data(), static_cast<int>(bytes.size()));
    return file;
}

}  // namespace prismfall
