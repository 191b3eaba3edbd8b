// The program with the window of the slide list, for benchmarks.
#pragma once

#include <QEvent>
#include <QListView>
#include <QWidget>
#include <algorithm>
#include <chrono>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "adapters/commands/silent_platform.h"
#include "adapters/qt/desktop.h"
#include "authoring/attach.h"
#include "authoring/slide_list/signs.h"
#include "loop_around.h"
#include "model/windows/slide_list.h"

constexpr double kPatienceMs = 5000;

/// A picture for every wish, at once and later as a thread would; counts the wishes.
class EveryThumbnail : public platform::Thumbnails {
public:
    explicit EveryThumbnail(qt_adapter::Desktop& desktop) : desktop_(desktop) {}
    std::set<Text> wanted;

    void Want(const void* owner, const std::vector<Text>& paths, int side, Ready ready) override {
        wanted.insert(paths.begin(), paths.end());
        owners_[owner] = paths;
        for (const Text& path : paths) {
            desktop_.Post([this, owner, path, side, ready] {
                const std::vector<Text>& now = owners_[owner];
                if (std::find(now.begin(), now.end(), path) != now.end()) {
                    ready(path, std::make_shared<platform::Bitmap>(side, side * 3 / 4));
                }
            });
        }
    }

private:
    qt_adapter::Desktop& desktop_;
    std::map<const void*, std::vector<Text>> owners_;
};

/// Every slide is there, and nothing lies beside it.
class AllThere : public platform::FileInquiry {
public:
    void Ask(const void*, std::vector<Text> paths, What, Ready ready) override {
        for (const Text& path : paths) {
            platform::FileFacts facts;
            facts.there = path.ends_with(u"jpg");
            ready(path, facts);
        }
    }
    void Forget(const void*) override {}
};

/// Whether a widget was painted.
class Painted : public QObject {
public:
    explicit Painted(QWidget& widget) { widget.installEventFilter(this); }
    bool seen = false;

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        seen = seen || event->type() == QEvent::Paint;
        return false;
    }
};

inline double NowMs() {
    return std::chrono::duration<double, std::milli>(
               std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

inline double Median(std::vector<double> values) {
    std::nth_element(values.begin(), values.begin() + static_cast<ptrdiff_t>(values.size() / 2),
                     values.end());
    return values[values.size() / 2];
}

/// The program with its windows on an invisible display.
struct Program {
    /// `folder`: the program folder. `loop`: the desktop's, or one around it. `files`: null for
    /// AllThere.
    Program(qt_adapter::Desktop& given, const std::string& folder, platform::EventLoop& loop,
            platform::FileInquiry* files = nullptr)
        : desktop(given),
          silent(folder + "/"),
          thumbnails(given),
          app(Around(loop, files ? *files : inquiry)) {
        model::SetStartDefaults(app.state);
        app.state.AppFolder = text::FromUtf8(folder + "/");
        authoring::AttachWindows(app);
        signs.emplace(app);
        desktop.MakeViews(app.windows);
    }
    ~Program() { desktop.UnmakeViews(); }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    platform::Platform Around(platform::EventLoop& loop, platform::FileInquiry& files) {
        const platform::Platform rest = silent.Get();
        return {loop,
                rest.files,
                rest.dialogs,
                desktop.Monitors(),
                rest.imaging,
                desktop.TextRenderer(),
                rest.sound,
                rest.video,
                rest.system,
                rest.trace,
                rest.codePage,
                rest.folders,
                rest.fileChanges,
                rest.clipboard,
                rest.wallpaper,
                thumbnails,
                files};
    }
    QListView& List() {
        return *desktop.WidgetOf(app.windows.form3)->findChild<QListView*>("List1");
    }
    void Settle() {
        for (int i = 0; i < 20; ++i) {
            desktop.Loop().PumpEvents();
            desktop.Loop().Sleep(1);
        }
    }
    /// Ms from the act until the list has been painted after it.
    template <class Act>
    double UntilPainted(Act act) {
        Settle();
        Painted painted(*List().viewport());
        const double start = NowMs();
        act();
        while (!painted.seen && NowMs() - start < kPatienceMs) {
            desktop.Loop().PumpEvents();
        }
        return NowMs() - start;
    }
    int RowsInSight() {
        const QListView& list = List();
        int rows = 0;
        for (int row = 0; row < list.model()->rowCount(); ++row) {
            const QRect place = list.visualRect(list.model()->index(row, 0));
            if (place.top() >= list.viewport()->height()) {
                break;
            }
            rows += place.bottom() >= 0 ? 1 : 0;
        }
        return rows;
    }

    qt_adapter::Desktop& desktop;
    commands::SilentPlatform silent;
    EveryThumbnail thumbnails;
    AllThere inquiry;
    Application app;
    std::optional<authoring::SlideListSigns> signs;
};
