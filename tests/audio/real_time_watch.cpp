#include "real_time_watch.h"

#include <cstdlib>
#include <dlfcn.h>
#include <new>
#include <pthread.h>

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

} // namespace sonarelle

// The whole program's memory and mutexes pass through here. The sanitizers have their own in these places: then C++'s
// operators are watched alone.
#if defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define SONARELLE_SANITIZED
#endif
#endif
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define SONARELLE_SANITIZED
#endif

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
#else
void* operator new(std::size_t size) {
    count_allocation();
    if (void* memory = std::malloc(size == 0 ? 1 : size))
        return memory;
    throw std::bad_alloc{};
}
void operator delete(void* memory) noexcept {
    count_allocation();
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    count_allocation();
    std::free(memory);
}
#endif

#if !defined(SONARELLE_SANITIZED)
extern "C" int pthread_mutex_lock(pthread_mutex_t* mutex) {
    using Lock = int (*)(pthread_mutex_t*);
    static const Lock real = reinterpret_cast<Lock>(::dlsym(RTLD_NEXT, "pthread_mutex_lock"));
    if (watching)
        ++seen.locks;
    return real(mutex);
}
#endif
