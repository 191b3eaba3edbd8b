// Which files a show needs, and how they are called where all of them stand in one folder.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <vector>

#include "authoring/shared/linked_files.h"
#include "model/application.h"

namespace authoring {

struct CollectedFile {
    enum Kind { Slide, Linked, Sound, Piece } kind = Slide;  // Piece: named by a macro
    Text from;
    Text to;           // bare name in the folder
    Text slideFolder;  // of a macro: where the names in it count from; empty for any other file
};

/// Order of use: LookAt each slide, then Settle, then the rest. Files with equal names get
/// different ones, and so do slides whose linked files would be taken for each other's.
class CollectPlan {
public:
    explicit CollectPlan(model::Application& app);

    int64_t Slides() const { return static_cast<int64_t>(slides_.size()); }
    /// Notes the slide, its linked files, and what its macro names.
    void LookAt(int64_t slide);
    /// Notes the document's own sounds and gives every file its name.
    void Settle();

    /// Each once, and only those that are there.
    const std::vector<CollectedFile>& Files() const { return files_; }
    const std::vector<Text>& Missing() const { return missing_; }
    /// The folders that the files lie in.
    const std::set<Text>& Folders() const { return folders_; }
    /// No file gets that name any more.
    void Avoid(const Text& name);
    /// The name, or one made of it that no file has got; nor will any other.
    Text FreeName(const Text& wanted);
    /// How a path of the document is called in the folder.
    Text NameOf(const Text& path) const;
    /// The macro with the new names in place of those that would no longer find their files;
    /// nullopt where it can stay as it is.
    std::optional<Text> Rewritten(const CollectedFile& macro, const Text& source);

private:
    struct Source {
        Text key, path;
        bool there = false;
        CollectedFile::Kind kind = CollectedFile::Slide;
    };
    /// Slides that share their linked files: they lie in one folder and differ in the kind alone.
    struct Group {
        Text stem;
        std::vector<Source> slides;
        std::vector<LinkedFile> linked;
        Text macro;  // one of the linked files, or empty
    };

    Source Note(const Text& path, CollectedFile::Kind kind);
    Text KeyOf(const Text& path);
    void LookAtMacro(Group& group, const Source& slide);
    void Need(const Text& path, CollectedFile::Kind kind);
    void Miss(const Text& path);
    void NameGroup(Group& group);
    bool IsFree(const Group& group, const Text& stem) const;
    void NameOther(const Source& source);
    bool IsLinkedNameOfSlide(const Text& upperName) const;
    void Give(const Text& key, const Text& name);

    model::Application& app_;
    LinkedFiles linkedFiles_{app_};
    std::vector<Text> slides_;
    std::map<Text, Text> folderOf_, folderById_;  // one name for each folder, however it is spelt
    std::map<Text, Text> keys_;                   // by path: the file that it is
    std::map<Text, Text> names_;                  // by key
    std::map<Text, size_t> groupOf_;
    std::vector<Group> groups_;
    std::vector<Source> others_;
    std::set<Text> known_, missed_, folders_;
    std::set<Text> taken_;               // names in upper case
    std::set<Text> stems_, soundStems_;  // of slides, in upper case: their linked names are taken
    std::vector<CollectedFile> files_;
    std::vector<Text> missing_;
};

}  // namespace authoring
