// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/desktop/BusObject.h"

#include <unistd.h>

#include <QByteArrayList>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>

#include "platform/app/Transport.h"
#include "platform/desktop/Activity.h"
#include "platform/desktop/Launching.h"
#include "platform/desktop/SessionBus.h"


namespace hosted {

namespace {

bool
is_call(const QDBusMessage& message, const char* method, const char* signature)
{
	return message.member() == QLatin1String(method)
		&& message.signature() == QLatin1String(signature);
}

} // namespace


BusObject::BusObject()
{
	qDBusRegisterMetaType<QByteArrayList>();
}


QString
BusObject::introspect(const QString&) const
{
	return QStringLiteral("<interface name=\"org.vinyloh.kits.Application\">"
						  "<method name=\"Deliver\">"
						  "<arg name=\"port\" type=\"i\" direction=\"in\"/>"
						  "<arg name=\"token\" type=\"i\" direction=\"in\"/>"
						  "<arg name=\"message\" type=\"ay\" direction=\"in\"/>"
						  "<arg name=\"status\" type=\"i\" direction=\"out\"/></method>"
						  "<method name=\"Activate\"/>"
						  "<method name=\"NoteActivity\">"
						  "<arg name=\"active\" type=\"b\" direction=\"in\"/>"
						  "<arg name=\"news\" type=\"b\" direction=\"in\"/></method>"
						  "<method name=\"TakeLaunchMessages\">"
						  "<arg name=\"key\" type=\"s\" direction=\"in\"/>"
						  "<arg name=\"messages\" type=\"aay\" direction=\"out\"/></method>"
						  "</interface>");
}


bool
BusObject::handleMessage(const QDBusMessage& message, const QDBusConnection& connection)
{
	if (message.type() != QDBusMessage::MethodCallMessage
		|| (!message.interface().isEmpty()
			&& message.interface() != QLatin1String(kObjectInterface)))
		return false;
	QDBusMessage answer;
	if (is_call(message, "Deliver", "iiay")) {
		answer = _Deliver(message);
	} else if (is_call(message, "TakeLaunchMessages", "s")) {
		answer = _TakeLaunchMessages(message);
	} else if (is_call(message, "Activate", "")) {
		ActivateOwnWindows();
		answer = message.createReply();
	} else if (is_call(message, "NoteActivity", "bb")) {
		_NoteActivity(message);
		answer = message.createReply();
	} else {
		return false;
	}
	if (message.isReplyRequired())
		connection.send(answer);
	return true;
}


QDBusMessage
BusObject::_Deliver(const QDBusMessage& message)
{
	const QList<QVariant> arguments = message.arguments();
	const QByteArray bytes = arguments.at(2).toByteArray();
	if (static_cast<size_t>(bytes.size()) > kMaxMessageSize)
		return message.createErrorReply(QDBusError::LimitsExceeded, QStringLiteral("too large"));
	const team_id sender = _SenderOf(message);
	if (sender < 0)
		return message.createErrorReply(QDBusError::AccessDenied, QStringLiteral("unknown sender"));
	Address target;
	target.team = getpid();
	target.port = arguments.at(0).toInt();
	target.token = arguments.at(1).toInt();
	const status_t status
		= DeliverFromOutside(target, bytes.constData(), static_cast<size_t>(bytes.size()), sender);
	return message.createReply(QVariant(static_cast<int>(status)));
}


QDBusMessage
BusObject::_TakeLaunchMessages(const QDBusMessage& message)
{
	QByteArrayList list;
	const std::string key = message.arguments().constFirst().toString().toStdString();
	for (const std::string& flattened : TakeLaunchMessages(key))
		list.append(QByteArray::fromStdString(flattened));
	return message.createReply(QVariant::fromValue(list));
}


void
BusObject::_NoteActivity(const QDBusMessage& message)
{
	const team_id sender = _SenderOf(message);
	if (sender > 0 && sender != getpid())
		NoteActivityOf(sender, message.arguments().at(0).toBool(),
			message.arguments().at(1).toBool());
}


team_id
BusObject::_SenderOf(const QDBusMessage& message)
{
	constexpr size_t kMaxKnownSenders = 256;
	const QString name = message.service();
	const auto known = fSenders.find(name);
	if (known != fSenders.end())
		return known->second;
	const team_id team = SessionBus::ProcessOf(name.toStdString());
	if (fSenders.size() >= kMaxKnownSenders)
		fSenders.clear();
	if (team > 0)
		fSenders[name] = team;
	return team;
}

} // namespace hosted
