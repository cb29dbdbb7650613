// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef APP_NAME_H
#define APP_NAME_H

#include <string>

#include <OS.h>
#include <SupportDefs.h>


namespace hosted {

// What a program built on the kits tells the session about itself.
struct AppIdentity {
	std::string signature;
	team_id team = -1;
	uint32 flags = 0;
	// Microseconds since the machine started; orders the list of running applications.
	bigtime_t registered = 0;
};

// All names of such programs begin with this; a "*" added to it names them all.
inline constexpr char kAppNamePrefix[] = "org.vinyloh.kits";

/*!	The name under which a program stands on the session bus.

	It holds the whole identity, so that nobody has to ask the program itself: one that hangs or
	lies cannot hold up the others. Signatures of more than about 170 letters are cut.
*/
std::string AppNameFor(const AppIdentity& identity);

// False for names of any other form.
bool ParseAppName(const std::string& name, AppIdentity* identity);

// Signatures are compared without regard to case, and as far as names can hold them.
bool SameSignature(const std::string& one, const std::string& other);

} // namespace hosted

#endif // APP_NAME_H
