# One static library per layer of a folder, each listing its own sources. The layers run one way:
#   resources  <  document (settings/)  <  subsystems (tn5250/, capture/, download/, pages)  <  shell
# A library links only the layers below it, so an upward call fails to link; and before a library
# is compiled, cmake/check_layers.cmake reads its sources and fails the build when one of them
# includes a folder the library may not see, when a user-interface file (named *_page, *_dialog,
# *_window, *_widget, *_view or *_qt) sits in a core library, or a core file in a Qt one.
#
#   veltrix_layer(NAME [QT] SOURCES files... DEPENDS libraries... MAY_INCLUDE folders...)
#
# Core libraries are plain C++20: they never see Qt's headers. Qt libraries get AUTOMOC.
function(veltrix_layer name)
  cmake_parse_arguments(ARG "QT" "" "SOURCES;DEPENDS;MAY_INCLUDE" ${ARGN})
  list(TRANSFORM ARG_SOURCES PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
  add_library(${name} STATIC ${ARG_SOURCES})
  target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
  target_link_libraries(${name} PUBLIC ${ARG_DEPENDS})
  target_compile_options(${name} PRIVATE ${VELTRIX_WARNINGS})
  if(ARG_QT)
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    set(kind ui)
  else()
    set(kind core)
  endif()
  set(stamp ${CMAKE_CURRENT_BINARY_DIR}/${name}.layers)
  add_custom_command(
    OUTPUT ${stamp}
    COMMAND ${CMAKE_COMMAND} -DLIBRARY=${name} -DKIND=${kind} "-DMAY_INCLUDE=${ARG_MAY_INCLUDE}"
            "-DFILES=${ARG_SOURCES}" -DSTAMP=${stamp} -P ${CMAKE_SOURCE_DIR}/cmake/check_layers.cmake
    DEPENDS ${ARG_SOURCES} ${CMAKE_SOURCE_DIR}/cmake/check_layers.cmake
    COMMENT "Checking the includes of ${name}"
    VERBATIM)
  add_custom_target(${name}_layers DEPENDS ${stamp})
  add_dependencies(${name} ${name}_layers)
endfunction()
