# The Windows program. quillon_app is everything but WinMain, so that the Windows tests link the same objects
# that ship.
enable_language(RC)

file(GLOB app_sources CONFIGURE_DEPENDS src/*/*.cpp src/*/*.h src/authoring/*/*.cpp src/authoring/*/*.h)
add_library(quillon_app OBJECT ${app_sources})
# The IDs of each form's controls are declared beside its dialog template.
target_include_directories(quillon_app PUBLIC res)
# Most of the time that a file takes to compile is spent on the system's headers.
target_precompile_headers(quillon_app PRIVATE
    <algorithm> <functional> <memory> <optional> <string> <string_view> <utility> <vector> <win/windows.h>)
target_link_libraries(quillon_app PUBLIC
    quillon_core comctl32 comdlg32 shell32 ole32 oleaut32 uuid gdi32 user32 advapi32)

# The version as numbers for the version record, 4,1,0,2, and as text, 4.01.0002. Scripts read it from version.txt.
string(REPLACE "." "," version_numbers ${PROJECT_VERSION})
string(REGEX MATCH "..$" version_minor 0${PROJECT_VERSION_MINOR})
string(REGEX MATCH "....$" version_revision 000${PROJECT_VERSION_TWEAK})
set(version_text ${PROJECT_VERSION_MAJOR}.${version_minor}.${version_revision})
configure_file(res/version.h.in version/version.h @ONLY)
configure_file(res/quillon.manifest.in version/quillon.manifest @ONLY)
file(CONFIGURE OUTPUT version/version.txt CONTENT "${version_text} ${PROJECT_VERSION}\n")

file(GLOB resource_files CONFIGURE_DEPENDS res/*.ico res/pictures/*.ico res/forms/*)
add_library(quillon_resources OBJECT res/quillon.rc)
target_include_directories(quillon_resources PRIVATE src res ${CMAKE_BINARY_DIR}/version)
set_source_files_properties(res/quillon.rc PROPERTIES OBJECT_DEPENDS
    "${resource_files};${CMAKE_BINARY_DIR}/version/version.h;${CMAKE_BINARY_DIR}/version/quillon.manifest")

add_executable(Quillon WIN32 src/main.cpp)
target_link_libraries(Quillon PRIVATE quillon_app quillon_resources)
if(MSVC)
    # The resources contain the manifest; the linker would add one of its own.
    target_link_options(Quillon PRIVATE /MANIFEST:NO)
endif()
if(MINGW)
    # Link-time optimization drops the line numbers unless it is told to keep them.
    target_link_options(Quillon PRIVATE -g -ffile-prefix-map=${CMAKE_SOURCE_DIR}=.)
endif()
if(MINGW AND CMAKE_SIZEOF_VOID_P EQUAL 4)
    target_sources(Quillon PRIVATE cmake/mingw_tick_count.cpp)
    # An uncaught exception ends the program. The library's own handler would first print its name where nobody
    # sees it, with a demangler and a printf of 70 KB.
    target_link_options(Quillon PRIVATE -Wl,--defsym=__ZN9__gnu_cxx27__verbose_terminate_handlerEv=_abort)
endif()
