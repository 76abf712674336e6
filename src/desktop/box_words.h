#pragma once

#include <QString>

namespace sonarelle {

/// What the two answers of a question say: "Oui" and "Non" with what each does, where that is known.
struct BoxWords {
    QString yes;
    QString no;
    bool destroys = false;     ///< Yes loses something.
    bool ends_the_air = false; ///< Yes ends what is on the air.
};

/// By the question's own text.
[[nodiscard]] BoxWords words_of_question(const QString& text);

} // namespace sonarelle
