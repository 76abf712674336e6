#include "platform/desktop/qt_text.h"

namespace sonarelle {

QString plain_caption(const std::string& caption) {
    QString text = to_qt(caption);
    text.replace("\r\n", "\n").replace('\r', '\n');
    text.replace("&&", QString{QChar{1}}).remove('&').replace(QChar{1}, '&');
    return text;
}

QChar access_key(const std::string& caption) {
    QString text = to_qt(caption);
    const auto mark = text.remove("&&").indexOf('&');
    return mark >= 0 && mark + 1 < text.size() ? text.at(mark + 1).toUpper() : QChar{};
}

} // namespace sonarelle
