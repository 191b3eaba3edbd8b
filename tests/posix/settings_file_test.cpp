#include "adapters/posix/settings_file.h"

#include <gtest/gtest.h>

#include "posix/temporary_folder.h"

namespace {

using posix_adapter::UserSetting;

TEST(SettingsFile, GivesTheValueWithoutBlanks) {
    TemporaryFolder folder;
    folder.Put("settings.conf", "# cd = /a\n\n  cd =  /home/me/my disc = 1.cue \r\nrec=x\ncd=/b");
    EXPECT_EQ(UserSetting(folder.Path() + "/", "cd"), "/home/me/my disc = 1.cue");
    EXPECT_EQ(UserSetting(folder.Path() + "/", "rec"), "x");
}

TEST(SettingsFile, IsEmptyWithoutLineOrFile) {
    TemporaryFolder folder;
    EXPECT_EQ(UserSetting(folder.Path() + "/", "cd"), "");
    folder.Put("settings.conf", "cdrom=/a\ncd\n");
    EXPECT_EQ(UserSetting(folder.Path() + "/", "cd"), "");
    EXPECT_EQ(UserSetting(folder.Path("none/"), "cd"), "");
}

TEST(SettingsFile, OnlyTheNameOfTheLinesChangesTheCanvas) {
    struct Row {
        const char* file;
        bool lines;
    };
    for (const Row& row : {Row{"", false},
                           {"macro-scale = monitor\n", false},
                           {"macro-scale=1080\n", true},
                           {"macro-scale = 2160\n", false}}) {
        TemporaryFolder folder;
        folder.Put("settings.conf", row.file);
        EXPECT_EQ(posix_adapter::ReadUserSettings(folder.Path() + "/").canvasOf1080Lines, row.lines)
            << row.file;
    }
}

TEST(SettingsFile, OnlyOwnSizeKeepsFilmsSmall) {
    struct Row {
        const char* file;
        bool keeps;
    };
    for (const Row& row : {Row{"", false},
                           {"film = monitor\n", false},
                           {"film=own size\r\n", true},
                           {"film = own\n", false}}) {
        TemporaryFolder folder;
        folder.Put("settings.conf", row.file);
        EXPECT_EQ(posix_adapter::ReadUserSettings(folder.Path() + "/").filmsKeepTheirSize,
                  row.keeps)
            << row.file;
    }
}

}  // namespace
