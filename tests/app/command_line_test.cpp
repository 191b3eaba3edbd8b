// What the command text means.
#include <gtest/gtest.h>

#include "app/start_up.h"

namespace app {
namespace {

struct Case {
    const char16_t* text;
    const char16_t* argument;
    int kind;
};

class CommandLineOf : public testing::TestWithParam<Case> {};

TEST_P(CommandLineOf, GivesPathAndKind) {
    const CommandLine result = ReadCommandLine(GetParam().text);
    EXPECT_EQ(result.argument, GetParam().argument);
    EXPECT_EQ(result.kind, GetParam().kind);
}

INSTANTIATE_TEST_SUITE_P(
    DrivePaths, CommandLineOf,
    testing::Values(Case{u"", u"", 0}, Case{u"   ", u"", 0},
                    Case{u"C:\\a\\x.kvs", u"C:\\a\\x.kvs", 1},
                    Case{u"   C:\\a\\x.kvs", u"C:\\a\\x.kvs", 1},
                    Case{u"\"C:\\a b\\x.kvs\"", u"C:\\a b\\x.kvs", 1},
                    Case{u"  \"C:\\a b\\x.KVL\"", u"C:\\a b\\x.KVL", 2},
                    // Everything before the drive letter falls away.
                    Case{u"/open D:\\x.Kvs", u"/open D:\\x.Kvs", 1},  // but not of a native path
                    Case{u"-open D:\\x.Kvs", u"D:\\x.Kvs", 1},
                    Case{u"\"C:\\x.kvs\" \"D:\\y.kvl\"", u"C:\\x.kvs", 1},
                    Case{u"C:\\x.kvs\" -more", u"C:\\x.kvs", 1},
                    // Only the first colon counts.
                    Case{u"zC:D:\\x.kvs", u"C:D:\\x.kvs", 1},
                    // A colon that is the first character, or none at all, cuts nothing.
                    Case{u":\\x.kvs", u":\\x.kvs", 1}, Case{u"x.kvs", u"x.kvs", 1},
                    Case{u"\\\\host\\share\\x.kvl", u"\\\\host\\share\\x.kvl", 2}));

INSTANTIATE_TEST_SUITE_P(Kinds, CommandLineOf,
                         testing::Values(Case{u"C:\\x.txt", u"C:\\x.txt", 0},
                                         Case{u"C:\\x.kvs ", u"C:\\x.kvs ", 0},
                                         Case{u"C:\\x.kvsx", u"C:\\x.kvsx", 0},
                                         Case{u"kvs", u"kvs", 1}, Case{u"vl", u"vl", 0},
                                         Case{u"C:\\絵１.ｋｖｓ", u"C:\\絵１.ｋｖｓ", 0}));

INSTANTIATE_TEST_SUITE_P(
    Quotes, CommandLineOf,
    testing::Values(Case{u"\"", u"", 0},
                    // Without a drive letter nothing takes the opening quote away.
                    Case{u"\"x.kvs\"", u"", 0}, Case{u"x.kvs\"y", u"x.kvs", 1},
                    Case{u"C:\"\\x.kvs", u"C:", 0}));

INSTANTIATE_TEST_SUITE_P(NativePaths, CommandLineOf,
                         testing::Values(Case{u"/home/me/x.kvs", u"/home/me/x.kvs", 1},
                                         Case{u"  /home/me/a:b.kvs", u"/home/me/a:b.kvs", 1},
                                         Case{u"\"/home/my show/x.kvl\"", u"/home/my show/x.kvl",
                                              2},
                                         Case{u"/a:/x.kvs", u"/a:/x.kvs", 1},
                                         Case{u"/a/5\" disc.kvs", u"/a/5\" disc.kvs", 1},
                                         Case{u"\"/a/5\" disc.kvs", u"/a/5", 0}));

}  // namespace
}  // namespace app
