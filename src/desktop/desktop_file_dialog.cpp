#include "desktop/desktop_file_dialog.h"

#include <QFileInfo>

#include "desktop/box_place.h"
#include "desktop/message_box.h"
#include "desktop/qt_text.h"
#include "platform/failure.h"
#include "platform/paths.h"

namespace sonarelle {

DesktopFileDialog::DesktopFileDialog(const PathForms& paths, QWidget* parent)
    : QFileDialog{parent},
      paths_{paths} {
    setObjectName("FileDialog");
    setOption(QFileDialog::DontUseNativeDialog);  // a native one can't be kept open over a name that is refused
    setOption(QFileDialog::DontConfirmOverwrite); // the station asks itself
}

void DesktopFileDialog::begin_at(const std::string& folder, const std::string& file) {
    const std::string own_folder{folder_of_path(file)};
    ErrorIndicator{}.skip([&] { setDirectory(to_qt(paths_.to_machine(own_folder.empty() ? folder : own_folder))); });
    const std::string name{name_of_path(file)};
    const bool is_pattern = name.find_first_of("*?") != std::string::npos;
    if (!name.empty() && !(is_pattern && acceptMode() == AcceptOpen))
        selectFile(to_qt(name));
}

void DesktopFileDialog::showEvent(QShowEvent* event) {
    QFileDialog::showEvent(event);
    move(place_of_box(size(), parentWidget()));
}

void DesktopFileDialog::accept() {
    const QStringList files = selectedFiles();
    if (files.isEmpty())
        return;
    if (!QFileInfo{files.front()}.isDir()) {
        try {
            chosen_ = paths_.to_station(from_qt(files.front()));
        } catch (const Failure& failure) {
            tell(this, from_qt(windowTitle()), failure.what(), Icon::warning);
            return;
        }
    }
    QFileDialog::accept();
}

} // namespace sonarelle
