# cmake --install: the libraries, the headers under include/textzone/ (the
# same folders as in src/, so a host includes "editor/Editor.h" either way),
# the CMake package and the pkg-config files.
#
# A static and a shared build may be installed into the same prefix: each
# brings its own targets file, and TextzoneConfig.cmake picks one (see there).
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(TEXTZONE_CMAKE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/Textzone")
set(TEXTZONE_INCLUDE_DIR "${CMAKE_INSTALL_INCLUDEDIR}/textzone")
if(BUILD_SHARED_LIBS)
  set(TEXTZONE_LINKAGE Shared)
else()
  set(TEXTZONE_LINKAGE Static)
endif()

set(textzone_targets textzone)
if(TEXTZONE_BUILD_QT)
  list(APPEND textzone_targets textzone_qt)
endif()
install(TARGETS ${textzone_targets} EXPORT Textzone${TEXTZONE_LINKAGE}Targets
        ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}"
        LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
        RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}"
        FILE_SET HEADERS DESTINATION "${TEXTZONE_INCLUDE_DIR}"
        FILE_SET export_header DESTINATION "${TEXTZONE_INCLUDE_DIR}")
install(EXPORT Textzone${TEXTZONE_LINKAGE}Targets NAMESPACE Textzone::
        DESTINATION "${TEXTZONE_CMAKE_DIR}")

# What the targets of this build need found first.
if(TEXTZONE_BUILD_QT)
  set(TEXTZONE_FIND_DEPENDENCIES "find_dependency(Qt6 COMPONENTS ${TEXTZONE_QT_COMPONENTS})")
else()
  set(TEXTZONE_FIND_DEPENDENCIES "")
endif()
file(GENERATE OUTPUT "${PROJECT_BINARY_DIR}/Textzone${TEXTZONE_LINKAGE}Dependencies.cmake"
     CONTENT "${TEXTZONE_FIND_DEPENDENCIES}\n")

configure_package_config_file("${CMAKE_CURRENT_LIST_DIR}/TextzoneConfig.cmake.in"
                              "${PROJECT_BINARY_DIR}/TextzoneConfig.cmake"
                              INSTALL_DESTINATION "${TEXTZONE_CMAKE_DIR}")
# Before 1.0 a new minor version may break the ABI, as the SONAME says.
write_basic_package_version_file("${PROJECT_BINARY_DIR}/TextzoneConfigVersion.cmake"
                                 COMPATIBILITY SameMinorVersion)
install(FILES "${PROJECT_BINARY_DIR}/TextzoneConfig.cmake"
              "${PROJECT_BINARY_DIR}/TextzoneConfigVersion.cmake"
              "${PROJECT_BINARY_DIR}/Textzone${TEXTZONE_LINKAGE}Dependencies.cmake"
        DESTINATION "${TEXTZONE_CMAKE_DIR}")

# pkg-config: textzone for the engine, textzone-qt for the Qt backend on top.
# The prefix is found from the file's own place, so that the prefix given to
# cmake --install (not the one configured) is the one the files name.
if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}")
  set(TEXTZONE_PC_PREFIX "${CMAKE_INSTALL_PREFIX}")
else()
  file(RELATIVE_PATH pc_to_prefix "/prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/prefix")
  string(REGEX REPLACE "/$" "" pc_to_prefix "${pc_to_prefix}")
  set(TEXTZONE_PC_PREFIX "\${pcfiledir}/${pc_to_prefix}")
endif()
foreach(kind LIBDIR INCLUDEDIR)
  if(IS_ABSOLUTE "${CMAKE_INSTALL_${kind}}")
    set(TEXTZONE_PC_${kind} "${CMAKE_INSTALL_${kind}}")
  else()
    set(TEXTZONE_PC_${kind} "\${prefix}/${CMAKE_INSTALL_${kind}}")
  endif()
endforeach()
list(TRANSFORM TEXTZONE_QT_COMPONENTS PREPEND "Qt6" OUTPUT_VARIABLE TEXTZONE_QT_MODULES)
list(JOIN TEXTZONE_QT_MODULES " " TEXTZONE_QT_MODULES)
set(textzone_pc_files textzone)
if(TEXTZONE_BUILD_QT)
  list(APPEND textzone_pc_files textzone-qt)
endif()
foreach(pc IN LISTS textzone_pc_files)
  configure_file("${CMAKE_CURRENT_LIST_DIR}/${pc}.pc.in" "${PROJECT_BINARY_DIR}/${pc}.pc" @ONLY)
  install(FILES "${PROJECT_BINARY_DIR}/${pc}.pc" DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
endforeach()
