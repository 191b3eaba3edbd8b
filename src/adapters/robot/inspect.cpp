#include "adapters/robot/inspect.h"

#include <algorithm>
#include <ostream>

#include "adapters/posix/json.h"
#include "adapters/robot/fresh_program.h"
#include "document/link_document.h"
#include "document/show_document.h"
#include "document/state_files.h"
#include "text/paths.h"

namespace robot {

namespace {

using posix_adapter::JsonNumber;
using posix_adapter::JsonText;

/// What the tool knows of a file kind. `read` tells whether the file was accepted; null: the
/// program does not read this kind yet.
struct Kind {
    const char* name;
    const char16_t* extension;  // in upper case
    const char16_t* fileName;   // in upper case
    const char16_t* tag;        // beginning of the first line
    bool (*read)(Application& app, const Text& path);
};

bool ReadShow(Application& app, const Text& path) {
    document::ReadShowDocument(app, path);
    return app.state.ShowAbort == 0;
}

bool ReadLinks(Application& app, const Text& path) {
    document::ReadLinkDocument(app, path);
    return true;
}

bool ReadSounds(Application& app, const Text& path) {
    app.state.AppFolder = app.state.BaseFolder;  // where such a file belongs
    return document::ReadSoundListFile(app, path);
}

const Kind kKinds[] = {
    {"kvs", u"KVS", u"", u"", ReadShow},
    {"kvl", u"KVL", u"", u"", ReadLinks},
    {"wavlist", u"", u"WAVLIST.DAT", u"WAV3.4", ReadSounds},
    {"autstart", u"", u"AUTSTART.DAT", u"V2", nullptr},
    {"uautst", u"", u"UAUTST.DAT", u"KVSV3", nullptr},
    {"cutout", u"", u"", u"KVS_PICTYPE_DATA", nullptr},
};

/// By extension, then by first line, then by file name; what is left is tried as a show document.
const Kind& KindOfFile(const Text& path, TextView tag) {
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
    return kKinds[0];
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
    for (const char* name : {"DocumentPath", "DocumentName", "DocumentFileDate", "BaseFolder",
                             "SlideListEnd", "SlideIndex", "CdProgramCount", "SoundListCount",
                             "Mp3ModeFlag", "DistributionSaveFlag", "ShowAbort"}) {
        json += "\"" + std::string(name) +
                "\":" + JsonValue(model::ReadField(app.state, *model::FindField(name))) + ",";
    }
    return json + "\"Form1.Timer1.Interval\":" + JsonNumber(app.windows.form1.Timer1.Interval) +
           "}";
}

std::string JsonMessages(const std::vector<RecordingDialogs::Box>& boxes) {
    std::string json = "[";
    for (const RecordingDialogs::Box& box : boxes) {
        json += json.size() > 1 ? "," : "";
        json += "{\"title\":" + JsonText(box.title) + ",\"text\":" + JsonText(box.text) +
                ",\"flags\":" + JsonNumber(box.flags) + "}";
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
    FreshProgram program(path);
    Application& app = program.app;
    auto& messages = program.surroundings.dialogs.messages;
    const Text tag = FirstLine(app.platform.files, app.platform.codePage, path);
    const Kind& kind = KindOfFile(path, tag);
    bool accepted = false;
    if (kind.read) {
        accepted = kind.read(app, path) && messages.empty();
    } else {
        messages.push_back({u"", u"not built yet", 0});
    }
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
    for (const RecordingDialogs::Box& box : messages) {
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

}  // namespace robot
