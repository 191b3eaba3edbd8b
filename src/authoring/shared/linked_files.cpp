#include "authoring/shared/linked_files.h"

#include <algorithm>
#include <string>
#include <utility>

#include "document/linked_names.h"
#include "macro/cutouts.h"
#include "macro/macro.h"
#include "text/paths.h"

namespace authoring {

namespace {

constexpr TextView kSoundKinds[] = {u"wav", u"mid", u"mp3"};

Text WithEnding(TextView path, size_t cut, TextView ending) {
    return Text(path.substr(0, path.size() - std::min(cut, path.size()))) + Text(ending);
}

/// "_Pb07.dat".
Text DataEnding(int piece) {
    std::string number = std::to_string(piece);
    number.insert(0, number.size() < 2 ? "0" : "");
    return text::FromUtf8("_Pb" + number + ".dat");
}

}  // namespace

const std::set<Text>& LinkedFiles::DataFilesIn(const Text& folder) {
    const auto [found, isNew] = dataFiles_.try_emplace(folder);
    if (isNew) {
        for (const Text& name :
             app_.platform.folders.Files(text::WithoutSeparator(folder), u"*.dat")) {
            found->second.insert(text::Upper(name));
        }
    }
    return found->second;
}

std::vector<LinkedFile> LinkedFiles::Of(TextView slide) {
    constexpr size_t kExtension = 3, kEnding = 4;
    std::vector<LinkedFile> found;
    const auto add = [&](Text path, size_t cut, TextView ending) {
        if (app_.platform.files.Exists(path)) {
            found.push_back({std::move(path), cut, Text(ending)});
        }
    };
    const Text text = macro::MacroFile(app_, slide);
    add(text, kEnding, u".txt");
    for (const TextView kind : kSoundKinds) {
        add(document::LinkedName(app_, slide, kind), kExtension, kind);
    }
    const std::set<Text>& dataFiles = DataFilesIn(text::FolderPart(text));
    for (int piece = 0; piece <= macro::kLastCutout && !dataFiles.empty(); ++piece) {
        const Text ending = DataEnding(piece);
        const Text path = WithEnding(text, kEnding, ending);
        if (dataFiles.contains(text::Upper(text::BareName(path)))) {
            add(path, kEnding, ending);
        }
    }
    return found;
}

Text LinkedNameBeside(TextView slide, const LinkedFile& file) {
    return WithEnding(slide, file.cut, file.ending);
}

}  // namespace authoring
