# Installs the programs and their documentation, and defines the packages that tools/package builds and tests.
include(GNUInstallDirs)

install(TARGETS brantcli brantexport savemachine RUNTIME DESTINATION ${CMAKE_INSTALL_SBINDIR})  # they need root
set(completed brantexport savemachine)
if(BRANT_PLATFORM STREQUAL "sim")
  install(TARGETS mkmachine RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
  list(APPEND completed mkmachine)
endif()
foreach(program IN LISTS completed)  # bash looks for a file with the name of the command
  install(FILES packaging/completion.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
    RENAME ${program})
endforeach()

# The units for brantexport --http. Nothing enables them.
if(BRANT_PLATFORM STREQUAL "sim")
  install(FILES packaging/systemd/brantexport.socket packaging/systemd/brantexport@.service
    DESTINATION lib/systemd/system)
endif()

# Installs a compressed copy of a file. gzip -n omits the file's name and time, so that the result is reproducible.
function(install_compressed file folder name)
  set(compressed ${CMAKE_BINARY_DIR}/compressed/${name}.gz)
  install(CODE "
    file(MAKE_DIRECTORY \"${CMAKE_BINARY_DIR}/compressed\")
    execute_process(COMMAND gzip -9nc \"${file}\" OUTPUT_FILE \"${compressed}\" COMMAND_ERROR_IS_FATAL ANY)")
  install(FILES ${compressed} DESTINATION ${folder})
endfunction()

if(BRANT_PLATFORM STREQUAL "sim")
  file(GLOB pages CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/docs/man/*)
  foreach(page IN LISTS pages)
    cmake_path(GET page EXTENSION LAST_ONLY section)
    cmake_path(GET page FILENAME name)
    string(SUBSTRING ${section} 1 -1 section)
    install_compressed(${page} ${CMAKE_INSTALL_MANDIR}/man${section} ${name})
  endforeach()
  install_compressed(${CMAKE_SOURCE_DIR}/CHANGELOG.md ${CMAKE_INSTALL_DOCDIR} changelog)
else()
  # Solaris can't display docs/man. Its pages are in the source archive, because mandoc, which converts them, isn't
  # available on a server.
  install(DIRECTORY man/ DESTINATION ${CMAKE_INSTALL_MANDIR} OPTIONAL)
  install(FILES CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
endif()

install(FILES README.md CONTRIBUTING.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY docs DESTINATION ${CMAKE_INSTALL_DOCDIR} PATTERN man EXCLUDE)
install(DIRECTORY contrib/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/examples USE_SOURCE_PERMISSIONS)
install(FILES packaging/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR})

# Checks that the newest release in the changelog has this version. A section "Unreleased" may precede it.
file(STRINGS CHANGELOG.md releases REGEX "^## [0-9]")
list(GET releases 0 release)
if(NOT release MATCHES "^## ([0-9.]+), ([0-9-]+)$" OR NOT CMAKE_MATCH_1 STREQUAL PROJECT_VERSION)
  message(FATAL_ERROR "The newest release in CHANGELOG.md is \"${release}\", but CMakeLists.txt has ${PROJECT_VERSION}. "
    "Expected: ## ${PROJECT_VERSION}, YYYY-MM-DD")
endif()

set(CPACK_GENERATOR DEB TGZ)
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "command shell for the health of Corvex x86 servers")
set(CPACK_PACKAGE_CONTACT "Maintainers of brantcli <maintainers@brantcli.example>")
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION admin)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
  "It shows and changes the health and firmware state of a server: fans,
temperatures, power supplies, memory, the event log, boot order, ports.
This build runs on simulated machines, directories that mkmachine creates.")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/CHANGELOG.md)
include(CPack)
