// The game in a browser: the page calls `run`, which returns when the program has ended.
#include <array>
#include <cstdint>

#include "backends/web/Imports.h"
#include "backends/web/WebPlatform.h"
#include "game/MainWindow.h"
#include "game/VMain.h"

namespace {

// The memory in which the stack is saved during a wait, in browsers that cannot suspend a program: from the first
// address to the second.
struct SuspendedStack {
    std::uint8_t* start;
    std::uint8_t* end;
};

std::array<std::uint8_t, 65536> room;
SuspendedStack stack;

prismfall::WebPlatform* machine = nullptr;  // while the program runs

}  // namespace

extern "C" {

__attribute__((export_name("suspendedStack"))) SuspendedStack* GetSuspendedStack() {
    stack = {room.data(), room.data() + room.size()};
    return &stack;
}

__attribute__((export_name("recordSizes"))) const prismfall::page::RecordSizes* GetRecordSizes() {
    static constexpr prismfall::page::RecordSizes kSizes;
    return &kSizes;
}

__attribute__((export_name("run"))) void Run() {
    prismfall::WebPlatform platform;
    prismfall::VMain main(platform);
    prismfall::MakeMainWindow(main);
    machine = &platform;
    platform.Run(main.window);
    machine = nullptr;
}

// The page calls this once a frame while the program waits.
__attribute__((export_name("present"))) void Present() {
    if (machine != nullptr) machine->Present();
}
}
