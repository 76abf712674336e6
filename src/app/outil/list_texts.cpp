#include "app/outil/list_texts.h"

#include <algorithm>
#include <charconv>

#include "platform/text.h"

namespace sonarelle {

namespace {

constexpr std::string_view utf8_mark = "\xEF\xBB\xBF";
constexpr char32_t broken = 0xFFFD;

bool is_utf8(std::string_view bytes) {
    while (!bytes.empty())
        if (take_character(bytes) == broken)
            return false;
    return true;
}

std::string_view without_end(std::string_view line) {
    return line.ends_with('\r') ? line.substr(0, line.size() - 1) : line;
}

std::string unescaped(std::string_view text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        int byte = 0;
        const char* digits = text.data() + i + 1;
        if (text[i] == '%' && i + 2 < text.size() && std::from_chars(digits, digits + 2, byte, 16).ptr == digits + 2) {
            result += static_cast<char>(byte);
            i += 2;
        } else {
            result += text[i];
        }
    }
    return result;
}

/// Takes a CSV text apart, field by field.
class CsvReader {
public:
    CsvReader(std::string_view text, char mark)
        : rest_{text},
          mark_{mark} {}

    [[nodiscard]] bool is_over() const { return rest_.empty(); }

    [[nodiscard]] CsvRow row() {
        CsvRow row{field()};
        while (rest_.starts_with(mark_)) {
            rest_.remove_prefix(1);
            row.push_back(field());
        }
        if (rest_.starts_with('\r'))
            rest_.remove_prefix(1);
        if (rest_.starts_with('\n'))
            rest_.remove_prefix(1);
        return row;
    }

private:
    [[nodiscard]] std::string field() {
        std::string text;
        if (rest_.starts_with('"'))
            text = quoted();
        const std::size_t end = std::min(rest_.find_first_of(std::string{mark_} + "\r\n"), rest_.size());
        text += rest_.substr(0, end);
        rest_.remove_prefix(end);
        return text;
    }

    /// A doubled quote stands for one.
    [[nodiscard]] std::string quoted() {
        std::string text;
        std::string_view between;
        do {
            rest_.remove_prefix(1);
            const std::size_t end = std::min(rest_.find('"'), rest_.size());
            text.append(between).append(rest_.substr(0, end));
            between = "\"";
            rest_.remove_prefix(std::min(end + 1, rest_.size()));
        } while (rest_.starts_with('"'));
        return text;
    }

    std::string_view rest_;
    char mark_;
};

} // namespace

std::string text_of_bytes(std::string_view bytes) {
    if (bytes.starts_with(utf8_mark))
        bytes.remove_prefix(utf8_mark.size());
    return is_utf8(bytes) ? std::string{bytes} : from_windows_1252(bytes);
}

std::vector<std::string> m3u_entries(std::string_view text) {
    std::vector<std::string> entries;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const std::string_view line = trim(without_end(text.substr(0, end)));
        if (!line.empty() && !line.starts_with('#'))
            entries.emplace_back(line);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return entries;
}

std::string path_of_entry(std::string_view entry) {
    constexpr std::string_view scheme = "file://";
    return entry.starts_with(scheme) ? unescaped(entry.substr(scheme.size())) : std::string{entry};
}

std::vector<CsvRow> csv_rows(std::string_view text) {
    const std::string_view head = text.substr(0, text.find('\n'));
    const bool by_semicolons = head.find(',') == std::string_view::npos && head.find(';') != std::string_view::npos;
    std::vector<CsvRow> rows;
    for (CsvReader reader{text, by_semicolons ? ';' : ','}; !reader.is_over();)
        if (CsvRow row = reader.row(); row != CsvRow{""})
            rows.push_back(std::move(row));
    return rows;
}

std::string csv_line(const CsvRow& row) {
    std::string line;
    for (const std::string& field : row) {
        std::string shown = field;
        if (field.find_first_of(",;\"\r\n") != std::string::npos) {
            for (auto place = shown.find('"'); place != std::string::npos; place = shown.find('"', place + 2))
                shown.insert(place, 1, '"');
            shown.insert(0, 1, '"').push_back('"');
        }
        line += (line.empty() && &field == &row.front() ? "" : ",") + shown;
    }
    return line + '\n';
}

} // namespace sonarelle
