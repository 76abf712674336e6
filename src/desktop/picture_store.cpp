#include "desktop/picture_store.h"

#include <QFileInfo>
#include <algorithm>
#include <string_view>

#include "desktop/qt_text.h"

namespace sonarelle {

namespace {

/// `b.gif` and `_survol` make `b_survol.gif`.
std::string with_suffix(const std::string& name, std::string_view suffix) {
    const auto dot = std::min(name.rfind('.'), name.size());
    return name.substr(0, dot).append(suffix).append(name, dot);
}

} // namespace

QString PictureStore::path(const std::string& name) const {
    if (name.empty())
        return {};
    const QString path = to_qt(machine_path_(name));
    return QFileInfo{path}.isFile() ? path : QString{};
}

// What was found once isn't looked for again: a window that is drawn must not wait for a disk.
QPixmap PictureStore::picture(const std::string& name) {
    if (const auto known = pictures_.find(name); known != pictures_.end())
        return known->second;
    const QString file = path(name);
    if (file.isEmpty())
        return {};
    return pictures_[name] = QPixmap{file};
}

PictureFaces PictureStore::faces(const std::string& name) {
    if (const auto known = faces_.find(name); known != faces_.end())
        return known->second;
    const QPixmap named = picture(name);
    if (named.isNull())
        return {};
    const auto variant = [&](std::string_view suffix, const QPixmap& otherwise) {
        const QPixmap drawn = picture(with_suffix(name, suffix));
        return drawn.isNull() ? otherwise : drawn;
    };
    const QPixmap rest = picture(with_suffix(name, "_repos"));
    PictureFaces faces{rest.isNull() ? named : rest, {}, named};
    faces.over = variant("_survol", faces.rest);
    if (rest.isNull())
        faces.down = variant("_enfonce", named);
    return faces_[name] = faces;
}

} // namespace sonarelle
