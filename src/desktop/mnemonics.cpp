#include "desktop/mnemonics.h"

#include <QHash>
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

/// Gives each caption a letter of its own while there are letters: one whose letters are all taken has another caption
/// look for a further one.
class Letters {
public:
    explicit Letters(const QStringList& captions)
        : captions_{captions},
          places_(captions.size(), -1) {
        for (qsizetype caption = 0; caption < captions.size(); ++caption) {
            QString tried;
            give_letter(caption, tried);
        }
    }

    /// The place of a caption's letter, -1 for none.
    [[nodiscard]] qsizetype place_of(qsizetype caption) const { return places_[caption]; }

private:
    bool give_letter(qsizetype caption, QString& tried) {
        const QList<qsizetype> letters = letters_of(captions_[caption]);
        for (const qsizetype place : letters)
            if (!owners_.contains(letter_at(caption, place)))
                return take(caption, place);
        for (const qsizetype place : letters) {
            const QChar letter = letter_at(caption, place);
            if (tried.contains(letter))
                continue;
            tried += letter;
            if (give_letter(owners_[letter], tried))
                return take(caption, place);
        }
        return false;
    }
    [[nodiscard]] QChar letter_at(qsizetype caption, qsizetype place) const {
        return captions_[caption][place].toLower();
    }
    bool take(qsizetype caption, qsizetype place) {
        owners_[letter_at(caption, place)] = caption;
        places_[caption] = place;
        return true;
    }

    const QStringList& captions_;
    QList<qsizetype> places_;
    QHash<QChar, qsizetype> owners_;
};

} // namespace

QStringList with_mnemonics(const QStringList& captions) {
    QStringList marked = captions;
    for (QString& caption : marked)
        caption.replace("&", "&&");
    const QStringList plain = marked;
    const Letters letters{plain};
    for (qsizetype place = 0; place < marked.size(); ++place)
        if (letters.place_of(place) >= 0)
            marked[place].insert(letters.place_of(place), '&');
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
