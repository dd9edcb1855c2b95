// A headless machine that lets a test look and act while a dialog is open or a handler yields.
#pragma once

#include <functional>

#include "backends/headless/HeadlessPlatform.h"

namespace prismfall {

class TestMachine : public HeadlessPlatform {
  public:
    using HeadlessPlatform::HeadlessPlatform;

    std::function<void(Window& dialog)> onDialog;  // before the queued answers
    std::function<void()> onYield;

    bool ShowModally(Window& dialog) override {
        if (onDialog) onDialog(dialog);
        return HeadlessPlatform::ShowModally(dialog);
    }
    void LetEventsRun() override {
        if (onYield) onYield();
        HeadlessPlatform::LetEventsRun();
    }
};

}  // namespace prismfall
