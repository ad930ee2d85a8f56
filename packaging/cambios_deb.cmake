# Run by CPack between installing into its own folder and packing that folder.
set(carpeta ${CPACK_TEMPORARY_DIRECTORY}${CPACK_PACKAGING_INSTALL_PREFIX}/share/doc/velda)
execute_process(COMMAND gzip -9nc ${CPACK_VELDA_CAMBIOS}
  OUTPUT_FILE ${carpeta}/changelog.Debian.gz COMMAND_ERROR_IS_FATAL ANY)
file(CHMOD ${carpeta}/changelog.Debian.gz
  PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
