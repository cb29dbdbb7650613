// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef APP_FILE_INFO_H
#define APP_FILE_INFO_H

#include <NodeInfo.h>

class BFile;


struct version_info {
	uint32 major;
	uint32 middle;
	uint32 minor;
	uint32 variety;
	uint32 internal;
	char short_info[64];
	char long_info[256];
};

enum {
	B_DEVELOPMENT_VERSION,
	B_ALPHA_VERSION,
	B_BETA_VERSION,
	B_GAMMA_VERSION,
	B_GOLDEN_MASTER_VERSION,
	B_FINAL_VERSION,
};

enum version_kind {
	B_APP_VERSION_KIND,
	B_SYSTEM_VERSION_KIND,
};


// What a program's file says about the program. The file is the caller's.
class BAppFileInfo : public BNodeInfo {
public:
	BAppFileInfo();
	explicit BAppFileInfo(BFile* file);
	~BAppFileInfo() override;

	status_t SetTo(BFile* file);

	status_t GetSignature(char* signature) const;
	status_t GetVersionInfo(version_info* info, version_kind kind) const;

private:
	BFile* fFile = nullptr;
};

#endif // APP_FILE_INFO_H
