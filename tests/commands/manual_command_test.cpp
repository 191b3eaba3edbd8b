// --manual as a person calls it: both encodings, standard output or a file, exit status.
#include "adapters/commands/manual_command.h"

#include <gtest/gtest.h>

#include <sstream>

#include "adapters/posix/iconv_code_page.h"
#include "macro/manual.h"
#include "posix/temporary_folder.h"

namespace {

struct ManualCommand : testing::Test {
    TemporaryFolder folder;
    std::ostringstream out, err;
    const std::string marked = text::MarkedUtf8(macro::Manual());
    const std::string inCodePage = *posix_adapter::IconvCodePage().Encode(macro::Manual());

    int Run(std::vector<std::string> arguments) {
        out.str("");
        arguments.insert(arguments.begin(), "--manual");
        return commands::RunManualCommand(arguments, out, err);
    }
};

TEST_F(ManualCommand, WritesMarkedUtf8OrTheCodePage) {
    EXPECT_EQ(Run({}), 0);
    EXPECT_TRUE(out.str() == marked);
    EXPECT_EQ(Run({"--code-page"}), 0);
    EXPECT_TRUE(out.str() == inCodePage);
    EXPECT_EQ(Run({folder.Path("a.txt")}), 0);
    EXPECT_EQ(out.str(), "");
    EXPECT_TRUE(folder.Content("a.txt") == marked);
    EXPECT_EQ(Run({"--code-page", folder.Path("a.txt")}), 0);
    EXPECT_TRUE(folder.Content("a.txt") == inCodePage);
    EXPECT_EQ(err.str(), "");
}

TEST_F(ManualCommand, TellsWhatCannotBeDone) {
    EXPECT_EQ(Run({folder.Path("none/a.txt")}), 1);
    EXPECT_NE(err.str().find("none/a.txt"), std::string::npos);
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"--loud"}, {""}, {"a", "b"}}) {
        EXPECT_EQ(Run(arguments), 2);
    }
    EXPECT_EQ(folder.Count(), 0u);
}

}  // namespace
