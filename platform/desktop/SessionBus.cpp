// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/desktop/SessionBus.h"

#include <chrono>
#include <memory>
#include <mutex>

#include <QStringList>

#include "platform/desktop/BusAddress.h"


namespace hosted {

namespace {

constexpr char kConnectionName[] = "vinyloh-kits";
constexpr char kBusName[] = "org.freedesktop.DBus";
constexpr char kBusPath[] = "/org/freedesktop/DBus";

struct State {
	std::mutex lock;
	std::unique_ptr<QDBusConnection> connection;
	// Where there is no bus, not every question looks for one again.
	std::string failedAddress;
	std::chrono::steady_clock::time_point failed;
};

// Lives as long as the process: other threads may still ask while static objects are destroyed.
State&
state()
{
	static State* sState = new State;
	return *sState;
}


std::unique_ptr<QDBusConnection>
connect()
{
	if (!IsBusAnswering(SessionBusAddress()))
		return nullptr;
	auto connection = std::make_unique<QDBusConnection>(
		QDBusConnection::connectToBus(QDBusConnection::SessionBus, QLatin1String(kConnectionName)));
	if (connection->isConnected())
		return connection;
	connection.reset();
	QDBusConnection::disconnectFromBus(QLatin1String(kConnectionName));
	return nullptr;
}


QDBusMessage
make_call(const std::string& service, const char* path, const char* interface, const char* method,
	const QVariantList& arguments)
{
	QDBusMessage message = QDBusMessage::createMethodCall(QString::fromStdString(service),
		QLatin1String(path), QLatin1String(interface), QLatin1String(method));
	message.setAutoStartService(false);
	message.setArguments(arguments);
	return message;
}


QDBusMessage
no_bus()
{
	return QDBusMessage::createError(QDBusError::Disconnected, QStringLiteral("no session bus"));
}


QDBusMessage
ask_bus(const char* method, const QVariantList& arguments = {})
{
	return SessionBus::Call(kBusName, kBusPath, kBusName, method, arguments);
}


bool
is_worth_trying(const State& shared)
{
	constexpr std::chrono::seconds kPause(30);
	const std::string address = SessionBusAddress();
	return !address.empty()
		&& (address != shared.failedAddress
			|| std::chrono::steady_clock::now() - shared.failed > kPause);
}


// Holds its own reference, so that a Disconnect() meanwhile does no harm.
std::unique_ptr<QDBusConnection>
current()
{
	State& shared = state();
	std::lock_guard<std::mutex> lock(shared.lock);
	if (shared.connection != nullptr && !shared.connection->isConnected()) {
		shared.connection.reset();
		QDBusConnection::disconnectFromBus(QLatin1String(kConnectionName));
	}
	if (shared.connection == nullptr && is_worth_trying(shared)) {
		shared.connection = connect();
		if (shared.connection == nullptr) {
			shared.failedAddress = SessionBusAddress();
			shared.failed = std::chrono::steady_clock::now();
		}
	}
	if (shared.connection == nullptr)
		return nullptr;
	return std::make_unique<QDBusConnection>(*shared.connection);
}

} // namespace


bool
SessionBus::IsConnected()
{
	return current() != nullptr;
}


void
SessionBus::Disconnect()
{
	State& shared = state();
	std::lock_guard<std::mutex> lock(shared.lock);
	if (shared.connection == nullptr)
		return;
	shared.connection.reset();
	QDBusConnection::disconnectFromBus(QLatin1String(kConnectionName));
}


QDBusConnection
SessionBus::Connection()
{
	const std::unique_ptr<QDBusConnection> connection = current();
	return connection != nullptr ? *connection : QDBusConnection(QString());
}


QDBusMessage
SessionBus::Call(const std::string& service, const char* path, const char* interface,
	const char* method, const QVariantList& arguments, int timeoutMillis)
{
	const std::unique_ptr<QDBusConnection> connection = current();
	if (connection == nullptr)
		return no_bus();
	return connection->call(make_call(service, path, interface, method, arguments), QDBus::Block,
		timeoutMillis);
}


bool
SessionBus::Post(const std::string& service, const char* path, const char* interface,
	const char* method, const QVariantList& arguments)
{
	const std::unique_ptr<QDBusConnection> connection = current();
	if (connection == nullptr)
		return false;
	QDBusMessage message = make_call(service, path, interface, method, arguments);
	return connection->send(message);
}


std::vector<std::string>
SessionBus::Names()
{
	return NamesBeginningWith("");
}


std::vector<std::string>
SessionBus::NamesBeginningWith(const std::string& prefix)
{
	std::vector<std::string> names;
	const QDBusMessage answer = ask_bus("ListNames");
	if (answer.type() != QDBusMessage::ReplyMessage || answer.signature() != QLatin1String("as"))
		return names;
	for (const QString& name : answer.arguments().constFirst().toStringList()) {
		const std::string text = name.toStdString();
		if (text.compare(0, prefix.size(), prefix) == 0 && text.compare(0, 1, ":") != 0)
			names.push_back(text);
	}
	return names;
}


team_id
SessionBus::ProcessOf(const std::string& name)
{
	const QDBusMessage answer
		= ask_bus("GetConnectionUnixProcessID", {QString::fromStdString(name)});
	if (answer.type() != QDBusMessage::ReplyMessage || answer.signature() != QLatin1String("u"))
		return -1;
	const uint process = answer.arguments().constFirst().toUInt();
	return process > 0 && process <= INT32_MAX ? static_cast<team_id>(process) : -1;
}


team_id
SessionBus::BusProcess()
{
	return ProcessOf(kBusName);
}


void
SessionBus::ReleaseName(const std::string& name)
{
	Post(kBusName, kBusPath, kBusName, "ReleaseName", {QString::fromStdString(name)});
}

} // namespace hosted
