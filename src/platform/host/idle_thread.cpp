#include "platform/host/idle_thread.h"

#include <linux/ioprio.h>
#include <sched.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace sonarelle {

void become_idle_thread() {
    const sched_param lowest{};
    static_cast<void>(::sched_setscheduler(0, SCHED_IDLE, &lowest));
    static_cast<void>(::syscall(SYS_ioprio_set, IOPRIO_WHO_PROCESS, 0, IOPRIO_PRIO_VALUE(IOPRIO_CLASS_IDLE, 0)));
}

} // namespace sonarelle
