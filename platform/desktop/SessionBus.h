// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef SESSION_BUS_H
#define SESSION_BUS_H

#include <string>
#include <vector>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QVariantList>

#include <OS.h>
#include <SupportDefs.h>


namespace hosted {

/*!	The process's one connection to the session bus.

	It is made when first needed and closed by Disconnect(). Calls may come from any thread and wait
	for their answer, at most as long as they say; objects and signals belong to the display
	thread.
*/
class SessionBus {
public:
	// Whether there is a session bus and this process is connected to it.
	static bool IsConnected();
	static void Disconnect();

	// The connection, for objects and names. Only while connected.
	static QDBusConnection Connection();

	// Calls a method and waits for its answer. Without a bus the answer is an error.
	static QDBusMessage Call(const std::string& service, const char* path, const char* interface,
		const char* method, const QVariantList& arguments = {}, int timeoutMillis = 2000);
	// Calls a method and waits for nothing.
	static bool Post(const std::string& service, const char* path, const char* interface,
		const char* method, const QVariantList& arguments = {});

	// What the bus itself answers. The names are all that stand on it, without the connections' own
	// numbers. A process of -1 means that the name has no owner.
	static std::vector<std::string> Names();
	static std::vector<std::string> NamesBeginningWith(const std::string& prefix);
	static team_id ProcessOf(const std::string& name);
	// The process of the bus; -1 if it does not say.
	static team_id BusProcess();
	// Gives up a name of this process, and waits for nothing.
	static void ReleaseName(const std::string& name);
};

} // namespace hosted

#endif // SESSION_BUS_H
