// make_demo FOLDER: draws the pictures of the demo show and writes its documents.
#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <cstdio>

#include "documents.h"
#include "macro_show.h"
#include "scenes.h"

namespace demo {
namespace {

enum class Kind { Jpeg, Png, TurnedJpeg };

struct Slide {
    const char* name;
    QImage (*draw)();
    Kind kind;
};

constexpr Slide kSlides[] = {
    {"夜明けの富士.jpg", DawnAtFuji, Kind::Jpeg}, {"桜吹雪.jpg", CherryBlossoms, Kind::Jpeg},
    {"錦鯉の池.jpg", KoiPond, Kind::Jpeg},        {"竹林の道.jpg", BambooPath, Kind::TurnedJpeg},
    {"青海波.png", SeaWavePattern, Kind::Png},    {"海の鳥居.jpg", GateInTheSea, Kind::Jpeg},
    {"花火の夜.jpg", Fireworks, Kind::Jpeg},      {"紅葉.jpg", AutumnLeaves, Kind::Jpeg},
    {"遠山.jpg", InkMountains, Kind::Jpeg},       {"街の灯.jpg", CityLights, Kind::Jpeg},
    {"麻の葉.png", HempLeafPattern, Kind::Png},   {"月と海.jpg", MoonOverTheSea, Kind::Jpeg},
    {"雪あかり.jpg", SnowVillage, Kind::Jpeg},    {"天の川.jpg", MilkyWay, Kind::Jpeg},
};
constexpr int kJpegQuality = 88;

/// JPEG whose pixels lie on their side, with the note of cameras that says how to turn them back.
QByteArray TurnedJpeg(const QImage& image) {
    // Orientation 6: shown right after a quarter turn to the right.
    const QImage turned = image.transformed(QTransform().rotate(-90));
    QByteArray jpeg;
    QBuffer buffer(&jpeg);
    buffer.open(QIODevice::WriteOnly);
    turned.save(&buffer, "JPG", kJpegQuality);
    static constexpr char kNote[] =
        "\xFF\xE1\x00\x22"
        "Exif\0\0"
        "MM\0*\0\0\0\x08"                     // big-endian, first directory at 8
        "\0\x01"                              // one entry:
        "\x01\x12\0\x03\0\0\0\x01\0\x06\0\0"  // orientation, short, 1 value, 6
        "\0\0\0\0";                           // no further directory
    jpeg.insert(2, kNote, sizeof kNote - 1);
    return jpeg;
}

bool Save(const Slide& slide, const QString& path) {
    const QImage image = slide.draw();
    switch (slide.kind) {
        case Kind::Jpeg:
            return image.save(path, "JPG", kJpegQuality);
        case Kind::Png:
            return image.save(path, "PNG");
        case Kind::TurnedJpeg: {
            QFile file(path);
            const QByteArray bytes = TurnedJpeg(image);
            return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
        }
    }
    return false;
}

bool MakeDemo(const QString& folder) {
    if (!QDir().mkpath(folder)) return false;
    // The title is a drawing of lines and needs no drawing here.
    const QString title = QStringLiteral("はじまり.svg");
    if (!CopyOver(QStringLiteral(PARAPICO_DEMO_SOURCE "/title.svg"),
                  folder + QLatin1Char('/') + title)) {
        return false;
    }
    QStringList names = {title};
    for (const Slide& slide : kSlides) {
        const QString name = QString::fromUtf8(slide.name);
        if (!Save(slide, folder + QLatin1Char('/') + name)) return false;
        names << name;
        std::printf("%s\n", slide.name);
        std::fflush(stdout);
    }
    const QStringList macroSlides = MakeMacroSlides(folder, names.mid(1));
    return !macroSlides.isEmpty() && WriteDocuments(folder, names, macroSlides);
}

}  // namespace
}  // namespace demo

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 2) {
        std::fprintf(stderr, "usage: demo_maker FOLDER\n");
        return 2;
    }
    if (!demo::MakeDemo(arguments[1])) {
        std::fprintf(stderr, "demo_maker: cannot write to %s\n", qPrintable(arguments[1]));
        return 1;
    }
    return 0;
}
