#pragma once

#include <string_view>

#include <gtest/gtest.h>

#include "metadata/TypeTagMpeg.h"
#include "mpeg_bytes.h"
#include "music_disk.h"

namespace sonarelle {

inline TypeTagMpeg header_of(std::string_view bytes, bool strict = false) {
    MusicDisk on_disk{bytes};
    return TypeTagMpeg{on_disk.disk}.LireEntete(song, strict);
}

inline TypeTagMpeg header_of(const MpegBytes& file, bool strict = false) {
    return header_of(file.bytes(), strict);
}

inline void expect_cleared(const TypeTagMpeg& header) {
    EXPECT_FALSE(header.Valide());
    EXPECT_EQ(header.Taille(), 0);
    EXPECT_EQ(header.EntetePos(), 0);
    EXPECT_EQ(header.Duree(), 0);
    EXPECT_EQ(header.BitRate(), 0);
    EXPECT_EQ(header.Frequence(), 0);
    EXPECT_EQ(header.Frames(), 0);
    EXPECT_FALSE(header.CRC() || header.Padded() || header.PrivateBit() || header.Copyright() || header.Original());
    EXPECT_EQ(header.Mpeg() + header.Layer() + header.Mode() + header.ModeExt() + header.Emphasis() + header.Vbr(), "");
}

} // namespace sonarelle
