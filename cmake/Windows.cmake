# What every build for Windows needs, across from Debian as on Windows itself: the architecture, as
# the compiler has it; Windows XP's interface, newer calls being resolved at run time; a stack
# protector; everything linked statically; no time of day in the file, so that the same sources give
# the same bytes.
set(flags -fstack-protector-strong -ffunction-sections -fdata-sections)
set(linkerFlags -static -Wl,--gc-sections,--dynamicbase,--nxcompat,--no-insert-timestamp)
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  set(VANTREL_WINDOWS_ARCH x86)
  # i686 without SSE is what every machine that runs Windows XP has.
  list(PREPEND flags -D_WIN32_WINNT=0x0501 -DWINVER=0x0501 -march=i686 -mtune=generic)
  list(APPEND linkerFlags -Wl,--major-subsystem-version,5,--minor-subsystem-version,1)
else()
  set(VANTREL_WINDOWS_ARCH x64)
  list(PREPEND flags -D_WIN32_WINNT=0x0502 -DWINVER=0x0502)
  list(APPEND linkerFlags -Wl,--high-entropy-va
                          -Wl,--major-subsystem-version,5,--minor-subsystem-version,2)
endif()
list(JOIN flags " " flags)
list(JOIN linkerFlags " " linkerFlags)
set(CMAKE_CXX_FLAGS "${flags} ${CMAKE_CXX_FLAGS}")
set(CMAKE_EXE_LINKER_FLAGS "${linkerFlags} ${CMAKE_EXE_LINKER_FLAGS}")
