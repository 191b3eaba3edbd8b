#include "macro/check_course.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "macro/arguments.h"
#include "macro/call_shape.h"
#include "macro/cutouts.h"
#include "macro/reader.h"
#include "text/numbers.h"

namespace macro {

namespace {

constexpr double kPixelsPerPoint = 96.0 / 72;
constexpr int kMostOfOutline = 10;
// Fonts other than those with characters of one width are narrower than reckoned.
constexpr double kNarrowest = 0.8;
constexpr size_t kShownText = 20;

constexpr TextView kReturningPen[] = {u"CLS",    u"BIT",   u"REVERSE", u"FLIP",
                                      u"PENCIL", u"METAL", u"MOSAIC",  u"GRAYSCALE"};

double Columns(TextView text) {
    double columns = 0;
    for (const char16_t c : text) {
        columns += ColumnsOf(c);
    }
    return columns;
}

Text Sample(TextView text) {
    return u"「" + Text(text.substr(0, kShownText)) +
           (text.size() > kShownText ? Text(u"…」") : Text(u"」"));
}

/// The text of a call that has one in its last field.
TextView TextOf(TextView line, const Keyword& keyword) {
    const CallShape shape = ShapeOf(line, keyword.name.size());
    return shape.fields.empty() ? TextView() : shape.fields.back().inner;
}

double NumberOf(TextView line, size_t index) {
    return NumberField(CallFields(line, 4), index);
}

}  // namespace

void Course::Line(const Keyword* keyword, TextView line, TextView upper) {
    const bool says = !Bare(line).empty() && (keyword == nullptr || keyword->form != Form::Comment);
    if (!endedBy_.empty()) {
        if (says && !toldEnd_ && (keyword != nullptr || text_)) {
            toldEnd_ = true;
            found_.Add(Flaw::Unreached, 1, Text(endedBy_) + u"の後ろの行です",
                       u"ここからは実行されません");
        }
        return;
    }
    const Step step{found_.line, keyword, Text(line), Text(upper)};
    if (openLoop_ != 0) {
        loop_.push_back(step);
    }
    Run(step);
}

void Course::BeginText() {
    if (text_) {
        found_.Add(Flaw::Mark, 1, u"二つ目の「[テキスト]」です", u"文字として表示されます");
    }
    text_ = true;
}

void Course::End() {
    if (openLoop_ != 0) {
        found_.line = openLoop_;
        found_.Add(Flaw::Loop, 1, u"LOOPにENDLOOPがありません", u"繰り返しません");
    }
}

void Course::Run(const Step& step) {
    found_.line = step.line;
    if (step.keyword != nullptr) {
        const NumberRead number = ReadNumber(*step.keyword, step.upper, step.upper.find(u'=') + 2);
        if (!number.fails && !number.ignored) {
            RunWord(step, number.value);
        }
        if (text_) {
            NextLine(step.keyword->name == u"TEXTOUT" || step.keyword->name == u"MENU");
        }
        return;
    }
    if (!text_) {
        return;
    }
    const TextView words = Bare(step.text);
    if (!words.empty()) {
        CheckLook(true);
        CheckPlace(step.text, Columns(step.text) * height_ / 2, height_);
    }
    NextLine(!words.empty());
}

void Course::RunWord(const Step& step, double value) {
    if (!RunPieceWord(step) && !RunFlowWord(step, value)) {
        RunTextWord(step, value);
    }
}

bool Course::RunPieceWord(const Step& step) {
    const TextView name = step.keyword->name;
    const auto index = CutoutIndex(step.upper);
    if (name == u"PICPB") {
        ShowPiece(step);
    } else if (name == u"PICPBTYPE") {
        shapedByData_ = false;
    } else if (name == u"PICPBDATA") {
        const double number = NumberOf(step.upper, 0);
        shapedByData_ = true;
        if (number >= 0 && number <= kLastCutout) {
            dataNamed_.set(static_cast<size_t>(text::RoundHalfEven(number)));
        }
    } else if (name == u"MOVPB") {
        if (index && !shown_[static_cast<size_t>(*index)]) {
            found_.Add(Flaw::Piece, 1, u"切取画像" + Shown(*index) + u"は表示されていません",
                       u"動かず、待たずに先へ進みます");
        }
    } else {
        return false;
    }
    return true;
}

void Course::ShowPiece(const Step& step) {
    const auto index = CutoutIndex(step.upper);
    if (!index) {
        return;
    }
    const auto i = static_cast<size_t>(*index);
    shown_[i] = !Quoted(BeforeComment(step.upper)).empty();
    if (shown_[i] && shapedByData_ && !dataNamed_[i] && !replaying_) {
        found_.Add(Flaw::Piece, 1, u"切取画像" + Shown(*index) + u"の座標データがありません",
                   u"前のスライドのデータで切り取るか、四角になります",
                   u"PICPBDATA(" + Shown(*index) + u",\"～\") か PICPBTYPE を先に書いてください");
    }
}

bool Course::RunFlowWord(const Step& step, double value) {
    const TextView name = step.keyword->name;
    if (name == u"LOOP") {
        if (openLoop_ != 0 && !replaying_) {
            found_.Add(Flaw::Loop, 1, u"LOOPの中にLOOPがあります",
                       u"前のLOOPは忘れられ、ここから繰り返されます");
        }
        openLoop_ = step.line;
        turns_ = value;
        loop_.clear();
    } else if (name == u"ENDLOOP") {
        if (openLoop_ == 0) {
            found_.Add(Flaw::Loop, 1, u"ENDLOOPの前にLOOPがありません", u"何もしません");
        }
        RepeatLoop();
    } else if (name == u"SKIP" || name == u"END") {
        endedBy_ = value != 0 && (name == u"SKIP" || value == 1 || value == 2) ? name : TextView();
    } else if (name == u"ENDTIME") {
        endedBy_ = name;
    } else if (name == u"YESNOPB") {
        const double yes = NumberOf(step.upper, 0);
        const double no = NumberOf(step.upper, 1);
        if (yes != 0 || no != 0) {
            CheckPlace(u"YesとNoのボタン", 1, 1);
        }
        endedBy_ = yes != 0 && no != 0 ? name : TextView();
    } else {
        return false;
    }
    return true;
}

void Course::RepeatLoop() {
    if (openLoop_ == 0 || loop_.empty()) {
        openLoop_ = 0;
        return;
    }
    loop_.pop_back();  // ENDLOOP itself
    const int line = found_.line;
    openLoop_ = 0;
    replaying_ = true;
    const auto steps = std::exchange(loop_, {});
    for (double turn = 1; turn < turns_ && stepsLeft_ > steps.size() && endedBy_.empty(); ++turn) {
        if (text_) {
            NextLine(false);  // every turn begins with an empty line
        }
        for (const Step& step : steps) {
            Run(step);
        }
        stepsLeft_ -= steps.size() + 1;
        if (text_) {
            NextLine(false);  // of ENDLOOP
        }
    }
    replaying_ = false;
    found_.line = line;
}

void Course::RunTextWord(const Step& step, double value) {
    const TextView name = step.keyword->name;
    const double oldX = x_, oldY = y_;
    if (name == u"CURRENTX") {
        x_ = value;
    } else if (name == u"CURRENTY") {
        y_ = value;
    } else if (name == u"MOVX") {
        x_ += value;
    } else if (name == u"MOVY") {
        y_ += value;
    } else if (name == u"SCREENXY") {
        x_ = y_ = 0;
    } else if (std::find(std::begin(kReturningPen), std::end(kReturningPen), name) !=
               std::end(kReturningPen)) {
        y_ = 0;
    } else if (name == u"FONTSIZE") {
        height_ = value * kPixelsPerPoint;
    } else if (name == u"LINESPACE") {
        lineSpace_ = value;
    } else if (name == u"KAGE") {
        kage_ = static_cast<int>(value);
    } else if (name == u"ZUREX" || name == u"ZUREY") {
        const int column = static_cast<int>(step.upper.find(u'=')) + 2;
        (name == u"ZUREX" ? zureX_ : zureY_) = {value, step.line, column};
    } else if (name == u"QBCOLOR" || name == u"RGB") {
        coloured_ = true;
    } else if (name == u"GRAD") {
        const TextView words = TextOf(step.text, *step.keyword);
        CheckLook(false);
        CheckPlace(words, Columns(words) * height_ / 2, height_);
    } else if (name == u"TEXTOUT") {
        const TextView words = TextOf(step.text, *step.keyword);
        const double h = NumberOf(step.upper, 0);
        const double w = NumberOf(step.upper, 1);
        CheckLook(kage_ > 1);
        // It may turn to any side of the pen.
        CheckPlace(words, 1, 1, std::max(h, height_) + Columns(words) * std::max(w, h / 2));
    } else if (name == u"TELOP") {
        const TextView words = TextOf(step.text, *step.keyword);
        if (!words.empty() && (y_ >= slide_.screen.height || y_ + height_ <= 0)) {
            CheckPlace(words, height_, height_);
        }
    } else if (name == u"MENU") {
        CheckPlace(Sample(TextOf(step.text, *step.keyword)) + u"のボタン", 1, 1);
    }
    offScreen_ = offScreen_ && oldX == x_ && oldY == y_;
}

void Course::NextLine(bool spaced) {
    y_ += height_ + (spaced ? lineSpace_ : 0);
}

void Course::CheckLook(bool takesTextColor) {
    if (takesTextColor && kage_ != 0 && !coloured_ && !toldColour_) {
        toldColour_ = true;
        found_.Add(Flaw::Colour, 1, u"影や輪郭を付ける文字の色が決められていません",
                   u"文字は黒になります");
    }
    if (kage_ > 1) {
        CheckShift(zureX_, u"ZUREX");
        CheckShift(zureY_, u"ZUREY");
    }
}

void Course::CheckShift(Shift& shift, TextView word) {
    if (shift.line == 0 || std::abs(shift.pixels) <= kMostOfOutline) {
        return;
    }
    const int line = std::exchange(found_.line, shift.line);
    found_.Add(Flaw::Range, shift.column,
               Text(word) + u"の値 " + Shown(shift.pixels) + u" は輪郭では大きすぎます",
               Shown(kMostOfOutline) + u" になります", u"-10～10 の数にしてください");
    found_.line = line;
    shift.line = 0;
}

void Course::CheckPlace(TextView what, double width, double height, double slack) {
    const double right = slide_.screen.width, bottom = slide_.screen.height;
    const bool gone = x_ >= right + slack || y_ >= bottom + slack || x_ + width + slack <= 0 ||
                      y_ + height + slack <= 0;
    const bool button = width == 1 && slack == 0;
    const bool cut = slack == 0 && !button &&
                     (x_ < 0 || y_ < 0 || x_ + width * kNarrowest > right || y_ + height > bottom);
    if (what.empty() || (!gone && !cut) || offScreen_ || !toldPlaces_.insert(found_.line).second) {
        return;
    }
    offScreen_ = true;
    const Text size = Shown(right) + u"×" + Shown(bottom);
    found_.Add(Flaw::OffScreen, 1,
               (button ? Text(what) : Sample(what)) + u"の位置（" + Shown(std::floor(x_)) + u"," +
                   Shown(std::floor(y_)) + u"）が" + size + u"の画面の外です",
               button ? u"押せません"
               : gone ? u"見えません"
                      : u"はみ出したところは見えません");
}

}  // namespace macro
