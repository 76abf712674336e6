#pragma once

#include <QHash>
#include <QPixmap>
#include <functional>
#include <string>

namespace sonarelle {

/// The pictures of the program's folder, each read once.
class PictureStore {
public:
    /// `machine_path` turns a name or path of the station into one of this machine, empty when there is none.
    explicit PictureStore(std::function<std::string(const std::string&)> machine_path)
        : machine_path_{std::move(machine_path)} {}

    /// Null for an empty name and for a file that can't be shown.
    [[nodiscard]] QPixmap picture(const std::string& name);
    /// The machine's path of a file; empty when there is none.
    [[nodiscard]] QString path(const std::string& name) const;

private:
    std::function<std::string(const std::string&)> machine_path_;
    QHash<QString, QPixmap> pictures_;
};

} // namespace sonarelle
