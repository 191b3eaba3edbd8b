#include "authoring/slide_list/collect_plan.h"

#include <algorithm>
#include <string>
#include <utility>

#include "macro/file_names.h"
#include "model/windows/slide_list.h"
#include "text/paths.h"

namespace authoring {

namespace {

constexpr size_t kEnding = 4;       // characters of a slide's name after its stem
constexpr size_t kSoundEnding = 3;  // that a linked sound has in place of the slide's
constexpr size_t kMostBytes = 255;  // of a file's name
constexpr size_t kSpareBytes = 24;  // for what a stem gets appended
constexpr TextView kTextEnding = u".txt";
constexpr TextView kNoSound = u"*.wav";

Text WithoutEnd(TextView name, size_t count) {
    return Text(name.substr(0, name.size() - std::min(count, name.size())));
}

/// What any file system, a line of a document and quotes in a macro can hold.
Text Clean(Text name) {
    constexpr TextView kBad = u"\\/:*?\"<>|\u007F";
    for (char16_t& c : name) {
        c = c < u' ' || kBad.find(c) != TextView::npos ? u'_' : c;
    }
    return name;
}

/// The stem with "_2", "_3"… from the second try on.
Text Numbered(Text stem, int number) {
    if (number == 1) {
        return stem;
    }
    while (text::ToUtf8(stem).size() > kMostBytes - kSpareBytes) {
        stem.pop_back();
    }
    if (!stem.empty() && (stem.back() & 0xFC00) == 0xD800) {
        stem.pop_back();  // half of a character
    }
    return stem + text::FromUtf8("_" + std::to_string(number));
}

}  // namespace

CollectPlan::CollectPlan(model::Application& app) : app_(app) {
    for (const Text& row : app.windows.form3.List1.Rows()) {
        slides_.push_back(text::WithFolder(app.state.AppFolder, row));
    }
}

/// Its name on disk after the name by which its folder was met first.
Text CollectPlan::KeyOf(const Text& path) {
    const Text found = text::FromUtf8(app_.platform.files.Find(path).value_or(std::string()));
    const Text folder = text::FolderPart(found);
    const auto [known, isNew] = folderOf_.try_emplace(folder, folder);
    if (isNew) {
        const Text id = app_.platform.folders.Identity(text::WithoutSeparator(folder));
        known->second = id.empty() ? folder : folderById_.try_emplace(id, folder).first->second;
    }
    return known->second + found.substr(folder.size());
}

CollectPlan::Source CollectPlan::Note(const Text& path, CollectedFile::Kind kind) {
    Source source{{}, path, app_.platform.files.Exists(path), kind};
    if (source.there) {
        source.key = KeyOf(path);
        folders_.insert(text::FolderPart(source.key));
    } else {
        source.key = u"?" + text::Upper(path);  // no file's own
    }
    keys_[path] = source.key;
    return source;
}

void CollectPlan::Miss(const Text& path) {
    if (missed_.insert(text::Upper(path)).second) {
        missing_.push_back(path);
    }
}

void CollectPlan::LookAt(int64_t slide) {
    const Text& path = slides_[static_cast<size_t>(slide)];
    if (keys_.contains(path)) {
        return;
    }
    const Source source = Note(path, CollectedFile::Slide);
    if (!known_.insert(source.key).second) {
        return;
    }
    if (!source.there) {
        Miss(path);
    }
    const Text shared = WithoutEnd(source.key, kEnding);
    const auto [found, isNew] = groupOf_.try_emplace(shared, groups_.size());
    if (isNew) {
        groups_.emplace_back();
    }
    Group& group = groups_[found->second];
    group.slides.push_back(source);
    if (isNew) {
        group.stem = Clean(WithoutEnd(text::BareName(source.there ? source.key : path), kEnding));
        group.linked = linkedFiles_.Of(path);
        for (const LinkedFile& file : group.linked) {
            known_.insert(Note(file.path, CollectedFile::Linked).key);
            if (file.ending == kTextEnding) {
                group.macro = file.path;
                LookAtMacro(group, source);
            }
        }
    }
}

void CollectPlan::LookAtMacro(Group& group, const Source& slide) {
    std::string bytes;
    platform::FileError error;
    if (!app_.platform.files.Read(group.macro, bytes, error)) {
        return;  // its copying will say so
    }
    const Text source = text::DecodeHandWrittenFile(bytes, app_.platform.codePage);
    for (const macro::FileName& name : macro::FilesNamed(
             app_.platform.files, text::FolderPart(slide.path), app_.state.BaseFolder, source)) {
        if (app_.platform.files.Exists(name.path)) {
            Need(name.path, CollectedFile::Piece);
        } else if (name.needed) {
            Miss(name.path);
            // No other file may be found in its place.
            Avoid(source.substr(name.at, name.length));
        }
    }
}

void CollectPlan::Need(const Text& path, CollectedFile::Kind kind) {
    if (!keys_.contains(path)) {
        others_.push_back(Note(path, kind));
    }
}

void CollectPlan::Settle() {
    const model::ShowState& state = app_.state;
    std::vector<Text> sounds{state.WavFile, state.MidiFile, state.Mp3File,
                             state.DefaultEffectSound};
    for (int i = 1; state.SoundListUsed == 1 && i <= state.SoundListCount; ++i) {
        sounds.push_back(state.SoundList(i));
    }
    for (const Text& sound : sounds) {
        if (sound.empty() || sound == kNoSound) {
            continue;
        }
        if (app_.platform.files.Exists(sound)) {
            Need(sound, CollectedFile::Sound);
        } else {
            Miss(sound);
        }
    }
    for (Group& group : groups_) {
        NameGroup(group);
    }
    for (const Source& other : others_) {
        if (!names_.contains(other.key)) {
            NameOther(other);
        }
    }
}

bool CollectPlan::IsFree(const Group& group, const Text& stem) const {
    if (stems_.contains(text::Upper(stem))) {
        return false;
    }
    const auto free = [&](const Text& name) { return !taken_.contains(text::Upper(name)); };
    for (const Source& slide : group.slides) {
        const Text name = stem + Clean(text::Right(slide.path, kEnding));
        const auto linkedFree = [&](const LinkedFile& file) {
            return free(LinkedNameBeside(name, file));
        };
        if (!free(name) || !std::all_of(group.linked.begin(), group.linked.end(), linkedFree)) {
            return false;
        }
    }
    return true;
}

void CollectPlan::Give(const Text& key, const Text& name) {
    names_.try_emplace(key, name);
    Avoid(name);
}

void CollectPlan::NameGroup(Group& group) {
    int number = 1;
    while (!IsFree(group, Numbered(group.stem, number))) {
        ++number;
    }
    const Text stem = Numbered(group.stem, number);
    stems_.insert(text::Upper(stem));
    for (const Source& slide : group.slides) {
        const Text name = stem + Clean(text::Right(slide.path, kEnding));
        soundStems_.insert(text::Upper(WithoutEnd(name, kSoundEnding)));
        Give(slide.key, name);
        if (slide.there) {
            files_.push_back({CollectedFile::Slide, slide.path, name, {}});
        }
    }
    const Source& first = group.slides.front();
    for (const LinkedFile& file : group.linked) {
        const Text name = LinkedNameBeside(names_[first.key], file);
        Give(keys_[file.path], name);
        files_.push_back({CollectedFile::Linked, file.path, name,
                          file.path == group.macro ? text::FolderPart(first.path) : Text()});
    }
}

/// Such a name would be taken for the slide's own text, sound or coordinates.
bool CollectPlan::IsLinkedNameOfSlide(const Text& upperName) const {
    constexpr TextView kData = u"_PB00.DAT";
    const Text kind = text::KindOf(upperName);
    if (kind == u"TXT") {
        return stems_.contains(WithoutEnd(upperName, kEnding));
    }
    if (kind == u"DAT") {
        const Text stem = WithoutEnd(upperName, kData.size());
        return stems_.contains(stem) && text::Mid(upperName, stem.size() + 1, 3) == u"_PB";
    }
    const bool sound = kind == u"WAV" || kind == u"MID" || kind == u"MP3";
    return sound && soundStems_.contains(WithoutEnd(upperName, kSoundEnding));
}

Text CollectPlan::FreeName(const Text& wanted) {
    const Text whole = Clean(wanted);
    const size_t dot = std::min(whole.rfind(u'.'), whole.size());
    const Text stem = whole.substr(0, dot), ending = whole.substr(dot);
    const auto usable = [&](const Text& name) {
        const Text upper = text::Upper(name);
        return !taken_.contains(upper) && !IsLinkedNameOfSlide(upper);
    };
    int number = 1;
    while (!usable(Numbered(stem, number) + ending)) {
        ++number;
    }
    Text name = Numbered(stem, number) + ending;
    Avoid(name);
    return name;
}

void CollectPlan::Avoid(const Text& name) {
    taken_.insert(text::Upper(name));
}

void CollectPlan::NameOther(const Source& source) {
    const Text name = FreeName(text::BareName(source.key));
    names_.try_emplace(source.key, name);
    files_.push_back({source.kind, source.path, name, {}});
}

Text CollectPlan::NameOf(const Text& path) const {
    auto key = keys_.find(path);
    if (key == keys_.end()) {
        key = keys_.find(text::WithFolder(app_.state.AppFolder, path));
    }
    const auto name = key == keys_.end() ? names_.end() : names_.find(key->second);
    return name == names_.end() ? text::BareName(path) : name->second;
}

std::optional<Text> CollectPlan::Rewritten(const CollectedFile& macro, const Text& source) {
    auto names =
        macro::FilesNamed(app_.platform.files, macro.slideFolder, app_.state.BaseFolder, source);
    std::reverse(names.begin(), names.end());
    Text result = source;
    for (const macro::FileName& name : names) {
        const auto key = keys_.find(name.path);
        const auto renamed = key == keys_.end() ? names_.end() : names_.find(key->second);
        if (renamed != names_.end() &&
            text::Upper(renamed->second) != text::Upper(result.substr(name.at, name.length))) {
            result.replace(name.at, name.length, renamed->second);
        }
    }
    return result == source ? std::nullopt : std::optional(result);
}

}  // namespace authoring
