# Writes the wave files in SOUNDS to the C++ source OUTPUT as the definition of LoadSoundResource. Run by the build:
#   cmake -DSOUNDS=FOLDER -DOUTPUT=FILE [-DLIMIT=BYTES] -P EmbedSounds.cmake
# With a limit, only that many bytes of each file.
if(LIMIT)
    set(limit LIMIT ${LIMIT})
endif()
file(GLOB files "${SOUNDS}/*.wav")
list(SORT files)
set(arrays "")
set(cases "")
foreach(file IN LISTS files)
    get_filename_component(id "${file}" NAME_WE)
    file(READ "${file}" bytes ${limit} HEX)
    string(REGEX REPLACE "(..)" "0x\\1," bytes "${bytes}")
    string(APPEND arrays "constexpr unsigned char kSound${id}[] = {${bytes}};\n")
    string(APPEND cases "        case ${id}: return std::as_bytes(std::span(kSound${id}));\n")
endforeach()
file(WRITE "${OUTPUT}" "// Made by cmake/EmbedSounds.cmake from the wave files in assets/sounds.
#include \"audio/SoundResources.h\"

namespace prismfall {
namespace {
${arrays}}  // namespace

std::span<const std::byte> LoadSoundResource(int id) {
    switch (id) {
${cases}        default: return {};
    }
}

}  // namespace prismfall
")
