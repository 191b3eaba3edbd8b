#include "authoring/shared/browser_memory.h"

#include <algorithm>
#include <string>

#include "document/line_reader.h"
#include "document/line_writer.h"
#include "text/paths.h"

namespace authoring {

namespace {

using platform::Place;

constexpr TextView kTag = u"browser1";
constexpr size_t kLongestFile = 1u << 20;  // bytes
constexpr size_t kMostFolders = 30;
constexpr size_t kMostPlaces = 5;
/// From here on all counts are halved, so that what was used long ago makes room.
constexpr int kMostTimes = 100;

Text FilePath(const Application& app) {
    return app.state.AppFolder + u"browser.dat";
}

/// The file has one line for a name.
bool FitsLine(TextView folder) {
    return !folder.empty() && folder.find_first_of(u"\r\n") == TextView::npos;
}

void Write(Application& app, const BrowserMemory& memory) {
    document::LineWriter writer;
    writer.Line(kTag);
    writer.Number(memory.pictures ? 1 : 0);
    writer.Line(memory.last);
    writer.Number(static_cast<double>(memory.used.size()));
    for (const UsedFolder& used : memory.used) {
        writer.Number(used.times);
        writer.Line(used.folder);
    }
    platform::FileError ignored;
    app.platform.files.Write(FilePath(app),
                             text::EncodeFile(writer.Content(), app.platform.codePage), ignored);
}

/// The least used goes where there are too many, of several the one that was used longest ago.
void DropLeastUsed(std::vector<UsedFolder>& used) {
    while (used.size() > kMostFolders) {
        const auto least = std::min_element(
            used.rbegin(), used.rend() - 1,
            [](const UsedFolder& a, const UsedFolder& b) { return a.times < b.times; });
        used.erase(std::next(least).base());
    }
}

}  // namespace

BrowserMemory ReadBrowserMemory(Application& app) {
    std::string bytes;
    platform::FileError error;
    if (!app.platform.files.Exists(FilePath(app)) ||
        !app.platform.files.Read(FilePath(app), bytes, error, kLongestFile)) {
        return {};
    }
    document::LineReader reader(text::DecodeFile(bytes, app.platform.codePage));
    BrowserMemory memory;
    try {
        if (reader.Line() != kTag) {
            return {};
        }
        memory.pictures = reader.Int16() == 1;
        memory.last = reader.Line();
        const int count = std::min<int>(reader.Count16(), kMostFolders);
        for (int i = 0; i < count; ++i) {
            const int times = std::clamp<int>(reader.Int16(), 1, kMostTimes);
            memory.used.push_back({Text(reader.Line()), times});
        }
    } catch (const document::ReadFailure&) {
        return {};
    }
    return memory;
}

void RememberFolder(Application& app, const Text& path) {
    const Text folder = text::WithoutSeparator(path);
    if (!FitsLine(folder)) {
        return;
    }
    BrowserMemory memory = ReadBrowserMemory(app);
    memory.last = folder;
    UsedFolder now{folder, 0};
    const auto known = std::find_if(memory.used.begin(), memory.used.end(),
                                    [&](const UsedFolder& one) { return one.folder == folder; });
    if (known != memory.used.end()) {
        now = *known;
        memory.used.erase(known);
    }
    if (++now.times > kMostTimes) {
        now.times /= 2;
        for (UsedFolder& one : memory.used) {
            one.times = std::max(1, one.times / 2);
        }
    }
    memory.used.insert(memory.used.begin(), std::move(now));
    DropLeastUsed(memory.used);
    Write(app, memory);
}

void RememberPictures(Application& app, bool pictures) {
    BrowserMemory memory = ReadBrowserMemory(app);
    if (memory.pictures != pictures) {
        memory.pictures = pictures;
        Write(app, memory);
    }
}

std::vector<Place> OwnPlaces(Application& app, const BrowserMemory& memory) {
    std::vector<Place> places;
    const auto add = [&](Place::Kind kind, const Text& folder, TextView label) {
        const bool known = std::any_of(places.begin(), places.end(),
                                       [&](const Place& place) { return place.path == folder; });
        if (!folder.empty() && !known && app.platform.folders.IsFolder(folder)) {
            const Text name = text::BareName(folder);
            places.push_back({kind, folder, (name.empty() ? folder : name) + Text(label)});
        }
    };
    if (!app.state.DocumentName.empty()) {
        add(Place::Document, text::WithoutSeparator(app.state.BaseFolder), u"（ショーのフォルダ）");
    }
    add(Place::Last, memory.last, u"（前回のフォルダ）");
    std::vector<UsedFolder> most = memory.used;
    std::stable_sort(most.begin(), most.end(),
                     [](const UsedFolder& a, const UsedFolder& b) { return a.times > b.times; });
    for (size_t i = 0; i < std::min(most.size(), kMostPlaces); ++i) {
        add(Place::Used, most[i].folder, u"");
    }
    return places;
}

}  // namespace authoring
