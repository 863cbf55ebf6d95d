#include <gtest/gtest.h>

#include "win/windows.h"

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    ::OleInitialize(nullptr);
    const int result = RUN_ALL_TESTS();
    ::OleUninitialize();
    return result;
}
