#include "macro/check_findings.h"

#include "text/numbers.h"

namespace macro {

namespace {

struct FlawRow {
    Flaw flaw;
    const char* name;
    const char16_t* remedy;
};
constexpr FlawRow kFlaws[] = {
    {Flaw::Word, "word", u"命令の綴りを直すか、文なら「[テキスト]」のあとに書いてください"},
    {Flaw::Indent, "indent", u"行の先頭から書いてください"},
    {Flaw::Swallowed, "swallowed", u"文として表示するなら、前に空白を一つ入れてください"},
    {Flaw::Mark, "mark", u"「[テキスト]」は一度だけ書いてください"},
    {Flaw::Comment, "comment", u"注釈は行の先頭に「//」と書いてください"},
    {Flaw::Equals, "equals", u"「=」を半角で書いてください"},
    {Flaw::Number, "number", u"半角の数字で書いてください"},
    {Flaw::Length, "length", u"短く書いてください"},
    {Flaw::Fraction, "fraction", u"整数で書いてください"},
    {Flaw::Range, "range", u"範囲の中の数にしてください"},
    {Flaw::NoEffect, "no-effect", u"ほかの値にするか、行を消してください"},
    {Flaw::Bracket, "bracket", u"値を半角の「(」と「)」で囲んでください"},
    {Flaw::Quote, "quote", u"半角の「\"」で囲んでください"},
    {Flaw::Fields, "fields", u"足りない値を書いてください"},
    {Flaw::Surplus, "surplus", u"余分な文字を消してください"},
    {Flaw::File, "file", u"名前を直すか、ファイルを画像と同じフォルダに置いてください"},
    {Flaw::Jump, "jump", u"移動数を直してください"},
    {Flaw::Piece, "piece", u"先にPICPBで表示してください"},
    {Flaw::Loop, "loop", u"LOOPとENDLOOPを一つずつ組にしてください"},
    {Flaw::Unreached, "unreached", u"この行を前に移すか、消してください"},
    {Flaw::Colour, "colour", u"先にQBCOLORかRGBで文字の色を決めてください"},
    {Flaw::OffScreen, "off-screen", u"CURRENTXとCURRENTYを直してください"},
};

const FlawRow& RowOf(Flaw flaw) {
    for (const FlawRow& row : kFlaws) {
        if (row.flaw == flaw) {
            return row;
        }
    }
    return kFlaws[0];
}

}  // namespace

void FindingList::Add(Flaw flaw, int column, Text wrong, Text effect, Text remedy) {
    const FlawRow& row = RowOf(flaw);
    rows.push_back({line, column, std::move(wrong), std::move(effect),
                    remedy.empty() ? Text(row.remedy) : std::move(remedy), row.name});
}

Text WriteLike(const Keyword& keyword) {
    return u"「" + Text(keyword.name) + Text(keyword.arguments) + u"」の形で書いてください";
}

Text Shown(double value) {
    return text::Trim(text::Str(value));
}

int ColumnOf(TextView line, TextView part) {
    return static_cast<int>(part.data() - line.data()) + 1;
}

}  // namespace macro
