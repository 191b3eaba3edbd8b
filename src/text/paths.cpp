#include "text/paths.h"

namespace text {

namespace {

/// Place after the folder part; 0 when the path has none.
size_t NamePlace(TextView path) {
    const TextView enders = IsNativePath(path) ? TextView(u"/") : TextView(u"\\/:");
    const size_t last = path.find_last_of(enders);
    return last == TextView::npos ? 0 : last + 1;
}

}  // namespace

bool IsNativePath(TextView path) {
    return !path.empty() && path.front() == u'/';
}

Text BareName(TextView path) {
    return Text(path.substr(NamePlace(path)));
}

Text FolderPart(TextView path) {
    return Text(path.substr(0, NamePlace(path)));
}

bool HoldsSeparator(TextView path) {
    return IsNativePath(path) || path.find_first_of(u"\\/") != TextView::npos;
}

Text WithFolder(TextView folder, TextView path) {
    return HoldsSeparator(path) ? Text(path) : Text(folder) + Text(path);
}

Text WithSeparator(TextView folder) {
    if (folder.empty()) {
        return {};
    }
    const bool native = IsNativePath(folder);
    const char16_t last = folder.back();
    if (last == u'/' || (!native && last == u'\\')) {
        return Text(folder);
    }
    const bool slashesOnly =
        folder.find(u'/') != TextView::npos && folder.find(u'\\') == TextView::npos;
    return Text(folder) + (native || slashesOnly ? u'/' : u'\\');
}

Text WithoutSeparator(TextView folder) {
    const TextView separators = IsNativePath(folder) ? TextView(u"/") : TextView(u"\\/");
    while (folder.size() > 1 && separators.find(folder.back()) != TextView::npos &&
           folder[folder.size() - 2] != u':') {
        folder.remove_suffix(1);
    }
    return Text(folder);
}

Text WithDefaultExtension(TextView path, TextView extension) {
    const bool hasPoint = Right(path, 4).find(u'.') != Text::npos;
    return hasPoint ? Text(path) : Text(path) + Text(extension);
}

}  // namespace text
