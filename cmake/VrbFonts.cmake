# SPDX-License-Identifier: Apache-2.0
# The fonts that the program uses, shipped in the folder `fonts` beside it where no package manager brings them: the windows then
# look the same on every machine, and Japanese always shows.
if(WIN32 OR EMSCRIPTEN)
  set(VRB_SHIP_FONTS_DEFAULT ON)
else()
  set(VRB_SHIP_FONTS_DEFAULT OFF)
endif()
option(VRB_SHIP_FONTS "Put the fonts beside the program" ${VRB_SHIP_FONTS_DEFAULT})

set(vrb_font_files ipag.ttf ipagp.ttf DejaVuSans.ttf DejaVuSans-Bold.ttf DejaVuSansCondensed.ttf DejaVuSansCondensed-Bold.ttf
    DejaVuSansMono.ttf DejaVuSansMono-Bold.ttf)
set(vrb_font_folders /usr/share/fonts/opentype/ipafont-gothic /usr/share/fonts/truetype/dejavu)

function(vrb_fonts)
  if(NOT VRB_SHIP_FONTS)
    return()
  endif()
  set(fonts "")
  foreach(name IN LISTS vrb_font_files)
    find_file(VRB_FONT_${name} ${name} PATHS ${vrb_font_folders} REQUIRED NO_CMAKE_FIND_ROOT_PATH)
    list(APPEND fonts ${VRB_FONT_${name}})
  endforeach()
  set(stamp ${CMAKE_CURRENT_BINARY_DIR}/fonts.stamp)
  if(EMSCRIPTEN)
    # A page takes no more of them than it shows.
    find_program(VRB_DEBIAN_PYTHON python3 PATHS /usr/bin NO_DEFAULT_PATH REQUIRED)  # fonttools are a package of it
    set(script ${PROJECT_SOURCE_DIR}/assets/fonts/subset_fonts.py)
    file(GLOB texts CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/assets/NaviData/*.txt ${PROJECT_SOURCE_DIR}/*/*.cpp
         ${PROJECT_SOURCE_DIR}/*/views/*.cpp ${PROJECT_SOURCE_DIR}/*/*.h ${PROJECT_SOURCE_DIR}/*/views/*.h)
    add_custom_command(
      OUTPUT ${stamp}
      COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/bin/fonts
      COMMAND ${VRB_DEBIAN_PYTHON} -B ${script} ${CMAKE_BINARY_DIR}/bin/fonts --fonts ${fonts} --texts ${texts}
      COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
      DEPENDS ${script} ${fonts} ${texts}
      VERBATIM)
    set_property(GLOBAL APPEND PROPERTY vrb_beside ${stamp})
    return()
  endif()
  add_custom_command(
    OUTPUT ${stamp}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/bin/fonts
    COMMAND ${CMAKE_COMMAND} -E copy_if_different ${fonts} ${CMAKE_BINARY_DIR}/bin/fonts
    COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
    DEPENDS ${fonts}
    VERBATIM)
  set_property(GLOBAL APPEND PROPERTY vrb_beside ${stamp})
endfunction()
