#include "adapters/commands/inspect.h"

#include <algorithm>
#include <ostream>

#include "adapters/commands/fresh_program.h"
#include "adapters/posix/json.h"
#include "document/cutout_points.h"
#include "document/link_document.h"
#include "document/show_document.h"
#include "document/state_files.h"
#include "model/windows/link_list.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_list.h"
#include "text/paths.h"

namespace commands {

namespace {

using posix_adapter::JsonNumber;
using posix_adapter::JsonText;

/// The program, and what reading leaves beside it.
struct Inspected : FreshProgram {
    using FreshProgram::FreshProgram;
    std::vector<document::CutoutPoint> points;  // of a coordinate file
};

/// What the tool knows of a file kind. `read` tells whether the file was accepted.
struct Kind {
    const char* name;
    const char16_t* extension;  // in upper case
    const char16_t* fileName;   // in upper case
    const char16_t* tag;        // beginning of the first line
    bool (*read)(Inspected& program, const Text& path);
};

bool ReadShow(Inspected& program, const Text& path) {
    document::ReadShowDocument(program.app, path);
    return program.app.state.ShowAbort == 0;
}

bool ReadLinks(Inspected& program, const Text& path) {
    document::ReadLinkDocument(program.app, path);
    return true;
}

/// Files of the program folder: where one lies is taken for that folder.
model::ShowState& InProgramFolder(Inspected& program) {
    program.app.state.AppFolder = program.app.state.BaseFolder;
    return program.app.state;
}

bool ReadSounds(Inspected& program, const Text& path) {
    InProgramFolder(program);
    return document::ReadSoundListFile(program.app, path) != document::Taken::Nothing;
}

bool ReadLastState(Inspected& program, const Text& path) {
    InProgramFolder(program);
    return document::ReadStateFile(program.app, path) != document::Taken::Nothing;
}

/// The links stand in the window; shown are those that a start would take over from there.
bool ReadLinkState(Inspected& program, const Text& path) {
    model::ShowState& state = InProgramFolder(program);
    const bool accepted =
        document::ReadLinkStateFile(program.app, path) != document::Taken::Nothing;
    int index = 0;
    for (const Text& link : program.app.windows.form9.List1.Rows()) {
        state.LinkList.Set(++index, link);
    }
    return accepted;
}

bool ReadCutout(Inspected& program, const Text& path) {
    std::string bytes;
    platform::FileError ignored;
    if (!program.app.platform.files.Read(path, bytes, ignored)) {
        return false;
    }
    auto points =
        document::ReadCutoutPoints(text::DecodeFile(bytes, program.surroundings.codePage));
    const bool accepted = points.has_value();
    if (accepted) {
        program.points = std::move(*points);
    }
    return accepted;
}

const Kind kKinds[] = {
    {"kvs", u"KVS", u"", u"", ReadShow},
    {"kvl", u"KVL", u"", u"", ReadLinks},
    {"wavlist", u"", u"WAVLIST.DAT", u"WAV3.4", ReadSounds},
    {"autstart", u"", u"AUTSTART.DAT", u"V2", ReadLastState},
    {"uautst", u"", u"UAUTST.DAT", u"KVSV3", ReadLinkState},
    {"cutout", u"", u"", document::kCutoutHeader.data(), ReadCutout},
};

const Kind& kCutoutKind = *std::find_if(std::begin(kKinds), std::end(kKinds),
                                        [](const Kind& kind) { return kind.read == ReadCutout; });

/// By extension, then by first line, then by file name (the oldest state files begin with a bare
/// number). What is left is tried as a coordinate file if it has such a file's extension and does
/// not begin like a document, otherwise as a show document.
const Kind& KindOfFile(const Text& path, TextView firstLine) {
    const Text tag = text::LTrim(firstLine);
    for (const Kind& kind : kKinds) {
        if (*kind.extension && text::KindOf(path) == kind.extension) {
            return kind;
        }
    }
    for (const Kind& kind : kKinds) {
        if (*kind.tag && tag.starts_with(kind.tag)) {
            return kind;
        }
    }
    for (const Kind& kind : kKinds) {
        if (*kind.fileName && text::Upper(text::BareName(path)) == kind.fileName) {
            return kind;
        }
    }
    const bool likeShow = tag.substr(0, 5).find(u"vue") != Text::npos;
    return text::KindOf(path) == u"DAT" && !likeShow ? kCutoutKind : kKinds[0];
}

Text FirstLine(platform::Files& files, const text::CodePage& codePage, const Text& path) {
    std::string bytes;
    platform::FileError error;
    if (!files.Read(path, bytes, error)) {
        return {};
    }
    const size_t end = std::min(bytes.find_first_of("\r\n"), bytes.size());
    return text::DecodeFile(std::string_view(bytes).substr(0, end), codePage);
}

std::string JsonValue(const std::variant<double, Text>& value) {
    const double* number = std::get_if<double>(&value);
    return number ? JsonNumber(*number) : JsonText(std::get<Text>(value));
}

template <class Rows>
std::string JsonRows(const Rows& rows) {
    std::string json = "[";
    for (const Text& row : rows) {
        json += json.size() > 1 ? "," : "";
        json += JsonText(row);
    }
    return json + "]";
}

std::string JsonArray(const model::TextArray& array) {
    std::vector<Text> rows;
    for (int i = 1; i <= array.Used(); ++i) {
        rows.push_back(array(i));
    }
    return JsonRows(rows);
}

std::string JsonState(const Application& app) {
    std::string json = "{";
    for (const model::Setting& setting : model::Settings()) {
        json += "\"" + std::string(setting.name) +
                "\":" + JsonValue(model::ReadField(app.state, setting.field)) + ",";
    }
    for (const char* name :
         {"DocumentPath", "DocumentName", "DocumentFileDate", "BaseFolder", "SlideListEnd",
          "SlideIndex", "CdProgramCount", "SoundListCount", "Mp3ModeFlag", "DistributionSaveFlag",
          "ShowAbort", "MonitorIndex", "LinkDocumentName"}) {
        json += "\"" + std::string(name) +
                "\":" + JsonValue(model::ReadField(app.state, *model::FindField(name))) + ",";
    }
    return json + "\"Form1.Timer1.Interval\":" + JsonNumber(app.windows.form1.Timer1.Interval) +
           "}";
}

std::string JsonMessages(const std::vector<virtual_adapter::VirtualDialogs::Box>& boxes) {
    std::string json = "[";
    for (const virtual_adapter::VirtualDialogs::Box& box : boxes) {
        json += json.size() > 1 ? "," : "";
        json += "{\"title\":" + JsonText(box.title) + ",\"text\":" + JsonText(box.text) +
                ",\"flags\":" + JsonNumber(box.flags) + "}";
    }
    return json + "]";
}

std::string JsonPoints(const std::vector<document::CutoutPoint>& points) {
    std::string json = "[";
    for (const document::CutoutPoint& point : points) {
        json += json.size() > 1 ? ",[" : "[";
        json += JsonNumber(point.x) + "," + JsonNumber(point.y) + "]";
    }
    return json + "]";
}

constexpr int kOutputLost = 1;

int Usage(std::ostream& err) {
    err << "usage: parapico --inspect FILE\n"
           "       parapico --resave IN OUT [--distribution]\n";
    return 2;
}

}  // namespace

int Inspect(const std::string& givenPath, std::ostream& out) {
    const Text path = AbsolutePath(givenPath);
    Inspected program(path);
    Application& app = program.app;
    auto& messages = program.surroundings.dialogs.messages;
    const Text firstLine = FirstLine(app.platform.files, app.platform.codePage, path);
    const Kind& kind = KindOfFile(path, firstLine);
    const bool isCutout = kind.read == ReadCutout;
    const Text tag = isCutout ? document::CutoutHeaderOf(firstLine) : firstLine;
    const bool accepted = kind.read(program, path) && messages.empty();
    const auto& state = app.state;
    const auto& form3 = app.windows.form3;
    out << "{\"ok\":" << (accepted ? "true" : "false") << ",\"kind\":\"" << kind.name
        << "\",\"tag\":" << JsonText(tag) << ",\"state\":" << JsonState(app)
        << ",\"List1\":" << JsonRows(form3.List1.Rows())
        << ",\"List2\":" << JsonRows(form3.List2.Rows())
        << ",\"SlideList\":" << JsonArray(state.SlideList)
        << ",\"ScheduleFrom\":" << JsonArray(state.ScheduleFrom)
        << ",\"ScheduleTo\":" << JsonArray(state.ScheduleTo)
        << ",\"CdProgram\":" << JsonArray(state.CdProgram)
        << ",\"SoundList\":" << JsonArray(state.SoundList)
        << ",\"LinkList\":" << JsonArray(state.LinkList)
        << (isCutout ? ",\"Points\":" + JsonPoints(program.points) : std::string())
        << ",\"messages\":" << JsonMessages(messages) << "}\n";
    return accepted ? 0 : 1;
}

int Resave(const std::string& in, const std::string& target, bool distribution, std::ostream& err) {
    const Text path = AbsolutePath(in);
    FreshProgram program(path);
    Application& app = program.app;
    const auto& messages = program.surroundings.dialogs.messages;
    document::ReadShowDocument(app, path);
    if (messages.empty()) {
        app.state.DistributionSaveFlag = distribution ? 1 : 0;
        const Text newPath = text::WithDefaultExtension(AbsolutePath(target), u".kvs");
        program.surroundings.files.writable = newPath;
        document::WriteShowDocument(app, newPath);
    }
    for (const virtual_adapter::VirtualDialogs::Box& box : messages) {
        err << text::ToUtf8(box.text) << "\n";
    }
    return messages.empty() ? 0 : 1;
}

int RunDocumentCommand(const std::vector<std::string>& arguments, std::ostream& out,
                       std::ostream& err) {
    const std::string command = arguments.empty() ? "" : arguments.front();
    std::vector<std::string> paths;
    bool distribution = false;
    for (size_t i = 1; i < arguments.size(); ++i) {
        if (arguments[i] == "--distribution") {
            distribution = true;
        } else if (arguments[i].empty() || arguments[i].starts_with("--")) {
            return Usage(err);
        } else {
            paths.push_back(arguments[i]);
        }
    }
    if (command == "--inspect" && paths.size() == 1 && !distribution) {
        const int status = Inspect(paths[0], out);
        if (!out.flush()) {
            err << "parapico: the output could not be written\n";
            return kOutputLost;
        }
        return status;
    }
    if (command == "--resave" && paths.size() == 2) {
        return Resave(paths[0], paths[1], distribution, err);
    }
    return Usage(err);
}

}  // namespace commands
