#include "macro/named_files.h"

#include <optional>

#include "text/paths.h"

namespace macro {

namespace {

bool IsRelative(TextView name) {
    const bool drive = name.size() > 1 && name[1] == u':';
    return !name.empty() && !text::IsNativePath(name) && name.front() != u'\\' && !drive;
}

std::optional<Text> BesideSlide(platform::Files& files, TextView slideFolder, TextView name) {
    const Text path = Text(slideFolder) + Text(name);
    const bool there = !slideFolder.empty() && IsRelative(name) && files.Exists(path);
    return there ? std::optional<Text>(path) : std::nullopt;
}

}  // namespace

Text NamedFile(platform::Files& files, TextView slideFolder, TextView name) {
    return BesideSlide(files, slideFolder, name).value_or(text::WithFolder(slideFolder, name));
}

Text NamedVideo(platform::Files& files, TextView slideFolder, TextView name) {
    return BesideSlide(files, slideFolder, name).value_or(Text(name));
}

}  // namespace macro
