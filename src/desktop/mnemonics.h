#pragma once

#include <QStringList>

class QMenu;

namespace sonarelle {

/// Captions with a mark before the letter that calls them with Alt: to each the first letter that none before it has
/// taken, those that begin a word first. A caption without a free letter has none. An
/// ampersand of a caption is doubled, and stays one for the eye.
[[nodiscard]] QStringList with_mnemonics(const QStringList& captions);

/// Gives each entry of a menu a letter of its own.
void mark_letters(const QMenu& menu);

} // namespace sonarelle
