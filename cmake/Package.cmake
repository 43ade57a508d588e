# What the programs find when they are installed, and the Debian package of it.
include(GNUInstallDirs)

# Data files and guide, and the way there from the folder of the programs.
set(shared_folder ${CMAKE_INSTALL_DATADIR}/zepha)
file(RELATIVE_PATH way_to_shared /${CMAKE_INSTALL_BINDIR} /${shared_folder})
set_source_files_properties(shell/own_data.cpp PROPERTIES
  COMPILE_DEFINITIONS ZEPHA_SHARED_FOLDER="${way_to_shared}")

# Users edit the files beside the programs of a build; those of the package come from their source.
set(package_root ${PROJECT_BINARY_DIR}/package)
file(GLOB data_sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/dat/*.dat)
add_custom_target(package_data ALL
  COMMAND ${PROJECT_SOURCE_DIR}/cmake/encode-data ${PROJECT_SOURCE_DIR}/dat ${package_root}/data
  COMMENT "Data files of the package"
  VERBATIM)
foreach(source IN LISTS data_sources)
  cmake_path(GET source FILENAME name)
  install(FILES ${package_root}/data/${name} DESTINATION ${shared_folder}/data)
endforeach()

install(TARGETS zepha zepha-headless)
install(FILES package/zepha.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES package/zepha.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES package/zepha.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)
set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable)
install(FILES desktop/icons/app.svg DESTINATION ${icons}/apps RENAME zepha.svg)
install(FILES package/application-x-zepha-instruments.svg package/application-x-zepha-ducts.svg
  DESTINATION ${icons}/mimetypes)

# Without name and time of the source, as packages have it.
function(install_compressed source name destination)
  set(target ${package_root}/${name}.gz)
  add_custom_command(OUTPUT ${target}
    COMMAND gzip -9nc ${PROJECT_SOURCE_DIR}/${source} > ${target}
    DEPENDS ${PROJECT_SOURCE_DIR}/${source}
    VERBATIM)
  add_custom_target(package_${name} ALL DEPENDS ${target})
  install(FILES ${target} DESTINATION ${destination})
endfunction()
install_compressed(package/zepha.1 zepha.1 ${CMAKE_INSTALL_MANDIR}/man1)
install_compressed(package/zepha-headless.1 zepha-headless.1 ${CMAKE_INSTALL_MANDIR}/man1)
install_compressed(package/changelog changelog ${CMAKE_INSTALL_DOCDIR})

# The documents keep their places to each other, on which their links rest.
install(FILES package/lintian-overrides DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides
  RENAME zepha)
install(FILES package/copyright README.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY docs DESTINATION ${CMAKE_INSTALL_DOCDIR} PATTERN guide EXCLUDE)
install(FILES dat/SOURCES.md DESTINATION ${CMAKE_INSTALL_DOCDIR}/dat)
install(DIRECTORY samples DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY ${PROJECT_BINARY_DIR}/guide DESTINATION ${shared_folder} OPTIONAL)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PACKAGE_NAME zepha)
set(CPACK_PACKAGE_VENDOR ZEPHA)
set(CPACK_PACKAGE_CONTACT "ZEPHA developers <zepha@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "sizing sheets for process instruments")
set(CPACK_PACKAGE_DESCRIPTION
"Workbench for instrumentation engineers in plant design, with a Japanese
user interface: calculation sheets for orifice plates and other elements,
restriction orifices, vortex meters, control valves, thermowells,
temperature sensors, pressure loss of pipes and cable ducts, with the data
of fluids, steam, materials and pipes that they need.
.
Results are kept under tag numbers, printed as A4 sheets and written into
workbooks. A second program, zepha-headless, does the same from a script.")
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE
  GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
# Libraries are found by dpkg-shlibdeps; pages and sheets are laid out for these letters.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-ipafont-gothic, fonts-ipafont-mincho")
# It opens workbooks and the guide, Qt's own buttons are in Japanese, and it runs on Wayland.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "xdg-utils, qt6-translations-l10n, qt6-wayland")
set(CPACK_PROJECT_CONFIG_FILE ${PROJECT_SOURCE_DIR}/cmake/PackageLocale.cmake)
include(CPack)
