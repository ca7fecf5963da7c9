# Cross compiler for 64-bit Windows: GCC with posix threads, everything linked statically.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(VANTREL_WINDOWS_ARCH x64)
set(triple x86_64-w64-mingw32)

set(CMAKE_C_COMPILER ${triple}-gcc-posix)
set(CMAKE_CXX_COMPILER ${triple}-g++-posix)
set(CMAKE_RC_COMPILER ${triple}-windres)
set(CMAKE_FIND_ROOT_PATH /usr/${triple})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)

# Windows XP's interface is the reference; newer calls are resolved at run time.
set(CMAKE_CXX_FLAGS_INIT
    "-D_WIN32_WINNT=0x0502 -DWINVER=0x0502 -fstack-protector-strong -ffunction-sections -fdata-sections")
string(CONCAT CMAKE_EXE_LINKER_FLAGS_INIT
    "-static -Wl,--gc-sections,--dynamicbase,--nxcompat,--high-entropy-va"
    ",--major-subsystem-version,5,--minor-subsystem-version,2")

set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/../tools/under-wine;x64")
