#include "text/search_fold.h"

namespace text {

namespace {

/// What half-width U+FF61 and the following are in full width.
constexpr TextView kFullWidth =
    u"。「」、・ヲァィゥェォャュョッーアイウエオカキクケコサシスセソタチツテト"
    u"ナニヌネノハヒフヘホマミムメモヤユヨラリルレロワン";
constexpr TextView kVoiced = u"カキクケコサシスセソタチツテトハヒフヘホ";
constexpr TextView kHalfVoiced = u"ハヒフヘホ";
constexpr int kKatakanaAfterHiragana = 0x60;

constexpr char16_t kFirstBeyondAscii = 0x80;

char16_t UpperOne(char16_t c) {
    return c >= u'a' && c <= u'z' ? static_cast<char16_t>(c - u'a' + u'A') : c;
}

char16_t FoldOne(char16_t c) {
    if (c >= u'！' && c <= u'～') {
        c = static_cast<char16_t>(c - u'！' + u'!');
    } else if (c == u'\u3000') {
        c = u' ';
    } else if (c >= u'｡' && c < u'｡' + static_cast<int>(kFullWidth.size())) {
        c = kFullWidth[static_cast<size_t>(c - u'｡')];
    }
    return UpperOne(c);
}

/// 1 for a voiced mark, 2 for a half-voiced one, 0 for any other character. It is how much further
/// the sound with the mark stands.
int SoundMark(char16_t c) {
    return c == u'ﾞ' || c == u'\u3099' ? 1 : c == u'ﾟ' || c == u'\u309A' ? 2 : 0;
}

/// False where the sound takes no such mark.
bool TakeMark(char16_t& sound, int mark) {
    const bool hiragana = sound >= u'ぁ' && sound <= u'ん';
    const auto katakana = static_cast<char16_t>(sound + (hiragana ? kKatakanaAfterHiragana : 0));
    const TextView takers = mark == 1 ? kVoiced : kHalfVoiced;
    if (mark == 1 && katakana == u'ウ') {
        sound = hiragana ? u'ゔ' : u'ヴ';
        return true;
    }
    if (takers.find(katakana) == TextView::npos) {
        return false;
    }
    sound = static_cast<char16_t>(sound + mark);
    return true;
}

}  // namespace

Text SearchFold(TextView value) {
    Text folded;
    folded.reserve(value.size());
    for (const char16_t c : value) {
        // Most characters by far, of every row with every key that a person presses.
        if (c < kFirstBeyondAscii) {
            folded += UpperOne(c);
            continue;
        }
        const int mark = SoundMark(c);
        if (mark == 0 || folded.empty() || !TakeMark(folded.back(), mark)) {
            folded += FoldOne(c);
        }
    }
    return folded;
}

}  // namespace text
