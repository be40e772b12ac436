# SPDX-License-Identifier: Apache-2.0
# Installing and packing for Windows: what the file's properties show, the licences of all that is linked in, the installer.
get_target_property(kind Qt6::Core TYPE)
if(kind STREQUAL "STATIC_LIBRARY")
  set(folder .)
else()
  set(folder bin)
  vrb_install_qt()
endif()
install(TARGETS vrb-ts RUNTIME DESTINATION ${folder})
vrb_install_beside(${folder})
install(FILES LICENSE README.md README.ja.md CHANGELOG.md DESTINATION .)

set(made ${CMAKE_CURRENT_BINARY_DIR}/packaging)
set(manifest ${PROJECT_SOURCE_DIR}/packaging/windows/vrb-ts.manifest)
if(MSVC)
  target_sources(vrb-ts PRIVATE ${manifest})
else()
  set(vrb_manifest_line "1 24 \"${manifest}\"")
endif()
configure_file(packaging/windows/vrb-ts.rc.in ${made}/vrb-ts.rc @ONLY)
target_sources(vrb-ts PRIVATE ${made}/vrb-ts.rc)
set_source_files_properties(${made}/vrb-ts.rc PROPERTIES OBJECT_DEPENDS
                            "${CMAKE_CURRENT_BINARY_DIR}/icons/appIcon.ico;${manifest}")

# Debian's copyright files name everybody whose work is in its sources, with the licences.
if(CMAKE_CROSSCOMPILING)
  foreach(pair IN ITEMS
      Qt=doc/qt6-base-dev/copyright mingw-w64=doc/mingw-w64-common/copyright gcc=doc/gcc-mingw-w64-base/copyright
      IPA-fonts=doc/fonts-ipafont-gothic/copyright DejaVu-fonts=doc/fonts-dejavu-core/copyright
      LGPL-3=common-licenses/LGPL-3 GPL-3=common-licenses/GPL-3)
    string(REGEX MATCH "^([^=]*)=(.*)$" unused ${pair})
    install(FILES /usr/share/${CMAKE_MATCH_2} DESTINATION licences RENAME ${CMAKE_MATCH_1}.txt)
  endforeach()
  execute_process(COMMAND dpkg-query -W -f=\${source:Version} qt6-base-dev OUTPUT_VARIABLE vrb_qt_source)
  configure_file(packaging/windows/licences.txt.in ${made}/licences.txt @ONLY)
  install(FILES ${made}/licences.txt DESTINATION licences RENAME README.txt)
  install(FILES cmake/cross/windows.qt cmake/cross/windows.cmake DESTINATION licences)
endif()

# A macro: what it sets is for cpack.
macro(vrb_pack_windows)
  set(CPACK_PACKAGE_FILE_NAME vrb-ts-${PROJECT_VERSION}-win64)
  set(CPACK_NSIS_DISPLAY_NAME VRB-TS)
  set(CPACK_PACKAGE_INSTALL_DIRECTORY VRB-TS)
  set(CPACK_PACKAGE_INSTALL_REGISTRY_KEY VRB-TS)
  set(CPACK_NSIS_UNINSTALL_NAME Uninstall)  # config/settings.h knows it
  set(CPACK_NSIS_MUI_ICON ${CMAKE_CURRENT_BINARY_DIR}/icons/appIcon.ico)
  set(CPACK_MODULE_PATH ${PROJECT_SOURCE_DIR}/packaging/windows)
endmacro()
