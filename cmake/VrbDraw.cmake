# SPDX-License-Identifier: Apache-2.0
# Drawings that scripts make.
#
# A set (a folder of assets/ with scripts) is drawn into the build folder while configuring, since only then it is known which
# pictures there are. A script that changes makes the build configure again; a drawing that comes out as it was is not touched,
# so only what changed is rendered, and a second build does nothing.
find_package(Python3 REQUIRED COMPONENTS Interpreter)

# `folder` becomes the folder that holds the set.
function(vrb_draw set folder)
  set(assets ${PROJECT_SOURCE_DIR}/assets)
  set(drawn ${CMAKE_CURRENT_BINARY_DIR}/drawings/${set})
  file(GLOB scripts CONFIGURE_DEPENDS ${assets}/draw.py ${assets}/kit/*.py ${assets}/${set}/*.py)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${scripts})
  execute_process(COMMAND ${Python3_EXECUTABLE} -B ${assets}/draw.py ${set} ${drawn} COMMAND_ERROR_IS_FATAL ANY)
  set(${folder} ${drawn} PARENT_SCOPE)
endfunction()
