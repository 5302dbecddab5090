# Debian packages, one for each component: cpack --config build/release/CPackConfig.cmake -B DIR

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME teskara)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGE_VENDOR Teskara)
set(CPACK_PACKAGE_CONTACT "The Teskara developers <teskara@localhost>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL library development program)
if(NOT TARGET teskara_program)
    list(REMOVE_ITEM CPACK_COMPONENTS_ALL program)
endif()

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_BINARY_DIR}/lib)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY "=")

set(library_package libteskara${TESKARA_SOVERSION})
set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME ${library_package})
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_COMPONENT_LIBRARY_DESCRIPTION "The library that programs load to show interfaces written as XML files.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libteskara-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${library_package} (= ${PROJECT_VERSION})")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "${PROJECT_DESCRIPTION}
 Headers, and what CMake and pkg-config need, to build a program with the library.")

# Texts need a font that is there.
set(CPACK_DEBIAN_PROGRAM_PACKAGE_NAME teskara)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_DEPENDS "${library_package} (= ${PROJECT_VERSION}), fonts-dejavu-core")
set(CPACK_COMPONENT_PROGRAM_DESCRIPTION "The program that shows, photographs and checks interfaces, with skins and samples.")

include(CPack)
