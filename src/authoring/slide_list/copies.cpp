#include "authoring/slide_list/copies.h"

#include <memory>

#include "authoring/slide_list/collect.h"
#include "authoring/slide_list/stopped_search.h"
#include "model/windows/slide_list.h"

namespace authoring {

namespace {

/// While it collects, its own button stops it.
struct Collecting {
    bool goesOn = false;
    bool stopAsked = false;
};

void Collect_Click(Application& app, Collecting& collecting) {
    if (collecting.goesOn) {
        collecting.stopAsked = true;
        return;
    }
    if (StoppedSearch(app)) {
        return;
    }
    struct Mark {
        bool& goesOn;
        explicit Mark(bool& flag) : goesOn(flag) { goesOn = true; }
        ~Mark() { goesOn = false; }
    };
    const Mark mark(collecting.goesOn);
    CollectShow(app, collecting.stopAsked);
}

}  // namespace

void AttachCopies(Application& app) {
    app.windows.form3.Collect.Click = [&app, collecting = std::make_shared<Collecting>()] {
        Collect_Click(app, *collecting);
    };
}

}  // namespace authoring
