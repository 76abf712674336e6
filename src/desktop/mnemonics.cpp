#include "desktop/mnemonics.h"

#include <QMenu>
#include <algorithm>

#include "desktop/qt_text.h"

namespace sonarelle {

namespace {

bool is_plain_letter(QChar c) {
    return c.isLetter() && c.unicode() < 0x80;
}

/// The places of a caption's letters in the order in which they are tried.
QList<qsizetype> letters_of(const QString& caption) {
    QList<qsizetype> places;
    for (qsizetype place = 0; place < caption.size(); ++place)
        if (is_plain_letter(caption[place]))
            places.append(place);
    const auto begins_a_word = [&](auto place) { return place == 0 || !caption[place - 1].isLetter(); };
    std::stable_partition(places.begin(), places.end(), begins_a_word);
    return places;
}

} // namespace

QStringList with_mnemonics(const QStringList& captions) {
    QStringList marked;
    QString taken;
    for (QString caption : captions) {
        caption.replace("&", "&&");
        const auto letters = letters_of(caption);
        const auto free = std::ranges::find_if(
            letters, [&](auto place) { return !taken.contains(caption[place], Qt::CaseInsensitive); });
        if (free != letters.end()) {
            taken += caption[*free];
            caption.insert(*free, '&');
        }
        marked += caption;
    }
    return marked;
}

void mark_letters(const QMenu& menu) {
    QList<QAction*> entries = menu.actions();
    entries.removeIf([](const QAction* entry) { return entry->isSeparator(); });
    QStringList words;
    for (const QAction* entry : entries)
        words += plain_caption(from_qt(entry->text()));
    const QStringList marked = with_mnemonics(words);
    for (qsizetype place = 0; place < entries.size(); ++place)
        entries[place]->setText(marked[place]);
}

} // namespace sonarelle
