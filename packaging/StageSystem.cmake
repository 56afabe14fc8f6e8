# The .deb: the program's folder in lib/varnik, the programs in the path, and what a desktop shows of it.

# cpack names the stage by DESTDIR here, which only some commands heed: paths below are whole.
set(usr $ENV{DESTDIR}/usr)
if(usr STREQUAL "/usr")
  message(FATAL_ERROR "This is read by cpack alone.")
endif()
unset(ENV{DESTDIR})
set(packaging ${CPACK_VARNIK_SOURCE}/packaging)
execute_process(COMMAND ${CMAKE_COMMAND} --install ${CPACK_VARNIK_BUILD} --prefix ${usr}/lib/varnik
                OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)

file(MAKE_DIRECTORY ${usr}/bin)
foreach(program varnik varnik-console)
  file(CREATE_LINK ../lib/varnik/${program} ${usr}/bin/${program} SYMBOLIC)
endforeach()

file(INSTALL ${packaging}/varnik.desktop DESTINATION ${usr}/share/applications)
file(INSTALL ${packaging}/example.varnik.Varnik.metainfo.xml DESTINATION ${usr}/share/metainfo)
file(INSTALL ${packaging}/copyright DESTINATION ${usr}/share/doc/varnik)

set(drawing ${CPACK_VARNIK_SOURCE}/src/ui/icons/logo.svg)
set(icons ${usr}/share/icons/hicolor)
file(INSTALL ${drawing} DESTINATION ${icons}/scalable/apps RENAME varnik.svg)
foreach(size 16 22 24 32 48 64 128 256 512)
  file(MAKE_DIRECTORY ${icons}/${size}x${size}/apps)
  execute_process(COMMAND rsvg-convert -w ${size} -h ${size} -o ${icons}/${size}x${size}/apps/varnik.png ${drawing}
                  COMMAND_ERROR_IS_FATAL ANY)
endforeach()
