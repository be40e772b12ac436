# SPDX-License-Identifier: Apache-2.0
# Programs that run while building and are no part of what is built. Building for another platform, they come from a build for
# this one: VRB_HOST_TOOLS is its folder.
if(CMAKE_CROSSCOMPILING AND NOT VRB_HOST_TOOLS)
  message(FATAL_ERROR "Building for another platform wants -DVRB_HOST_TOOLS=<the folder of a build for this one>")
endif()

# NAME is made of SOURCE, and of the libraries after it.
function(vrb_build_tool name source)
  if(VRB_HOST_TOOLS)
    cmake_path(ABSOLUTE_PATH VRB_HOST_TOOLS BASE_DIRECTORY ${PROJECT_SOURCE_DIR} OUTPUT_VARIABLE folder)
    add_executable(${name} IMPORTED)
    set_target_properties(${name} PROPERTIES IMPORTED_LOCATION ${folder}/${name})
  else()
    add_executable(${name} ${source})
    vrb_target(${name})
    target_link_libraries(${name} PRIVATE ${ARGN})
    set_property(GLOBAL APPEND PROPERTY vrb_build_tools ${name})
  endif()
endfunction()

# The target `tools` makes those of a build for this platform.
function(vrb_build_tools)
  get_property(tools GLOBAL PROPERTY vrb_build_tools)
  add_custom_target(tools DEPENDS ${tools})
endfunction()
