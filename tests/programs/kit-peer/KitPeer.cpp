// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// A program built on the kits for the tests of what passes between two of them. It prints what
// happens to it, a line each, and does what messages ask for.
#include <stdio.h>
#include <stdlib.h>
#include <unistd.h>

#include <Application.h>
#include <List.h>
#include <Message.h>
#include <Messenger.h>
#include <Roster.h>


namespace {

// The message that is held, so that it does not count as lost.
BMessage* sHeld = nullptr;

// A looper that answers.
class Echo : public BLooper {
public:
	void MessageReceived(BMessage* message) override
	{
		BMessage reply(*message);
		message->SendReply(&reply);
	}
};

class Peer : public BApplication {
public:
	explicit Peer(const char* signature)
		:
		BApplication(signature)
	{
	}

	void ReadyToRun() override
	{
		printf("ready %d\n", getpid());
		if (getenv("PEER_ALONE") != nullptr)
			_TryAlone();
		if (getenv("PEER_WAITS_FOR") != nullptr)
			_WaitFor(getenv("PEER_WAITS_FOR"));
	}

	void ArgvReceived(int32 count, char** words) override
	{
		printf("argv");
		for (int32 i = 1; i < count; i++)
			printf(" %s", words[i]);
		printf("\n");
	}

	void RefsReceived(BMessage* message) override
	{
		entry_ref ref;
		if (message->FindRef("refs", &ref) == B_OK)
			printf("refs %s\n", ref.name);
	}

	bool QuitRequested() override
	{
		printf("quit requested\n");
		return getenv("PEER_STAYS") == nullptr;
	}

	void MessageReceived(BMessage* message) override
	{
		switch (message->what) {
			case 'text':
				printf("text %s\n", message->FindString("text"));
				break;
			case 'echo':
			{
				BMessage reply('ECHO');
				reply.AddString("text", message->FindString("text"));
				reply.AddInt32("team", getpid());
				message->SendReply(&reply);
				break;
			}
			case 'hold':
				// Never answers, and never lets go of the message.
				printf("holding\n");
				sHeld = DetachCurrentMessage();
				break;
			case 'stop':
				printf("stopping\n");
				fflush(stdout);
				pause();
				break;
			case 'exit':
				_exit(3);
			case 'ask ':
				_Ask(*message);
				break;
			case 'wtch':
				be_roster->StartWatching(be_app_messenger,
					B_REQUEST_LAUNCHED | B_REQUEST_QUIT | B_REQUEST_ACTIVATED);
				message->SendReply(B_REPLY);
				break;
			case B_SOME_APP_LAUNCHED:
				printf("launched %s\n", message->FindString("be:signature"));
				break;
			case B_SOME_APP_QUIT:
				printf("gone %s\n", message->FindString("be:signature"));
				break;
			default:
				BApplication::MessageReceived(message);
				break;
		}
	}

private:
	// What has to work without anybody else, and then ends.
	void _TryAlone()
	{
		status_t status;
		BMessenger self(Signature(), -1, &status);
		BList teams;
		be_roster->GetAppList(&teams);
		status_t otherStatus;
		BMessenger other("application/x-vnd.nobody", -1, &otherStatus);
		BLooper* looper = new Echo;
		looper->Run();
		BMessage question('echo');
		question.AddString("text", "myself");
		BMessage answer;
		BMessenger(nullptr, looper).SendMessage(&question, &answer, 2000000, 2000000);
		printf("alone: messenger %d, echo %s, teams %d, other %d\n", status,
			answer.GetString("text", "-"), teams.CountItems(), otherStatus);
		if (self.IsTargetLocal())
			self.SendMessage(_QUIT_);
	}

	// Asks somebody who does not answer, for ever, or somebody who does.
	void _WaitFor(const char* signature)
	{
		BMessage question(getenv("PEER_IS_ANSWERED") != nullptr ? 'echo' : 'hold');
		BMessage answer;
		const status_t status = BMessenger(signature).SendMessage(&question, &answer);
		printf("waited %d, reply %s\n", status, answer.what == B_NO_REPLY ? "NONE" : "other");
	}

	// Sends a message to another program, waits for its answer and passes that on.
	void _Ask(const BMessage& message)
	{
		BMessenger target(message.FindString("signature"));
		BMessage question('echo');
		question.AddString("text", message.FindString("text"));
		BMessage answer;
		const status_t status = target.SendMessage(&question, &answer, 2000000, 2000000);
		printf("answer %d %s\n", status, answer.GetString("text", "-"));
	}
};

} // namespace


int
main(int argc, char** argv)
{
	const char* output = getenv("PEER_OUTPUT");
	if (output != nullptr && freopen(output, "a", stdout) == nullptr)
		return 1;
	setvbuf(stdout, nullptr, _IOLBF, 0);
	setenv("QT_QPA_PLATFORM", "offscreen", 0);
	const char* signature = getenv("PEER_SIGNATURE");
	if (argc > 1 && signature == nullptr)
		signature = argv[1];
	Peer peer(signature != nullptr ? signature : "application/x-vnd.kit-peer");
	peer.Run();
	printf("ended\n");
	return 0;
}
