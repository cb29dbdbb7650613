// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef STORAGE_KIT_H
#define STORAGE_KIT_H

#include <AppFileInfo.h>
#include <Directory.h>
#include <Entry.h>
#include <EntryList.h>
#include <File.h>
#include <FindDirectory.h>
#include <Mime.h>
#include <MimeType.h>
#include <Node.h>
#include <NodeInfo.h>
#include <Path.h>
#include <Query.h>
#include <Statable.h>
#include <StorageDefs.h>
#include <SymLink.h>
#include <Volume.h>
#include <VolumeRoster.h>

#endif // STORAGE_KIT_H
