// Opening and saving a show document of 30000 slides, lists filled, without the disk: milliseconds
// against their budget, and the memory that a slide takes.
#include <malloc.h>

#include <algorithm>
#include <chrono>
#include <cstdio>

#include "../tests/support/fake_platform.h"
#include "document/show_document.h"
#include "model/windows/slide_list.h"

namespace {

constexpr int kSlides = 30000;
constexpr int kRuns = 9;
constexpr double kBudgetMs = 50;
constexpr double kBudgetBytesPerSlide = 1024;
constexpr const char16_t* kPath = u"C:\\show\\large.kvs";

double Milliseconds(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}

/// Japanese names of a usual length.
std::string LargeDocument() {
    fakes::FakePlatform program;
    for (int i = 0; i < kSlides; ++i) {
        const std::string number = std::to_string(i);
        program.app.windows.form3.List1.AddItem(u"D:\\写真\\2026年の旅行\\沖縄の海と空\\DSC" +
                                                Text(number.begin(), number.end()) + u".jpg");
        program.app.windows.form3.List2.AddItem(model::BlankScheduleRow());
    }
    document::WriteShowDocument(program.app, kPath);
    return program.files.Get(kPath)->content;
}

void Print(const char* what, double measured, double budget) {
    std::printf("budget %s %.3f 1\n", what, measured / budget);
}

}  // namespace

int main() {
    const std::string content = LargeDocument();
    std::vector<double> open, save;
    double bytes = 0;
    for (int run = 0; run < kRuns; ++run) {
        fakes::FakePlatform program;
        program.files.Put(kPath, content);
        const auto before = mallinfo2().uordblks;
        open.push_back(Milliseconds([&] { document::ReadShowDocument(program.app, kPath); }));
        bytes = static_cast<double>(mallinfo2().uordblks - before);
        save.push_back(Milliseconds([&] { document::WriteShowDocument(program.app, kPath); }));
    }
    std::sort(open.begin(), open.end());
    std::sort(save.begin(), save.end());
    std::printf("open %.1f ms, save %.1f ms (medians), %.0f bytes a slide\n", open[kRuns / 2],
                save[kRuns / 2], bytes / kSlides);
    Print("open_30000_slides", open[kRuns / 2], kBudgetMs);
    Print("save_30000_slides", save[kRuns / 2], kBudgetMs);
    Print("memory_per_slide", bytes / kSlides, kBudgetBytesPerSlide);
    return 0;
}
