#include "documents.h"

#include <iconv.h>

#include <QByteArray>
#include <QFile>
#include <string>
#include <vector>

namespace demo {
namespace {

/// Empty for text that the code page cannot hold; the demo's own names all have a form in it.
QByteArray ToCodePage(const QString& text) {
    QByteArray input = text.toUtf8();
    QByteArray output(input.size() * 2 + 1, '\0');
    iconv_t converter = iconv_open("CP932", "UTF-8");
    if (converter == reinterpret_cast<iconv_t>(-1)) return {};
    char* from = input.data();
    char* to = output.data();
    size_t left = static_cast<size_t>(input.size()), room = static_cast<size_t>(output.size());
    const size_t result = iconv(converter, &from, &left, &to, &room);
    iconv_close(converter);
    if (result == static_cast<size_t>(-1)) return {};
    output.truncate(static_cast<qsizetype>(to - output.data()));
    return output;
}

bool WriteBytes(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
}

/// Collects the lines of a document, numbers with the sign's blank and the blank after them.
class Lines {
public:
    void Number(int value) {
        lines_ << (value < 0 ? QString() : QStringLiteral(" ")) + QString::number(value) +
                      QLatin1Char(' ');
    }
    void Numbers(std::initializer_list<int> values) {
        for (const int value : values) {
            Number(value);
        }
    }
    void Text(const QString& text) { lines_ << text; }
    void Texts(const QStringList& texts) { lines_ << texts; }
    QByteArray Bytes() const {
        return ToCodePage(lines_.join(QStringLiteral("\r\n")) + QStringLiteral("\r\n"));
    }

private:
    QStringList lines_;
};

constexpr int kIntervalMs = 3000;
constexpr int kRandomEffect = 9;
constexpr int kNoSound = 7;
const QString kNoDefaultSound = QStringLiteral("*.wav");
const QString kNoSchedule = QString(30, QLatin1Char(' '));

/// Date and time from and to, in 30 columns.
QString ScheduleRow(const QString& from, const QString& to) {
    auto columns = [](const QString& moment) {
        return moment.left(10).leftJustified(10) + moment.mid(11, 5).leftJustified(5);
    };
    return columns(from) + columns(to);
}

/// From the interval to the slides, as every document since the effects has it.
void WriteHead(Lines& lines, const QString& tag, const QString& name) {
    lines.Text(tag);
    lines.Text(name);
    lines.Numbers({kIntervalMs, 0, kNoSound});
    lines.Text(kNoDefaultSound);
    lines.Text({});  // WAV file
    // Effects with their speeds (-30: the fixed one), then slits and the CD.
    lines.Numbers({kRandomEffect, -30, kRandomEffect, -30, 10, 10, 1});
    lines.Text(QStringLiteral("1"));
    lines.Numbers({20, 20});  // mosaic cells
    lines.Number(0);          // macros run
    lines.Text({});           // MIDI file
    lines.Number(0);          // wait for linked sounds
}

QByteArray NewestShow(const QString& name, const QStringList& slides, QStringList rows = {}) {
    Lines lines;
    WriteHead(lines, QStringLiteral("21vue3167893"), name);
    lines.Numbers({0, 1, 0, 0});  // linked sound first, list order, CD order, no linked folder
    lines.Text({});
    lines.Number(static_cast<int>(slides.size()));
    lines.Texts(slides);
    lines.Text(QStringLiteral("480"));
    lines.Numbers({0, 0, 0, 0, 1, 0, 0, 0, 0, 0});  // no overlay to no sound list, linked MIDI
    lines.Text({});                                 // MP3 file
    lines.Numbers({0, 1, 0, 0, 0, 0});              // 1: plays in the main window
    while (rows.size() < slides.size()) {
        rows << kNoSchedule;
    }
    for (const QString& row : rows) {
        lines.Text(QLatin1Char('-') + row);
    }
    return lines.Bytes();
}

/// The form before linked folders, overlays and schedules: it ends after the slides.
QByteArray MiddleShow(const QString& name, const QStringList& slides) {
    Lines lines;
    WriteHead(lines, QStringLiteral("1vue3167"), name);
    lines.Number(static_cast<int>(slides.size()));
    lines.Texts(slides);
    return lines.Bytes();
}

QByteArray OldestShow(const QString& name, const QStringList& slides) {
    Lines lines;
    lines.Text(QStringLiteral("vue2"));
    lines.Text(name);
    lines.Numbers({kIntervalMs, 0, kNoSound});
    lines.Text(kNoDefaultSound);
    lines.Number(static_cast<int>(slides.size()));
    lines.Texts(slides);
    return lines.Bytes();
}

}  // namespace

bool WriteDocuments(const QString& folder, const QStringList& slides,
                    const QStringList& macroSlides) {
    const QStringList rows = {
        kNoSchedule,
        ScheduleRow(QStringLiteral("2001/01/01 00:00"), QStringLiteral("2010/12/31 23:59")),
        ScheduleRow(QStringLiteral("2099/01/01 00:00"), QStringLiteral("2099/12/31 23:59")),
        ScheduleRow(QStringLiteral("2001/01/01 00:00"), QStringLiteral("2099/12/31 23:59"))};
    const QStringList broken = {slides[0], QStringLiteral("こわれた絵.jpg"), slides[1]};
    const QByteArray whole = NewestShow(QStringLiteral("壊れた.kvs"), slides);
    const struct {
        const char* name;
        QByteArray bytes;
    } documents[] = {
        {"demo.kvs", NewestShow(QStringLiteral("demo.kvs"), slides)},
        {"macros.kvs", NewestShow(QStringLiteral("macros.kvs"), macroSlides)},
        {"少し前の版.kvs", MiddleShow(QStringLiteral("少し前の版.kvs"), slides)},
        {"旧版.kvs", OldestShow(QStringLiteral("旧版.kvs"), slides)},
        {"予定.kvs", NewestShow(QStringLiteral("予定.kvs"), slides.mid(0, 4), rows)},
        {"壊れた絵を含む.kvs", NewestShow(QStringLiteral("壊れた絵を含む.kvs"), broken)},
        // Cut off in the middle of the slides.
        {"壊れた.kvs", whole.left(whole.indexOf(ToCodePage(slides[2])) + 3)},
        {"こわれた絵.jpg", ToCodePage(QStringLiteral("これは絵ではなく、ただの文です。\r\n"))},
    };
    for (const auto& document : documents) {
        if (document.bytes.isEmpty() ||
            !WriteBytes(folder + QLatin1Char('/') + QString::fromUtf8(document.name),
                        document.bytes)) {
            return false;
        }
    }
    return true;
}

}  // namespace demo
