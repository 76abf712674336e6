#pragma once

#include "platform/platform.h"
#include "playlist/audio_editor.h"
#include "playlist/list_at_work.h"
#include "playlist/list_update.h"
#include "playlist/list_verification.h"
#include "playlist/path_editing.h"
#include "playlist/row_changes.h"
#include "state/station_settings.h"

namespace sonarelle {

struct Desk;
class Journal;

/// The actions that go over the rows of the list, and their menu entries.
class ListMaintenance {
public:
    ListMaintenance(Desk& desk, fsauve& progress, RecordReading& record_reading, ListDocument& document,
                    ListSaveDialog& save_dialog, Journal& journal);

    ListAtWork list;
    ListVerification verification;
    RowChanges changes;
    ListUpdate update;
    AudioEditor editor;
    PathEditing path_editing;

private:
    void connect(Liste_son& window);
};

} // namespace sonarelle
