# Pictures: every drawing in a folder is rendered when building, at 1x, 2x and 3x, and goes into the resources of a library
# as :/images/<drawing>-<number>[@2x|@3x].png.
function(vrb_images target folder)
  set(pictures "")
  file(GLOB drawings CONFIGURE_DEPENDS ${folder}/*.svg)
  foreach(drawing IN LISTS drawings)
    # The number of pictures stands in the drawing itself.
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${drawing})
    file(STRINGS ${drawing} marks REGEX "id=\"image-[0-9]+\"")
    string(REGEX MATCHALL "id=\"image-[0-9]+\"" images "${marks}")
    list(LENGTH images count)
    get_filename_component(name ${drawing} NAME_WE)
    set(made "")
    foreach(number RANGE 1 ${count})
      foreach(suffix IN ITEMS "" "@2x" "@3x")
        list(APPEND made ${CMAKE_CURRENT_BINARY_DIR}/images/${name}-${number}${suffix}.png)
      endforeach()
    endforeach()
    add_custom_command(
      OUTPUT ${made}
      COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_CURRENT_BINARY_DIR}/images
      COMMAND renderImages ${drawing} ${CMAKE_CURRENT_BINARY_DIR}/images
      DEPENDS ${drawing} renderImages
      COMMENT "Rendering ${name}"
      VERBATIM)
    list(APPEND pictures ${made})
  endforeach()
  qt_add_resources(${target} "images" PREFIX "/images" BASE ${CMAKE_CURRENT_BINARY_DIR}/images FILES ${pictures})
endfunction()
