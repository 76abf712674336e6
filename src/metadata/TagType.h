#pragma once

#include <string_view>

#include "metadata/TypeTagMpeg.h"
#include "metadata/TypeTagV1.h"
#include "platform/disk.h"
#include "platform/numbers.h"

namespace sonarelle {

/// One tag of each kind. The disk outlives it.
struct TagType {
    explicit TagType(Disk& disk)
        : V1{disk},
          Mpeg{disk} {}

    TypeTagV1 V1;
    TypeTagMpeg Mpeg;
};

/// Writes `tag.V1` to the file, or removes the file's tag when it isn't `Valide`; says whether that is done.
[[nodiscard]] Flag ecrire_tag(std::string_view fichier, const TagType& tag);

} // namespace sonarelle
