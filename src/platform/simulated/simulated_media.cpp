#include "platform/simulated/simulated_media.h"

#include <utility>

#include "platform/clock.h"
#include "platform/disk.h"
#include "platform/failure.h"
#include "platform/simulated/simulated_graph.h"
#include "platform/text.h"

namespace sonarelle {

std::shared_ptr<MediaGraph> SimulatedMedia::create_graph() {
    return std::make_shared<SimulatedGraph>(*this, ++created_);
}

std::vector<std::string> SimulatedMedia::on_air() const {
    std::vector<std::string> paths;
    for (const SimulatedGraph* graph : graphs_)
        if (graph->is_heard())
            paths.push_back(graph->path());
    return paths;
}

ProgrammeSilence SimulatedMedia::silence() const {
    RunningSpans spans = spans_;
    for (const SimulatedGraph* graph : graphs_)
        spans.add(graph->sounding_span());
    return spans.at(clock_.now());
}

SimulatedMedia::File& SimulatedMedia::facts_of(std::string_view path) {
    return files_[lower_case(disk_.absolute(path))];
}

const SimulatedMedia::File& SimulatedMedia::open(std::string_view path) {
    try {
        (void)disk_.open(path);
    } catch (const Failure& failure) {
        const bool missing = failure.number == FailureNumber::file_not_found ||
                             failure.number == FailureNumber::path_not_found ||
                             failure.number == FailureNumber::device_unavailable;
        if (failure.number == FailureNumber::device_fault)
            throw;
        throw Failure{missing ? FailureNumber::file_not_found : FailureNumber::unplayable_file, std::string{path}};
    }
    const auto known = files_.find(lower_case(disk_.absolute(path)));
    if (known == files_.end() || known->second.seconds < 0)
        throw Failure{FailureNumber::unplayable_file, std::string{path}};
    return known->second;
}

void SimulatedMedia::write(MediaCommand command) {
    command.at = clock_.now();
    log_.push_back(std::move(command));
}

} // namespace sonarelle
