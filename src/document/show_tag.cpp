#include "document/show_tag.h"

namespace document {

std::optional<Text> ShowTag(TextView line) {
    for (TextView longTag : {u"21vue31678", u"21vue316789", u"21vue3167893"}) {
        if (line == longTag) {
            return Text(line.substr(2));
        }
    }
    Text tag = line.starts_with(u"vue") ? Text(line) : text::Mid(line, 2, 8);
    return tag == u"vue2" || tag.starts_with(u"vue3") ? std::optional(std::move(tag))
                                                      : std::nullopt;
}

}  // namespace document
