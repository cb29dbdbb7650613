# Compiles the program's resources and adds them to it, then tells the system's type database.
set(resources ${CMAKE_BINARY_DIR}/VinyloH.rsrc)
add_custom_command(OUTPUT ${resources}
	COMMAND rc -o ${resources} ${CMAKE_SOURCE_DIR}/packaging/haiku/VinyloH.rdef
	DEPENDS packaging/haiku/VinyloH.rdef)
add_custom_target(resources DEPENDS ${resources})
add_dependencies(VinyloH resources)
add_custom_command(TARGET VinyloH POST_BUILD
	COMMAND xres -o $<TARGET_FILE:VinyloH> ${resources}
	COMMAND mimeset -f $<TARGET_FILE:VinyloH>)
