#include "authoring/slide_list/kinds.h"

#include <algorithm>
#include <array>

#include "text/paths.h"

namespace authoring {

const TextView kSlidePatterns =
    u"*.png;*.psd;*.bmp;*.jpg;*.jff;*.jtf;*.tif;*.tga;*.pcx;*.cal;*.mac;*.img;*.msp;*.wpg;*.ras;"
    u"*.pct;*.eps;*.pcd;*.cmp;*.mp4;*.wmv;*.mov;*.avi";

namespace {

constexpr std::array<TextView, 7> kDropKinds{u"JPG", u"BMP", u"PNG", u"MP4",
                                             u"WMV", u"MOV", u"AVI"};

}  // namespace

bool IsDroppedKind(TextView path) {
    return std::find(kDropKinds.begin(), kDropKinds.end(), text::KindOf(path)) != kDropKinds.end();
}

}  // namespace authoring
