#include "adapters/qt/dragged_files.h"

#include <QFileInfo>
#include <QMimeData>
#include <QUrl>
#include <algorithm>

#include "adapters/qt/convert.h"

namespace qt_adapter {

bool HasFiles(const QDropEvent& drag) {
    const QList<QUrl> urls = drag.mimeData()->urls();
    return std::any_of(urls.begin(), urls.end(), [](const QUrl& url) { return url.isLocalFile(); });
}

std::vector<Text> FilesOf(const QDropEvent& drag) {
    std::vector<Text> files;
    for (const QUrl& url : drag.mimeData()->urls()) {
        if (url.isLocalFile()) {
            files.push_back(FromQt(QFileInfo(url.toLocalFile()).absoluteFilePath()));
        }
    }
    return files;
}

}  // namespace qt_adapter
