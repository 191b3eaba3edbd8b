#include "document/show_facts.h"

#include <string_view>

#include "document/interval.h"
#include "document/line_reader.h"
#include "document/show_tag.h"
#include "model/show_state.h"
#include "text/paths.h"

namespace document {

namespace {

/// What the lines of a block hold: n a number of a setting, t one that is read as text, l a whole
/// line, i an item with the line to itself.
struct Block {
    TextView tag;
    std::string_view lines;
};
/// Between interval and slides.
constexpr Block kBlocks[] = {{u"vue", "nnl"},  {u"vue3", "lnnnnnnnl"}, {u"vue31", "nn"},
                             {u"vue316", "n"}, {u"vue3167", "ln"},     {u"vue31678", "ntnni"}};

void ReadLines(LineReader& reader, std::string_view lines) {
    for (const char line : lines) {
        switch (line) {
            case 'n':
                reader.Int16();
                break;
            case 't':
                NumberOfItem(reader.Item());
                break;
            case 'l':
                reader.Line();
                break;
            default:
                reader.ItemOfLine();
        }
    }
}

/// Each where the file goes on.
void ReadLinesIfAny(LineReader& reader, std::string_view lines) {
    for (size_t i = 0; i < lines.size() && !reader.AtEnd(); ++i) {
        ReadLines(reader, lines.substr(i, 1));
    }
}

void ReadList(LineReader& reader) {
    for (int left = reader.Count16(); left > 0; --left) {
        reader.Line();
    }
}

/// What follows the slides, which tells nothing: a fault in it refuses the document.
void ReadRest(LineReader& reader, int slides) {
    if (!reader.AtEnd()) {
        reader.Number();
        ReadLines(reader, "nn");  // overlap
    }
    if (!reader.AtEnd()) {
        ReadList(reader);  // programme of a CD
    }
    ReadLinesIfAny(reader, "nnnnn");  // the screen
    if (!reader.AtEnd() && reader.Int16() == 1) {
        ReadList(reader);  // sounds
    }
    ReadLinesIfAny(reader, "nlnnnn");  // MP3 and modes
    bool rowRead = false;
    if (!reader.AtEnd()) {
        const TextView item = reader.Item();
        rowRead = item.starts_with(u'-');
        if (!rowRead) {
            NumberOfItem(item);
            ReadLinesIfAny(reader, "n");
        }
    }
    const int rows = reader.AtEnd() ? 0 : slides;
    for (int row = rowRead ? 1 : 0; row < rows; ++row) {
        reader.Item();
    }
}

void ReadSlides(LineReader& reader, ShowFacts& facts) {
    const int32_t count = reader.Int32();
    if (count > model::kSlideListLast) {
        throw ReadFailure{};
    }
    for (int32_t i = 0; i < count; ++i) {
        const TextView path = reader.Line();
        ++(text::IsVideoKind(path) ? facts.films : facts.pictures);
        if (i == 0) {
            facts.first = path;
        }
    }
}

}  // namespace

ShowFacts FactsOfShow(Text content) {
    ShowFacts facts;
    LineReader reader(std::move(content));
    try {
        const std::optional<Text> tag = ShowTag(reader.Line());
        if (!tag) {
            return {};
        }
        reader.Line();  // the document's own name
        facts.intervalMs = KeptInterval(reader.Int32());
        for (const Block& block : kBlocks) {
            if (tag->starts_with(block.tag)) {
                ReadLines(reader, block.lines);
            }
        }
        ReadSlides(reader, facts);
        ReadRest(reader, facts.pictures + facts.films);
        facts.accepted = true;
        return facts;
    } catch (const ReadFailure&) {
        return {};
    }
}

}  // namespace document
