#include "macro/check.h"

#include <algorithm>
#include <optional>

#include "macro/arguments.h"
#include "macro/check_arguments.h"
#include "macro/keywords.h"
#include "text/paths.h"

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
            return rest.starts_with(u"=");
        case Form::Call:
            return rest.starts_with(u"(");
        case Form::Bare:
            return rest.empty() || rest.starts_with(u"//");
        case Form::Comment:
            return true;
    }
    return true;
}

class Checker {
public:
    Checker(platform::Files& files, const CheckedSlide& slide) : arguments_{files, slide, {}} {}

    std::vector<Finding> Check(TextView source) {
        int number = 0;
        while (!source.empty()) {
            const size_t end = source.find(u'\n');
            const TextView line = source.substr(0, end);
            source.remove_prefix(end == TextView::npos ? source.size() : end + 1);
            arguments_.line = ++number;
            Line(WithoutLineEnd(line));
        }
        if (openLoop_ != 0) {
            arguments_.line = openLoop_;
            arguments_.Add(1, u"LOOPにENDLOOPがありません", u"繰り返しません");
        }
        std::stable_sort(arguments_.findings.begin(), arguments_.findings.end(),
                         [](const Finding& a, const Finding& b) { return a.line < b.line; });
        return std::move(arguments_.findings);
    }

private:
    void Line(TextView line) {
        const Text upper = text::Upper(line);
        if (const Keyword* keyword = FindKeyword(upper)) {
            if (text_ && !WrittenAsWord(*keyword, upper)) {
                arguments_.Add(1, u"「" + Text(keyword->name) + u"」で始まる文です",
                               u"命令として扱われ、文字は表示されません");
                return;
            }
            Word(*keyword, line, upper);
        } else if (line.starts_with(kTextSection)) {
            text_ = true;
        } else {
            Unknown(line, upper);
        }
    }

    void Word(const Keyword& keyword, TextView line, TextView upper) {
        if (keyword.name == u"LOOP") {
            openLoop_ = arguments_.line;
        } else if (keyword.name == u"ENDLOOP") {
            if (openLoop_ == 0) {
                arguments_.Add(1, u"ENDLOOPの前にLOOPがありません", u"何もしません");
            }
            openLoop_ = 0;
        }
        arguments_.Check(keyword, line, upper);
    }

    void Unknown(TextView line, TextView upper) {
        const size_t first = line.find_first_not_of(u" \t　");
        if (first == TextView::npos) {
            return;
        }
        const int column = static_cast<int>(first) + 1;
        const TextView rest = upper.substr(first);
        const Keyword* indented = first > 0 ? FindKeyword(rest) : nullptr;
        const Text effect = text_ ? u"命令ではなく文字として表示されます" : u"この行は無視されます";
        if (indented != nullptr && indented->form != Form::Comment &&
            WrittenAsWord(*indented, rest)) {
            arguments_.Add(column, u"「" + Text(indented->name) + u"」の前に空白があります",
                           effect);
            return;
        }
        if (text_ || (indented != nullptr && indented->form == Form::Comment)) {
            return;
        }
        const TextView word = FirstWord(rest);
        const TextView nearest = Nearest(word);
        const bool mark = rest.find(u"テキスト") != TextView::npos;
        Text wrong = u"「" + Text(line.substr(first, word.size())) + u"」は命令ではありません";
        if (mark) {
            wrong += u"（もしかして: " + Text(kTextSection) + u"）";
        } else if (!nearest.empty()) {
            wrong += u"（もしかして: " + Text(nearest) + u"）";
        }
        arguments_.Add(column, wrong, effect);
    }

    ArgumentCheck arguments_;
    bool text_ = false;
    int openLoop_ = 0;  // its line; 0 none
};

}  // namespace

std::vector<Finding> CheckMacro(platform::Files& files, const CheckedSlide& slide,
                                TextView source) {
    return Checker(files, slide).Check(source);
}

}  // namespace macro
