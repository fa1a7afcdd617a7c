# A system-wide install: the program, vrt-cli, the delivered database and the help pages together in one folder
# (the program finds its database and help beside itself), commands in bin/ pointing there, and the desktop
# entry with its icon. The installed folder is usually not writable by the user: the program then works on a
# copy of the delivered database in the user's data folder.
set(VRT_PASTA_INSTALACAO ${CMAKE_INSTALL_LIBDIR}/vrt)
install(TARGETS vrt vrt-cli RUNTIME DESTINATION ${VRT_PASTA_INSTALACAO})
install(FILES ${VRT_DELIVERED_DB} DESTINATION ${VRT_PASTA_INSTALACAO})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/help/ DESTINATION ${VRT_PASTA_INSTALACAO}/help
    FILES_MATCHING PATTERN "*.html" PATTERN "*.png" PATTERN "*.svg" PATTERN "*.css")
install(CODE "
    file(MAKE_DIRECTORY \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}\")
    foreach(p vrt vrt-cli)
        file(CREATE_LINK ../${VRT_PASTA_INSTALACAO}/\${p}
             \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}/\${p}\" SYMBOLIC)
    endforeach()")
install(FILES ${PROJECT_SOURCE_DIR}/src/app/vrt.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${PROJECT_SOURCE_DIR}/src/app/vrt.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
