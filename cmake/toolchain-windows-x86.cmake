# Cross compiler for 32-bit Windows: GCC with posix threads, everything linked statically.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR i686)
set(VANTREL_WINDOWS_ARCH x86)
set(triple i686-w64-mingw32)

set(CMAKE_C_COMPILER ${triple}-gcc-posix)
set(CMAKE_CXX_COMPILER ${triple}-g++-posix)
set(CMAKE_RC_COMPILER ${triple}-windres)
set(CMAKE_FIND_ROOT_PATH /usr/${triple})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)

# Windows XP's interface is the reference; newer calls are resolved at run time. i686 without
# SSE is what every machine that runs Windows XP has.
set(CMAKE_CXX_FLAGS_INIT
    "-D_WIN32_WINNT=0x0501 -DWINVER=0x0501 -march=i686 -mtune=generic -fstack-protector-strong -ffunction-sections -fdata-sections")
string(CONCAT CMAKE_EXE_LINKER_FLAGS_INIT
    "-static -Wl,--gc-sections,--dynamicbase,--nxcompat"
    ",--major-subsystem-version,5,--minor-subsystem-version,1")

set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/../tools/under-wine;x86")
