#include "desktop/qt_text.h"

namespace sonarelle {

QString plain_caption(const std::string& caption) {
    QString text = to_qt(caption);
    text.replace("\r\n", "\n").replace('\r', '\n');
    text.replace("&&", QString{QChar{1}}).remove('&').replace(QChar{1}, '&');
    return text;
}

QKeySequence access_keys(const std::string& caption) {
    QString text = to_qt(caption);
    const auto mark = text.remove("&&").indexOf('&');
    if (mark < 0 || mark + 1 >= text.size() || !text.at(mark + 1).isLetterOrNumber())
        return {};
    return QKeySequence{"Alt+" + text.mid(mark + 1, 1).toUpper()};
}

} // namespace sonarelle
