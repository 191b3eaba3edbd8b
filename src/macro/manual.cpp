#include "macro/manual.h"

#include <algorithm>
#include <set>

#include "macro/check_numbers.h"
#include "macro/keywords.h"
#include "macro/manual_prose.h"
#include "text/numbers.h"

namespace macro {

namespace {

constexpr TextView kLineEnd = u"\r\n";
constexpr size_t kColumns = 76;
constexpr TextView kIndent = u"      ";

/// Words of a subject, parted by blanks, in the order in which a person learns them.
struct Subject {
    const char16_t* title;
    const char16_t* words;
};
constexpr Subject kSubjects[] = {
    {u"文字の形と色",
     u"FONTSIZE FONTNO FONTNAME FONTBOLD FONTITALIC FONTUNDERLINE QBCOLOR RGB KAGE ZUREX ZUREY "
     u"BORDERCOLOR"},
    {u"文字の場所と行", u"CURRENTX CURRENTY MOVX MOVY SCREENXY LINESPACE TAB DELAY"},
    {u"特別な文字", u"GRAD TEXTOUT TELOP"},
    {u"待つ、繰り返す", u"SLEEP LOOP ENDLOOP //"},
    {u"ほかのスライドへ移る、終わる", u"SKIP ENDTIME YESNOPB MENU LOCK END"},
    {u"切取画像", u"PICPB MOVPB PICPBTYPE PICPBDATA OVERPIC"},
    {u"画面と画像",
     u"CLS SAVEPIC BIT REVERSE FLIP PENCIL METAL MOSAIC GRAYSCALE POSITION PICRND PICRESIZE "
     u"SIZECTRL OVERLAP DOWNSIZE BACKCOLOR BORDERLESS"},
    {u"音と動画", u"PLAYWAV STOPWAV MOVIE MP3VOL MP3UP MP3DOWN FADEOUT SOUNDSET SOUNDEND"},
    {u"ショーの進め方と効果", u"INTERVAL KOUKA KOUKASP DELKOUKA DELKOUKASP KSPSET"},
    {u"画面の外", u"CURSOR CTRLBOX WINSTATE SHELL"},
};

const char16_t* HowLong(Scope scope) {
    switch (scope) {
        case Scope::None:
            return nullptr;
        case Scope::Slide:
            return u"このスライドの間";
        case Scope::Show:
            return u"次に変えるか START するまで（次のスライドにも残ります）";
        case Scope::Document:
            return u"メニューの設定そのものが変わります（文書を保存すると残ります）";
    }
    return nullptr;
}

const char16_t* HowRounded(Number number) {
    switch (number) {
        case Number::Real:
            return u"";
        case Number::Down:
            return u"（小数は切り捨て）";
        case Number::Whole:
            return u"（小数は近いほうの整数）";
    }
    return u"";
}

Text WhatOtherValuesDo(const Keyword& keyword) {
    switch (keyword.badValue.kind) {
        case BadValue::Unbounded:
            return EffectOfOtherValue(keyword.name);
        case BadValue::Clipped:
            return u"近いほうの端の値になります";
        case BadValue::Ignored:
            return u"この行は無視されます";
        case BadValue::Replaced:
            return Shown(keyword.badValue.replacement) + u" になります";
    }
    return {};
}

bool IsNarrow(char16_t c) {
    return c < 0x80 || (c >= u'｡' && c <= u'ﾟ');
}

/// The text, begun anew on an indented line where the column's end is reached. What may not begin
/// a line hangs over it.
Text Wrapped(TextView text) {
    constexpr TextView kHanging = u"。、）」・";
    Text lines(kIndent);
    size_t column = kIndent.size();
    for (const char16_t c : text) {
        const size_t width = IsNarrow(c) ? 1 : 2;
        const bool breaks = column + width > kColumns && kHanging.find(c) == TextView::npos &&
                            (!IsNarrow(c) || IsNarrow(lines.back()) == false);
        if (breaks) {
            lines += kLineEnd;
            lines += kIndent;
            column = kIndent.size();
        }
        lines += c;
        column += width;
    }
    return lines + Text(kLineEnd);
}

Text NumberLines(const Keyword& keyword) {
    const bool anyNumber = keyword.range.lowest == keyword.range.highest;
    // The numbers of POSITION have a form of their own, which its text describes.
    if (keyword.name == u"POSITION") {
        return {};
    }
    Text lines =
        Wrapped(u"値　　：" +
                (anyNumber ? Text(u"どの数でも")
                           : Shown(keyword.range.lowest) + u"～" + Shown(keyword.range.highest)) +
                HowRounded(keyword.number));
    if (!anyNumber) {
        lines += Wrapped(u"範囲外：" + WhatOtherValuesDo(keyword));
    }
    return lines;
}

Text Entry(const Keyword& keyword) {
    Text lines = u"  " + Text(keyword.name) + Text(keyword.arguments) + Text(kLineEnd) +
                 Wrapped(keyword.documentation);
    if (keyword.form == Form::Number) {
        lines += NumberLines(keyword);
    }
    if (const char16_t* scope = HowLong(keyword.scope)) {
        lines += Wrapped(Text(u"有効　：") + scope);
    }
    return lines + Text(kLineEnd);
}

const Keyword* Find(TextView name) {
    const auto keywords = Keywords();
    const auto row = std::find_if(keywords.begin(), keywords.end(),
                                  [&](const Keyword& keyword) { return keyword.name == name; });
    return row == keywords.end() ? nullptr : &*row;
}

Text Heading(TextView title) {
    return Text(u"【") + Text(title) + u"】" + Text(kLineEnd) + Text(kLineEnd);
}

Text Reference() {
    Text lines;
    std::set<TextView> told;
    for (const Subject& subject : kSubjects) {
        lines += Heading(subject.title);
        for (TextView words = subject.words; !words.empty();) {
            const size_t end = std::min(words.find(u' '), words.size());
            if (const Keyword* keyword = Find(words.substr(0, end))) {
                lines += Entry(*keyword);
                told.insert(keyword->name);
            }
            words.remove_prefix(std::min(end + 1, words.size()));
        }
    }
    bool headed = false;
    for (const Keyword& keyword : Keywords()) {
        if (!told.contains(keyword.name)) {
            lines += headed ? Text() : Heading(u"そのほか");
            lines += Entry(keyword);
            headed = true;
        }
    }
    return lines;
}

Text Lines(std::span<const char16_t* const> prose) {
    Text lines;
    for (const char16_t* line : prose) {
        lines += line;
        lines += kLineEnd;
    }
    return lines;
}

/// The order in which a line is tried: what decides between words that begin alike.
Text Order() {
    Text lines = Wrapped(u"行はこの順に調べられ、最初に合った命令になります。");
    Text names;
    for (const Keyword& keyword : Keywords()) {
        names += (names.empty() ? u"" : u" ") + Text(keyword.name);
    }
    lines += kLineEnd;
    while (!names.empty()) {
        size_t end = names.size();
        if (end > kColumns - kIndent.size()) {
            end = names.rfind(u' ', kColumns - kIndent.size());
        }
        lines += Text(kIndent) + names.substr(0, end) + Text(kLineEnd);
        names.erase(0, end + 1);
    }
    return lines;
}

}  // namespace

Text Manual() {
    return Lines(kManualBeginning) + Text(kLineEnd) + Reference() + Heading(u"命令の順番") +
           Order() + Text(kLineEnd) + Lines(kManualEnd);
}

}  // namespace macro
