# A layer is a folder, a static library and an include root that shows this folder alone. A source
# sees the roots of the layers that its own one links to, so an include from a higher layer does not
# compile.
function(zepha_layer name)
  file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${name}/*.cpp)
  set(root ${PROJECT_BINARY_DIR}/include/${name})
  file(MAKE_DIRECTORY ${root})
  file(CREATE_LINK ${PROJECT_SOURCE_DIR}/${name} ${root}/${name} SYMBOLIC)
  add_library(zepha_${name} STATIC ${sources})
  add_library(zepha::${name} ALIAS zepha_${name})
  target_include_directories(zepha_${name} PUBLIC ${root})
  foreach(lower IN LISTS ARGN)
    target_link_libraries(zepha_${name} PUBLIC zepha::${lower})
  endforeach()
endfunction()
