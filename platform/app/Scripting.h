// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef SCRIPTING_H
#define SCRIPTING_H

#include <PropertyInfo.h>
#include <SupportDefs.h>

class BHandler;
class BMessage;


namespace hosted {

// Answers the questions that every handler answers; false if the message asks something else.
bool AnswerHandlerProperty(BHandler& handler, BMessage* message);

// The row of the table that the message's current specifier means, or B_ERROR.
int32 MatchProperty(property_info* properties, BMessage* message);

void ReplyNotUnderstood(BMessage* message, status_t error, const char* text);

} // namespace hosted

#endif // SCRIPTING_H
