// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <unistd.h>

#include <Node.h>
#include <NodeInfo.h>
#include <Query.h>
#include <TypeConstants.h>

#include "appcontrol/RemoteCommands.h"
#include "tests/appcontrol/ScriptedPlayer.h"
#include "tests/support/Output.h"
#include "tests/support/Wait.h"

using test::OutputOf;
using test::RemoteTest;


namespace {

std::string
data_folder()
{
	return getenv("XDG_DATA_HOME");
}


void
write_file(const std::string& path, const std::string& text)
{
	FILE* const file = fopen(path.c_str(), "w");
	ASSERT_NE(file, nullptr) << path;
	fputs(text.c_str(), file);
	fclose(file);
}


// Opens a copy of the address, and says what it became.
std::string
open_url(const std::string& text, std::string* changed = nullptr)
{
	char url[300];
	snprintf(url, sizeof(url), "%s", text.c_str());
	const std::string output = OutputOf([&url] { IOpenThisUrl(url, false); });
	if (changed != nullptr)
		*changed = url;
	return output;
}


std::string
text_attribute(const std::string& path, const char* name)
{
	BNode node(path.c_str());
	char text[200] = "";
	const ssize_t size = node.ReadAttr(name, B_STRING_TYPE, 0, text, sizeof(text));
	// It is stored with its end.
	return size > 0 && text[size - 1] == '\0' ? text : "";
}


std::string
type_of(const std::string& path)
{
	BNode node(path.c_str());
	char type[B_MIME_TYPE_LENGTH] = "";
	BNodeInfo(&node).GetType(type);
	return type;
}


// A browser that is preferred for pages and writes its words into a file, a line each.
class RemoteStartsTest : public RemoteTest {
protected:
	~RemoteStartsTest() override
	{
		unlink((data_folder() + "/applications/test-browser.desktop").c_str());
		unlink((std::string(getenv("XDG_CONFIG_HOME")) + "/mimeapps.list").c_str());
	}

	void InstallBrowser()
	{
		const std::string path = fFolder.Write("test-browser",
			"#!/bin/sh\nprintf '%s\\n' \"$@\" >'" + fFolder / "written" + "'\nmv '"
				+ fFolder / "written" + "' '" + fFolder / "words" + "'\n");
		chmod(path.c_str(), 0755);
		ASSERT_EQ(system(("mkdir -p '" + data_folder() + "/applications'").c_str()), 0);
		write_file(data_folder() + "/applications/test-browser.desktop",
			"[Desktop Entry]\nType=Application\nName=Browser\nMimeType=text/html;\nExec=" + path
				+ " %u\n");
		write_file(std::string(getenv("XDG_CONFIG_HOME")) + "/mimeapps.list",
			"[Default Applications]\ntext/html=test-browser.desktop\n");
	}

	std::string Words()
	{
		test::WaitFor([this] { return access((fFolder / "words").c_str(), F_OK) == 0; },
			std::chrono::seconds(20));
		const std::string words = test::ReadFile(fFolder / "words");
		unlink((fFolder / "words").c_str());
		return words;
	}
};

} // namespace


TEST_F(RemoteStartsTest, AddressesAreOpenedWithTheBrowser)
{
	InstallBrowser();
	EXPECT_EQ(open_url("http://www.example.org/a?b=c&d='e'"), "");
	EXPECT_EQ(Words(), "http://www.example.org/a?b=c&d='e'\n");
	EXPECT_EQ(open_url("file:/tmp/page $(touch x).html"), "");
	EXPECT_EQ(Words(), "file:/tmp/page $(touch x).html\n");
}


TEST_F(RemoteStartsTest, LineEndsAreRemoved)
{
	InstallBrowser();
	std::string changed;
	EXPECT_EQ(open_url("http://www.exam\r\nple.org/\n", &changed), "");
	EXPECT_EQ(changed, "http://www.example.org/");
	EXPECT_EQ(Words(), "http://www.example.org/\n");
}


TEST_F(RemoteStartsTest, OtherAddressesAreRefused)
{
	InstallBrowser();
	for (const char* url : {"https://www.example.org/", "ftp://www.example.org/", "HTTP://example",
			 "javascript:alert(1)", "--new-window", "/etc/passwd", " http://www.example.org/",
			 "file:etc/passwd"})
		EXPECT_EQ(open_url(url), std::string("URL not accepted: '") + url + "'\n");
	EXPECT_EQ(open_url(""), "URL to Short!\n");
	EXPECT_EQ(open_url("http:/"), "URL to Short!\n");
	EXPECT_EQ(open_url("\n\r\n\n\n\n\n\n\n\n"), "URL to Short!\n");
	EXPECT_EQ(OutputOf([] { IOpenThisUrl(nullptr, true); }), "");
	// Had one been started, its words would stand here before these.
	EXPECT_EQ(open_url("http://last/"), "");
	EXPECT_EQ(Words(), "http://last/\n");
}


