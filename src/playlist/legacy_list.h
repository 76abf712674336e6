#pragma once

#include <functional>
#include <string>

#include "platform/platform.h"
#include "playlist/list_document.h"
#include "playlist/list_save_dialog.h"

namespace sonarelle {

/// Reads the lists made before version 5.8.0 (`.rfm`), which are then saved as `.dfm` lists. They are never written.
class LegacyList {
public:
    LegacyList(const Platform& platform, const StationSettings& settings, ListState& list, ListDocument& document,
               ListSaveDialog& save_dialog, std::function<void()> test_files);

    /// Appends the rows of an old list and offers it for saving in the new form; once saved, its files are tested. The
    /// file is asked for, unless a save name is waiting.
    void A_Copen_rfm();

private:
    [[nodiscard]] std::string name_of_old_list();
    [[nodiscard]] bool wants_to_read(const std::string& name) const;
    void append_old_list(const std::string& name);

    const Platform& platform_;
    const StationSettings& settings_;
    ListState& list_;
    ListDocument& document_;
    ListSaveDialog& save_dialog_;
    std::function<void()> test_files_;
};

} // namespace sonarelle
