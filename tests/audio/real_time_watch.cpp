#include "real_time_watch.h"

#include <cstdlib>
#include <dlfcn.h>
#include <new>
#include <pthread.h>

#if defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define SONARELLE_SANITIZED
#endif
#endif
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define SONARELLE_SANITIZED
#endif

namespace {

thread_local bool watching = false;
thread_local sonarelle::RealTimeWatch::Seen seen;

void count_allocation() {
    if (watching)
        ++seen.allocations;
}

} // namespace

namespace sonarelle {

void RealTimeWatch::begin() {
    seen = {};
    watching = true;
}

RealTimeWatch::Seen RealTimeWatch::end() {
    watching = false;
    return seen;
}

#if defined(SONARELLE_SANITIZED)
bool RealTimeWatch::sees_locks() {
    return false;
}
#else
bool RealTimeWatch::sees_locks() {
    return true;
}
#endif

} // namespace sonarelle

// The whole program's memory and mutexes pass through here. The sanitizers have their own in these places, and hooks
// for memory.
#if !defined(SONARELLE_SANITIZED)
extern "C" {
void* __libc_malloc(std::size_t size);
void __libc_free(void* memory);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* memory, std::size_t size);

void* malloc(std::size_t size) {
    count_allocation();
    return __libc_malloc(size);
}
void free(void* memory) {
    count_allocation();
    __libc_free(memory);
}
void* calloc(std::size_t count, std::size_t size) {
    count_allocation();
    return __libc_calloc(count, size);
}
void* realloc(void* memory, std::size_t size) {
    count_allocation();
    return __libc_realloc(memory, size);
}
}

extern "C" int pthread_mutex_lock(pthread_mutex_t* mutex) {
    using Lock = int (*)(pthread_mutex_t*);
    static const Lock real = reinterpret_cast<Lock>(::dlsym(RTLD_NEXT, "pthread_mutex_lock"));
    if (watching)
        ++seen.locks;
    return real(mutex);
}
#else
extern "C" void __sanitizer_malloc_hook(const volatile void*, std::size_t) {
    count_allocation();
}
extern "C" void __sanitizer_free_hook(const volatile void*) {
    count_allocation();
}
#endif
