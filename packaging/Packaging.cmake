# cpack makes two packages of one build: a .deb that installs for all users, and a portable folder (.tar.gz)
# that carries the libraries it needs and keeps its data beside the program. script/package runs both.

set(CPACK_GENERATOR DEB TGZ)
set(CPACK_PACKAGE_NAME varnik)
set(CPACK_PACKAGE_VENDOR Varnik)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "Varnik <support@varnik.example>")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://varnik.example/")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Trading and bookkeeping for a small shop")
set(CPACK_PACKAGE_DESCRIPTION
    "Varnik keeps the books of a small shop or office: products, customers, suppliers and accounts, sales, purchases, returns, receipts and payments, with documents and reports on paper. Whatever it keeps lies in one file in the user's own data folder, which the removal of this package leaves alone.")
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/packages)
set(CPACK_STRIP_FILES ON)
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_SOURCE_DIR}/packaging/PerPackage.cmake)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-roboto-unhinted | fonts-noto-core | fonts-dejavu-core, qt6-wayland")

# What PerPackage.cmake and StageSystem.cmake need of the build.
set(CPACK_VARNIK_SOURCE ${CMAKE_SOURCE_DIR})
set(CPACK_VARNIK_BUILD ${CMAKE_BINARY_DIR})
set(CPACK_VARNIK_MACHINE ${CMAKE_SYSTEM_PROCESSOR})
find_package(Qt6 REQUIRED COMPONENTS Core)
get_target_property(CPACK_VARNIK_QMAKE Qt6::qmake IMPORTED_LOCATION)
include(CPack)

find_program(DESKTOP_FILE_VALIDATE desktop-file-validate REQUIRED)
find_program(APPSTREAMCLI appstreamcli REQUIRED)
add_test(NAME packaging.desktop_file
         COMMAND ${DESKTOP_FILE_VALIDATE} ${CMAKE_SOURCE_DIR}/packaging/varnik.desktop)
add_test(NAME packaging.metainfo
         COMMAND ${APPSTREAMCLI} validate --no-net --no-color
                 ${CMAKE_SOURCE_DIR}/packaging/example.varnik.Varnik.metainfo.xml)
