// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef APP_KIT_H
#define APP_KIT_H

#include <AppDefs.h>
#include <Application.h>
#include <Clipboard.h>
#include <Handler.h>
#include <Invoker.h>
#include <Looper.h>
#include <Message.h>
#include <MessageFilter.h>
#include <MessageQueue.h>
#include <MessageRunner.h>
#include <Messenger.h>
#include <PropertyInfo.h>
#include <Roster.h>

#endif // APP_KIT_H
