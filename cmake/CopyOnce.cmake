# SPDX-License-Identifier: Apache-2.0
# Copies FROM to TO unless something lies there already.
if(NOT EXISTS ${TO})
  configure_file(${FROM} ${TO} COPYONLY)
endif()
