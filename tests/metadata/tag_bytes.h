#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace sonarelle {

/// A tag as it lies in a file, its texts in Windows-1252.
struct TagBytes {
    std::string mark = "TAG";
    std::string title = {};
    std::string artist = {};
    std::string album = {};
    std::string year = {};
    std::string comment = {};
    unsigned char before_track = 0;
    unsigned char track = 0;
    unsigned char genre = 255;

    [[nodiscard]] std::string bytes() const {
        std::string block = mark + field(title, 30) + field(artist, 30) + field(album, 30) + field(year, 4);
        block += field(comment, 28);
        for (const unsigned char byte : {before_track, track, genre})
            block += static_cast<char>(byte);
        return block;
    }

private:
    static std::string field(std::string text, std::size_t width) {
        text.resize(width, '\0');
        return text;
    }
};

} // namespace sonarelle
