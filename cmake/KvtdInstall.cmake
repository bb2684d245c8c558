# What `cmake --install` puts where: the library, the embedded components that it was linked with, the headers in one
# folder of their own (a vendor's visa.h in the system's folder is not touched), the package files and the reference.
include(CMakePackageConfigHelpers)
find_package(Python3 3.11 REQUIRED COMPONENTS Interpreter)

set(headers ${CMAKE_INSTALL_INCLUDEDIR}/KVTD481X2C)
set(package ${CMAKE_INSTALL_LIBDIR}/cmake/KVTD481X2C)
set(pages ${CMAKE_INSTALL_DATADIR}/doc/KVTD481X2C)

set(published ${PROJECT_SOURCE_DIR}/inc/KVTD481X2C.h ${PROJECT_SOURCE_DIR}/platform/visa/include/visatype.h)
set(embedded "")
if(NOT KVTD_VISA_LIBRARY)
  list(APPEND embedded tvrvisa)
  list(APPEND published ${PROJECT_SOURCE_DIR}/platform/visa/include/visa.h
       ${PROJECT_SOURCE_DIR}/platform/visa/include/tvrvisa.h)
endif()
if(NOT KVTD_IVI_SESSION_LIBRARY OR NOT KVTD_IVI_CONFIG_LIBRARY)
  list(APPEND embedded tvrivi)
  foreach(header IviCShared.h IviConfigServer.h IviVisaType.h)
    list(APPEND published ${PROJECT_SOURCE_DIR}/platform/ivi/include/${header})
  endforeach()
endif()

# The components name their headers' folders in the source tree; installed headers are all in one.
foreach(component IN LISTS embedded)
  get_target_property(folders ${component} INTERFACE_INCLUDE_DIRECTORIES)
  set_target_properties(${component} PROPERTIES
    INTERFACE_INCLUDE_DIRECTORIES "$<BUILD_INTERFACE:${folders}>;$<INSTALL_INTERFACE:${headers}>")
endforeach()

# KVTD::visa is for who makes VISA calls of their own on the driver's I/O session: the library that the driver uses.
set_target_properties(kvtd_visa PROPERTIES EXPORT_NAME visa)
set_target_properties(kvtd_ivi_session PROPERTIES EXPORT_NAME ivi_session)
set_target_properties(kvtd_ivi_config PROPERTIES EXPORT_NAME ivi_config)

# Embedded components are found beside the driver, a vendor's where it was linked. The linker of a program that uses the
# driver searches there as well.
set(runpath "$ORIGIN")
foreach(vendor IN LISTS KVTD_VISA_LIBRARY KVTD_IVI_SESSION_LIBRARY KVTD_IVI_CONFIG_LIBRARY)
  get_filename_component(folder ${vendor} DIRECTORY)
  if(NOT folder IN_LIST CMAKE_CXX_IMPLICIT_LINK_DIRECTORIES)
    list(APPEND runpath ${folder})
  endif()
endforeach()
list(REMOVE_DUPLICATES runpath)
set_target_properties(KVTD481X2C ${embedded} PROPERTIES INSTALL_RPATH "${runpath}")

install(TARGETS KVTD481X2C kvtd_visa kvtd_ivi_session kvtd_ivi_config ${embedded} EXPORT KVTD481X2CTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(FILES ${published} DESTINATION ${headers})
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE ${PROJECT_SOURCE_DIR}/CHANGELOG.md DESTINATION ${pages})
install(EXPORT KVTD481X2CTargets NAMESPACE KVTD:: DESTINATION ${package})

configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/KVTD481X2CConfig.cmake.in
  ${PROJECT_BINARY_DIR}/KVTD481X2CConfig.cmake INSTALL_DESTINATION ${package})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/KVTD481X2CConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/KVTD481X2CConfig.cmake ${PROJECT_BINARY_DIR}/KVTD481X2CConfigVersion.cmake
        DESTINATION ${package})

# The .pc file finds its prefix from its own place, so that an installed tree can be moved.
file(RELATIVE_PATH KVTD_PREFIX_FROM_PC /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
configure_file(${PROJECT_SOURCE_DIR}/cmake/KVTD481X2C.pc.in ${PROJECT_BINARY_DIR}/KVTD481X2C.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/KVTD481X2C.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

# The reference is printed from the rows and committed, like the header; a test compares.
add_custom_target(reference
  COMMAND Python3::Interpreter ${KVTD_CATALOGUE_TOOL} reference ${PROJECT_SOURCE_DIR}/docs/reference ${KVTD_CATALOGUE_ROWS}
  VERBATIM)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/reference DESTINATION ${pages})
