# What "cmake --install" puts where. The program looks for its language files in the folder in which
# it really lies, so it has a folder of its own.
include(GNUInstallDirs)
set(PROGRAM_FOLDER ${CMAKE_INSTALL_LIBDIR}/vinyloh)

install(TARGETS VinyloH vinyloh-remote RUNTIME DESTINATION ${PROGRAM_FOLDER})
install(DIRECTORY resources/Language DESTINATION ${PROGRAM_FOLDER})
file(RELATIVE_PATH folder_from_bin /${CMAKE_INSTALL_BINDIR} /${PROGRAM_FOLDER})
install(CODE "
	set(bin \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}\")
	file(MAKE_DIRECTORY \"\${bin}\")
	file(CREATE_LINK ${folder_from_bin}/VinyloH \"\${bin}/VinyloH\" SYMBOLIC)
	file(CREATE_LINK ${folder_from_bin}/vinyloh-remote \"\${bin}/vinyloh-remote\" SYMBOLIC)")
install(FILES docs/vinyloh-remote.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES packaging/linux/VinyloH.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES packaging/linux/VinyloH.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES resources/icon/VinyloH.svg
	DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
set(doc_folder ${CMAKE_INSTALL_DATADIR}/doc/vinyloh)
install(FILES README.md docs/user-guide.md DESTINATION ${doc_folder})
install(FILES LICENSE DESTINATION ${doc_folder} RENAME copyright)
