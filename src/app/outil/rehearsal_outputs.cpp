#include "app/outil/rehearsal_outputs.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <limits>

#include "platform/failure.h"

namespace sonarelle {

namespace {

constexpr std::int64_t bytes_a_frame = 4;
constexpr std::int64_t bytes_of_heads = 4096; // more than a WAV file has

bool are_one_file(const std::string& a, const std::string& b) {
    std::error_code error;
    if (std::filesystem::exists(a, error) && std::filesystem::exists(b, error))
        return std::filesystem::equivalent(a, b, error);
    return std::filesystem::weakly_canonical(a, error) == std::filesystem::weakly_canonical(b, error);
}

void check_length(const std::string& rendering, Frames length) {
    if (length.count() > (std::numeric_limits<std::uint32_t>::max() - bytes_of_heads) / bytes_a_frame)
        throw Failure{failure_number::wrong_call, rendering, "un fichier WAV ne tient pas plus de 6 h 12 min"};
}

} // namespace

RehearsalOutputs::RehearsalOutputs(const std::optional<std::string>& rendering,
                                   const std::optional<std::string>& picture, Frames length) {
    if (rendering && picture && are_one_file(*rendering, *picture))
        throw Failure{failure_number::wrong_call, *picture, "--rendu et --image désignent le même fichier"};
    if (rendering) {
        check_length(*rendering, length);
        rendering_file_.emplace(*rendering, *rendering);
        rendering_.emplace(rendering_file_->hidden_path());
    }
    if (picture)
        picture_file_.emplace(*picture, *picture);
}

void RehearsalOutputs::render(std::span<const float> frames) {
    if (rendering_)
        rendering_->write(frames);
}

void RehearsalOutputs::finish_rendering() {
    if (!rendering_)
        return;
    rendering_->close();
    rendering_file_->commit();
}

void RehearsalOutputs::write_picture(std::string_view svg) {
    picture_file_->write(svg);
    picture_file_->commit();
}

void OutputGuard::check(const std::string& read_file, std::string_view what) const {
    for (const auto& output : outputs_)
        if (output && are_one_file(*output, read_file))
            throw Failure{failure_number::wrong_call, *output, "ce fichier est " + std::string{what}};
}

bool OutputGuard::has_something_to_lose() const {
    return std::ranges::any_of(outputs_, [](const auto& output) {
        std::error_code error;
        return output && std::filesystem::exists(*output, error);
    });
}

} // namespace sonarelle
