#include "document/unread_files.h"

#include <algorithm>

namespace document {

void NoteTaken(Application& app, const Text& path, Taken taken) {
    std::erase(app.state.UnreadFiles, path);
    std::string nothing;
    platform::FileError ignored;
    if (taken != Taken::Whole && app.platform.files.Find(path) &&
        !app.platform.files.Read(path, nothing, ignored, 0)) {
        app.state.UnreadFiles.push_back(path);
    }
}

bool KeepUnread(Application& app, const Text& path) {
    std::vector<Text>& unread = app.state.UnreadFiles;
    if (std::find(unread.begin(), unread.end(), path) == unread.end() ||
        !app.platform.files.Find(path)) {
        return true;
    }
    Text mark = u".kept-" + platform::DateText(app.platform.loop.Now());
    std::replace(mark.begin(), mark.end(), u'/', u'-');
    Text name;
    platform::FileError error;
    const bool kept = app.platform.files.SetAside(path, mark, name, error);
    Text told = u"最後まで読み込めなかったファイルがあります。\r\n" + path + u"\r\n";
    if (kept) {
        std::erase(unread, path);
        told += u"上書きせず、次の名前で残しました。\r\n" + name;
    } else {
        told += u"名前を変えられないため、上書きしませんでした。\r\n" + error.message;
    }
    app.platform.dialogs.Message(told, platform::kExclamation, u"パラピコ");
    return kept;
}

}  // namespace document
