#include "macro/check_calls.h"

#include <algorithm>

#include "macro/arguments.h"
#include "macro/check_numbers.h"
#include "text/numbers.h"

namespace macro {

namespace {

/// Kinds of values: n number, m movement, t text, f file in quotes, d file that needs none.
struct CallForm {
    const char16_t* word;
    const char16_t* fields;
    size_t required;
    bool cutAtComment;  // the player drops what follows the first "//"
    const char16_t* unopened;
    const char16_t* tooFew;
};
constexpr CallForm kForms[] = {
    {u"RGB", u"nnn", 3, false, u"文字の色は 0,0,0（黒）になります",
     u"足りない値は 0 として扱われます"},
    {u"GRAD", u"nnnnnnt", 7, false, u"色は 0,0,0（黒）になるか、文字が書かれません",
     u"文字は書かれません"},
    {u"TEXTOUT", u"nnnt", 4, false, u"文字は書かれません", u"文字は書かれません"},
    {u"TELOP", u"nnt", 1, true, u"流れている文字が止まります", u""},
    {u"MOVIE", u"fn", 1, true, u"そのまま使われます", u""},
    {u"PLAYWAV", u"fn", 1, true, u"そのまま使われます", u""},
    {u"PICPBDATA", u"nd", 2, true, u"切取画像0が座標データのない四角になります",
     u"座標データのない四角になります"},
    {u"PICPB", u"nff", 2, true, u"移動数は 0 として扱われます", u"切取画像が消えます"},
    {u"MOVPB", u"mmn", 2, true, u"動きません", u"足りない移動数は 0 として扱われます"},
    {u"MENU", u"nt", 2, false, u"移動数が 0 の、名称のないボタンになります",
     u"名称のないボタンになります"},
    {u"YESNOPB", u"nn", 2, false, u"ボタンは出ません", u"足りない移動数は 0 として扱われます"},
};

constexpr double kJumpMost = 32767;

FieldRule RuleOf(TextView word, size_t index) {
    if (word == u"RGB" || word == u"GRAD") {
        return {Rounding::Nearest, 0, 255};
    }
    if (word == u"TEXTOUT") {
        // A circle of texts ends a few degrees beyond the full turn, which nobody sees.
        return index < 2 ? FieldRule{Rounding::Nearest, 0, 999}
                         : FieldRule{Rounding::None, 0, 360, nullptr, 10};
    }
    if (word == u"TELOP") {
        return {Rounding::Nearest, 1, 1000};
    }
    if (word == u"MOVIE" || word == u"PLAYWAV") {
        return {Rounding::None, 0, 2, word == u"MOVIE" ? u"動画は表示されません" : u"鳴りません"};
    }
    if (word == u"PICPBDATA") {
        return {Rounding::Nearest, 0, 62, u"何も表示されません"};
    }
    if (word == u"MOVPB") {
        return index < 2 ? FieldRule{Rounding::Upwards, -kJumpMost, kJumpMost}
                         : FieldRule{Rounding::Nearest, 0, 1000};
    }
    return {Rounding::Nearest, -kJumpMost, kJumpMost, u"どこへも移りません"};
}

class CallCheck {
public:
    CallCheck(FindingList& found, const Keyword& keyword, const CallForm& form, TextView line)
        : found_(found),
          keyword_(keyword),
          form_(form),
          line_(line),
          shape_(ShapeOf(line, keyword.name.size())) {}

