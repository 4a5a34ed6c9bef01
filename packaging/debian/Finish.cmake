# Run by CPack between installing and packing: what a Debian package has besides, and has smaller.
set(prefix ${CPACK_TEMPORARY_DIRECTORY}${CPACK_PACKAGING_INSTALL_PREFIX})
set(documents ${prefix}/share/doc/sorvanta)
set(debian ${CPACK_SORVANTA_SOURCES}/packaging/debian)
set(readable FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)

file(COPY ${debian}/copyright DESTINATION ${documents} ${readable})
file(COPY ${debian}/overrides DESTINATION ${prefix}/share/lintian ${readable}
  DIRECTORY_PERMISSIONS ${CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS})
execute_process(
  COMMAND ${debian}/changelog ${CPACK_SORVANTA_SOURCES}/CHANGELOG.md
    ${CPACK_DEBIAN_PACKAGE_MAINTAINER} ${CPACK_SORVANTA_RELEASED}
  OUTPUT_FILE ${documents}/changelog
  COMMAND_ERROR_IS_FATAL ANY)

file(GLOB pages ${prefix}/share/man/man1/*)
execute_process(COMMAND gzip -9nf ${documents}/changelog ${pages} COMMAND_ERROR_IS_FATAL ANY)
file(GLOB programs ${prefix}/bin/*)
execute_process(COMMAND strip --remove-section=.comment --remove-section=.note ${programs}
  COMMAND_ERROR_IS_FATAL ANY)
