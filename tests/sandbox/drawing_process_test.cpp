// The real process for drawings, whose interpreter does not end by itself.
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>

#include "adapters/decoder/ghostscript.h"
#include "adapters/sandbox/client.h"
#include "sandbox/sandbox_support.h"

namespace {

using sandbox::Client;
using sandbox::Kind;
using sandbox::Outcome;
using sandbox::Result;
using std::chrono::milliseconds;

/// Far beyond the limits of the process itself, which are what is tested.
const sandbox::ClientOptions kPatient{"", {}, 600000};
const std::string kPage =
    "%!PS\n%%BoundingBox: 0 0 8 8\n1 0 0 setrgbcolor 0 0 8 8 rectfill showpage\n";
const std::string kLoop = "{} loop\n";
const std::string kEndless = "%!PS\n%%BoundingBox: 0 0 8 8\n" + kLoop;

void ExpectPage(Client& client, const std::string& text) {
    const Result result = client.Decode(Kind::Eps, FileOf(text).Get(), {});
    ASSERT_EQ(result.outcome, Outcome::Decoded);
    EXPECT_EQ(result.size, (platform::Size{8, 8}));
    EXPECT_EQ(result.pixels->pixels[27], 0xFFFF0000u);
}

pid_t OnlyChild() {
    const auto children = Children();
    EXPECT_EQ(children.size(), 1u);
    return children.empty() ? 0 : children[0];
}

TEST(DrawingProcess, ServesManyDrawings) {
    Client client(kPatient);
    ExpectPage(client, kPage);
    const pid_t process = OnlyChild();
    for (int i = 0; i < 5; ++i) {
        ExpectPage(client, kPage);
    }
    EXPECT_EQ(OnlyChild(), process);
}

TEST(DrawingProcess, FontsAreFoundUnderTheLimits) {
    Client client(kPatient);
    for (const char* font : {"Helvetica", "Times-Roman", "Courier", "NoSuchFont"}) {
        const std::string text = std::string("%!PS\n%%BoundingBox: 0 0 40 40\n/") + font +
                                 " findfont 40 scalefont setfont 2 4 moveto (M) show showpage\n";
        const Result result = client.Decode(Kind::Eps, FileOf(text).Get(), {});
        ASSERT_EQ(result.outcome, Outcome::Decoded) << font;
        // Stems of a letter, and paper between them.
        const auto black = std::ranges::count(result.pixels->pixels, 0xFF000000u);
        EXPECT_GT(black, 40) << font;
        EXPECT_LT(black, 800) << font;
    }
}

TEST(DrawingProcess, AnEndlessLoopAfterThePageEndsWithItsProcess) {
    Client client(kPatient);
    for (int i = 0; i < 3; ++i) {
        ExpectPage(client, kPage);
        const pid_t process = OnlyChild();
        ExpectPage(client, kPage + kLoop);
        ASSERT_GT(process, 1);
        EXPECT_TRUE(GroupIsGone(process));
    }
}

TEST(DrawingProcess, AnEndlessLoopWithoutAPageFailsInTime) {
    EXPECT_LT(decoder::kDrawingTime, milliseconds(sandbox::ClientOptions().limitMilliseconds));
    Client client(kPatient);
    ExpectPage(client, kPage);
    const pid_t process = OnlyChild();
    EXPECT_EQ(client.Decode(Kind::Eps, FileOf(kEndless).Get(), {}).outcome, Outcome::Failed);
    ASSERT_GT(process, 1);
    EXPECT_TRUE(GroupIsGone(process));
    ExpectPage(client, kPage);
}

}  // namespace
