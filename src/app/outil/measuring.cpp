#include "app/outil/measuring.h"

#include <algorithm>
#include <filesystem>
#include <memory>

#include "metadata/TypeTagV1.h"
#include "metadata/genre_table.h"
#include "platform/duration_text.h"
#include "platform/failure.h"
#include "platform/host/machine_paths.h"

namespace sonarelle {

namespace {

/// A pipe or a device is no file without a sound, but one that nobody should open.
void check_is_plain(const std::string& file) {
    std::error_code error;
    const auto status = std::filesystem::status(file, error);
    if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status))
        throw Failure{FailureNumber::path_access, file, "ce n'est pas un fichier ordinaire"};
}

} // namespace

Measuring::Measuring(Machine& machine)
    : machine_{machine},
      disk_{machine.drives()},
      opener_{std::make_shared<MachineFiles>(), DiskPatience{}} {}

Measure Measuring::measure(const std::string& file) {
    Measure measure;
    measure.file = file;
    measure.station_path = station_path_of(machine_.drives(), file);
    check_is_plain(file);
    try {
        PreparedFile prepared = opener_.open(absolute_machine_path(file));
        measure.seconds = prepared.seconds;
        measure.has_pictures = prepared.decoder->has_pictures();
    } catch (const Failure& failure) {
        throw Failure{failure.number, file, failure.description};
    }
    measure.whole_seconds = std::max(Integer{1}, to_integer(measure.seconds));
    measure.title_text = format_heure(measure.seconds, DecimalMark::point);
    measure.manager_text = formate_duree(measure.whole_seconds.value(), DecimalMark::point);
    return measure;
}

std::string Measuring::genre_of(const std::string& file) {
    std::string genre;
    ErrorIndicator{}.skip([&] {
        TypeTagV1 tag{disk_};
        const TypeTagV1 shown = tag.LireTag(station_path_of(machine_.drives(), file));
        if (shown.Valide())
            genre = nom_du_genre(shown.Genre());
    });
    return genre;
}

} // namespace sonarelle
