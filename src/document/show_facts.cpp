#include "document/show_facts.h"

#include <algorithm>

#include "document/interval.h"
#include "document/line_reader.h"
#include "document/show_tag.h"
#include "model/show_state.h"
#include "text/paths.h"

namespace document {

namespace {

/// Lines that a block of the tag has between the repeat mark and the slides.
struct Block {
    TextView tag;
    int lines;
};
constexpr Block kBlocks[] = {{u"vue", 2},    {u"vue3", 9},    {u"vue31", 2},
                             {u"vue316", 1}, {u"vue3167", 2}, {u"vue31678", 5}};

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
            return facts;
        }
        reader.Line();  // the document's own name
        facts.intervalMs = KeptInterval(reader.Int32());
        reader.Int16();  // repeat
        for (const Block& block : kBlocks) {
            for (int line = 0; tag->starts_with(block.tag) && line < block.lines; ++line) {
                reader.Line();
            }
        }
        ReadSlides(reader, facts);
        facts.accepted = true;
    } catch (const ReadFailure&) {
        // What was read so far stands.
    }
    return facts;
}

}  // namespace document