    void Check() {
        CheckNumberOfWord();
        if (!shape_.opened) {
            found_.Add(Flaw::Bracket, static_cast<int>(keyword_.name.size()) + 1,
                       Text(keyword_.name) + u"に「(」がありません", form_.unopened,
                       WriteLike(keyword_));
            return;
        }
        if (form_.cutAtComment && CommentInText()) {
            return;
        }
        if (keyword_.name == u"TELOP") {
            AlignTelop();
        }
        if (FitCount()) {
            for (size_t i = 0; i < shape_.fields.size() && form_.fields[i] != 0; ++i) {
                CheckField(i);
            }
        }
        const bool quoteOpen =
            !shape_.fields.empty() && shape_.fields.back().quoted && !shape_.fields.back().closed;
        if (!shape_.closed && !quoteOpen) {
            const TextView values = Bare(shape_.all);
            found_.Add(Flaw::Bracket, ColumnOf(line_, values) + static_cast<int>(values.size()),
                       Text(keyword_.name) + u"に「)」がありません",
                       u"行の終わりまでが値として扱われます", WriteLike(keyword_));
        }
    }

private:
    /// What stands between the word and its bracket.
    void CheckNumberOfWord() {
        const TextView name = keyword_.name;
        const TextView ahead = shape_.ahead;
        const int column = static_cast<int>(name.size()) + 1;
        const bool piece = name == u"PICPB" || name == u"MOVPB";
        if (piece) {
            const Text read = text::Mid(line_, name.size() + 1, 2);
            const double number = text::SafeNumber(read);
            if (number > 62 || number < 0) {
                found_.Add(Flaw::Range, column, u"切取画像の番号は0～62です", u"何も表示されません",
                           WriteLike(keyword_));
            } else if (shape_.opened &&
                       (ahead.empty() || text::SafeNumber(ahead) != number ||
                        ahead.find_first_not_of(u"0123456789 ") != TextView::npos)) {
                found_.Add(Flaw::Number, column, u"切取画像の番号が2文字までの数ではありません",
                           u"切取画像" + Shown(number) + u"として扱われます", WriteLike(keyword_));
            }
        } else if (name == u"MENU") {
            const Text digit = text::Mid(line_, name.size() + 1, 1);
            if (digit < u"1" || digit > u"5") {
                found_.Add(Flaw::Range, column, u"メニュー番号は1～5です",
                           u"ボタンは出ず、このスライドは止めるまで待ち続けます",
                           WriteLike(keyword_));
            } else if (shape_.opened && ahead.size() > 1) {
                found_.Add(Flaw::Surplus, column, u"メニュー番号は1～5です",
                           u"メニュー" + digit + u"として扱われます", WriteLike(keyword_));
            }
        } else if (shape_.opened && !ahead.empty() &&
                   !(name == u"TELOP" && (ahead == u"1" || ahead == u"2"))) {
            found_.Add(Flaw::Surplus, ColumnOf(line_, ahead),
                       Text(name) + u"と「(」の間に「" + Text(ahead) + u"」があります",
                       Text(name) + u"として扱われます", WriteLike(keyword_));
        }
    }

    /// "//" within quotes, or within the brackets of a scrolling text.
    bool CommentInText() {
        const size_t comment = line_.find(u"//");
        if (comment == TextView::npos) {
            return false;
        }
        const bool telop = keyword_.name == u"TELOP";
        const char16_t* at = line_.data() + comment;
        bool within = telop && !shape_.closed && line_.find(u')', comment) != TextView::npos;
        for (const CallField& field : shape_.fields) {
            within = within || (field.quoted && at >= field.inner.data() &&
                                at < field.inner.data() + field.inner.size());
        }
        if (within) {
            found_.Add(
                Flaw::Comment, static_cast<int>(comment) + 1,
                telop ? u"文の中に「//」があります" : u"ファイル名の中に「//」があります",
                u"そこから後ろは注釈として捨てられます",
                telop ? u"全角の「／／」を使ってください" : u"「//」のない名前にしてください");
        }
        return within;
    }

    /// Numbers may be left out before the text. Afterwards the text is the third value.
    void AlignTelop() {
        auto& fields = shape_.fields;
        const auto text = std::find_if(fields.begin(), fields.end(),
                                       [](const CallField& field) { return field.quoted; });
        const size_t numbers = static_cast<size_t>(text - fields.begin());
        if (text != fields.end() && numbers < 2 && text->inner.find(u',') != TextView::npos) {
            found_.Add(Flaw::Fields, ColumnOf(line_, text->text),
                       u"「,」のある文の前に数が2つありません",
                       u"「,」までが数として扱われ、表示されません",
                       u"「TELOP(t,s,\"文\")」の形で書いてください");
        }
        const size_t present =
            text == fields.end() ? std::min(fields.size() - 1, size_t{2}) : numbers;
        for (size_t i = present; i < 2; ++i) {
            CallField unsaid;
            unsaid.absent = true;
            fields.insert(fields.begin() + static_cast<std::ptrdiff_t>(i), unsaid);
        }
    }

    /// False where nothing is to be said of the values one by one.
    bool FitCount() {
        auto& fields = shape_.fields;
        const TextView kinds = form_.fields;
        const bool lastIsOpenText = fields.size() > kinds.size() && kinds.ends_with(u't') &&
                                    !fields[kinds.size() - 1].quoted;
        if (lastIsOpenText) {
            CallField& text = fields[kinds.size() - 1];
            text.text =
                Bare({text.text.data(), static_cast<size_t>(shape_.all.data() + shape_.all.size() -
                                                            text.text.data())});
            text.inner = text.text;
            fields.resize(kinds.size());
        }
        if (fields.size() > kinds.size()) {
            found_.Add(Flaw::Surplus, ColumnOf(line_, fields[kinds.size()].text),
                       Text(keyword_.name) + u"の値が多すぎます", u"余分な値は使われません",
                       WriteLike(keyword_));
        } else if (kinds.front() == u'n' && fields.front().quoted) {
            const bool lost = fields.size() < form_.required && keyword_.name != u"PICPB";
            found_.Add(Flaw::Fields, ColumnOf(line_, fields.front().text),
                       Text(keyword_.name) + u"の始めの数がありません",
                       lost ? form_.tooFew : u"0 として扱われます", WriteLike(keyword_));
            return false;
        } else if (fields.size() < form_.required) {
            found_.Add(Flaw::Fields, ColumnOf(line_, shape_.all),
                       Text(keyword_.name) + u"の値が足りません", form_.tooFew,
                       WriteLike(keyword_));
            return false;
        }
        return true;
    }

