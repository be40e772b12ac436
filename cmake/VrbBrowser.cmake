# SPDX-License-Identifier: Apache-2.0
# The program as a module that a page loads: bin/vrb-ts.js and bin/vrb-ts.wasm. What lies beside it is given to the page by
# packaging/web/pack.
target_link_options(vrb-ts PRIVATE
  "SHELL:-s EXPORTED_RUNTIME_METHODS=UTF16ToString,stringToUTF16,FS,ccall,callMain"
  "SHELL:-s INITIAL_MEMORY=64MB"
  "SHELL:-s INVOKE_RUN=0"
  "SHELL:-s ENVIRONMENT=web"
  -Os)

# Debian's copyright files name everybody whose work is in its sources, with the licences.
set(licences ${CMAKE_CURRENT_BINARY_DIR}/packaging/licences)
foreach(pair IN ITEMS
    Qt=doc/qt6-base-dev/copyright emscripten=doc/emscripten/copyright IPA-fonts=doc/fonts-ipafont-gothic/copyright
    DejaVu-fonts=doc/fonts-dejavu-core/copyright LGPL-3=common-licenses/LGPL-3 GPL-3=common-licenses/GPL-3)
  string(REGEX MATCH "^([^=]*)=(.*)$" unused ${pair})
  configure_file(/usr/share/${CMAKE_MATCH_2} ${licences}/${CMAKE_MATCH_1}.txt COPYONLY)
endforeach()
configure_file(LICENSE ${licences}/LICENSE.txt COPYONLY)
foreach(recipe IN ITEMS browser.qt browser.cmake browser.patch)
  configure_file(cmake/cross/${recipe} ${licences}/${recipe} COPYONLY)
endforeach()
execute_process(COMMAND dpkg-query -W -f=\${source:Version} qt6-base-dev OUTPUT_VARIABLE vrb_qt_source)
configure_file(packaging/web/licences.txt.in ${licences}/README.txt @ONLY)
