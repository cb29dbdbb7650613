// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef FIND_DIRECTORY_H
#define FIND_DIRECTORY_H

#include <SupportDefs.h>

class BPath;
class BVolume;


// Haiku's places. On Linux each stands for the place that has its purpose there.
typedef enum : int {
	B_DESKTOP_DIRECTORY = 0,
	B_TRASH_DIRECTORY = 1,

	B_SYSTEM_DIRECTORY = 1000,
	B_SYSTEM_ADDONS_DIRECTORY = 1002,
	B_SYSTEM_APPS_DIRECTORY = 1007,
	B_SYSTEM_BIN_DIRECTORY = 1008,
	B_SYSTEM_DATA_DIRECTORY = 1015,
	B_SYSTEM_SETTINGS_DIRECTORY = 2010,
	B_SYSTEM_LOG_DIRECTORY = 2012,
	B_SYSTEM_TEMP_DIRECTORY = 2014,
	B_SYSTEM_CACHE_DIRECTORY = 2020,

	B_USER_DIRECTORY = 3000,
	B_USER_CONFIG_DIRECTORY = 3001,
	B_USER_FONTS_DIRECTORY = 3004,
	B_USER_SETTINGS_DIRECTORY = 3006,
	B_USER_TRANSLATORS_DIRECTORY = 3009,
	B_USER_DATA_DIRECTORY = 3012,
	B_USER_CACHE_DIRECTORY = 3013,
	B_USER_NONPACKAGED_DIRECTORY = 3016,
	B_USER_APPS_DIRECTORY = 3031,
	B_USER_LOG_DIRECTORY = 3035,
	B_USER_VAR_DIRECTORY = 3037,

	B_APPS_DIRECTORY = 4000,
	B_PREFERENCES_DIRECTORY = 4001,
} directory_which;

extern "C" status_t find_directory(directory_which which, dev_t device, bool createIt, char* path,
	int32 length);

status_t find_directory(directory_which which, BPath* path, bool createIt = false,
	BVolume* volume = NULL);

#endif // FIND_DIRECTORY_H
