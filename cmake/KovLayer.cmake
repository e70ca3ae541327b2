# kov_layer(NAME [DEPENDS LAYER...]): the library of src/NAME, which may include and call itself and what
# it depends on. tests/architecture reads these rows: it compares the includes with them and links every
# layer alone.
function(kov_layer name)
  cmake_parse_arguments(LAYER "" "" "DEPENDS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${name}/*.cpp)
  list(TRANSFORM LAYER_DEPENDS PREPEND kov_)
  set_property(GLOBAL APPEND PROPERTY KOV_LAYERS ${name})
  if(sources)
    add_library(kov_${name} STATIC ${sources})
    target_link_libraries(kov_${name} PUBLIC ${LAYER_DEPENDS} kov_flags)
  else()
    add_library(kov_${name} INTERFACE)
    target_link_libraries(kov_${name} INTERFACE ${LAYER_DEPENDS} kov_flags)
  endif()
endfunction()
