# What `cmake --install` puts where. share/ mirrors the install tree.

set(doc ${CMAKE_INSTALL_DATADIR}/doc/tombolera)
set(man ${CMAKE_INSTALL_MANDIR}/man1)
find_program(GZIP gzip REQUIRED)

# instalar_comprimido(FILE NAME FOLDER): the same bytes for the same contents, as Debian wants them.
function(instalar_comprimido fichero nombre carpeta)
    set(comprimido ${CMAKE_BINARY_DIR}/instalacion/${nombre}.gz)
    add_custom_command(OUTPUT ${comprimido} DEPENDS ${fichero} COMMAND ${GZIP} -9nc ${fichero} > ${comprimido} VERBATIM)
    add_custom_target(comprimir_${nombre} ALL DEPENDS ${comprimido})
    install(FILES ${comprimido} DESTINATION ${carpeta})
endfunction()

function(instalar_pagina programa)
    set(pagina ${CMAKE_BINARY_DIR}/instalacion/${programa}.1)
    configure_file(share/man/man1/${programa}.1 ${pagina} @ONLY)
    instalar_comprimido(${pagina} ${programa}.1 ${man})
endfunction()

install(TARGETS tombolera-lote RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY share/ejemplos DESTINATION ${CMAKE_INSTALL_DATADIR}/tombolera)
install(FILES LICENSE DESTINATION ${doc} RENAME copyright)
instalar_comprimido(${CMAKE_SOURCE_DIR}/CHANGELOG.md changelog ${doc})
instalar_pagina(tombolera-lote)
if(TOMBOLERA_UI)
    install(TARGETS tombolera RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
    install(DIRECTORY share/applications share/metainfo share/mime DESTINATION ${CMAKE_INSTALL_DATADIR})
    install(DIRECTORY share/icons/hicolor DESTINATION ${CMAKE_INSTALL_DATADIR}/icons)
    instalar_pagina(tombolera)
endif()
add_subdirectory(docs/manual)
include(Paquete)
