#include "adapters/qt/qt_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QUrl>

#include "adapters/qt/convert.h"

namespace qt_adapter {

void QtClipboard::PutText(TextView text) {
    QGuiApplication::clipboard()->setText(ToQt(text));
}

void QtClipboard::PutPicture(const platform::BitmapPtr& picture) {
    if (!picture || picture->Empty()) {
        QGuiApplication::clipboard()->clear();
        return;
    }
    const QImage shared(reinterpret_cast<const uchar*>(picture->pixels.data()), picture->width,
                        picture->height, QImage::Format_RGB32);
    QGuiApplication::clipboard()->setImage(shared.copy());
}

void QtClipboard::PutFiles(const std::vector<Text>& paths) {
    QList<QUrl> urls;
    QStringList lines;
    QByteArray copied("copy");  // what some file managers ask for in place of the list
    for (const Text& path : paths) {
        urls += QUrl::fromLocalFile(ToQt(path));
        lines += ToQt(path);
        copied += '\n' + urls.back().toEncoded();
    }
    auto* data = new QMimeData;
    data->setUrls(urls);
    data->setText(lines.join('\n'));
    data->setData(QStringLiteral("x-special/gnome-copied-files"), copied);
    QGuiApplication::clipboard()->setMimeData(data);
}

Text QtClipboard::GetText() {
    return FromQt(QGuiApplication::clipboard()->text());
}

std::vector<Text> QtClipboard::GetFiles() {
    std::vector<Text> paths;
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    for (const QUrl& url : data ? data->urls() : QList<QUrl>()) {
        if (url.isLocalFile()) {
            paths.push_back(FromQt(url.toLocalFile()));
        }
    }
    return paths;
}

}  // namespace qt_adapter
