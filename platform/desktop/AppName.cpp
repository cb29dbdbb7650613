// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/desktop/AppName.h"

#include <inttypes.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <strings.h>

#include <StorageDefs.h>


namespace hosted {

namespace {

constexpr char kApplicationType[] = "application/";
// Names have at most 255 letters; this leaves room for the prefix and the numbers.
constexpr size_t kMaxEncoded = 170;


bool
is_plain(char letter)
{
	return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z')
		|| (letter >= '0' && letter <= '9') || letter == '-';
}


std::string
encode_letter(char letter)
{
	if (is_plain(letter))
		return std::string(1, letter);
	if (letter == '.')
		return "_d";
	if (letter == '_')
		return "__";
	char code[4];
	snprintf(code, sizeof(code), "_%02X", static_cast<unsigned char>(letter));
	return code;
}


std::string
encode(const std::string& signature)
{
	std::string text = signature;
	const size_t typeLength = strlen(kApplicationType);
	if (strncasecmp(text.c_str(), kApplicationType, typeLength) == 0)
		text.erase(0, typeLength);
	std::string encoded;
	for (char letter : text) {
		const std::string code = encode_letter(letter);
		if (encoded.size() + code.size() > kMaxEncoded)
			break;
		encoded += code;
	}
	return encoded;
}


int
hex_digit(char digit)
{
	if (digit >= '0' && digit <= '9')
		return digit - '0';
	if (digit >= 'A' && digit <= 'F')
		return digit - 'A' + 10;
	return -1;
}


bool
decode(const std::string& encoded, std::string* signature)
{
	signature->clear();
	for (size_t i = 0; i < encoded.size(); i++) {
		if (is_plain(encoded[i])) {
			*signature += encoded[i];
			continue;
		}
		const char kind = i + 1 < encoded.size() ? encoded[i + 1] : '\0';
		if (encoded[i] != '_' || kind == '\0')
			return false;
		i++;
		if (kind == 'd') {
			*signature += '.';
		} else if (kind == '_') {
			*signature += '_';
		} else {
			const int high = hex_digit(kind);
			const int low = i + 1 < encoded.size() ? hex_digit(encoded[i + 1]) : -1;
			if (high < 0 || low < 0 || high * 16 + low < ' ')
				return false;
			*signature += static_cast<char>(high * 16 + low);
			i++;
		}
	}
	if (signature->empty())
		return false;
	if (signature->find('/') == std::string::npos)
		signature->insert(0, kApplicationType);
	return signature->size() < B_MIME_TYPE_LENGTH;
}


// A number without sign and leading blanks; moves on to what follows it.
bool
take_number(const char*& text, int64 limit, int64* number)
{
	if (*text < '0' || *text > '9')
		return false;
	*number = 0;
	for (; *text >= '0' && *text <= '9'; text++) {
		if (*number > (limit - (*text - '0')) / 10)
			return false;
		*number = *number * 10 + (*text - '0');
	}
	return true;
}

} // namespace


std::string
AppNameFor(const AppIdentity& identity)
{
	char numbers[64];
	snprintf(numbers, sizeof(numbers), ".p%" B_PRId32 "_%" B_PRIu32 "_%" B_PRId64, identity.team,
		identity.flags, identity.registered);
	return std::string(kAppNamePrefix) + ".s" + encode(identity.signature) + numbers;
}


bool
ParseAppName(const std::string& name, AppIdentity* identity)
{
	const std::string begin = std::string(kAppNamePrefix) + ".s";
	const size_t numbers = name.rfind(".p");
	if (name.compare(0, begin.size(), begin) != 0 || numbers == std::string::npos
		|| numbers < begin.size())
		return false;
	AppIdentity parsed;
	if (!decode(name.substr(begin.size(), numbers - begin.size()), &parsed.signature))
		return false;

	const char* text = name.c_str() + numbers + strlen(".p");
	int64 team;
	int64 flags;
	int64 registered;
	if (!take_number(text, INT32_MAX, &team) || team == 0 || *text++ != '_'
		|| !take_number(text, UINT32_MAX, &flags) || *text++ != '_'
		|| !take_number(text, INT64_MAX, &registered) || *text != '\0')
		return false;
	parsed.team = static_cast<team_id>(team);
	parsed.flags = static_cast<uint32>(flags);
	parsed.registered = registered;
	*identity = parsed;
	return true;
}


bool
SameSignature(const std::string& one, const std::string& other)
{
	return strcasecmp(encode(one).c_str(), encode(other).c_str()) == 0;
}

} // namespace hosted
