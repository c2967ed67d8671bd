# What is installed, and where. The program looks for its texts in share/vicetoll beside its bin folder,
# whatever the prefix.
# SPDX-License-Identifier: GPL-3.0-or-later

# The newest release of the change log: "## 1.0.0 (2026-11-22)". Pages and metadata bear its date.
file(STRINGS ${PROJECT_SOURCE_DIR}/CHANGELOG.md newest REGEX "^## ${PROJECT_VERSION} \\(" LIMIT_COUNT 1)
if(NOT newest MATCHES "\\(([0-9-]+)\\)")
  message(FATAL_ERROR "CHANGELOG.md has no heading \"## ${PROJECT_VERSION} (YYYY-MM-DD)\"")
endif()
set(VICETOLL_RELEASE_DATE ${CMAKE_MATCH_1})

set(made ${PROJECT_BINARY_DIR}/install)
set(data ${PROJECT_SOURCE_DIR}/data)

install(TARGETS vicetoll vicetoll-report RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(TARGETS vicetoll_charts vicetoll_workbook LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/vicetoll)

install(FILES ${help_texts} DESTINATION ${CMAKE_INSTALL_DATADIR}/vicetoll)
install(FILES ${help_pictures} DESTINATION ${CMAKE_INSTALL_DATADIR}/vicetoll/pictures)

install(FILES ${data}/vicetoll.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
foreach(size 16 22 24 32 48 64 128 256 512)
  install(FILES ${data}/icons/vicetoll-${size}.png RENAME vicetoll.png
          DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps)
endforeach()

install(FILES ${data}/vicetoll.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${data}/vicetoll-mime.xml RENAME vicetoll.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)
configure_file(${data}/vicetoll.metainfo.xml.in ${made}/example.orvane.vicetoll.metainfo.xml @ONLY)
install(FILES ${made}/example.orvane.vicetoll.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)

# Debian wants pages and change logs compressed, without a time of their own in them.
function(install_compressed source name destination)
  set(packed ${made}/${name}.gz)
  add_custom_command(OUTPUT ${packed} COMMAND gzip -9nc ${source} > ${packed} DEPENDS ${source} VERBATIM)
  list(APPEND compressed ${packed})
  set(compressed ${compressed} PARENT_SCOPE)
  install(FILES ${packed} DESTINATION ${destination})
endfunction()
foreach(page vicetoll.1 vicetoll-report.1)
  configure_file(${data}/man/${page}.in ${made}/${page} @ONLY)
  install_compressed(${made}/${page} ${page} ${CMAKE_INSTALL_MANDIR}/man1)
endforeach()
execute_process(COMMAND ${CMAKE_COMMAND} -E env LC_ALL=C date -u -R -d ${VICETOLL_RELEASE_DATE}
                OUTPUT_VARIABLE VICETOLL_RELEASE_TIME OUTPUT_STRIP_TRAILING_WHITESPACE)
configure_file(${data}/changelog.in ${made}/changelog @ONLY)
install_compressed(${made}/changelog changelog ${CMAKE_INSTALL_DOCDIR})
add_custom_target(compressed_pages ALL DEPENDS ${compressed})
install(FILES ${data}/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR})

# ---- The Debian package: cmake --preset package && cmake --build --preset package ----
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vicetoll)
set(CPACK_PACKAGE_VENDOR "The Orvane Team")
set(CPACK_PACKAGE_CONTACT "The Orvane Team <vicetoll@orvane.example>")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://www.orvane.example/")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "costs of a habit, and what the money would have grown to")
set(CPACK_PACKAGE_DESCRIPTION
"Vicetoll tells what a costly habit has cost and will cost, and what that
money would have grown to, put aside month by month. Twelve habits, up to
four periods in the past and four in the future for each, every period with
its own dates, quantity, changing cost, interest and inflation.
.
It shows totals, the value at a chosen date, a growth chart, month-by-month
reports and a table over all habits. The program vicetoll-report makes the
same reports in scripts.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-dejavu-core")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
# The same sources give the same bytes: all files and archives bear the day of the release, unless
# SOURCE_DATE_EPOCH says otherwise.
configure_file(${CMAKE_CURRENT_LIST_DIR}/one_date.cmake.in ${made}/one_date.cmake @ONLY)
set(CPACK_PROJECT_CONFIG_FILE ${made}/one_date.cmake)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/date_files.cmake)
include(CPack)
