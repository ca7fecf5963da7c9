# The program folder as it is installed: build/stage/x64 or x86, with the executable, the help
# pages, the sounds and the empty settings folder.
set(VANTREL_STAGE "${PROJECT_SOURCE_DIR}/build/stage/${VANTREL_WINDOWS_ARCH}"
    CACHE INTERNAL "The staged program folder")
add_custom_target(
  stage ALL
  COMMAND ${CMAKE_COMMAND} -E make_directory "${VANTREL_STAGE}/Settings"
  COMMAND ${CMAKE_COMMAND} -E copy_if_different "$<TARGET_FILE:Vantrel>" "${VANTREL_STAGE}"
  # What is no longer made must not go on being shipped.
  COMMAND ${CMAKE_COMMAND} -E rm -rf "${VANTREL_STAGE}/help" "${VANTREL_STAGE}/Sound"
  COMMAND ${CMAKE_COMMAND} -E copy_directory "${CMAKE_BINARY_DIR}/help" "${VANTREL_STAGE}/help"
  COMMAND ${CMAKE_COMMAND} -E copy_directory "${CMAKE_BINARY_DIR}/sound" "${VANTREL_STAGE}/Sound"
  COMMENT "Staging the program folder"
  VERBATIM)
add_dependencies(stage Vantrel vantrel-help vantrel-sounds)
