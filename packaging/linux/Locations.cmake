# What differs by system: the places that the program's shell commands name. The header with Haiku's
# values is settings/Locations.h; these definitions replace them on Linux.
target_compile_definitions(vinyloh PUBLIC
	VINYLOH_FILE_MANAGER="xdg-open"
	VINYLOH_FALLBACK_PLAYER="xdg-open"
)
