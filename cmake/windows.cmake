# The Windows program. quillon_app is everything but WinMain, so that the window tests link the very
# objects that ship.
enable_language(RC)

file(GLOB app_sources CONFIGURE_DEPENDS src/*/*.cpp src/*/*.h)
add_library(quillon_app OBJECT ${app_sources})
# The numbers of each form's controls stand beside its dialog template.
target_include_directories(quillon_app PUBLIC res)
target_link_libraries(quillon_app PUBLIC
    quillon_core comctl32 ole32 uuid gdi32 user32 advapi32)

file(GLOB resource_files CONFIGURE_DEPENDS res/*.ico res/*.manifest res/pictures/*.ico res/forms/*)
add_library(quillon_resources OBJECT res/quillon.rc)
target_include_directories(quillon_resources PRIVATE src res)
set_source_files_properties(res/quillon.rc PROPERTIES OBJECT_DEPENDS "${resource_files}")

add_executable(Quillon WIN32 src/main.cpp)
target_link_libraries(Quillon PRIVATE quillon_app quillon_resources)
if(MINGW)
    # Linking all at once drops the lines of the sources unless it is told to keep them.
    target_link_options(Quillon PRIVATE -g -ffile-prefix-map=${CMAKE_SOURCE_DIR}=.)
endif()
if(MINGW AND CMAKE_SIZEOF_VOID_P EQUAL 4)
    target_sources(Quillon PRIVATE src/lean_runtime.cpp)
    # The program uses no thread of the language's: with the runtime of the compiler's other variant it need not carry
    # a library of POSIX threads, 25 KB.
    execute_process(COMMAND ${QUILLON_MINGW}-g++-win32 -print-file-name=libstdc++.a
        OUTPUT_VARIABLE lean_runtime OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    cmake_path(GET lean_runtime PARENT_PATH lean_runtime)
    target_link_directories(Quillon BEFORE PRIVATE ${lean_runtime})
    target_sources(Quillon PRIVATE cmake/mingw_tick_count.cpp)
endif()
