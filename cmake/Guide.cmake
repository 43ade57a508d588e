# The pages of the user's guide stand in guide/ beside the programs, made from docs/guide. The
# pictures of its worked examples are taken from the sheets as they are built, all by one start of
# take_picture, and again only when it, the data or the examples have changed.
add_executable(take_picture ${PROJECT_SOURCE_DIR}/tests/desktop/take_picture.cpp)
target_link_libraries(take_picture PRIVATE zepha::desktop)
target_compile_definitions(take_picture PRIVATE ZEPHA_BUILD_DIR="${PROJECT_BINARY_DIR}")
set_target_properties(take_picture PROPERTIES
  RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/tests/desktop)

file(GLOB guide_sources CONFIGURE_DEPENDS
  ${PROJECT_SOURCE_DIR}/docs/guide/*.md ${PROJECT_SOURCE_DIR}/docs/guide/*.css)
file(GLOB guide_data CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/dat/*.dat)
set(guide ${PROJECT_BINARY_DIR}/guide)
file(MAKE_DIRECTORY ${guide}/pictures)
add_custom_command(
  OUTPUT ${guide}.stamp ${guide}.script
  COMMAND ${PROJECT_SOURCE_DIR}/cmake/make-guide ${PROJECT_SOURCE_DIR}/docs/guide ${guide}
  DEPENDS ${PROJECT_SOURCE_DIR}/cmake/make-guide ${guide_sources}
  COMMENT "Pages of the guide"
  VERBATIM)
add_custom_command(
  OUTPUT ${guide}-pictures.stamp
  COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen QT_SCALE_FACTOR=1
    QT_LOGGING_RULES=*.warning=false ASAN_OPTIONS=detect_leaks=0
    $<TARGET_FILE:take_picture> --script ${guide}.script
  COMMAND ${CMAKE_COMMAND} -E touch ${guide}-pictures.stamp
  DEPENDS take_picture data_files ${guide_data} ${guide}.script
  WORKING_DIRECTORY ${PROJECT_BINARY_DIR}
  COMMENT "Pictures of the guide"
  VERBATIM)
add_custom_target(guide ALL DEPENDS ${guide}.stamp ${guide}-pictures.stamp)
