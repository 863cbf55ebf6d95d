// Waiting for others without keeping the windows waiting.
#pragma once

#include "win/unique.h"
#include "win/windows.h"

namespace win {

// Something to do on another thread. It owns all that it works with: when nobody waits for its end any more,
// it goes on alone and deletes itself. Made with new, and given up by release().
class Task {
 public:
    Task(const Task&) = delete;
    Task& operator=(const Task&) = delete;
    void release();

 protected:
    Task();
    virtual ~Task() = default;

 private:
    friend class Worker;
    // On the other thread. What it throws comes through to the waiting thread as a win::Error.
    virtual void run() = 0;
    static DWORD WINAPI perform(void* task);

    UniqueHandle done_;
    LONG owners_ = 1;
    DWORD lastError_ = ERROR_SUCCESS;
    DWORD thrown_ = ERROR_SUCCESS;
};

class Worker {
 public:
    // Has the task run on another thread and handles the messages of this one until it has: anything can
    // happen meanwhile. GetLastError() is then the task's. False, with ERROR_CANCELLED, when it was given up.
    bool run(Task& task);
    // From then on run() waits for no longer than these milliseconds, the one that waits already too.
    void giveUp(DWORD patience);
    bool isGivenUp() const { return givenUp_; }

 private:
    bool await(HANDLE done);
    DWORD left() const;

    bool givenUp_ = false;
    DWORD deadline_ = 0;
};

}  // namespace win
