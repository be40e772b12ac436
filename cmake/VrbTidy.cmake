# SPDX-License-Identifier: Apache-2.0
# The target "tidy": every source of ours through clang-tidy, one stamp per source, so that only what changed is read again.
function(vrb_tidy)
  find_program(CLANG_TIDY clang-tidy REQUIRED)
  set(stamps "")
  foreach(target IN LISTS ARGN)
    get_target_property(sources ${target} SOURCES)
    foreach(source IN LISTS sources)
      if(NOT source MATCHES "\\.cpp$" OR source MATCHES "^/")
        continue()
      endif()
      string(REPLACE "/" "_" stamp ${source})
      set(stamp ${CMAKE_CURRENT_BINARY_DIR}/tidy/${stamp}.stamp)
      file(GLOB_RECURSE headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/core/*.h ${PROJECT_SOURCE_DIR}/access/*.h
           ${PROJECT_SOURCE_DIR}/boards/*.h ${PROJECT_SOURCE_DIR}/config/*.h ${PROJECT_SOURCE_DIR}/aids/*.h
           ${PROJECT_SOURCE_DIR}/memwin/*.h ${PROJECT_SOURCE_DIR}/platform/*.h ${PROJECT_SOURCE_DIR}/program/*.h)
      add_custom_command(
        OUTPUT ${stamp}
        COMMAND ${CLANG_TIDY} --quiet --extra-arg=-Wno-unknown-warning-option -p ${CMAKE_BINARY_DIR} ${PROJECT_SOURCE_DIR}/${source}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_CURRENT_BINARY_DIR}/tidy
        COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
        DEPENDS ${source} ${headers} ${PROJECT_SOURCE_DIR}/.clang-tidy
        COMMENT "clang-tidy ${source}"
        VERBATIM)
      list(APPEND stamps ${stamp})
    endforeach()
  endforeach()
  add_custom_target(tidy DEPENDS ${stamps})
  # The sources include what the build makes.
  add_dependencies(tidy vrb_platform_autogen vrb_views_autogen)
endfunction()
