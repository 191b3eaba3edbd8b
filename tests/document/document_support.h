// One document with a value of its own on every line, and a program to read it in.
#pragma once

#include <string>
#include <vector>

#include "document/show_document.h"
#include "model/list_controls.h"
#include "model/windows/slide_list.h"
#include "support/fake_platform.h"

namespace document_tests {

/// A line of a document with its number in the format; lists have several of one number.
struct Line {
    int number;
    Text content;
};
using Lines = std::vector<Line>;

constexpr const char16_t* kPath = u"C:\\show\\test.kvs";
constexpr const char16_t* kBase = u"C:\\show\\";
inline const Text kBlankRow(30, u' ');
inline const Text kRow = u"2026/01/0210:302026/12/3123:59";

/// Newest form, with values that differ from every default wherever the rules allow.
inline Lines FullDocument() {
    return {{1, u"21vue3167893"},
            {2, u"C:\\show\\full.kvs"},
            {3, u" 7000 "},
            {4, u" 1 "},
            {5, u" 3 "},
            {6, u"C:\\snd\\def.wav"},
            {7, u"C:\\snd\\back.wav"},
            {8, u" 2 "},
            {9, u"-5 "},
            {10, u" 12 "},
            {11, u" 4 "},
            {12, u" 21 "},
            {13, u" 22 "},
            {14, u" 0 "},
            {15, u"3-5"},
            {16, u" 31 "},
            {17, u" 32 "},
            {18, u" 0 "},
            {19, u"C:\\snd\\m.mid"},
            {20, u" 0 "},
            {21, u" 0 "},
            {22, u" 1 "},
            {23, u" 2 "},
            {24, u" 1 "},
            {25, u"C:\\linked"},
            {26, u" 2 "},
            {27, u"C:\\pic\\一.jpg"},
            {27, u"C:\\pic\\二.png"},
            {28, u"480"},
            {29, u" 2 "},
            {30, u" 3 "},
            {31, u" 2 "},
            {32, u"4"},
            {32, u"7"},
            {33, u" 1 "},
            {34, u" 0 "},
            {35, u" 1 "},
            {36, u" 6 "},
            {37, u" 0 "},
            {38, u" 1 "},
            {39, u" 1 "},
            {40, u"C:\\snd\\list.mp3"},
            {41, u" 1 "},
            {42, u"C:\\snd\\song.mp3"},
            {43, u" 0 "},
            {44, u" 0 "},
            {45, u" 0 "},
            {46, u" 1 "},
            {47, u" 1 "},
            {48, u" 1 "},
            {49, u"-" + kRow},
            {49, u"-" + kBlankRow}};
}

/// The lines up to and with `last`.
inline Lines UpTo(const Lines& lines, int last) {
    Lines result;
    for (const Line& line : lines) {
        if (line.number <= last) {
            result.push_back(line);
        }
    }
    return result;
}

/// Without the lines first..last.
inline Lines Without(const Lines& lines, int first, int last) {
    Lines result;
    for (const Line& line : lines) {
        if (line.number < first || line.number > last) {
            result.push_back(line);
        }
    }
    return result;
}

/// With every line of that number replaced by the given ones.
inline Lines With(const Lines& lines, int number, const std::vector<Text>& contents) {
    Lines result;
    bool done = false;
    for (const Line& line : lines) {
        if (line.number != number) {
            result.push_back(line);
        } else if (!done) {
            done = true;
            for (const Text& content : contents) {
                result.push_back({number, content});
            }
        }
    }
    return result;
}

inline Text TextOf(const Lines& lines) {
    Text result;
    for (const Line& line : lines) {
        result += line.content + u"\r\n";
    }
    return result;
}

/// Every setting to a value that no default and no test document has.
inline void PoisonSettings(model::ShowState& state) {
    for (const model::Setting& setting : model::Settings()) {
        if (!model::WriteField(state, setting.field, 77.0)) {
            model::WriteField(state, setting.field, Text(u"poison"));
        }
    }
}

struct Program : fakes::FakePlatform {
    void Read(const Lines& lines) { ReadText(TextOf(lines)); }
    void ReadText(TextView content) {
        PutText(kPath, content);
        app.state.BaseFolder = kBase;
        document::ReadShowDocument(app, kPath);
    }
    bool Accepted() const { return dialogs.messages.empty() && app.state.ShowAbort == 0; }
    /// The message of a refused file and nothing else.
    bool Refused() const {
        return dialogs.messages.size() == 1 && app.state.ShowAbort == 1 &&
               dialogs.messages[0].text == Text(kPath) + u"\r\nこのファイル名は適合しません。" &&
               dialogs.messages[0].flags == 48 && dialogs.messages[0].title == u"ファイルを開く";
    }
    const model::ShowState& State() const { return app.state; }
    std::vector<Text> List1() const { return RowsOf(app.windows.form3.List1); }
    std::vector<Text> List2() const { return RowsOf(app.windows.form3.List2); }
    static std::vector<Text> RowsOf(const model::ListBox& list) {
        return {list.Rows().begin(), list.Rows().end()};
    }
};

/// Value of a setting or run field by its name; fails the test where there is none.
inline std::variant<double, Text> Value(const Program& program, const std::string& name) {
    const model::FieldPointer* field = model::FindField(name);
    return field ? model::ReadField(program.State(), *field)
                 : std::variant<double, Text>(Text(u"no such field"));
}

}  // namespace document_tests
