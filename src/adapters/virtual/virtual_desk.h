// A clipboard and a wallpaper that no desktop sees.
#pragma once

#include "platform/clipboard.h"
#include "platform/wallpaper.h"

namespace virtual_adapter {

/// Gives back what was put there.
class VirtualClipboard : public platform::Clipboard {
public:
    void PutText(TextView text) override {
        text_ = text;
        files_.clear();
    }
    void PutPicture(const platform::BitmapPtr&) override { PutText({}); }
    void PutFiles(const std::vector<Text>& paths) override {
        text_.clear();
        for (const Text& path : paths) {
            text_ += (text_.empty() ? u"" : u"\n") + path;
        }
        files_ = paths;
    }
    Text GetText() override { return text_; }
    std::vector<Text> GetFiles() override { return files_; }

private:
    Text text_;
    std::vector<Text> files_;
};

/// Takes every file that is there.
class VirtualWallpaper : public platform::Wallpaper {
public:
    explicit VirtualWallpaper(platform::Files& files) : files_(files) {}

    bool Set(TextView file, bool, platform::FileError& error) override {
        if (!files_.Exists(file)) {
            error.message = u"ファイルが見つかりません。";
            return false;
        }
        return true;
    }
    void PutBack() override {}

private:
    platform::Files& files_;
};

}  // namespace virtual_adapter
