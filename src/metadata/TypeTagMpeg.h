#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/disk.h"
#include "platform/numbers.h"

namespace sonarelle {

/// The technical data of an MPEG audio file: what the first believable frame header says, and the Xing or VBRI block
/// behind it. Texts are those shown to the operator. Only reads files. The disk outlives it.
class TypeTagMpeg {
public:
    explicit TypeTagMpeg(Disk& disk)
        : disk_{&disk} {}

    /// Looks for the first believable frame and fills this record, of which it returns a copy; a file without one
    /// leaves it cleared. `strict` refuses Layer I, and MPEG 2.0 without a block of variable rate: for files that have
    /// something else than clean audio in front.
    /// Nothing that the file holds is a fault; a false candidate is passed over.
    /// @throws Failure when the file can't be opened.
    TypeTagMpeg LireEntete(std::string_view fichier, bool strict = false);

    /// False with all else filled in: a Xing block that doesn't tell the number of frames.
    [[nodiscard]] bool Valide() const { return valide_; }
    [[nodiscard]] std::int32_t Taille() const { return taille_; }        ///< Of the file, in bytes.
    [[nodiscard]] std::int32_t EntetePos() const { return entete_pos_; } ///< Of the header, in bytes from the start.
    [[nodiscard]] std::int32_t Duree() const { return duree_; }          ///< Whole seconds.
    [[nodiscard]] const std::string& Mpeg() const { return mpeg_; }
    [[nodiscard]] const std::string& Layer() const { return layer_; }
    [[nodiscard]] bool CRC() const { return crc_; }
    [[nodiscard]] std::int32_t BitRate() const { return bit_rate_; } ///< Kilobits a second.
    [[nodiscard]] std::int32_t Frequence() const { return frequence_; }
    [[nodiscard]] bool Padded() const { return padded_; }
    [[nodiscard]] std::int32_t Frames() const { return frames_; }
    [[nodiscard]] bool PrivateBit() const { return private_bit_; }
    [[nodiscard]] const std::string& Mode() const { return mode_; }
    [[nodiscard]] const std::string& ModeExt() const { return mode_ext_; }
    [[nodiscard]] bool Copyright() const { return copyright_; }
    [[nodiscard]] bool Original() const { return original_; }
    [[nodiscard]] const std::string& Emphasis() const { return emphasis_; }
    [[nodiscard]] const std::string& Vbr() const { return vbr_; } ///< "VBR" by Xing, "VBRI", or empty.

private:
    friend class MpegFrameReader;

    void set_Valide(bool value) { valide_ = value; }
    void set_Taille(std::int32_t value) { taille_ = value; }
    void set_EntetePos(std::int32_t value) { entete_pos_ = value; }
    void set_Duree(std::int32_t value) { duree_ = value; }
    void set_Mpeg(std::string_view value) { mpeg_ = value; }
    void set_Layer(std::string_view value) { layer_ = value; }
    void set_CRC(bool value) { crc_ = value; }
    void set_BitRate(Integer value) { bit_rate_ = value.value(); }
    void set_Frequence(std::int32_t value) { frequence_ = value; }
    void set_Padded(bool value) { padded_ = value; }
    void set_Frames(std::int32_t value) { frames_ = value; }
    void set_PrivateBit(bool value) { private_bit_ = value; }
    void set_Mode(std::string_view value) { mode_ = value; }
    void set_ModeExt(std::string_view value) { mode_ext_ = value; }
    void set_Copyright(bool value) { copyright_ = value; }
    void set_Original(bool value) { original_ = value; }
    void set_Emphasis(std::string_view value) { emphasis_ = value; }
    void set_Vbr(std::string_view value) { vbr_ = value; }

    void clear() { *this = TypeTagMpeg{*disk_}; }
    void search(RecordFile& file, bool strict);

    Disk* disk_;
    bool valide_ = false;
    std::int32_t taille_ = 0;
    std::int32_t entete_pos_ = 0;
    std::int32_t duree_ = 0;
    std::string mpeg_;
    std::string layer_;
    bool crc_ = false;
    std::int32_t bit_rate_ = 0;
    std::int32_t frequence_ = 0;
    bool padded_ = false;
    std::int32_t frames_ = 0;
    bool private_bit_ = false;
    std::string mode_;
    std::string mode_ext_;
    bool copyright_ = false;
    bool original_ = false;
    std::string emphasis_;
    std::string vbr_;
};

} // namespace sonarelle
