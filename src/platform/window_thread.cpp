#include "platform/window_thread.h"

#include <thread>

namespace sonarelle {

namespace {

const std::thread::id first_thread = std::this_thread::get_id();

} // namespace

bool on_window_thread() {
    return std::this_thread::get_id() == first_thread;
}

} // namespace sonarelle