    void CheckField(size_t index) {
        const CallField& field = shape_.fields[index];
        switch (form_.fields[index]) {
            case u'n':
                CheckFieldNumber(field, index);
                break;
            case u'm':
                if (const Text word = text::Upper(field.text);
                    word != u"RND" && word != u"RND+-" && word != u"RND+" && word != u"RND-") {
                    CheckFieldNumber(field, index);
                }
                break;
            case u't':
                CheckText(field);
                break;
            case u'f':
                CheckFile(field, index);
                break;
            case u'd':
                if (field.quoted) {
                    CheckQuotes(field, u"名前の最後の1文字が失われます",
                                u"「\"」の後ろは使われません");
                }
                break;
            default:
                break;
        }
    }

    void CheckFieldNumber(const CallField& field, size_t index) {
        // The number of a film or sound, and the wait of a motion, may be left out.
        const bool optional = index >= form_.required;
        if (!field.absent && !(optional && field.text.empty())) {
            CheckNumberField(found_, keyword_, line_, field.text, RuleOf(keyword_.name, index));
        }
    }

    /// False where the quotes are not as they should be.
    bool CheckQuotes(const CallField& field, TextView unclosed, TextView stray) {
        if (!field.closed) {
            found_.Add(Flaw::Quote, ColumnOf(line_, field.text), u"「\"」が閉じていません",
                       Text(unclosed));
        } else if (!field.stray.empty()) {
            found_.Add(Flaw::Surplus, ColumnOf(line_, field.stray),
                       u"閉じた「\"」の後ろに文字があります", Text(stray));
        }
        return field.closed && field.stray.empty();
    }

    void CheckText(const CallField& field) {
        const bool menu = keyword_.name == u"MENU";
        const bool telop = keyword_.name == u"TELOP";
        if (field.quoted) {
            CheckQuotes(
                field,
                menu ? u"名称の最後の1文字が失われます" : u"行の最後の「)」までが文字になります",
                telop ? u"最後の「)」までの全部が流れます" : u"「\"」の後ろは使われません");
            if (telop && field.closed && field.stray.empty() && shape_.closed) {
                CheckTelopEnd();
            }
        } else if (!field.text.empty()) {
            found_.Add(Flaw::Quote, ColumnOf(line_, field.text),
                       Text(keyword_.name) + u"の文字が「\"」で囲まれていません",
                       u"行の最後の「)」までが文字になります");
        } else if (!telop) {
            found_.Add(Flaw::Fields, ColumnOf(line_, field.text),
                       Text(keyword_.name) + u"の文字がありません", form_.tooFew);
        }
    }

    /// The player goes on to the last ')' before a comment.
    void CheckTelopEnd() {
        const TextView cut = BeforeComment(line_);
        const size_t end =
            static_cast<size_t>(shape_.all.data() + shape_.all.size() - line_.data());
        if (const size_t last = cut.rfind(u')'); last != TextView::npos && last > end) {
            found_.Add(Flaw::Surplus, static_cast<int>(end) + 2,
                       u"TELOPの「)」の後ろにもう一つ「)」があります",
                       u"最後の「)」までの全部が流れます", u"後ろの文の前に「//」を書いてください");
        }
    }

    void CheckFile(const CallField& field, size_t index) {
        const Text lost = LostFile(index);
        if (field.quoted) {
            CheckQuotes(field, lost, u"「\"」の後ろは使われません");
        } else if (!field.text.empty() || index < form_.required) {
            found_.Add(Flaw::Quote, ColumnOf(line_, field.text),
                       Text(keyword_.name) + u"のファイル名が「\"」で囲まれていません", lost);
        }
    }

    /// What comes of a name that is not in quotes.
    Text LostFile(size_t index) const {
        if (keyword_.name == u"MOVIE") {
            return u"再生されず、再生中の動画は閉じられます";
        }
        if (keyword_.name == u"PLAYWAV") {
            return u"鳴りません";
        }
        if (index > 1) {
            return u"クリックしても動作しません";
        }
        // The player takes the first quoted text of the line for the picture.
        const TextView taken = Quoted(BeforeComment(line_));
        return taken.empty() ? Text(u"切取画像が消えます")
                             : u"「" + Text(taken) + u"」が画像として扱われます";
    }

    FindingList& found_;
    const Keyword& keyword_;
    const CallForm& form_;
    const TextView line_;
    CallShape shape_;
};

}  // namespace

void CheckCall(FindingList& found, const Keyword& keyword, TextView line) {
    for (const CallForm& form : kForms) {
        if (keyword.name == form.word) {
            CallCheck(found, keyword, form, line).Check();
        }
    }
}

}  // namespace macro
