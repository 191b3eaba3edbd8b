#include "macro/file_names.h"

#include <algorithm>

#include "macro/arguments.h"
#include "macro/keywords.h"
#include "macro/named_files.h"
#include "text/paths.h"

namespace macro {

namespace {

using Names = std::vector<TextView>;

/// The first quoted text, and the second one where the word takes two.
Names OneQuoted(TextView line) {
    return {Quoted(line)};
}

Names TwoQuoted(TextView line) {
    const TextView first = Quoted(line);
    Names names{first};
    if (first.data() != nullptr) {
        const size_t after = static_cast<size_t>(first.data() - line.data()) + first.size() + 1;
        names.push_back(Quoted(line.substr(after)));
    }
    return names;
}

/// The text after the number, in quotes or not.
Names SecondValue(TextView line) {
    const auto fields = CallFields(line, 2);
    const Text name = CallText(line, 1, Unwrapped);
    if (fields.size() < 2 || name.empty()) {
        return {};
    }
    const size_t at = line.find(name, static_cast<size_t>(fields[1].data() - line.data()));
    return at == TextView::npos ? Names() : Names{line.substr(at, name.size())};
}

Text Program(platform::Files& files, TextView documentFolder, TextView name) {
    const bool beside =
        !text::HoldsSeparator(name) && files.Exists(Text(documentFolder) + Text(name));
    return beside ? Text(documentFolder) + Text(name) : Text();
}

struct WordRow {
    TextView word;
    Names (*names)(TextView line);
    Text (*path)(platform::Files& files, TextView folder, TextView name);
    bool program = false;
};
constexpr WordRow kWords[] = {{u"PICPB", TwoQuoted, NamedFile},
                              {u"PICPBDATA", SecondValue, NamedFile},
                              {u"PLAYWAV", OneQuoted, NamedFile},
                              {u"MOVIE", OneQuoted, NamedVideo},
                              {u"SHELL", OneQuoted, Program, true}};

/// Of the word that the line is: the first of all that it begins with.
const WordRow* RowOf(TextView line) {
    const Text upper = text::Upper(line);
    for (const Keyword& keyword : Keywords()) {
        if (upper.starts_with(keyword.name)) {
            const auto* row =
                std::find_if(std::begin(kWords), std::end(kWords),
                             [&](const WordRow& one) { return one.word == keyword.name; });
            return row == std::end(kWords) ? nullptr : row;
        }
    }
    return nullptr;
}

}  // namespace

std::vector<FileName> FilesNamed(platform::Files& files, TextView slideFolder,
                                 TextView documentFolder, TextView source) {
    std::vector<FileName> found;
    TextView rest = source;
    while (!rest.empty()) {
        const TextView line = rest.substr(0, rest.find(u'\n'));
        rest.remove_prefix(std::min(line.size() + 1, rest.size()));
        const WordRow* row = RowOf(line);
        if (row == nullptr) {
            continue;
        }
        for (const TextView name : row->names(BeforeComment(line))) {
            if (name.empty()) {
                continue;
            }
            const Text path = row->path(files, row->program ? documentFolder : slideFolder, name);
            if (!path.empty()) {
                found.push_back({static_cast<size_t>(name.data() - source.data()), name.size(),
                                 path, !row->program});
            }
        }
    }
    return found;
}

}  // namespace macro
