#include "app/outil/list_target.h"

#include <utility>

#include "platform/failure.h"

namespace sonarelle {

std::unique_ptr<RecordFile> open_if_there(Machine& machine, const std::string& file) {
    try {
        return machine.open(file);
    } catch (const Failure& failure) {
        if (failure.number != FailureNumber::file_not_found)
            throw;
        return nullptr;
    }
}

ListTarget::ListTarget(Machine& machine, std::string file)
    : file_{std::move(file)},
      replacement_{machine.replace(file_)} {
    if (const auto old = open_if_there(machine, file_))
        seen_ = old->facts();
}

void ListTarget::commit() {
    if (!replacement_->commit_over(seen_))
        throw Failure{FailureNumber::path_access, file_, "un autre programme a changé ce fichier entre-temps"};
}

} // namespace sonarelle
