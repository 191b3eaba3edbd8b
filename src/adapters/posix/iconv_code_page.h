// The ANSI code page through iconv.
#pragma once

#include <string>

#include "text/code_page.h"

namespace posix_adapter {

/// CP932. The conversions are asked of iconv once, when a text first holds more than ASCII, and
/// kept as tables; objects share them and may be used from any thread. A character counts as part
/// of the code page only when it comes back the same: characters that iconv would bend to a
/// look-alike (〜 U+301C, ¥ U+00A5) are refused, so that nothing is lost.
class IconvCodePage : public text::CodePage {
public:
    std::optional<std::string> Encode(TextView value) const override;
    Text Decode(std::string_view bytes) const override;
};

}  // namespace posix_adapter
