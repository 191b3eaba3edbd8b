// The slide's number and the count of slides beside the transport buttons.
#pragma once

#include "model/application.h"

namespace app {

/// As long as it lives Form1's SlideCount says which slide stands and how many there are:
/// "3 / 12" in a show, "12 枚" without one, nothing for an empty list. It follows Form1's
/// ShownSlide and the rows of Form3's List1. While the pointer is busy changes are gathered, so
/// that reading a long document costs one text.
class SlideCount : public model::Listener {
public:
    explicit SlideCount(Application& application);
    ~SlideCount() override;
    SlideCount(const SlideCount&) = delete;
    SlideCount& operator=(const SlideCount&) = delete;

    void PropertyChanged(model::Control& control, model::PropertyBase& property) override;
    void RowsChanged(model::Control& control, const model::RowChange& change) override;

private:
    Application& application_;
};

}  // namespace app
