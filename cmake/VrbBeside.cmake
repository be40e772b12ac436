# SPDX-License-Identifier: Apache-2.0
# What lies beside the program: the beep, the maker's settings, and the folders of the learning aids, which teachers may replace.

# A folder of pictures, drawn by a set of scripts, with the lists that the set may have. A name in small letters gets a suffix in
# small letters.
function(vrb_pictures folder set)
  vrb_draw(${set} drawn)
  set(beside ${CMAKE_BINARY_DIR}/bin/${folder})
  set(made "")
  file(GLOB drawings ${drawn}/*.svg)
  foreach(drawing IN LISTS drawings)
    get_filename_component(name ${drawing} NAME_WE)
    set(suffix .BMP)
    if(name MATCHES "[a-z]")
      set(suffix .bmp)
    endif()
    set(pictures ${beside}/${name}${suffix} ${beside}/${name}@2x.png)
    add_custom_command(
      OUTPUT ${pictures}
      COMMAND ${CMAKE_COMMAND} -E make_directory ${beside}
      COMMAND ${vrb_with_qt} $<TARGET_FILE:renderPicture> ${drawing} ${beside} ${name}${suffix}
      DEPENDS ${drawing} renderPicture
      COMMENT "Rendering ${name}"
      VERBATIM)
    list(APPEND made ${pictures})
  endforeach()
  file(GLOB lists ${drawn}/*.TXT)
  foreach(list IN LISTS lists)
    get_filename_component(name ${list} NAME)
    add_custom_command(
      OUTPUT ${beside}/${name}
      COMMAND ${CMAKE_COMMAND} -E copy ${list} ${beside}/${name}
      DEPENDS ${list}
      VERBATIM)
    list(APPEND made ${beside}/${name})
  endforeach()
  # What is no longer drawn goes.
  file(GLOB there ${beside}/*)
  list(REMOVE_ITEM there ${made})
  if(there)
    file(REMOVE ${there})
  endif()
  set_property(GLOBAL APPEND PROPERTY vrb_beside ${made})
endfunction()

# A folder of texts, as it is.
function(vrb_texts folder from)
  file(GLOB texts CONFIGURE_DEPENDS ${from}/*.txt)
  set(stamp ${CMAKE_CURRENT_BINARY_DIR}/${folder}.stamp)
  add_custom_command(
    OUTPUT ${stamp}
    COMMAND ${CMAKE_COMMAND} -E copy_directory ${from} ${CMAKE_BINARY_DIR}/bin/${folder}
    COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
    DEPENDS ${texts}
    VERBATIM)
  set_property(GLOBAL APPEND PROPERTY vrb_beside ${stamp})
endfunction()

# The target `beside` makes them all.
function(vrb_beside)
  get_property(made GLOBAL PROPERTY vrb_beside)
  set(beep ${PROJECT_SOURCE_DIR}/assets/sound/make_beep.py)
  set(bin ${CMAKE_BINARY_DIR}/bin)
  add_custom_command(
    OUTPUT ${bin}/BEEP.WAV
    COMMAND ${CMAKE_COMMAND} -E make_directory ${bin}
    COMMAND ${Python3_EXECUTABLE} -B ${beep} ${bin}/BEEP.WAV
    DEPENDS ${beep}
    VERBATIM)
  # The maker's settings come once: a file that a learner saved stays, so it depends on nothing.
  add_custom_command(
    OUTPUT ${bin}/VRB_TS2.INI
    COMMAND ${CMAKE_COMMAND} -DFROM=${PROJECT_SOURCE_DIR}/assets/VRB_TS2.INI -DTO=${bin}/VRB_TS2.INI
            -P ${PROJECT_SOURCE_DIR}/cmake/CopyOnce.cmake
    VERBATIM)
  add_custom_target(beside ALL DEPENDS ${bin}/BEEP.WAV ${bin}/VRB_TS2.INI ${made})
endfunction()
