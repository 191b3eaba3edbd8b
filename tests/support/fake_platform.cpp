// What makes all the fakes is compiled once, and not in every test.
#include "fake_platform.h"

#include "model/controls.h"
#include "model/windows/picture_holder.h"

namespace fakes {

FakePlatform::FakePlatform() {
    model::ZeroReset(app.state);
    model::SetStartDefaults(app.state);
    app.state.AppFolder = system.appFolder;
    for (model::LeadControl* lead : {&app.windows.form4.Lead1, &app.windows.form4.Lead2}) {
        lead->imaging = imaging.MakeControl();
    }
}

FakePlatform::~FakePlatform() = default;

}  // namespace fakes
