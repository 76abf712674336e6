#include "app/common/common_options.h"

#include "platform/drive_table.h"
#include "platform/failure.h"

namespace sonarelle {

namespace {

CommonOptions::Drive drive_of(const std::string& word) {
    const WrongWords wrong{"--lecteur attend LETTRE=DOSSIER : " + word};
    const auto equals = word.find('=');
    if (equals == std::string::npos || equals + 1 == word.size())
        throw wrong;
    CommonOptions::Drive drive{word.substr(0, equals), word.substr(equals + 1)};
    try {
        DriveTable{}.set(drive.name, drive.folder);
    } catch (const Failure&) {
        throw wrong;
    }
    return drive;
}

} // namespace

CommonOptions common_options(const Arguments& arguments) {
    CommonOptions options;
    for (const std::string& word : arguments.values(drive_option.name))
        options.drives.push_back(drive_of(word));
    if (arguments.has(folder_option.name))
        options.folder = arguments.value(folder_option.name, "");
    if (options.folder && options.folder->empty())
        throw WrongWords{"--dossier attend un dossier"};
    return options;
}

} // namespace sonarelle
