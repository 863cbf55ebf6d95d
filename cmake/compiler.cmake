# quillon_flags: how all of our own code is compiled, in every preset.
add_library(quillon_flags INTERFACE)

if(MSVC)
    target_compile_options(quillon_flags INTERFACE /W4 /WX /permissive- /utf-8)
    set(CMAKE_MSVC_RUNTIME_LIBRARY "MultiThreaded$<$<CONFIG:Debug>:Debug>")
else()
    target_compile_options(quillon_flags INTERFACE
        -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wold-style-cast -Werror
        # The same bytes wherever the checkout is.
        -ffile-prefix-map=${CMAKE_SOURCE_DIR}=.)
endif()

if(WIN32)
    # Windows XP is the oldest system: newer functions are looked up at run time, so the headers must not offer them.
    target_compile_definitions(quillon_flags INTERFACE
        _WIN32_WINNT=0x0501 WINVER=0x0501 _WIN32_IE=0x0600 UNICODE _UNICODE WIN32_LEAN_AND_MEAN NOMINMAX STRICT)
    if(NOT MSVC)
        target_compile_options(quillon_flags INTERFACE -ffunction-sections -fdata-sections -fno-rtti -g)
        if(CMAKE_SIZEOF_VOID_P EQUAL 4)
            # Windows guarantees a stack alignment of 4 bytes, and our code needs no more.
            target_compile_options(quillon_flags INTERFACE -mpreferred-stack-boundary=2)
            # One partition: GCC 12 fails on several, and the program is smaller by a seventh.
            target_compile_options(quillon_flags INTERFACE -flto=1)
            # A page takes about a hundred bytes of memory for each character.
            target_link_options(quillon_flags INTERFACE -flto=1 -flto-partition=one -Wl,--large-address-aware)
        endif()
        target_link_options(quillon_flags INTERFACE
            -static -Wl,--tsaware -Wl,--gc-sections -Wl,--no-insert-timestamp -Wl,--dynamicbase -Wl,--nxcompat)
    endif()
else()
    set(sanitize -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_compile_options(quillon_flags INTERFACE ${sanitize})
    target_link_options(quillon_flags INTERFACE ${sanitize})
endif()
