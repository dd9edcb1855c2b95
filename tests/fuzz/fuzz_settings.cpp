// Feeds damaged settings files to the reader, and the result to the game's start-up. Saving over such a file must keep
// every saved value.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <ostream>
#include <string_view>

#include "backends/headless/HeadlessPlatform.h"
#include "game/MainWindow.h"
#include "platform/SettingsText.h"
#include "settings/SettingsStore.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using prismfall::SettingsText;
    SettingsText file(std::string_view(reinterpret_cast<const char*>(data), size));
    std::ostream nowhere(nullptr);
    prismfall::HeadlessPlatform machine(nowhere);
    for (const auto& [name, text] : file.Values()) machine.PutSetting(name.first, name.second, text);
    prismfall::VMain main(machine);
    prismfall::MakeMainWindow(main);
    prismfall::SaveSettings(main.settings, machine);
    for (const auto& [name, text] : machine.Store()) file.Set(name.first, name.second, text);
    if (SettingsText(file.Text()).Values() != machine.Store()) std::abort();
    return 0;
}
