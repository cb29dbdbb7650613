// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef SESSION_APP_H
#define SESSION_APP_H

#include <condition_variable>
#include <functional>
#include <future>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include <Application.h>
#include <Message.h>

#include "tests/support/Program.h"


namespace test {

inline constexpr char kOwnSignature[] = "application/x-vnd.session-tests";
inline constexpr char kPeerSignature[] = "application/x-vnd.kit-peer";

/*!	The application object of the test process, running in a thread of its own.

	It is made by the first test that asks and ends with the last test. It keeps what it is told,
	and answers 'echo' with the same text.
*/
class SessionApp : public BApplication {
public:
	SessionApp()
		:
		BApplication(kOwnSignature)
	{
	}

	static SessionApp& Get()
	{
		static std::thread* sThread = nullptr;
		static SessionApp* sApp = nullptr;
		if (sApp != nullptr)
			return *sApp;
		std::promise<SessionApp*> made;
		sThread = new std::thread([&made]() {
			SessionApp* app = new SessionApp;
			made.set_value(app);
			app->Run();
			app->Unlock();
			delete app;
		});
		sApp = made.get_future().get();
		testing::AddGlobalTestEnvironment(new Ender([]() {
			sApp->PostMessage(B_QUIT_REQUESTED);
			sThread->join();
		}));
		return *sApp;
	}

	void MessageReceived(BMessage* message) override
	{
		if (message->what == 'echo') {
			BMessage reply('ECHO');
			reply.AddString("text", message->FindString("text"));
			message->SendReply(&reply);
		}
		std::lock_guard<std::mutex> lock(fLock);
		fReceived.push_back(*message);
		fChanged.notify_all();
	}

	// Waits for a message that the condition accepts, and takes it out.
	bool WaitFor(const std::function<bool(const BMessage&)>& accepts, BMessage* found = nullptr,
		std::chrono::milliseconds limit = std::chrono::seconds(20))
	{
		std::unique_lock<std::mutex> lock(fLock);
		return fChanged.wait_for(lock, limit, [&]() {
			for (size_t i = 0; i < fReceived.size(); i++) {
				if (!accepts(fReceived[i]))
					continue;
				if (found != nullptr)
					*found = fReceived[i];
				fReceived.erase(fReceived.begin() + static_cast<ptrdiff_t>(i));
				return true;
			}
			return false;
		});
	}

	void Forget()
	{
		std::lock_guard<std::mutex> lock(fLock);
		fReceived.clear();
	}

private:
	class Ender : public testing::Environment {
	public:
		explicit Ender(std::function<void()> end)
			:
			fEnd(end)
		{
		}
		void TearDown() override { fEnd(); }

	private:
		std::function<void()> fEnd;
	};

	std::mutex fLock;
	std::condition_variable fChanged;
	std::vector<BMessage> fReceived;
};


/*!	Another program built on the kits; programs/kit-peer has what it does. */
class Peer : public Program {
public:
	explicit Peer(const std::string& signature = kPeerSignature,
		const std::vector<std::string>& variables = {})
		:
		Program({ProgramPath("kit-peer")}, Joined(signature, variables))
	{
	}

	bool IsReady() { return WaitForLine("ready " + std::to_string(Id())); }

private:
	static std::vector<std::string> Joined(const std::string& signature,
		std::vector<std::string> variables)
	{
		variables.push_back("PEER_SIGNATURE=" + signature);
		return variables;
	}
};

} // namespace test

#endif // SESSION_APP_H
