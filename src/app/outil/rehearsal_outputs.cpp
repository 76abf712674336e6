#include "app/outil/rehearsal_outputs.h"

#include <algorithm>
#include <filesystem>

#include "platform/failure.h"

namespace sonarelle {

namespace {

bool are_one_file(const std::string& a, const std::string& b) {
    std::error_code error;
    if (std::filesystem::exists(a, error) && std::filesystem::exists(b, error))
        return std::filesystem::equivalent(a, b, error);
    return std::filesystem::weakly_canonical(a, error) == std::filesystem::weakly_canonical(b, error);
}

} // namespace

RehearsalOutputs::RehearsalOutputs(const std::optional<std::string>& rendering,
                                   const std::optional<std::string>& picture) {
    if (rendering && picture && are_one_file(*rendering, *picture))
        throw Failure{FailureNumber::wrong_call, *picture, "--rendu et --image désignent le même fichier"};
    if (rendering) {
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
            throw Failure{FailureNumber::wrong_call, *output, "ce fichier est " + std::string{what}};
}

bool OutputGuard::has_something_to_lose() const {
    return std::ranges::any_of(outputs_, [](const auto& output) {
        std::error_code error;
        return output && std::filesystem::exists(*output, error);
    });
}

} // namespace sonarelle
