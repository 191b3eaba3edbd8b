#include "adapters/door/kind.h"

namespace door {

Kind KindOf(std::string_view start, std::string_view, std::string_view) {
    return start.starts_with("8BPS") ? Kind::Psd : Kind::None;
}

}  // namespace door
