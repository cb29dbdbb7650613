// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// What strangers on the session bus can do to a program: nothing.
#include <gtest/gtest.h>
#include <random>
#include <stdio.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <Messenger.h>
#include <Roster.h>

#include "platform/app/Transport.h"
#include "platform/desktop/BusAddress.h"
#include "platform/desktop/BusObject.h"
#include "platform/desktop/RunningApps.h"
#include "platform/desktop/SessionBus.h"
#include "tests/platform/desktop/SessionApp.h"
#include "tests/support/TempFolder.h"

using hosted::kObjectInterface;
using hosted::kObjectPath;
using hosted::SessionBus;
using test::kPeerSignature;
using test::Peer;
using test::SessionApp;


namespace {

QDBusMessage
call(const std::string& name, const char* method, const QVariantList& arguments)
{
	return SessionBus::Call(name, kObjectPath, kObjectInterface, method, arguments, 20000);
}


int
deliver(const std::string& name, int port, int token, const QByteArray& bytes)
{
	const QDBusMessage answer = call(name, "Deliver", {port, token, bytes});
	EXPECT_EQ(answer.type(), QDBusMessage::ReplyMessage);
	return answer.arguments().value(0).toInt();
}


std::string
name_of(const Peer& peer)
{
	hosted::RunningApp app;
	EXPECT_TRUE(hosted::FindRunningProgram(peer.Id(), &app));
	return app.busNames.front();
}


void
expect_alive(const Peer& peer)
{
	BMessage message('echo');
	message.AddString("text", "alive");
	BMessage reply;
	EXPECT_EQ(BMessenger(nullptr, peer.Id()).SendMessage(&message, &reply, 10000000, 10000000),
		B_OK);
	EXPECT_STREQ(reply.GetString("text", ""), "alive");
}


QByteArray
flattened_echo()
{
	BMessage message('echo');
	message.AddString("text", "whole");
	message.AddInt32("number", 5);
	BMessage inner('innr');
	inner.AddFloat("value", 1.5f);
	message.AddMessage("inner", &inner);
	QByteArray bytes(static_cast<qsizetype>(message.FlattenedSize()), '\0');
	EXPECT_EQ(message.Flatten(bytes.data(), bytes.size()), B_OK);
	return bytes;
}

} // namespace


TEST(SessionBytes, GarbageIsRefused)
{
	SessionApp::Get();
	Peer peer;
	ASSERT_TRUE(peer.IsReady());
	const std::string name = name_of(peer);
	std::mt19937 random(4711);
	for (int i = 0; i < 300; i++) {
		QByteArray bytes(static_cast<qsizetype>(random() % 300), '\0');
		for (char& byte : bytes)
			byte = static_cast<char>(random());
		EXPECT_NE(deliver(name, hosted::kApplicationPort, hosted::kPreferredToken, bytes), B_OK);
	}
	expect_alive(peer);
}


TEST(SessionBytes, DamagedMessagesDoNoHarm)
{
	SessionApp::Get();
	Peer peer;
	ASSERT_TRUE(peer.IsReady());
	const std::string name = name_of(peer);
	const QByteArray whole = flattened_echo();
	EXPECT_EQ(deliver(name, hosted::kApplicationPort, hosted::kPreferredToken, whole), B_OK);
	for (qsizetype length = 0; length < whole.size(); length++) {
		EXPECT_NE(
			deliver(name, hosted::kApplicationPort, hosted::kPreferredToken, whole.left(length)),
			B_OK)
			<< length;
	}
	for (qsizetype at = 0; at < whole.size(); at++) {
		QByteArray damaged = whole;
		damaged[at] = static_cast<char>(damaged[at] ^ 0xff);
		deliver(name, hosted::kApplicationPort, hosted::kPreferredToken, damaged);
	}
	expect_alive(peer);
}


TEST(SessionBytes, UnknownAddresseesAreRefused)
{
	SessionApp::Get();
	Peer peer;
	ASSERT_TRUE(peer.IsReady());
	const std::string name = name_of(peer);
	for (int port : {-1, -2147483647 - 1, 2147483647, 123456})
		EXPECT_EQ(deliver(name, port, hosted::kPreferredToken, flattened_echo()), B_BAD_PORT_ID);
	for (int token : {-1, -2147483647 - 1, 2147483647})
		deliver(name, hosted::kApplicationPort, token, flattened_echo());
	expect_alive(peer);
}


