// What Form3 says of its list as a whole.
#pragma once

#include <deque>

#include "model/application.h"

namespace authoring {

/// As long as it lives Form3's Length says how long the show lasts at the present interval, its
/// Document what the show is called, and the checked entry of mnuFACE how the rows are shown,
/// whoever changes any of it.
class SlideListSigns : public model::Listener {
public:
    explicit SlideListSigns(model::Application& app);
    ~SlideListSigns() override;
    SlideListSigns(const SlideListSigns&) = delete;
    SlideListSigns& operator=(const SlideListSigns&) = delete;

    void PropertyChanged(model::Control& control, model::PropertyBase& property) override;
    void RowsChanged(model::Control& control, const model::RowChange& change) override;

private:
    void Look(int row, int count);
    void SayDocument();
    void SayLength();

    model::Application& app_;
    std::deque<bool> film_;  // row by row
    int films_ = 0;
};

/// "約 12 分 30 秒", from an hour on without seconds; films, whose length nobody knows yet, are
/// counted: "約 12 分＋動画 2 本". Empty without slides.
Text ShowLength(int pictures, int films, double intervalMs);

}  // namespace authoring
