// Waiting for others without keeping the windows waiting.
#pragma once

#include <functional>

#include "win/windows.h"

namespace win {

class Worker {
 public:
    // Runs the job on another thread and handles the messages of this one until it has ended: anything can
    // happen meanwhile. What the job throws is thrown here. False when the job was not waited for, or not
    // even begun: it then goes on alone, so it owns, or shares, all that it works with.
    bool run(std::function<void()> job);
    // From then on jobs are not begun any more, and one that runs is waited for these milliseconds at most.
    void giveUp(DWORD timeout);
    bool isGivenUp() const { return givenUp_; }

 private:
    bool await(HANDLE done);
    DWORD left() const;

    bool givenUp_ = false;
    DWORD deadline_ = 0;
};

}  // namespace win
