# SPDX-License-Identifier: Apache-2.0
# Windows finds the libraries of a program that runs while building through PATH alone.
if(CMAKE_HOST_WIN32 AND NOT CMAKE_CROSSCOMPILING)
  set(vrb_with_qt ${CMAKE_COMMAND} -E env --modify PATH=path_list_prepend:$<TARGET_FILE_DIR:Qt6::Core> --)
endif()

# Pictures: every drawing of a set, by hand or by script, is rendered when building, at 1x, 2x and 3x, and goes into the resources
# of a library as :/images/<drawing>-<number>[@2x|@3x].argb.
function(vrb_images target set)
  set(plain "")
  set(packed "")
  vrb_draw(${set} drawn)
  file(GLOB by_script ${drawn}/*.svg)
  file(GLOB by_hand CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/assets/${set}/*.svg)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${by_hand})
  foreach(drawing IN LISTS by_hand by_script)
    # The number of pictures stands in the drawing itself.
    file(STRINGS ${drawing} marks REGEX "id=\"image-[0-9]+\"")
    string(REGEX MATCHALL "id=\"image-[0-9]+\"" images "${marks}")
    list(LENGTH images count)
    get_filename_component(name ${drawing} NAME_WE)
    set(made "")
    foreach(number RANGE 1 ${count})
      set(picture ${CMAKE_CURRENT_BINARY_DIR}/images/${name}-${number})
      list(APPEND plain ${picture}.argb)
      list(APPEND packed ${picture}@2x.argb ${picture}@3x.argb)
      list(APPEND made ${picture}.argb ${picture}@2x.argb ${picture}@3x.argb)
    endforeach()
    add_custom_command(
      OUTPUT ${made}
      COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_CURRENT_BINARY_DIR}/images
      COMMAND ${vrb_with_qt} $<TARGET_FILE:renderImages> ${drawing} ${CMAKE_CURRENT_BINARY_DIR}/images
      DEPENDS ${drawing} renderImages
      COMMENT "Rendering ${name}"
      VERBATIM)
  endforeach()
  if(EMSCRIPTEN)
    foreach(scale IN ITEMS 1 2 3)
      string(REPLACE ".argb" "@${scale}x.argb" pictures "${plain}")
      string(REPLACE "@1x" "" pictures "${pictures}")
      set(charts ${pictures})
      list(FILTER charts INCLUDE REGEX "/ilsOsiro-")
      list(FILTER pictures EXCLUDE REGEX "/ilsOsiro-")
      vrb_image_file(pictures${scale} ${pictures})
      vrb_image_file(charts${scale} ${charts})
    endforeach()
    return()
  endif()
  # Those of the usual size are painted from where they lie: unpacking them would be a tenth of the start.
  set(where PREFIX "/images" BASE ${CMAKE_CURRENT_BINARY_DIR}/images)
  qt_add_resources(${target} "images" ${where} FILES ${plain} OPTIONS --no-compress)
  qt_add_resources(${target} "images_high_resolution" ${where} FILES ${packed})
endfunction()

# A page begins with the file of the pictures of one scale. The charts, a third of them, and other scales come when they are wanted.
function(vrb_image_file name)
  set(list ${CMAKE_CURRENT_BINARY_DIR}/${name}.qrc)
  set(entries "")
  foreach(picture IN LISTS ARGN)
    get_filename_component(alias ${picture} NAME)
    string(APPEND entries "<file alias=\"${alias}\">${picture}</file>\n")
  endforeach()
  file(CONFIGURE OUTPUT ${list} CONTENT "<RCC><qresource prefix=\"/images\">\n${entries}</qresource></RCC>\n" @ONLY)
  set(file ${CMAKE_BINARY_DIR}/bin/${name}.rcc)
  add_custom_command(
    OUTPUT ${file}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/bin
    COMMAND Qt6::rcc --binary --compress-algo zlib --compress 9 -o ${file} ${list}
    DEPENDS ${list} ${ARGN}
    VERBATIM)
  set_property(GLOBAL APPEND PROPERTY vrb_beside ${file})
endfunction()

# The program's own icon, from the one drawing: square pictures of the usual sizes, and the containers that Windows and macOS
# want. They lie in icons/; those that a window may show go into the resources of a library as :/icons/appIcon-<size>.argb.
set(vrb_icon_sizes 16 22 24 32 48 64 128 256 512)
function(vrb_icons target drawing)
  set(folder ${CMAKE_CURRENT_BINARY_DIR}/icons)
  set(made ${folder}/appIcon.ico ${folder}/appIcon.icns)
  set(shown "")
  foreach(size IN LISTS vrb_icon_sizes)
    list(APPEND made ${folder}/appIcon-${size}.png ${folder}/appIcon-${size}.argb)
    if(size LESS_EQUAL 128)
      list(APPEND shown ${folder}/appIcon-${size}.argb)
    endif()
  endforeach()
  add_custom_command(
    OUTPUT ${made}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}
    COMMAND ${vrb_with_qt} $<TARGET_FILE:renderImages> ${drawing} ${folder} ${vrb_icon_sizes}
    DEPENDS ${drawing} renderImages
    COMMENT "Rendering the icons"
    VERBATIM)
  qt_add_resources(${target} "icons" PREFIX "/icons" BASE ${folder} FILES ${shown} OPTIONS --no-compress)
  add_custom_target(icons DEPENDS ${made})
  # Two targets want the same files: make lets only one of them render.
  add_dependencies(${target} icons)
endfunction()

# Qt's own words in Japanese, as :/translations/qtbase_ja.qm. Those of the machine that builds serve every platform.
function(vrb_translation target)
  find_file(VRB_QT_JAPANESE qtbase_ja.qm PATHS "${QT6_INSTALL_PREFIX}/${QT6_INSTALL_TRANSLATIONS}" /usr/share/qt6/translations
    NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
  if(VRB_QT_JAPANESE)
    get_filename_component(folder ${VRB_QT_JAPANESE} DIRECTORY)
    qt_add_resources(${target} "translations" PREFIX "/translations" BASE ${folder} FILES ${VRB_QT_JAPANESE})
  else()
    message(STATUS "Qt's Japanese texts are not installed: its own menus and buttons speak English")
  endif()
endfunction()
