// File changes, clipboard, wallpaper and thumbnails in memory.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <set>
#include <utility>
#include <vector>

#include "fake_files.h"
#include "platform/clipboard.h"
#include "platform/file_changes.h"
#include "platform/file_inquiry.h"
#include "platform/thumbnails.h"
#include "platform/wallpaper.h"

namespace fakes {

/// Over FakeFiles. A copy reports its bytes one by one up to ten, and then at its end.
class FakeFileChanges : public platform::FileChanges {
public:
    explicit FakeFileChanges(FakeFiles& files) : files_(files) {}
    /// Not empty: every change fails with these words.
    Text failure;
    std::vector<Text> trashed, madeFolders;
    std::set<Text> unwritable;

    platform::Outcome Copy(TextView from, TextView to, const platform::Report& report,
                           platform::FileError& error) override {
        const FakeFiles::File* file = files_.Get(from);
        if (!file || !failure.empty()) {
            error.message = file ? failure : u"ファイルが見つかりません。";
            return platform::Outcome::Failed;
        }
        const FakeFiles::File source = *file;
        const auto whole = static_cast<int64_t>(source.content.size());
        for (int64_t done = 0; done < whole && done < 10; ++done) {
            if (report && !report({done, whole})) {
                return platform::Outcome::Stopped;
            }
        }
        if (report && !report({whole, whole})) {
            return platform::Outcome::Stopped;
        }
        files_.Put(to, source.content);
        files_.SetDate(to, source.date);
        return platform::Outcome::Done;
    }
    platform::Outcome Move(TextView from, TextView to, const platform::Report&,
                           platform::FileError& error) override {
        const platform::Outcome outcome = Copy(from, to, {}, error);
        if (outcome == platform::Outcome::Done) {
            files_.Remove(from);
        }
        return outcome;
    }
    bool Trash(TextView path, Text& kept, platform::FileError& error) override {
        kept = u"/trash/" + text::BareName(path);
        if (Move(path, kept, {}, error) != platform::Outcome::Done) {
            return false;
        }
        trashed.emplace_back(path);
        return true;
    }
    bool Restore(TextView kept, TextView path, platform::FileError& error) override {
        if (files_.Get(path)) {
            error.message = u"同じ名前のファイルがすでにあります。";
            return false;
        }
        return Move(kept, path, {}, error) == platform::Outcome::Done;
    }
    bool MakeFolder(TextView path, platform::FileError& error) override {
        error.message = failure;
        madeFolders.emplace_back(path);
        return failure.empty();
    }
    bool CanWrite(TextView path) override { return !unwritable.contains(Text(path)); }

private:
    FakeFiles& files_;
};

class FakeClipboard : public platform::Clipboard {
public:
    Text text;
    platform::BitmapPtr picture;
    std::vector<Text> files;

    void PutText(TextView put) override { Hold(Text(put), nullptr, {}); }
    void PutPicture(const platform::BitmapPtr& put) override { Hold({}, put, {}); }
    void PutFiles(const std::vector<Text>& paths) override { Hold({}, nullptr, paths); }
    Text GetText() override { return text; }
    std::vector<Text> GetFiles() override { return files; }

private:
    void Hold(Text newText, platform::BitmapPtr newPicture, std::vector<Text> newFiles) {
        text = std::move(newText);
        picture = std::move(newPicture);
        files = std::move(newFiles);
    }
};

class FakeWallpaper : public platform::Wallpaper {
public:
    std::vector<std::pair<Text, bool>> set;  // file, lasting
    int putBack = 0;
    /// Not empty: none can be set, with these words.
    Text failure;

    bool Set(TextView file, bool lasting, platform::FileError& error) override {
        error.message = failure;
        if (failure.empty()) {
            set.emplace_back(file, lasting);
        }
        return failure.empty();
    }
    void PutBack() override { ++putBack; }
};

/// Answers when told to: an 8 x 6 picture for a file of FakeFiles, none for any other.
class FakeThumbnails : public platform::Thumbnails {
public:
    explicit FakeThumbnails(FakeFiles& files) : files_(files) {}
    std::map<const void*, std::vector<Text>> wanted;  // what each owner waits for
    int side = 0;                                     // of the last Want

    void Want(const void* owner, const std::vector<Text>& paths, int newSide,
              Ready ready) override {
        wanted[owner] = paths;
        ready_[owner] = std::move(ready);
        side = newSide;
    }
    void Answer() {
        const auto answered = std::exchange(wanted, {});
        for (const auto& [owner, paths] : answered) {
            for (const Text& path : paths) {
                ready_.at(owner)(
                    path, files_.Get(path) ? std::make_shared<platform::Bitmap>(8, 6) : nullptr);
            }
        }
    }

private:
    FakeFiles& files_;
    std::map<const void*, Ready> ready_;
};

/// Answers at once, or when told to: what FakeFiles holds is there, with as many bytes as its
/// content has.
class FakeFileInquiry : public platform::FileInquiry {
public:
    explicit FakeFileInquiry(FakeFiles& files) : files_(files) {}
    std::map<Text, platform::DateTime> taken;
    std::map<Text, platform::PieceLength> lengths;       // by the beginning
    std::map<Text, platform::PieceLength> wholeLengths;  // of files that were read whole
    std::map<Text, std::vector<uint8_t>> levels;
    bool late = false;        // answers wait for Answer
    std::vector<Text> asked;  // every path, in order

    void Ask(const void* owner, std::vector<Text> paths, What what, Ready ready) override {
        asked.insert(asked.end(), paths.begin(), paths.end());
        for (const Text& path : paths) {
            waiting_.push_back({owner, path, what, ready});
        }
        if (!late) {
            Answer();
        }
    }
    void Forget(const void* owner) override {
        std::erase_if(waiting_, [&](const Question& one) { return one.owner == owner; });
    }
    void Answer() {
        while (!waiting_.empty()) {
            AnswerOne();
        }
    }
    void AnswerOne() {
        const Question question = waiting_.front();
        waiting_.pop_front();
        question.ready(question.path, FactsOf(question));
    }

private:
    struct Question {
        const void* owner;
        Text path;
        What what;
        Ready ready;
    };

    platform::FileFacts FactsOf(const Question& question) const {
        platform::FileFacts facts;
        if (const FakeFiles::File* file = files_.Get(question.path)) {
            facts.there = true;
            facts.size = static_cast<int64_t>(file->content.size());
            facts.changed = file->date;
            if (question.what == Content) {
                facts.content = std::make_shared<const std::string>(file->content);
            }
            if (question.what == Beginning) {
                facts.beginning = platform::BeginningSum(file->content);
            }
        }
        const auto& known = question.what == WholeSoundLength ? wholeLengths : lengths;
        const auto length = known.find(question.path);
        const bool asksLength = question.what == SoundLength || question.what == WholeSoundLength;
        if (asksLength && length != known.end()) {
            facts.length = length->second;
        }
        if (question.what == SoundLevels && levels.contains(question.path)) {
            facts.levels = levels.at(question.path);
        }
        const auto found = taken.find(question.path);
        if (question.what == DateTaken && found != taken.end()) {
            facts.taken = found->second;
        }
        return facts;
    }

    FakeFiles& files_;
    std::deque<Question> waiting_;
};

}  // namespace fakes
