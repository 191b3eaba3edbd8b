// The commands that look at documents, on files of this machine.
#include "adapters/commands/inspect.h"

#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "document/state_support.h"

namespace document_tests {
namespace {

namespace fs = std::filesystem;

class Inspect : public ::testing::Test {
protected:
    Inspect() {
        std::string pattern = ::testing::TempDir() + "inspectXXXXXX";
        folder_ = mkdtemp(pattern.data());
    }
    ~Inspect() override { fs::remove_all(folder_); }

    std::string Put(const std::string& name, const std::string& content) {
        const std::string path = folder_ + "/" + name;
        std::ofstream(path, std::ios::binary) << content;
        return path;
    }
    std::string PutLines(const std::string& name, const Lines& lines) {
        return Put(name, text::EncodeFile(TextOf(lines), codePage_));
    }
    static std::string Content(const std::string& path) {
        std::ostringstream content;
        content << std::ifstream(path, std::ios::binary).rdbuf();
        return content.str();
    }
    int Run(std::vector<std::string> arguments) {
        out_.str("");
        err_.str("");
        return commands::RunDocumentCommand(arguments, out_, err_);
    }
    bool Printed(const std::string& part) const {
        return out_.str().find(part) != std::string::npos;
    }
    size_t FilesInFolder() const {
        return static_cast<size_t>(
            std::distance(fs::directory_iterator(folder_), fs::directory_iterator()));
    }

