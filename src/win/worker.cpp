#include "win/worker.h"

#include <algorithm>
#include <exception>
#include <memory>
#include <utility>

#include "win/error.h"
#include "win/message_loop.h"
#include "win/unique.h"

namespace win {
namespace {

// Shared by the thread that works and the one that waits, whichever of them ends first.
struct Running {
    std::function<void()> job;
    UniqueHandle done{Check(::CreateEventW(nullptr, TRUE, FALSE, nullptr))};
    std::exception_ptr thrown;
};

DWORD WINAPI Perform(void* shared) {
    const std::unique_ptr<std::shared_ptr<Running>> owner(static_cast<std::shared_ptr<Running>*>(shared));
    Running& running = **owner;
    try {
        running.job();
    } catch (...) {
        running.thrown = std::current_exception();
    }
    running.job = nullptr;
    ::SetEvent(running.done.get());
    return 0;
}

}  // namespace

bool Worker::run(std::function<void()> job) {
    if (givenUp_) return false;
    const auto running = std::make_shared<Running>();
    running->job = std::move(job);
    auto owner = std::make_unique<std::shared_ptr<Running>>(running);
    Check(::QueueUserWorkItem(Perform, owner.get(), WT_EXECUTELONGFUNCTION));
    static_cast<void>(owner.release());
    if (!await(running->done.get())) return false;
    if (running->thrown) std::rethrow_exception(running->thrown);
    return true;
}

void Worker::giveUp(DWORD timeout) {
    const DWORD now = ::GetTickCount();
    // The shorter time-out wins.
    deadline_ = givenUp_ ? now + std::min(timeout, left()) : now + timeout;
    givenUp_ = true;
}

DWORD Worker::left() const {
    const auto left = static_cast<LONG>(deadline_ - ::GetTickCount());
    return !givenUp_ ? INFINITE : left > 0 ? static_cast<DWORD>(left) : 0;
}

bool Worker::await(HANDLE done) {
    while (true) {
        const DWORD woken = ::MsgWaitForMultipleObjectsEx(1, &done, left(), QS_ALLINPUT, MWMO_INPUTAVAILABLE);
        if (woken != WAIT_OBJECT_0 + 1) return woken == WAIT_OBJECT_0;
        if (RunPending()) continue;
        // The program is ending. WM_QUIT stays in the queue and would end every further wait at once.
        giveUp(0);
        return ::WaitForSingleObject(done, left()) == WAIT_OBJECT_0;
    }
}

}  // namespace win
