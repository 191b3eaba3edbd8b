#include "adapters/posix/iconv_code_page.h"

#include <iconv.h>

#include <array>
#include <vector>

namespace posix_adapter {

namespace {

constexpr char16_t kReplacement = 0xFFFD;
constexpr size_t kAll16Bit = 0x10000;
constexpr unsigned kAsciiEnd = 0x80;

/// One iconv conversion, closed at the end of its life. Without the system's conversion module
/// every Convert fails, which leaves ASCII.
class Converter {
public:
    Converter(const char* to, const char* from) : handle_(iconv_open(to, from)) {}
    ~Converter() {
        if (Open()) {
            iconv_close(handle_);
        }
    }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    /// Converts the whole input; false when it is no complete character. `size` is what was
    /// written to `output`, in bytes.
    template <typename Input, typename Output>
    bool Convert(const Input* input, size_t inputBytes, Output* output, size_t outputBytes,
                 size_t& size) {
        if (!Open()) {
            return false;
        }
        iconv(handle_, nullptr, nullptr, nullptr, nullptr);
        char* from = reinterpret_cast<char*>(const_cast<Input*>(input));
        char* to = reinterpret_cast<char*>(output);
        size_t left = outputBytes;
        const size_t result = iconv(handle_, &from, &inputBytes, &to, &left);
        size = outputBytes - left;
        return result != static_cast<size_t>(-1) && inputBytes == 0;
    }

private:
    bool Open() const { return handle_ != reinterpret_cast<iconv_t>(-1); }

    iconv_t handle_;
};

// Each table takes thousands of conversions: it is filled when a text first needs it, which a show
// whose names are ASCII never does.

struct Decoding {
    std::array<char16_t, 256> single{};                             // 0: no character of one byte
    std::vector<char16_t> twin = std::vector<char16_t>(kAll16Bit);  // by lead × 256 + trail

    Decoding() {
        Converter converter("UTF-16LE", "CP932");
        for (unsigned lead = 0; lead < 0x100; ++lead) {
            const char one = static_cast<char>(lead);
            char16_t unit = 0;
            size_t size = 0;
            if (lead < kAsciiEnd) {
                single[lead] = static_cast<char16_t>(lead);
                continue;
            }
            if (converter.Convert(&one, 1, &unit, sizeof unit, size) && size == sizeof unit) {
                single[lead] = unit;
                continue;
            }
            for (unsigned trail = 0x40; trail < 0x100; ++trail) {
                const std::array<char, 2> two = {one, static_cast<char>(trail)};
                if (converter.Convert(two.data(), two.size(), &unit, sizeof unit, size) &&
                    size == sizeof unit) {
                    twin[lead << 8 | trail] = unit;
                }
            }
        }
    }

    char16_t Decoded(uint16_t code) const { return code < 0x100 ? single[code] : twin[code]; }
};

const Decoding& SharedDecoding() {
    static const Decoding table;
    return table;
}

struct Encoding {
    std::vector<uint16_t> codes = std::vector<uint16_t>(kAll16Bit);  // 0: none

    Encoding() {
        const Decoding& decoding = SharedDecoding();
        Converter converter("CP932", "UTF-16LE");
        for (unsigned code = kAsciiEnd; code < kAll16Bit; ++code) {
            const char16_t unit = static_cast<char16_t>(code);
            std::array<unsigned char, 4> bytes{};
            size_t size = 0;
            if (!converter.Convert(&unit, sizeof unit, bytes.data(), bytes.size(), size) ||
                size == 0 || size > 2) {
                continue;
            }
            const unsigned value = size == 1 ? bytes[0] : unsigned{bytes[0]} << 8 | bytes[1];
            if (decoding.Decoded(static_cast<uint16_t>(value)) == unit) {
                codes[code] = static_cast<uint16_t>(value);
            }
        }
    }
};

const Encoding& SharedEncoding() {
    static const Encoding table;
    return table;
}

}  // namespace

std::optional<std::string> IconvCodePage::Encode(TextView value) const {
    std::string result;
    result.reserve(value.size() * 2);
    for (const char16_t unit : value) {
        if (unit < kAsciiEnd) {
            result.push_back(static_cast<char>(unit));
            continue;
        }
        const uint16_t code = SharedEncoding().codes[unit];
        if (code == 0) {
            return std::nullopt;
        }
        if (code >= 0x100) {
            result.push_back(static_cast<char>(code >> 8));
        }
        result.push_back(static_cast<char>(code & 0xFF));
    }
    return result;
}

Text IconvCodePage::Decode(std::string_view bytes) const {
    Text result;
    result.reserve(bytes.size());
    for (size_t i = 0; i < bytes.size(); ++i) {
        const auto lead = static_cast<unsigned char>(bytes[i]);
        if (lead < kAsciiEnd) {
            result.push_back(lead);
            continue;
        }
        const Decoding& decoding = SharedDecoding();
        char16_t unit = decoding.single[lead];
        if (unit == 0 && i + 1 < bytes.size()) {
            const auto trail = static_cast<unsigned char>(bytes[i + 1]);
            unit = decoding.twin[static_cast<size_t>(lead) << 8 | trail];
            i += unit != 0 ? 1 : 0;
        }
        result.push_back(unit == 0 ? kReplacement : unit);
    }
    return result;
}

}  // namespace posix_adapter
