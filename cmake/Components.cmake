# The dependency rule. A component is one folder under src/ and one static library; it sees the
# headers of its own folder and of the components that it links, and of no other: each component
# exports a folder of links to its headers, so an include against the rule does not compile.

set(VANTREL_EXPORTED_HEADERS "${CMAKE_BINARY_DIR}/exported-headers")

# The presets windows-x86 and sanitize compile about ten files of a target together
# (CMAKE_UNITY_BUILD): more than half of a file's compile time is its headers. The other presets
# compile each file alone, so that a missing #include is seen there and an edit recompiles one file.
# Files that repeat another one's names stand alone everywhere: UNITY_BUILD, SKIP_UNITY_BUILD_INCLUSION.

# vantrel_link_header(<header> <place>): a link to the header; where the system refuses links, a
# copy that an edit of the header refreshes. A copy stays one, so that configuring again touches
# nothing.
function(vantrel_link_header header place)
  if(EXISTS "${place}" AND IS_SYMLINK "${place}")
    return()
  endif()
  set(refused "a copy is there")
  if(NOT EXISTS "${place}")
    file(CREATE_LINK "${header}" "${place}" RESULT refused SYMBOLIC)
  endif()
  if(NOT refused STREQUAL "0")
    configure_file("${header}" "${place}" COPYONLY)
  endif()
endfunction()

# vantrel_export_headers(<component> <folder>): links to the folder's own headers under
# exported-headers/<component>/<folder>/, the component's one public include folder.
function(vantrel_export_headers component folder)
  file(GLOB headers CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/src/${folder}/*.h")
  set(exported "${VANTREL_EXPORTED_HEADERS}/${component}/${folder}")
  file(GLOB stale "${exported}/*.h")
  foreach(link IN LISTS stale)
    get_filename_component(name "${link}" NAME)
    if(NOT EXISTS "${PROJECT_SOURCE_DIR}/src/${folder}/${name}")
      file(REMOVE "${link}")
    endif()
  endforeach()
  file(MAKE_DIRECTORY "${exported}")
  foreach(header IN LISTS headers)
    get_filename_component(name "${header}" NAME)
    vantrel_link_header("${header}" "${exported}/${name}")
  endforeach()
endfunction()

# vantrel_component(<folder> [LINKS component...]): the component of src/<folder>; its target is
# vantrel- and the folder's name with dashes. LINKS are the components that it may use, by the same
# folder names.
function(vantrel_component folder)
  cmake_parse_arguments(COMPONENT "" "" "LINKS" ${ARGN})
  string(REPLACE "/" "-" component "${folder}")
  set(target "vantrel-${component}")
  file(GLOB sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/src/${folder}/*.cpp")
  if(sources)
    add_library(${target} STATIC ${sources})
    set(scope PUBLIC)
    target_link_libraries(${target} PRIVATE vantrel-warnings)
    vantrel_precompile_standard_headers(${target})
  else()
    add_library(${target} INTERFACE)
    set(scope INTERFACE)
  endif()
  vantrel_export_headers(${component} ${folder})
  target_include_directories(${target} ${scope} "${VANTREL_EXPORTED_HEADERS}/${component}")
  foreach(used IN LISTS COMPONENT_LINKS)
    string(REPLACE "/" "-" used "${used}")
    target_link_libraries(${target} ${scope} "vantrel-${used}")
  endforeach()
endfunction()

# vantrel_precompile_standard_headers(<component>): what nearly every source includes, half of a short
# one's time, is compiled once, for the first component. Clang compiles it each time: its precompiled
# headers are tied to one build folder, and a build without them sees a missing #include.
function(vantrel_precompile_standard_headers component)
  if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    return()
  endif()
  if(component STREQUAL "vantrel-text")
    target_precompile_headers(${component} PRIVATE <algorithm> <cstdint> <functional> <map> <memory>
                                                   <optional> <string> <string_view> <utility> <vector>)
  else()
    target_precompile_headers(${component} REUSE_FROM vantrel-text)
  endif()
endfunction()

# vantrel_unit_tests(<folder> [LINKS target...]): one GoogleTest program of the component's tests,
# tests/unit/<folder>/*.cpp, if there are any. They run natively and as 64-bit Windows
# programs; the 32-bit build is held to the contract and driven from outside instead.
function(vantrel_unit_tests folder)
  cmake_parse_arguments(TESTS "" "" "LINKS" ${ARGN})
  string(REPLACE "/" "-" component "${folder}")
  file(GLOB sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/tests/unit/${folder}/*.cpp")
  if(NOT sources OR VANTREL_WINDOWS_ARCH STREQUAL "x86")
    return()
  endif()
  vantrel_test_program(unit-tests-${component} SOURCES ${sources}
                       LINKS vantrel-${component} ${TESTS_LINKS})
endfunction()

# vantrel_test_program(<name> SOURCES file... LINKS target...): a GoogleTest program with the
# watchdog and the rows of tests/support, registered with CTest under its own name.
function(vantrel_test_program name)
  cmake_parse_arguments(PROGRAM "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${PROGRAM_SOURCES})
  target_link_libraries(${name} PRIVATE ${PROGRAM_LINKS} test-support GTest::gmock
                                        vantrel-warnings)
  vantrel_compile_quickly(${name})
  if(MINGW)
    target_link_options(${name} PRIVATE "-B${PROJECT_SOURCE_DIR}/cmake/lld/")
  endif()
  add_test(NAME ${name} COMMAND ${name})
endfunction()

# vantrel_compile_quickly(<test program>): its sources run once, so that compiling them is what costs:
# without optimizing, and with the headers of GoogleTest, two thirds of a short test's time, compiled
# once; but see vantrel_precompile_standard_headers for Clang.
function(vantrel_compile_quickly name)
  target_compile_options(${name} PRIVATE -O0)
  if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    return()
  endif()
  if(name STREQUAL "test-support")
    target_precompile_headers(${name} PRIVATE <gmock/gmock.h> <algorithm> <functional> <map>
                                              <optional> <string> <vector>)
  else()
    target_precompile_headers(${name} REUSE_FROM test-support)
  endif()
endfunction()
