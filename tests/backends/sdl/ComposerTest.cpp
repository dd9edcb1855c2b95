// Drawing only what has changed must give the same picture as drawing everything, at every scale of the display.
#include "backends/sdl/drawing/Composer.h"

#include <gtest/gtest.h>

#include <random>

namespace prismfall {
namespace {

constexpr int kWidth = Surface::kWidth;
constexpr int kHeight = Surface::kHeight;

// A picture of random colours, half of its pixels transparent.
Image Speckled(int width, int height, std::mt19937& random) {
    Image image(width, height);
    for (std::uint32_t& pixel : image.pixels) {
        const auto value = static_cast<std::uint32_t>(random());
        pixel = WithOpacity(value | 0xFF000000, value & 1 ? 0xFF : value >> 8 & 0xFF);
    }
    return image;
}

class ComposerTest : public ::testing::TestWithParam<float> {
  protected:
    ComposerTest() : display(PictureStore("/nowhere")) {
        display.SetScale(GetParam());
        window.innerWidth = kWidth;
        window.innerHeight = kHeight;
        AddSpeckled("A", 60, 40);
        AddSpeckled("B", 90, 90);
        std::vector<Element> elements;
        for (int i = 0; i < 8; ++i)
            elements.push_back({.name = "e",
                                .left = 50.0F + 20.0F * static_cast<float>(i),
                                .top = 70,
                                .width = 60,
                                .height = 60,
                                .picture = i % 2 ? "A" : "B"});
        window.Own(std::move(elements));
        for (std::size_t i = 4; i < 8; ++i) window.elements[i]->panel = window.elements[0];
    }

    void AddSpeckled(std::string_view name, float width, float height) {
        const Image image = Speckled(display.Pixels(width), display.Pixels(height), random);
        display.pictures.Add(name, [image](float) { return image; });
    }

    int Below(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }

    void ChangeSomething() {
        Element& element = *window.elements[static_cast<std::size_t>(Below(8))];
        const int what = Below(6);
        if (what == 0) element.visible = !element.visible;
        if (what == 1) element.left = static_cast<float>(Below(3000)) / 4;
        if (what == 2) element.top = static_cast<float>(Below(3000)) / 4 - 50;
        if (what == 3) element.picture = Below(2) ? "A" : "B";
        if (what == 4) layer.Restore(Below(kWidth), Below(kHeight), Below(kWidth), Below(kHeight));
        if (what == 5)
            layer.Line(Below(kWidth), Below(kHeight), Below(kWidth), Below(kHeight),
                       static_cast<Colour>(Below(0x1000000)), 1 + Below(5));
    }

    void Draw(Composer& composer, Image& picture) {
        Canvas canvas(picture.pixels.data(), picture.width, picture.height, picture.width);
        for (const PixelBox& box : composer.TakeChanges(picture.width, picture.height)) composer.Compose(canvas, box);
    }

    std::mt19937 random{7};
    Window window;
    Surface layer;
    Looks looks{layer};
    Display display;
};

TEST_P(ComposerTest, PiecewiseDrawingGivesTheWholePicture) {
    Composer composer(window, &looks, display);
    Image piecewise(display.Pixels(kWidth), display.Pixels(kHeight));
    Image whole = piecewise;
    for (int round = 0; round < 40; ++round) {
        for (int i = Below(5); i >= 0; --i) ChangeSomething();
        Draw(composer, piecewise);
        if (round % 8 != 7) continue;
        Composer fresh(window, &looks, display);
        Draw(fresh, whole);
        ASSERT_TRUE(piecewise.pixels == whole.pixels) << "after round " << round;
    }
}

INSTANTIATE_TEST_SUITE_P(Scales, ComposerTest, ::testing::Values(0.75F, 1.0F, 1.5F, 2.0F));

}  // namespace
}  // namespace prismfall
