#include "adapters/qt/qt_monitors.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <cmath>

#include "adapters/qt/screen_keeper.h"

namespace qt_adapter {

namespace {

constexpr int kTitleBarHeight = 36;  // pixels; no window tells before it is shown

/// Primary first, the others as the system counts them.
QList<QScreen*> OrderedScreens() {
    QList<QScreen*> screens = QGuiApplication::screens();
    const qsizetype primary = screens.indexOf(QGuiApplication::primaryScreen());
    if (primary > 0) {
        screens.move(primary, 0);
    }
    return screens;
}

/// Distance along one axis from a point to a span; 0 inside.
int Outside(int point, int start, int length) {
    return std::max({start - point, point - (start + length - 1), 0});
}

}  // namespace

platform::Rect PhysicalRect(const QScreen& screen) {
    // The toolkit scales a screen's size but leaves its corner where the system has it.
    const QRect area = screen.geometry();
    const double ratio = screen.devicePixelRatio();
    return {area.x(), area.y(), static_cast<int>(std::lround(area.width() * ratio)),
            static_cast<int>(std::lround(area.height() * ratio))};
}

QScreen* ScreenAt(int physicalX, int physicalY) {
    const QList<QScreen*> screens = OrderedScreens();
    const auto distance = [&](const QScreen* screen) {
        const platform::Rect area = PhysicalRect(*screen);
        return Outside(physicalX, area.x, area.width) + Outside(physicalY, area.y, area.height);
    };
    const auto nearest = std::min_element(
        screens.begin(), screens.end(),
        [&](const QScreen* a, const QScreen* b) { return distance(a) < distance(b); });
    return nearest == screens.end() ? nullptr : *nearest;
}

QPoint FromPhysical(int physicalX, int physicalY) {
    const QScreen* screen = ScreenAt(physicalX, physicalY);
    if (!screen) {
        return {physicalX, physicalY};
    }
    const QPoint corner = screen->geometry().topLeft();
    const double ratio = screen->devicePixelRatio();
    return corner + QPoint(static_cast<int>(std::lround((physicalX - corner.x()) / ratio)),
                           static_cast<int>(std::lround((physicalY - corner.y()) / ratio)));
}

QtMonitors::QtMonitors(std::vector<platform::Rect> screens, std::function<QScreen*()> mainScreen)
    : screens_(std::move(screens)), mainScreen_(std::move(mainScreen)) {}

QtMonitors::~QtMonitors() = default;

std::vector<platform::Rect> QtMonitors::Enumerate() {
    if (!screens_.empty()) {
        return screens_;
    }
    std::vector<platform::Rect> areas;
    for (const QScreen* screen : OrderedScreens()) {
        areas.push_back(PhysicalRect(*screen));
    }
    const auto unknown = [](const platform::Rect& area) { return area.Empty(); };
    if (std::all_of(areas.begin(), areas.end(), unknown)) {
        // All monitors are unplugged for the moment; the program still needs one to reckon with.
        areas = {{0, 0, 1920, 1080}};
    }
    return areas;
}

int QtMonitors::OfMainWindow() {
    if (!screens_.empty()) {
        return 0;
    }
    return static_cast<int>(std::max<qsizetype>(0, OrderedScreens().indexOf(mainScreen_())));
}

platform::Size QtMonitors::Room() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (!screens_.empty() || !screen) {
        const platform::Rect area = Enumerate().front();
        return {area.width, area.height};
    }
    const QSize free = screen->availableSize();
    return {free.width(), free.height() - kTitleBarHeight};
}

void QtMonitors::KeepAwake(bool on) {
    if (!screens_.empty() || (!on && !keeper_)) {
        return;
    }
    if (!keeper_) {
        keeper_ = std::make_unique<ScreenKeeper>();
    }
    keeper_->Keep(on);
}

}  // namespace qt_adapter
