#pragma once

#include <QKeySequence>
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
/// Alt with the letter behind the mark of a caption's access key; empty for none.
[[nodiscard]] QKeySequence access_keys(const std::string& caption);

} // namespace sonarelle
