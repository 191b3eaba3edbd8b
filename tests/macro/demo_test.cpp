// The demo's macro files use every word, and are written as the check would have them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "macro/check.h"
#include "macro/keywords.h"
#include "support/fake_platform.h"

namespace {

constexpr int kSlides = 7;

Text DemoMacro(int slide) {
    std::ifstream file(PARAPICO_SOURCE_DIR "/demo/macros/マクロ" + std::to_string(slide) + ".txt",
                       std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    return text::DecodeHandWrittenFile(bytes, posix_adapter::IconvCodePage());
}

/// The word whose line it is; empty for a text.
TextView WordOf(TextView line) {
    const Text upper = text::Upper(line);
    for (const macro::Keyword& keyword : macro::Keywords()) {
        if (upper.starts_with(keyword.name)) {
            return keyword.name;
        }
    }
    return {};
}

TEST(DemoMacros, TogetherUseEveryWord) {
    std::set<TextView> used;
    for (int slide = 1; slide <= kSlides; ++slide) {
        const Text source = DemoMacro(slide);
        for (TextView rest = source; !rest.empty();) {
            const size_t end = std::min(rest.find(u'\n'), rest.size());
            used.insert(WordOf(rest.substr(0, end)));
            rest.remove_prefix(std::min(end + 1, rest.size()));
        }
    }
    for (const macro::Keyword& keyword : macro::Keywords()) {
        EXPECT_TRUE(used.contains(keyword.name)) << text::ToUtf8(keyword.name);
    }
}

TEST(DemoMacros, CheckFindsNothing) {
    fakes::FakePlatform fake;
    for (const char16_t* name : {u"花.png", u"葉.dat", u"PB.wav"}) {
        fake.files.Put(u"C:\\demo\\" + Text(name), "");
    }
    for (int slide = 1; slide <= kSlides; ++slide) {
        const Text source = DemoMacro(slide);
        EXPECT_FALSE(source.empty()) << slide;
        for (const auto& finding :
             macro::CheckMacro(fake.files, {u"C:\\demo\\", slide, kSlides}, source)) {
            ADD_FAILURE() << slide << ":" << finding.line << ": " << text::ToUtf8(finding.wrong);
        }
    }
}

}  // namespace
