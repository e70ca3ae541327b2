# kov_layer(NAME [DEPENDS LAYER...]): the library of src/NAME, which may include and call itself and what
# it depends on. A room inside another layer is a layer of its own: lattice/qt is src/lattice/qt, and its
# library kov_lattice_qt. tests/architecture reads these rows: it compares the includes with them and links
# every layer alone.
function(kov_layer name)
  cmake_parse_arguments(LAYER "" "" "DEPENDS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${name}/*.cpp)
  kov_library_names(library ${name})
  kov_library_names(below ${LAYER_DEPENDS})
  set_property(GLOBAL APPEND PROPERTY KOV_LAYERS ${name})
  if(sources)
    add_library(${library} STATIC ${sources})
    target_link_libraries(${library} PUBLIC ${below} kov_flags)
  else()
    add_library(${library} INTERFACE)
    target_link_libraries(${library} INTERFACE ${below} kov_flags)
  endif()
endfunction()

# kov_layer_uses_qt(NAME MODULE...): the layer stands on these modules of Qt, too, and may declare classes
# with signals.
function(kov_layer_uses_qt name)
  kov_library_names(library ${name})
  list(TRANSFORM ARGN PREPEND Qt6:: OUTPUT_VARIABLE modules)
  get_target_property(type ${library} TYPE)
  if(type STREQUAL "INTERFACE_LIBRARY")
    target_link_libraries(${library} INTERFACE ${modules})
  else()
    # Only the headers of the folder itself may need a moc file.
    file(GLOB headers CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${name}/*.h)
    target_sources(${library} PRIVATE ${headers})
    target_link_libraries(${library} PUBLIC ${modules})
    set_target_properties(${library} PROPERTIES AUTOMOC ON)
  endif()
endfunction()

# kov_library_names(VARIABLE LAYER...): the libraries of these layers.
function(kov_library_names variable)
  list(TRANSFORM ARGN REPLACE "/" "_")
  list(TRANSFORM ARGN PREPEND kov_ OUTPUT_VARIABLE names)
  set(${variable} ${names} PARENT_SCOPE)
endfunction()
