// The virtual clock, which is never late, and its dialogs.
#include "backends/headless/HeadlessPlatform.h"

#include <gtest/gtest.h>

#include <sstream>

namespace prismfall {
namespace {

TEST(HeadlessPlatform, TimersAreNeverLateAndCatchUpWithHandlersThatLetEventsRun) {
    std::ostringstream printed;
    HeadlessPlatform machine(printed);
    std::ostringstream fired;
    machine.SetTickHandler([&](Timer timer) {
        fired << machine.Clock() << ':' << "DE"[static_cast<std::size_t>(timer)] << ' ';
        while (timer == Timer::LineExtender && machine.Clock() < 40) machine.LetEventsRun();
    });
    machine.SetTimerInterval(Timer::LineExtender, 10);
    machine.SetTimerInterval(Timer::LineDeleter, 15);
    machine.StartTimer(Timer::LineExtender);
    machine.StartTimer(Timer::LineDeleter);
    machine.Run(9);
    EXPECT_EQ(fired.str(), "");
    machine.Run(31);
    EXPECT_EQ(fired.str(), "10:E 15:D 30:D 40:E 40:E 40:E ");
}

TEST(HeadlessPlatform, ADialogThatStandsIsNotShownAgain) {
    std::ostringstream printed;
    HeadlessPlatform machine(printed);
    Window dialog;
    dialog.name = "Dialog";
    dialog.Own({{.name = "again", .kind = ElementKind::Button}});
    dialog.on.elementClick = [&](Element&) { EXPECT_TRUE(machine.ShowModally(dialog)); };
    machine.QueueAnswer("again");
    EXPECT_FALSE(machine.ShowModally(dialog)) << "closed by its close box in the end";
    EXPECT_EQ(printed.str(), "dialog Dialog\n");
}

}  // namespace
}  // namespace prismfall
