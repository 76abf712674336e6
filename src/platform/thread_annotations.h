#pragma once

#include <condition_variable>
#include <mutex>

// Clang checks at compile time that what a mutex guards is touched under it alone; other compilers see plain code.
#if defined(__clang__)
#define SONARELLE_THREAD_ANNOTATION(x) __attribute__((x))
#else
#define SONARELLE_THREAD_ANNOTATION(x)
#endif

#define SONARELLE_GUARDED_BY(mutex) SONARELLE_THREAD_ANNOTATION(guarded_by(mutex))
#define SONARELLE_REQUIRES(mutex) SONARELLE_THREAD_ANNOTATION(requires_capability(mutex))

namespace sonarelle {

class SONARELLE_THREAD_ANNOTATION(capability("mutex")) Mutex {
public:
    void lock() SONARELLE_THREAD_ANNOTATION(acquire_capability()) { mutex_.lock(); }
    void unlock() SONARELLE_THREAD_ANNOTATION(release_capability()) { mutex_.unlock(); }

private:
    std::mutex mutex_;
};

/// Holds a mutex for as long as it lives.
class SONARELLE_THREAD_ANNOTATION(scoped_lockable) MutexLock {
public:
    explicit MutexLock(Mutex& mutex) SONARELLE_THREAD_ANNOTATION(acquire_capability(mutex))
        : mutex_{mutex} {
        mutex_.lock();
    }
    ~MutexLock() SONARELLE_THREAD_ANNOTATION(release_capability()) { mutex_.unlock(); }
    MutexLock(const MutexLock&) = delete;
    MutexLock& operator=(const MutexLock&) = delete;

private:
    Mutex& mutex_;
};

/// Waits on a Mutex that the caller holds.
using Condition = std::condition_variable_any;

} // namespace sonarelle
