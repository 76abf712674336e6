#pragma once

#include <QPixmap>
#include <functional>
#include <string>
#include <unordered_map>

namespace sonarelle {

/// A picture at rest, under the pointer and pressed. Where a drawing of its own is missing, it is the one at rest.
struct PictureFaces {
    QPixmap rest;
    QPixmap over;
    QPixmap down;
};

/// The pictures of the program's folder, each read once.
class PictureStore {
public:
    /// `machine_path` turns a name or path of the station into one of this machine, empty when there is none.
    explicit PictureStore(std::function<std::string(const std::string&)> machine_path)
        : machine_path_{std::move(machine_path)} {}

    /// Null for an empty name and for a file that can't be shown.
    [[nodiscard]] QPixmap picture(const std::string& name);
    /// `b.gif` with `b_survol.gif` and `b_enfonce.gif`; where there is a `b_repos.gif`, `b.gif` is the pressed one.
    [[nodiscard]] PictureFaces faces(const std::string& name);
    /// The machine's path of a file; empty when there is none.
    [[nodiscard]] QString path(const std::string& name) const;

private:
    std::function<std::string(const std::string&)> machine_path_;
    std::unordered_map<std::string, QPixmap> pictures_;
    std::unordered_map<std::string, PictureFaces> faces_;
};

} // namespace sonarelle
