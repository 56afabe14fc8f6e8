# Read by cpack once for each package: where things go in it.

set(CPACK_INSTALL_CMAKE_PROJECTS "")
if(CPACK_GENERATOR STREQUAL "DEB")
  set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
  set(CPACK_INSTALL_SCRIPTS ${CPACK_VARNIK_SOURCE}/packaging/StageSystem.cmake)
else()
  set(CPACK_PACKAGE_FILE_NAME
      ${CPACK_PACKAGE_NAME}-${CPACK_PACKAGE_VERSION}-portable-${CPACK_VARNIK_MACHINE})
  set(CPACK_INSTALL_SCRIPTS ${CPACK_VARNIK_SOURCE}/packaging/StagePortable.cmake)
endif()