    std::string folder_;
    posix_adapter::IconvCodePage codePage_;
    std::ostringstream out_, err_;
};

TEST_F(Inspect, PrintsWhatADocumentSets) {
    const std::string path = PutLines("a.kvs", With(FullDocument(), 27, {u"一.jpg", u"C:\\b.jpg"}));
    EXPECT_EQ(Run({"--inspect", path}), 0);
    for (const std::string& part : std::vector<std::string>{
             "{\"ok\":true,\"kind\":\"kvs\",\"tag\":\"21vue3167893\",\"state\":{",
             "\"SlideIntervalSec\":7,", "\"ShowEffectSpeed\":-5,", "\"ControlBoxFlag\":1,",
             "\"LinkedFolder\":\"C:\\\\linked\",", "\"DocumentName\":\"a.kvs\",",
             "\"BaseFolder\":\"" + folder_ + "/\",", "\"SlideListEnd\":3,",
             "\"Form1.Timer1.Interval\":7000}",
             "\"List1\":[\"" + folder_ + "/一.jpg\",\"C:\\\\b.jpg\"]",
             "\"SlideList\":[\"" + folder_ + "/一.jpg\",\"C:\\\\b.jpg\"]",
             "\"List2\":[\"2026/01/0210:302026/12/3123:59\",\"                              \"]",
             "\"ScheduleFrom\":[\"2026/01/02 10:30\",\"                \"]",
             "\"CdProgram\":[\"4\",\"7\"]", "\"SoundList\":[\"C:\\\\snd\\\\list.mp3\"]",
             "\"LinkList\":[]", "\"messages\":[]}\n"}) {
        EXPECT_TRUE(Printed(part)) << part << "\n" << out_.str();
    }
    for (const model::Setting& setting : model::Settings()) {
        EXPECT_TRUE(Printed("\"" + std::string(setting.name) + "\":"));
    }
    EXPECT_EQ(FilesInFolder(), 1u);
}

TEST_F(Inspect, TellsWhatAUserWouldHaveSeen) {
    const std::string path = Put("bad.kvs", "nothing\r\n");
    EXPECT_EQ(Run({"--inspect", path}), 1);
    EXPECT_TRUE(Printed("{\"ok\":false,\"kind\":\"kvs\",\"tag\":\"nothing\""));
    EXPECT_TRUE(Printed("\"messages\":[{\"title\":\"ファイルを開く\",\"text\":\"" + path +
                        "\\r\\nこのファイル名は適合しません。\",\"flags\":48}]"));
    EXPECT_TRUE(Printed("\"ShowAbort\":1"));
}

TEST_F(Inspect, RefusesWhatCannotBeRead) {
    for (const std::string& path : {folder_ + "/missing.kvs", folder_}) {
        EXPECT_EQ(Run({"--inspect", path}), 1);
        EXPECT_TRUE(Printed("{\"ok\":false"));
        EXPECT_TRUE(Printed("\"messages\":[{\"title\":\"\",\"text\":\""));
    }
}

TEST_F(Inspect, KnowsTheKinds) {
    const std::string links = Put("l.kvl", "1vue3167\r\nx\r\n 1 \r\na.kvs\r\n");
    EXPECT_EQ(Run({"--inspect", links}), 0);
    EXPECT_TRUE(Printed("\"kind\":\"kvl\""));
    EXPECT_TRUE(Printed("\"LinkList\":[\"" + folder_ + "/a.kvs\"]"));

    const std::string sounds = Put("wavlist.dat", "WAV3.4\r\n 1 \r\na.wav\r\n");
    EXPECT_EQ(Run({"--inspect", sounds}), 0);
    EXPECT_TRUE(Printed("\"kind\":\"wavlist\""));
    EXPECT_TRUE(Printed("\"SoundList\":[\"" + folder_ + "/a.wav\"]"));
    Put("wavlist.dat", "WAV3.3\r\n 1 \r\na.wav\r\n");
    EXPECT_EQ(Run({"--inspect", sounds}), 1);
    EXPECT_TRUE(Printed("{\"ok\":false,\"kind\":\"wavlist\",\"tag\":\"WAV3.3\""));
}

TEST_F(Inspect, PrintsTheStateOfTheLastRun) {
    const std::string content =
        text::EncodeFile(TextOf(With(FullState(), "slide", u"bare.jpg")), codePage_);
    // The tag tells it whatever its name.
    for (const char* name : {"autstart.dat", "copy.bak"}) {
        EXPECT_EQ(Run({"--inspect", Put(name, content)}), 0);
        for (const std::string& part : std::vector<std::string>{
                 "{\"ok\":true,\"kind\":\"autstart\",\"tag\":\"V2.1a3567893sp6\",\"state\":{",
                 "\"AutoStartFlag\":0,", "\"ResumeIndex\":17,", "\"MonitorIndex\":1,",
                 "\"UserHeaderFlag\":1,", "\"DocumentPath\":\"C:\\\\show\\\\表.kvs\",",
                 "\"Form1.Timer1.Interval\":9000}",
                 "\"List1\":[\"" + folder_ + "/bare.jpg\",\"C:\\\\pic\\\\x.avi\"]",
                 "\"ScheduleFrom\":[\"2026/01/02 10:30\",\"                \"]",
                 "\"CdProgram\":[\"4\",\"7\"]", "\"messages\":[]}\n"}) {
            EXPECT_TRUE(Printed(part)) << part << "\n" << out_.str();
        }
        EXPECT_FALSE(Printed("\"Points\""));
    }
}

TEST_F(Inspect, KnowsTheOldestStateFilesByTheirName) {
    EXPECT_EQ(Run({"--inspect", Put("Autstart.dat", "0\r\n")}), 0);
    EXPECT_TRUE(Printed("{\"ok\":true,\"kind\":\"autstart\",\"tag\":\"0\""));
    EXPECT_TRUE(Printed("\"AutoStartFlag\":0,"));
    EXPECT_EQ(Run({"--inspect", Put("Autstart.dat", "nothing\r\n")}), 1);
    EXPECT_TRUE(Printed("{\"ok\":false,\"kind\":\"autstart\",\"tag\":\"nothing\""));
    EXPECT_TRUE(Printed("\"messages\":[]"));
}

TEST_F(Inspect, PrintsTheLinkWindowsState) {
    const std::string content =
        "KVSV3\r\n 1 \r\n 1 \r\n 0 \r\nall.kvl\r\n 2 \r\na.kvs\r\nC:\\b.kvs\r\n";
    EXPECT_EQ(Run({"--inspect", Put("uautst.dat", content)}), 0);
    EXPECT_TRUE(Printed("{\"ok\":true,\"kind\":\"uautst\",\"tag\":\"KVSV3\""));
    EXPECT_TRUE(Printed("\"LinkAutoFlag\":1,\"LinkRepeat\":1,\"LinkCheck3\":0"));
    EXPECT_TRUE(Printed("\"LinkDocumentName\":\"all.kvl\""));
    EXPECT_TRUE(Printed("\"LinkList\":[\"" + folder_ + "/a.kvs\",\"C:\\\\b.kvs\"]"));
    EXPECT_EQ(Run({"--inspect", Put("Uautst.dat", "KVSV2\r\n 1 \r\n")}), 1);
    EXPECT_TRUE(Printed("{\"ok\":false,\"kind\":\"uautst\",\"tag\":\"KVSV2\""));
    EXPECT_TRUE(Printed("\"LinkAutoFlag\":0,"));
}

TEST_F(Inspect, PrintsThePointsOfACoordinateFile) {
    EXPECT_EQ(Run({"--inspect", Put("x.dat", "KVS_PICTYPE_DATA\r\n1,2\r\n-3,40\r\n")}), 0);
    EXPECT_TRUE(
        Printed("{\"ok\":true,\"kind\":\"cutout\",\"tag\":\"KVS_PICTYPE_DATA\",\"state\":{"));
    EXPECT_TRUE(Printed(",\"Points\":[[1,2],[-3,40]],\"messages\":[]}\n"));
    EXPECT_EQ(Run({"--inspect", Put("one_line.txt", " KVS_PICTYPE_DATA ,5,6")}), 0);
    EXPECT_TRUE(Printed("\"tag\":\"KVS_PICTYPE_DATA\""));
    EXPECT_TRUE(Printed("\"Points\":[[5,6]]"));
    EXPECT_EQ(Run({"--inspect", Put("x.dat", "KVS_PICTYPE_DATE\r\n1,2\r\n")}), 1);
    EXPECT_TRUE(Printed("{\"ok\":false,\"kind\":\"cutout\",\"tag\":\"KVS_PICTYPE_DATE\""));
    EXPECT_TRUE(Printed("\"Points\":[]"));
}

TEST_F(Inspect, TakesRelativePathsFromTheCurrentFolder) {
    PutLines("rel.kvs", FullDocument());
    const fs::path before = fs::current_path();
    fs::current_path(folder_);
    const int plain = Run({"--inspect", "rel.kvs"});
    EXPECT_TRUE(Printed("\"DocumentPath\":\"" + fs::current_path().string() + "/rel.kvs\""));
    const int dotted = Run({"--inspect", "./rel.kvs"});
    EXPECT_TRUE(Printed("\"DocumentPath\":\"" + fs::current_path().string() + "/rel.kvs\""));
    fs::current_path(before);
    EXPECT_EQ(plain, 0);
    EXPECT_EQ(dotted, 0);
}

TEST_F(Inspect, ResavesInTodaysForm) {
    const std::string in = PutLines("in.kvs", FullDocument());
    const std::string target = folder_ + "/out.kvs";
    EXPECT_EQ(Run({"--resave", in, target}), 0);
    const Text name = text::FromUtf8(target);
    EXPECT_EQ(Content(target),
              text::EncodeFile(TextOf(With(FullDocument(), 2, {name})), codePage_));
    EXPECT_EQ(FilesInFolder(), 2u);

    const std::string old = PutLines("old.kvs", {{1, u"vue2"},
                                                 {2, u"old.kvs"},
                                                 {3, u"5000"},
                                                 {4, u"1"},
                                                 {5, u"3"},
                                                 {6, u"*.wav"},
                                                 {26, u"1"},
                                                 {27, u"a.jpg"}});
    EXPECT_EQ(Run({"--resave", old, target, "--distribution"}), 0);
    EXPECT_TRUE(Content(target).starts_with(
        "21vue3167893\r\nout.kvs\r\n 5000 \r\n 1 \r\n 7 \r\n*.wav\r\n\r\n 9 \r\n"));
    EXPECT_NE(Content(target).find("\r\n 1 \r\na.jpg\r\n480\r\n"), std::string::npos);
}

TEST_F(Inspect, ResaveTellsWhyItCannot) {
    const std::string target = folder_ + "/out.kvs";
    EXPECT_EQ(Run({"--resave", Put("bad.kvs", "?"), target}), 1);
    EXPECT_NE(err_.str().find("このファイル名は適合しません。"), std::string::npos);
    EXPECT_FALSE(fs::exists(target));
    const std::string in = PutLines("in.kvs", FullDocument());
    EXPECT_EQ(Run({"--resave", in, folder_ + "/no/such/folder/out.kvs"}), 1);
    EXPECT_FALSE(err_.str().empty());
}

TEST_F(Inspect, TellsWhenItsOutputIsLost) {
    const std::string path = PutLines("a.kvs", FullDocument());
    std::ofstream full("/dev/full");
    EXPECT_EQ(commands::RunDocumentCommand({"--inspect", path}, full, err_), 1);
    EXPECT_FALSE(err_.str().empty());
}

TEST_F(Inspect, WrongUsage) {
    for (const std::vector<std::string>& arguments :
         std::vector<std::vector<std::string>>{{},
                                               {"--inspect"},
                                               {"--inspect", "a", "b"},
                                               {"--inspect", "a", "--distribution"},
                                               {"--resave", "a"},
                                               {"--resave", "a", "b", "c"},
                                               {"--resave", "a", "b", "--other"},
                                               {"--else", "a"}}) {
        EXPECT_EQ(Run(arguments), 2);
        EXPECT_TRUE(out_.str().empty());
        EXPECT_FALSE(err_.str().empty());
    }
}

}  // namespace
}  // namespace document_tests
