#include "adapters/qt/qt_trash.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <cerrno>

namespace qt_adapter {

int MoveToTrash(const std::string& nativePath, std::string& kept) {
    // The toolkit makes the trash itself only, and not the folder that it lies in.
    QDir().mkpath(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    QString place;
    if (!QFile::moveToTrash(QFile::decodeName(nativePath.c_str()), &place)) {
        return ENOTSUP;
    }
    kept = QFile::encodeName(place).toStdString();
    return 0;
}

}  // namespace qt_adapter
