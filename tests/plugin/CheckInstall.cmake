# Installs the plug-in library's components into a fresh prefix, checks that a
# host finds the plug-in and the headers it compiles against, and loads the
# installed plug-in with a host process.
#
#   cmake -DBUILD_DIR=... -DPREFIX=... -DLIBDIR=... -DINCLUDEDIR=... -DBARE_HOST=...
#         -P CheckInstall.cmake
foreach(var BUILD_DIR PREFIX LIBDIR INCLUDEDIR BARE_HOST)
  if(NOT DEFINED ${var})
    message(FATAL_ERROR "${var} is not set")
  endif()
endforeach()

file(REMOVE_RECURSE ${PREFIX})
foreach(component plugin devel)
  execute_process(
    COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${PREFIX} --component ${component}
    RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE out)
  if(NOT rc EQUAL 0)
    message(FATAL_ERROR "installing ${component} failed:\n${out}")
  endif()
endforeach()

set(plugin ${PREFIX}/${LIBDIR}/ZPanoHead/plugins/libZPanoHead.so)
set(expected ${plugin})
foreach(header ZIAbout.h ZIApplication.h ZIImageDef.h ZIPluginImport.h ZIPluginLibrary.h
               ZUIInstances.h AuthorizedLink.h LensModel.h ShootData.h
               StructuredPanoramaProperties.h)
  list(APPEND expected ${PREFIX}/${INCLUDEDIR}/ZPanoHead/${header})
endforeach()
foreach(file ${expected})
  if(NOT EXISTS ${file})
    message(FATAL_ERROR "not installed: ${file}")
  endif()
endforeach()

execute_process(COMMAND ${BARE_HOST} ${plugin}
  RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
if(NOT rc EQUAL 0 OR NOT out MATCHES "ZVRDrive2Import pages=1" OR NOT out MATCHES "unloaded")
  message(FATAL_ERROR "the installed plug-in does not load (${rc}):\n${out}\n${err}")
endif()
file(REMOVE_RECURSE ${PREFIX})
message(STATUS "installed and loaded: ${plugin}")
