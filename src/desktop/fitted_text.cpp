#include "desktop/fitted_text.h"

#include <QRegularExpression>
#include <functional>

namespace sonarelle {

namespace {

constexpr QChar joiner{0x2060};

/// From a drive, a share or the root to the last ending of a file on the line, or to the line's end.
const QRegularExpression& path_pattern() {
    static const QRegularExpression pattern{
        R"((?:\b[A-Za-z]:\\|\\\\|(?<!\S)/)(?:[^\n]*\.[A-Za-z0-9]{2,4}\b|[^\n]*\S)?)"};
    return pattern;
}

const QRegularExpression& word_pattern() {
    static const QRegularExpression pattern{R"([^ \n]+)"};
    return pattern;
}

// A line may end at a space of a path, and behind its strokes and signs.
QString without_breaks(const QString& path) {
    QString whole;
    for (const QChar c : path) {
        whole += c == ' ' ? QChar{QChar::Nbsp} : c;
        if (!c.isLetterOrNumber())
            whole += joiner;
    }
    return whole;
}

QString replaced(const QString& text, const QRegularExpression& pattern,
                 const std::function<QString(const QString&)>& by) {
    QString result;
    qsizetype done = 0;
    for (auto matches = pattern.globalMatch(text); matches.hasNext();) {
        const auto match = matches.next();
        result += text.mid(done, match.capturedStart() - done) + by(match.captured());
        done = match.capturedEnd();
    }
    return result + text.mid(done);
}

} // namespace

QString with_fitting_words(const QString& text, const QFontMetrics& metrics, int width) {
    const auto cut = [&](const QString& part) { return metrics.elidedText(part, Qt::ElideMiddle, width); };
    const auto one_piece = [&](const QString& path) { return without_breaks(cut(path)); };
    return replaced(replaced(text, path_pattern(), one_piece), word_pattern(), cut);
}

QString fitting_line(const QString& line, const QFontMetrics& metrics, int width) {
    const int excess = metrics.horizontalAdvance(line) - width;
    if (excess <= 0)
        return line;
    const auto shorten = [&](const QString& path) {
        return metrics.elidedText(path, Qt::ElideMiddle, metrics.horizontalAdvance(path) - excess);
    };
    return metrics.elidedText(replaced(line, path_pattern(), shorten), Qt::ElideMiddle, width);
}

QString without_joints(QString text) {
    return text.remove(joiner).replace(QChar::Nbsp, ' ');
}

} // namespace sonarelle
