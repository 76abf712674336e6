#pragma once

#include <QStringList>

namespace sonarelle {

/// Captions with a mark before the letter that calls them with Alt: to each the first letter that none before it has
/// taken, those that begin a word first. A caption without a free letter stays as it is.
[[nodiscard]] QStringList with_mnemonics(const QStringList& captions);

} // namespace sonarelle
