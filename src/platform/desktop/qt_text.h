#pragma once

#include <QString>
#include <string>

namespace sonarelle {

[[nodiscard]] inline QString to_qt(const std::string& text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
[[nodiscard]] inline std::string from_qt(const QString& text) {
    return text.toStdString();
}

/// A caption for the eye: without the mark of its access key, and with line ends as Qt has them.
[[nodiscard]] QString plain_caption(const std::string& caption);
/// The letter behind the mark of a caption's access key; null for none.
[[nodiscard]] QChar access_key(const std::string& caption);

} // namespace sonarelle
