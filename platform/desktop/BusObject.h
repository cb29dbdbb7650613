// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef BUS_OBJECT_H
#define BUS_OBJECT_H

#include <map>
#include <string>

#include <QDBusVirtualObject>

#include <OS.h>


namespace hosted {

inline constexpr char kObjectPath[] = "/org/vinyloh/kits/Application";
inline constexpr char kObjectInterface[] = "org.vinyloh.kits.Application";

// The largest flattened message that passes between two programs.
inline constexpr size_t kMaxMessageSize = 16 * 1024 * 1024;

/*!	What a program built on the kits offers the others on the session bus:

	Deliver(int32 port, int32 token, bytes message) -> int32 status: queues a flattened message.
	Activate(): brings the windows to the front.
	NoteActivity(bool active, bool news): the sender's windows have become active, or are no longer;
	no news for a program that has just come and is told how things are.
	TakeLaunchMessages(string key) -> array of bytes: the first messages for a launched program.

	Lives in the display thread. Whatever arrives is checked before it is used.
*/
class BusObject : public QDBusVirtualObject {
public:
	BusObject();

	QString introspect(const QString& path) const override;
	bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

private:
	QDBusMessage _Deliver(const QDBusMessage& message);
	QDBusMessage _TakeLaunchMessages(const QDBusMessage& message);
	void _NoteActivity(const QDBusMessage& message);
	team_id _SenderOf(const QDBusMessage& message);

private:
	// The processes behind the bus's own numbers for connections, which are never used again.
	std::map<QString, team_id> fSenders;
};

} // namespace hosted

#endif // BUS_OBJECT_H
