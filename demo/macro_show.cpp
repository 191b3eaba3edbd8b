#include "macro_show.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPainter>

namespace demo {
namespace {

constexpr int kSide = 140;  // pixels

/// Five petals on a light ground, as everything outside the piece's shape is cut away.
QImage Flower() {
    QImage image(kSide, kSide, QImage::Format_RGB32);
    image.fill(QColor(255, 236, 214));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.translate(kSide / 2.0, kSide / 2.0);
    painter.setBrush(QColor(232, 84, 128));
    for (int petal = 0; petal < 5; ++petal) {
        painter.drawEllipse(QPointF(0, -34), 22, 32);
        painter.rotate(72);
    }
    painter.setBrush(QColor(255, 206, 64));
    painter.drawEllipse(QPointF(0, 0), 18, 18);
    return image;
}

bool WriteLeaf(const QString& path) {
    static constexpr char kPoints[] =
        "KVS_PICTYPE_DATA\r\n70,2\r\n112,30\r\n126,70\r\n112,110\r\n70,138\r\n28,110\r\n"
        "14,70\r\n28,30\r\n";
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(kPoints) == sizeof kPoints - 1;
}

}  // namespace

bool CopyOver(const QString& from, const QString& to) {
    QFile::remove(to);
    return QFile::copy(from, to);
}

QStringList MakeMacroSlides(const QString& folder, const QStringList& pictures) {
    const QDir target(folder);
    if (!Flower().save(target.filePath(QStringLiteral("花.png"))) ||
        !WriteLeaf(target.filePath(QStringLiteral("葉.dat"))) ||
        !CopyOver(QStringLiteral(PARAPICO_DEMO_SOURCE "/../assets/PB.wav"),
                  target.filePath(QStringLiteral("PB.wav")))) {
        return {};
    }
    QStringList slides;
    const QDir macros(QStringLiteral(PARAPICO_DEMO_SOURCE "/macros"));
    for (const QFileInfo& macro : macros.entryInfoList({QStringLiteral("*.txt")}, QDir::Files)) {
        const QString picture = pictures[slides.size() % pictures.size()];
        const QString slide =
            macro.completeBaseName() + QLatin1Char('.') + QFileInfo(picture).suffix();
        if (!CopyOver(target.filePath(picture), target.filePath(slide)) ||
            !CopyOver(macro.filePath(), target.filePath(macro.fileName()))) {
            return {};
        }
        slides << slide;
    }
    return slides;
}

}  // namespace demo
