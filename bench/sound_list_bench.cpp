// A search that brings 30000 sounds into the sound list: the longest time in which its window does
// not answer, and how many lengths of files become known each second.
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "../tests/support/media_bytes.h"
#include "adapters/imaging/file_inquirer.h"
#include "model/windows/file_search.h"
#include "model/windows/sound_list.h"
#include "slide_list_program.h"

namespace {

constexpr int kFolders = 300, kOfAKind = 34;  // wave, MIDI and MP3 files in each
constexpr int kFound = 30000;
constexpr double kAnswerMs = 50;
constexpr double kLeastASecond = 500;

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

private:
    double last_ = 0;
};

std::string Mp3WithCount() {
    std::string mp3 = media::Mp3(3);
    return mp3.replace(36, 16,
                       "Xing" + media::Big(3, 4) + media::Big(2, 4) + media::Big(mp3.size(), 4));
}

void MakeTree(const std::filesystem::path& root) {
    const std::pair<const char*, std::string> kinds[] = {{".wav", media::Wav(1)},
                                                         {".mid", media::Midi({media::Note(480)})},
                                                         {".mp3", Mp3WithCount()}};
    for (int folder = 0; folder < kFolders; ++folder) {
        const std::filesystem::path inside = root / ("album" + std::to_string(folder));
        std::filesystem::create_directories(inside);
        for (int i = 0; i < kOfAKind; ++i) {
            for (const auto& [extension, bytes] : kinds) {
                std::ofstream(inside / (std::to_string(i) + extension), std::ios::binary) << bytes;
            }
        }
    }
}

/// A person ticks all three kinds and goes on.
void AnswerDialog(Application& app, Gaps& loop, double& start) {
    model::Form19& form19 = app.windows.form19;
    loop.SetTimer(&form19, 1, [&] {
        if (form19.Visible) {
            loop.CancelTimer(&form19);
            for (const auto& box : form19.Check1) {
                box->Press();
            }
            start = NowMs();
            form19.Command3.Press();
            loop.Begin();
        }
    });
}

void Measure(qt_adapter::Desktop& desktop, const std::string& folder, const std::string& root) {
    imaging::FileInquirer inquiry(
        {.programFolder = folder + "/",
         .post = [&desktop](std::function<void()> call) { desktop.Post(std::move(call)); }});
    Gaps loop(desktop.Loop());
    Program program(desktop, folder, loop, &inquiry);
    model::Form10& form10 = program.app.windows.form10;
    form10.Show();
    form10.Dir1.Path = text::FromUtf8(root);
    form10.Dir1.ListIndex = -1;
    program.Settle();
    double start = 0;
    AnswerDialog(program.app, loop, start);
    form10.Command8.Press();
    const double searched = NowMs() - start;
    if (form10.List1.ListCount() != kFound) {
        std::fprintf(stderr, "%d found\n", form10.List1.ListCount());
        std::exit(1);
    }
    loop.PumpEvents();
    const auto known = [&] {
        return text::ToUtf8(form10.Length.Caption()).find("～") == std::string::npos;
    };
    while (!known()) {
        loop.PumpEvents();
        desktop.Loop().Sleep(1);
    }
    const double seconds = (NowMs() - start) / 1000;
    std::printf(
        "%d sounds searched in %.0f ms, their lengths known after %.1f s, %s; without an "
        "answer for %.1f ms at most\n",
        kFound, searched, seconds, text::ToUtf8(form10.Length.Caption()).c_str(), loop.longest);
    std::printf("budget sound-list-answers-ms %.1f %.0f\n", loop.longest, kAnswerMs);
    std::printf("budget sound-lengths-at-500-a-second %.3f 1\n",
                kLeastASecond / (kFound / seconds));
}

}  // namespace

int main(int argc, char** argv) {
    const std::string folder = std::filesystem::absolute(argc > 1 ? argv[1] : ".").string();
    const std::string root = folder + "/sounds";
    MakeTree(root);
    qt_adapter::Desktop desktop(argc, argv, {.offscreen = true, .screens = {{0, 0, 1920, 1080}}});
    Measure(desktop, folder, root);
    std::filesystem::remove_all(root);
    return 0;
}
