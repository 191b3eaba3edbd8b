// The check says nothing of what the program itself writes: the template of a new macro file, alone
// and with each recipe for cut-out pieces after it.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <map>

#include "macro/check.h"
#include "macro/macro_text.h"
#include "macro/manual.h"
#include "support/fake_platform.h"

namespace {

constexpr int kRecipes = 16;

std::string Data(const char* name) {
    std::ifstream file(std::string(PARAPICO_TEST_DATA "/") + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// Recipes by number. The data file has "# number" before each; its holes are filled in.
std::map<int, std::string> Recipes() {
    std::map<int, std::string> recipes;
    int number = -1;
    std::istringstream file(Data("recipes.txt"));
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("# ")) {
            number = std::stoi(line.substr(2));
            continue;
        }
        const std::map<std::string, std::string> holes = {
            {"{n}", "5"},      {"{DAT}", "花05.dat"}, {"{PIC}", "花.jpg"}, {"{N}", "3"},
            {"{SPEED}", "10"}, {"{CX}", "420"},       {"{CY}", "310"},     {"{MX}", "-420"},
            {"{MY}", "-310"},  {"{DX}", "-1170"},     {"{DY}", "0"},
        };
        for (const auto& [hole, value] : holes) {
            for (size_t at; (at = line.find(hole)) != std::string::npos;) {
                line.replace(at, hole.size(), value);
            }
        }
        recipes[number] += line + "\r\n";
    }
    return recipes;
}

struct Written : testing::Test {
    fakes::FakePlatform fake;

    Written() {
        for (const char16_t* name : {u"花05.dat", u"花.jpg", u"PB.wav", u"滝.mp4"}) {
            fake.files.Put(u"C:\\show\\" + Text(name), "");
        }
        fake.files.Put(u"C:\\app\\PB.wav", "");
    }
    void ExpectSilent(TextView source, int recipe) {
        for (const auto& finding : macro::CheckMacro(fake.files, {u"C:\\show\\", 2, 5}, source)) {
            ADD_FAILURE() << "recipe " << recipe << ":" << finding.line << ":" << finding.column
                          << ": " << text::ToUtf8(finding.wrong);
        }
    }
    /// The file that the program makes.
    Text NewFile(TextView waiting) {
        fake.app.state.UserHeaderFlag = 1;
        fake.app.state.PendingMacroText = waiting;
        fake.files.Remove(u"C:\\show\\花.txt");
        macro::EditMacroText(fake.app, u"C:\\show\\花.jpg");
        const auto* file = fake.files.Get(u"C:\\show\\花.txt");
        return file ? text::DecodeFile(file->content, fake.app.platform.codePage) : Text();
    }
};

TEST_F(Written, TemplateIsSilentLineByLineAndWhole) {
    const Text whole = NewFile(u"");
    EXPECT_GT(whole.size(), 500u);
    ExpectSilent(whole, -1);
    for (TextView rest = whole; !rest.empty();) {
        const size_t end = std::min(rest.find(u'\n'), rest.size() - 1);
        const TextView line = rest.substr(0, end + 1);
        ExpectSilent(line.starts_with(u"花") ? TextView() : line, -1);
        rest.remove_prefix(end + 1);
    }
}

TEST_F(Written, RecipesAreSilentAfterTheTemplateAndAddedToAFile) {
    const auto recipes = Recipes();
    EXPECT_EQ(recipes.size(), size_t{kRecipes});
    for (const auto& [number, lines] : recipes) {
        const Text recipe = text::FromUtf8(lines);
        EXPECT_GT(recipe.size(), 300u) << number;
        EXPECT_EQ(recipe.find(u'{'), Text::npos) << number;
        ExpectSilent(NewFile(recipe), number);
        ExpectSilent(u"QBColor=14\r\n[テキスト]\r\n花の里\r\n" + recipe, number);
    }
}

TEST_F(Written, ExampleOfTheManualIsSilent) {
    const Text manual = macro::Manual();
    const size_t start = manual.find(u"【小さな例】") + 6;
    TextView rest = TextView(manual).substr(start, manual.find(u"（実際の") - start);
    Text example;
    for (size_t at; (at = rest.find(u"    ")) != TextView::npos;) {
        rest.remove_prefix(at + 4);
        example += rest.substr(0, rest.find(u'\n') + 1);
        rest.remove_prefix(rest.find(u'\n'));
    }
    EXPECT_NE(example.find(u"夜明けの海"), Text::npos);
    ExpectSilent(example, -2);
}

}  // namespace
