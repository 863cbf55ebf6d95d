#include "win/worker.h"

#include "win/error.h"
#include "win/message_loop.h"

namespace win {

Task::Task() : done_(Check(::CreateEventA(nullptr, TRUE, FALSE, nullptr))) {}

void Task::release() {
    if (::InterlockedDecrement(&owners_) == 0) delete this;
}

DWORD WINAPI Task::perform(void* task) {
    auto* self = static_cast<Task*>(task);
    try {
        self->run();
        self->lastError_ = ::GetLastError();
    } catch (const Error& error) {
        self->thrown_ = error.code();
    } catch (...) {
        self->thrown_ = ERROR_NOT_ENOUGH_MEMORY;
    }
    ::SetEvent(self->done_.get());
    self->release();
    return 0;
}

bool Worker::run(Task& task) {
    ::InterlockedIncrement(&task.owners_);
    if (!::QueueUserWorkItem(Task::perform, &task, WT_EXECUTELONGFUNCTION)) {
        task.release();
        ThrowLastError();
    }
    const bool done = await(task.done_.get());
    if (done && task.thrown_) throw Error(task.thrown_);
    ::SetLastError(done ? task.lastError_ : ERROR_CANCELLED);
    return done;
}

void Worker::giveUp(DWORD patience) {
    if (givenUp_) return;
    givenUp_ = true;
    deadline_ = ::GetTickCount() + patience;
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
        // The program ends. Its last message stays in the queue and would wake this at once, again and again.
        giveUp(0);
        return ::WaitForSingleObject(done, left()) == WAIT_OBJECT_0;
    }
}

}  // namespace win
