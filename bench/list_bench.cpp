// The window of the slide list with 30000 slides: shown, opened into, changed and scrolled, as
// lines and as a grid; thumbnails that are wanted, and the memory that they take once all have been
// seen.
#include <QScrollBar>
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "../tests/support/fake_platform.h"
#include "authoring/slide_list/documents.h"
#include "document/show_document.h"
#include "document/slide_rows.h"
#include "slide_list_program.h"

namespace {

constexpr int kSlides = 30000;
constexpr int kRuns = 9;
constexpr double kFrameMs = 1000.0 / 60;
constexpr double kShownMs = 100;
constexpr double kMostMemory = 150;  // MiB

double ResidentMiB() {
    std::ifstream status("/proc/self/status");
    std::string word;
    while (status >> word && word != "VmRSS:") {
    }
    double kibibytes = 0;
    status >> kibibytes;
    return kibibytes / 1024;
}

void WriteDocument(const std::string& path) {
    fakes::FakePlatform program;
    for (int i = 0; i < kSlides; ++i) {
        const std::string number = std::to_string(i);
        program.app.windows.form3.List1.AddItem(u"/home/me/写真/2026年の旅行/沖縄の海と空/DSC" +
                                                Text(number.begin(), number.end()) + u".jpg");
        program.app.windows.form3.List2.AddItem(model::BlankScheduleRow());
    }
    document::WriteShowDocument(program.app, u"C:\\show\\large.kvs");
    std::ofstream(path, std::ios::binary) << program.files.Get(u"C:\\show\\large.kvs")->content;
}

template <class Act>
double MedianUntilPainted(Program& program, Act act) {
    std::vector<double> times;
    for (int run = 0; run < kRuns; ++run) {
        times.push_back(program.UntilPainted(act));
    }
    return Median(times);
}

void MeasureShowing(qt_adapter::Desktop& desktop, const std::string& folder,
                    const std::string& document) {
    std::vector<double> shown, opened;
    for (int run = 0; run < kRuns; ++run) {
        Program program(desktop, folder, desktop.Loop());
        model::Form3& form3 = program.app.windows.form3;
        program.List();  // its form is read: what every window costs once
        authoring::OpenDocument(program.app, text::FromUtf8(document));
        shown.push_back(program.UntilPainted([&] { form3.Show(); }));
        document::ClearSlides(program.app);
        opened.push_back(program.UntilPainted(
            [&] { authoring::OpenDocument(program.app, text::FromUtf8(document)); }));
        if (form3.List1.ListCount() != kSlides) {
            std::fprintf(stderr, "the document was not read\n");
            std::exit(1);
        }
    }
    std::printf("%d slides: shown %.1f ms, opened into the visible window %.1f ms\n", kSlides,
                Median(shown), Median(opened));
    std::printf("budget list-shown %.3f 1\n", Median(shown) / kShownMs);
    std::printf("budget list-opened-into %.3f 1\n", Median(opened) / kShownMs);
}

void MeasureChanges(Program& program, const char* how) {
    Application& app = program.app;
    const auto slides = [&] { return document::SlideRows(app); };
    program.List().verticalScrollBar()->setValue(0);
    model::ListBox& list = app.windows.form3.List1;
    const double added = MedianUntilPainted(program, [&] {
        document::InsertRows(slides(), 0, {document::SlideRow(u"/home/me/new.jpg")});
    });
    const double moved =
        MedianUntilPainted(program, [&] { document::MoveRows(slides(), {0}, list.ListCount()); });
    const double swapped = MedianUntilPainted(program, [&] { document::SwapRows(slides(), 1, 2); });
    const double undone = MedianUntilPainted(program, [&] { document::UndoSlideRows(app); });
    const double scrolled = MedianUntilPainted(program, [&] {
        program.List().verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepAdd);
    });
    std::printf(
        "%s: added %.1f ms, moved to the end %.1f ms, moved by one %.1f ms, undone %.1f ms, "
        "scrolled a page %.1f ms\n",
        how, added, moved, swapped, undone, scrolled);
    std::printf("budget frames-of-a-change-%s %.3f 1\n", how,
                std::max({added, moved, swapped, undone}) / kFrameMs);
    std::printf("budget frames-of-a-page-%s %.3f 1\n", how, scrolled / kFrameMs);
}

/// `before`: what the program took without thumbnails.
void MeasureThumbnails(Program& program, double before, const char* how) {
    QScrollBar& bar = *program.List().verticalScrollBar();
    bar.setValue(0);
    program.Settle();
    std::printf("budget thumbnails-wanted-over-rows-in-sight-%s %.3f 1\n", how,
                static_cast<double>(program.thumbnails.wanted.size()) / program.RowsInSight());
    double most = ResidentMiB();
    while (bar.value() < bar.maximum()) {
        bar.triggerAction(QAbstractSlider::SliderPageStepAdd);
        program.desktop.Loop().PumpEvents();
        program.desktop.Loop().PumpEvents();
        most = std::max(most, ResidentMiB());
    }
    std::printf("%s: %zu thumbnails scrolled past, %.1f MiB more at the peak\n", how,
                program.thumbnails.wanted.size(), most - before);
    std::printf("budget thumbnails-scrolled-past-%s-mib %.1f %.0f\n", how, most - before,
                kMostMemory);
}

}  // namespace

int main(int argc, char** argv) {
    const std::string folder = std::filesystem::absolute(argc > 1 ? argv[1] : ".").string();
    const std::string document = folder + "/large.kvs";
    WriteDocument(document);
    qt_adapter::Desktop desktop(argc, argv, {.offscreen = true, .screens = {{0, 0, 1920, 1080}}});
    MeasureShowing(desktop, folder, document);
    double before = 0;
    for (const bool grid : {false, true}) {
        Program program(desktop, folder, desktop.Loop());
        program.app.windows.form3.List1.AsGrid = grid;
        program.app.windows.form3.Show();
        authoring::OpenDocument(program.app, text::FromUtf8(document));
        program.Settle();
        before = grid ? before : ResidentMiB();
        MeasureThumbnails(program, before, grid ? "grid" : "lines");
        MeasureChanges(program, grid ? "grid" : "lines");
    }
    std::filesystem::remove(document);
    return 0;
}
