# The walls of the house. A room is one folder under src/ and one static library; it sees the
# headers of its own folder and of the rooms that it links, and of no other: each room exports a
# folder of links to its headers, so an include across a wall does not compile.

set(VANTREL_WALLS "${CMAKE_BINARY_DIR}/walls")

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

# vantrel_export_headers(<room> <folder>): links to the folder's own headers under
# walls/<room>/<folder>/, the room's one public include folder.
function(vantrel_export_headers room folder)
  file(GLOB headers CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/src/${folder}/*.h")
  set(exported "${VANTREL_WALLS}/${room}/${folder}")
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

# vantrel_room(<folder> [LINKS room...]): the room of src/<folder>; its target is the folder's
# name with dashes. LINKS are the rooms that it may use, by the same folder names.
function(vantrel_room folder)
  cmake_parse_arguments(ROOM "" "" "LINKS" ${ARGN})
  string(REPLACE "/" "-" room "${folder}")
  set(target "room-${room}")
  file(GLOB sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/src/${folder}/*.cpp")
  if(sources)
    add_library(${target} STATIC ${sources})
    set(scope PUBLIC)
    target_link_libraries(${target} PRIVATE vantrel-warnings)
  else()
    add_library(${target} INTERFACE)
    set(scope INTERFACE)
  endif()
  vantrel_export_headers(${room} ${folder})
  target_include_directories(${target} ${scope} "${VANTREL_WALLS}/${room}")
  foreach(used IN LISTS ROOM_LINKS)
    string(REPLACE "/" "-" used "${used}")
    target_link_libraries(${target} ${scope} "room-${used}")
  endforeach()
endfunction()

# vantrel_unit_tests(<room folder> [LINKS target...]): one GoogleTest program of the room's tests,
# tests/unit/<room folder>/*.cpp, if there are any. They run natively and as 64-bit Windows
# programs; the 32-bit build is held to the contract and driven from outside instead.
function(vantrel_unit_tests folder)
  cmake_parse_arguments(TESTS "" "" "LINKS" ${ARGN})
  string(REPLACE "/" "-" room "${folder}")
  file(GLOB sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/tests/unit/${folder}/*.cpp")
  if(NOT sources OR VANTREL_WINDOWS_ARCH STREQUAL "x86")
    return()
  endif()
  vantrel_test_program(unit-tests-${room} SOURCES ${sources}
                       LINKS room-${room} ${TESTS_LINKS})
endfunction()

# vantrel_test_program(<name> SOURCES file... LINKS target...): a GoogleTest program with the
# watchdog of tests/support, registered with CTest under its own name.
function(vantrel_test_program name)
  cmake_parse_arguments(PROGRAM "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${PROGRAM_SOURCES})
  target_link_libraries(${name} PRIVATE ${PROGRAM_LINKS} test-support GTest::gmock
                                        vantrel-warnings)
  add_test(NAME ${name} COMMAND ${name})
endfunction()
