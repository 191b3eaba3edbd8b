// What is found out of files, at once and by threads.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <map>
#include <thread>

#include "adapters/imaging/file_inquirer.h"
#include "imaging_support.h"
#include "support/posted_calls.h"

namespace imaging {
namespace {

using platform::FileFacts;
using platform::FileInquiry;

struct Inquiry : testing::Test {
    TemporaryFolder folder;
    std::map<Text, FileFacts> facts;
    std::vector<Text> order;
    FileInquiry::Ready keep = [this](const Text& path, const FileFacts& found) {
        order.push_back(path);
        facts[path] = found;
    };

    FileFacts AtOnce(const Text& path, FileInquiry::What what = FileInquiry::Presence) {
        FileInquirer inquirer({folder.Path("program"), {}, 0});
        inquirer.Ask(this, {path}, what, keep);
        EXPECT_TRUE(facts.contains(path));
        return facts[path];
    }
    Text Put(const std::string& name, const std::string& content) {
        folder.Put(name, content);
        return folder.TextPath(name);
    }
};

TEST_F(Inquiry, SaysWhatIsThere) {
    const Text path = Put("a.jpg", "12345");
    const timespec then{1700000000, 0};
    const timespec times[2] = {then, then};
    utimensat(AT_FDCWD, folder.Path("a.jpg").c_str(), times, 0);
    const FileFacts there = AtOnce(path);
    EXPECT_TRUE(there.there);
    EXPECT_EQ(there.size, 5);
    posix_adapter::PosixFiles files(folder.Path("program"));
    EXPECT_EQ(there.changed, files.LastWrite(path));
    EXPECT_FALSE(there.taken);
    EXPECT_FALSE(AtOnce(folder.TextPath("none.jpg")).there);
    EXPECT_FALSE(AtOnce(folder.TextPath()).there) << "a folder is no file";
    EXPECT_FALSE(AtOnce(u"").there);
    ASSERT_EQ(mkfifo(folder.Path("pipe.jpg").c_str(), 0600), 0);
    EXPECT_FALSE(AtOnce(folder.TextPath("pipe.jpg"), FileInquiry::DateTaken).there);
}

TEST_F(Inquiry, FindsPathsAsTheProgramDoes) {
    Put("Show/Umi.JPG", "1");
    EXPECT_TRUE(AtOnce(folder.TextPath("show/uMI.jpg")).there) << "without case";
    folder.Put("program/drives.conf", "C: = " + folder.Path() + "\n");
    EXPECT_TRUE(AtOnce(u"C:\\Show\\Umi.jpg").there) << "by the drive table";
    EXPECT_FALSE(AtOnce(u"D:\\Show\\Umi.jpg").there);
}

TEST_F(Inquiry, OpensAFileOnlyForTheDateTaken) {
    std::string photograph = Encoded(Quarters(40, 30), "jpg").toStdString();
    std::string tiff = "MM" + std::string("\0\x2A\0\0\0\x08\0\x01", 8);
    tiff += std::string("\x01\x32\0\x02\0\0\0\x14\0\0\0\x1A\0\0\0\0", 16);
    tiff += std::string("2024:05:06 07:08:09", 20);
    const std::string content = std::string("Exif\0\0", 6) + tiff;
    photograph.insert(
        2, std::string("\xFF\xE1\0", 3) + static_cast<char>(content.size() + 2) + content);
    const Text path = Put("a.jpg", photograph);
    EXPECT_FALSE(AtOnce(path).taken);
    const FileFacts photo = AtOnce(path, FileInquiry::DateTaken);
    ASSERT_TRUE(photo.taken);
    EXPECT_EQ(platform::DateTimeText(*photo.taken), u"2024/05/06 07:08:09");
    EXPECT_EQ(photo.size, static_cast<int64_t>(photograph.size()));
    EXPECT_TRUE(AtOnce(Put("b.txt", "no picture"), FileInquiry::DateTaken).there);
}

TEST_F(Inquiry, KnowsAFileByItsBeginning) {
    const std::string content = std::string(platform::kBeginningBytes, 'x') + "end";
    const Text path = Put("a.jpg", content);
    EXPECT_EQ(AtOnce(path, FileInquiry::Beginning).beginning, platform::BeginningSum(content));
    EXPECT_EQ(AtOnce(path, FileInquiry::Beginning).size, static_cast<int64_t>(content.size()));
    EXPECT_FALSE(AtOnce(path).beginning);
    EXPECT_EQ(AtOnce(Put("empty.jpg", ""), FileInquiry::Beginning).beginning,
              platform::BeginningSum(""));
    EXPECT_FALSE(AtOnce(folder.TextPath("none.jpg"), FileInquiry::Beginning).beginning);
}

TEST_F(Inquiry, ByThreadsAnswersEveryQuestionOnTheAskingThread) {
    constexpr size_t kFiles = 1000;
    std::vector<Text> paths;
    for (size_t i = 0; i < kFiles; ++i) {
        const std::string name = std::to_string(i) + ".jpg";
        paths.push_back(i % 2 == 0 ? Put(name, "x") : folder.TextPath(name));
    }
    fakes::PostedCalls posts;
    FileInquirer inquirer({folder.Path("program"), posts.Taker(), 0});
    const auto asking = std::this_thread::get_id();
    inquirer.Ask(this, paths, FileInquiry::Presence, [&](const Text& path, const FileFacts& found) {
        EXPECT_EQ(std::this_thread::get_id(), asking);
        keep(path, found);
    });
    EXPECT_TRUE(order.empty()) << "later, from the event loop";
    posts.RunUntil([&] { return order.size() == kFiles; });
    EXPECT_EQ(facts.size(), kFiles) << "each once";
    for (size_t i = 0; i < kFiles; ++i) {
        EXPECT_EQ(facts[paths[i]].there, i % 2 == 0);
    }
    EXPECT_LE(posts.ran, static_cast<int>(kFiles));
}

/// Paths in the order of their answers, where many were asked for at once and then `late` alone.
std::vector<Text> Answered(const std::string& program, const std::vector<Text>& early,
                           const Text& late) {
    fakes::PostedCalls posts;
    std::vector<Text> order;
    const auto keep = [&](const Text& path, const FileFacts&) { order.push_back(path); };
    FileInquirer inquirer({program, posts.Taker(), 1});
    inquirer.Ask(&posts, early, FileInquiry::Presence, keep);
    inquirer.Ask(&posts, {late}, FileInquiry::Presence, keep);
    posts.RunUntil([&] { return order.size() == early.size() + 1; });
    return order;
}

TEST_F(Inquiry, AnswersWhatWasAskedLastFirst) {
    std::vector<Text> early;
    for (int i = 0; i < 2000; ++i) {
        early.push_back(folder.TextPath("early" + std::to_string(i)));
    }
    const Text late = folder.TextPath("late");
    // The thread may have answered all before the second question came, but not every time.
    bool lateWasEarly = false;
    for (int i = 0; i < 100 && !lateWasEarly; ++i) {
        std::vector<Text> answered = Answered(folder.Path("program"), early, late);
        lateWasEarly = answered.back() != late;
        std::erase(answered, late);
        ASSERT_EQ(answered, early) << "the paths of one question in their order";
    }
    EXPECT_TRUE(lateWasEarly);
}

TEST_F(Inquiry, AForgottenOwnerHearsNothingMore) {
    std::vector<Text> paths;
    for (int i = 0; i < 500; ++i) {
        paths.push_back(folder.TextPath(std::to_string(i)));
    }
    fakes::PostedCalls posts;
    FileInquirer inquirer({folder.Path("program"), posts.Taker(), 0});
    const int first = 0, second = 0;
    bool answered = false;
    const Text last = Put("last.jpg", "x");
    inquirer.Ask(&first, paths, FileInquiry::Presence, keep);
    inquirer.Forget(&first);
    inquirer.Ask(&second, {last}, FileInquiry::Presence,
                 [&](const Text&, const FileFacts&) { answered = true; });
    posts.RunUntil([&] { return answered; });
    EXPECT_TRUE(order.empty());
    // An answer may forget its own owner, and ask anew.
    int heard = 0;
    bool again = false;
    inquirer.Ask(&first, paths, FileInquiry::Presence, [&](const Text&, const FileFacts&) {
        ++heard;
        inquirer.Forget(&first);
        inquirer.Ask(&second, {last}, FileInquiry::Presence,
                     [&](const Text&, const FileFacts&) { again = true; });
    });
    posts.RunUntil([&] { return again; });
    EXPECT_EQ(heard, 1);
}

TEST_F(Inquiry, EndsWithQuestionsLeft) {
    fakes::PostedCalls posts;
    {
        FileInquirer inquirer({folder.Path("program"), posts.Taker(), 0});
        std::vector<Text> paths(5000, folder.TextPath("none"));
        inquirer.Ask(this, paths, FileInquiry::Presence, keep);
    }
    { FileInquirer unused({folder.Path("program"), posts.Taker(), 0}); }
    EXPECT_TRUE(order.empty());
}

}  // namespace
}  // namespace imaging
