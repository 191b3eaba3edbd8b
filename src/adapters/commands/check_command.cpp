#include "adapters/commands/check_command.h"

#include <cstdio>
#include <ostream>

#include "adapters/commands/fresh_program.h"
#include "adapters/posix/json.h"
#include "document/link_document.h"
#include "document/show_document.h"
#include "macro/check.h"
#include "macro/macro.h"
#include "model/windows/link_list.h"
#include "text/paths.h"

namespace commands {

namespace {

using posix_adapter::JsonNumber;
using posix_adapter::JsonUtf8;

const macro::Finding kRefused{1,
                              1,
                              u"この文書は読めません",
                              u"開くことができません",
                              u"パラピコの文書か確かめてください",
                              "document"};

constexpr int kNothing = 0, kFound = 1, kWrongUsage = 2;

struct FileFinding {
    std::string file;
    macro::Finding finding;
};

struct Report {
    platform::Size screen = macro::CheckedSlide{}.screen;
    std::vector<FileFinding> findings;
    std::vector<std::string> unreadable;

    void Take(const Text& file, std::vector<macro::Finding> found) {
        for (macro::Finding& finding : found) {
            findings.push_back({text::ToUtf8(file), std::move(finding)});
        }
    }
};

bool ReadText(Application& app, const Text& path, Text& content, bool handWritten) {
    std::string bytes;
    platform::FileError error;
    if (!app.platform.files.Read(path, bytes, error)) {
        return false;
    }
    content = handWritten ? text::DecodeHandWrittenFile(bytes, app.platform.codePage)
                          : text::DecodeFile(bytes, app.platform.codePage);
    return true;
}

/// Looks for the lines of a document that name its slides, from the top on.
class SlideLines {
public:
    explicit SlideLines(TextView content) : rest_(content) {}

