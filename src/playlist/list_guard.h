#pragma once

#include "platform/platform.h"
#include "playlist/list_actions.h"
#include "playlist/liste_son.h"
#include "state/list_state.h"

namespace sonarelle {

/// Decides whether an action of the list may begin, and tells the operator why not.
class ListGuard {
public:
    ListGuard(const Platform& platform, const ListState& list, const Liste_son& window)
        : platform_{platform},
          list_{list},
          window_{window} {}

    /// False while another action is under way; only edits by hand have a word for it.
    [[nodiscard]] bool allows(ListAction action) const;

private:
    friend class ListWork;

    [[nodiscard]] bool is_dfm() const;

    const Platform& platform_;
    const ListState& list_;
    const Liste_son& window_;
    bool at_work_ = false;
};

/// While it lives, the window shows the busy pointer and no other action of the list begins: the operator's hands come
/// in wherever an action yields.
class ListWork {
public:
    ListWork(ListGuard& guard, Window& window)
        : guard_{guard},
          window_{window} {
        guard_.at_work_ = true;
        window_.mouse_pointer = 11;
    }
    ~ListWork() {
        guard_.at_work_ = false;
        window_.mouse_pointer = 0;
    }
    ListWork(const ListWork&) = delete;
    ListWork& operator=(const ListWork&) = delete;

private:
    ListGuard& guard_;
    Window& window_;
};

} // namespace sonarelle
