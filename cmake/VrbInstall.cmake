# SPDX-License-Identifier: Apache-2.0
# Installing and packing.
#
# The program looks for its files beside its own executable, and a link to it counts as the executable itself. So an installed
# program has a folder of its own:
#
#     Linux      lib/vrb-ts/  the program and its files, a link to it in bin/, and what a desktop wants in share/
#     Windows    one folder; bin/ where Qt's libraries go along (VrbWindows.cmake)
#     macOS      vrb-ts.app, its files in Contents/Resources, with Qt's libraries
#
# The component "portable" is the program with its files in one folder, and nothing else; it is only made when asked for:
# cmake --install BUILD --component portable --prefix FOLDER.

include(GNUInstallDirs)
# No address: there is none that anybody reads.
set(maintainer "VRB-TS maintainers")

# The folders of texts and pictures are built into bin/ and installed whole.
set(vrb_folders NaviData HintData Kairozu)
if(VRB_SHIP_FONTS)
  list(APPEND vrb_folders fonts)
endif()

# FOLDER, and after it what each rule is to have.
function(vrb_install_beside folder)
  install(FILES ${PROJECT_SOURCE_DIR}/assets/VRB_TS2.INI ${CMAKE_BINARY_DIR}/bin/BEEP.WAV DESTINATION ${folder} ${ARGN})
  foreach(name IN LISTS vrb_folders)
    install(DIRECTORY ${CMAKE_BINARY_DIR}/bin/${name} DESTINATION ${folder} OPTIONAL ${ARGN})
  endforeach()
endfunction()

# A Qt from outside the system is found again by an installed program.
set_target_properties(vrb-ts PROPERTIES INSTALL_RPATH_USE_LINK_PATH ON)

# Qt's own libraries and plugins go along. 6.5 gave the parameter its present name.
function(vrb_install_qt)
  if(Qt6_VERSION VERSION_LESS 6.5)
    qt_generate_deploy_app_script(TARGET vrb-ts FILENAME_VARIABLE deploy NO_UNSUPPORTED_PLATFORM_ERROR)
  else()
    qt_generate_deploy_app_script(TARGET vrb-ts OUTPUT_SCRIPT deploy NO_UNSUPPORTED_PLATFORM_ERROR)
  endif()
  install(SCRIPT ${deploy})
endfunction()

if(EMSCRIPTEN)
  include(cmake/VrbBrowser.cmake)
