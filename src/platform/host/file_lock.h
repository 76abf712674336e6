#pragma once

#include <string>

#include "platform/host/file_handle.h"

namespace sonarelle {

/// Waits until this program alone has the lock of an open file or folder; it lasts until the handle is closed. A disk
/// that has no locks is written without one: its files are whole all the same.
/// @throws Failure 75 about `source` when another program doesn't let go within a few seconds.
void wait_for_lock(const FileHandle& file, const std::string& source);

} // namespace sonarelle
