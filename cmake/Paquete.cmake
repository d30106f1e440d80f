# What `cpack` makes of an installation: a Debian package where dpkg is, otherwise an archive.

set(TOMBOLERA_MANTENEDOR "TOMBOLERA <tombolera@tombolera.invalid>" CACHE STRING "Who answers for the Debian package")

set(CPACK_PACKAGE_NAME tombolera)
set(CPACK_PACKAGE_CONTACT ${TOMBOLERA_MANTENEDOR})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "sistemas de PRIMITIVA, BONOLOTO y EURODREAMS")
set(CPACK_PACKAGE_DESCRIPTION "Las marcas de un boleto se desarrollan en todas sus apuestas de seis números;
diecinueve condiciones y una reducción con garantía dejan las que se quieren
jugar, y el resultado se graba en un fichero de apuestas.

Trae dos programas: tombolera, con ventanas, y tombolera-lote, que hace lo
mismo desde la línea de órdenes; y el manual.")
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
    WORLD_READ WORLD_EXECUTE)

find_program(DPKG_SHLIBDEPS dpkg-shlibdeps)
if(DPKG_SHLIBDEPS)
    set(CPACK_GENERATOR DEB)
else()
    set(CPACK_GENERATOR TGZ)
endif()
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# What is loaded by name: certificates; the drawer of the icons, the words of the toolkit and a font
# that has the signs of the windows. Triggers of other packages look after every cache.
set(CPACK_DEBIAN_PACKAGE_DEPENDS ca-certificates)
if(TOMBOLERA_UI)
    string(APPEND CPACK_DEBIAN_PACKAGE_DEPENDS ", libqt6svg6, qt6-translations-l10n, fonts-dejavu-core | fonts-dejavu")
    set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland, xdg-utils")
endif()

# Debian's own log of changes, which stands beside the project's.
if(DPKG_SHLIBDEPS)
    set(bitacora ${CMAKE_BINARY_DIR}/instalacion/changelog.Debian)
    string(TIMESTAMP ahora "%a, %d %b %Y %H:%M:%S +0000" UTC)
    file(WRITE ${bitacora} "tombolera (${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}) unstable; urgency=medium\n\n"
        "  * Versión ${PROJECT_VERSION}.\n\n -- ${TOMBOLERA_MANTENEDOR}  ${ahora}\n")
    instalar_comprimido(${bitacora} changelog.Debian ${doc})
endif()
include(CPack)
