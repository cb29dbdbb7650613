# What "cmake --install" puts where. The program looks for its language files in the folder in which
# it really lies, so it has a folder of its own.
include(GNUInstallDirs)
set(PROGRAM_FOLDER ${CMAKE_INSTALL_LIBDIR}/vinyloh)

install(TARGETS VinyloH RUNTIME DESTINATION ${PROGRAM_FOLDER})
install(DIRECTORY resources/Language DESTINATION ${PROGRAM_FOLDER})
file(RELATIVE_PATH program_from_bin /${CMAKE_INSTALL_BINDIR} /${PROGRAM_FOLDER}/VinyloH)
install(CODE "
	set(bin \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}\")
	file(MAKE_DIRECTORY \"\${bin}\")
	file(CREATE_LINK ${program_from_bin} \"\${bin}/VinyloH\" SYMBOLIC)")
install(FILES packaging/linux/VinyloH.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES resources/icon/VinyloH.svg
	DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES LICENSE README.md docs/user-guide.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
