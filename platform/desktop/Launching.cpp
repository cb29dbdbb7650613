// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/desktop/Launching.h"

#include <errno.h>
#include <fcntl.h>
#include <map>
#include <mutex>
#include <random>
#include <signal.h>
#include <spawn.h>
#include <stdlib.h>
#include <string.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QByteArrayList>
#include <QDBusMetaType>

#include "platform/desktop/BusObject.h"
#include "platform/desktop/SessionBus.h"


namespace hosted {

namespace {

// Tells a started program where its first messages are: the starter's number on the bus, a blank,
// and the key.
constexpr char kLaunchVariable[] = "VINYLOH_LAUNCH_MESSAGES";

struct State {
	std::mutex lock;
	std::map<std::string, std::vector<std::string>> waiting;
	std::vector<pid_t> children;
};

State&
state()
{
	static State* sState = new State;
	return *sState;
}


std::string
random_key()
{
	std::random_device device;
	std::string key;
	for (int i = 0; i < 4; i++)
		key += std::to_string(device()) + "-";
	return key;
}


// Ended children would stay in the process table until this process ends, too.
void
collect_ended_children(State& shared)
{
	std::lock_guard<std::mutex> lock(shared.lock);
	for (size_t i = shared.children.size(); i-- > 0;) {
		if (waitpid(shared.children[i], nullptr, WNOHANG) != 0)
			shared.children.erase(shared.children.begin() + static_cast<ptrdiff_t>(i));
	}
}


// Pointers into the texts, as the system calls want them.
std::vector<char*>
pointers_to(std::vector<std::string>& texts)
{
	std::vector<char*> pointers;
	for (std::string& text : texts)
		pointers.push_back(text.data());
	pointers.push_back(nullptr);
	return pointers;
}


std::vector<std::string>
environment_with(const std::string& launchKey)
{
	std::vector<std::string> variables;
	const std::string begin = std::string(kLaunchVariable) + "=";
	for (char** variable = environ; *variable != nullptr; variable++) {
		if (strncmp(*variable, begin.c_str(), begin.size()) != 0)
			variables.push_back(*variable);
	}
	if (!launchKey.empty())
		variables.push_back(begin + launchKey);
	return variables;
}


int
spawn(std::vector<std::string> words, std::vector<std::string> environment, pid_t* process)
{
	posix_spawnattr_t attributes;
	posix_spawnattr_init(&attributes);
	sigset_t none;
	sigset_t all;
	sigemptyset(&none);
	sigfillset(&all);
	posix_spawnattr_setsigmask(&attributes, &none);
	posix_spawnattr_setsigdefault(&attributes, &all);
	posix_spawnattr_setflags(&attributes,
		POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
	posix_spawn_file_actions_t actions;
	posix_spawn_file_actions_init(&actions);
	posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
	const std::vector<char*> arguments = pointers_to(words);
	const std::vector<char*> variables = pointers_to(environment);
	const int error = posix_spawn(process, arguments.front(), &actions, &attributes,
		arguments.data(), variables.data());
	posix_spawn_file_actions_destroy(&actions);
	posix_spawnattr_destroy(&attributes);
	return error;
}


std::string
keep_messages(State& shared, const std::vector<std::string>& messages)
{
	if (messages.empty() || !SessionBus::IsConnected())
		return "";
	const std::string key = random_key();
	std::lock_guard<std::mutex> lock(shared.lock);
	shared.waiting[key] = messages;
	return SessionBus::Connection().baseService().toStdString() + " " + key;
}

} // namespace


status_t
StartProgram(const std::vector<std::string>& words, const std::vector<std::string>& messages,
	team_id* team)
{
	if (words.empty() || words.front().empty() || words.front()[0] != '/')
		return B_BAD_VALUE;
	State& shared = state();
	collect_ended_children(shared);
	const std::string launchKey = keep_messages(shared, messages);
	pid_t process;
	if (spawn(words, environment_with(launchKey), &process) != 0) {
		if (!launchKey.empty())
			TakeLaunchMessages(launchKey.substr(launchKey.find(' ') + 1));
		return B_LAUNCH_FAILED_EXECUTABLE;
	}
	std::lock_guard<std::mutex> lock(shared.lock);
	shared.children.push_back(process);
	if (team != nullptr)
		*team = process;
	return B_OK;
}


std::vector<std::string>
TakeLaunchMessages(const std::string& key)
{
	State& shared = state();
	std::lock_guard<std::mutex> lock(shared.lock);
	const auto found = shared.waiting.find(key);
	if (found == shared.waiting.end())
		return {};
	const std::vector<std::string> messages = found->second;
	shared.waiting.erase(found);
	return messages;
}


std::vector<std::string>
FetchLaunchMessages(team_id* launcher)
{
	std::vector<std::string> messages;
	const char* variable = getenv(kLaunchVariable);
	const std::string launchKey = variable != nullptr ? variable : "";
	unsetenv(kLaunchVariable);
	const size_t blank = launchKey.find(' ');
	if (blank == std::string::npos || launchKey[0] != ':')
		return messages;
	const std::string starter = launchKey.substr(0, blank);
	*launcher = SessionBus::ProcessOf(starter);
	const QDBusMessage answer = SessionBus::Call(starter, kObjectPath, kObjectInterface,
		"TakeLaunchMessages", {QString::fromStdString(launchKey.substr(blank + 1))});
	if (answer.type() != QDBusMessage::ReplyMessage || answer.signature() != QLatin1String("aay"))
		return messages;
	for (const QByteArray& flattened : qdbus_cast<QByteArrayList>(answer.arguments().at(0)))
		messages.push_back(flattened.toStdString());
	return messages;
}

} // namespace hosted