elseif(UNIX AND NOT APPLE)
  set(folder lib/vrb-ts)
  set(data ${CMAKE_INSTALL_DATADIR})
  install(TARGETS vrb-ts RUNTIME DESTINATION ${folder})
  vrb_install_beside(${folder})
  # A relative link, right wherever the tree goes.
  file(RELATIVE_PATH program /prefix/${CMAKE_INSTALL_BINDIR} /prefix/${folder}/vrb-ts)
  install(CODE "
    set(bin \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}\")
    file(MAKE_DIRECTORY \"\${bin}\")
    file(CREATE_LINK ${program} \"\${bin}/vrb-ts\" SYMBOLIC)
    message(STATUS \"Installing: \${bin}/vrb-ts\")")

  # What the desktop wants. The date is that of SOURCE_DATE_EPOCH, if it is set.
  set(made ${CMAKE_CURRENT_BINARY_DIR}/packaging)
  string(TIMESTAMP release_day "%Y-%m-%d" UTC)
  string(TIMESTAMP release_date "%a, %d %b %Y %H:%M:%S +0000" UTC)
  foreach(file IN ITEMS vrb-ts.metainfo.xml vrb-ts.1 vrb-ts.ja.1 changelog copyright)
    configure_file(packaging/${file}.in ${made}/${file} @ONLY)
  endforeach()
  install(FILES packaging/vrb-ts.desktop DESTINATION ${data}/applications)
  install(FILES ${made}/vrb-ts.metainfo.xml DESTINATION ${data}/metainfo)
  foreach(size IN LISTS vrb_icon_sizes)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/icons/appIcon-${size}.png RENAME vrb-ts.png
            DESTINATION ${data}/icons/hicolor/${size}x${size}/apps)
  endforeach()
  install(FILES assets/drawings/appIcon.svg RENAME vrb-ts.svg DESTINATION ${data}/icons/hicolor/scalable/apps)
  install(FILES ${made}/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR})
  install(FILES packaging/lintian-overrides RENAME vrb-ts DESTINATION ${data}/lintian/overrides)

  # Manuals and changes are packed; -n keeps the time of packing out.
  find_program(GZIP_PROGRAM gzip REQUIRED)
  function(vrb_install_packed source folder name)
    set(packed ${made}/${name}.packed/${name}.gz)
    add_custom_command(
      OUTPUT ${packed}
      COMMAND ${CMAKE_COMMAND} -E make_directory ${made}/${name}.packed
      COMMAND ${GZIP_PROGRAM} -9nc ${source} > ${packed}
      DEPENDS ${source})
    set_property(GLOBAL APPEND PROPERTY vrb_packed ${packed})
    install(FILES ${packed} DESTINATION ${folder} ${ARGN})
  endfunction()
  vrb_install_packed(${made}/vrb-ts.1 ${CMAKE_INSTALL_MANDIR}/man1 vrb-ts.1)
  vrb_install_packed(${made}/vrb-ts.ja.1 ${CMAKE_INSTALL_MANDIR}/ja/man1 vrb-ts.ja.1 RENAME vrb-ts.1.gz)
  vrb_install_packed(${PROJECT_SOURCE_DIR}/CHANGELOG.md ${CMAKE_INSTALL_DOCDIR} changelog)
  vrb_install_packed(${made}/changelog ${CMAKE_INSTALL_DOCDIR} changelog.Debian)
  get_property(packed GLOBAL PROPERTY vrb_packed)
  add_custom_target(packed ALL DEPENDS ${packed})

  set(portable COMPONENT portable EXCLUDE_FROM_ALL)
  install(TARGETS vrb-ts RUNTIME DESTINATION . ${portable})
  vrb_install_beside(. ${portable})
  install(FILES LICENSE README.md README.ja.md CHANGELOG.md DESTINATION . ${portable})
elseif(APPLE)
  install(TARGETS vrb-ts BUNDLE DESTINATION .)
  vrb_install_beside(vrb-ts.app/Contents/Resources)
  target_sources(vrb-ts PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/icons/appIcon.icns)
  set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/icons/appIcon.icns PROPERTIES MACOSX_PACKAGE_LOCATION Resources)
  set_target_properties(vrb-ts PROPERTIES MACOSX_BUNDLE_BUNDLE_NAME VRB-TS MACOSX_BUNDLE_ICON_FILE appIcon.icns
                        MACOSX_BUNDLE_BUNDLE_VERSION ${PROJECT_VERSION} MACOSX_BUNDLE_SHORT_VERSION_STRING ${PROJECT_VERSION})
  install(FILES LICENSE DESTINATION .)
  vrb_install_qt()
elseif(WIN32)
  include(cmake/VrbWindows.cmake)
endif()

# --- packages: cpack -G DEB and cpack -G TGZ, which ./package calls --------------------------------------------------------
set(CPACK_PACKAGE_NAME vrb-ts)
set(CPACK_PACKAGE_VENDOR "VRB-TS maintainers")
set(CPACK_PACKAGE_CONTACT "${maintainer}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "training simulator of a small fieldbus")
set(CPACK_PACKAGE_DESCRIPTION "On a bench on the screen stand a center board, whose chip
scans up to 63 stations over a cable, and satellite boards with switches, LEDs,
counters, a lamp and a motor. The learner wires and switches them, writes the
chip's registers and memory as the host CPU, and watches what the bus does:
scan, status, failures and interrupts.
.
The interface is Japanese.")
set(CPACK_PACKAGE_FILE_NAME vrb-ts-${PROJECT_VERSION}-${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR})
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
# What is installed but for no component makes the .deb; the archives have the portable folder.
set(CPACK_PROJECT_CONFIG_FILE ${PROJECT_SOURCE_DIR}/cmake/PackByKind.cmake)
if(WIN32)
  vrb_pack_windows()
endif()

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION education)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Fonts are no libraries: one with Japanese, and one for the digits of the memory windows.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-ipafont-gothic | fonts-noto-cjk, fonts-dejavu-core")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
