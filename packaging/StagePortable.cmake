# The portable folder: the programs with Report/ and Help/, and in lib/ and plugins/ the libraries that a
# machine without the toolkit lacks. What every desktop has and what belongs to its drivers and printers stays
# the machine's.

set(folder ${CMAKE_INSTALL_PREFIX})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${CPACK_VARNIK_BUILD} --prefix ${folder}
                OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
file(INSTALL ${CPACK_VARNIK_SOURCE}/src/ui/icons/logo.svg DESTINATION ${folder} RENAME varnik.svg)
file(INSTALL ${CPACK_VARNIK_SOURCE}/packaging/README.txt DESTINATION ${folder})

execute_process(COMMAND ${CPACK_VARNIK_QMAKE} -query QT_INSTALL_PLUGINS
                OUTPUT_VARIABLE from OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
set(plugins platforms/libqxcb.so platforms/libqoffscreen.so platforms/libqwayland-generic.so
            wayland-shell-integration/libxdg-shell.so imageformats/libqsvg.so iconengines/libqsvgicon.so
            platforminputcontexts/libcomposeplatforminputcontextplugin.so
            printsupport/libcupsprintersupport.so xcbglintegrations/libqxcb-glx-integration.so)
set(present)
foreach(plugin ${plugins})
  if(EXISTS ${from}/${plugin})
    cmake_path(GET plugin PARENT_PATH kind)
    file(INSTALL ${from}/${plugin} DESTINATION ${folder}/plugins/${kind})
    list(APPEND present ${from}/${plugin})
  endif()
endforeach()
file(WRITE ${folder}/qt.conf "[Paths]\nPlugins = plugins\n")

file(GET_RUNTIME_DEPENDENCIES
     EXECUTABLES ${folder}/varnik ${folder}/varnik-console MODULES ${present}
     RESOLVED_DEPENDENCIES_VAR libraries UNRESOLVED_DEPENDENCIES_VAR missing
     PRE_EXCLUDE_REGEXES "^ld-linux" "^lib(c|m|dl|rt|pthread|resolv)\\.so" "^lib(GL|GLX|EGL|GLdispatch)\\.so"
                         "^libX11(-xcb)?\\.so" "^libxcb\\.so" "^libX(au|dmcp)\\.so" "^lib(fontconfig|freetype|expat|z)\\.so"
                         "^libdrm" "^libgbm" "^libcups")
if(missing)
  message(FATAL_ERROR "The portable folder lacks ${missing}")
endif()
foreach(library ${libraries})
  file(INSTALL ${library} DESTINATION ${folder}/lib FOLLOW_SYMLINK_CHAIN)
endforeach()

# They find each other in lib/, from wherever they stand.
file(GLOB_RECURSE inside LIST_DIRECTORIES false ${folder}/lib/* ${folder}/plugins/*)
foreach(file varnik varnik-console)
  execute_process(COMMAND patchelf --set-rpath "$ORIGIN/lib" ${folder}/${file} COMMAND_ERROR_IS_FATAL ANY)
endforeach()
foreach(file ${inside})
  if(NOT IS_SYMLINK ${file})
    cmake_path(GET file PARENT_PATH place)
    file(RELATIVE_PATH up ${place} ${folder}/lib)
    execute_process(COMMAND patchelf --set-rpath "$ORIGIN/${up}" ${file} COMMAND_ERROR_IS_FATAL ANY)
  endif()
endforeach()
