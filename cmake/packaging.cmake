# What `cmake --install` puts under the prefix, the package configuration clients find with
# find_package(mvcommon), and the Debian packages `cpack -G DEB` makes of it.
#
# Installed tree:
#   include/mvcommon/          the public headers at their source paths ("platform/db/dataset.h")
#                              and mvcommon_version.h; clients get this folder as include folder
#   lib*/libmv*.so.0.2.0       the shared libraries (runtime), .so links for linking (dev)
#   lib*/cmake/mvcommon/       mvcommonConfig.cmake, its version file and the exported targets
# Headers named *_p.h are implementation details and are not installed.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(MV_INSTALL_INCLUDEDIR "${CMAKE_INSTALL_INCLUDEDIR}/mvcommon")
set(MV_INSTALL_CMAKEDIR "${CMAKE_INSTALL_LIBDIR}/cmake/mvcommon")

configure_file("${CMAKE_CURRENT_LIST_DIR}/mvcommon_version.h.in"
               "${PROJECT_BINARY_DIR}/include/mvcommon_version.h" @ONLY)

# Every target of the library finds headers from the source root in the build and from the
# installed include folder in a client; the other libraries get it through mvplatform. The
# version header is for clients and is found only in the installed tree.
set(MV_INCLUDE_DIRS "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>"
                    "$<INSTALL_INTERFACE:${MV_INSTALL_INCLUDEDIR}>")
target_include_directories(mvplatform PUBLIC ${MV_INCLUDE_DIRS})

# The service package interface: one C header and nothing to link.
add_library(mvcommon_service_abi INTERFACE)
target_include_directories(mvcommon_service_abi INTERFACE ${MV_INCLUDE_DIRS})

# The toolkit-free library as one name for clients.
add_library(mvcommon_core INTERFACE)
target_link_libraries(mvcommon_core INTERFACE mvplatform mvmodules mvdb mvcommon)

# mv_export_component(COMPONENT TARGET EXPORT_NAME [TARGET EXPORT_NAME ...]): installs the
# targets as mvcommon::<EXPORT_NAME> in the export file of COMPONENT, which the package
# configuration reads only when the client asks for that component (core always).
# The Qt modules a component's link interface names are found by the package configuration
# before its targets are read (MV_PACKAGE_QT_MODULES: one "set(...)" line per component).
set(MV_PACKAGE_COMPONENTS)
set(MV_PACKAGE_QT_MODULES)
function(mv_export_component component)
  set(pairs ${ARGN})
  set(qtModules)
  while(pairs)
    list(POP_FRONT pairs target exportName)
    get_target_property(links ${target} INTERFACE_LINK_LIBRARIES)
    foreach(link IN LISTS links)
      if(link MATCHES "^Qt6::(.+)$")
        list(APPEND qtModules ${CMAKE_MATCH_1})
      endif()
    endforeach()
    set_target_properties(${target} PROPERTIES EXPORT_NAME ${exportName})
    get_target_property(type ${target} TYPE)
    if(type STREQUAL "SHARED_LIBRARY")
      # Libraries find each other beside themselves wherever the tree is installed.
      set_target_properties(${target} PROPERTIES VERSION ${PROJECT_VERSION}
                            SOVERSION ${PROJECT_VERSION_MAJOR} INSTALL_RPATH "$ORIGIN")
    endif()
    install(TARGETS ${target} EXPORT mvcommon_${component}
            LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT dev)
  endwhile()
  install(EXPORT mvcommon_${component} NAMESPACE mvcommon:: DESTINATION ${MV_INSTALL_CMAKEDIR}
          FILE mvcommon_${component}_targets.cmake COMPONENT dev)
  set(MV_PACKAGE_COMPONENTS ${MV_PACKAGE_COMPONENTS} ${component} PARENT_SCOPE)
  list(REMOVE_DUPLICATES qtModules)
  list(JOIN qtModules " " qtModules)
  set(MV_PACKAGE_QT_MODULES
      "${MV_PACKAGE_QT_MODULES}set(_mvcommon_qt_modules_${component} ${qtModules})\n" PARENT_SCOPE)
endfunction()

mv_export_component(core mvplatform platform mvmodules modules mvdb db mvcommon common
                    mvcommon_core core mvcommon_service_abi service_abi)
mv_export_component(qt mvqt qt)
if(TARGET mvforms)
  mv_export_component(forms mvreport report mvforms forms)
endif()

# Public headers: every header of the library folders but the private *_p.h ones.
file(GLOB_RECURSE MV_HEADERS CONFIGURE_DEPENDS RELATIVE "${PROJECT_SOURCE_DIR}"
     "${PROJECT_SOURCE_DIR}/platform/*.h" "${PROJECT_SOURCE_DIR}/modules/*.h"
     "${PROJECT_SOURCE_DIR}/common/*.h")
list(FILTER MV_HEADERS EXCLUDE REGEX "_p\\.h$")
foreach(header IN LISTS MV_HEADERS)
  get_filename_component(folder "${header}" DIRECTORY)
  install(FILES "${header}" DESTINATION "${MV_INSTALL_INCLUDEDIR}/${folder}" COMPONENT dev)
endforeach()
install(FILES "${PROJECT_BINARY_DIR}/include/mvcommon_version.h"
        DESTINATION "${MV_INSTALL_INCLUDEDIR}" COMPONENT dev)

configure_package_config_file("${CMAKE_CURRENT_LIST_DIR}/mvcommonConfig.cmake.in"
                              "${PROJECT_BINARY_DIR}/mvcommonConfig.cmake"
                              INSTALL_DESTINATION ${MV_INSTALL_CMAKEDIR})
write_basic_package_version_file("${PROJECT_BINARY_DIR}/mvcommonConfigVersion.cmake"
                                 COMPATIBILITY SameMinorVersion)
install(FILES "${PROJECT_BINARY_DIR}/mvcommonConfig.cmake"
              "${PROJECT_BINARY_DIR}/mvcommonConfigVersion.cmake"
        DESTINATION ${MV_INSTALL_CMAKEDIR} COMPONENT dev)

# Debian packages: libmvcommon0 (the libraries) and libmvcommon-dev (headers, links, package
# configuration), as Debian names a library's packages. Built from a tree configured with
# CMAKE_INSTALL_PREFIX=/usr (preset release-gcc), so the libraries land in the multiarch folder.
set(CPACK_PACKAGE_NAME mvcommon)
set(CPACK_PACKAGE_VENDOR "mvcommon")
set(CPACK_PACKAGE_CONTACT "mvcommon maintainers <mvcommon@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY
    "run-time library of a bilingual client for electronic trade documents")
set(CPACK_PACKAGING_INSTALL_PREFIX "${CMAKE_INSTALL_PREFIX}")
set(CPACK_COMPONENTS_ALL runtime dev)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME "libmvcommon${PROJECT_VERSION_MAJOR}")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
# Qt SQL finds its database drivers as plug-ins, which the library scan does not see.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS "libqt6sql6-sqlite")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS "libqt6sql6-odbc, libsqliteodbc")
set(CPACK_DEBIAN_DEV_PACKAGE_NAME "libmvcommon-dev")
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS
    "libmvcommon${PROJECT_VERSION_MAJOR} (= ${PROJECT_VERSION}), qt6-base-dev")
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "mvcommon shared libraries")
set(CPACK_COMPONENT_DEV_DESCRIPTION "mvcommon headers and CMake package configuration")
include(CPack)
