#pragma once

#include <QFont>
#include <QString>

class QTextDocument;

namespace sonarelle {

/// A long text is set lighter than the words of the desk.
[[nodiscard]] QFont reader_font();

/// The style sheet of a window with something to read.
[[nodiscard]] QString reader_style();

/// Gives a Markdown text the studio's type: headings, code, tables, links, room between the lines.
void dress_text(QTextDocument& document);

} // namespace sonarelle
