// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Any bytes may be a language file: each label has a text afterwards, and nothing else changes.
#include <string>

#include <string.h>

#include "locale/KVLabel.h"
#include "locale/Labels.h"
#include "tests/fuzz/FuzzFolder.h"

// What the fuzzer calls.
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);


extern "C" int
LLVMFuzzerInitialize(int* argc, char*** argv)
{
	AddSeeds(argc, argv,
		{"\"Edit\"\t\t\"Bearbeiten\"\n", "# no entry\r\n\"Quit\"\t\"No Edit\"\r\n\"Close\" \"",
			"\"\"\n\"Open folder\"\t\t\"" + std::string(300, 'x') + "\"\n",
			"\xEF\xBB\xBF\"Edit\""});
	return 0;
}


extern "C" int
LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
	static const std::string sPath = FuzzFolder() + "/KORU-Haiku.deDE";
	static KVLabel& sLabels = *KVLabel::getKVLabel("KORU-Haiku");
	WriteBytes(sPath, data, size);
	sLabels.MirrorList(eLabel);
	sLabels.LoadLangFile(sPath.c_str());

	Require(sLabels.mirrorLabel.CountItems() == kLabelCount, "a label for each number");
	int32 changed = 0;
	for (int number = 0; number < kLabelCount; number++) {
		const char* const text = sLabels.getLabel(nullptr, number);
		Require(text != nullptr && strlen(text) < 255, "a text of a line's length");
		changed += strcmp(text, eLabel[number]) != 0 ? 1 : 0;
	}
	Require(changed <= sLabels.fReplaced, "a replacement for each changed text");
	Require(strcmp(sLabels.getLabel(nullptr, kLabelCount), "-nf-") == 0, "an end of the labels");
	return 0;
}
