# Run by CPack between installing and packing: what only a Debian package has. Compressed without a time or a name, so
# that equal contents make equal packages.
set(root ${CPACK_TEMPORARY_INSTALL_DIRECTORY}${CPACK_PACKAGING_INSTALL_PREFIX})
file(COPY_FILE ${CPACK_ORLAMO_CHANGELOG} ${root}/${CPACK_ORLAMO_DOC}/changelog.Debian)
file(GLOB pages ${root}/${CPACK_ORLAMO_MAN}/man*/*.[0-9])
foreach(file ${root}/${CPACK_ORLAMO_DOC}/changelog.Debian ${pages})
  execute_process(COMMAND gzip -9 --no-name ${file} COMMAND_ERROR_IS_FATAL ANY)
  file(CHMOD ${file}.gz PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
endforeach()
