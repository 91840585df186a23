// SPDX-License-Identifier: Apache-2.0
// The program's end while threads run, and while they give back what they hold: each in a process that ends.
#include "dialog/DetachedThread.h"

#include <QApplication>

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <future>
#include <thread>

#include <unistd.h>

namespace
{

using namespace std::chrono_literals;

void say(const char *words)
{
    EXPECT_GT(write(STDERR_FILENO, words, std::char_traits<char>::length(words)), 0);
}

/// What a thread holds of a library: it is given back after the thread's function.
struct Held {
    ~Held()
    {
        std::this_thread::sleep_for(300ms);
        say("given back ");
    }
    void take() {}
};
thread_local Held held; // NOLINT(*-avoid-non-const-global-variables): one a thread

/// What a library takes down when the program ends; it registers that when it is loaded.
void loadLibrary()
{
    std::atexit([] { say("taken down "); });
}

class DetachedThread : public testing::Test
{
protected:
    DetachedThread() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
};

TEST_F(DetachedThread, WhoseWorkIsDone_IsWaitedForBeforeLibrariesAreTakenDown)
{
    EXPECT_EXIT(
        {
            loadLibrary();
            std::promise<void> done;
            tapeprint::dialog::startDetached([&done] {
                held.take();
                done.set_value();
            });
            done.get_future().wait();
            std::this_thread::sleep_for(100ms); // the function has come back; what it held has not
            std::exit(5);
        },
        testing::ExitedWithCode(5), "given back taken down ");
}

TEST_F(DetachedThread, ThatRuns_EndsTheProgramBeforeALibraryThatItLoadedIsTakenDown)
{
    EXPECT_EXIT(
        {
            std::promise<void> loaded;
            tapeprint::dialog::startDetached([&loaded] {
                std::atexit([] { _exit(9); }); // a library that is loaded by the work
                loaded.set_value();
                std::this_thread::sleep_for(1min);
            });
            loaded.get_future().wait();
            qApp->~QApplication(); // as when main() comes back
            std::exit(5);
        },
        testing::ExitedWithCode(5), "");
}

} // namespace
