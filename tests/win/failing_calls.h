// System calls that fail, as they do with a full disk, a locked folder or a locked registry.
#pragma once

#include <functional>
#include <string>
#include <vector>

struct Fault {
    std::string what;               // which call failed and how, for the messages of a test
    std::vector<std::string> said;  // by message boxes, each of which was answered
    bool isAny = true;              // false the last time, when nothing fails
};

enum class Calls {
    changing,  // that change a file or a setting, on this thread
    any,       // those and the ones that read, on any thread
    memory,    // large allocations, on this thread, one at a time
};

struct FaultyWork {
    std::string name;  // for the test's messages
    int fewestFaults;
    std::function<void()> prepare;  // before each time
    std::function<void()> work;
    std::function<void(const Fault&)> check;
    Calls which = Calls::changing;
    bool newFilesRefused = false;                  // as in a folder that takes no new file
    std::vector<unsigned long> errors = {5, 112};  // access denied, disk full
    int answer = 6;                                // to questions: IDYES
};

// Does the work over and over, with its first, second, ... call of a kind failing, alone or with all calls
// after it; the last time none fails. Only calls by the program's own code count. What fails has no effect,
// but for a write, which gets half of its bytes in, and a close. The test fails where fewer calls than
// expected could fail.
void FailEachCall(const FaultyWork& test);

// Does the work once, with no call made to fail, and returns what message boxes said.
std::vector<std::string> SaidBy(const std::function<void()>& work);
// The same while hardly any address space is left.
std::vector<std::string> SaidWhileMemoryIsShort(const std::function<void()>& work);
