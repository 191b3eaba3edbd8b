// What a macro does line by line, as far as it can be foretold: loops, pieces, colours, and where
// the pen goes.
#pragma once

#include <bitset>
#include <set>

#include "macro/check_findings.h"

namespace macro {

class Course {
public:
    Course(FindingList& found, const CheckedSlide& slide) : found_(found), slide_(slide) {}

    /// A line that is a word, or a text (null).
    void Line(const Keyword* keyword, TextView line, TextView upper);
    /// The line that begins the text.
    void BeginText();
    void End();

private:
    struct Step {
        int line;
        const Keyword* keyword;
        Text text, upper;
    };
    struct Shift {
        double pixels;
        int line = 0, column = 0;  // where it was set; line 0: nowhere
    };

    void Run(const Step& step);
    void RunWord(const Step& step, double value);
    /// True for a word about pieces, loops or the end of the slide.
    bool RunPieceWord(const Step& step);
    bool RunFlowWord(const Step& step, double value);
    void RunTextWord(const Step& step, double value);
    void ShowPiece(const Step& step);
    void RepeatLoop();
    void NextLine(bool spaced);
    void CheckLook(bool takesTextColor);
    void CheckShift(Shift& shift, TextView word);
    /// A text or button with its top left corner at the pen.
    void CheckPlace(TextView what, double width, double height, double slack = 0);

    FindingList& found_;
    const CheckedSlide& slide_;
    bool text_ = false;
    double x_ = 0, y_ = 0;            // pixels, from the origin
    double height_ = 20 * 96.0 / 72;  // of a line of text
    double lineSpace_ = 0;
    int kage_ = 0;
    bool coloured_ = false, toldColour_ = false;
    Shift zureX_{5}, zureY_{3};
    bool offScreen_ = false;  // reported since the pen was placed
    std::set<int> toldPlaces_;
    std::bitset<63> shown_, dataNamed_;
    bool shapedByData_ = false;
    int openLoop_ = 0;  // its line; 0 none
    double turns_ = 0;
    std::vector<Step> loop_;
    size_t stepsLeft_ = 10000;  // of all turns of all loops
    bool replaying_ = false;
    TextView endedBy_;  // the word after which nothing is run
    bool toldEnd_ = false;
};

}  // namespace macro
