// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef SUPPORT_KIT_H
#define SUPPORT_KIT_H

#include <Archivable.h>
#include <Autolock.h>
#include <ByteOrder.h>
#include <ClassInfo.h>
#include <DataIO.h>
#include <Errors.h>
#include <Flattenable.h>
#include <List.h>
#include <Locker.h>
#include <String.h>
#include <StringList.h>
#include <SupportDefs.h>
#include <TypeConstants.h>

#endif // SUPPORT_KIT_H
