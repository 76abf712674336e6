#pragma once

#include <atomic>

namespace sonarelle {

/// Something that the bus has had in its hands and that is freed elsewhere once the bus has let go of it.
class Retirable {
public:
    virtual ~Retirable() = default;

private:
    friend class RetiredList;
    Retirable* next_ = nullptr;
};

/// The way out of the audio callback: `push` neither waits nor allocates, `free_all` is called by whoever may free.
class RetiredList {
public:
    RetiredList() = default;
    ~RetiredList() { free_all(); }
    RetiredList(const RetiredList&) = delete;
    RetiredList& operator=(const RetiredList&) = delete;

    // Only the other side's taking of everything can come between, so the loop runs twice at most.
    void push(Retirable& object) noexcept {
        object.next_ = head_.load(std::memory_order_relaxed);
        while (
            !head_.compare_exchange_weak(object.next_, &object, std::memory_order_release, std::memory_order_relaxed)) {
        }
    }

    void free_all() {
        Retirable* object = head_.exchange(nullptr, std::memory_order_acquire);
        while (object != nullptr) {
            Retirable* next = object->next_;
            delete object;
            object = next;
        }
    }

private:
    std::atomic<Retirable*> head_{nullptr};
};

} // namespace sonarelle
