#include "macro/check.h"

#include <algorithm>

#include "macro/arguments.h"
#include "macro/call_shape.h"
#include "macro/check_arguments.h"
#include "macro/check_course.h"

namespace macro {

namespace {

/// Insertions, removals and replacements between two words.
size_t Distance(TextView a, TextView b) {
    std::vector<size_t> row(b.size() + 1);
    for (size_t j = 0; j <= b.size(); ++j) {
        row[j] = j;
    }
    for (size_t i = 1; i <= a.size(); ++i) {
        size_t diagonal = row[0];
        row[0] = i;
        for (size_t j = 1; j <= b.size(); ++j) {
            const size_t replaced = diagonal + (a[i - 1] == b[j - 1] ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({row[j] + 1, row[j - 1] + 1, replaced});
        }
    }
    return row[b.size()];
}

constexpr size_t kLongestWord = 24;

/// What stands at the beginning of the line up to '=', '(' or a blank.
TextView FirstWord(TextView line) {
    return line.substr(0, std::min(line.find_first_of(u"=( \t\"/"), kLongestWord));
}

/// The word of the language that is least far from it; empty where none is near.
TextView Nearest(TextView word) {
    TextView nearest;
    size_t best = std::max<size_t>(word.size() / 3, 1) + 1;
    for (const Keyword& keyword : Keywords()) {
        const size_t distance = Distance(word, keyword.name);
        if (distance < best) {
            best = distance;
            nearest = keyword.name;
        }
    }
    return nearest;
}

const Keyword* FindKeyword(TextView upper) {
    for (const Keyword& keyword : Keywords()) {
        if (upper.starts_with(keyword.name)) {
            return &keyword;
        }
    }
    return nullptr;
}

bool IsDigit(char16_t c) {
    return c >= u'0' && c <= u'9';
}

/// True for a line that was written as a word, not as a text that happens to begin like one.
bool WrittenAsWord(const Keyword& keyword, TextView upper) {
    TextView rest = upper.substr(keyword.name.size());
    while (!rest.empty() && IsDigit(rest.front())) {
        rest.remove_prefix(1);
    }
    rest = rest.substr(std::min(rest.find_first_not_of(u" \t"), rest.size()));
    switch (keyword.form) {
        case Form::Number:
        case Form::Quoted:
        case Form::Call:
            return rest.starts_with(u"=") || rest.starts_with(u"(");
        case Form::Bare:
            return rest.empty() || rest.starts_with(u"//");
        case Form::Comment:
            return true;
    }
    return true;
}

/// True for a text that somebody surely meant as a word: it goes on as one and is nearly spelt so.
bool NearlyWord(TextView line, TextView upper, TextView nearest) {
    const TextView word = FirstWord(upper);
    const TextView rest = Bare(line.substr(word.size()));
    const bool letters =
        word.find_first_not_of(u"ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789") == TextView::npos;
    return letters && word.size() > 3 && !nearest.empty() &&
           Distance(word, nearest) <= word.size() / 4 &&
           (rest.starts_with(u"=") || rest.starts_with(u"("));
}

class Checker {
public:
    Checker(platform::Files& files, const CheckedSlide& slide)
        : files_(files), slide_(slide), course_(found_, slide_) {}

    std::vector<Finding> Check(TextView source) {
        int number = 0;
        while (!source.empty()) {
            const size_t end = source.find(u'\n');
            const TextView line = source.substr(0, end);
            source.remove_prefix(end == TextView::npos ? source.size() : end + 1);
            found_.line = ++number;
            Line(WithoutLineEnd(line));
        }
        course_.End();
        std::stable_sort(found_.rows.begin(), found_.rows.end(),
                         [](const Finding& a, const Finding& b) { return a.line < b.line; });
        return std::move(found_.rows);
    }

private:
    void Line(TextView line) {
        const Text upper = text::Upper(line);
        const Keyword* keyword = FindKeyword(upper);
        if (keyword != nullptr && text_ && !WrittenAsWord(*keyword, upper)) {
            found_.Add(Flaw::Swallowed, 1, u"「" + Text(keyword->name) + u"」で始まる文です",
                       u"命令として扱われ、文字は表示されません");
        } else if (keyword != nullptr) {
            CheckArguments(found_, files_, slide_, *keyword, line, upper);
        } else if (!line.starts_with(kTextSection)) {
            Unknown(line, upper);
        }
        const int number = found_.line;
        course_.Line(keyword, line, upper);
        found_.line = number;
        if (keyword == nullptr && line.starts_with(kTextSection)) {
            course_.BeginText();
            text_ = true;
        }
    }

    /// A line that is no word: a text, or nothing.
    void Unknown(TextView line, TextView upper) {
        const size_t first = line.find_first_not_of(u" \t　");
        if (first == TextView::npos) {
            return;
        }
        const int column = static_cast<int>(first) + 1;
        const TextView rest = upper.substr(first);
        const Keyword* indented = first > 0 ? FindKeyword(rest) : nullptr;
        const bool comment = indented != nullptr && indented->form == Form::Comment;
        const Text effect = text_ ? u"命令ではなく文字として表示されます" : u"この行は無視されます";
        if (indented != nullptr && !comment && WrittenAsWord(*indented, rest)) {
            found_.Add(Flaw::Indent, column,
                       u"「" + Text(indented->name) + u"」の前に空白があります", effect);
        } else if (text_) {
            TextOnly(line, upper);
        } else if (!comment) {
            NoWord(line.substr(first), rest, column, effect);
        }
    }

    void NoWord(TextView line, TextView upper, int column, const Text& effect) {
        const TextView word = FirstWord(upper);
        const TextView nearest = Nearest(word);
        Text wrong = u"「" + Text(line.substr(0, word.size())) + u"」は命令ではありません";
        if (upper.find(u"テキスト") != TextView::npos) {
            wrong += u"（もしかして: " + Text(kTextSection) + u"）";
        } else if (!nearest.empty()) {
            wrong += u"（もしかして: " + Text(nearest) + u"）";
        }
        found_.Add(Flaw::Word, column, wrong, effect);
    }

    /// What in a text was not meant to be seen.
    void TextOnly(TextView line, TextView upper) {
        const TextView nearest = Nearest(FirstWord(upper));
        const size_t comment = line.find(u"//");
        if (NearlyWord(line, upper, nearest)) {
            NoWord(line, upper, 1, u"命令ではなく文字として表示されます");
        } else if (comment != TextView::npos && comment > 0 &&
                   TextView(u" \t　").find(line[comment - 1]) != TextView::npos) {
            found_.Add(Flaw::Comment, static_cast<int>(comment) + 1, u"文の中の「//」です",
                       u"注釈にならず、そのまま表示されます");
        }
    }

    platform::Files& files_;
    const CheckedSlide slide_;
    FindingList found_;
    Course course_;
    bool text_ = false;
};

}  // namespace

std::vector<Finding> CheckMacro(platform::Files& files, const CheckedSlide& slide,
                                TextView source) {
    return Checker(files, slide).Check(source);
}

}  // namespace macro
