#include "e2e/monkey.h"

namespace {

TEST_F(MonkeyTest, RandomUseLosesNothing) {
    const auto seconds = static_cast<DWORD>(EnvironmentNumber("QUILLON_MONKEY_SECONDS", 20));
    const DWORD start = ::GetTickCount();
    while (::GetTickCount() - start < seconds * 1000 && !HasFailure()) {
        act();
        if (actions_ / 30 > rests_ && !HasFailure()) rest();
    }
    checkAll();
    std::printf("%d actions with seed %u\n", actions_, seed_);
}

}  // namespace
