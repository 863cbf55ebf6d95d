// System calls that fail, as those of a full disk, a locked folder or a closed registry do.
#pragma once

#include <functional>
#include <string>
#include <vector>

struct Fault {
    std::string what;               // which call failed and how, for the messages of a test
    std::vector<std::string> said;  // by message boxes, which were answered with their first button
    bool isAny = true;              // false the last time
};

enum class Calls {
    changing,  // a file or a setting, on this thread
    any,       // those that only read as well, on whatever thread
    memory,    // requests for much of it at once, on this thread, one at a time
};

struct FaultyWork {
    std::string name;  // for the messages of the test
    int fewestFaults;
    std::function<void()> prepare;  // what was there before
    std::function<void()> work;
    std::function<void(const Fault&)> check;
    Calls which = Calls::changing;
    bool newFilesRefused = false;                  // a folder that takes no new file at all
    std::vector<unsigned long> errors = {5, 112};  // access denied, disk full
    int answer = 6;                                // IDYES, to questions
};

// Does the work over and over, with its first, second, ... call of a kind failing, alone or with all calls
// after it; the last time none fails. Only calls by the program's own code count. What fails has no effect,
// but for a write, which gets half of its bytes in, and a close. The test fails where fewer calls than
// expected could fail.
void FailEachCall(const FaultyWork& test);

// Does the work once with nothing failing but what fails by itself, and gives what message boxes said.
std::vector<std::string> SaidBy(const std::function<void()>& work);
// The same, while hardly any address space is left.
std::vector<std::string> SaidWhileMemoryIsShort(const std::function<void()>& work);
