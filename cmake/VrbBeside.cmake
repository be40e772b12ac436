# What lies beside the program: the beep, the maker's settings, and the folders of the learning aids, which teachers may replace.
find_package(Python3 REQUIRED COMPONENTS Interpreter)

# A folder of pictures, drawn by a script.
function(vrb_pictures folder script)
  get_filename_component(home ${script} DIRECTORY)
  file(GLOB sources CONFIGURE_DEPENDS ${home}/*.py)
  set(stamp ${CMAKE_CURRENT_BINARY_DIR}/${folder}.stamp)
  add_custom_command(
    OUTPUT ${stamp}
    COMMAND ${CMAKE_COMMAND} -DPYTHON=${Python3_EXECUTABLE} -DSCRIPT=${script} -DRENDERER=$<TARGET_FILE:renderPicture>
            -DDRAWINGS=${CMAKE_CURRENT_BINARY_DIR}/drawings/${folder} -DFOLDER=${CMAKE_BINARY_DIR}/bin/${folder}
            -P ${PROJECT_SOURCE_DIR}/cmake/RenderFolder.cmake
    COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
    DEPENDS ${sources} renderPicture ${PROJECT_SOURCE_DIR}/cmake/RenderFolder.cmake
    COMMENT "Drawing ${folder}"
    VERBATIM)
  set_property(GLOBAL APPEND PROPERTY vrb_beside ${stamp})
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
  get_property(stamps GLOBAL PROPERTY vrb_beside)
  add_custom_command(
    OUTPUT ${CMAKE_BINARY_DIR}/bin/BEEP.WAV
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/bin
    COMMAND $<TARGET_FILE:makeBeep> ${CMAKE_BINARY_DIR}/bin/BEEP.WAV
    DEPENDS makeBeep
    VERBATIM)
  add_custom_target(beside ALL
    # The maker's settings come once: a file that a learner saved stays.
    COMMAND ${CMAKE_COMMAND} -DFROM=${PROJECT_SOURCE_DIR}/assets/VRB_TS2.INI -DTO=${CMAKE_BINARY_DIR}/bin/VRB_TS2.INI
            -P ${PROJECT_SOURCE_DIR}/cmake/CopyOnce.cmake
    DEPENDS ${CMAKE_BINARY_DIR}/bin/BEEP.WAV ${stamps}
    VERBATIM)
endfunction()
