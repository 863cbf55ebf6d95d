// Long work on another thread, while the windows stay usable.
#pragma once

#include <functional>

#include "win/windows.h"

namespace win {

class Worker {
 public:
    // Runs the job on another thread and handles the messages of this one until it ends: anything can happen
    // meanwhile. Rethrows what the job throws. False when the worker has been given up: the job was then not
    // started, or it goes on alone, so it must own, or share, all that it uses.
    bool run(std::function<void()> job);
    // From then on no job is started, and a running one is waited for at most this long, in milliseconds.
    void giveUp(DWORD timeout);
    bool isGivenUp() const { return givenUp_; }

 private:
    bool await(HANDLE done);
    DWORD left() const;

    bool givenUp_ = false;
    DWORD deadline_ = 0;
};

}  // namespace win
