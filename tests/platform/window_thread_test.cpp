#include "platform/window_thread.h"

#include <gtest/gtest.h>

#include <thread>

namespace sonarelle {
namespace {

TEST(WindowThread, IsTheOneThatTheProgramBeganOn) {
    EXPECT_TRUE(on_window_thread());
}

TEST(WindowThread, IsNoOtherOne) {
    bool answer = true;
    std::thread{[&] { answer = on_window_thread(); }}.join();
    EXPECT_FALSE(answer);
}

} // namespace
} // namespace sonarelle
