#include "macro/check_arguments.h"

#include <algorithm>

#include "macro/arguments.h"
#include "macro/call_shape.h"
#include "macro/check_calls.h"
#include "macro/check_numbers.h"
#include "macro/named_files.h"
#include "text/numbers.h"

namespace macro {

namespace {

constexpr size_t kColorDigits = 6;

struct ArgumentCheck {
    FindingList& found;
    platform::Files& files;
    const CheckedSlide& slide;
    const Keyword& keyword;
    TextView line, upper;
};

void CheckColor(const ArgumentCheck& check, TextView color) {
    const size_t wrong = text::Upper(color).find_first_not_of(u"0123456789ABCDEF");
    if (color.size() != kColorDigits) {
        check.found.Add(Flaw::Length, ColumnOf(check.line, color),
                        u"BACKCOLORの色が6文字ではありません", u"000000 になります",
                        u"16進数6文字で書いてください");
    } else if (wrong != Text::npos) {
        check.found.Add(Flaw::Number, ColumnOf(check.line, color) + static_cast<int>(wrong),
                        u"BACKCOLORの色に16進数でない文字があります",
                        u"その文字から後ろは読まれず、別の色になります",
                        u"0～9とA～Fの6文字で書いてください");
    }
}

void CheckQuotedValue(const ArgumentCheck& check) {
    const TextView line = check.line;
    const TextView name = check.keyword.name;
    const TextView value = Quoted(line);
    const size_t first = line.find(u'"');
    const int behindName = static_cast<int>(name.size()) + 1;
    // An empty pair stands in every file that began as the template, and is meant to do nothing.
    const bool emptyPair = line.substr(std::min(first, line.size())).starts_with(u"\"\"");
    if (value.empty() && !emptyPair) {
        check.found.Add(Flaw::Quote, behindName, Text(name) + u"に \"～\" で囲んだ文字がありません",
                        u"何もしません", WriteLike(check.keyword));
    } else if (line.find(u"//") < first) {
        check.found.Add(Flaw::Quote, behindName, Text(name) + u"に \"～\" で囲んだ文字がありません",
                        u"注釈の中の「" + Text(value) + u"」が使われます",
                        WriteLike(check.keyword));
    } else if (name == u"BACKCOLOR" && !value.empty()) {
        CheckColor(check, value);
    }
}

/// The parts between double quotes.
std::vector<TextView> QuotedParts(TextView line) {
    std::vector<TextView> parts;
    for (size_t first = line.find(u'"'); first != TextView::npos;) {
        const size_t last = line.find(u'"', first + 1);
        if (last == TextView::npos) {
            break;
        }
        parts.push_back(line.substr(first + 1, last - first - 1));
        first = line.find(u'"', last + 1);
    }
    return parts;
}

void CheckAction(const ArgumentCheck& check, TextView action) {
    const Text kind = text::KindOf(action);
    if (kind != u"WAV" && kind != u"EXE" && !text::IsVideoKind(action)) {
        check.found.Add(Flaw::NoEffect, ColumnOf(check.line, action),
                        u"「" + Text(action) + u"」は動作になりません",
                        u"クリックしても音も動画も出ません",
                        u"wav、mp4、wmv、mov、avi、exeのファイルにしてください");
    }
}

bool IsProgram(const Keyword& keyword, TextView part) {
    return keyword.name == u"SHELL" || (keyword.name == u"PICPB" && text::KindOf(part) == u"EXE");
}

void CheckFiles(const ArgumentCheck& check) {
    const TextView name = check.keyword.name;
    const bool piece = name == u"PICPB";
    if (name != u"MOVIE" && name != u"PLAYWAV" && !piece && name != u"PICPBDATA") {
        return;
    }
    const TextView cut = BeforeComment(check.line);
    if (std::count(cut.begin(), cut.end(), u'"') % 2 != 0) {
        return;  // a name that a comment or the line's end cuts is reported elsewhere
    }
    const auto path = name == u"MOVIE" ? NamedVideo : NamedFile;
    const auto parts = QuotedParts(cut);
    for (const TextView part : parts) {
        const bool program = check.slide.programs != nullptr && IsProgram(check.keyword, part);
        if (!part.empty() && !program &&
            !check.files.Exists(path(check.files, check.slide.folder, part))) {
            check.found.Add(Flaw::File, ColumnOf(check.line, part),
                            u"「" + Text(part) + u"」がありません", u"表示も再生もされません");
        }
    }
    if (piece && parts.size() > 1 && !parts[0].empty() && !parts[1].empty()) {
        CheckAction(check, parts[1]);
    }
}

/// Programs that a line would start and that are nowhere.
void CheckPrograms(const ArgumentCheck& check) {
    if (check.slide.programs == nullptr) {
        return;
    }
    const bool piece = check.keyword.name == u"PICPB";
    std::vector<TextView> parts;
    if (check.keyword.name == u"SHELL") {
        parts.push_back(Quoted(check.line));
    } else if (piece) {
        parts = QuotedParts(BeforeComment(check.line));
    }
    for (const TextView part : parts) {
        const bool beside =
            piece && check.files.Exists(NamedFile(check.files, check.slide.folder, part));
        if (!part.empty() && IsProgram(check.keyword, part) && !beside &&
            !check.slide.programs->FindsProgram(part, check.slide.document)) {
            check.found.Add(Flaw::File, ColumnOf(check.line, part),
                            u"プログラム「" + Text(part) + u"」が見つかりません",
                            u"何も起動しません",
                            u"名前を直すか、文書のフォルダかPATHのフォルダに置いてください");
        }
    }
}

/// `ahead`: slides from this one to the one that would be shown.
void CheckJump(const ArgumentCheck& check, int column, double ahead) {
    const double target = check.slide.index + ahead;
    if (check.slide.count == 0 || (target >= 1 && target <= check.slide.count)) {
        return;
    }
    check.found.Add(Flaw::Jump, column,
                    Text(check.keyword.name) + u"の移動先がスライドリストの外です",
                    target < 1 ? u"最初のスライドへ移ります" : u"最後のスライドへ移ります");
}

void CheckJumps(const ArgumentCheck& check) {
    const TextView name = check.keyword.name;
    if (name == u"SKIP") {
        const size_t start = std::min(check.upper.find(u'='), check.upper.size() - 1) + 1;
        const double slides = text::SafeNumber(check.upper.substr(start, check.keyword.digits));
        if (slides != 0) {
            CheckJump(check, 1, slides + 1);
        }
        return;
    }
    const size_t count = name == u"YESNOPB" ? 2 : name == u"MENU" || name == u"PICPB" ? 1 : 0;
    const auto fields = CallFields(check.line, 3);
    for (size_t i = 0; i < count && i < fields.size(); ++i) {
        const double slides = text::SafeNumber(fields[i]);
        if (slides != 0) {
            CheckJump(check, ColumnOf(check.line, fields[i]), slides);
        }
    }
}

/// Words that take no value.
void CheckBare(const ArgumentCheck& check) {
    const TextView rest = check.line.substr(check.keyword.name.size());
    const TextView value = Bare(rest);
    if (value.empty() || value.starts_with(u"//")) {
        return;
    }
    const char16_t first = value.front();
    const bool glued = rest.data() == value.data() &&
                       ((first >= u'A' && first <= u'Z') || (first >= u'a' && first <= u'z'));
    if (glued || (first >= u'0' && first <= u'9') || first == u'=' || first == u'(') {
        check.found.Add(Flaw::Surplus, ColumnOf(check.line, value),
                        Text(check.keyword.name) + u"は値を取りません",
                        u"後ろは無視され、" + Text(check.keyword.name) + u"として働きます");
    }
}

}  // namespace

void CheckArguments(FindingList& found, platform::Files& files, const CheckedSlide& slide,
                    const Keyword& keyword, TextView line, TextView upper) {
    const ArgumentCheck check{found, files, slide, keyword, line, upper};
    switch (keyword.form) {
        case Form::Number:
            CheckNumber(found, keyword, upper);
            break;
        case Form::Quoted:
            CheckQuotedValue(check);
            break;
        case Form::Call:
            CheckCall(found, keyword, line);
            break;
        case Form::Bare:
            CheckBare(check);
            return;
        case Form::Comment:
            return;
    }
    CheckFiles(check);
    CheckPrograms(check);
    CheckJumps(check);
}

}  // namespace macro
