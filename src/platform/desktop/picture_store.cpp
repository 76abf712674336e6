#include "platform/desktop/picture_store.h"

#include <QFileInfo>

#include "platform/desktop/qt_text.h"

namespace sonarelle {

QString PictureStore::path(const std::string& name) const {
    if (name.empty())
        return {};
    const QString path = to_qt(machine_path_(name));
    return QFileInfo{path}.isFile() ? path : QString{};
}

QPixmap PictureStore::picture(const std::string& name) {
    const QString file = path(name);
    if (file.isEmpty())
        return {};
    if (const auto known = pictures_.constFind(file); known != pictures_.constEnd())
        return *known;
    return *pictures_.insert(file, QPixmap{file});
}

} // namespace sonarelle
