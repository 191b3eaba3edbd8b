// The search of a tree of 10000 folders and 100000 files from the window of the slide list, against
// the time that `find` takes; and the longest time in which the window does not answer.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "document/slide_rows.h"
#include "model/windows/file_search.h"
#include "slide_list_program.h"

namespace {

constexpr int kFolders = 100;  // and as many in each of them
constexpr int kFiles = 10, kPictures = 2;
constexpr int kFound = kFolders * kFolders * kPictures;
constexpr int kRuns = 5;
constexpr double kAllowed = 2;
constexpr double kAnswerMs = 50;

/// Times between two pumps.
class Gaps : public LoopAround {
public:
    using LoopAround::LoopAround;
    double longest = 0;

    void Begin() {
        longest = 0;
        last_ = NowMs();
    }
    void PumpEvents() override {
        longest = std::max(longest, NowMs() - last_);
        LoopAround::PumpEvents();
        last_ = NowMs();
    }
    void RunUntil(const std::function<bool()>& done) override {
        LoopAround::RunUntil(done);
        last_ = NowMs();
    }

private:
    double last_ = 0;
};

void MakeTree(const std::filesystem::path& root) {
    for (int outer = 0; outer < kFolders; ++outer) {
        for (int inner = 0; inner < kFolders; ++inner) {
            const std::filesystem::path folder =
                root / ("album" + std::to_string(outer)) / ("day" + std::to_string(inner));
            std::filesystem::create_directories(folder);
            for (int file = 0; file < kFiles; ++file) {
                const char* kind = file < kPictures ? ".jpg" : ".txt";
                std::ofstream(folder / ("DSC" + std::to_string(file) + kind));
            }
        }
    }
}

double Find(const std::string& root) {
    const std::string command = "find '" + root + "' -name '*.jpg' > /dev/null";
    const double start = NowMs();
    if (std::system(command.c_str()) != 0) {
        std::fprintf(stderr, "find failed\n");
        std::exit(1);
    }
    return NowMs() - start;
}

/// A person ticks JPG alone and goes on.
void AnswerDialog(Program& program) {
    model::Form18& form18 = program.app.windows.form18;
    platform::EventLoop& loop = program.app.platform.loop;
    loop.SetTimer(&form18, 1, [&] {
        if (form18.Visible) {
            loop.CancelTimer(&form18);
            form18.Command2.Press();
            form18.Check1(1).Press();
            form18.Command3.Press();
        }
    });
}

struct Measured {
    double searched, longest;
};

Measured Search(Program& program, Gaps& loop, const std::string& root) {
    model::Form3& form3 = program.app.windows.form3;
    document::ClearSlides(program.app);
    form3.Dir1.Path = text::FromUtf8(root);
    form3.Dir1.ListIndex = -1;
    program.Settle();
    AnswerDialog(program);
    double start = 0;
    // From the dialog's end on.
    struct Ended : model::Listener {
        Gaps& gaps;
        double& at;
        model::Form18& form18;
        Ended(Gaps& g, double& a, model::Form18& f) : gaps(g), at(a), form18(f) {
            form18.Listen(this);
        }
        ~Ended() override { form18.Unlisten(this); }
        Ended(const Ended&) = delete;
        Ended& operator=(const Ended&) = delete;
        void PropertyChanged(model::Control&, model::PropertyBase& property) override {
            if (&property == &form18.Visible && !form18.Visible) {
                at = NowMs();
                gaps.Begin();
            }
        }
    } ended(loop, start, program.app.windows.form18);
    form3.Command8.Press();
    const double searched = NowMs() - start;
    if (form3.List1.ListCount() != kFound) {
        std::fprintf(stderr, "%d found\n", form3.List1.ListCount());
        std::exit(1);
    }
    loop.PumpEvents();
    return {searched, loop.longest};
}

}  // namespace

int main(int argc, char** argv) {
    const std::string folder = std::filesystem::absolute(argc > 1 ? argv[1] : ".").string();
    const std::string root = folder + "/tree";
    MakeTree(root);
    qt_adapter::Desktop desktop(argc, argv, {.offscreen = true, .screens = {{0, 0, 1920, 1080}}});
    {
        Gaps loop(desktop.Loop());
        Program program(desktop, folder, loop);
        program.app.windows.form3.Show();
        std::vector<double> found, searched, longest;
        for (int run = 0; run < kRuns; ++run) {
            found.push_back(Find(root));
            const Measured one = Search(program, loop, root);
            searched.push_back(one.searched);
            longest.push_back(one.longest);
        }
        std::printf(
            "%d folders, %d files: searched in %.0f ms, find %.0f ms, without an answer for %.1f "
            "ms at "
            "most (medians)\n",
            kFolders * kFolders, kFolders * kFolders * kFiles, Median(searched), Median(found),
            Median(longest));
        std::printf("budget search-against-find %.3f %.0f\n", Median(searched) / Median(found),
                    kAllowed);
        std::printf("budget search-window-answers-ms %.1f %.0f\n", Median(longest), kAnswerMs);
    }
    std::filesystem::remove_all(root);
    return 0;
}