TEST(SessionBytes, OtherCallsAreErrors)
{
	SessionApp::Get();
	Peer peer;
	ASSERT_TRUE(peer.IsReady());
	const std::string name = name_of(peer);
	const QByteArray bytes = flattened_echo();
	const auto is_error = [&name](const char* method, const QVariantList& arguments) {
		return call(name, method, arguments).type() == QDBusMessage::ErrorMessage;
	};
	EXPECT_TRUE(is_error("Deliver", {}));
	EXPECT_TRUE(is_error("Deliver", {1, 2}));
	EXPECT_TRUE(is_error("Deliver", {QStringLiteral("1"), 2, bytes}));
	EXPECT_TRUE(is_error("Deliver", {1, 2, bytes, 3}));
	EXPECT_TRUE(is_error("Deliver", {1, 2, QStringLiteral("text")}));
	EXPECT_TRUE(is_error("NoteActivity", {5}));
	EXPECT_TRUE(is_error("Run", {QStringLiteral("/bin/true")}));
	EXPECT_TRUE(is_error("Deliver", {0, -2, QByteArray(17 * 1024 * 1024, 'x')}));
	EXPECT_EQ(
		SessionBus::Call(name, kObjectPath, "org.example.Other", "Deliver", {0, -2, bytes}).type(),
		QDBusMessage::ErrorMessage);
	const QDBusMessage launch = call(name, "TakeLaunchMessages", {QStringLiteral("guess")});
	EXPECT_EQ(launch.type(), QDBusMessage::ReplyMessage);
	EXPECT_EQ(call(name, "Activate", {}).type(), QDBusMessage::ReplyMessage);
	expect_alive(peer);
}


TEST(SessionBytes, ANameThatLiesIsNoProgram)
{
	SessionApp::Get();
	Peer peer;
	ASSERT_TRUE(peer.IsReady());
	QDBusConnection bus = SessionBus::Connection();
	// This process says that it is the peer, and the machine's first process.
	const QString lie = QStringLiteral("org.vinyloh.kits.sx-vnd_dliar.p%1_1_1");
	ASSERT_TRUE(bus.registerService(lie.arg(peer.Id())));
	ASSERT_TRUE(bus.registerService(lie.arg(1)));
	EXPECT_FALSE(be_roster->IsRunning("application/x-vnd.liar"));
	EXPECT_EQ(be_roster->TeamFor(kPeerSignature), peer.Id());
	// A second name of its own is no second program either.
	ASSERT_TRUE(bus.registerService(lie.arg(getpid())));
	EXPECT_EQ(be_roster->TeamFor(test::kOwnSignature), getpid());
	EXPECT_FALSE(be_roster->IsRunning("application/x-vnd.liar"));
	for (int team : {static_cast<int>(peer.Id()), 1, static_cast<int>(getpid())})
		bus.unregisterService(lie.arg(team));
}


TEST(SessionRegistration, SecondOneIsRefusedAndHarmless)
{
	SessionApp::Get();
	EXPECT_EQ(hosted::RegisterApplication("application/x-vnd.second"), B_ALREADY_RUNNING);
	EXPECT_EQ(hosted::RegisterApplication(nullptr), B_BAD_VALUE);
	EXPECT_FALSE(be_roster->IsRunning("application/x-vnd.second"));
	EXPECT_EQ(be_roster->TeamFor(test::kOwnSignature), getpid());
}


TEST(SessionWithout, ProgramRunsAndSaysSoOnce)
{
	for (const char* address : {"DBUS_SESSION_BUS_ADDRESS=",
			 "DBUS_SESSION_BUS_ADDRESS=unix:path=/nonexistent/bus", "DBUS_SESSION_BUS_ADDRESS=?"}) {
		test::Program peer({"/bin/sh", "-c", "exec \"$0\" 2>&1", test::ProgramPath("kit-peer")},
			{address, "XDG_RUNTIME_DIR=", "PEER_ALONE=1"});
		EXPECT_EQ(peer.ReadLine(),
			"No session bus: this program and others do not find each other.");
		EXPECT_EQ(peer.ReadLine(), "ready " + std::to_string(peer.Id())) << address;
		EXPECT_EQ(peer.ReadLine(), "alone: messenger 0, echo myself, teams 2, other -2147483643");
		EXPECT_EQ(peer.ReadLine(), "ended");
		int status = -1;
		ASSERT_TRUE(peer.WaitForEnd(&status));
		EXPECT_EQ(status, 0);
	}
}


TEST(SessionWithout, ABusThatHangsHoldsUpNobody)
{
	test::TempFolder folder;
	const std::string path = folder / "bus";
	sockaddr_un name = {};
	name.sun_family = AF_UNIX;
	snprintf(name.sun_path, sizeof(name.sun_path), "%s", path.c_str());
	const int listener = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
	ASSERT_EQ(bind(listener, reinterpret_cast<const sockaddr*>(&name), sizeof(name)), 0);
	ASSERT_EQ(listen(listener, 5), 0);
	test::Program peer({test::ProgramPath("kit-peer")},
		{"DBUS_SESSION_BUS_ADDRESS=unix:path=" + path, "PEER_ALONE=1"});
	EXPECT_TRUE(peer.WaitForLine("ended", std::chrono::seconds(15)));
	close(listener);
}


TEST(BusAddress, IsUnderstood)
{
	const std::string own = hosted::SessionBusAddress();
	EXPECT_TRUE(hosted::IsBusAnswering(own)) << own;
	EXPECT_TRUE(hosted::IsBusAnswering("unix:path=/nonexistent;" + own));
	EXPECT_FALSE(hosted::IsBusAnswering(""));
	EXPECT_FALSE(hosted::IsBusAnswering("unix:path=/nonexistent%20bus,guid=1"));
	EXPECT_FALSE(hosted::IsBusAnswering("unix:guid=1,abstract=no-such-name"));
	EXPECT_FALSE(hosted::IsBusAnswering("unix:path=" + std::string(300, 'x')));
}