TEST_F(RemoteStartsTest, ProgramsThatAreNotThereAreSaid)
{
	EXPECT_EQ(OutputOf([] { IAnyApps(0x34); }), "Sorry Can't launch StyledEdit - N1 app..\n");
	EXPECT_EQ(OutputOf([] { IAnyApps(0x35); }), "Sorry Can't launch Terminal - N2 app..\n");
	EXPECT_EQ(OutputOf([] { IAnyApps(0x36); }), "Sorry Can't GoBe - N3 app..\n");
	EXPECT_EQ(OutputOf([] { IAnyApps(0x37); }), "");
}


TEST_F(RemoteStartsTest, ProgramsAreStarted)
{
	const std::pair<long, const char*> starts[] = {{0x34, "application/x-vnd.Haiku-StyledEdit"},
		{0x35, "application/x-vnd.Be-SHEL"}, {0x36, "application/x-vnd.gobe.productive"}};
	std::string table;
	for (const auto& [key, signature] : starts) {
		const std::string name = "start" + std::to_string(key);
		const std::string path
			= fFolder.Write(name, "#!/bin/sh\n: >'" + fFolder / (name + ".started") + "'\n");
		chmod(path.c_str(), 0755);
		table += "player " + name + "\n\tsignature " + signature + "\n\texecutable " + path
			+ "\n\ttypes audio\n";
	}
	AddPlayers(table);
	for (const auto& [key, signature] : starts) {
		const long number = key;
		EXPECT_EQ(OutputOf([number] { IAnyApps(number); }), "") << signature;
		const std::string file = fFolder / ("start" + std::to_string(number) + ".started");
		EXPECT_TRUE(test::WaitFor([&file] { return access(file.c_str(), F_OK) == 0; },
			std::chrono::seconds(20)))
			<< signature;
	}
}


TEST_F(RemoteStartsTest, AudioFilesAreFound)
{
	const std::string home = getenv("HOME");
	const std::string found = home + "/found.mp3";
	const std::string other = home + "/other.mp3";
	for (const std::string& path : {found, other})
		write_file(path, "");
	BNode node(found.c_str());
	ASSERT_EQ(BNodeInfo(&node).SetType("audio/x-mpeg"), B_OK);
	BNode otherNode(other.c_str());
	ASSERT_EQ(BNodeInfo(&otherNode).SetType("audio/x-wav"), B_OK);

	const std::string output = OutputOf([] { ISearchTypes(); });
	EXPECT_NE(output.find("/found.mp3\n"), std::string::npos) << output;
	EXPECT_EQ(output.find("/other.mp3\n"), std::string::npos) << output;
	unlink(found.c_str());
	unlink(other.c_str());
}


TEST_F(RemoteStartsTest, QueriesAreSaved)
{
	const std::string path = fFolder / "query";
	EXPECT_EQ(OutputOf([&path] { CreateQuery(path.c_str(), "((name=='a*'))", "a"); }), "");
	EXPECT_EQ(type_of(path), "application/x-vnd.Be-query");
	EXPECT_EQ(text_attribute(path, "_trk/qrystr"), "((name=='a*'))");
	EXPECT_EQ(text_attribute(path, "_trk/qryinitstr"), "a");

	// Again, shorter.
	EXPECT_EQ(OutputOf([&path] { CreateQuery(path.c_str(), "size>1", nullptr); }), "");
	EXPECT_EQ(text_attribute(path, "_trk/qrystr"), "size>1");
	EXPECT_EQ(text_attribute(path, "_trk/qryinitstr"), "");
}


TEST_F(RemoteStartsTest, QueryWithoutFolderGoesToTheUsersQueries)
{
	EXPECT_EQ(OutputOf([] { CreateQuery("music", "((BEOS:TYPE=='audio/x-mpeg'))", "m"); }), "");
	const std::string path = std::string(getenv("HOME")) + "/queries/music";
	EXPECT_EQ(text_attribute(path, "_trk/qrystr"), "((BEOS:TYPE=='audio/x-mpeg'))");
	unlink(path.c_str());
}


TEST_F(RemoteStartsTest, OtherFilesAreNotOverwritten)
{
	const std::string path = fFolder.Write("notes.txt", "my notes");
	EXPECT_EQ(OutputOf([&path] { CreateQuery(path.c_str(), "size>1", ""); }),
		"can't save the query '" + path + "'\n");
	EXPECT_EQ(test::ReadFile(path), "my notes");
	EXPECT_EQ(text_attribute(path, "_trk/qrystr"), "");
	const std::string nowhere = fFolder / "none/query";
	EXPECT_EQ(OutputOf([&nowhere] { CreateQuery(nowhere.c_str(), "size>1", ""); }),
		"can't save the query '" + nowhere + "'\n");
	EXPECT_EQ(OutputOf([] { CreateQuery(nullptr, "size>1", ""); }), "");
	EXPECT_EQ(OutputOf([] { CreateQuery("x", nullptr, ""); }), "");
}
