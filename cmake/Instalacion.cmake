# What `cmake --install` puts where. share/ mirrors the install tree.

set(doc ${CMAKE_INSTALL_DATADIR}/doc/tombolera)
install(TARGETS tombolera-lote RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY share/ejemplos DESTINATION ${CMAKE_INSTALL_DATADIR}/tombolera)
install(FILES LICENSE README.md CHANGELOG.md DESTINATION ${doc})
if(TOMBOLERA_UI)
    install(TARGETS tombolera RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
    install(DIRECTORY share/applications share/metainfo share/mime DESTINATION ${CMAKE_INSTALL_DATADIR} OPTIONAL)
    install(DIRECTORY share/icons/hicolor DESTINATION ${CMAKE_INSTALL_DATADIR}/icons OPTIONAL)
endif()
add_subdirectory(docs/manual)
