#include "adapters/qt/qt_trash.h"

#include <QFile>
#include <cerrno>

namespace qt_adapter {

int MoveToTrash(const std::string& nativePath, std::string& kept) {
    QString place;
    if (!QFile::moveToTrash(QFile::decodeName(nativePath.c_str()), &place)) {
        return ENOTSUP;
    }
    kept = QFile::encodeName(place).toStdString();
    return 0;
}

}  // namespace qt_adapter
