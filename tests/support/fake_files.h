// Files in memory, for tests and fuzz targets: contents, dates, and failures on demand.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/files.h"
#include "text/paths.h"

namespace fakes {

/// Paths are told apart without case and with '\' and '/' meaning the same, as the rules ask.
class FakeFiles : public platform::Files {
public:
    struct File {
        Text path;  // as it was first spelt
        std::string content;
        platform::DateTime date;
    };

    /// Date that the next written or put file gets; one second later with each.
    platform::DateTime clock = platform::FromCalendar({2026, 1, 1, 12, 0, 0});
    /// Not empty: every write fails with these words.
    Text writeError;
    bool writeFailsWhileOpening = false;
    /// Not empty: nothing can be set aside, with these words.
    Text setAsideError;
    /// Every write and read that was asked for, in order.
    std::vector<Text> written, read;

    void Put(TextView path, std::string_view content) {
        File& file = files_[Key(path)];
        if (file.path.empty()) {
            file.path = path;
        }
        file.content = content;
        file.date = clock;
        ++clock.seconds;
    }
    void Remove(TextView path) { files_.erase(Key(path)); }
    /// Null when there is no such file.
    const File* Get(TextView path) const {
        const auto found = files_.find(Key(path));
        return found == files_.end() ? nullptr : &found->second;
    }
    /// From now on the file exists and cannot be read.
    void MakeUnreadable(TextView path) { unreadable_.insert(Key(path)); }
    void SetDate(TextView path, platform::DateTime date) { files_.at(Key(path)).date = date; }

    std::optional<std::string> Find(TextView path) override {
        const File* file = Get(path);
        return file ? std::optional(text::ToUtf8(file->path)) : std::nullopt;
    }
    std::string NativeTarget(TextView path) override { return text::ToUtf8(path); }
    Text Dir(TextView path) override {
        const File* file = Get(path);
        return file ? text::BareName(file->path) : Text();
    }
    bool Exists(TextView path) override { return Get(path) != nullptr; }
    bool Read(TextView path, std::string& content, platform::FileError& error,
              size_t limit) override {
        read.emplace_back(path);
        const File* file = Get(path);
        if (!file) {
            error.message = u"ファイルが見つかりません。";
            return false;
        }
        if (unreadable_.contains(Key(path)) || file->content.size() > limit) {
            error.message = u"ファイルを読み込めません。";
            return false;
        }
        content = file->content;
        return true;
    }
    bool Write(TextView path, std::string_view content, platform::FileError& error) override {
        written.emplace_back(path);
        if (!writeError.empty()) {
            error.message = writeError;
            error.whileOpening = writeFailsWhileOpening;
            return false;
        }
        Put(path, content);
        return true;
    }
    bool SetAside(TextView path, TextView mark, Text& name, platform::FileError& error) override {
        if (!Get(path) || !setAsideError.empty()) {
            error.message = Get(path) ? setAsideError : u"ファイルが見つかりません。";
            return false;
        }
        Text kept = Text(path) + Text(mark);
        for (int number = 2; Get(kept); ++number) {
            kept = Text(path) + Text(mark) + u"-" + text::FromUtf8(std::to_string(number));
        }
        Put(kept, Get(path)->content);
        Remove(path);
        unreadable_.erase(Key(path));
        name = text::BareName(kept);
        return true;
    }
    int Readable(TextView path) override {
        return !Get(path) ? 0 : unreadable_.contains(Key(path)) ? 2 : 1;
    }
    bool BeginsWith(TextView path, std::string_view bytes) override {
        return Readable(path) == 1 && Get(path)->content.starts_with(bytes);
    }
    std::optional<platform::DateTime> LastWrite(TextView path) override {
        const File* file = Get(path);
        return file ? std::optional(file->date) : std::nullopt;
    }

    /// What follows the folder in the paths of the files below it, as they were first spelt.
    std::vector<Text> Below(TextView folder) const {
        const Text key = Key(text::WithSeparator(folder));
        std::vector<Text> below;
        for (const auto& [path, file] : files_) {
            if (path.starts_with(key)) {
                below.push_back(file.path.substr(key.size()));
            }
        }
        return below;
    }

    static Text Key(TextView path) {
        Text key = text::Upper(path);
        for (char16_t& c : key) {
            c = c == u'/' ? u'\\' : c;
        }
        return key;
    }

private:
    std::map<Text, File> files_;
    std::set<Text> unreadable_;
};

}  // namespace fakes
