# What `cmake --install` puts where, and the Debian package that `cpack` makes of it.
include(GNUInstallDirs)
set(packaging ${PROJECT_SOURCE_DIR}/packaging)

install(TARGETS ventoria ventoria-console RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES ${packaging}/ventoria.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${packaging}/ventoria-mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages RENAME ventoria.xml)
install(FILES ${packaging}/example.ventoria.Ventoria.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${PROJECT_SOURCE_DIR}/src/widgets/icons/ventoria.svg
  DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES ${packaging}/copyright DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/ventoria)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/assets/sessions/ DESTINATION ${CMAKE_INSTALL_DATADIR}/ventoria/sessions
  FILES_MATCHING PATTERN "*.tq2")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ventoria)
set(CPACK_PACKAGE_CONTACT "Ventoria <contact@ventoria.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Training companion for the home trainer, with French voice prompts")
set(CPACK_PACKAGE_DESCRIPTION "Compose sessions of timed sequences and ride them:\na large chronometer counts each sequence down and a French voice says what\ncomes next, over your own music.")
set(CPACK_STRIP_FILES TRUE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION sports)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS TRUE)
# Whatever is loaded while the program runs, which no look at its links finds.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libmpv2 (>= 0.35), qt6-qpa-plugins, libqt6svg6")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-b612, fonts-inter, qt6-translations-l10n, xdg-utils")
include(CPack)
