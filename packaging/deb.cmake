# The Debian package: `cmake --build --preset release --target package` leaves it in build/release.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME velda)
set(CPACK_PACKAGE_VENDOR "Los autores de Velda")
set(CPACK_PACKAGE_CONTACT "Los autores de Velda <autores@velda.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "lee y edita archivos de texto, uno tras otro")
set(CPACK_PACKAGE_DESCRIPTION
"Velda muestra en una ventana estrecha la lista de los archivos de texto
abiertos, y en otra el texto del archivo elegido, que se puede editar y
guardar. Las carpetas favoritas, la fuente, los colores, el ajuste de línea
y la posición de las ventanas se conservan de una vez para otra.

Los archivos no se convierten nunca: lo que no se edita se guarda tal como
se leyó, y un archivo de 100 MB se abre tan deprisa como uno pequeño.")

set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1~velda1)  # older than a 1.1-1 that Debian itself might have
set(CPACK_DEBIAN_PACKAGE_SECTION editors)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
# The libraries, and with them the plugin for X11, are found by dpkg-shlibdeps, all but the one that
# the program loads for the recycle bin. The fonts are those that the windows are laid out for; the
# help and the links are opened through xdg-open; on a Wayland desktop without XWayland the program
# starts with the plugin of qt6-wayland only.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-liberation, libglib2.0-0")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland, xdg-utils")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

# Only a Debian package has a changelog of the package beside the one of the program.
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_SOURCE_DIR}/cambios_deb.cmake)
set(CPACK_VELDA_CAMBIOS ${CMAKE_CURRENT_SOURCE_DIR}/changelog.Debian)
include(CPack)
