// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/desktop/BusAddress.h"

#include <algorithm>
#include <poll.h>
#include <stddef.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>


namespace hosted {

namespace {

constexpr int kPatienceMillis = 3000;


std::string
variable(const char* name)
{
	const char* value = getenv(name);
	return value != nullptr ? value : "";
}


// The value of a key in "unix:path=/tmp/x,guid=1", with its "%20" and the like made plain.
std::string
value_of(const std::string& address, const std::string& key)
{
	const std::string pattern = key + "=";
	size_t begin = address.find(":" + pattern);
	if (begin == std::string::npos)
		begin = address.find("," + pattern);
	if (begin == std::string::npos)
		return "";
	begin += 1 + pattern.size();
	const std::string text = address.substr(begin, address.find(',', begin) - begin);
	std::string plain;
	for (size_t i = 0; i < text.size(); i++) {
		unsigned int code;
		if (text[i] == '%' && sscanf(text.c_str() + i + 1, "%2x", &code) == 1) {
			plain += static_cast<char>(code);
			i += 2;
		} else {
			plain += text[i];
		}
	}
	return plain;
}


// Says hello as every client does, and hears whether anything comes back.
bool
answers(int file, const sockaddr_un& name, socklen_t size)
{
	if (connect(file, reinterpret_cast<const sockaddr*>(&name), size) != 0)
		return false;
	static const char kHello[] = "\0AUTH\r\n";
	const ssize_t sent = send(file, kHello, sizeof(kHello) - 1, MSG_NOSIGNAL);
	pollfd waited = {file, POLLIN, 0};
	char byte;
	return sent == static_cast<ssize_t>(sizeof(kHello) - 1) && poll(&waited, 1, kPatienceMillis) > 0
		&& read(file, &byte, 1) == 1;
}


bool
is_socket_answering(const std::string& path, bool isAbstract)
{
	sockaddr_un name = {};
	name.sun_family = AF_UNIX;
	const size_t offset = isAbstract ? 1 : 0;
	if (path.size() + offset >= sizeof(name.sun_path))
		return false;
	memcpy(name.sun_path + offset, path.data(), path.size());
	// A full queue of a bus that accepts nobody does not hold up a socket that does not wait.
	const int file = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
	if (file < 0)
		return false;
	const size_t size
		= offsetof(sockaddr_un, sun_path) + offset + path.size() + (isAbstract ? 0 : 1);
	const bool isAnswering = answers(file, name, static_cast<socklen_t>(size));
	close(file);
	return isAnswering;
}

} // namespace


std::string
SessionBusAddress()
{
	const std::string address = variable("DBUS_SESSION_BUS_ADDRESS");
	if (!address.empty())
		return address;
	const std::string folder = variable("XDG_RUNTIME_DIR");
	const std::string path = folder + "/bus";
	return !folder.empty() && access(path.c_str(), R_OK | W_OK) == 0 ? "unix:path=" + path : "";
}


bool
IsBusAnswering(const std::string& address)
{
	size_t begin = 0;
	while (begin < address.size()) {
		const size_t end = std::min(address.find(';', begin), address.size());
		const std::string one = address.substr(begin, end - begin);
		const std::string path = value_of(one, "path");
		const std::string abstractName = value_of(one, "abstract");
		if (path.empty() && abstractName.empty())
			return true;
		if (path.empty() ? is_socket_answering(abstractName, true)
						 : is_socket_answering(path, false))
			return true;
		begin = end + 1;
	}
	return false;
}

} // namespace hosted