    /// Line of the next slide of that name; the last one found where there is no further.
    int Of(TextView name) {
        TextView rest = rest_;
        for (int line = line_; !rest.empty(); ++line) {
            const size_t end = std::min(rest.find(u'\n'), rest.size());
            TextView text = rest.substr(0, end);
            rest.remove_prefix(std::min(end + 1, rest.size()));
            while (text.ends_with(u'\r')) {
                text.remove_suffix(1);
            }
            if (text.ends_with(name)) {
                rest_ = rest;
                line_ = line + 1;
                return line;
            }
        }
        return std::max(line_ - 1, 1);
    }

private:
    TextView rest_;
    int line_ = 1;
};

void CheckMacroFile(Report& report, const Text& path) {
    FreshProgram program(path);
    Text source;
    if (!ReadText(program.app, path, source, true)) {
        report.unreadable.push_back(text::ToUtf8(path));
        return;
    }
    // Alone it belongs to no document: the one that will show it mostly lies beside it.
    const macro::CheckedSlide slide{text::FolderPart(path), 0,    0,
                                    report.screen,          path, &program.app.platform.system};
    report.Take(path, macro::CheckMacro(program.app.platform.files, slide, source));
}

void CheckShow(Report& report, const Text& path) {
    FreshProgram program(path);
    Application& app = program.app;
    model::ShowState& state = app.state;
    Text content;
    if (!ReadText(app, path, content, false)) {
        report.unreadable.push_back(text::ToUtf8(path));
        return;
    }
    document::ReadShowDocument(app, path);
    if (state.ShowAbort == 1) {
        report.Take(path, {kRefused});
        return;
    }
    SlideLines lines(content);
    const int count = state.SlideList.Count();
    for (int i = 1; i <= count; ++i) {
        const Text slide = state.SlideList(i);
        state.SlideIndex = static_cast<int16_t>(i);
        state.CurrentName = text::BareName(slide);
        const int line = lines.Of(state.CurrentName);
        if (!app.platform.files.Exists(slide)) {
            report.Take(path, {{line, 1, u"「" + slide + u"」がありません",
                                text::IsVideoKind(slide) ? u"知らせたあと次へ進みます"
                                                         : u"続けるかどうかを尋ねます",
                                u"ファイルを戻すか、スライドを消してください", "file"}});
        }
        // Films run no macro: a text beside one is something else.
        const Text macroFile = text::IsVideoKind(slide) ? Text() : macro::MacroFile(app);
        Text source;
        if (!macroFile.empty() && ReadText(app, macroFile, source, true)) {
            const macro::CheckedSlide checked{text::FolderPart(slide), i,    count,
                                              report.screen,           path, &app.platform.system};
            report.Take(macroFile, macro::CheckMacro(app.platform.files, checked, source));
        }
    }
}

/// Every show of a link document, as it stands on its own.
void CheckLinks(Report& report, const Text& path) {
    FreshProgram program(path);
    Application& app = program.app;
    Text content;
    if (!ReadText(app, path, content, false)) {
        report.unreadable.push_back(text::ToUtf8(path));
        return;
    }
    if (!document::ReadLinkDocument(app, path)) {
        report.Take(path, {kRefused});
        return;
    }
    SlideLines lines(content);
    for (const Text& show : app.windows.form9.List1.Rows()) {
        const int line = lines.Of(text::BareName(show));
        if (app.platform.files.Exists(show)) {
            CheckShow(report, show);
        } else {
            report.Take(path, {{line, 1, u"「" + show + u"」がありません",
                                u"知らせたあと次の文書へ進みます",
                                u"ファイルを戻すか、リストから消してください", "file"}});
        }
    }
}

std::string JsonFinding(const FileFinding& row) {
    return "{\"file\":" + JsonUtf8(row.file) + ",\"line\":" + JsonNumber(row.finding.line) +
           ",\"column\":" + JsonNumber(row.finding.column) +
           ",\"wrong\":" + posix_adapter::JsonText(row.finding.wrong) +
           ",\"effect\":" + posix_adapter::JsonText(row.finding.effect) +
           ",\"remedy\":" + posix_adapter::JsonText(row.finding.remedy) + ",\"kind\":\"" +
           row.finding.kind + "\"}";
}

void Print(const Report& report, bool json, std::ostream& out) {
    if (!json) {
        for (const FileFinding& row : report.findings) {
            out << row.file << ":" << row.finding.line << ":" << row.finding.column << ": "
                << text::ToUtf8(row.finding.wrong) << " → " << text::ToUtf8(row.finding.effect)
                << "（" << text::ToUtf8(row.finding.remedy) << "）\n";
        }
        return;
    }
    out << "[";
    for (size_t i = 0; i < report.findings.size(); ++i) {
        out << (i > 0 ? ",\n " : "") << JsonFinding(report.findings[i]);
    }
    out << "]\n";
}

/// "WIDTHxHEIGHT" in pixels.
bool ReadSize(const std::string& words, platform::Size& size) {
    char more = 0;
    return std::sscanf(words.c_str(), "%5dx%5d%c", &size.width, &size.height, &more) == 2 &&
           size.width > 0 && size.height > 0;
}

int TellUsage(std::ostream& err) {
    err << "usage: parapico --check [--json] [--screen WxH] FILE…\n";
    return kWrongUsage;
}

}  // namespace

int RunCheckCommand(const std::vector<std::string>& arguments, std::ostream& out,
                    std::ostream& err) {
    bool json = false;
    Report report;
    std::vector<std::string> files;
    for (size_t i = 1; i < arguments.size(); ++i) {
        if (arguments[i] == "--json") {
            json = true;
        } else if (arguments[i] == "--screen") {
            if (++i == arguments.size() || !ReadSize(arguments[i], report.screen)) {
                return TellUsage(err);
            }
        } else if (arguments[i].empty() || arguments[i].starts_with("--")) {
            return TellUsage(err);
        } else {
            files.push_back(arguments[i]);
        }
    }
    if (files.empty()) {
        return TellUsage(err);
    }
    for (const std::string& file : files) {
        const Text path = AbsolutePath(file);
        const Text kind = text::KindOf(path);
        const auto check = kind == u"KVS"   ? CheckShow
                           : kind == u"KVL" ? CheckLinks
                                            : CheckMacroFile;
        check(report, path);
    }
    Print(report, json, out);
    for (const std::string& file : report.unreadable) {
        err << "parapico: " << file << ": 読み込めません\n";
    }
    if (!out.flush() || !report.unreadable.empty()) {
        return kWrongUsage;
    }
    return report.findings.empty() ? kNothing : kFound;
}

}  // namespace commands
