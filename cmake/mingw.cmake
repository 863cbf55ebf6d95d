# The posix variant, because GoogleTest needs std::mutex; the program itself starts no thread.
set(CMAKE_C_COMPILER ${QUILLON_MINGW}-gcc-posix)
set(CMAKE_CXX_COMPILER ${QUILLON_MINGW}-g++-posix)
set(CMAKE_RC_COMPILER ${QUILLON_MINGW}-windres)
set(CMAKE_FIND_ROOT_PATH /usr/${QUILLON_MINGW})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
