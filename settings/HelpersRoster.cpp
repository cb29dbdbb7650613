// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Other applications, alerts and the text of message codes.
#include "settings/Helpers.h"

#include <array>

#include <stdio.h>
#include <string.h>

#include <Alert.h>
#include <InterfaceDefs.h>
#include <Message.h>
#include <Roster.h>


namespace {

struct Refused {
	const char* part;
	// The part counts only behind this many characters.
	int32 begin;
	const char* reason;
};

// What the user works with by the way is not the application that he came from.
constexpr std::array<Refused, 6> kRefused = {{
	{"Be-SHEL", 1, "terminal"},
	{"Be-TRAK", 1, "tracker "},
	{"Be-TSKB", 1, "deskbar "},
	{"BeIDE", 1, "beIDE   "},
	{"Terminal", 1, "terminal"},
	{"application/x-vnd.kv-VinyloH", 0, "MYSELF   "},
}};

struct LastApplication {
	BMessenger messenger;
	BString signature;
};

} // namespace


static char sCodeText[32];


static int
hex_digit(char digit)
{
	if (digit >= '1' && digit <= '9')
		return digit - '0';
	if (digit >= 'A' && digit <= 'F')
		return digit - 'A' + 10;
	return 0;
}


int
hex2int(const char* text)
{
	char digits[8] = "";
	snprintf(digits, sizeof(digits), "%s", text[0] == '$' ? text + 1 : text);
	return 16 * hex_digit(digits[0]) + hex_digit(digits[0] != '\0' ? digits[1] : '\0');
}


char*
long2asc(unsigned long code)
{
	char digits[32] = "";
	snprintf(digits, sizeof(digits), "%lX", code);

	for (size_t index = 0; index < 4; index++) {
		const char pair[] = {digits[2 * index], digits[2 * index + 1], '\0'};
		sCodeText[index] = static_cast<char>(hex2int(pair));
	}
	sCodeText[4] = '\0';
	return sCodeText;
}


static const char*
refusal(const BString& signature)
{
	for (const Refused& refused : kRefused) {
		if (signature.FindFirst(refused.part) >= refused.begin)
			return refused.reason;
	}
	return nullptr;
}


static void
ask_over_signature(LastApplication& last)
{
	printf(" NO Messenger ");
	printf("\n Ask over Sig.: '%s'\n", last.signature.String());
	status_t status = B_OK;
	const BMessenger messenger(last.signature.String(), -1, &status);
	if (status == B_BAD_VALUE || status == B_BAD_TEAM_ID || status == B_BAD_HANDLER) {
		printf("oops - bad messenger \n");
		return;
	}
	printf("%ld (aerr: %ld)\n", static_cast<long>(messenger.Team()), static_cast<long>(status));
	last.messenger = messenger;
}


static void
remember_application(const BMessage& message, LastApplication& last)
{
	printf(" LAST | %s\n", last.signature.String());
	BString signature;
	if (message.FindString("be:signature", &signature) == B_OK) {
		printf(" [%s] ", signature.String());
		const char* const reason = refusal(signature);
		if (reason != nullptr) {
			printf(" NOT STORED | %s\n", reason);
			return;
		}
	}

	last.signature = signature;
	printf(" STORED | ");
	BMessenger messenger;
	if (message.FindMessenger("be:window", &messenger) == B_OK) {
		last.messenger = messenger;
		printf(" has Messenger ");
	} else {
		ask_over_signature(last);
	}
	printf("\n");
}


BMessenger
GetLastRosterMessenger(BMessage* message, BString* signature)
{
	static LastApplication sLast;

	printf("##GetLastRosterMessenger() ");
	if (message == nullptr) {
		printf(" NULL\n");
		printf(" (Message==NULL )");
	} else {
		printf(" '%s'", long2asc(message->what));
		if (message->what == B_SOME_APP_ACTIVATED) {
			printf(" IGNORE\n");
			return sLast.messenger;
		}
		remember_application(*message, sLast);
	}

	if (signature != nullptr) {
		printf(" BACK | %s\n", sLast.signature.String());
		*signature = sLast.signature;
	}
	return sLast.messenger;
}


static BAlert*
make_alert(const char* text)
{
	BAlert* const alert
		= new BAlert("KORU_Alert", text, "OK", nullptr, nullptr, B_WIDTH_AS_USUAL, B_WARNING_ALERT);
	alert->SetShortcut(0, B_ENTER);
	return alert;
}


void
AnyAlert(const char* text, bool toConsole)
{
	if (toConsole)
		printf("%s\n", text);
	else
		make_alert(text)->Go(nullptr);
}


void
AnyAlertAndWait(const char* text)
{
	make_alert(text)->Go();
}
