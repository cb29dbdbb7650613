// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef LANGUAGE_MEMORY_H
#define LANGUAGE_MEMORY_H

#include <SupportDefs.h>


/*!	Stores or reads the code of the language loaded last, in a file of its own. Five bytes are kept.

	name is the application under which the code is stored as well; reading does not use it. The
	result, which is value itself when nothing is stored, stands in a buffer that the next call
	overwrites.
*/
char* AskStrSetting(const char* name, const char* value, bool write);

// The same for a number of the language menu.
int32 AskIntSetting(long value, bool write);

#endif // LANGUAGE_MEMORY_H
