// The size at which a picture is drawn, pictures that cannot be loaded, and text that has to fit.
#include <gtest/gtest.h>
#include <png.h>

#include <filesystem>
#include <fstream>

#include "backends/sdl/desktop/MarginNote.h"
#include "backends/sdl/drawing/ElementPainter.h"
#include "backends/sdl/drawing/PictureFit.h"

namespace prismfall {
namespace {

namespace fs = std::filesystem;

TEST(PictureFitTest, AWholeFactorAndTheWantedScaleAreWorthAPixel) {
    EXPECT_EQ(FitPicture({802, 602}, {1605, 1205}, 1), (PictureFit{2, {0, 0, 1604, 1204}}));
    EXPECT_EQ(FitPicture({802, 602}, {1003, 753}, 1.25F), (PictureFit{1.25F, {0, 0, 1002, 752}}));
}

TEST(MarginNoteTest, TakesTheBroaderMarginAndNeverReachesOutOfTheWindow) {
    Window window;
    window.aside = {.text = "0:10 of 1:00\nP: pause", .share = 0.25F};
    Display display(PictureStore({}));
    MarginNote note;
    const std::initializer_list<std::pair<Extent, PixelBox>> cases = {
        {{802, 602}, {}},                      // no room
        {{1202, 602}, {1002, 0, 1202, 602}},   // beside the picture
        {{802, 702}, {0, 652, 802, 702}},      // below it
        {{802, 602}, {0, 0, 0, 0}},            // the note is gone, and so is its place
        {{1002, 1002}, {0, 877, 1002, 1002}},  // of a scaled picture
    };
    for (const auto& [size, expected] : cases) {
        const PictureFit fit = FitPicture({802, 602}, size, 1);
        display.SetScale(fit.scale);
        const PixelBox box = note.Update(window, size, fit, display, false);
        EXPECT_EQ(window.aside.hasRoom, !expected.IsEmpty());
        EXPECT_EQ(Overlap(box, {0, 0, size.width, size.height}), box);
        EXPECT_TRUE(note.Update(window, size, fit, display, false).IsEmpty()) << "nothing has changed";
        EXPECT_EQ(expected.IsEmpty() ? PixelBox{} : box, expected);
    }
}

TEST(PictureStoreTest, ReportsExactlyWhatIsWrongWithAPicture) {
    const fs::path folder = fs::path(testing::TempDir()) / "prismfall-pictures";
    fs::create_directories(folder / "1x");
    std::string whole(4096, ' ');
    std::ifstream(PRISMFALL_ASSETS "/pictures/1x/Icon.png", std::ios::binary).read(whole.data(), 4096);
    std::ofstream(folder / "1x/Cut.png", std::ios::binary) << whole.substr(0, 200);
    png_image wide{};
    wide.version = PNG_IMAGE_VERSION;
    wide.width = 40000;
    wide.height = 1;
    wide.format = PNG_FORMAT_RGBA;
    const std::vector<std::uint32_t> row(wide.width);
    png_image_write_to_file(&wide, (folder / "1x/Wide.png").c_str(), 0, row.data(), 0, nullptr);
    const std::map<std::string, std::string> faults = {
        {"Cut", "is damaged"}, {"Wide", "is too large"}, {"None", "is missing"}};
    for (const auto& [name, fault] : faults) {
        PictureStore store(folder);
        testing::internal::CaptureStderr();
        EXPECT_EQ(store.Find(name), nullptr);
        const std::string report = testing::internal::GetCapturedStderr();
        EXPECT_NE(report.find(name + " in " + folder.string() + " " + fault), std::string::npos) << report;
    }
    fs::remove_all(folder);
}

// The row below the last one that has part of a letter in it.
int BottomOfText(int fitHeight, float scale) {
    Display display(PictureStore("/nowhere"));
    display.SetScale(scale);
    std::string text;
    for (int i = 0; i < 40; ++i) text += "beams collide ";
    const Element label{.name = "",
                        .kind = ElementKind::Label,
                        .width = 365,
                        .height = 600,
                        .text = text,
                        .colour = kRed,
                        .font = {.points = 11.25F},
                        .wraps = true,
                        .fitHeight = fitHeight};
    Image picture(display.Pixels(400), display.Pixels(600));
    Canvas canvas(picture.pixels.data(), picture.width, picture.height, picture.width);
    DrawElement(canvas, label, {0, 0, picture.width, picture.height}, display);
    for (int y = picture.height; y > 0; --y)
        if (std::count(picture.Row(y - 1), picture.Row(y - 1) + picture.width, 0U) < picture.width) return y;
    return 0;
}

TEST(TextPainterTest, TextTakesTheLargestSizeThatEndsWithinItsHeight) {
    for (const int scale : {1, 2}) {
        const int free = BottomOfText(0, static_cast<float>(scale));
        EXPECT_EQ(BottomOfText(500, static_cast<float>(scale)), free) << "it is not made larger";
        for (const int height : {74, 100, 130}) {
            const int bottom = BottomOfText(height, static_cast<float>(scale));
            EXPECT_TRUE(bottom <= height * scale && bottom > height * scale * 3 / 4) << height << ": " << bottom;
        }
    }
}

}  // namespace
}  // namespace prismfall
