// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Launching applications.
#include <Roster.h>

#include <limits.h>
#include <memory>
#include <stdlib.h>
#include <string>
#include <unistd.h>
#include <vector>

#include <AppDefs.h>
#include <List.h>
#include <Message.h>
#include <Path.h>

#include "platform/app/Delivery.h"
#include "platform/app/LaunchTarget.h"
#include "platform/desktop/DesktopEntries.h"
#include "platform/desktop/Launching.h"
#include "platform/desktop/Processes.h"
#include "platform/desktop/ProgramFlags.h"
#include "platform/desktop/RunningApps.h"

using hosted::LaunchTarget;
using hosted::RunningApp;


namespace {

// What an application gets with its launch.
struct Start {
	std::vector<BMessage> messages;
	std::vector<std::string> arguments;
	bool hasArguments = false;
};


std::string
resolve(const std::string& path)
{
	char resolved[PATH_MAX];
	return realpath(path.c_str(), resolved) != nullptr ? resolved : path;
}


bool
is_same_program(const LaunchTarget& target, const RunningApp& app)
{
	return resolve(app.executable) == resolve(target.executable);
}


bool
is_same_signature(const LaunchTarget& target, const RunningApp& app)
{
	return target.signature.empty()
		? is_same_program(target, app)
		:
		hosted::SameSignature(app.identity.signature, target.signature);
}


bool
is_caller(const LaunchTarget& target)
{
	RunningApp own;
	own.identity = hosted::OwnIdentity();
	own.executable = hosted::ProcessExecutable(getpid());
	return is_same_program(target, own)
		|| (!target.signature.empty() && is_same_signature(target, own));
}


// The running instance that takes the place of a new one, if the application wants only one.
bool
find_only_instance(const LaunchTarget& target, RunningApp* instance)
{
	const uint32 kind = hosted::ProgramFlags(target.executable) & B_LAUNCH_MASK;
	if (kind == B_MULTIPLE_LAUNCH)
		return false;
	for (const RunningApp& program : hosted::RunningPrograms()) {
		if (kind == B_EXCLUSIVE_LAUNCH ? is_same_signature(target, program)
									   : is_same_program(target, program)) {
			*instance = program;
			return true;
		}
	}
	return false;
}


BMessage
make_arguments_message(const LaunchTarget& target, const Start& start)
{
	BMessage message(B_ARGV_RECEIVED);
	message.AddInt32("argc", static_cast<int32>(start.arguments.size() + 1));
	message.AddString("argv", target.executable.c_str());
	for (const std::string& argument : start.arguments)
		message.AddString("argv", argument.c_str());
	const std::unique_ptr<char, void (*)(void*)> folder(getcwd(nullptr, 0), free);
	message.AddString("cwd", folder != nullptr ? folder.get() : "/");
	return message;
}


BMessage
make_refs_message(const std::string& document)
{
	BMessage message(B_REFS_RECEIVED);
	entry_ref ref;
	if (get_ref_for_path(document.c_str(), &ref) == B_OK)
		message.AddRef("refs", &ref);
	return message;
}


void
hand_over(const LaunchTarget& target, const RunningApp& instance, const Start& start)
{
	hosted::Address address;
	address.team = instance.identity.team;
	address.port = hosted::kApplicationPort;
	address.token = hosted::kPreferredToken;
	const BMessenger messenger = hosted::MessengerAccess::Make(address);
	std::vector<BMessage> messages = start.messages;
	if (start.hasArguments)
		messages.push_back(make_arguments_message(target, start));
	if (!target.document.empty())
		messages.push_back(make_refs_message(target.document));
	if (messages.empty())
		messages.emplace_back(B_SILENT_RELAUNCH);
	for (BMessage& message : messages)
		messenger.SendMessage(&message, static_cast<BHandler*>(nullptr), 1000000);
}


// Programs that are not built on the kits take files as words of their command line.
std::vector<std::string>
files_for(const LaunchTarget& target, const Start& start)
{
	std::vector<std::string> files;
	if (target.isKitProgram)
		return files;
	for (const BMessage& message : start.messages) {
		entry_ref ref;
		for (int32 i = 0;
			 message.what == B_REFS_RECEIVED && message.FindRef("refs", i, &ref) == B_OK; i++) {
			const BPath path(&ref);
			if (path.InitCheck() == B_OK)
				files.push_back(path.Path());
		}
	}
	if (!target.document.empty())
		files.push_back(target.document);
	return files;
}


std::vector<std::string>
command_line(const LaunchTarget& target, const Start& start)
{
	hosted::DesktopEntry entry;
	entry.command = target.command;
	std::vector<std::string> words = hosted::CommandWithFiles(entry, files_for(target, start));
	if (target.command.empty())
		words.insert(words.begin(), target.executable);
	words.front() = target.executable;
	words.insert(words.end(), start.arguments.begin(), start.arguments.end());
	return words;
}


std::vector<std::string>
pack_messages(const LaunchTarget& target, const Start& start)
{
	std::vector<std::string> packed;
	if (!target.isKitProgram)
		return packed;
	std::vector<BMessage> messages = start.messages;
	if (!target.document.empty())
		messages.push_back(make_refs_message(target.document));
	for (const BMessage& message : messages) {
		std::string bytes(static_cast<size_t>(message.FlattenedSize()), '\0');
		if (message.Flatten(bytes.data(), static_cast<ssize_t>(bytes.size())) == B_OK)
			packed.push_back(bytes);
	}
	return packed;
}


template <typename Wanted>
status_t
launch(Wanted wanted, const Start& start, team_id* team)
{
	if (team != nullptr)
		*team = -1;
	LaunchTarget target;
	const status_t status = hosted::FindLaunchTarget(wanted, &target);
	if (status != B_OK)
		return status;
	if (is_caller(target))
		return B_BAD_VALUE;
	RunningApp instance;
	if (find_only_instance(target, &instance)) {
		hand_over(target, instance, start);
		return B_ALREADY_RUNNING;
	}
	return hosted::StartProgram(command_line(target, start), pack_messages(target, start), team);
}


Start
start_with(const BMessage* message)
{
	Start start;
	if (message != nullptr)
		start.messages.push_back(*message);
	return start;
}


Start
start_with(const BList* messages)
{
	Start start;
	for (int32 i = 0; messages != nullptr && i < messages->CountItems(); i++) {
		const BMessage* message = static_cast<const BMessage*>(messages->ItemAt(i));
		if (message != nullptr)
			start.messages.push_back(*message);
	}
	return start;
}


Start
start_with(int count, const char* const* arguments)
{
	Start start;
	for (int i = 0; arguments != nullptr && i < count && arguments[i] != nullptr; i++)
		start.arguments.push_back(arguments[i]);
	start.hasArguments = !start.arguments.empty();
	return start;
}

} // namespace


status_t
BRoster::Launch(const char* mimeType, BMessage* initialMessage, team_id* appTeam) const
{
	return launch(mimeType, start_with(initialMessage), appTeam);
}


status_t
BRoster::Launch(const char* mimeType, BList* messageList, team_id* appTeam) const
{
	return launch(mimeType, start_with(messageList), appTeam);
}


status_t
BRoster::Launch(const char* mimeType, int argc, const char* const* args, team_id* appTeam) const
{
	return launch(mimeType, start_with(argc, args), appTeam);
}


status_t
BRoster::Launch(const entry_ref* ref, const BMessage* initialMessage, team_id* appTeam) const
{
	return launch(ref, start_with(initialMessage), appTeam);
}


status_t
BRoster::Launch(const entry_ref* ref, const BList* messageList, team_id* appTeam) const
{
	return launch(ref, start_with(messageList), appTeam);
}


status_t
BRoster::Launch(const entry_ref* ref, int argc, const char* const* args, team_id* appTeam) const
{
	return launch(ref, start_with(argc, args), appTeam);
}
