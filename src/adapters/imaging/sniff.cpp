#include "adapters/imaging/sniff.h"

#include <cctype>

namespace imaging {

namespace {

using namespace std::string_view_literals;

/// True for text whose first element is <svg>: a byte-order mark, the XML declaration, comments
/// and a document type may stand before it.
bool IsSvg(std::string_view text) {
    if (text.starts_with("\xEF\xBB\xBF")) {
        text.remove_prefix(3);
    }
    while (true) {
        while (!text.empty() && std::isspace(static_cast<unsigned char>(text.front())) != 0) {
            text.remove_prefix(1);
        }
        std::string_view end;
        if (text.starts_with("<?")) {
            end = "?>";
        } else if (text.starts_with("<!--")) {
            end = "-->";
        } else if (text.starts_with("<!DOCTYPE")) {
            // Its inner part, in brackets, holds declarations that end in '>' themselves.
            const size_t close = text.find('>');
            end = text.find('[') < close ? "]>" : ">";
        } else {
            break;
        }
        const size_t at = text.find(end);
        if (at == std::string_view::npos) {
            return false;
        }
        text.remove_prefix(at + end.size());
    }
    const size_t nameEnd = text.find_first_of(" \t\r\n>/");
    const std::string_view name = text.substr(0, nameEnd);
    return name == "<svg" || (name.starts_with('<') && name.ends_with(":svg"));
}

}  // namespace

Kind SniffKind(std::string_view start) {
    if (start.starts_with("\x89PNG\r\n\x1A\n"sv)) {
        return Kind::Png;
    }
    if (start.starts_with("\xFF\xD8\xFF"sv)) {
        return Kind::Jpeg;
    }
    if (start.starts_with("GIF87a") || start.starts_with("GIF89a")) {
        return Kind::Gif;
    }
    if (start.starts_with("II*\0"sv) || start.starts_with("MM\0*"sv) ||
        start.starts_with("II+\0"sv) || start.starts_with("MM\0+"sv)) {
        return Kind::Tiff;
    }
    if (start.starts_with("RIFF") && start.size() >= 12 && start.substr(8, 4) == "WEBP") {
        return Kind::WebP;
    }
    if (start.starts_with("BM")) {
        return Kind::Bmp;
    }
    return IsSvg(start) ? Kind::Svg : Kind::None;
}

const char* ReaderName(Kind kind) {
    switch (kind) {
        case Kind::Png:
            return "png";
        case Kind::Jpeg:
            return "jpeg";
        case Kind::Bmp:
            return "bmp";
        case Kind::Tiff:
            return "tiff";
        case Kind::Gif:
            return "gif";
        case Kind::WebP:
            return "webp";
        case Kind::Svg:
            return "svg";
        case Kind::None:
            break;
    }
    return "";
}

}  // namespace imaging
